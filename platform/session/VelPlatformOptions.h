// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformOptions.h What a platform session is started with.
#ifndef PLATFORM_SESSION_VELPLATFORMOPTIONS_H
#define PLATFORM_SESSION_VELPLATFORMOPTIONS_H

#include <string>
#include <vector>

/// The inputs of a session, all of them optional. Relative paths are looked for in the current folder, then in the
/// search folders, in order.
struct VelPlatformOptions {
  std::vector<std::string> dictionaries;    ///< Dictionary files, and folders whose ".dictionary" files are all loaded.
  std::vector<std::string> catalogs;        ///< Feature catalogs.
  std::vector<std::string> configurations;  ///< Configuration files, a later one overriding key by key.
  std::vector<std::string>
      searchFolders;  ///< Also where libraries are looked for that a dictionary names without folder.
};

#endif  // PLATFORM_SESSION_VELPLATFORMOPTIONS_H
