// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrHeaders.h Checks the headers of OpenEXR files before their library reads them.
#ifndef PLATFORM_IMAGES_DECODERS_VELEXRHEADERS_H
#define PLATFORM_IMAGES_DECODERS_VELEXRHEADERS_H

#include <string>

#include "platform/base/HResult.h"

class VelImageSource;

/// The library makes room for each attribute of a header before it reads it, as long as the file tells: up to two
/// gigabytes for a file of a hundred bytes. And of most types it reads what the type needs, whatever length is told. So
/// the lengths are compared first, with the file's and with those of the types.
class VelExrHeaders {
 public:
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when an attribute is not of the length of its type or longer than what is left of the file
  static HRESULT Check(VelImageSource& ioSource, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELEXRHEADERS_H
