// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTomlGuard.h Refuses texts that nest too deeply for the parser.
#ifndef PLATFORM_FILES_VELTOMLGUARD_H
#define PLATFORM_FILES_VELTOMLGUARD_H

#include <string_view>

#include "platform/configuration/VelConfigurationContent.h"

/// Looks through a TOML text before it is parsed. The parser makes a level of its stack, and later a level of the
/// tree's destruction, of each part of a dotted key, so that a line of 80 KB would end the process.
class VelTomlGuard {
 public:
  static constexpr unsigned partLimit = 32;   ///< Of the parts of one key or header.
  static constexpr unsigned depthLimit = 32;  ///< Of inline tables and arrays in each other.

  /// @param[out] oFault what exceeds a limit, and where; untouched when nothing does
  /// @return true when the text may be parsed, which does not say that it is sound
  static bool Accepts(std::string_view iText, VelConfigurationFault& oFault);
};

#endif  // PLATFORM_FILES_VELTOMLGUARD_H
