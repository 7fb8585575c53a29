// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ShaderTypesTest.cpp The fixture of the tests of shader types from files.
#include "tests/host/shadertypes/ShaderTypesTest.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include <stdlib.h>

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/interfaces/VelIAlias.h"
#include "platform/featuremodeler/VelICatalogManager.h"
#include "platform/featuremodeler/VelISpecAttrAccess.h"

namespace {

constexpr std::array shipped{"BasicMaterial",     "CarPaintG2",    "CustomShader",    "MPM_surface",     "mia_material",
                             "mia_phen_material", "vel_phen_bump", "vel_phen_scalar", "vel_phen_texture"};

}  // namespace

void ShaderTypesTest::SetUp() {
  ConfigurationTest::SetUp();
  std::filesystem::create_directory(folder_.Path("types"));
  ::setenv("VEL_SHADER_TYPES_PATH", folder_.Path("types").c_str(), 1);
  // Nothing here stands below a material.
  VelTraceService::SetSwitches("*=warning,VelRshAppearanceUpdater=error");
}

void ShaderTypesTest::TearDown() {
  End();
  ::unsetenv("VEL_SHADER_TYPES_PATH");
  ConfigurationTest::TearDown();
}

HRESULT ShaderTypesTest::Start(VelPlatformOptions iOptions) {
  for (const char* name :
       {"VelRshModel", "VelRshHost", "VelPlatformFiles", "VelPlatformDocuments", "VelPlatformImages"}) {
    iOptions.dictionaries.push_back(VEL_TEST_LIBRARY_FOLDER "/dictionaries/" + std::string(name) + ".dictionary");
  }
  for (const char* name : {"VelRmaCatalog.feat", "VelRmaMaterialCatalog.feat"}) {
    iOptions.catalogs.push_back(VEL_TEST_CATALOGS "/" + std::string(name));
  }
  session_.emplace();
  VEL_RETURN_IF_FAILED(session_->Start(iOptions));
  hContainer_ = VelIContainer::Create();
  return VelICatalogManager_var(hContainer_)->LoadCatalog("VelRmaCatalog.feat");
}

void ShaderTypesTest::End() {
  hContainer_ = nullptr;
  session_.reset();
}

Texts ShaderTypesTest::OwnTypes() {
  VelListValVelString types;
  VelListValVelUnicodeString names;
  static_cast<void>(Manager().ListAvailableShaders(1, "", types, names));
  Texts own;
  for (const VelString& type : types) {
    const auto isType = [&](const char* iShipped) { return type == iShipped; };
    if (std::none_of(shipped.begin(), shipped.end(), isType)) own.emplace_back(type.View());
  }
  return own;
}

std::string ShaderTypesTest::DisplayName(const char* iType) {
  VelListValVelString types;
  VelListValVelUnicodeString names;
  static_cast<void>(Manager().ListAvailableShaders(1, "", types, names));
  for (int i = 1; i <= types.Size(); ++i) {
    if (types[i] == iType) return std::string(names[i].View());
  }
  return "?";
}

VelIRshShader_var ShaderTypesTest::Create(const char* iType) {
  VelIRshShader_var hShader;
  EXPECT_EQ(Manager().CreateShader(hContainer_, iType, hShader.Receive(), 0), S_OK) << iType;
  return hShader;
}

VelIRshParameter_var ShaderTypesTest::Find(const VelIRshShader_var& iShader, const char* iName) {
  const VelRshReaderParameterCollection collection;
  VelIRshParameter_var hFound = collection(collection(*iShader), iName);
  EXPECT_TRUE(hFound) << iName;
  return hFound;
}

Texts ShaderTypesTest::ParametersOf(const VelIRshShader_var& iShader) {
  Texts parameters;
  for (const VelIRshParameter_var& hParameter : VelRshReaderParameterCollection()(*iShader)) {
    VelString name;
    VelString type;
    EXPECT_EQ(hParameter->GetName(name), S_OK);
    EXPECT_EQ(hParameter->GetType(type), S_OK);
    parameters.push_back(std::string(name.View()) + ": " + type.CString());
  }
  return parameters;
}

float ShaderTypesTest::ScalarOf(const VelIRshShader_var& iShader, const char* iName) {
  float value = -1.0F;
  return SUCCEEDED(Find(iShader, iName)->GetValue(&value)) ? value : -1.0F;
}

std::string ShaderTypesTest::LabelOf(VelBaseUnknown* iObject) {
  return std::string(VelIAlias_var(iObject)->GetAlias().View());
}

bool ShaderTypesTest::HasOwnValue(const VelIRshParameter_var& iParameter) {
  const VelISpecAttrAccess_var hAccess(iParameter);
  for (const auto key :
       {&VelKeySetVelRmaCatalog::GetKeyVelRmaBooleanValue, &VelKeySetVelRmaCatalog::GetKeyVelRmaIntegerValue,
        &VelKeySetVelRmaCatalog::GetKeyVelRmaScalarValue, &VelKeySetVelRmaCatalog::GetKeyVelRmaColorValue,
        &VelKeySetVelRmaCatalog::GetKeyVelRmaStringValue}) {
    const VelISpecAttrKey* const resolved = key(hAccess.Get());
    if (resolved != nullptr && hAccess->TestAttrKey(resolved) && hAccess->IsValuated(resolved)) return true;
  }
  return false;
}
