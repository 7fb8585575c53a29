// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file PngBytes.h Writes PNG files without compression.
#ifndef TESTS_PLATFORM_IMAGES_DECODERS_PNGBYTES_H
#define TESTS_PLATFORM_IMAGES_DECODERS_PNGBYTES_H

#include <cstdint>
#include <string>

/// A PNG file as it is put together: its header, the chunks before the image, and the rows.
struct PngBytes {
  std::uint32_t width = 1;
  std::uint32_t height = 1;
  int depth = 8;
  int colorType = 2;  ///< 0 grey, 2 RGB, 3 palette, 4 grey and alpha, 6 RGB and alpha.
  bool isInterlaced = false;
  std::string chunks;  ///< Between header and image.
  std::string rows;    ///< Each with the byte of its filter before it.

  /// The whole file.
  std::string File() const;

  static std::string Signature();
  static std::string Chunk(const std::string& iName, const std::string& iData);

  /// What a zlib stream of these bytes looks like when nothing is compressed.
  static std::string Stored(const std::string& iData);
};

#endif  // TESTS_PLATFORM_IMAGES_DECODERS_PNGBYTES_H
