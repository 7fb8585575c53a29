// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationParticipant.cpp Loads the configurations of a session and takes them out at its end.
#include "platform/session/VelConfigurationParticipant.h"

#include "platform/base/VelEnvironment.h"
#include "platform/configuration/VelConfigurationLoader.h"
#include "platform/configuration/VelConfigurationSources.h"
#include "platform/configuration/VelConfigurationTables.h"
#include "platform/session/VelInstalledShare.h"
#include "platform/session/VelPlatformSession.h"
#include "platform/trace/VelTraceHandle.h"

namespace {

constexpr const char* channel = "VelPlatformSession";

bool AddParticipant() {
  VelPlatformSession::AddParticipant(*new VelConfigurationParticipant);
  return true;
}

[[maybe_unused]] const bool participantAdded = AddParticipant();

HRESULT Load(const std::string& iPath) { return VelConfigurationLoader(VelConfigurationOwner::Session).Load(iPath); }

/// @return where a path of the options leads; one that is nowhere is left to who loads it, which says so
std::string Located(const std::string& iPath) {
  const std::string found = VelPlatformSession::Current()->Locate(iPath);
  return found.empty() ? iPath : found;
}

}  // namespace

HRESULT VelConfigurationParticipant::OnSessionStart(const VelPlatformOptions& iOptions) {
  VelConfigurationTables::Instance().BeginSession();
  LoadInstallation();
  LoadEnvironment();
  HRESULT result = LoadOptions(iOptions.configurations);
  if (SUCCEEDED(result)) result = AddShaderTypes(iOptions.shaderTypes);
  // A service that did not start is not ended either.
  if (FAILED(result)) OnSessionEnd();
  return result;
}

void VelConfigurationParticipant::OnSessionEnd() { VelConfigurationTables::Instance().EndSession(); }

void VelConfigurationParticipant::LoadInstallation() {
  const std::string folder = VelInstalledShare::FindFolder("configuration");
  if (folder.empty() || SUCCEEDED(Load(folder))) return;
  VelTraceHandle(channel).Warning("The installed configurations in '%s' are not loaded, or not all of them", folder);
}

void VelConfigurationParticipant::LoadEnvironment() {
  for (const std::string& path : VelEnvironment::GetPaths("VEL_CONFIGURATION_PATH")) {
    if (SUCCEEDED(Load(path))) continue;
    VelTraceHandle(channel).Warning("VEL_CONFIGURATION_PATH names '%s', which is not loaded, or not as a whole", path);
  }
}

HRESULT VelConfigurationParticipant::LoadOptions(const std::vector<std::string>& iConfigurations) {
  for (const std::string& configuration : iConfigurations) {
    if (SUCCEEDED(Load(Located(configuration)))) continue;
    VelTraceHandle(channel).Error(VEL_HERE("platform/session/VelConfigurationParticipant"),
                                  "The session does not start without its configuration '%s'", configuration);
    return E_FAIL;
  }
  return S_OK;
}

HRESULT VelConfigurationParticipant::AddShaderTypes(const std::vector<std::string>& iShaderTypes) {
  for (const std::string& path : iShaderTypes) {
    if (SUCCEEDED(VelConfigurationSources::Instance().AddPath(Located(path)))) continue;
    VelTraceHandle(channel).Error(VEL_HERE("platform/session/VelConfigurationParticipant"),
                                  "The session does not start without its shader types '%s'", path);
    return E_FAIL;
  }
  return S_OK;
}
