// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgText.h Reads the text of an SVG file, packed or not.
#ifndef PLATFORM_IMAGES_WORKER_VELSVGTEXT_H
#define PLATFORM_IMAGES_WORKER_VELSVGTEXT_H

#include <cstddef>
#include <string>

#include "platform/base/HResult.h"

class VelImageSource;

/// Unpacks gzip where the content is packed, whatever the file is named.
class VelSvgText {
 public:
  static constexpr std::size_t mostBytes = std::size_t{32} * 1024 * 1024;  ///< Of the file, and of the text.

  /// @param[out] oText replaced by the text; undefined after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_FAIL when the file cannot be read whole, is too large, or is no proper gzip file
  static HRESULT Read(VelImageSource& ioSource, std::string& oText, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_WORKER_VELSVGTEXT_H
