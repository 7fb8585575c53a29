// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Label_test.cpp Where the label of a parameter comes from, and what it holds on to.
#include "RenderingShader/interfaces/VelIAlias.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/model/fixtures/VelTestLabels.h"

namespace {

class VelRshParameterBaseLabelTest : public RshModelTest {
 protected:
  static VelUnicodeString LabelOf(VelBaseUnknown* iObject) { return VelIAlias_var(iObject)->GetAlias(); }
  static VelUnicodeString LabelOf(const VelIRshParameter_var& iParameter) { return LabelOf(iParameter.Get()); }
  static void SetLabel(const VelIRshParameter_var& iParameter, const char* iLabel) {
    EXPECT_EQ(VelIAlias_var(iParameter)->SetAlias(iLabel), S_OK);
  }

  /// @return a shader of a type below a material, which can be a support
  VelIRshShader_var MakeShaderOfMaterial(const char* iType) {
    VelIRshShader_var hShader = MakeShader(iType);
    const VelISpecObject_var hMaterial = FakeRenderingMaterial::Create(*hContainer_);
    EXPECT_EQ(Access(hMaterial)->AppendComponent(Key("Shader", VelSpecAttrKind::Components), hShader.Get()), S_OK);
    return hShader;
  }

  static void Configure(const char* iConfiguration, const char* iKey, const char* iValue) {
    EXPECT_EQ(VelRbaConfiguration::SetValue(iConfiguration, iKey, iValue), S_OK);
  }
};

TEST_F(VelRshParameterBaseLabelTest, WithoutAnythingElse_IsTheName) {
  EXPECT_EQ(LabelOf(Add(MakeShader(), "base_color", "VelRmaColor")), "base_color");
}

TEST_F(VelRshParameterBaseLabelTest, EveryParameter_HasOne) {
  const VelIRshShader_var hShader = MakeShader();
  for (const char* startUp :
       {"VelRmaParameter", "VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor", "VelRmaVector",
        "VelRmaMatrix", "VelRmaString", "VelRmaTexture", "VelRmaLightProfile", "VelRmaVoid"}) {
    const VelIRshParameter_var hParameter = Add(hShader, startUp, startUp);
    EXPECT_EQ(LabelOf(hParameter), startUp);
    SetLabel(hParameter, "set");
    EXPECT_EQ(LabelOf(hParameter), "set") << startUp;
  }
}

TEST_F(VelRshParameterBaseLabelTest, Configuration_OfTheShadersTypeComesBeforeTheName) {
  const VelIRshShader_var hShader = MakeShader("LabelledType");
  Configure("Default", "inherited.Label", "Inherited \xC3\xA9");
  Configure("LabelledType", "own.Label", "Own");
  Configure("LabelledType", "empty.Label", "");
  Configure("AnotherType", "other.Label", "Other");
  EXPECT_EQ(LabelOf(Add(hShader, "own", "VelRmaScalar")), "Own");
  EXPECT_EQ(LabelOf(Add(hShader, "inherited", "VelRmaScalar")), "Inherited \xC3\xA9");
  EXPECT_EQ(LabelOf(Add(hShader, "empty", "VelRmaScalar")), "empty");
  EXPECT_EQ(LabelOf(Add(hShader, "other", "VelRmaScalar")), "other");
}

TEST_F(VelRshParameterBaseLabelTest, Resources_ComeBeforeTheConfiguration) {
  VelTestLabels labels;
  Configure("ResourcedType", "own.Label", "Own");
  const VelIRshShader_var hShader = MakeShader("ResourcedType");
  EXPECT_EQ(LabelOf(Add(hShader, "own", "VelRmaScalar")), "from the resources");
  EXPECT_EQ(labels.asked, Texts{"label/own"});
  labels.resource.code = E_FAIL;
  EXPECT_EQ(LabelOf(Add(hShader, "own", "VelRmaScalar")), "Own");
  EXPECT_EQ(LabelOf(Add(hShader, "bare", "VelRmaScalar")), "bare");
  labels.resource = {"", S_OK};
  EXPECT_EQ(LabelOf(Add(hShader, "own", "VelRmaScalar")), "Own");
}

TEST_F(VelRshParameterBaseLabelTest, LabelThatWasComputed_Stays) {
  const VelIRshShader_var hShader = MakeShader("LabelledType");
  const VelIRshParameter_var hParameter = Add(hShader, "own", "VelRmaScalar");
  EXPECT_EQ(LabelOf(hParameter), "own");
  Configure("LabelledType", "own.Label", "Own");
  EXPECT_EQ(hParameter->SetName("renamed"), S_OK);
  EXPECT_EQ(LabelOf(hParameter), "own");
}

TEST_F(VelRshParameterBaseLabelTest, LabelThatWasSet_SurvivesReads) {
  const VelIRshShader_var hShader = MakeShader("LabelledType");
  Configure("LabelledType", "own.Label", "Own");
  const VelIRshParameter_var hParameter = Add(hShader, "own", "VelRmaScalar");
  SetLabel(hParameter, "set");
  EXPECT_EQ(LabelOf(hParameter), "set");
  EXPECT_EQ(LabelOf(hParameter), "set");
  SetLabel(hParameter, "set again");
  EXPECT_EQ(LabelOf(hParameter), "set again");
}

TEST_F(VelRshParameterBaseLabelTest, EmptyLabel_IsComputedUntilTheComputationHasRunToItsEnd) {
  const VelIRshParameter_var hParameter = Add(MakeShader(), "own", "VelRmaScalar");
  SetLabel(hParameter, "set");
  SetLabel(hParameter, "");
  EXPECT_EQ(LabelOf(hParameter), "own");
  SetLabel(hParameter, "");
  EXPECT_EQ(LabelOf(hParameter), "") << "it was computed once";
}

TEST_F(VelRshParameterBaseLabelTest, EmptyLabelOfAParameterThatKnowsItsSupport_StaysEmpty) {
  VelTestLabels labels;
  const VelIRshShader_var hShader = MakeShaderOfMaterial("BasicMaterial");
  const VelIRshParameter_var hParameter = Add(hShader, "own", "VelRmaScalar");
  EXPECT_EQ(LabelOf(hParameter), "own");
  SetLabel(hParameter, "");
  EXPECT_EQ(LabelOf(hParameter), "");
  EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
}

TEST_F(VelRshParameterBaseLabelTest, WithoutAFather_IsEmptyForGood) {
  const VelIRshParameter_var hFree(Make("VelRmaScalar"));
  EXPECT_EQ(hFree->SetName("free"), S_OK);
  EXPECT_EQ(LabelOf(hFree), "");
  EXPECT_EQ(MakeShader()->AppendParameter(hFree.Get()), S_OK);
  EXPECT_EQ(LabelOf(hFree), "") << "it was computed once";
}

TEST_F(VelRshParameterBaseLabelTest, BelowWhatIsNoShader_IsEmpty) {
  VelTestLabels labels;
  const VelISpecObject_var hMaterial = FakeRenderingMaterial::Create(*hContainer_);
  const VelISpecObject_var hFeature = Make("VelRmaScalar");
  EXPECT_EQ(VelIRshParameter_var(hFeature)->SetName("p"), S_OK);
  EXPECT_EQ(Access(hMaterial)->AppendComponent(Key("Shader", VelSpecAttrKind::Components), hFeature.Get()), S_OK);
  EXPECT_EQ(LabelOf(hFeature.Get()), "");
  EXPECT_EQ(labels.supports, 1) << "the walk runs all the same";
  EXPECT_EQ(LifeCycleObject_var(hFeature)->remove(), S_OK);
}

TEST_F(VelRshParameterBaseLabelTest, WithoutAName_IsEmptyAndComputedAgain) {
  VelTestLabels labels;
  const VelIRshShader_var hShader = MakeShaderOfMaterial("BasicMaterial");
  const VelIRshParameter_var hParameter(Make("VelRmaScalar"));
  EXPECT_EQ(hShader->AppendParameter(hParameter.Get()), S_OK);
  EXPECT_EQ(LabelOf(hParameter), "");
  EXPECT_EQ(labels.supportsMade, 0) << "the computation stops before the walk";
  EXPECT_EQ(hParameter->SetName("named"), S_OK);
  EXPECT_EQ(LabelOf(hParameter), "named");
  EXPECT_EQ(labels.supports, 1);
  EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
}

TEST_F(VelRshParameterBaseLabelTest, Support_IsLookedForOnceAndGoesWithTheParameter) {
  VelTestLabels labels;
  const VelIRshShader_var hShader = MakeShaderOfMaterial("BasicMaterial");
  // Two shaders up: the walk climbs.
  const VelIRshShader_var hNode = AddNode(hShader);
  const VelIRshParameter_var hParameter = Add(hNode, "p", "VelRmaVoid");
  EXPECT_EQ(labels.supportsMade, 0);
  EXPECT_EQ(LabelOf(hParameter), "p");
  EXPECT_EQ(LabelOf(hParameter), "p");
  EXPECT_EQ(labels.supports, 1);
  EXPECT_EQ(labels.supportsMade, 1);
  EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
  EXPECT_EQ(labels.supports, 0);
}

TEST_F(VelRshParameterBaseLabelTest, LabelThatWasSet_DoesNotKeepTheSupportFromBeingFound) {
  VelTestLabels labels;
  const VelIRshParameter_var hParameter = Add(MakeShaderOfMaterial("BasicMaterial"), "p", "VelRmaScalar");
  SetLabel(hParameter, "set");
  EXPECT_EQ(LabelOf(hParameter), "set");
  EXPECT_EQ(labels.supports, 1);
  EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
}

TEST_F(VelRshParameterBaseLabelTest, Support_GoesWhenTheDocumentIsClosed) {
  VelTestLabels labels;
  const VelIRshParameter_var hParameter = Add(MakeShaderOfMaterial("BasicMaterial"), "p", "VelRmaScalar");
  EXPECT_EQ(LabelOf(hParameter), "p");
  EXPECT_EQ(labels.supports, 1);
  CloseContainer();
  EXPECT_EQ(labels.supports, 0);
}

TEST_F(VelRshParameterBaseLabelTest, Support_GoesWhenAFatherIsRemoved) {
  VelTestLabels labels;
  const VelIRshShader_var hShader = MakeShaderOfMaterial("BasicMaterial");
  const VelIRshParameter_var hParameter = Add(hShader, "p", "VelRmaScalar");
  EXPECT_EQ(LabelOf(hParameter), "p");
  const VelISpecObject_var hFeature(hShader);
  EXPECT_EQ(LifeCycleObject_var(hFeature)->remove(), S_OK);
  EXPECT_EQ(labels.supports, 0);
}

TEST_F(VelRshParameterBaseLabelTest, ClosedParameter_HasNone) {
  const VelIRshParameter_var hParameter = Add(MakeShader(), "p", "VelRmaScalar");
  const VelIAlias_var hAlias(hParameter);
  EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
  EXPECT_EQ(hAlias->SetAlias("set"), E_FAIL);
  EXPECT_EQ(hAlias->GetAlias(), "");
}

}  // namespace
