// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_PlanConnections_test.cpp What a plan tells of connections, and of the values that follow
/// them.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/materials/VelIRmaEditionMode.h"
#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"
#include "tests/RenderingShader/parameters/fixtures/FakeParameterLayout.h"

namespace {

using Kind = VelRshUpgradePlanRow::Kind;

class VelRshShaderManagerPlanConnectionsTest : public UpgradeTest {
 protected:
  void SetUp() override {
    UpgradeTest::SetUp();
    EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Default", "scale.Tag", "scale_u")));
    today_ = [](const VelIRshShader_var& iShader) {
      AddScalar(iShader, "connected", 1.0F);
      AddScalar(iShader, "scale", 100.0F);
    };
  }

  /// Connects a new parameter of a shader to another one.
  static void Connect(const VelIRshShader_var& iShader, const char* iName, const VelIRshShader_var& iTo) {
    EXPECT_EQ(AddScalar(iShader, iName, 1.0F)->SetConnection(iTo.Get()), S_OK);
  }

  static void Set(const VelIRshParameter_var& ioParameter, float iValue) {
    EXPECT_TRUE(SUCCEEDED(ioParameter->SetValue(&iValue)));
  }

  /// @return the sentences about values that follow
  Texts Following() {
    Texts sentences;
    for (const VelRshUpgradePlanRow& row : Plan().rows) {
      if (row.kind == Kind::MappingTaken) sentences.emplace_back(row.Text().View());
    }
    return sentences;
  }
};

TEST_F(VelRshShaderManagerPlanConnectionsTest, Connections_AreKeptLostAndMade) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  const VelIRshShader_var hElsewhere = MakeShader("elsewhere");
  for (const char* name : {"kept", "replaced"}) Connect(hShader_, name, hNode);
  for (const char* name : {"retyped", "dropped"}) Connect(hShader_, name, hElsewhere);
  today_ = [](const VelIRshShader_var& iShader) {
    AddText(iShader, "retyped", "today");
    for (const char* name : {"kept", "replaced", "made"}) AddScalar(iShader, name, 1.0F);
    for (const char* name : {"replaced", "made"}) {
      EXPECT_EQ(Find(iShader, name)->SetConnection(AddNewNode(iShader, "anew").Get()), S_OK);
    }
  };
  const VelRshUpgradePlan plan = Plan();
  EXPECT_EQ(SentencesOf(plan),
            (Texts{"'retyped' was VelRmaScalar 1 and is VelRmaString \"today\"",
                   "'retyped' loses its connection to elsewhere", "'kept' keeps 1", "'kept' stays connected to node",
                   "'replaced' keeps 1", "'replaced' stays connected to node", "'made' is new, with 1",
                   "'made' is connected to a new anew", "'dropped' goes, and with it 1",
                   "'dropped' loses its connection to elsewhere"}));
  EXPECT_TRUE(IsSameObject(plan.rows[1].shader.Get(), hElsewhere.Get()));
  EXPECT_TRUE(IsSameObject(plan.rows[3].shader.Get(), hNode.Get()));
  EXPECT_EQ(plan.rows[3].position, 2);
  EXPECT_EQ(plan.rows[3].formerPosition, 1);
  EXPECT_FALSE(plan.rows[7].shader);
  EXPECT_EQ(plan.rows[7].shaderType, "anew");
}

TEST_F(VelRshShaderManagerPlanConnectionsTest, AShaderThatWasThereBefore_IsToldWhereTodaysVersionConnectsToIt) {
  const VelIRshShader_var hThere = MakeShader("there");
  today_ = [&](const VelIRshShader_var& iShader) { Connect(iShader, "made", hThere); };
  const VelRshUpgradePlan plan = Plan();
  EXPECT_EQ(SentencesOf(plan), (Texts{"'made' is new, with 1", "'made' is connected to a there"}));
  EXPECT_TRUE(IsSameObject(plan.rows[1].shader.Get(), hThere.Get()));
}

