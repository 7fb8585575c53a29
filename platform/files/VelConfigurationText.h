// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationText.h What the values of a TOML text mean as configurations and as messages.
#ifndef PLATFORM_FILES_VELCONFIGURATIONTEXT_H
#define PLATFORM_FILES_VELCONFIGURATIONTEXT_H

#include <string_view>

#include "platform/configuration/VelConfigurationContent.h"

/// docs/configuration.md describes both forms and all that is refused.
class VelConfigurationText {
 public:
  enum class Form {
    Configurations,  ///< The outermost tables are configurations, their key "parent" names the one above.
    Messages,        ///< All keys belong to one catalog.
  };

  /// @param[in] iText the whole file, untrusted
  /// @param[out] oContent replaced; untouched on failure
  /// @param[out] oFault the first thing that is wrong; untouched on success
  /// @return true when the text is sound
  static bool Read(std::string_view iText, Form iForm, VelConfigurationContent& oContent,
                   VelConfigurationFault& oFault);
};

#endif  // PLATFORM_FILES_VELCONFIGURATIONTEXT_H
