// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCatalog.h The catalogs of the process: their start-ups, compiled.
#ifndef PLATFORM_FEATUREMODELER_VELCATALOG_H
#define PLATFORM_FEATUREMODELER_VELCATALOG_H

#include <string>
#include <string_view>
#include <vector>

#include "platform/base/VelPlatformApi.h"

class VelFeatureLayout;

/// A catalog. Read once per process and kept to its end, since keys and features rest on it.
class VEL_PLATFORM_API VelCatalog {
 public:
  VelCatalog(const VelCatalog&) = delete;
  VelCatalog& operator=(const VelCatalog&) = delete;

  /// @return the name that the file gives itself, for instance "VelRmaCatalog"
  const std::string& Name() const noexcept { return name_; }

  /// @return the compiled start-up of a name, null when the catalog does not declare it
  const VelFeatureLayout* FindStartUp(std::string_view iName) const noexcept;

  /// Finds a catalog, reading its file when nobody did before. Faults are errors on the channel "VelCatalog" that name
  /// file, line and cause; nothing of a faulty file is registered.
  /// @param[in] iFile the file's name, or a path to it; a name is looked for in the current folder, then in the folders
  ///            of SetFolders
  /// @return the catalog, null when it is not found or faulty
  static const VelCatalog* Load(const std::string& iFile);

  /// @return the catalog of a name that was read before, null when there is none
  static const VelCatalog* Find(std::string_view iName) noexcept;

  /// Sets the folders in which catalogs are looked for. Those of the environment variable VEL_CATALOG_PATH, separated
  /// by ':', come after them.
  static void SetFolders(std::vector<std::string> iFolders);

 private:
  friend struct VelCatalogRegistry;
  VelCatalog() = default;

  std::string name_;
  std::string path_;
  std::vector<const VelFeatureLayout*> startUps_;
};

#endif  // PLATFORM_FEATUREMODELER_VELCATALOG_H
