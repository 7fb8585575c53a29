// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPngDecoder.h Reads PNG files.
#ifndef PLATFORM_IMAGES_DECODERS_VELPNGDECODER_H
#define PLATFORM_IMAGES_DECODERS_VELPNGDECODER_H

#include <string>

#include "platform/base/HResult.h"

class VelImageSource;
class VelPixelBuffer;

/// Decodes PNG files of every colour type and depth to Rgba8, turned upright. A damaged file is none: checksums, rows
/// and the closing chunk are all asked for. The colours are Srgb by an sRGB chunk, by the gamma of sRGB or without a
/// word, Linear by gamma 1, else Unknown.
class VelPngDecoder {
 public:
  /// @param[out] oImage the image; empty after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when there is no image
  static HRESULT Decode(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELPNGDECODER_H
