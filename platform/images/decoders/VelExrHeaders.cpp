// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrHeaders.cpp Walks from attribute to attribute.
#include "platform/images/decoders/VelExrHeaders.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/images/decoders/VelImageSourceCursor.h"

namespace {

constexpr std::uint64_t magicLength = 4;
constexpr std::uint32_t partsFlag = 0x1000;

bool ReadNumber(VelImageSourceCursor& ioCursor, std::uint32_t& oNumber) {
  std::array<std::byte, 4> bytes{};
  if (ioCursor.Read(bytes) != bytes.size()) return false;
  oNumber = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) oNumber |= std::to_integer<std::uint32_t>(bytes[i]) << (8 * i);
  return true;
}

/// Moves behind a text and the zero at its end.
/// @param[out] oIsEmpty whether the zero is all there is of it
/// @return false where the file ends before
bool SkipText(VelImageSourceCursor& ioCursor, bool& oIsEmpty) {
  oIsEmpty = true;
  for (std::byte byte{}; ioCursor.Read({&byte, 1}) == 1; oIsEmpty = false) {
    if (byte == std::byte{0}) return true;
  }
  return false;
}

/// Moves behind a type, a length and a value.
bool SkipValue(VelImageSourceCursor& ioCursor) {
  bool isEmpty = false;
  std::uint32_t length = 0;
  if (!SkipText(ioCursor, isEmpty) || !ReadNumber(ioCursor, length)) return false;
  if (length > ioCursor.Size() || ioCursor.Position() > ioCursor.Size() - length) return false;
  ioCursor.MoveTo(ioCursor.Position() + length);
  return true;
}

/// Moves behind the attributes of a header, which a name without letters ends.
/// @param[out] oHasAny whether there is one
bool SkipHeader(VelImageSourceCursor& ioCursor, bool& oHasAny) {
  bool isEnd = false;
  for (oHasAny = false; SkipText(ioCursor, isEnd); oHasAny = true) {
    if (isEnd) return true;
    if (!SkipValue(ioCursor)) return false;
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
    isWhole = SkipHeader(cursor, hasMore);
    if (!hasParts) break;
  }
  if (isWhole) return S_OK;
  oCause = "is a damaged OpenEXR file: its header goes beyond its end";
  return E_FAIL;
}
