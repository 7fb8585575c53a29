// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_PlanStops_test.cpp Plans of upgrades that do nothing, fail or end early.
#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"

namespace {

using Kind = VelRshUpgradePlanRow::Kind;

class VelRshShaderManagerPlanStopsTest : public UpgradeTest {
 protected:
  /// Plans the upgrade of a shader that it would not touch, and upgrades it.
  /// @param[in] iHeading of the plan
  static void ExpectNoChange(const VelIRshShader_var& iShader, HRESULT iResult, const char* iHeading) {
    VelRshUpgradePlan plan;
    EXPECT_EQ(Manager().PlanUpgrade(iShader.Get(), plan), S_OK);
    EXPECT_FALSE(plan.changesShader);
    EXPECT_TRUE(plan.rows.empty());
    EXPECT_EQ(plan.result, iResult);
    EXPECT_EQ(plan.Heading(), iHeading);
    EXPECT_EQ(plan.Text(), VelUnicodeString(iHeading) + "\n");
    EXPECT_EQ(Manager().UpgradeShader(iShader.Get()), iResult);
  }
};

TEST_F(VelRshShaderManagerPlanStopsTest, NoShader_IsAFailureAndLeavesNoOldPlan) {
  AddScalar(hShader_, "a", 1.0F);
  VelRshUpgradePlan plan = Plan();
  EXPECT_EQ(plan.rows.size(), 1U);
  EXPECT_EQ(Manager().PlanUpgrade(nullptr, plan), E_FAIL);
  EXPECT_EQ(plan.result, E_FAIL);
  EXPECT_EQ(plan.to, 0U);
  EXPECT_TRUE(plan.rows.empty());
  EXPECT_FALSE(plan.changesShader);
  EXPECT_EQ(plan.Heading(), "The shader cannot be upgraded: E_FAIL");
}

TEST_F(VelRshShaderManagerPlanStopsTest, APlanThatWasNotMade_SaysSo) {
  EXPECT_EQ(VelRshUpgradePlan().Text(), "No shader has been planned\n");
}

TEST_F(VelRshShaderManagerPlanStopsTest, EqualVersions_ChangeNothing) {
  EXPECT_EQ(hShader_->SetVersion(2), S_OK);
  ExpectNoChange(hShader_, S_OK, "mine is of version 2 already");
}

TEST_F(VelRshShaderManagerPlanStopsTest, AnUnknownType_IsTheFailureOfTheUpgrade) {
  First().types[0].name = "another";
  ExpectNoChange(hShader_, E_FAIL, "mine cannot be upgraded: E_FAIL");
}

TEST_F(VelRshShaderManagerPlanStopsTest, AFactoryThatDoesNotKnowItsVersion_IsTheFailureOfTheUpgrade) {
  First().types[0].version.code = E_NOINTERFACE;
  ExpectNoChange(hShader_, E_NOINTERFACE, "mine cannot be upgraded: E_NOINTERFACE");
}

TEST_F(VelRshShaderManagerPlanStopsTest, ATypeOrVersionThatCannotBeRead_IsTheFailureOfTheUpgrade) {
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  const VelIRshShader_var hOdd = VelTestOddities::CreateObject();
  odd_->shader.type = {"mine", E_NOINTERFACE};
  ExpectNoChange(hOdd, E_NOINTERFACE, "The shader cannot be upgraded: E_NOINTERFACE");
  odd_->shader.type = {"mine", S_OK};
  odd_->shader.version.code = static_cast<HRESULT>(static_cast<std::int32_t>(0x80070005U));
  ExpectNoChange(hOdd, odd_->shader.version.code, "mine cannot be upgraded: 0x80070005");
}

TEST_F(VelRshShaderManagerPlanStopsTest, AShaderThatIsNoFeature_IsTheFailureOfTheUpgrade) {
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  odd_->shader.type.value = "mine";
  ExpectNoChange(VelTestOddities::CreateObject(), E_FAIL, "mine cannot be upgraded: E_FAIL");
}

TEST_F(VelRshShaderManagerPlanStopsTest, WithoutAShaderToTryOn_ThereIsNoPlan) {
  VelRshUpgradePlan plan;
  VelCatalog::SetFolders({});
  hContainer_ = VelIContainer::Create();
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  odd_->shader.type.value = "mine";
  ASSERT_EQ(VelICatalogManager_var(hContainer_)->LoadCatalog(VEL_TEST_MANAGEMENT_CATALOG), S_OK);
  const VelIRshShader_var hOdd(MakeIn(hContainer_, "VelTestOddShader"));
  ASSERT_TRUE(hOdd);
  EXPECT_EQ(Manager().PlanUpgrade(hOdd.Get(), plan), E_NOINTERFACE);
  EXPECT_TRUE(plan.rows.empty());
}

TEST_F(VelRshShaderManagerPlanStopsTest, AFactoryThatFails_LeavesEverythingBehind) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  EXPECT_EQ(AddScalar(hShader_, "a", 1.0F)->SetConnection(hNode.Get()), S_OK);
  AddScalar(hShader_, "b", 2.0F);
  today_ = [](const VelIRshShader_var& iShader) { AddScalar(iShader, "a", 10.0F); };
  initializeCode_ = E_NOINTERFACE;
  const VelRshUpgradePlan plan = Plan();
  EXPECT_EQ(plan.result, E_NOINTERFACE);
  EXPECT_TRUE(plan.changesShader);
  EXPECT_EQ(plan.rows[0].code, E_NOINTERFACE);
  EXPECT_EQ(
      SentencesOf(plan),
      (Texts{"The factory fails with E_NOINTERFACE: no value and no connection is carried over, and a copy of the "
             "shader as it was stays in its container",
             "'a' loses 1 and takes 10", "'a' loses its connection to node", "'b' goes, and with it 2"}));
  EXPECT_EQ(Upgrade(), E_NOINTERFACE);
  EXPECT_EQ(Scalars(), std::vector<float>{10.0F});
}

