// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshPropagationOrder_test.cpp The whole order of events while a value goes down through connected shaders,
/// and the values at the end.
//
// Each taking over nests inside the delivery that caused it: the parameter that follows tells its own shader, which
// tells its parameters and whoever is connected to it, before the next parameter hears of the change above.
#include <cmath>
#include <limits>
#include <map>

#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/materials/VelIRmaEditionMode.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/graphs/fixtures/DeliveryRecorder.h"

namespace {

/// Shaders are named by capitals; of their parameters those that begin with "v" are scalars that carry a tag, the
/// others are there to be connected.
class VelRshPropagationOrderTest : public RshModelTest {
 protected:
  void TearDown() override {
    parameters_.clear();
    shaders_.clear();
    RshModelTest::TearDown();
  }

  void MakeShaderOf(const char* iShader, const Texts& iParameters) {
    shaders_[iShader] = MakeShader("Nested");
    recorder_.Name(shaders_[iShader].Get(), iShader);
    for (const std::string& name : iParameters) {
      const bool isValue = name[0] == 'v';
      parameters_[name] = Add(shaders_[iShader], name.c_str(), isValue ? "VelRmaScalar" : "VelRmaColor");
      recorder_.Name(parameters_[name].Get(), name);
      if (!isValue) continue;
      EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Nested", VelString(name.c_str()) + ".Tag", "angle")));
    }
  }

  void Connect(const char* iParameter, const char* iShader) {
    EXPECT_EQ(parameters_[iParameter]->SetConnection(shaders_[iShader].Get()), S_OK);
    static_cast<void>(recorder_.Take());
  }

  HRESULT Write(const char* iParameter, float iValue) { return parameters_[iParameter]->SetValue(&iValue); }

  float ValueOf(const char* iParameter) {
    float value = -1.0F;
    EXPECT_EQ(parameters_[iParameter]->GetValue(&value), S_OK) << iParameter;
    return value;
  }

  void MakeThreeLevels() {
    MakeShaderOf("R", {"v", "l"});
    MakeShaderOf("A", {"va", "la"});
    MakeShaderOf("B", {"vb", "lb"});
    MakeShaderOf("C", {"vc"});
    Connect("l", "A");
    Connect("la", "B");
    Connect("lb", "C");
  }

  void MakeRing() {
    MakeShaderOf("A", {"va", "la"});
    MakeShaderOf("B", {"vb", "lb"});
    Connect("la", "B");
    Connect("lb", "A");
  }

  DeliveryRecorder recorder_;
  std::map<std::string, VelIRshShader_var> shaders_;
  std::map<std::string, VelIRshParameter_var> parameters_;
};

TEST_F(VelRshPropagationOrderTest, ThreeLevels_FollowOneInsideTheOther) {
  MakeThreeLevels();
  EXPECT_EQ(Write("v", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED v->R 0",
                                  "PARAMETER_VALUE_UPDATED R->v 1",
                                  "PARAMETER_VALUE_UPDATED R->l 1",
                                  "FORWARD_PARAMETER_VALUE_UPDATED l->A 2",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED A->va 3",
                                  "VALUE_UPDATED va->A 4",
                                  "PARAMETER_VALUE_UPDATED A->va 5",
                                  "PARAMETER_VALUE_UPDATED A->la 5",
                                  "FORWARD_PARAMETER_VALUE_UPDATED la->B 6",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED B->vb 7",
                                  "VALUE_UPDATED vb->B 8",
                                  "PARAMETER_VALUE_UPDATED B->vb 9",
                                  "PARAMETER_VALUE_UPDATED B->lb 9",
                                  "FORWARD_PARAMETER_VALUE_UPDATED lb->C 10",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED C->vc 11",
                                  "VALUE_UPDATED vc->C 12",
                                  "PARAMETER_VALUE_UPDATED C->vc 13",
                                  "PARAMETER_VALUE_UPDATED C->lb 13",  // is connected to C
                                  "PARAMETER_VALUE_UPDATED B->la 9",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED B->lb 7",
                                  "PARAMETER_VALUE_UPDATED A->l 5",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED A->la 3",
                              }));
  for (const char* name : {"v", "va", "vb", "vc"}) EXPECT_EQ(ValueOf(name), 0.5F) << name;
  EXPECT_EQ(Write("v", 0.5F), S_FALSE);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(VelRshPropagationOrderTest, LevelThatHasTheValue_IsWhereItEnds) {
  MakeThreeLevels();
  EXPECT_EQ(Write("v", 0.25F), S_OK);
  EXPECT_EQ(Write("va", 0.5F), S_OK);
  EXPECT_EQ(Write("vb", 0.75F), S_OK);
  static_cast<void>(recorder_.Take());
  EXPECT_EQ(Write("v", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED v->R 0",
                                  "PARAMETER_VALUE_UPDATED R->v 1",
                                  "PARAMETER_VALUE_UPDATED R->l 1",
                                  "FORWARD_PARAMETER_VALUE_UPDATED l->A 2",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED A->va 3",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED A->la 3",
                              }));
  EXPECT_EQ(ValueOf("vb"), 0.75F);
  EXPECT_EQ(ValueOf("vc"), 0.75F);
}

