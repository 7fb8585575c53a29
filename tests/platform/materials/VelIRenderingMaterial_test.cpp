// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRenderingMaterial_test.cpp A rendering material on a feature: what every implementation owes its callers.
#include "platform/materials/VelIRenderingMaterial.h"

#include "platform/featuremodeler/LifeCycleObject.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"

namespace {

class VelIRenderingMaterialTest : public FeatureModelerTest {
 protected:
  void SetUp() override {
    FeatureModelerTest::SetUp();
    hFeature_ = FakeRenderingMaterial::Create(*hContainer_);
    hMaterial_ = VelIRenderingMaterial_var(hFeature_);
    ASSERT_TRUE(hMaterial_);
  }
  void TearDown() override {
    hMaterial_ = nullptr;
    hFeature_ = nullptr;
    FeatureModelerTest::TearDown();
  }

  /// @return the name of the shader that the material carries, "(none)" for none
  std::string Carried() {
    VelBaseUnknown_var hShader;
    const HRESULT code = hMaterial_->GetShader(hShader.Receive());
    EXPECT_EQ(code, hShader ? S_OK : E_FAIL);
    return hShader ? NameOf(hShader.Get()) : "(none)";
  }

  static std::string FatherOf(const VelISpecObject_var& iFeature) {
    VelISpecObject_var hFather;
    return SUCCEEDED(iFeature->GetFather(hFather.Receive())) ? NameOf(hFather.Get()) : "(none)";
  }

  FakeRenderingMaterialBindings bindings_;
  VelISpecObject_var hFeature_;
  VelIRenderingMaterial_var hMaterial_;
};

TEST_F(VelIRenderingMaterialTest, ANewMaterial_CarriesNoShader) {
  EXPECT_EQ(Carried(), "(none)");
  EXPECT_EQ(hMaterial_->GetShader(nullptr), E_INVALIDARG);
  EXPECT_EQ(hMaterial_->SetShader(nullptr), S_FALSE);
}

TEST_F(VelIRenderingMaterialTest, SetShader_MakesTheMaterialItsFather) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "root");
  EXPECT_EQ(hMaterial_->SetShader(hShader.Get()), S_OK);
  EXPECT_EQ(Carried(), "root");
  EXPECT_EQ(FatherOf(hShader), "material");
  EXPECT_EQ(hMaterial_->SetShader(hShader->GetComponent()), S_FALSE);
  EXPECT_EQ(Carried(), "root");
}

TEST_F(VelIRenderingMaterialTest, SetShader_OfAnotherOne_LetsTheFirstOneGo) {
  const VelISpecObject_var hFirst = Make("VelRmaShader", "first");
  const VelISpecObject_var hSecond = Make("VelRmaShader", "second");
  EXPECT_EQ(hMaterial_->SetShader(hFirst.Get()), S_OK);
  EXPECT_EQ(hMaterial_->SetShader(hSecond.Get()), S_OK);
  EXPECT_EQ(Carried(), "second");
  EXPECT_EQ(FatherOf(hFirst), "(none)");
  EXPECT_EQ(hMaterial_->SetShader(nullptr), S_OK);
  EXPECT_EQ(Carried(), "(none)");
  EXPECT_EQ(FatherOf(hSecond), "(none)");
}

TEST_F(VelIRenderingMaterialTest, SetShader_OfOneWithAnotherFather_FailsAndKeepsWhatIsCarried) {
  const VelISpecObject_var hCarried = Make("VelRmaShader", "carried");
  const VelISpecObject_var hTaken = Make("VelRmaShader", "taken");
  const VelISpecObject_var hOther = FakeRenderingMaterial::Create(*hContainer_, "other");
  EXPECT_EQ(hMaterial_->SetShader(hCarried.Get()), S_OK);
  EXPECT_EQ(VelIRenderingMaterial_var(hOther)->SetShader(hTaken.Get()), S_OK);
  EXPECT_EQ(hMaterial_->SetShader(hTaken.Get()), E_FAIL);
  EXPECT_EQ(Carried(), "carried");
  EXPECT_EQ(FatherOf(hTaken), "other");
}

TEST_F(VelIRenderingMaterialTest, ScaleFactor_IsWhatItIs_AndUntouchedWhereThereIsNone) {
  double factor = -1.0;
  FakeRenderingMaterial::Of(*hMaterial_).scaleFactor = {2.5, S_OK};
  EXPECT_EQ(hMaterial_->GetScaleFactor(factor), S_OK);
  EXPECT_EQ(factor, 2.5);
  FakeRenderingMaterial::Of(*hMaterial_).scaleFactor = {7.0, E_FAIL};
  EXPECT_EQ(hMaterial_->GetScaleFactor(factor), E_FAIL);
  EXPECT_EQ(factor, 2.5);
}

TEST_F(VelIRenderingMaterialTest, AMaterialThatIsToldToFail_ChangesNothing) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "root");
  FakeRenderingMaterial& material = FakeRenderingMaterial::Of(*hMaterial_);
  material.setShaderCode = E_UNEXPECTED;
  EXPECT_EQ(hMaterial_->SetShader(hShader.Get()), E_UNEXPECTED);
  material.setShaderCode = S_OK;
  EXPECT_EQ(hMaterial_->SetShader(hShader.Get()), S_OK);
  material.getShaderCode = E_NOINTERFACE;
  VelBaseUnknown_var hCarried(hShader);
  EXPECT_EQ(hMaterial_->GetShader(hCarried.Receive()), E_NOINTERFACE);
  EXPECT_FALSE(hCarried);
}

TEST_F(VelIRenderingMaterialTest, ARemovedMaterial_FailsAndTakesItsShaderAlong) {
  const VelISpecObject_var hShader = Make("VelRmaShader", "root");
  EXPECT_EQ(hMaterial_->SetShader(hShader.Get()), S_OK);
  EXPECT_EQ(LifeCycleObject_var(hFeature_)->remove(), S_OK);
  double factor = -1.0;
  EXPECT_EQ(hMaterial_->SetShader(nullptr), E_FAIL);
  EXPECT_EQ(hMaterial_->GetScaleFactor(factor), E_FAIL);
  EXPECT_EQ(factor, -1.0);
  EXPECT_EQ(hContainer_->CountFeatures(), 0);
}

}  // namespace
