// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices_FindShaderParent_test.cpp The shader above a parameter and above a shader.
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/model/fixtures/VelTestConnectedShader.h"

namespace {

constexpr const char* startUps[] = {"VelRmaParameter", "VelRmaBoolean", "VelRmaInteger",     "VelRmaScalar",
                                    "VelRmaColor",     "VelRmaVector",  "VelRmaMatrix",      "VelRmaString",
                                    "VelRmaTexture",   "VelRmaVoid",    "VelRmaLightProfile"};

class VelRshParameterServicesFindShaderParentTest : public RshModelTest {
 protected:
  /// Makes a feature a component of a material.
  VelISpecObject_var PutBelowAMaterial(VelBaseUnknown* iFeature) {
    VelISpecObject_var hMaterial = FakeRenderingMaterial::Create(*hContainer_);
    EXPECT_EQ(Access(hMaterial)->AppendComponent(Key("Shader", VelSpecAttrKind::Components), iFeature), S_OK);
    return hMaterial;
  }
};

TEST_F(VelRshParameterServicesFindShaderParentTest, Parameter_IsOwnedByItsFather) {
  const VelIRshShader_var hShader = MakeShader();
  for (const char* startUp : startUps) {
    const VelIRshShader_var hParent = VelRshParameterServices::FindShaderParent(*Add(hShader, "p", startUp));
    EXPECT_TRUE(IsSameObject(hParent.Get(), hShader.Get())) << startUp;
  }
}

TEST_F(VelRshParameterServicesFindShaderParentTest, ParameterWithoutAShader_HasNone) {
  for (const char* startUp : startUps) {
    const VelIRshParameter_var hParameter(Make(startUp));
    EXPECT_FALSE(VelRshParameterServices::FindShaderParent(*hParameter)) << startUp;
    PutBelowAMaterial(hParameter.Get());
    EXPECT_FALSE(VelRshParameterServices::FindShaderParent(*hParameter)) << startUp;
  }
}

TEST_F(VelRshParameterServicesFindShaderParentTest, ClosedParameter_HasNone) {
  for (const char* startUp : startUps) {
    const VelIRshParameter_var hParameter = Add(MakeShader(), "p", startUp);
    EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
    EXPECT_FALSE(VelRshParameterServices::FindShaderParent(*hParameter)) << startUp;
  }
}

TEST_F(VelRshParameterServicesFindShaderParentTest, Shader_IsBelowItsFatherUnlessThatIsAMaterial) {
  const FakeRenderingMaterialBindings bindings;
  const VelIRshShader_var hShader = MakeShader();
  EXPECT_FALSE(VelRshParameterServices::FindShaderParent(*hShader));
  EXPECT_TRUE(IsSameObject(VelRshParameterServices::FindShaderParent(*AddNode(hShader)).Get(), hShader.Get()));
  PutBelowAMaterial(hShader.Get());
  EXPECT_FALSE(VelRshParameterServices::FindShaderParent(*hShader));
}

TEST_F(VelRshParameterServicesFindShaderParentTest, PrivateSide_HasTheLastWord) {
  // Both features have a father that is a shader; the first one's private side says that there is none above.
  const VelTestConnectedShaderBindings bindings;
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshShader_var hForeign(FakeRenderingMaterial::Create(*hContainer_));
  EXPECT_EQ(VelISpecAttrAccess_var(hShader)->AppendComponent(nodes_, hForeign.Get()), S_OK);
  EXPECT_FALSE(VelRshParameterServices::FindShaderParent(*hForeign));
  EXPECT_TRUE(VelRshParameterServices::FindShaderParent(*AddNode(hShader)));
}

}  // namespace