TEST_F(VelRshShaderManagerPlanStopsTest, AValueThatNobodySet_IsToldFirstWithWhatIsLost) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  EXPECT_EQ(AddScalar(hShader_, "first", 1.0F)->SetConnection(hNode.Get()), S_OK);
  static_cast<void>(Add(hShader_, "dropped and never set", "VelRmaScalar"));
  static_cast<void>(Add(hShader_, "never set", "VelRmaScalar"));
  AddScalar(hShader_, "third", 3.0F);
  today_ = [](const VelIRshShader_var& iShader) {
    for (const char* name : {"third", "never set", "first"}) AddScalar(iShader, name, 10.0F);
  };
  const VelRshUpgradePlan plan = Plan();
  EXPECT_EQ(plan.result, E_FAIL);
  EXPECT_EQ(plan.rows[0].kind, Kind::Stops);
  EXPECT_EQ(plan.rows[0].formerPosition, 3);
  EXPECT_EQ(plan.rows[0].parameter, "never set");
  EXPECT_EQ(SentencesOf(plan),
            (Texts{"The upgrade stops with E_FAIL at 'never set', whose value cannot be carried over: no value is "
                   "carried over from there on, and no connection",
                   "'third' loses 3 and takes 10", "'never set' had no value and takes 10",
                   "'first' keeps 1; its default is 10", "'first' loses its connection to node",
                   "'dropped and never set' goes"}));
}

TEST_F(VelRshShaderManagerPlanStopsTest, AParameterWithoutAName_EndsThePassBeforeTheNextValue) {
  AddScalar(hShader_, "a", 1.0F);
  EXPECT_EQ(hShader_->AppendParameter(VelIRshParameter_var(Make("VelRmaScalar")).Get()), S_OK);
  AddScalar(hShader_, "b", 2.0F);
  today_ = [](const VelIRshShader_var& iShader) {
    for (const char* name : {"b", "a"}) AddScalar(iShader, name, 10.0F);
  };
  const VelRshUpgradePlan plan = Plan();
  EXPECT_EQ(plan.result, E_UNEXPECTED);
  EXPECT_EQ(SentencesOf(plan),
            (Texts{"The upgrade stops with E_UNEXPECTED at parameter 2, whose name or type cannot be read: no value is "
                   "carried over from there on, and no connection",
                   "'b' loses 2 and takes 10", "'a' keeps 1; its default is 10", "parameter 2 goes"}));
}

