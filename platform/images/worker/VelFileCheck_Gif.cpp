// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFileCheck_Gif.cpp The form of GIF files.
#include "platform/images/worker/VelFileCheck.h"
#include "platform/images/worker/VelFileHeader.h"

namespace {

constexpr VelImageKind kind = VelImageKind::Gif;
constexpr std::uint64_t screenEnd = 13;
constexpr std::uint32_t imageMark = 0x2C;
constexpr std::uint32_t extensionMark = 0x21;
constexpr char endMark = 0x3B;

/// @return the bytes of a table of colours
std::uint64_t TableLength(std::uint32_t iFlags) {
  return (iFlags & 0x80) == 0 ? 0 : std::uint64_t{3} << ((iFlags & 7) + 1);
}

/// @param[in,out] ioPlace where a chain of blocks begins; behind its end afterwards
/// @return false when the chain has no end
bool SkipBlocks(const VelFileHeader& iFile, std::uint64_t& ioPlace) {
  while (iFile.Has(ioPlace, 1)) {
    const std::uint32_t length = iFile.Byte(ioPlace);
    ioPlace += 1 + length;
    if (length == 0) return true;
  }
  return false;
}

/// @param[in,out] ioPlace where an image or an extension begins; behind its end afterwards
bool SkipPart(const VelFileHeader& iFile, std::uint64_t& ioPlace) {
  constexpr std::uint64_t imageHead = 10;
  const bool isImage = iFile.Byte(ioPlace) == imageMark;
  // The colours of an image, and how wide its codes are; of an extension, its name.
  ioPlace += isImage ? imageHead + TableLength(iFile.Byte(ioPlace + 9)) + 1 : 2;
  return SkipBlocks(iFile, ioPlace);
}

}  // namespace

HRESULT VelFileCheck::CheckGif(std::string_view iFile, Outcome& oOutcome, std::string& oCause) {
  const VelFileHeader file(iFile);
  if (!iFile.starts_with("GIF87a") && !iFile.starts_with("GIF89a")) {
    return RefuseForm(kind, "its head is not known", oCause);
  }
  oOutcome.width = file.Word(6);
  oOutcome.height = file.Word(8);
  std::uint64_t place = screenEnd + TableLength(file.Byte(10));
  std::uint64_t firstEnd = 0;
  while (file.Byte(place) == imageMark || file.Byte(place) == extensionMark) {
    const bool isFirst = file.Byte(place) == imageMark && firstEnd == 0;
    const std::uint64_t begin = place;
    if (!SkipPart(file, place)) return RefuseCut(kind, oCause);
    if (!isFirst) continue;
    firstEnd = place;
    const bool isInside = file.Word(begin + 1) + file.Word(begin + 5) <= oOutcome.width &&
                          file.Word(begin + 3) + file.Word(begin + 7) <= oOutcome.height;
    if (!isInside) return RefuseForm(kind, "its picture is larger than it says", oCause);
  }
  if (!file.Has(place, 1)) return RefuseCut(kind, oCause);
  if (file.Byte(place) != endMark) return RefuseForm(kind, "it has a part that is not known", oCause);
  if (firstEnd == 0) return RefuseForm(kind, "it has no picture", oCause);
  // The frames behind the first would be decoded for nothing.
  oOutcome.bytes = std::string(iFile.substr(0, firstEnd)) + endMark;
  return S_OK;
}
