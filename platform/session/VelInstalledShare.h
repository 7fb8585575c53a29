// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelInstalledShare.h Finds what an installation brings along in its folder share/velrsh.
#ifndef PLATFORM_SESSION_VELINSTALLEDSHARE_H
#define PLATFORM_SESSION_VELINSTALLEDSHARE_H

#include <string>

#include "platform/base/VelPlatformApi.h"

/// The way there starts where the library lies, so that an installation can be moved, and so that a build tree is one.
class VelInstalledShare {
 public:
  /// @param[in] iName a folder of share/velrsh, for instance "catalogs"
  /// @return its path, empty when there is none
  VEL_PLATFORM_API static std::string FindFolder(const std::string& iName);
};

#endif  // PLATFORM_SESSION_VELINSTALLEDSHARE_H
