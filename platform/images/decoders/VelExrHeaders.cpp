// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrHeaders.cpp Walks from attribute to attribute.
#include "platform/images/decoders/VelExrHeaders.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/images/decoders/VelImageSourceCursor.h"

namespace {

constexpr std::uint64_t magicLength = 4;
constexpr std::uint32_t partsFlag = 0x1000;

struct FixedType {
  std::string_view name;
  std::uint32_t length;
};

/// The types whose values are all of the same length.
constexpr std::array fixedTypes{
    FixedType{"box2f", 16},
    FixedType{"box2i", 16},
    FixedType{"chromaticities", 32},
    FixedType{"compression", 1},
    FixedType{"double", 8},
    FixedType{"envmap", 1},
    FixedType{"deepImageState", 1},
    FixedType{"float", 4},
    FixedType{"int", 4},
    FixedType{"keycode", 28},
    FixedType{"lineOrder", 1},
    FixedType{"m33f", 36},
    FixedType{"m33d", 72},
    FixedType{"m44f", 64},
    FixedType{"m44d", 128},
    FixedType{"rational", 8},
    FixedType{"tiledesc", 9},
    FixedType{"timecode", 8},
    FixedType{"v2i", 8},
    FixedType{"v2f", 8},
    FixedType{"v2d", 16},
    FixedType{"v3i", 12},
    FixedType{"v3f", 12},
    FixedType{"v3d", 24},
};

bool ReadNumber(VelImageSourceCursor& ioCursor, std::uint32_t& oNumber) {
  std::array<std::byte, 4> bytes{};
  if (ioCursor.Read(bytes) != bytes.size()) return false;
  oNumber = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) oNumber |= std::to_integer<std::uint32_t>(bytes[i]) << (8 * i);
  return true;
}

/// Reads a text up to the zero at its end.
/// @return false where the file ends before, and for texts longer than those of the format
bool ReadText(VelImageSourceCursor& ioCursor, std::string& oText) {
  constexpr std::size_t longestText = 255;
  oText.clear();
  for (std::byte byte{}; oText.size() <= longestText && ioCursor.Read({&byte, 1}) == 1;) {
    if (byte == std::byte{0}) return true;
    oText += static_cast<char>(byte);
  }
  return false;
}

/// Channels, ended by one without a name.
bool ReadChannels(VelImageSourceCursor& ioCursor, std::uint64_t iEnd) {
  constexpr std::uint64_t channelLength = 16;
  for (std::string name; ioCursor.Position() < iEnd && ReadText(ioCursor, name);) {
    if (name.empty()) return ioCursor.Position() == iEnd;
    ioCursor.MoveTo(ioCursor.Position() + channelLength);
  }
  return false;
}

/// Texts, each with its length before it.
bool ReadTexts(VelImageSourceCursor& ioCursor, std::uint64_t iEnd) {
  for (std::uint32_t length = 0; ioCursor.Position() < iEnd;) {
    if (!ReadNumber(ioCursor, length)) return false;
    ioCursor.MoveTo(ioCursor.Position() + length);
  }
  return ioCursor.Position() == iEnd;
}

/// Reads a type, a length and a value.
bool ReadValue(VelImageSourceCursor& ioCursor) {
  std::string type;
  std::uint32_t length = 0;
  if (!ReadText(ioCursor, type) || !ReadNumber(ioCursor, length)) return false;
  if (length > ioCursor.Size() || ioCursor.Position() > ioCursor.Size() - length) return false;
  const std::uint64_t end = ioCursor.Position() + length;
  if (type == "chlist") return ReadChannels(ioCursor, end);
  if (type == "stringvector") return ReadTexts(ioCursor, end);
  const auto* found =
      std::find_if(fixedTypes.begin(), fixedTypes.end(), [&](const FixedType& iKnown) { return iKnown.name == type; });
  if (found != fixedTypes.end() && found->length != length) return false;
  if (type == "floatvector" && length % sizeof(float) != 0) return false;
  ioCursor.MoveTo(end);
  return true;
}

/// Reads the attributes of a header, which an empty name ends.
/// @param[out] oHasAny whether there is one
bool ReadHeader(VelImageSourceCursor& ioCursor, bool& oHasAny) {
  std::string name;
  for (oHasAny = false; ReadText(ioCursor, name); oHasAny = true) {
    if (name.empty()) return true;
    if (!ReadValue(ioCursor)) return false;
  }
  return false;
}

}  // namespace

HRESULT VelExrHeaders::Check(VelImageSource& ioSource, std::string& oCause) {
  VelImageSourceCursor cursor(ioSource);
  cursor.MoveTo(magicLength);
  std::uint32_t version = 0;
  bool isWhole = ReadNumber(cursor, version);
  const bool hasParts = (version & partsFlag) != 0;
  // The headers of several parts are ended by one that is empty.
  for (bool hasMore = true; isWhole && hasMore;) {
    isWhole = ReadHeader(cursor, hasMore);
    if (!hasParts) break;
  }
  if (isWhole) return S_OK;
  oCause = "is a damaged OpenEXR file: its header has an attribute of a wrong length";
  return E_FAIL;
}
