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
  /// Dictionary files, and folders whose ".dictionary" files are all loaded. Nothing fails without one: queries are
  /// then not answered. Configuration files need that of VelPlatformFiles.
  std::vector<std::string> dictionaries{};

  /// Catalog files, which containers can then load by the name of the file alone. docs/catalog.md describes them.
  std::vector<std::string> catalogs{};

  /// Configuration files, and folders whose ".toml" files are all loaded; a later one overrides key by key, and all of
  /// them what the installation and the environment bring. docs/configuration.md describes them.
  std::vector<std::string> configurations{};

  /// Files of shader types, and folders whose ".toml" files are all read, for the host's source of configurations
  /// (VelIConfigurationSource); docs/shader_types.md describes them. A faulty one ends the start of the session, and so
  /// does any of them without a source.
  std::vector<std::string> shaderTypes{};

  /// Where relative paths are looked for, and the libraries that a dictionary names without a folder.
  std::vector<std::string> searchFolders{};
};

#endif  // PLATFORM_SESSION_VELPLATFORMOPTIONS_H
