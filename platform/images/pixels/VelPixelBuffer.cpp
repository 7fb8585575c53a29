// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelBuffer.cpp Checks the size of an image before its memory is asked for.
#include "platform/images/pixels/VelPixelBuffer.h"

#include <new>
#include <utility>

HRESULT VelPixelBuffer::Allocate(std::int64_t iWidth, std::int64_t iHeight, VelPixelImage::Format iFormat,
                                 std::string& oCause) {
  pixels_.reset();
  const auto isSide = [](std::int64_t iPixels) { return 1 <= iPixels && iPixels <= VelPixelImage::largestSide; };
  if (!isSide(iWidth) || !isSide(iHeight) || iWidth * iHeight > VelPixelImage::mostPixels) {
    oCause = "has " + std::to_string(iWidth) + " x " + std::to_string(iHeight) + " pixels; expected 1 to " +
             std::to_string(VelPixelImage::largestSide) + " a side and at most " +
             std::to_string(VelPixelImage::mostPixels) + " in all";
    return E_FAIL;
  }
  const auto width = static_cast<int>(iWidth);
  const auto height = static_cast<int>(iHeight);
  pixels_.reset(new (std::nothrow) std::byte[VelPixelImage::ByteCount(width, height, iFormat)]());
  if (pixels_ == nullptr) {
    oCause = "needs more memory than there is";
    return E_FAIL;
  }
  width_ = width;
  height_ = height;
  format_ = iFormat;
  return S_OK;
}

std::size_t VelPixelBuffer::PixelSize() const noexcept { return VelPixelImage::ByteCount(1, 1, format_); }

std::span<std::byte> VelPixelBuffer::Bytes() noexcept {
  return {pixels_.get(), IsEmpty() ? 0 : VelPixelImage::ByteCount(width_, height_, format_)};
}

std::span<const std::byte> VelPixelBuffer::Bytes() const noexcept {
  return {pixels_.get(), IsEmpty() ? 0 : VelPixelImage::ByteCount(width_, height_, format_)};
}

std::span<std::byte> VelPixelBuffer::Row(int iRow) noexcept {
  const std::size_t length = static_cast<std::size_t>(width_) * PixelSize();
  return Bytes().subspan(static_cast<std::size_t>(iRow) * length, length);
}

std::span<const std::byte> VelPixelBuffer::Row(int iRow) const noexcept {
  const std::size_t length = static_cast<std::size_t>(width_) * PixelSize();
  return Bytes().subspan(static_cast<std::size_t>(iRow) * length, length);
}

VelPixelImage* VelPixelBuffer::TakeImage() {
  if (IsEmpty()) return nullptr;
  return VelPixelImage::Create(width_, height_, format_, colorSpace_, std::move(pixels_));
}
