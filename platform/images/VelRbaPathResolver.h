// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaPathResolver.h Makes full paths of relative and symbolic ones.
#ifndef PLATFORM_IMAGES_VELRBAPATHRESOLVER_H
#define PLATFORM_IMAGES_VELRBAPATHRESOLVER_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"

/// The resolution of paths as people write them. The work is done by the provider of VelRbaImageServices, whose warning
/// is also the one of a missing provider here.
/// Thread: the application thread.
class VEL_PLATFORM_API VelRbaPathResolver {
 public:
  /// Makes the full path of a path. What is neither symbolic nor found stays as it is written; no file need exist.
  /// @param[in] iPath an absolute path; a path with symbols, each "${NAME}"; or a path relative to the folders in which
  ///            files are looked for
  /// @param[out] oPath the path that it stands for; untouched on failure; may be iPath itself
  /// @return S_OK, also where the path is the one that was given; E_FAIL without provider; otherwise the provider's
  ///         failure
  static HRESULT Resolve(const VelUnicodeString& iPath, VelUnicodeString& oPath);
};

#endif  // PLATFORM_IMAGES_VELRBAPATHRESOLVER_H
