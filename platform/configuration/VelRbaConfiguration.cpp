// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaConfiguration.cpp The rendering configuration as its users see it.
#include "platform/configuration/VelRbaConfiguration.h"

#include "platform/configuration/VelConfigurationLoader.h"
#include "platform/configuration/VelConfigurationTables.h"

HRESULT VelRbaConfiguration::GetHierarchicalValue(const VelString& iConfiguration, const VelString& iKey,
                                                  VelString& oValue) {
  const VelString* value = VelConfigurationTables::Instance().Find(iConfiguration, iKey);
  if (value == nullptr) return E_FAIL;
  oValue = *value;
  return S_OK;
}

HRESULT VelRbaConfiguration::SetValue(const VelString& iConfiguration, const VelString& iKey, const VelString& iValue) {
  if (iConfiguration.IsEmpty() || iKey.IsEmpty()) return E_INVALIDARG;
  return VelConfigurationTables::Instance().SetValue(iConfiguration, iKey, iValue);
}

HRESULT VelRbaConfiguration::SetParent(const VelString& iConfiguration, const VelString& iParent) {
  if (iConfiguration.IsEmpty() || iConfiguration == defaultName) return E_INVALIDARG;
  return VelConfigurationTables::Instance().SetParent(iConfiguration, iParent);
}

HRESULT VelRbaConfiguration::RemoveConfiguration(const VelString& iConfiguration) {
  return VelConfigurationTables::Instance().Remove(iConfiguration);
}

void VelRbaConfiguration::Clear() { VelConfigurationTables::Instance().Clear(); }

void VelRbaConfiguration::ForgetSources() { VelConfigurationTables::Instance().ForgetSources(); }

std::uint64_t VelRbaConfiguration::Generation() noexcept { return VelConfigurationTables::Instance().Generation(); }

HRESULT VelRbaConfiguration::LoadFile(const std::string& iPath) {
  return VelConfigurationLoader(VelConfigurationOwner::Process).LoadFile(iPath);
}

HRESULT VelRbaConfiguration::LoadFolder(const std::string& iPath) {
  return VelConfigurationLoader(VelConfigurationOwner::Process).LoadFolder(iPath);
}
