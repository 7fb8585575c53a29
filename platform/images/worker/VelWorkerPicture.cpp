// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelWorkerPicture.cpp Checks the size of a picture before its memory is asked for.
#include "platform/images/worker/VelWorkerPicture.h"

HRESULT VelWorkerPicture::CheckSize(std::int64_t iWidth, std::int64_t iHeight, std::string& oCause) {
  const auto isSide = [](std::int64_t iPixels) { return 1 <= iPixels && iPixels <= VelPixelImage::largestSide; };
  if (isSide(iWidth) && isSide(iHeight) && iWidth * iHeight <= VelPixelImage::mostPixels) return S_OK;
  oCause = "has " + std::to_string(iWidth) + " x " + std::to_string(iHeight) + " pixels; expected 1 to " +
           std::to_string(VelPixelImage::largestSide) + " a side and at most " +
           std::to_string(VelPixelImage::mostPixels) + " in all";
  return E_FAIL;
}

HRESULT VelWorkerPicture::Allocate(std::int64_t iWidth, std::int64_t iHeight, VelPixelImage::Format iFormat,
                                   std::string& oCause) {
  VEL_RETURN_IF_FAILED(CheckSize(iWidth, iHeight, oCause));
  width_ = static_cast<int>(iWidth);
  height_ = static_cast<int>(iHeight);
  format_ = iFormat;
  std::string reason;
  const HRESULT code = bytes_.Create(VelPixelImage::ByteCount(width_, height_, iFormat), reason);
  if (FAILED(code)) oCause = "needs more memory than there is: the shared memory " + reason;
  return code;
}

VelPixelImage::ColorSpace VelWorkerPicture::GetColorSpace() const noexcept {
  return format_ == VelPixelImage::Format::Rgba32F ? VelPixelImage::ColorSpace::Linear
                                                   : VelPixelImage::ColorSpace::Srgb;
}

HRESULT VelWorkerPicture::Seal(std::string& oCause) {
  std::string reason;
  const HRESULT code = bytes_.Seal(reason);
  if (FAILED(code)) oCause = "was drawn, but the shared memory " + reason;
  return code;
}
