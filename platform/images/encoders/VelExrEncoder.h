// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrEncoder.h Writes OpenEXR files.
#ifndef PLATFORM_IMAGES_ENCODERS_VELEXRENCODER_H
#define PLATFORM_IMAGES_ENCODERS_VELEXRENCODER_H

#include <string>

#include "platform/base/HResult.h"

class VelPixelBuffer;
class VelPixelImage;

/// Encodes Rgba32F as OpenEXR files of floats, packed without loss. As the format wants it, the colours are multiplied
/// by alpha, but where that is 0 or no number. The same pixels give the same bytes.
class VelExrEncoder {
 public:
  /// @param[out] oBytes the whole file; empty after a failure
  /// @param[out] oCause the reason of a failure, made to follow what names the image; untouched otherwise
  /// @return S_OK; E_FAIL for pixels of bytes, for an empty buffer, and when the memory is not to be had
  static HRESULT Encode(const VelPixelBuffer& iImage, std::string& oBytes, std::string& oCause);
  static HRESULT Encode(const VelPixelImage& iImage, std::string& oBytes, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_ENCODERS_VELEXRENCODER_H
