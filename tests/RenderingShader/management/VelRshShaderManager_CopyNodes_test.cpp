// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_CopyNodes_test.cpp Copies the nodes of a shader with it, and connects them again.
#include <algorithm>

#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/RenderingShader/management/fixtures/ShaderCopyTest.h"

namespace {

using VelRshShaderManagerCopyNodesTest = ShaderCopyTest;

TEST_F(VelRshShaderManagerCopyNodesTest, Nodes_AreCopiedInOrderAndConnectedLikeTheirOriginals) {
  const VelIRshShader_var hFirst = AddNode(hSource_, "first");
  const VelIRshShader_var hSecond = AddNode(hSource_, "mia_material");
  const VelIRshShader_var hThird = AddNode(hSource_, "third");
  const VelIRshShader_var hBelow = AddNode(hSecond, "below");
  EXPECT_EQ(Add(hSecond, "down", "VelRmaVoid")->SetConnection(hBelow.Get()), S_OK);
  AddScalar(hBelow, "depth", 2.0F);
  Connect("a", hSecond);
  Connect("b", hFirst);
  Connect("c", hSecond);

  EXPECT_EQ(Copy(), S_OK);
  const std::vector<VelIRshShader_var> nodes = NodesOf(hCopy_);
  ASSERT_EQ(nodes.size(), 3U);
  EXPECT_EQ(TypeOfShader(nodes[0].Get()), "first");
  EXPECT_EQ(TypeOfShader(nodes[1].Get()), "mia_phen_material");
  EXPECT_EQ(TypeOfShader(nodes[2].Get()), "third");
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hCopy_, "a")).Get(), nodes[1].Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hCopy_, "b")).Get(), nodes[0].Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hCopy_, "c")).Get(), nodes[1].Get()));
  ASSERT_EQ(NodesOf(nodes[1]).size(), 1U);
  const VelIRshShader_var hBelowCopy = NodesOf(nodes[1])[0];
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(nodes[1], "down")).Get(), hBelowCopy.Get()));
  EXPECT_EQ(ScalarOf(Find(hBelowCopy, "depth")), 2.0F);
  EXPECT_EQ(hTarget_->CountFeatures(), 10) << "five shaders and five parameters";
}

TEST_F(VelRshShaderManagerCopyNodesTest, AConnectionToAShaderElsewhere_IsNotRestored) {
  const VelIRshShader_var hElsewhere = MakeShader("elsewhere");
  Connect("a", hElsewhere);
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_FALSE(ConnectionOf(Find(hCopy_, "a"))) << "without nodes";
  const VelIRshShader_var hNode = AddNode(hSource_);
  Connect("b", hNode);
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_FALSE(ConnectionOf(Find(hCopy_, "a"))) << "beside a node";
  EXPECT_TRUE(ConnectionOf(Find(hCopy_, "b")));
}

TEST_F(VelRshShaderManagerCopyNodesTest, ANodeThatCannotBeCopied_CostsAllConnectionsButNotTheOtherNodes) {
  const VelIRshShader_var hFirst = AddNode(hSource_, "first");
  const VelIRshShader_var hBad = AddNode(hSource_, "bad");
  static_cast<void>(AddNode(hSource_, "third"));
  static_cast<void>(Add(hBad, "never set", "VelRmaScalar"));
  Connect("a", hFirst);
  AddScalar(hSource_, "value", 3.0F);
  EXPECT_EQ(Copy(), S_OK);
  const std::vector<VelIRshShader_var> nodes = NodesOf(hCopy_);
  ASSERT_EQ(nodes.size(), 2U);
  EXPECT_EQ(TypeOfShader(nodes[0].Get()), "first");
  EXPECT_EQ(TypeOfShader(nodes[1].Get()), "third");
  EXPECT_FALSE(ConnectionOf(Find(hCopy_, "a")));
  EXPECT_EQ(ScalarOf(Find(hCopy_, "value")), 3.0F);
}

