// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemEnvironment.cpp The variables of the process environment.
#include "platform/base/system/VelSystemEnvironment.h"

#include <cstdlib>

std::optional<std::string> VelSystemEnvironment::Get(const char* iName) {
  if (iName == nullptr) return std::nullopt;
  const char* value = std::getenv(iName);
  if (value == nullptr) return std::nullopt;
  return value;
}
