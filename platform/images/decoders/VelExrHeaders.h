// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrHeaders.h Checks the headers of OpenEXR files before their library reads them.
#ifndef PLATFORM_IMAGES_DECODERS_VELEXRHEADERS_H
#define PLATFORM_IMAGES_DECODERS_VELEXRHEADERS_H

#include <string>

#include "platform/base/HResult.h"

class VelImageSource;

/// The library makes room for each attribute of a header before it reads it, as long as the file tells: up to two
/// gigabytes for a file of a hundred bytes. So the lengths are compared with the file's first.
class VelExrHeaders {
 public:
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when an attribute is longer than what is left of the file, or the file ends in a header
  static HRESULT Check(VelImageSource& ioSource, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELEXRHEADERS_H
