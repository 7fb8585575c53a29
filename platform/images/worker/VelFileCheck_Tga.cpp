// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFileCheck_Tga.cpp The form of TGA files.
#include "platform/images/worker/VelFileCheck.h"
#include "platform/images/worker/VelFileHeader.h"
#include "platform/images/worker/VelWorkerPicture.h"

namespace {

constexpr VelImageKind kind = VelImageKind::Tga;
constexpr std::uint64_t headLength = 18;

enum Type : std::uint32_t { Indexed = 1, Color = 2, Gray = 3 };
constexpr std::uint32_t runs = 8;  ///< Is added to the type.

bool IsKnown(const VelFileHeader& iFile) {
  const std::uint32_t type = iFile.Byte(2) & ~runs;
  const std::uint32_t bits = iFile.Byte(16);
  const bool hasMap = iFile.Byte(1) == 1;
  if (iFile.Byte(1) > 1) return false;
  if (type == Indexed) return hasMap && bits == 8;
  if (type == Gray) return bits == 8 || bits == 16;
  return type == Color && (bits == 15 || bits == 16 || bits == 24 || bits == 32);
}

bool AreRunsWhole(const VelFileHeader& iFile, std::uint64_t iBegin, std::uint64_t iPixelLength, std::uint64_t iPixels) {
  std::uint64_t place = iBegin;
  std::uint64_t count = 0;
  while (count < iPixels && iFile.Has(place, 1)) {
    const std::uint32_t head = iFile.Byte(place);
    const std::uint64_t run = (head & 0x7F) + 1;
    place += 1 + ((head & 0x80) != 0 ? iPixelLength : run * iPixelLength);
    count += run;
  }
  return count >= iPixels && place <= iFile.Size();
}

}  // namespace

HRESULT VelFileCheck::CheckTga(std::string_view iFile, Outcome& oOutcome, std::string& oCause) {
  const VelFileHeader file(iFile);
  if (!file.Has(0, headLength)) return RefuseCut(kind, oCause);
  if (!IsKnown(file)) return RefuseForm(kind, "its head is not known", oCause);
  oOutcome.width = file.Word(12);
  oOutcome.height = file.Word(14);
  VEL_RETURN_IF_FAILED(VelWorkerPicture::CheckSize(oOutcome.width, oOutcome.height, oCause));
  const std::uint64_t mapLength = std::uint64_t{file.Word(5)} * ((file.Byte(7) + 7) / 8);
  const std::uint64_t begin = headLength + file.Byte(0) + (file.Byte(1) == 1 ? mapLength : 0);
  const std::uint64_t pixelLength = (file.Byte(16) + 7) / 8;
  const auto pixels = static_cast<std::uint64_t>(oOutcome.width * oOutcome.height);
  const bool isWhole = (file.Byte(2) & runs) != 0 ? AreRunsWhole(file, begin, pixelLength, pixels)
                                                  : file.Has(begin, pixels * pixelLength);
  return isWhole ? S_OK : RefuseCut(kind, oCause);
}
