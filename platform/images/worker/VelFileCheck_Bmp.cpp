// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFileCheck_Bmp.cpp The form of BMP files.
#include <cstdlib>

#include "platform/images/worker/VelFileCheck.h"
#include "platform/images/worker/VelFileHeader.h"
#include "platform/images/worker/VelWorkerPicture.h"

namespace {

constexpr VelImageKind kind = VelImageKind::Bmp;
constexpr std::uint32_t fileHeader = 14;
constexpr std::uint32_t oldHeader = 12;
constexpr std::uint32_t newHeader = 40;

enum Compression : std::uint32_t { Plain = 0, Runs8 = 1, Runs4 = 2, Masks = 3, MasksWithAlpha = 6 };

/// Reads runs up to the mark of their end.
bool AreRunsWhole(const VelFileHeader& iFile, std::uint64_t iBegin, std::uint32_t iBits) {
  constexpr std::uint32_t endOfPicture = 1;
  constexpr std::uint32_t step = 2;
  std::uint64_t place = iBegin;
  while (iFile.Has(place, 2)) {
    const std::uint32_t count = iFile.Byte(place);
    const std::uint32_t code = iFile.Byte(place + 1);
    place += 2;
    if (count > 0) continue;
    if (code == endOfPicture) return true;
    if (code == step) place += 2;
    if (code > step) place += (code * iBits + 15) / 16 * 2;
  }
  return false;
}

}  // namespace

HRESULT VelFileCheck::CheckBmp(std::string_view iFile, Outcome& oOutcome, std::string& oCause) {
  const VelFileHeader file(iFile);
  const std::uint32_t header = file.Long(14);
  const bool isOld = header == oldHeader;
  if (!iFile.starts_with("BM") || (!isOld && header < newHeader))
    return RefuseForm(kind, "its head is not known", oCause);
  if (!file.Has(fileHeader, header)) return RefuseCut(kind, oCause);
  const std::uint32_t bits = isOld ? file.Word(24) : file.Word(28);
  const std::uint32_t compression = isOld ? Plain : file.Long(30);
  // Rows that come from the top make the height negative.
  oOutcome.width = isOld ? file.Word(18) : static_cast<std::int32_t>(file.Long(18));
  oOutcome.height = isOld ? file.Word(20) : std::abs(std::int64_t{static_cast<std::int32_t>(file.Long(22))});
  VEL_RETURN_IF_FAILED(VelWorkerPicture::CheckSize(oOutcome.width, oOutcome.height, oCause));
  const std::uint64_t begin = file.Long(10);
  if (compression == Runs8 || compression == Runs4) {
    const std::uint32_t runBits = compression == Runs8 ? 8 : 4;
    if (bits != runBits) return RefuseForm(kind, "its runs do not fit its pixels", oCause);
    return AreRunsWhole(file, begin, runBits) ? S_OK : RefuseCut(kind, oCause);
  }
  if (compression != Plain && compression != Masks && compression != MasksWithAlpha) {
    return RefuseForm(kind, "its compression is not known", oCause);
  }
  const std::uint64_t row = (static_cast<std::uint64_t>(oOutcome.width) * bits + 31) / 32 * 4;
  return row > 0 && file.Has(begin, row * static_cast<std::uint64_t>(oOutcome.height)) ? S_OK : RefuseCut(kind, oCause);
}