TEST_F(VelRshPropagationOrderTest, EditionMode0_LeavesTheValueWhereItWasWritten) {
  MakeThreeLevels();
  EXPECT_EQ(Write("v", 0.25F), S_OK);
  static_cast<void>(recorder_.Take());
  VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, true);
  EXPECT_EQ(Write("v", 0.5F), S_OK);
  VelIRmaEditionMode::SetActivation(VelIRmaEditionMode::Mode::SilentPropagation, false);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED v->R 0",
                                  "PARAMETER_VALUE_UPDATED R->v 1",
                                  "PARAMETER_VALUE_UPDATED R->l 1",
                                  "FORWARD_PARAMETER_VALUE_UPDATED l->A 2",  // colours do not ask
                                  "FORWARDED_PARAMETER_VALUE_UPDATED A->va 3",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED A->la 3",
                              }));
  for (const char* name : {"va", "vb", "vc"}) EXPECT_EQ(ValueOf(name), 0.25F) << name;
}

TEST_F(VelRshPropagationOrderTest, SharedSubShader_HearsTwiceAndFollowsOnce) {
  MakeShaderOf("R", {"v", "l", "m"});
  MakeShaderOf("A", {"va"});
  Connect("l", "A");
  Connect("m", "A");
  EXPECT_EQ(Write("v", 0.5F), S_OK);
  EXPECT_EQ(
      recorder_.Take(),
      (Texts{
          "VALUE_UPDATED v->R 0", "PARAMETER_VALUE_UPDATED R->v 1", "PARAMETER_VALUE_UPDATED R->l 1",
          "FORWARD_PARAMETER_VALUE_UPDATED l->A 2", "FORWARDED_PARAMETER_VALUE_UPDATED A->va 3",
          "VALUE_UPDATED va->A 4", "PARAMETER_VALUE_UPDATED A->va 5", "PARAMETER_VALUE_UPDATED A->l 5",
          "PARAMETER_VALUE_UPDATED A->m 5", "PARAMETER_VALUE_UPDATED R->m 1", "FORWARD_PARAMETER_VALUE_UPDATED m->A 2",
          "FORWARDED_PARAMETER_VALUE_UPDATED A->va 3",  // has it already
      }));
  EXPECT_EQ(ValueOf("va"), 0.5F);
}

TEST_F(VelRshPropagationOrderTest, Ring_EndsWhereTheValueIsAlready) {
  MakeRing();
  EXPECT_EQ(Write("va", 0.5F), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED va->A 0",
                                  "PARAMETER_VALUE_UPDATED A->va 1",
                                  "PARAMETER_VALUE_UPDATED A->la 1",
                                  "FORWARD_PARAMETER_VALUE_UPDATED la->B 2",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED B->vb 3",
                                  "VALUE_UPDATED vb->B 4",
                                  "PARAMETER_VALUE_UPDATED B->vb 5",
                                  "PARAMETER_VALUE_UPDATED B->lb 5",
                                  "FORWARD_PARAMETER_VALUE_UPDATED lb->A 6",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED A->va 7",  // has it already
                                  "FORWARDED_PARAMETER_VALUE_UPDATED A->la 7",
                                  "PARAMETER_VALUE_UPDATED B->la 5",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED B->lb 3",
                                  "PARAMETER_VALUE_UPDATED A->lb 1",
                              }));
  EXPECT_EQ(ValueOf("va"), 0.5F);
  EXPECT_EQ(ValueOf("vb"), 0.5F);
}