TEST_F(VelRshShaderManagerPlanStopsTest, TheSentenceOfAStop_TellsWhatCannotBeRead) {
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  static_cast<void>(Add(hShader_, "odd", "VelRmaScalar"));
  odd_->parameters["odd"].onGetType = [](VelString&) { return E_FAIL; };
  EXPECT_EQ(SentencesOf(Plan())[0],
            "The upgrade stops with E_UNEXPECTED at 'odd', whose name or type cannot be read: no value is carried over "
            "from there on, and no connection");
}

TEST_F(VelRshShaderManagerPlanStopsTest, AnEmptyName_IsAName) {
  static_cast<void>(Add(hShader_, "", "VelRmaScalar"));
  today_ = [](const VelIRshShader_var& iShader) { AddScalar(iShader, "", 10.0F); };
  EXPECT_EQ(
      SentencesOf(Plan())[0],
      "The upgrade stops with E_FAIL at parameter 1, whose value cannot be carried over: no value is carried over "
      "from there on, and no connection");
}

TEST_F(VelRshShaderManagerPlanStopsTest, ParametersOfTodayWithoutAName_TakeNoPart) {
  const auto appendNameless = [](const VelIRshShader_var& iShader) {
    VelIContainer_var hContainer;
    EXPECT_EQ(VelISpecObject_var(iShader)->GetContainer(hContainer.Receive()), S_OK);
    EXPECT_EQ(iShader->AppendParameter(VelIRshParameter_var(MakeIn(hContainer, "VelRmaScalar")).Get()), S_OK);
  };
  AddScalar(hShader_, "a", 1.0F);
  appendNameless(hShader_);
  today_ = [&](const VelIRshShader_var& iShader) {
    appendNameless(iShader);
    AddScalar(iShader, "a", 10.0F);
  };
  EXPECT_EQ(SentencesOf(Plan()),
            (Texts{"The upgrade stops with E_UNEXPECTED at parameter 2, whose name or type cannot be read: no value is "
                   "carried over from there on, and no connection",
                   "parameter 1 is new", "'a' keeps 1; its default is 10", "parameter 2 goes"}));
  EXPECT_EQ(Upgrade(), E_UNEXPECTED);
  EXPECT_EQ(Scalars(), (std::vector<float>{-1.0F, 1.0F}));
}

TEST_F(VelRshShaderManagerPlanStopsTest, AValueThatCannotBeReadOrWritten_StopsThePlanAsTheUpgrade) {
  const struct {
    HRESULT name;
    HRESULT get;
    HRESULT set;
    HRESULT expected;
  } cases[] = {
      {S_OK, S_OK, S_OK, S_OK},
      {S_OK, S_FALSE, S_FALSE, S_OK},
      {S_OK, E_INVALIDARG, S_OK, E_INVALIDARG},
      {S_OK, S_OK, E_NOINTERFACE, E_NOINTERFACE},
      {E_FAIL, S_OK, S_OK, E_UNEXPECTED},
  };
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  today_ = [](const VelIRshShader_var& iShader) {
    for (const char* name : {"odd", "z"}) static_cast<void>(Add(iShader, name, "VelRmaScalar"));
  };
  today_(hShader_);
  for (const auto& row : cases) {
    EXPECT_EQ(hShader_->SetVersion(1), S_OK);
    odd_->parameters["odd"] = {};
    odd_->parameters["odd"].nameCode = row.name;
    odd_->parameters["odd"].getCode = row.get;
    odd_->parameters["odd"].setCode = row.set;
    EXPECT_EQ(Plan().result, row.expected);
    EXPECT_EQ(Upgrade(), row.expected);
  }
}

}  // namespace
