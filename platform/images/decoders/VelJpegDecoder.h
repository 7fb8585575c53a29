// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelJpegDecoder.h Reads JPEG files.
#ifndef PLATFORM_IMAGES_DECODERS_VELJPEGDECODER_H
#define PLATFORM_IMAGES_DECODERS_VELJPEGDECODER_H

#include <string>

#include "platform/base/HResult.h"

class VelImageSource;
class VelPixelBuffer;

/// Decodes JPEG files of 8 bits, baseline and progressive, to Rgba8 with alpha 255, turned upright: grey, colour and
/// the four colours of print, these by their plain complement. What the library warns of makes a file damaged. The
/// colours are Srgb, with a colour profile Unknown.
class VelJpegDecoder {
 public:
  /// @param[out] oImage the image; empty after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when there is no image
  static HRESULT Decode(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELJPEGDECODER_H
