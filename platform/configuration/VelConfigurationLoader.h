// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationLoader.h Fills the configurations from files and folders.
#ifndef PLATFORM_CONFIGURATION_VELCONFIGURATIONLOADER_H
#define PLATFORM_CONFIGURATION_VELCONFIGURATIONLOADER_H

#include <string>

#include "platform/base/HResult.h"
#include "platform/configuration/VelConfigurationTables.h"

/// What VelRbaConfiguration and the platform session load, each for an owner of its own. Not exported.
class VelConfigurationLoader {
 public:
  explicit VelConfigurationLoader(VelConfigurationOwner iOwner) noexcept : owner_(iOwner) {}

  /// As VelRbaConfiguration::LoadFile.
  HRESULT LoadFile(const std::string& iPath) const;

  /// As VelRbaConfiguration::LoadFolder.
  HRESULT LoadFolder(const std::string& iPath) const;

  /// Loads whichever of the two the path names.
  HRESULT Load(const std::string& iPath) const;

 private:
  VelConfigurationOwner owner_;
};

#endif  // PLATFORM_CONFIGURATION_VELCONFIGURATIONLOADER_H
