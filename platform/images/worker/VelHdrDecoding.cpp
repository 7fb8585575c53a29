// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelHdrDecoding.cpp Decodes by stb_image, which fills what is missing with zeros unless it is checked before.
#include "platform/images/worker/VelHdrDecoding.h"

#include <stb/stb_image.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

#include "platform/images/worker/VelFileCheck.h"
#include "platform/images/worker/VelFileHeader.h"
#include "platform/images/worker/VelWorkerPicture.h"

namespace {

using Pixels = std::unique_ptr<float, decltype(&stbi_image_free)>;

constexpr VelImageKind kind = VelImageKind::Hdr;

/// @return where the pixels begin: behind an empty line and the line of the size; 0 when there are none
std::size_t PixelsBegin(std::string_view iFile) {
  const std::size_t headEnd = iFile.find("\n\n");
  if (headEnd == std::string_view::npos) return 0;
  const std::size_t sizeEnd = iFile.find('\n', headEnd + 2);
  return sizeEnd == std::string_view::npos ? 0 : sizeEnd + 1;
}

/// One of the four parts of a row, in runs.
bool SkipRuns(const VelFileHeader& iFile, std::uint64_t& ioPlace, int iWidth) {
  constexpr std::uint32_t longest = 128;
  for (int x = 0; x < iWidth;) {
    const std::uint32_t count = iFile.Byte(ioPlace);
    if (count == 0) return false;
    const std::uint32_t run = count > longest ? count - longest : count;
    ioPlace += count > longest ? 2 : 1 + run;
    x += static_cast<int>(run);
    if (x > iWidth) return false;
  }
  return true;
}

bool IsRowOfRuns(const VelFileHeader& iFile, std::uint64_t iPlace, int iWidth) {
  constexpr int least = 8;
  constexpr int most = 0x7FFF;
  return least <= iWidth && iWidth <= most && iFile.Byte(iPlace) == 2 && iFile.Byte(iPlace + 1) == 2 &&
         iFile.Byte(iPlace + 2) < 0x80;
}

/// Files have runs in every row or in none.
bool IsWhole(const VelFileHeader& iFile, std::uint64_t iBegin, int iWidth, int iHeight) {
  std::uint64_t place = iBegin;
  if (!IsRowOfRuns(iFile, place, iWidth)) {
    return iFile.Has(place,
                     std::uint64_t{4} * static_cast<std::uint64_t>(iWidth) * static_cast<std::uint64_t>(iHeight));
  }
  for (int y = 0; y < iHeight; ++y) {
    const bool isFit = IsRowOfRuns(iFile, place, iWidth) &&
                       ((iFile.Byte(place + 2) << 8) | iFile.Byte(place + 3)) == static_cast<std::uint32_t>(iWidth);
    if (!isFit) return false;
    place += 4;
    for (int part = 0; part < 4; ++part) {
      if (!SkipRuns(iFile, place, iWidth)) return false;
    }
  }
  return place <= iFile.Size();
}

}  // namespace

HRESULT VelHdrDecoding::Decode(std::string_view iFile, VelWorkerPicture& oPicture, std::string& oCause) {
  const auto* bytes = reinterpret_cast<const stbi_uc*>(iFile.data());
  const int length = static_cast<int>(iFile.size());
  int width = 0;
  int height = 0;
  int parts = 0;
  const std::size_t begin = PixelsBegin(iFile);
  if (begin == 0 || stbi_info_from_memory(bytes, length, &width, &height, &parts) == 0) {
    return VelFileCheck::RefuseForm(kind, "its head is not known", oCause);
  }
  VEL_RETURN_IF_FAILED(VelWorkerPicture::CheckSize(width, height, oCause));
  if (!IsWhole(VelFileHeader(iFile), begin, width, height)) return VelFileCheck::RefuseCut(kind, oCause);
  VEL_RETURN_IF_FAILED(oPicture.Allocate(width, height, VelPixelImage::Format::Rgba32F, oCause));
  const Pixels pixels(stbi_loadf_from_memory(bytes, length, &width, &height, &parts, 4), &stbi_image_free);
  if (pixels == nullptr) return VelFileCheck::RefuseForm(kind, stbi_failure_reason(), oCause);
  std::memcpy(oPicture.Bytes().data(), pixels.get(), oPicture.Bytes().size());
  return S_OK;
}
