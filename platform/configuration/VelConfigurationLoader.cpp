// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationLoader.cpp Fills the configurations from files and folders.
#include "platform/configuration/VelConfigurationLoader.h"

#include <vector>

#include "platform/base/system/VelSystemFile.h"
#include "platform/configuration/VelConfigurationFile.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

constexpr const char* channel = "VelRbaConfiguration";

/// What no reader may let through, whichever library it comes from: the tables never hold it.
/// @return the cause, empty when the content is sound
std::string FindFault(const VelConfigurationContent& iContent) {
  for (const VelConfigurationParent& known : iContent.parents) {
    if (known.configuration.IsEmpty()) return "a configuration has an empty name";
    if (known.configuration == VelRbaConfiguration::defaultName) return "the configuration 'Default' has no parent";
  }
  for (const VelConfigurationEntry& entry : iContent.entries) {
    if (entry.configuration.IsEmpty()) return "a configuration has an empty name";
    if (entry.key.IsEmpty()) return "a key is empty";
  }
  return {};
}

}  // namespace

HRESULT VelConfigurationLoader::LoadFile(const std::string& iPath) const {
  const VelConfigurationFile file(channel);
  VelConfigurationContent content;
  VEL_RETURN_IF_FAILED(file.ReadConfigurations(iPath, content));
  if (const std::string fault = FindFault(content); !fault.empty()) {
    file.Report(iPath, {0, 0, fault});
    return E_FAIL;
  }
  VelConfigurationTables::Instance().Enter(content, owner_);
  return S_OK;
}

HRESULT VelConfigurationLoader::LoadFolder(const std::string& iPath) const {
  std::vector<std::string> names;
  std::string cause;
  if (FAILED(VelSystemFile::ListFolder(iPath, VelConfigurationFile::nameEnd, names, cause))) {
    VelConfigurationFile(channel).Report(iPath, {0, 0, cause});
    return E_FAIL;
  }
  if (names.empty()) VelTraceHandle(channel).Warning("The folder '%s' holds no configuration file", iPath);
  HRESULT result = S_OK;
  for (const std::string& name : names) {
    if (FAILED(LoadFile(iPath + '/' + name))) result = E_FAIL;
  }
  return result;
}

HRESULT VelConfigurationLoader::Load(const std::string& iPath) const {
  std::vector<std::string> names;
  std::string cause;
  const bool isFolder = SUCCEEDED(VelSystemFile::ListFolder(iPath, VelConfigurationFile::nameEnd, names, cause));
  return isFolder ? LoadFolder(iPath) : LoadFile(iPath);
}
