// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMaterialInterfaces_test.cpp What a rendering material may answer beside its shader: each interface by
/// itself.
#include <array>
#include <string>

#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/materials/VelIPlasticMaterial.h"
#include "platform/materials/VelIRmaAppearanceCache.h"
#include "platform/materials/VelIRmaDimension2D.h"
#include "platform/materials/VelIRmaEventPropagationControl.h"
#include "platform/materials/VelParmDictionary.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/platform/featuremodeler/FeatureModelerTest.h"

namespace {

struct Case {
  const char* name;
  const VelInterfaceId& identifier;
  bool& (*offer)(FakeRenderingMaterial&);
};

const std::array cases{
    Case{"VelIRmaAppearanceCache", IID_VelIRmaAppearanceCache,
         [](FakeRenderingMaterial& ioMaterial) -> bool& { return ioMaterial.cache.isOffered; }},
    Case{"VelIRmaEventPropagationControl", IID_VelIRmaEventPropagationControl,
         [](FakeRenderingMaterial& ioMaterial) -> bool& { return ioMaterial.offersPropagation; }},
    Case{"VelIPlasticMaterial", IID_VelIPlasticMaterial,
         [](FakeRenderingMaterial& ioMaterial) -> bool& { return ioMaterial.form.isOffered; }},
    Case{"VelIRmaDimension2D", IID_VelIRmaDimension2D,
         [](FakeRenderingMaterial& ioMaterial) -> bool& { return ioMaterial.size.isOffered; }},
};

class VelMaterialInterfacesTest : public FeatureModelerTest {
 protected:
  void SetUp() override {
    FeatureModelerTest::SetUp();
    hFeature_ = FakeRenderingMaterial::Create(*hContainer_);
  }
  void TearDown() override {
    hFeature_ = nullptr;
    FeatureModelerTest::TearDown();
  }

  FakeRenderingMaterial& Fake() { return FakeRenderingMaterial::Of(*hFeature_); }

  bool Answers(const VelInterfaceId& iInterface) {
    VelBaseUnknown_var hAnswer;
    const HRESULT code = hFeature_->QueryInterface(iInterface, hAnswer.Receive());
    EXPECT_EQ(code, hAnswer ? S_OK : E_NOINTERFACE);
    EXPECT_TRUE(!hAnswer || hAnswer->IsEqual(hFeature_.Get()));
    return static_cast<bool>(hAnswer);
  }

  FakeRenderingMaterialBindings bindings_;
  VelISpecObject_var hFeature_;
};

TEST_F(VelMaterialInterfacesTest, EachIdentifier_HasTheNameOfItsInterface) {
  for (const Case& row : cases) {
    EXPECT_STREQ(row.identifier.Name(), row.name);
    EXPECT_EQ(row.identifier.Base(), &IID_VelBaseUnknown);
  }
}

TEST_F(VelMaterialInterfacesTest, AMaterial_AnswersWhatItIsToldToOfferAndNoneOfTheOthers) {
  for (const Case& offered : cases) {
    offered.offer(Fake()) = true;
    for (const Case& asked : cases) {
      SCOPED_TRACE(std::string(offered.name) + " asked for " + asked.name);
      EXPECT_EQ(Answers(asked.identifier), &offered == &asked);
    }
    offered.offer(Fake()) = false;
    EXPECT_FALSE(Answers(offered.identifier)) << offered.name;
  }
}

TEST_F(VelMaterialInterfacesTest, Version_IsWhatItIs_AndUntouchedWhereThereIsNone) {
  Fake().form.isOffered = true;
  const VelIPlasticMaterial_var hMaterial(hFeature_);
  std::uint32_t version = 7;
  Fake().form.version = {417, S_OK};
  EXPECT_EQ(hMaterial->GetVersion(version), S_OK);
  EXPECT_EQ(version, 417U);
  Fake().form.version = {206, E_FAIL};
  EXPECT_EQ(hMaterial->GetVersion(version), E_FAIL);
  EXPECT_EQ(version, 417U);
}

TEST_F(VelMaterialInterfacesTest, Scale_IsWhatItIs_AndUntouchedWhereThereIsNone) {
  Fake().form.isOffered = true;
  const VelIPlasticMaterial_var hMaterial(hFeature_);
  double scale = -1.0;
  Fake().form.scale = {0.5, S_OK};
  EXPECT_EQ(hMaterial->GetScale(scale), S_OK);
  EXPECT_EQ(scale, 0.5);
  Fake().form.scale = {7.0, E_UNEXPECTED};
  EXPECT_EQ(hMaterial->GetScale(scale), E_UNEXPECTED);
  EXPECT_EQ(scale, 0.5);
}

TEST_F(VelMaterialInterfacesTest, Size_IsGivenInTheUnitThatIsAskedFor) {
  struct UnitCase {
    const char* symbol;
    float width;
    float height;
  };
  Fake().size = {true, 0.254, 0.0127, S_OK};
  const VelIRmaDimension2D_var hMaterial(hFeature_);
  for (const UnitCase& row : {UnitCase{"MM", 254.0F, 12.7F}, UnitCase{"CM", 25.4F, 1.27F},
                              UnitCase{"M", 0.254F, 0.0127F}, UnitCase{"IN", 10.0F, 0.5F}}) {
    SCOPED_TRACE(row.symbol);
    float width = -1.0F;
    float height = -1.0F;
    EXPECT_EQ(hMaterial->GetSize(*VelParmDictionary::FindUnit(row.symbol), width, height), S_OK);
    EXPECT_FLOAT_EQ(width, row.width);
    EXPECT_FLOAT_EQ(height, row.height);
  }
}

TEST_F(VelMaterialInterfacesTest, Size_IsUntouchedWhereThereIsNone) {
  Fake().size.isOffered = true;
  Fake().size.code = E_FAIL;
  const VelIRmaDimension2D_var hMaterial(hFeature_);
  float width = -1.0F;
  float height = -2.0F;
  EXPECT_EQ(hMaterial->GetSize(*VelParmDictionary::FindUnit("MM"), width, height), E_FAIL);
  EXPECT_EQ(width, -1.0F);
  EXPECT_EQ(height, -2.0F);
}

TEST_F(VelMaterialInterfacesTest, ARemovedMaterial_FailsAndAnswersNoMore) {
  Fake().form.isOffered = true;
  Fake().size.isOffered = true;
  const VelIPlasticMaterial_var hForm(hFeature_);
  const VelIRmaDimension2D_var hSize(hFeature_);
  EXPECT_EQ(LifeCycleObject_var(hFeature_)->remove(), S_OK);
  std::uint32_t version = 7;
  float width = -1.0F;
  float height = -2.0F;
  EXPECT_EQ(hForm->GetVersion(version), E_FAIL);
  EXPECT_EQ(hSize->GetSize(*VelParmDictionary::FindUnit("MM"), width, height), E_FAIL);
  for (const Case& row : cases) EXPECT_FALSE(Answers(row.identifier)) << row.name;
}

}  // namespace
