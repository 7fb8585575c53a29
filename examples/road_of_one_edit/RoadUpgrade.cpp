// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadUpgrade.cpp Asks the shader manager for the plan of an upgrade and for the upgrade itself.
#include "examples/road_of_one_edit/RoadUpgrade.h"

#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* type = "QuiltedLeather";

VelRshShaderManager& Manager() { return *VelRshShaderManager::GetManager(); }

VelIRshParameter_var Find(VelIRshShader& iShader, const char* iName) {
  const VelRshReaderParameterCollection collection;
  return collection(collection(iShader), iName);
}

/// @return S_OK; E_FAIL when there is no such parameter; else the code of the parameter
template <class Value>
HRESULT Set(VelIRshShader& ioShader, const char* iName, Value iValue) {
  const VelIRshParameter_var hParameter = Find(ioShader, iName);
  return hParameter ? hParameter->SetValue(&iValue) : E_FAIL;
}

HRESULT Connect(VelIRshShader& ioShader, const char* iName, VelIRshShader& iConnected) {
  const VelIRshParameter_var hParameter = Find(ioShader, iName);
  return hParameter ? hParameter->SetConnection(&iConnected) : E_FAIL;
}

}  // namespace

RoadUpgrade::RoadUpgrade(std::string iVersions, std::string iTypes)
    : versions_(std::move(iVersions)), types_(std::move(iTypes)) {}

bool RoadUpgrade::Publish(const std::string& iVersion) const {
  const fs::path from = fs::path(versions_) / (std::string(type) + '.' + iVersion + ".toml");
  const fs::path to = fs::path(types_) / (std::string(type) + ".toml");
  std::error_code error;
  fs::create_directories(types_, error);
  if (!error) fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
  if (error) {
    std::fprintf(stderr, "'%s' cannot be copied to '%s': %s\n", from.c_str(), to.c_str(), error.message().c_str());
  }
  return !error;
}

bool RoadUpgrade::Make(const VelIContainer_var& iContainer) {
  VelIRshShader_var hTexture;
  if (FAILED(Manager().CreateShader(iContainer, type, hShader.Receive(), 0))) return false;
  if (FAILED(Manager().CreateShader(iContainer, "vel_phen_texture", hTexture.Receive(), 0))) return false;
  return SUCCEEDED(Set(*hShader, "roughness", 0.35F)) && SUCCEEDED(Set(*hShader, "stitches", 6.0F)) &&
         SUCCEEDED(Set(*hShader, "supplier", VelUnicodeString("Gerberei am Bach"))) &&
         SUCCEEDED(Connect(*hShader, "dye", *hTexture));
}

bool RoadUpgrade::Plan(VelRshUpgradePlan& oPlan) const {
  constexpr unsigned int readTypesAgain = 1;
  VelListValVelString types;
  VelListValVelUnicodeString names;
  static_cast<void>(Manager().ListAvailableShaders(readTypesAgain, "", types, names));
  return SUCCEEDED(Manager().PlanUpgrade(hShader.Get(), oPlan));
}

bool RoadUpgrade::Run() const { return SUCCEEDED(Manager().UpgradeShader(hShader.Get())); }
