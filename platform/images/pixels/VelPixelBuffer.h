// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelBuffer.h The pixels of an image while it is decoded.
#ifndef PLATFORM_IMAGES_PIXELS_VELPIXELBUFFER_H
#define PLATFORM_IMAGES_PIXELS_VELPIXELBUFFER_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include "platform/base/HResult.h"
#include "platform/images/VelPixelImage.h"

/// Pixels as VelPixelImage keeps them, which a decoder fills row by row. Empty until Allocate.
class VelPixelBuffer {
 public:
  /// Makes room for an image, all zero. What the buffer held is gone.
  /// @param[in] iWidth pixels as the file tells them, whatever they are
  /// @param[in] iHeight as iWidth
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when no image is of that size, or when the memory is not to be had
  HRESULT Allocate(std::int64_t iWidth, std::int64_t iHeight, VelPixelImage::Format iFormat, std::string& oCause);

  bool IsEmpty() const noexcept { return pixels_ == nullptr; }
  int GetWidth() const noexcept { return width_; }
  int GetHeight() const noexcept { return height_; }
  VelPixelImage::Format GetFormat() const noexcept { return format_; }

  VelPixelImage::ColorSpace GetColorSpace() const noexcept { return colorSpace_; }
  void SetColorSpace(VelPixelImage::ColorSpace iColorSpace) noexcept { colorSpace_ = iColorSpace; }

  /// @return the bytes of one pixel
  std::size_t PixelSize() const noexcept;

  /// @return all pixels; empty when the buffer is
  std::span<std::byte> Bytes() noexcept;
  std::span<const std::byte> Bytes() const noexcept;

  /// @param[in] iRow 0, the topmost, to GetHeight() - 1
  std::span<std::byte> Row(int iRow) noexcept;
  std::span<const std::byte> Row(int iRow) const noexcept;

  /// Makes an image of the pixels, without a copy; the buffer is empty afterwards.
  /// @return the image with one reference for the caller; null when the buffer is empty
  [[nodiscard]] VelPixelImage* TakeImage();

 private:
  int width_ = 0;
  int height_ = 0;
  VelPixelImage::Format format_ = VelPixelImage::Format::Rgba8;
  VelPixelImage::ColorSpace colorSpace_ = VelPixelImage::ColorSpace::Unknown;
  std::unique_ptr<std::byte[]> pixels_;
};

#endif  // PLATFORM_IMAGES_PIXELS_VELPIXELBUFFER_H
