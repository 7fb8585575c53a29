// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPngEncoder.h Writes PNG files.
#ifndef PLATFORM_IMAGES_ENCODERS_VELPNGENCODER_H
#define PLATFORM_IMAGES_ENCODERS_VELPNGENCODER_H

#include <string>

#include "platform/base/HResult.h"

class VelPixelBuffer;
class VelPixelImage;

/// Encodes Rgba8 as PNG files of red, green, blue and alpha: packed fast rather than small, as drawing an image should
/// not cost less than keeping it. Srgb and Linear are written, Unknown is not. The same pixels give the same bytes.
class VelPngEncoder {
 public:
  /// @param[out] oBytes the whole file; empty after a failure
  /// @param[out] oCause the reason of a failure, made to follow what names the image; untouched otherwise
  /// @return S_OK; E_FAIL for floats, for an empty buffer, and when the memory is not to be had
  static HRESULT Encode(const VelPixelBuffer& iImage, std::string& oBytes, std::string& oCause);
  static HRESULT Encode(const VelPixelImage& iImage, std::string& oBytes, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_ENCODERS_VELPNGENCODER_H