TEST_F(VelRshShaderManagerCopyNodesTest, ANodeThatIsNoShader_CostsAllConnectionsToo) {
  const VelIRshShader_var hNode = MakeShader("node");
  const VelIRshParameter_var hConnected = Add(hSource_, "a", "VelRmaVoid");
  EXPECT_EQ(hConnected->SetConnection(hNode.Get()), S_OK);
  const struct {
    const char* name;
    std::vector<VelBaseUnknown*> nodes;
    bool isConnected;
  } cases[] = {{"the node", {hNode.Get()}, true},
               {"a parameter", {hNode.Get(), hConnected.Get()}, false},
               {"nothing", {nullptr, hNode.Get()}, false}};
  static_cast<void>(Odd(""));
  odd_->shader.parameters = {hConnected.Get()};
  const VelIRshShader_var hOdd = VelTestOddities::CreateObject();
  for (const auto& row : cases) {
    odd_->shader.nodes = row.nodes;
    EXPECT_EQ(Manager().CreateShaderCopy(hTarget_, hOdd.Get(), hCopy_.Receive()), S_OK) << row.name;
    EXPECT_EQ(TypeOfShader(hCopy_.Get()), "odd") << row.name;
    EXPECT_EQ(NodesOf(hCopy_).size(), 1U) << row.name;
    EXPECT_EQ(static_cast<bool>(ConnectionOf(Find(hCopy_, "a"))), row.isConnected) << row.name;
  }
}

TEST_F(VelRshShaderManagerCopyNodesTest, ShadersNested256Deep_AreCopiedAndDeeperOnesAreCutWithACheck) {
  VelIRshShader_var hDeepest = hSource_;
  for (int depth = 2; depth <= 256; ++depth) hDeepest = AddNode(hDeepest);
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(hTarget_->CountFeatures(), 256);
  EXPECT_EQ(checks_.Messages(), Texts{});
  static_cast<void>(AddNode(hDeepest));
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(hTarget_->CountFeatures(), 512);
  ASSERT_EQ(checks_.Messages(), Texts{"Shaders are nested too deep to be copied"});
  EXPECT_EQ(checks_.Failures().front().expression, "depth <= 256");
  EXPECT_EQ(checks_.Failures().front().source, "RenderingShader/VelRshModel.m/src/VelRshShaderManager");
  checks_.Clear();
}

TEST_F(VelRshShaderManagerCopyNodesTest, TheSource_StaysAsItIs) {
  const VelIRshShader_var hNode = AddNode(hSource_, "node");
  AddScalar(hSource_, "scalar", 1.0F);
  AddScalar(hNode, "scalar", 2.0F);
  Connect("a", hNode);
  const int features = hContainer_->CountFeatures();
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(hContainer_->CountFeatures(), features);
  EXPECT_EQ(ParameterNames(hSource_), (Texts{"scalar", "a"}));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hSource_, "a")).Get(), hNode.Get()));
  EXPECT_EQ(NodesOf(hSource_).size(), 1U);
  EXPECT_EQ(ScalarOf(Find(hNode, "scalar")), 2.0F);
}

TEST_F(VelRshShaderManagerCopyNodesTest, ANodesCopy_TakesMappingValuesOverWhenItIsConnected) {
  EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Default", "scale.Tag", "scale_u")));
  const float color[4]{};
  const float own = 5.0F;
  const VelIRshShader_var hNode = AddNode(hSource_);
  const VelIRshParameter_var hConnected = Add(hSource_, "a", "VelRmaColor");
  EXPECT_EQ(hConnected->SetValue(color), S_OK);
  EXPECT_EQ(hConnected->SetConnection(hNode.Get()), S_OK);
  AddScalar(hNode, "scale", 5.0F);
  AddScalar(hSource_, "scale", 1.0F);
  EXPECT_EQ(Find(hNode, "scale")->SetValue(&own), S_OK) << "the node had followed the source";
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(ScalarOf(Find(hNode, "scale")), 5.0F);
  EXPECT_EQ(ScalarOf(Find(NodesOf(hCopy_)[0], "scale")), 1.0F) << "though it comes after the connection";
}