/// What is no number equals nothing, so that it goes on until a parameter meets it while taking it over.
TEST_F(VelRshPropagationOrderTest, NanRoundARing_EndsWhereItIsBeingTakenOver) {
  MakeRing();
  EXPECT_EQ(Write("va", std::numeric_limits<float>::quiet_NaN()), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "VALUE_UPDATED va->A 0",
                                  "PARAMETER_VALUE_UPDATED A->va 1",
                                  "PARAMETER_VALUE_UPDATED A->la 1",
                                  "FORWARD_PARAMETER_VALUE_UPDATED la->B 2",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED B->vb 3",
                                  "VALUE_UPDATED vb->B 4",
                                  "PARAMETER_VALUE_UPDATED B->vb 5",
                                  "PARAMETER_VALUE_UPDATED B->lb 5",
                                  "FORWARD_PARAMETER_VALUE_UPDATED lb->A 6",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED A->va 7",  // was written, and now takes over
                                  "VALUE_UPDATED va->A 8",
                                  "PARAMETER_VALUE_UPDATED A->va 9",
                                  "PARAMETER_VALUE_UPDATED A->la 9",
                                  "FORWARD_PARAMETER_VALUE_UPDATED la->B 10",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED B->vb 11",  // is taking over
                                  "FORWARDED_PARAMETER_VALUE_UPDATED B->lb 11",
                                  "PARAMETER_VALUE_UPDATED A->lb 9",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED A->la 7",
                                  "PARAMETER_VALUE_UPDATED B->la 5",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED B->lb 3",
                                  "PARAMETER_VALUE_UPDATED A->lb 1",
                              }));
  EXPECT_TRUE(std::isnan(ValueOf("va")));
  EXPECT_TRUE(std::isnan(ValueOf("vb")));
  EXPECT_EQ(Write("va", 0.5F), S_OK);
  EXPECT_EQ(ValueOf("vb"), 0.5F) << "numbers go on as before";
}

TEST_F(VelRshPropagationOrderTest, Connection_LetsAllLevelsTakeOver) {
  MakeThreeLevels();
  EXPECT_EQ(shaders_["R"]->AddNode(shaders_["A"].Get()), S_OK);
  EXPECT_EQ(parameters_["l"]->SetConnection(nullptr), S_OK);
  EXPECT_EQ(Write("v", 0.5F), S_OK);
  static_cast<void>(recorder_.Take());
  EXPECT_EQ(parameters_["l"]->SetConnection(shaders_["A"].Get()), S_OK);
  EXPECT_EQ(recorder_.Take(), (Texts{
                                  "CONNECTION_UPDATED l->R 0",
                                  "PARAMETER_CONNECTION_UPDATED R->v 1",
                                  "PARAMETER_CONNECTION_UPDATED R->l 1",
                                  "CONNECTION_UPDATED l->A 0",
                                  "FORWARDED_PARAMETER_CONNECTION_UPDATED A->va 1",
                                  "VALUE_UPDATED va->A 2",
                                  "PARAMETER_VALUE_UPDATED A->va 3",
                                  "PARAMETER_VALUE_UPDATED A->la 3",
                                  "FORWARD_PARAMETER_VALUE_UPDATED la->B 4",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED B->vb 5",
                                  "VALUE_UPDATED vb->B 6",
                                  "PARAMETER_VALUE_UPDATED B->vb 7",
                                  "PARAMETER_VALUE_UPDATED B->lb 7",
                                  "FORWARD_PARAMETER_VALUE_UPDATED lb->C 8",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED C->vc 9",
                                  "VALUE_UPDATED vc->C 10",
                                  "PARAMETER_VALUE_UPDATED C->vc 11",
                                  "PARAMETER_VALUE_UPDATED C->lb 11",
                                  "PARAMETER_VALUE_UPDATED B->la 7",
                                  "FORWARDED_PARAMETER_VALUE_UPDATED B->lb 5",
                                  "PARAMETER_VALUE_UPDATED A->l 3",
                                  "FORWARDED_PARAMETER_CONNECTION_UPDATED A->la 1",
                              }));
  for (const char* name : {"va", "vb", "vc"}) EXPECT_EQ(ValueOf(name), 0.5F) << name;
}

/// The value that a connection hands down counts like one that was written.
TEST_F(VelRshPropagationOrderTest, ConnectionAboveAChainThatIsTooLong_IsCutWithOneCheck) {
  constexpr int levels = 300;
  constexpr int limit = 256;
  const auto name = [](const char* iPrefix, int iLevel) { return iPrefix + std::to_string(iLevel); };
  for (int i = 0; i < levels; ++i) MakeShaderOf(name("S", i).c_str(), {name("v", i), name("l", i)});
  for (int i = levels - 2; i > 0; --i) Connect(name("l", i).c_str(), name("S", i + 1).c_str());
  EXPECT_EQ(Write("v0", 0.5F), S_OK);
  EXPECT_EQ(parameters_["l0"]->SetConnection(shaders_["S1"].Get()), S_OK);
  EXPECT_EQ(ValueOf(name("v", limit).c_str()), 0.5F);
  float value = -1.0F;
  EXPECT_EQ(parameters_[name("v", limit + 1)]->GetValue(&value), E_FAIL);
  ASSERT_EQ(checks_.Failures().size(), 1U);
  EXPECT_EQ(checks_.Failures()[0].message, "A value is not handed on to further shaders");
  EXPECT_EQ(checks_.Failures()[0].kind, VelFailureKind::Check);
  checks_.Clear();
}

}  // namespace
