// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file DecodedImage.h What a decoder made of bytes in memory.
#ifndef TESTS_PLATFORM_IMAGES_DECODERS_DECODEDIMAGE_H
#define TESTS_PLATFORM_IMAGES_DECODERS_DECODEDIMAGE_H

#include <string>
#include <vector>

#include "platform/images/pixels/VelImageKind.h"
#include "platform/images/pixels/VelPixelBuffer.h"

/// The outcome of a decoder, checked for what holds of every outcome: an image and no cause, or a cause and no image.
struct DecodedImage {
  HRESULT result;
  VelPixelBuffer image;
  std::string cause;

  static DecodedImage Of(VelImageKind iKind, const std::string& iBytes);

  /// "3x2", or the cause when there is no image.
  std::string Size() const;

  /// The bytes of Rgba8, or the floats of Rgba32F; nothing when the image is of the other format.
  std::vector<int> Bytes() const;
  std::vector<float> Floats() const;

  /// The red of Rgba8 as letters, the rows parted by slashes.
  std::string Letters() const;
};

/// Expects no image of each beginning of a file.
/// @param[in] iStep bytes by which each beginning is longer than the one before
void ExpectNoImageOfBeginnings(VelImageKind iKind, const std::string& iFile, std::size_t iStep);

#endif  // TESTS_PLATFORM_IMAGES_DECODERS_DECODEDIMAGE_H
