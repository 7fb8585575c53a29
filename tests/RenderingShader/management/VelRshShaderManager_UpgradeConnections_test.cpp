// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_UpgradeConnections_test.cpp Gives the parameters of today the connections of before.
#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"

namespace {

using VelRshShaderManagerUpgradeConnectionsTest = UpgradeTest;

TEST_F(VelRshShaderManagerUpgradeConnectionsTest, Connections_ComeBackToTheVerySameShadersAndNodesStay) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  const VelIRshShader_var hElsewhere = MakeShader("elsewhere");
  const VelIRshShader_var hLost = AddNode(hShader_, "lost");
  EXPECT_EQ(Add(hShader_, "void", "VelRmaVoid")->SetConnection(hNode.Get()), S_OK);
  EXPECT_EQ(AddText(hShader_, "text", "before")->SetConnection(hElsewhere.Get()), S_OK);
  EXPECT_EQ(AddScalar(hShader_, "scalar", 1.0F)->SetConnection(hNode.Get()), S_OK);
  EXPECT_EQ(AddScalar(hShader_, "retyped", 1.0F)->SetConnection(hLost.Get()), S_OK);
  const int features = hContainer_->CountFeatures();
  const int heardBy = CountSubscribers(hNode);
  today_ = [](const VelIRshShader_var& iShader) {
    AddText(iShader, "retyped", "today");
    AddScalar(iShader, "scalar", 2.0F);
    AddText(iShader, "text", "today");
    static_cast<void>(Add(iShader, "void", "VelRmaVoid"));
  };
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "void")).Get(), hNode.Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "text")).Get(), hElsewhere.Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "scalar")).Get(), hNode.Get()));
  EXPECT_FALSE(ConnectionOf(Find(hShader_, "retyped")));
  const std::vector<VelIRshShader_var> nodes = NodesOf(hShader_);
  ASSERT_EQ(nodes.size(), 2U);
  EXPECT_TRUE(IsSameObject(nodes[0].Get(), hNode.Get()));
  EXPECT_TRUE(IsSameObject(nodes[1].Get(), hLost.Get()));
  EXPECT_EQ(hContainer_->CountFeatures(), features);
  EXPECT_EQ(CountSubscribers(hNode), heardBy) << "nothing of the copy of before hears any more";
}

TEST_F(VelRshShaderManagerUpgradeConnectionsTest, AConnectionThatTodaysVersionMakes_GivesWayToTheOneOfBefore) {
  const VelIRshShader_var hBefore = AddNode(hShader_, "before");
  const VelIRshShader_var hToday = AddNode(hShader_, "today");
  for (const char* name : {"connected", "free"}) static_cast<void>(Add(hShader_, name, "VelRmaVoid"));
  EXPECT_EQ(Find(hShader_, "connected")->SetConnection(hBefore.Get()), S_OK);
  today_ = [&](const VelIRshShader_var& iShader) {
    for (const char* name : {"connected", "free"}) {
      EXPECT_EQ(Add(iShader, name, "VelRmaVoid")->SetConnection(hToday.Get()), S_OK);
    }
  };
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "connected")).Get(), hBefore.Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "free")).Get(), hToday.Get())) << "what had none keeps it";
}

TEST_F(VelRshShaderManagerUpgradeConnectionsTest, ConnectedShaders_TakeOverTheValuesOfBeforeNotTheDefaults) {
  EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Default", "scale.Tag", "scale_u")));
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  const VelIRshParameter_var hNodeScale = AddScalar(hNode, "scale", 8.0F);
  EXPECT_EQ(AddScalar(hShader_, "connected", 1.0F)->SetConnection(hNode.Get()), S_OK);
  AddScalar(hShader_, "scale", 2.0F);
  const float own = 5.0F;
  EXPECT_EQ(hNodeScale->SetValue(&own), S_OK) << "it had followed the shader";
  today_ = [](const VelIRshShader_var& iShader) {
    AddScalar(iShader, "connected", 1.0F);
    AddScalar(iShader, "scale", 100.0F);
  };
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(ScalarOf(Find(hShader_, "scale")), 2.0F);
  EXPECT_EQ(ScalarOf(hNodeScale), 2.0F) << "the connection has the node follow again";
}

TEST_F(VelRshShaderManagerUpgradeConnectionsTest, AConnectionThatCannotBeMade_IsNoFailure) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  odd_->parameters["odd"].connection = hNode.Get();
  today_ = [](const VelIRshShader_var& iShader) {
    static_cast<void>(Add(iShader, "odd", "VelRmaScalar"));
    AddText(iShader, "after", "today");
  };
  static_cast<void>(Add(hShader_, "odd", "VelRmaScalar"));
  EXPECT_EQ(AddText(hShader_, "after", "before")->SetConnection(hNode.Get()), S_OK);
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(odd_->notes.back(), "connect odd");
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "after")).Get(), hNode.Get()));
}

}  // namespace