TEST_F(VelRshShaderManagerPlanConnectionsTest, AConnectedShader_CanBePlannedIntoThePlanThatKeepsIt) {
  {
    const VelIRshShader_var hNode = AddNode(hShader_, "mine");
    EXPECT_EQ(hNode->SetVersion(1), S_OK);
    AddScalar(hNode, "inner", 3.0F);
    Connect(hShader_, "connected", hNode);
  }
  VelRshUpgradePlan plan = Plan();
  const auto connected = std::ranges::find(plan.rows, Kind::ConnectionKept, &VelRshUpgradePlanRow::kind);
  ASSERT_NE(connected, plan.rows.end());
  EXPECT_EQ(Manager().PlanUpgrade(connected->shader.Get(), plan), S_OK);
  EXPECT_EQ(plan.Heading(), "mine from version 1 to 2");
  EXPECT_EQ(std::ranges::count(plan.rows, Kind::Dropped, &VelRshUpgradePlanRow::kind), 1);
}

TEST_F(VelRshShaderManagerPlanConnectionsTest, ConnectedShaders_AreToldWithTheValuesThatTheyTakeOver) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  AddScalar(hNode, "not tagged", 8.0F);
  const VelIRshParameter_var hScale = AddScalar(hNode, "scale", 8.0F);
  Connect(hShader_, "connected", hNode);
  AddScalar(hShader_, "scale", 2.0F);
  Set(hScale, 5.0F);
  const VelRshUpgradePlan plan = Plan();
  EXPECT_EQ(SentencesOf(plan), (Texts{"'connected' keeps 1", "'connected' stays connected to node",
                                      "'scale' keeps 2; its default is 100", "'scale' of node takes 2 instead of 5"}));
  EXPECT_TRUE(IsSameObject(plan.rows[3].shader.Get(), hNode.Get()));
  EXPECT_EQ(plan.rows[3].position, 2);
  EXPECT_EQ(ScalarOf(hScale), 5.0F);
}

TEST_F(VelRshShaderManagerPlanConnectionsTest, ShadersBehindThem_FollowThroughWhatIsConnectedBetween) {
  const VelIRshShader_var hNear = AddNode(hShader_, "near");
  const VelIRshShader_var hFar = AddNode(hNear, "far");
  const VelIRshParameter_var hFarScale = AddScalar(hFar, "scale", 8.0F);
  const VelIRshParameter_var hNearScale = AddScalar(hNear, "scale", 8.0F);
  Connect(hNear, "to far", hFar);
  Connect(hShader_, "connected", hNear);
  AddScalar(hShader_, "scale", 2.0F);
  Set(hNearScale, 5.0F);
  Set(hFarScale, 6.0F);
  EXPECT_EQ(Following(), (Texts{"'scale' of near takes 2 instead of 5", "'scale' of far takes 2 instead of 6"}));
  Set(hNearScale, 2.0F);
  Set(hFarScale, 6.0F);
  EXPECT_EQ(Following(), Texts{}) << "the one between does not change, so that nothing goes on from there";
}

TEST_F(VelRshShaderManagerPlanConnectionsTest, AValueThatWasNeverSet_IsTakenOverToo) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  Connect(hShader_, "connected", hNode);
  AddScalar(hShader_, "scale", 2.0F);
  static_cast<void>(Add(hNode, "scale", "VelRmaScalar"));
  EXPECT_EQ(Following(), Texts{"'scale' of node takes 2"});
}

