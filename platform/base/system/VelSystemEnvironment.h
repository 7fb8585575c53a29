// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemEnvironment.h The variables of the process environment.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMENVIRONMENT_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMENVIRONMENT_H

#include <optional>
#include <string>

#include "platform/base/VelPlatformApi.h"

/// Reads the environment. Nobody may change it meanwhile, which the system call does not guard against.
class VelSystemEnvironment {
 public:
  /// @param[in] iName null is the name of no variable
  /// @return the value, empty where the variable is set to nothing; no value where it is not set
  VEL_PLATFORM_API static std::optional<std::string> Get(const char* iName);
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMENVIRONMENT_H
