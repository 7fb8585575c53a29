// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelHdrDecoding.h Decodes Radiance HDR files.
#ifndef PLATFORM_IMAGES_WORKER_VELHDRDECODING_H
#define PLATFORM_IMAGES_WORKER_VELHDRDECODING_H

#include <string>
#include <string_view>

#include "platform/base/HResult.h"

class VelWorkerPicture;

/// Files whose rows run from the top and whose columns run from the left, as nearly all do.
class VelHdrDecoding {
 public:
  /// @param[out] oPicture replaced by the picture, of floats as the file tells them, opaque; undefined after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_FAIL when the file is damaged or too large
  static HRESULT Decode(std::string_view iFile, VelWorkerPicture& oPicture, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_WORKER_VELHDRDECODING_H
