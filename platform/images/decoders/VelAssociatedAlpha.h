// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelAssociatedAlpha.h Frees colours of the alpha that they were multiplied by.
#ifndef PLATFORM_IMAGES_DECODERS_VELASSOCIATEDALPHA_H
#define PLATFORM_IMAGES_DECODERS_VELASSOCIATEDALPHA_H

#include <cstddef>
#include <span>

/// Pixels of floats whose files keep colours multiplied by alpha.
class VelAssociatedAlpha {
 public:
  /// Divides the colours of each pixel by its alpha. Where alpha is 0, or no number, they are left as they are: a light
  /// that covers nothing has a colour all the same.
  /// @param[in,out] ioPixels whole pixels of Rgba32F
  static void Remove(std::span<std::byte> ioPixels) noexcept;
};

#endif  // PLATFORM_IMAGES_DECODERS_VELASSOCIATEDALPHA_H
