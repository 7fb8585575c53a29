// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelWorkerPicture.h The pixels that the helper program makes and hands over.
#ifndef PLATFORM_IMAGES_WORKER_VELWORKERPICTURE_H
#define PLATFORM_IMAGES_WORKER_VELWORKERPICTURE_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "platform/base/HResult.h"
#include "platform/base/system/VelSystemSharedBytes.h"
#include "platform/images/VelPixelImage.h"

/// Pixels as VelPixelImage keeps them, from the beginning in memory that another process can be given: large pictures
/// are not to be there twice.
class VelWorkerPicture {
 public:
  /// Checks a size without asking for memory.
  /// @param[in] iWidth pixels as a file tells them, whatever they are
  /// @param[in] iHeight as iWidth
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when no image is of that size
  static HRESULT CheckSize(std::int64_t iWidth, std::int64_t iHeight, std::string& oCause);

  /// Makes room for an image, all zero. What was held is gone.
  /// @param[in] iWidth as for CheckSize
  /// @param[in] iHeight as for CheckSize
  /// @param[out] oCause as for CheckSize
  /// @return S_OK; E_FAIL when no image is of that size, or when the memory is not to be had
  HRESULT Allocate(std::int64_t iWidth, std::int64_t iHeight, VelPixelImage::Format iFormat, std::string& oCause);

  int GetWidth() const noexcept { return width_; }
  int GetHeight() const noexcept { return height_; }
  VelPixelImage::Format GetFormat() const noexcept { return format_; }

  /// @return Linear for floats, Srgb for bytes
  VelPixelImage::ColorSpace GetColorSpace() const noexcept;

  /// @return all pixels, from Allocate to Seal; the first is aligned as a float is
  std::span<std::byte> Bytes() noexcept { return bytes_.WritableBytes(); }

  /// Makes the pixels what they are for good, and takes them out of this object's reach.
  /// @param[out] oCause as for CheckSize
  /// @return S_OK; E_UNEXPECTED before Allocate; E_FAIL when the system refuses
  HRESULT Seal(std::string& oCause);

  /// @return the descriptor of the memory, which stays this object's; negative when there is none
  int GetDescriptor() const noexcept { return bytes_.GetDescriptor(); }

 private:
  int width_ = 0;
  int height_ = 0;
  VelPixelImage::Format format_ = VelPixelImage::Format::Rgba8;
  VelSystemSharedBytes bytes_;
};

#endif  // PLATFORM_IMAGES_WORKER_VELWORKERPICTURE_H