TEST_F(VelRshShaderManagerCopyNodesTest, AShaderThatIsTwoNodes_IsConnectedToTheCopyOfTheFirst) {
  const VelIRshShader_var hNode = MakeShader("node");
  const VelIRshParameter_var hConnected = Add(hSource_, "a", "VelRmaVoid");
  EXPECT_EQ(hConnected->SetConnection(hNode.Get()), S_OK);
  static_cast<void>(Odd(""));
  odd_->shader.parameters = {hConnected.Get()};
  odd_->shader.nodes = {hNode.Get(), hNode.Get()};
  const VelIRshShader_var hOdd = VelTestOddities::CreateObject();
  EXPECT_EQ(Manager().CreateShaderCopy(hTarget_, hOdd.Get(), hCopy_.Receive()), S_OK);
  ASSERT_EQ(NodesOf(hCopy_).size(), 2U);
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hCopy_, "a")).Get(), NodesOf(hCopy_)[0].Get()));
}

TEST_F(VelRshShaderManagerCopyNodesTest, AConnectionThatCannotBeMade_IsNoFailure) {
  const VelIRshShader_var hNode = AddNode(hSource_, "node");
  Odd("odd").connection = hNode.Get();
  static_cast<void>(Add(hSource_, "odd", "VelRmaScalar"));
  Connect("after", hNode);
  EXPECT_EQ(Copy(), S_OK);
  EXPECT_EQ(std::count(odd_->notes.begin(), odd_->notes.end(), "connect odd"), 1);
  EXPECT_TRUE(ConnectionOf(Find(hCopy_, "after")));
}

TEST_F(VelRshShaderManagerCopyNodesTest, NodesThatCannotBeListed_CountAsNone) {
  static_cast<void>(Odd(""));
  odd_->shader.nodesCode = E_UNEXPECTED;
  const VelIRshShader_var hOdd = VelTestOddities::CreateObject();
  EXPECT_EQ(Manager().CreateShaderCopy(hTarget_, hOdd.Get(), hCopy_.Receive()), S_OK);
  EXPECT_EQ(NodesOf(hCopy_).size(), 0U);
}

/// Notes the copies that go through its virtual entry.
class CountingManager final : public VelRshShaderManager {
 public:
  HRESULT CreateShaderCopy(const VelIContainer_var& iContainer, VelIRshShader* iShader,
                           VelIRshShader** oCopy) override {
    ++count;
    codes.push_back(VelRshShaderManager::CreateShaderCopy(iContainer, iShader, oCopy));
    return codes.back();
  }
  int count = 0;
  std::vector<HRESULT> codes;  ///< In the order in which the copies ended.
};

TEST_F(VelRshShaderManagerCopyNodesTest, AShaderNestedTooDeep_FailsWithoutACopy) {
  VelIRshShader_var hDeepest = hSource_;
  for (int depth = 2; depth <= 257; ++depth) hDeepest = AddNode(hDeepest);
  auto* const manager = new CountingManager;
  EXPECT_EQ(manager->CreateShaderCopy(hTarget_, hSource_.Get(), hCopy_.Receive()), S_OK);
  ASSERT_EQ(manager->codes.size(), 257U);
  EXPECT_EQ(manager->codes.front(), E_FAIL);
  EXPECT_EQ(std::count(manager->codes.begin(), manager->codes.end(), S_OK), 256);
  manager->EndLife();
  manager->Release();
  checks_.Clear();
}

TEST_F(VelRshShaderManagerCopyNodesTest, Nodes_GoThroughTheVirtualEntry) {
  static_cast<void>(AddNode(AddNode(hSource_)));
  auto* const manager = new CountingManager;
  EXPECT_EQ(manager->CreateShaderCopy(hTarget_, hSource_.Get(), hCopy_.Receive()), S_OK);
  EXPECT_EQ(manager->count, 3);
  manager->EndLife();
  manager->Release();
}

}  // namespace
