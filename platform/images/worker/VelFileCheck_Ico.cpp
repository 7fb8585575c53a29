// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFileCheck_Ico.cpp The form of ICO files.
#include "platform/images/worker/VelFileCheck.h"
#include "platform/images/worker/VelFileHeader.h"
#include "platform/images/worker/VelWorkerPicture.h"

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr VelImageKind kind = VelImageKind::Ico;
constexpr std::uint64_t headLength = 6;
constexpr std::uint64_t rowLength = 16;
constexpr std::string_view pngMark = "\x89PNG\r\n\x1A\n";

/// One of the pictures in the file.
struct Icon {
  std::uint64_t row = 0;  ///< Where it is listed.
  std::uint64_t begin = 0;
  std::uint64_t length = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::uint32_t bits = 0;
  bool isPng = false;
};

/// The list says 0 for 256 and more; the pictures themselves know.
Icon ReadIcon(const VelFileHeader& iFile, std::string_view iBytes, std::uint64_t iRow) {
  Icon icon{.row = iRow, .begin = iFile.Long(iRow + 12), .length = iFile.Long(iRow + 8)};
  if (!iFile.Has(icon.begin, icon.length)) return icon;
  icon.isPng = iBytes.substr(icon.begin).starts_with(pngMark);
  icon.width = icon.isPng ? iFile.BigLong(icon.begin + 16) : iFile.Long(icon.begin + 4);
  // The height of the others counts their masks as well.
  icon.height = icon.isPng ? iFile.BigLong(icon.begin + 20) : iFile.Long(icon.begin + 8) / 2;
  icon.bits = icon.isPng ? 32 : iFile.Word(icon.begin + 14);
  return icon;
}

bool IsLarger(const Icon& iIcon, const Icon& iOther) {
  const std::int64_t size = iIcon.width * iIcon.height;
  const std::int64_t otherSize = iOther.width * iOther.height;
  return size == otherSize ? iIcon.bits > iOther.bits : size > otherSize;
}

bool IsWhole(const VelFileHeader& iFile, const Icon& iIcon) {
  constexpr std::uint64_t pngLeast = 33;
  if (iIcon.isPng) return iIcon.length >= pngLeast;
  const auto rowOf = [&](std::uint32_t iBits) {
    return (static_cast<std::uint64_t>(iIcon.width) * iBits + 31) / 32 * 4;
  };
  const std::uint64_t mask = iIcon.bits == 32 ? 0 : rowOf(1);
  const std::uint32_t told = iFile.Long(iIcon.begin + 32);
  const std::uint64_t colors = iIcon.bits > 8 ? 0 : told > 0 ? told : std::uint64_t{1} << iIcon.bits;
  const std::uint64_t pixels = (rowOf(iIcon.bits) + mask) * static_cast<std::uint64_t>(iIcon.height);
  return iIcon.length >= iFile.Long(iIcon.begin) + 4 * colors + pixels;
}

void Append(std::string& ioBytes, std::uint64_t iNumber) {
  for (int shift = 0; shift < 32; shift += 8) ioBytes.push_back(static_cast<char>((iNumber >> shift) & 0xFF));
}

/// @return a file of this picture alone
std::string FileOf(std::string_view iFile, const Icon& iIcon) {
  std::string bytes = "\0\0\1\0\1\0"s;
  bytes.append(iFile.substr(iIcon.row, 8));
  Append(bytes, iIcon.length);
  Append(bytes, headLength + rowLength);
  return bytes.append(iFile.substr(iIcon.begin, iIcon.length));
}

}  // namespace

HRESULT VelFileCheck::CheckIco(std::string_view iFile, Outcome& oOutcome, std::string& oCause) {
  const VelFileHeader file(iFile);
  if (!iFile.starts_with("\0\0\1\0"sv)) return RefuseForm(kind, "its head is not known", oCause);
  const std::uint32_t count = file.Word(4);
  Icon largest;
  for (std::uint32_t i = 0; i < count; ++i) {
    const Icon icon = ReadIcon(file, iFile, headLength + i * rowLength);
    if (icon.length == 0 || !file.Has(icon.begin, icon.length)) return RefuseCut(kind, oCause);
    VEL_RETURN_IF_FAILED(VelWorkerPicture::CheckSize(icon.width, icon.height, oCause));
    if (IsLarger(icon, largest)) largest = icon;
  }
  if (count == 0) return RefuseForm(kind, "it has no picture", oCause);
  if (!IsWhole(file, largest)) return RefuseCut(kind, oCause);
  oOutcome.width = largest.width;
  oOutcome.height = largest.height;
  oOutcome.isPng = largest.isPng;
  oOutcome.bytes = largest.isPng ? std::string(iFile.substr(largest.begin, largest.length)) : FileOf(iFile, largest);
  return S_OK;
}
