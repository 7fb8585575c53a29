// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExifOrientation.h Which way up a camera was held.
#ifndef PLATFORM_IMAGES_DECODERS_VELEXIFORIENTATION_H
#define PLATFORM_IMAGES_DECODERS_VELEXIFORIENTATION_H

#include <cstddef>
#include <span>

/// The orientation in the Exif data of a photograph.
class VelExifOrientation {
 public:
  static constexpr int upright = 1;

  /// @param[in] iExif the data from its byte order mark on, of any bytes
  /// @return 1 to 8, as VelPixelOrientation takes it; upright when the data tells none that is
  static int Read(std::span<const std::byte> iExif) noexcept;
};

#endif  // PLATFORM_IMAGES_DECODERS_VELEXIFORIENTATION_H
