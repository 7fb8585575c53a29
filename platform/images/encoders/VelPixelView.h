// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelView.h Pixels to be written, whoever keeps them.
#ifndef PLATFORM_IMAGES_ENCODERS_VELPIXELVIEW_H
#define PLATFORM_IMAGES_ENCODERS_VELPIXELVIEW_H

#include <cstddef>
#include <span>

#include "platform/images/VelPixelImage.h"

class VelPixelBuffer;

/// What an encoder sees of an image or of a buffer, which outlives the view.
struct VelPixelView {
  int width;
  int height;
  VelPixelImage::Format format;
  VelPixelImage::ColorSpace colorSpace;
  std::span<const std::byte> pixels;  ///< As VelPixelImage keeps them; empty for an empty buffer.

  static VelPixelView Of(const VelPixelImage& iImage) noexcept;
  static VelPixelView Of(const VelPixelBuffer& iBuffer) noexcept;
};

#endif  // PLATFORM_IMAGES_ENCODERS_VELPIXELVIEW_H
