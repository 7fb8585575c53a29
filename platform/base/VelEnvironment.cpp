// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelEnvironment.cpp The environment variables that configure a process.
#include "platform/base/VelEnvironment.h"

#include <optional>
#include <string>

#include "platform/base/VelToken.h"
#include "platform/base/system/VelSystemEnvironment.h"

bool VelEnvironment::Get(const char* iName, VelString& oValue) {
  const std::optional<std::string> value = VelSystemEnvironment::Get(iName);
  if (!value) return false;
  oValue = VelString(*value);
  return true;
}

bool VelEnvironment::IsSet(const char* iName) { return VelSystemEnvironment::Get(iName).has_value(); }

std::vector<std::string> VelEnvironment::GetPaths(const char* iName) {
  std::vector<std::string> paths;
  VelString text;
  if (!Get(iName, text)) return paths;
  VelToken token(text, ":");
  for (VelString path = token.Next(); !path.IsEmpty(); path = token.Next()) paths.emplace_back(path.View());
  return paths;
}
