// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelOrientation.h Turns an image upright.
#ifndef PLATFORM_IMAGES_DECODERS_VELPIXELORIENTATION_H
#define PLATFORM_IMAGES_DECODERS_VELPIXELORIENTATION_H

#include <string>

#include "platform/base/HResult.h"

class VelPixelBuffer;

/// The eight ways in which a file may store its rows and columns, numbered as cameras and TIFF files do. Where the
/// first row and the first column stored are to be seen:
///
///     1  top, left       5  left, top
///     2  top, right      6  right, top
///     3  bottom, right   7  right, bottom
///     4  bottom, left    8  left, bottom
class VelPixelOrientation {
 public:
  /// Turns the pixels in place; 5 to 8 exchange the sides and need as much memory again for a moment.
  /// @param[in] iOrientation 1 to 8; anything else counts as 1
  /// @param[in,out] ioImage not empty; unchanged after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when the memory is not to be had
  static HRESULT Apply(int iOrientation, VelPixelBuffer& ioImage, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELPIXELORIENTATION_H
