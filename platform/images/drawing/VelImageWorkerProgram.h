// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerProgram.h Finds the helper program velrsh-image-worker.
#ifndef PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERPROGRAM_H
#define PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERPROGRAM_H

#include <string>

#include "platform/base/HResult.h"

/// The environment variable VEL_IMAGE_WORKER, where it is set to anything, is the path of the program, and nothing else
/// is looked at. Otherwise the search starts where the library lies that this code is in, so that an installation can
/// be moved: first libexec/velrsh of the installation, then bin beside the library's folder, as in a build tree.
class VelImageWorkerProgram {
 public:
  static constexpr const char* variable = "VEL_IMAGE_WORKER";

  /// @param[out] oPath the path of something that exists; untouched on failure
  /// @param[out] oCause where it was looked for, a whole sentence without the full stop; untouched on success
  /// @return S_OK; E_FAIL when it is in none of the places
  static HRESULT Find(std::string& oPath, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERPROGRAM_H
