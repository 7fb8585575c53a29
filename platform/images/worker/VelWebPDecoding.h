// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelWebPDecoding.h Decodes WebP files.
#ifndef PLATFORM_IMAGES_WORKER_VELWEBPDECODING_H
#define PLATFORM_IMAGES_WORKER_VELWEBPDECODING_H

#include <string>
#include <string_view>

#include "platform/base/HResult.h"

class VelWorkerPicture;

/// The first frame of an animation, in its place on a transparent ground.
class VelWebPDecoding {
 public:
  /// @param[out] oPicture replaced by the picture, of bytes; undefined after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_FAIL when the file is damaged or too large
  static HRESULT Decode(std::string_view iFile, VelWorkerPicture& oPicture, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_WORKER_VELWEBPDECODING_H
