// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCacheFolder.h Where the user's caches lie.
#ifndef PLATFORM_IMAGES_SERVICES_VELCACHEFOLDER_H
#define PLATFORM_IMAGES_SERVICES_VELCACHEFOLDER_H

#include <string>

#include "platform/base/HResult.h"

/// The folder for what can be made again, by the rules of the XDG base directories.
class VelCacheFolder {
 public:
  /// @return $XDG_CACHE_HOME where it is an absolute path, else .cache in an absolute $HOME; empty where there is
  /// neither
  static std::string Find();

  /// Makes a folder and those around it that are not there, each for its owner alone.
  /// @param[in] iPath an absolute path
  /// @param[out] oCause the reason of a failure in English, made to follow the path in a message; untouched otherwise
  /// @return S_OK, also when the folder is there; E_FAIL
  static HRESULT Make(const std::string& iPath, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_SERVICES_VELCACHEFOLDER_H
