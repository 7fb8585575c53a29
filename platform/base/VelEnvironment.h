// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelEnvironment.h The environment variables that configure a process.
#ifndef PLATFORM_BASE_VELENVIRONMENT_H
#define PLATFORM_BASE_VELENVIRONMENT_H

#include <string>
#include <vector>

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"

/// Environment variables, read anew at each call.
class VelEnvironment {
 public:
  /// @param[in] iName null is the name of no variable
  /// @param[out] oValue the value, empty for a variable that is set to nothing; untouched when it is not set
  /// @return true when the variable is set
  VEL_PLATFORM_API static bool Get(const char* iName, VelString& oValue);

  /// @return true when the variable is set, be it to nothing
  VEL_PLATFORM_API static bool IsSet(const char* iName);

  /// @return the paths that a variable names, separated by ':', in order; none when it is not set. Empty items are left
  /// out.
  VEL_PLATFORM_API static std::vector<std::string> GetPaths(const char* iName);
};

#endif  // PLATFORM_BASE_VELENVIRONMENT_H
