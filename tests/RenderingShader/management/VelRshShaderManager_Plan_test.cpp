// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Plan_test.cpp What a plan tells of each parameter and its value.
#include "platform/featuremodeler/FindStartUp.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"

namespace {

using Row = VelRshUpgradePlanRow;
using Kind = Row::Kind;
using VelRshShaderManagerPlanTest = UpgradeTest;

/// Adds a parameter of a start-up that the component does not know.
void AddForeign(const VelIRshShader_var& iShader, const VelIContainer_var& iContainer) {
  VelBaseUnknown_var hStartUp;
  VelBaseUnknown_var hFeature;
  EXPECT_EQ(FindStartUp("VelISpecObject", "", "VelTestForeignValue", *iContainer, hStartUp.Receive()), S_OK);
  EXPECT_EQ(VelISpecObject_var(hStartUp)->Instanciate("", iContainer.Get(), VelIRshParameter::InterfaceId(),
                                                      hFeature.Receive()),
            S_OK);
  const VelIRshParameter_var hForeign(hFeature);
  EXPECT_EQ(hForeign->SetName("foreign"), S_OK);
  EXPECT_EQ(iShader->AppendParameter(hForeign.Get()), S_OK);
}

VelIContainer_var ContainerOf(const VelIRshShader_var& iShader) {
  VelIContainer_var hContainer;
  EXPECT_EQ(VelISpecObject_var(iShader)->GetContainer(hContainer.Receive()), S_OK);
  return hContainer;
}

TEST_F(VelRshShaderManagerPlanTest, Rows_ReadInTheOrderOfTodayThenWhatGoes) {
  AddScalar(hShader_, "kept", 1.0F);
  AddScalar(hShader_, "dropped", 2.0F);
  AddScalar(hShader_, "retyped", 3.0F);
  AddScalar(hShader_, "edited", 4.0F);
  AddText(hShader_, "text", "before");
  static_cast<void>(Add(hShader_, "void", "VelRmaVoid"));
  today_ = [](const VelIRshShader_var& iShader) {
    static_cast<void>(Add(iShader, "void", "VelRmaVoid"));
    AddScalar(iShader, "added", 10.0F);
    AddScalar(iShader, "edited", 40.0F);
    const std::int32_t number = 30;
    EXPECT_EQ(Add(iShader, "retyped", "VelRmaInteger")->SetValue(&number), S_OK);
    AddText(iShader, "text", "today");
    AddScalar(iShader, "kept", 1.0F);
  };
  const VelRshUpgradePlan plan = Plan();
  EXPECT_EQ(plan.Heading(), "mine from version 1 to 2");
  EXPECT_EQ(SentencesOf(plan),
            (Texts{"'void' stays", "'added' is new, with 10", "'edited' keeps 4; its default is 40",
                   "'retyped' was VelRmaScalar 3 and is VelRmaInteger 30",
                   "'text' loses \"before\" and takes \"today\"", "'kept' keeps 1", "'dropped' goes, and with it 2"}));
  EXPECT_EQ(
      plan.Text(),
      "mine from version 1 to 2\n  'void' stays\n  'added' is new, with 10\n  'edited' keeps 4; its default is 40\n"
      "  'retyped' was VelRmaScalar 3 and is VelRmaInteger 30\n  'text' loses \"before\" and takes \"today\"\n"
      "  'kept' keeps 1\n  'dropped' goes, and with it 2\n");
}

TEST_F(VelRshShaderManagerPlanTest, EachRow_TellsPlacesTypesAndValues) {
  AddScalar(hShader_, "dropped", 2.0F);
  AddScalar(hShader_, "kept", 1.0F);
  AddText(hShader_, "retyped", "before");
  today_ = [](const VelIRshShader_var& iShader) {
    AddScalar(iShader, "retyped", 4.0F);
    AddScalar(iShader, "added", 10.0F);
    AddScalar(iShader, "kept", 3.0F);
  };
  const struct {
    Kind kind;
    const char* parameter;
    const char* startUp;
    const char* formerStartUp;
    int position;
    int formerPosition;
    const char* before;
    const char* after;
    const char* standard;
  } cases[] = {
      {Kind::Retyped, "retyped", "VelRmaScalar", "VelRmaString", 1, 3, "\"before\"", "4", "4"},
      {Kind::Added, "added", "VelRmaScalar", "", 2, 0, "", "10", "10"},
      {Kind::KeptOverDefault, "kept", "VelRmaScalar", "VelRmaScalar", 3, 2, "1", "1", "3"},
      {Kind::Dropped, "dropped", "", "VelRmaScalar", 0, 1, "2", "", ""},
  };
  const VelRshUpgradePlan plan = Plan();
  ASSERT_EQ(plan.rows.size(), std::size(cases));
  for (std::size_t i = 0; i < plan.rows.size(); ++i) {
    const Row& row = plan.rows[i];
    SCOPED_TRACE(cases[i].parameter);
    EXPECT_EQ(row.kind, cases[i].kind);
    EXPECT_EQ(row.parameter, cases[i].parameter);
    EXPECT_EQ(row.startUp, cases[i].startUp);
    EXPECT_EQ(row.formerStartUp, cases[i].formerStartUp);
    EXPECT_EQ(row.position, cases[i].position);
    EXPECT_EQ(row.formerPosition, cases[i].formerPosition);
    EXPECT_EQ(row.before, cases[i].before);
    EXPECT_EQ(row.after, cases[i].after);
    EXPECT_EQ(row.standard, cases[i].standard);
    EXPECT_FALSE(row.shader);
    EXPECT_EQ(row.code, S_OK);
  }
}

TEST_F(VelRshShaderManagerPlanTest, ParametersOfOneName_PairInOrderAndTheRestIsRetyped) {
  for (const float value : {1.0F, 2.0F, 3.0F}) AddScalar(hShader_, "a", value);
  today_ = [](const VelIRshShader_var& iShader) {
    AddText(iShader, "a", "no scalar");
    for (const float value : {10.0F, 20.0F}) AddScalar(iShader, "a", value);
  };
  EXPECT_EQ(SentencesOf(Plan()), (Texts{"'a' was VelRmaScalar 3 and is VelRmaString \"no scalar\"",
                                        "'a' keeps 1; its default is 10", "'a' keeps 2; its default is 20"}));
}

TEST_F(VelRshShaderManagerPlanTest, ValuesThatAreNotCarried_AreReplacedOnlyWhereTheDefaultDiffers) {
  float matrix[16]{1.0F};
  AddText(hShader_, "same", "text");
  AddText(hShader_, "other", "before");
  EXPECT_EQ(Add(hShader_, "matrix", "VelRmaMatrix")->SetValue(matrix), S_OK);
  static_cast<void>(Add(hShader_, "unset", "VelRmaString"));
  AddText(hShader_, "no default", "before");
  today_ = [](const VelIRshShader_var& iShader) {
    AddText(iShader, "same", "text");
    AddText(iShader, "other", "today");
    static_cast<void>(Add(iShader, "matrix", "VelRmaMatrix"));
    AddText(iShader, "unset", "today");
    static_cast<void>(Add(iShader, "no default", "VelRmaString"));
  };
  EXPECT_EQ(SentencesOf(Plan()), (Texts{"'same' keeps \"text\"", "'other' loses \"before\" and takes \"today\"",
                                        "'matrix' loses (1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0)",
                                        "'unset' had no value and takes \"today\"", "'no default' loses \"before\""}));
}

TEST_F(VelRshShaderManagerPlanTest, AValueWithoutADefault_IsKeptAndTold) {
  AddScalar(hShader_, "a", 1.5F);
  today_ = [](const VelIRshShader_var& iShader) { static_cast<void>(Add(iShader, "a", "VelRmaScalar")); };
  EXPECT_EQ(SentencesOf(Plan()), Texts{"'a' keeps 1.5; it has no default"});
}

TEST_F(VelRshShaderManagerPlanTest, Documents_AreKeptAndWithoutOneTheDefaultIsTaken) {
  const FakeDocumentBindings bindings;
  const VelIPLMDmtDocument_var hBefore = FakeDocument::Create();
  const VelIPLMDmtDocument_var hToday = FakeDocument::Create();
  FakeDocument::Of(*hToday).name.value = "oak.png";
  EXPECT_EQ(Add(hShader_, "texture", "VelRmaTexture")->SetValue(hBefore.Get()), S_OK);
  EXPECT_EQ(Add(hShader_, "profile", "VelRmaLightProfile")->SetValue(hBefore.Get()), S_OK);
  static_cast<void>(Add(hShader_, "none", "VelRmaTexture"));
  EXPECT_EQ(Add(hShader_, "no default", "VelRmaTexture")->SetValue(hBefore.Get()), S_OK);
  today_ = [&](const VelIRshShader_var& iShader) {
    EXPECT_EQ(Add(iShader, "texture", "VelRmaTexture")->SetValue(hToday.Get()), S_OK);
    EXPECT_EQ(Add(iShader, "profile", "VelRmaLightProfile")->SetValue(hBefore.Get()), S_OK);
    EXPECT_EQ(Add(iShader, "none", "VelRmaTexture")->SetValue(hToday.Get()), S_OK);
    static_cast<void>(Add(iShader, "no default", "VelRmaTexture"));
  };
  EXPECT_EQ(SentencesOf(Plan()),
            (Texts{"'texture' keeps document \"wood.png\"; its default is document \"oak.png\"",
                   "'profile' keeps document \"wood.png\"", "'none' had no value and takes document \"oak.png\"",
                   "'no default' keeps document \"wood.png\"; it has no default"}));
  hShader_ = nullptr;
  CloseContainer();
}

TEST_F(VelRshShaderManagerPlanTest, ADefaultDocumentOfTheSameName_IsAnotherOne) {
  const FakeDocumentBindings bindings;
  const VelIPLMDmtDocument_var hBefore = FakeDocument::Create();
  const VelIPLMDmtDocument_var hToday = FakeDocument::Create();
  EXPECT_EQ(Add(hShader_, "texture", "VelRmaTexture")->SetValue(hBefore.Get()), S_OK);
  today_ = [&](const VelIRshShader_var& iShader) {
    EXPECT_EQ(Add(iShader, "texture", "VelRmaTexture")->SetValue(hToday.Get()), S_OK);
  };
  EXPECT_EQ(SentencesOf(Plan()), Texts{"'texture' keeps document \"wood.png\"; its default is document \"wood.png\""});
  hShader_ = nullptr;
  CloseContainer();
}

TEST_F(VelRshShaderManagerPlanTest, StartUpsThatOnlyTheContainerKnows_AreFoundAndNobodyKnowsTheirValue) {
  ASSERT_EQ(VelICatalogManager_var(hContainer_)->LoadCatalog(VEL_TEST_MANAGEMENT_CATALOG), S_OK);
  AddForeign(hShader_, hContainer_);
  today_ = [](const VelIRshShader_var& iShader) { AddForeign(iShader, ContainerOf(iShader)); };
  EXPECT_EQ(SentencesOf(Plan()), Texts{"'foreign' is not carried over"});
}

TEST_F(VelRshShaderManagerPlanTest, TheFactory_SeesWhatTheShaderSaysOfItself) {
  EXPECT_EQ(hShader_->SetUsage(5), S_OK);
  EXPECT_EQ(hShader_->SetOutputType("VelRmaVector"), S_OK);
  First().onInitialize = [&](VelIRshShader& ioShader, unsigned char iOption) {
    VelString type;
    VelString output;
    std::uint32_t version = 0;
    std::uint32_t usage = 0;
    EXPECT_EQ(iOption, 0);
    EXPECT_FALSE(IsSameObject(&ioShader, hShader_.Get()));
    EXPECT_EQ(ioShader.GetType(type), S_OK);
    EXPECT_EQ(ioShader.GetVersion(version), S_OK);
    EXPECT_EQ(ioShader.GetUsage(usage), S_OK);
    EXPECT_EQ(ioShader.GetOutputType(output), S_OK);
    EXPECT_EQ(type, "mine");
    EXPECT_EQ(version, 1U);
    EXPECT_EQ(usage, 5U);
    EXPECT_EQ(output, "VelRmaVector");
    return S_OK;
  };
  EXPECT_TRUE(Plan().changesShader);
  EXPECT_EQ(First().calls, (Texts{"ListShaderTypes", "GetVersion mine", "InitializeShader 0"}));
}

}  // namespace
