// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices_Climb_test.cpp The material and the root shader above a parameter and above a shader.
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/model/fixtures/VelTestConnectedShader.h"
#include "tests/RenderingShader/services/fixtures/VelTestListingShader.h"

namespace {

using Services = VelRshParameterServices;

/// One start-up with a private side, two without.
constexpr const char* startUps[] = {"VelRmaScalar", "VelRmaLightProfile", "VelRmaVoid"};

class VelRshParameterServicesClimbTest : public RshModelTest {
 protected:
  VelISpecObject_var MakeMaterial(VelBaseUnknown* iCarried = nullptr) {
    VelISpecObject_var hMaterial = FakeRenderingMaterial::Create(*hContainer_);
    if (iCarried != nullptr) Carry(hMaterial, iCarried);
    return hMaterial;
  }

  static void Carry(const VelISpecObject_var& iMaterial, VelBaseUnknown* iFeature) {
    EXPECT_EQ(Access(iMaterial)->AppendComponent(Key("Shader", VelSpecAttrKind::Components), iFeature), S_OK);
  }

  VelISpecObject_var MakeBox() { return VelTestListingShaders::CreateBox(*hContainer_); }

  const FakeRenderingMaterialBindings bindings_;
};

TEST_F(VelRshParameterServicesClimbTest, FindRenderingMaterial_ClimbsFromAnyDepth) {
  const VelIRshShader_var hRoot = MakeShader();
  const VelISpecObject_var hMaterial = MakeMaterial(hRoot.Get());
  MakeMaterial(MakeShader().Get());
  VelIRshShader_var hShader = hRoot;
  for (int depth = 0; depth < 5; ++depth) {
    SCOPED_TRACE(depth);
    EXPECT_TRUE(IsSameObject(Services::FindRenderingMaterial(*hShader).Get(), hMaterial.Get()));
    for (const char* startUp : startUps) {
      const VelIRenderingMaterial_var hFound = Services::FindRenderingMaterial(*Add(hShader, "p", startUp));
      EXPECT_TRUE(IsSameObject(hFound.Get(), hMaterial.Get())) << startUp;
    }
    hShader = AddNode(hShader);
  }
}

TEST_F(VelRshParameterServicesClimbTest, FindRenderingMaterial_IsEmptyWithoutOne) {
  const VelIRshShader_var hRoot = MakeShader();
  const VelIRshShader_var hNode = AddNode(hRoot);
  for (const VelIRshShader_var& hShader : {hRoot, hNode}) {
    EXPECT_FALSE(Services::FindRenderingMaterial(*hShader));
    for (const char* startUp : startUps) {
      EXPECT_FALSE(Services::FindRenderingMaterial(*Add(hShader, "p", startUp))) << startUp;
    }
  }
  for (const char* startUp : startUps) {
    EXPECT_FALSE(Services::FindRenderingMaterial(*VelIRshParameter_var(Make(startUp)))) << startUp;
  }
}

TEST_F(VelRshParameterServicesClimbTest, FindRenderingMaterial_OfAParameterWithoutAShader_IsEmpty) {
  for (const char* startUp : startUps) {
    const VelIRshParameter_var hParameter(Make(startUp));
    MakeMaterial(hParameter.Get());
    EXPECT_FALSE(Services::FindRenderingMaterial(*hParameter)) << startUp;
    EXPECT_FALSE(Services::FindShaderRoot(*hParameter)) << startUp;
  }
}

TEST_F(VelRshParameterServicesClimbTest, ConnectedShader_IsNotBelowWhatItIsConnectedTo) {
  const VelIRshShader_var hRoot = MakeShader();
  MakeMaterial(hRoot.Get());
  const VelIRshShader_var hFree = MakeShader();
  const VelIRshParameter_var hParameter = Add(hFree, "p", "VelRmaScalar");
  EXPECT_EQ(Add(hRoot, "input", "VelRmaScalar")->SetConnection(hFree.Get()), S_OK);
  EXPECT_FALSE(Services::FindRenderingMaterial(*hFree));
  EXPECT_FALSE(Services::FindRenderingMaterial(*hParameter));
  EXPECT_TRUE(IsSameObject(Services::FindShaderRoot(*hParameter).Get(), hFree.Get()));
}

TEST_F(VelRshParameterServicesClimbTest, ShaderThatIsAMaterial_IsTheResultUnlessItIsWhereTheClimbStarts) {
  const VelTestConnectedShaderBindings shaders;
  const VelIRshParameter_var hLight(Make("VelRmaLightProfile"));
  const VelISpecObject_var hInner = MakeMaterial(hLight.Get());
  const VelISpecObject_var hOuter = MakeMaterial(hInner.Get());
  EXPECT_TRUE(IsSameObject(Services::FindRenderingMaterial(*hLight).Get(), hInner.Get()));
  EXPECT_TRUE(IsSameObject(Services::FindRenderingMaterial(*VelIRshShader_var(hInner)).Get(), hOuter.Get()));
  EXPECT_FALSE(Services::FindRenderingMaterial(*VelIRshShader_var(hOuter)));
}

TEST_F(VelRshParameterServicesClimbTest, ShaderWithoutAPrivateSide_IsClimbedByItsFather) {
  const VelTestListingShaders shaders;
  const VelISpecObject_var hTop = MakeBox();
  const VelISpecObject_var hBox = MakeBox();
  VelTestListingShaders::Put(hTop, hBox.Get());
  for (const char* startUp : startUps) {
    const VelIRshParameter_var hParameter(Make(startUp));
    VelTestListingShaders::Put(hBox, hParameter.Get());
    EXPECT_TRUE(IsSameObject(Services::FindShaderRoot(*hParameter).Get(), hTop.Get())) << startUp;
    EXPECT_FALSE(Services::FindRenderingMaterial(*hParameter)) << startUp;
  }
  EXPECT_TRUE(IsSameObject(Services::FindShaderParent(*VelIRshShader_var(hBox)).Get(), hTop.Get()));
  const VelISpecObject_var hMaterial = MakeMaterial(hTop.Get());
  EXPECT_FALSE(Services::FindShaderParent(*VelIRshShader_var(hTop))) << "the father is no shader";
  EXPECT_TRUE(IsSameObject(Services::FindRenderingMaterial(*VelIRshShader_var(hBox)).Get(), hMaterial.Get()));
}

TEST_F(VelRshParameterServicesClimbTest, FindShaderRoot_IsWhatTheMaterialCarries) {
  const VelIRshShader_var hRoot = MakeShader();
  const VelISpecObject_var hMaterial = MakeMaterial(hRoot.Get());
  const VelIRshShader_var hDeep = AddNode(AddNode(AddNode(hRoot)));
  for (const VelIRshShader_var& hShader : {hRoot, hDeep}) {
    for (const char* startUp : startUps) {
      EXPECT_TRUE(IsSameObject(Services::FindShaderRoot(*Add(hShader, "p", startUp)).Get(), hRoot.Get())) << startUp;
    }
  }
  // What it carries counts, not what is found on the way.
  const VelIRshShader_var hSecond = MakeShader();
  Carry(hMaterial, hSecond.Get());
  EXPECT_TRUE(IsSameObject(Services::FindShaderRoot(*Add(hSecond, "p", "VelRmaScalar")).Get(), hRoot.Get()));
}

TEST_F(VelRshParameterServicesClimbTest, FindShaderRoot_OfAMaterialThatCarriesNone_IsEmpty) {
  const VelIRshShader_var hRoot = MakeShader();
  const VelISpecObject_var hMaterial = MakeMaterial(hRoot.Get());
  FakeRenderingMaterial::Of(*hMaterial).getShaderCode = E_FAIL;
  for (const char* startUp : startUps) {
    EXPECT_FALSE(Services::FindShaderRoot(*Add(hRoot, "p", startUp))) << startUp;
  }
}

TEST_F(VelRshParameterServicesClimbTest, FindShaderRoot_OfAMaterialThatCarriesWhatIsNoShader_IsEmpty) {
  const VelISpecObject_var hMaterial = MakeMaterial(Make("VelRmaScalar").Get());
  const VelIRshShader_var hSecond = MakeShader();
  Carry(hMaterial, hSecond.Get());
  EXPECT_FALSE(Services::FindShaderRoot(*Add(hSecond, "p", "VelRmaScalar")));
}

TEST_F(VelRshParameterServicesClimbTest, FindShaderRoot_WithoutAMaterial_IsTheTopmostShader) {
  const VelIRshShader_var hRoot = MakeShader();
  const VelIRshShader_var hDeep = AddNode(AddNode(hRoot));
  for (const VelIRshShader_var& hShader : {hRoot, hDeep}) {
    for (const char* startUp : startUps) {
      EXPECT_TRUE(IsSameObject(Services::FindShaderRoot(*Add(hShader, "p", startUp)).Get(), hRoot.Get())) << startUp;
    }
  }
  for (const char* startUp : startUps) {
    EXPECT_FALSE(Services::FindShaderRoot(*VelIRshParameter_var(Make(startUp)))) << startUp;
  }
}

TEST_F(VelRshParameterServicesClimbTest, FindShaderRoot_WithoutAPrivateSide_ClimbsAcrossWhatIsNoShader) {
  // The box is no shader, so that no material is found above it; the climb by fathers goes on all the same.
  const VelIRshShader_var hRoot = MakeShader();
  const VelISpecObject_var hBox = MakeBox();
  EXPECT_EQ(VelISpecAttrAccess_var(hRoot)->AppendComponent(nodes_, hBox.Get()), S_OK);
  const VelIRshParameter_var hLight(Make("VelRmaLightProfile"));
  const VelIRshParameter_var hScalar(Make("VelRmaScalar"));
  VelTestListingShaders::Put(hBox, hLight.Get());
  VelTestListingShaders::Put(hBox, hScalar.Get());
  EXPECT_TRUE(IsSameObject(Services::FindShaderRoot(*hLight).Get(), hRoot.Get()));
  EXPECT_FALSE(Services::FindShaderRoot(*hScalar)) << "its private side knows no shader";
  // Nor does a material above end it.
  const VelISpecObject_var hMaterial = MakeMaterial(hRoot.Get());
  const VelIRshShader_var hAbove = MakeShader();
  EXPECT_EQ(VelISpecAttrAccess_var(hAbove)->AppendComponent(nodes_, hMaterial.Get()), S_OK);
  EXPECT_TRUE(IsSameObject(Services::FindShaderRoot(*hLight).Get(), hAbove.Get()));
}

TEST_F(VelRshParameterServicesClimbTest, FindShaderRoot_WithoutAPrivateSide_TakesNoMaterialForAShader) {
  const VelTestConnectedShaderBindings shaders;
  const VelISpecObject_var hBox = MakeBox();
  const VelIRshParameter_var hLight(Make("VelRmaLightProfile"));
  VelTestListingShaders::Put(hBox, hLight.Get());
  const VelISpecObject_var hMaterial = MakeMaterial(hBox.Get());
  EXPECT_FALSE(Services::FindShaderRoot(*hLight));
  const VelIRshShader_var hAbove = MakeShader();
  EXPECT_EQ(VelISpecAttrAccess_var(hAbove)->AppendComponent(nodes_, hMaterial.Get()), S_OK);
  EXPECT_TRUE(IsSameObject(Services::FindShaderRoot(*hLight).Get(), hAbove.Get()));
  MakeMaterial(hAbove.Get());
  EXPECT_TRUE(IsSameObject(Services::FindShaderRoot(*hLight).Get(), hAbove.Get()));
}

}  // namespace
