// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file decoders_fuzz.cpp Fuzzes the decoders of image files with arbitrary bytes.
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "platform/images/decoders/VelImageDecoders.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/pixels/VelPixelBuffer.h"
#include "tests/fuzz/Require.h"

namespace {

/// An image that was accepted is of an allowed size, and all of it can be read.
void CheckAccepted(VelImageKind iKind, const VelPixelBuffer& iImage) {
  Require(1 <= iImage.GetWidth() && iImage.GetWidth() <= VelPixelImage::largestSide);
  Require(1 <= iImage.GetHeight() && iImage.GetHeight() <= VelPixelImage::largestSide);
  Require(std::int64_t{iImage.GetWidth()} * iImage.GetHeight() <= VelPixelImage::mostPixels);
  const bool isFloat = iImage.GetFormat() == VelPixelImage::Format::Rgba32F;
  Require(isFloat == (iKind == VelImageKind::Exr) || iKind == VelImageKind::Tiff);
  const std::span<const std::byte> last = iImage.Row(iImage.GetHeight() - 1);
  Require(last.data() + last.size() == iImage.Bytes().data() + iImage.Bytes().size());
  if (iKind == VelImageKind::Jpeg) Require(iImage.Bytes().back() == std::byte{255});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* iData, std::size_t iSize) {
  VelMemoryImageSource source(std::as_bytes(std::span(iData, iSize)));
  const VelImageKind kind = RecognizeImageKind(source, "");
  if (!CanDecode(kind)) return 0;
  VelPixelBuffer image;
  std::string cause;
  if (SUCCEEDED(DecodeImage(kind, source, image, cause))) {
    CheckAccepted(kind, image);
  } else {
    Require(image.IsEmpty() && !cause.empty());
  }
  return 0;
}
