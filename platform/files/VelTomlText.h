// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTomlText.h Parses a TOML text into its values, each with its path.
#ifndef PLATFORM_FILES_VELTOMLTEXT_H
#define PLATFORM_FILES_VELTOMLTEXT_H

#include <string>
#include <string_view>
#include <vector>

#include "platform/configuration/VelConfigurationContent.h"
#include "platform/configuration/VelConfigurationNode.h"

/// A value, with the names of the tables around it.
struct VelTomlValue {
  enum class Kind {
    Text,     ///< As it was written.
    Scalar,   ///< A number or a truth value, as text.
    Foreign,  ///< Of a kind that no configuration holds; the text says which ("an array").
  };

  std::vector<std::string> path;  ///< From the outermost table to the value's own key: at least one.
  Kind kind;
  std::string text;
  VelConfigurationPosition key;  ///< Of the key's last part.
  VelConfigurationPosition position;
};

/// The values of a text, for those whose files hold no arrays.
class VelTomlText {
 public:
  /// Parses a text within the limits of VelTomlGuard. Tables within tables, dotted keys and inline tables are the same.
  /// @param[in] iText the whole file, untrusted
  /// @param[out] oValues replaced by the values in the order of the text; untouched on failure
  /// @param[out] oFault the first thing that is wrong with the text; untouched on success
  /// @return true when the text is sound
  static bool Read(std::string_view iText, std::vector<VelTomlValue>& oValues, VelConfigurationFault& oFault);
};

#endif  // PLATFORM_FILES_VELTOMLTEXT_H
