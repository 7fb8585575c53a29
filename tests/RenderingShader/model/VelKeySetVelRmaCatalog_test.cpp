// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelKeySetVelRmaCatalog_test.cpp The keys of shaders and parameters: what they address, and when they are
/// resolved.
#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"

#include "tests/platform/featuremodeler/FeatureModelerTest.h"

namespace {

using Keys = VelKeySetVelRmaCatalog;
using VelKeySetVelRmaCatalogTest = FeatureModelerTest;

struct Case {
  const char* name;
  const VelISpecAttrKey* (*accessor)(VelISpecAttrAccess*);
  const char* startUp;
  const char* attribute;
  VelSpecAttrKind kind;
};

/// Written out by hand, so that the table of the keys is compared with what it should say.
const Case cases[] = {
    {"ShaderType", &Keys::GetKeyVelRmaShaderType, "VelRmaShader", "Type", VelSpecAttrKind::Text},
    {"ShaderUsage", &Keys::GetKeyVelRmaShaderUsage, "VelRmaShader", "Usage", VelSpecAttrKind::Unsigned},
    {"ShaderVersion", &Keys::GetKeyVelRmaShaderVersion, "VelRmaShader", "Version", VelSpecAttrKind::Unsigned},
    {"ShaderParameters", &Keys::GetKeyVelRmaShaderParameters, "VelRmaShader", "Parameters",
     VelSpecAttrKind::Components},
    {"ShaderNodes", &Keys::GetKeyVelRmaShaderNodes, "VelRmaShader", "Nodes", VelSpecAttrKind::Components},
    {"ShaderOutputType", &Keys::GetKeyVelRmaShaderOutputType, "VelRmaShader", "OutputType", VelSpecAttrKind::Text},
    {"ParameterName", &Keys::GetKeyVelRmaParameterName, "VelRmaParameter", "Name", VelSpecAttrKind::Text},
    {"ParameterGroup", &Keys::GetKeyVelRmaParameterGroup, "VelRmaParameter", "Group", VelSpecAttrKind::Text},
    {"ParameterNode", &Keys::GetKeyVelRmaParameterNode, "VelRmaParameter", "Node", VelSpecAttrKind::Reference},
    {"BooleanValue", &Keys::GetKeyVelRmaBooleanValue, "VelRmaBoolean", "Value", VelSpecAttrKind::Boolean},
    {"IntegerValue", &Keys::GetKeyVelRmaIntegerValue, "VelRmaInteger", "Value", VelSpecAttrKind::Integer},
    {"ScalarValue", &Keys::GetKeyVelRmaScalarValue, "VelRmaScalar", "Value", VelSpecAttrKind::Real},
    {"ColorValue", &Keys::GetKeyVelRmaColorValue, "VelRmaColor", "Value", VelSpecAttrKind::Reals},
    {"TextureValue", &Keys::GetKeyVelRmaTextureValue, "VelRmaTexture", "Value", VelSpecAttrKind::Document},
    {"LightProfileValue", &Keys::GetKeyVelRmaLightProfileValue, "VelRmaLightProfile", "Value",
     VelSpecAttrKind::Document},
    {"StringValue", &Keys::GetKeyVelRmaStringValue, "VelRmaString", "Value", VelSpecAttrKind::Text},
};

/// The start-up of a feature that has none of a row's attribute: a shader for a parameter's key and the other way
/// round.
const char* WrongStartUpFor(const Case& iCase) {
  return std::string(iCase.startUp) == "VelRmaShader" ? "VelRmaScalar" : "VelRmaShader";
}

// A process resolves each key once, so each row is looked at from its first call on in one test.
TEST_F(VelKeySetVelRmaCatalogTest, EveryKey_IsResolvedByTheFirstProperFeatureAndThenHandedOutAtOnce) {
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const VelISpecAttrAccess_var hWrong = Access(Make(WrongStartUpFor(each)));
    EXPECT_EQ(each.accessor(nullptr), nullptr);
    EXPECT_EQ(each.accessor(hWrong.Get()), nullptr) << "a wrong feature leaves it unresolved";
    const VelISpecAttrAccess_var hProper = Access(Make(each.startUp));
    const VelISpecAttrKey* const key = each.accessor(hProper.Get());
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->Name(), each.attribute);
    EXPECT_EQ(key->Kind(), each.kind);
    EXPECT_TRUE(hProper->TestAttrKey(key));
    EXPECT_FALSE(hWrong->TestAttrKey(key));
    EXPECT_EQ(each.accessor(hWrong.Get()), key) << "whatever feature is passed";
    EXPECT_EQ(each.accessor(nullptr), key);
  }
}

TEST_F(VelKeySetVelRmaCatalogTest, MatrixAndVector_UseTheColoursKey) {
  const VelISpecAttrAccess_var hMatrix = Access(Make("VelRmaMatrix"));
  const VelISpecAttrKey* const key = Keys::GetKeyVelRmaColorValue(hMatrix.Get());
  ASSERT_NE(key, nullptr);
  EXPECT_EQ(Keys::GetKeyVelRmaColorValue(Access(Make("VelRmaColor")).Get()), key);
  double values[16];
  for (int i = 0; i < 16; ++i) values[i] = i;
  EXPECT_EQ(hMatrix->SetReals(key, values, 16), S_OK);
  EXPECT_EQ(Access(Make("VelRmaVector"))->SetReals(key, values, 3), S_OK);
  EXPECT_EQ(Access(Make("VelRmaScalar"))->SetReals(key, values, 1), E_FAIL);
}

TEST_F(VelKeySetVelRmaCatalogTest, DerivedStartUps_AnswerTheKeysOfTheirBase) {
  const VelISpecAttrKey* const name = Keys::GetKeyVelRmaParameterName(Access(Make("VelRmaVoid")).Get());
  ASSERT_NE(name, nullptr);
  for (const char* startUp :
       {"VelRmaParameter", "VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor", "VelRmaMatrix",
        "VelRmaVector", "VelRmaString", "VelRmaTexture", "VelRmaLightProfile", "VelRmaVoid"}) {
    EXPECT_TRUE(Access(Make(startUp))->TestAttrKey(name)) << startUp;
  }
}

TEST_F(VelKeySetVelRmaCatalogTest, Key_OutlivesEveryContainer) {
  const VelISpecAttrKey* const key = Keys::GetKeyVelRmaShaderType(Access(Make("VelRmaShader")).Get());
  hContainer_ = VelIContainer::Create();
  ASSERT_EQ(VelICatalogManager_var(hContainer_)->LoadCatalog("VelRmaCatalog.feat"), S_OK);
  EXPECT_TRUE(Access(Make("VelRmaShader"))->TestAttrKey(key));
}

}  // namespace
