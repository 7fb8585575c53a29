// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrDecoder.h Reads OpenEXR files.
#ifndef PLATFORM_IMAGES_DECODERS_VELEXRDECODER_H
#define PLATFORM_IMAGES_DECODERS_VELEXRDECODER_H

#include <string>

#include "platform/base/HResult.h"

class VelImageSource;
class VelPixelBuffer;

/// Decodes the data window of the first part of OpenEXR files that is not deep, to Rgba32F: the channels R, G, B and A,
/// or Y, or the only one that there is. Colours are freed of their alpha, which is 1 where there is none. They are
/// Linear.
///
/// The limits on the size of images are those of the library for the whole process, which the first call sets.
class VelExrDecoder {
 public:
  /// @param[out] oImage the image; empty after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when there is no image
  static HRESULT Decode(VelImageSource& ioSource, VelPixelBuffer& oImage, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELEXRDECODER_H
