// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTomlTree.h Parses a TOML text into its tables, arrays and values.
#ifndef PLATFORM_FILES_VELTOMLTREE_H
#define PLATFORM_FILES_VELTOMLTREE_H

#include <string_view>
#include <vector>

#include "platform/configuration/VelConfigurationContent.h"
#include "platform/configuration/VelConfigurationNode.h"

/// The one place that knows the TOML library.
class VelTomlTree {
 public:
  /// Parses a text within the limits of VelTomlGuard.
  /// @param[in] iText the whole file, untrusted
  /// @param[out] oNodes replaced, as VelIConfigurationTreeReader::ReadTree says; untouched on failure
  /// @param[out] oFault the first thing that is wrong with the text; untouched on success
  /// @return true when the text is sound
  static bool Read(std::string_view iText, std::vector<VelConfigurationNode>& oNodes, VelConfigurationFault& oFault);
};

#endif  // PLATFORM_FILES_VELTOMLTREE_H
