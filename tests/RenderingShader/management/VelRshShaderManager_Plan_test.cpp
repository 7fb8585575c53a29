// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Plan_test.cpp What a plan tells of each parameter, connection and value.
#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"

namespace {

using Row = VelRshUpgradePlanRow;
using Kind = Row::Kind;

class VelRshShaderManagerPlanTest : public UpgradeTest {
 protected:
  VelRshUpgradePlan Plan() {
    VelRshUpgradePlan plan;
    EXPECT_EQ(Manager().PlanUpgrade(hShader_.Get(), plan), S_OK);
    return plan;
  }

  /// @return the sentences of the rows
  Texts Sentences() {
    Texts sentences;
    for (const Row& row : Plan().rows) sentences.emplace_back(row.Text().View());
    return sentences;
  }
};

TEST_F(VelRshShaderManagerPlanTest, Rows_ReadInTheOrderOfTodayThenWhatGoes) {
  AddScalar(hShader_, "kept", 1.0F);
  AddScalar(hShader_, "dropped", 2.0F);
  AddScalar(hShader_, "retyped", 3.0F);
  AddScalar(hShader_, "edited", 4.0F);
  AddText(hShader_, "text", "before");
  today_ = [](const VelIRshShader_var& iShader) {
    AddScalar(iShader, "added", 10.0F);
    AddScalar(iShader, "edited", 40.0F);
    const std::int32_t number = 30;
    EXPECT_EQ(Add(iShader, "retyped", "VelRmaInteger")->SetValue(&number), S_OK);
    AddText(iShader, "text", "today");
    AddScalar(iShader, "kept", 1.0F);
  };
  EXPECT_EQ(Sentences(),
            (Texts{"'added' is new, with 10", "'edited' keeps 4; its default is 40",
                   "'retyped' was VelRmaScalar 3 and is VelRmaInteger 30",
                   "'text' loses \"before\" and takes \"today\"", "'kept' keeps 1", "'dropped' goes, and with it 2"}));
}

TEST_F(VelRshShaderManagerPlanTest, ConnectedShaders_AreToldWithTheValuesThatTheyTakeOver) {
  EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Default", "scale.Tag", "scale_u")));
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  const VelIRshParameter_var hNodeScale = AddScalar(hNode, "scale", 8.0F);
  EXPECT_EQ(AddScalar(hShader_, "connected", 1.0F)->SetConnection(hNode.Get()), S_OK);
  AddScalar(hShader_, "scale", 2.0F);
  const float own = 5.0F;
  EXPECT_EQ(hNodeScale->SetValue(&own), S_OK);
  today_ = [](const VelIRshShader_var& iShader) {
    AddScalar(iShader, "connected", 1.0F);
    AddScalar(iShader, "scale", 100.0F);
  };
  EXPECT_EQ(Sentences(), (Texts{"'connected' keeps 1", "'connected' stays connected to node",
                                "'scale' keeps 2; its default is 100", "'scale' of node takes 2 instead of 5"}));
  EXPECT_EQ(ScalarOf(hNodeScale), 5.0F);
}

TEST_F(VelRshShaderManagerPlanTest, AValueThatNobodySet_IsToldFirstWithWhatIsLost) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  EXPECT_EQ(AddScalar(hShader_, "first", 1.0F)->SetConnection(hNode.Get()), S_OK);
  static_cast<void>(Add(hShader_, "never set", "VelRmaScalar"));
  AddScalar(hShader_, "third", 3.0F);
  today_ = [](const VelIRshShader_var& iShader) {
    for (const char* name : {"third", "never set", "first"}) AddScalar(iShader, name, 10.0F);
  };
  EXPECT_EQ(Sentences(), (Texts{"The upgrade stops with E_FAIL at 'never set', whose value cannot be carried over: no "
                                "value is carried over from there on, and no connection",
                                "'third' loses 3 and takes 10", "'never set' had no value and takes 10",
                                "'first' keeps 1; its default is 10", "'first' loses its connection to node"}));
}

}  // namespace