TEST_F(VelRshShaderManagerPlanConnectionsTest, ARing_GivesBackToTheShaderItself) {
  EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("mine", "scale.Tag", "scale_u")));
  EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("mine", "other.Tag", "scale_u")));
  EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("node", "scale.Tag", "scale_u")));
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  const VelIRshParameter_var hScale = AddScalar(hNode, "scale", 8.0F);
  Connect(hNode, "back", hShader_);
  Connect(hShader_, "connected", hNode);
  const VelIRshParameter_var hOwnScale = AddScalar(hShader_, "scale", 2.0F);
  const VelIRshParameter_var hOther = AddScalar(hShader_, "other", 3.0F);
  VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, true);
  Set(hScale, 5.0F);
  Set(hOwnScale, 2.0F);
  Set(hOther, 3.0F);
  VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, false);
  today_ = [](const VelIRshShader_var& iShader) {
    for (const char* name : {"connected", "scale", "other"}) AddScalar(iShader, name, 1.0F);
  };
  EXPECT_EQ(SentencesOf(Plan()),
            (Texts{"'connected' keeps 1", "'connected' stays connected to node", "'scale' keeps 2; its default is 1",
                   "'other' loses 3 and takes 2", "'scale' of node takes 2 instead of 5"}));
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Scalars(), (std::vector<float>{1.0F, 2.0F, 2.0F}));
}

TEST_F(VelRshShaderManagerPlanConnectionsTest, WhileNothingPropagates_NothingFollows) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  Connect(hShader_, "connected", hNode);
  AddScalar(hShader_, "scale", 2.0F);
  AddScalar(hNode, "scale", 5.0F);
  const auto silent = VelIRmaEditionMode::Mode::SilentPropagation;
  VelIRmaEditionMode::SetActivation(silent, true);
  EXPECT_EQ(Following(), Texts{});
  EXPECT_TRUE(VelIRmaEditionMode::GetActivation(silent));
  VelIRmaEditionMode::SetActivation(silent, false);
  EXPECT_EQ(Following(), Texts{"'scale' of node takes 2 instead of 5"});
  EXPECT_FALSE(VelIRmaEditionMode::GetActivation(silent));
}

TEST_F(VelRshShaderManagerPlanConnectionsTest, AShaderOfAnotherModule_StaysConnectedAndItsValuesAreNotForetold) {
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  ASSERT_EQ(VelICatalogManager_var(hContainer_)->LoadCatalog(VEL_TEST_MANAGEMENT_CATALOG), S_OK);
  const VelIRshShader_var hOdd(MakeIn(hContainer_, "VelTestOddShader"));
  ASSERT_TRUE(hOdd);
  EXPECT_EQ(Add(hShader_, "void", "VelRmaVoid")->SetConnection(hOdd.Get()), S_OK);
  today_ = [](const VelIRshShader_var& iShader) { static_cast<void>(Add(iShader, "void", "VelRmaVoid")); };
  EXPECT_EQ(SentencesOf(Plan()), (Texts{"'void' stays", "'void' stays connected to odd"}));
}

TEST_F(VelRshShaderManagerPlanConnectionsTest, AValueThatTheHostSupplies_IsNoValueThatStands) {
  FakeParameterLayouts layouts;
  layouts.boolean = true;
  EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Default", "flip.Tag", "flip_u")));
  const VelIRshShader_var hNear = AddNode(hShader_, "near");
  const VelIRshShader_var hFar = AddNode(hNear, "far");
  static_cast<void>(Add(hNear, "flip", "VelRmaBoolean"));
  Connect(hNear, "to far", hFar);
  Connect(hShader_, "connected", hNear);
  const bool is = true;
  const bool isNot = false;
  VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, true);
  EXPECT_EQ(Add(hFar, "flip", "VelRmaBoolean")->SetValue(&isNot), S_OK);
  EXPECT_EQ(Add(hShader_, "flip", "VelRmaBoolean")->SetValue(&is), S_OK);
  VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, false);
  today_ = [](const VelIRshShader_var& iShader) {
    AddScalar(iShader, "connected", 1.0F);
    static_cast<void>(Add(iShader, "flip", "VelRmaBoolean"));
  };
  EXPECT_EQ(Following(), Texts{"'flip' of far takes true instead of false"}) << "the one between reads as before";
  EXPECT_EQ(Upgrade(), S_OK);
  bool flip = false;
  EXPECT_EQ(Find(hFar, "flip")->GetValue(&flip), S_OK);
  EXPECT_TRUE(flip);
}

