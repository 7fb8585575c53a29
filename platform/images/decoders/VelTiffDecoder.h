// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiffDecoder.h Reads TIFF files.
#ifndef PLATFORM_IMAGES_DECODERS_VELTIFFDECODER_H
#define PLATFORM_IMAGES_DECODERS_VELTIFFDECODER_H

#include <string>

#include "platform/base/HResult.h"

class VelImageSource;
class VelPixelBuffer;

/// Decodes the first page of TIFF files, turned upright: whole numbers of up to 16 bits to Rgba8, floats of 16 and 32
/// bits to Rgba32F. Alpha is what the file declares as such, and colours that it was multiplied into are freed of it.
/// Inks become colours by their plain complement. Whole numbers are Srgb, with a colour profile Unknown; floats are
/// Linear.
class VelTiffDecoder {
 public:
  /// @param[out] oImage the image; empty after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when there is no image
  static HRESULT Decode(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELTIFFDECODER_H
