// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelWholeFile.h Reads an image file into memory.
#ifndef PLATFORM_IMAGES_WORKER_VELWHOLEFILE_H
#define PLATFORM_IMAGES_WORKER_VELWHOLEFILE_H

#include <cstddef>
#include <string>

#include "platform/base/HResult.h"

class VelImageSource;

/// For decoders that want all bytes at once.
class VelWholeFile {
 public:
  static constexpr std::size_t mostBytes = std::size_t{512} * 1024 * 1024;

  /// @param[in] iMost the size up to which a file is read, in bytes
  /// @param[out] oBytes replaced by the content; undefined after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_FAIL when the file is too large, or shorter than it was
  static HRESULT Read(VelImageSource& ioSource, std::size_t iMost, std::string& oBytes, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_WORKER_VELWHOLEFILE_H