TEST_F(VelRshShaderManagerPlanConnectionsTest, AChainThatIsTooLong_IsCutWhereTheUpgradeCutsIt) {
  VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, true);
  AddScalar(hShader_, "scale", 2.0F);
  std::vector<VelIRshShader_var> chain{hShader_};
  for (int i = 0; i < 300; ++i) {
    chain.push_back(AddNode(chain.back()));
    AddScalar(chain.back(), "scale", 5.0F);
    Connect(chain[chain.size() - 2], "connected", chain.back());
  }
  VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, false);
  const std::size_t foretold = Following().size();
  EXPECT_EQ(checks_.Messages(), Texts{"A value is not handed on to further shaders"});
  EXPECT_EQ(Upgrade(), S_OK);
  const auto follows = [](const VelIRshShader_var& iShader) { return ScalarOf(Find(iShader, "scale")) == 2.0F; };
  EXPECT_EQ(static_cast<std::size_t>(std::count_if(chain.begin() + 1, chain.end(), follows)), foretold);
  EXPECT_LT(foretold, 300U);
  checks_.Clear();
}

/// What docs/shaders.md shows.
TEST_F(VelRshShaderManagerPlanConnectionsTest, TheExamplesOfTheDocumentation_AreWhatPlansSay) {
  for (const char* type : {"Varnish", "vel_phen_texture"}) {
    EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue(type, "scale_u.Tag", "scale_u")));
  }
  First().types[0].name = "Varnish";
  hShader_ = MakeShader("Varnish");
  EXPECT_EQ(hShader_->SetVersion(1), S_OK);
  const float colors[] = {0.8F, 0.7F, 0.6F, 1.0F, 1.0F, 1.0F, 1.0F, 1.0F};
  const VelIRshShader_var hTexture = AddNode(hShader_);
  const VelIRshParameter_var hScale = AddScalar(hTexture, "scale_u", 1.0F);
  AddScalar(hShader_, "roughness", 0.25F);
  const VelIRshParameter_var hMetallic = Add(hShader_, "metallic", "VelRmaScalar");
  const VelIRshParameter_var hBase = Add(hShader_, "base", "VelRmaColor");
  EXPECT_EQ(hBase->SetValue(VelRshValueSource(colors, 4)), S_OK);
  EXPECT_EQ(hBase->SetConnection(hTexture.Get()), S_OK);
  AddScalar(hShader_, "scale_u", 2.0F);
  AddScalar(hShader_, "samples", 8.0F);
  AddText(hShader_, "note", "matt");
  AddScalar(hShader_, "sheen", 0.1F);
  Set(hScale, 5.0F);
  today_ = [&](const VelIRshShader_var& iShader) {
    AddScalar(iShader, "roughness", 0.5F);
    AddScalar(iShader, "metallic", 0.0F);
    AddScalar(iShader, "coat", 0.75F);
    EXPECT_EQ(Add(iShader, "base", "VelRmaColor")->SetValue(VelRshValueSource(colors + 4, 4)), S_OK);
    AddScalar(iShader, "scale_u", 1.0F);
    const std::int32_t samples = 16;
    EXPECT_EQ(Add(iShader, "samples", "VelRmaInteger")->SetValue(&samples), S_OK);
    AddText(iShader, "note", "gloss");
  };
  std::ifstream file(VEL_TEST_CATALOGS "/../docs/shaders.md");
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  const VelRshUpgradePlan stopping = Plan();
  EXPECT_NE(page.find("    " + std::string(stopping.rows[0].Text().View()) + "\n"), std::string::npos)
      << stopping.Text().View();
  Set(hMetallic, 0.0F);
  std::string shown;
  std::istringstream lines{std::string(Plan().Text().View())};
  for (std::string line; std::getline(lines, line);) shown += "    " + line + "\n";
  EXPECT_NE(page.find(shown), std::string::npos) << shown;
}

}  // namespace
