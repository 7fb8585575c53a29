// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTagRecord_test.cpp Remembered tags are those that reading would give, whatever has changed since.
#include <random>
#include <set>

#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/model/fixtures/VelTestConnectedShader.h"
#include "tests/RenderingShader/parameters/PropagationTest.h"

namespace {

using ParameterTag = VelIRshParameterPrivate::Tag;

class VelRshTagRecordTest : public PropagationTest {
 protected:
  void SetUp() override {
    PropagationTest::SetUp();
    hParameter_ = Add(hAbove_, "p", "VelRmaScalar");
  }
  void TearDown() override {
    hParameter_ = nullptr;
    PropagationTest::TearDown();
  }

  static std::set<int> Read(const VelIRshParameter_var& iParameter) {
    VelListVal<int> tags;
    EXPECT_EQ(VelIRshParameterPrivate_var(iParameter)->GetTags(tags), S_OK);
    std::set<int> codes;
    for (int i = 1; i <= tags.Size(); ++i) codes.insert(tags[i]);
    return codes;
  }
  static std::set<int> Asked(const VelIRshParameter_var& iParameter) {
    const VelIRshParameterPrivate_var hPrivate(iParameter);
    std::set<int> codes;
    for (int code = 0; code <= static_cast<int>(ParameterTag::Angle); ++code) {
      if (hPrivate->HasTag(static_cast<ParameterTag>(code)) == S_OK) codes.insert(code);
    }
    return codes;
  }

  /// Asks twice, so that the second answer is one that was remembered.
  void Expect(const std::set<int>& iCodes) {
    EXPECT_EQ(Asked(hParameter_), iCodes);
    EXPECT_EQ(Asked(hParameter_), iCodes);
    EXPECT_EQ(Read(hParameter_), iCodes);
  }

  VelIRshParameter_var hParameter_;
};

TEST_F(VelRshTagRecordTest, NewName_HasItsOwnTags) {
  Tag("Above", "p", "angle");
  Tag("Above", "q", "flip flip_u");
  Expect({35});
  EXPECT_EQ(hParameter_->SetName("q"), S_OK);
  Expect({29, 30});
  EXPECT_EQ(hParameter_->SetName("r"), S_OK);
  Expect({});
  EXPECT_EQ(hParameter_->SetName("p"), S_OK);
  Expect({35});
}

TEST_F(VelRshTagRecordTest, ShaderThatGetsItsType_TakesItsTagsAlong) {
  Tag("VelRmaShader", "p", "angle");
  Tag("Late", "p", "scale_u");
  const VelISpecObject_var hFeature = Make("VelRmaShader");
  const VelIRshShader_var hShader(hFeature);
  const VelIRshParameter_var hFresh(Make("VelRmaScalar"));
  EXPECT_EQ(hFresh->SetName("p"), S_OK);
  EXPECT_EQ(Access(hFeature)->AppendComponent(parameters_, VelISpecObject_var(hFresh).Get()), S_OK);
  hParameter_ = hFresh;
  Expect({35});
  EXPECT_EQ(hShader->SetType("Late"), E_FAIL) << "asking for its type has made its delegate";
  Expect({35});
  EXPECT_EQ(Access(hFeature)->SetText(type_, "Late"), S_OK);
  Expect({24});
}

TEST_F(VelRshTagRecordTest, ShaderTypedBeforeItIsAsked_HasTheTagsOfItsType) {
  Tag("VelRmaShader", "p", "angle");
  Tag("Late", "p", "scale_u");
  const VelISpecObject_var hFeature = Make("VelRmaShader");
  EXPECT_EQ(VelIRshShader_var(hFeature)->SetType("Late"), S_OK);
  hParameter_ = Add(VelIRshShader_var(hFeature), "p", "VelRmaScalar");
  Expect({24});
}

TEST_F(VelRshTagRecordTest, ParameterThatMoves_HasTheTagsOfItsNewShader) {
  Tag("Above", "p", "angle");
  Tag("Below", "p", "scale_u");
  const VelISpecObject_var hAbove(hAbove_);
  const VelISpecObject_var hBelow(hBelow_);
  const VelISpecObject_var hFeature(hParameter_);
  Expect({35});
  EXPECT_EQ(Access(hAbove)->RemoveComponent(parameters_, hFeature.Get()), S_OK);
  Expect({});
  EXPECT_EQ(Access(hBelow)->AppendComponent(parameters_, hFeature.Get()), S_OK);
  Expect({24});
}

TEST_F(VelRshTagRecordTest, Configurations_AreReadAnewWhenTheyChange) {
  Expect({});
  Tag("Default", "p", "angle");
  Expect({35});
  Tag("Family", "p", "scale_u scale_v");
  EXPECT_EQ(VelRbaConfiguration::SetParent("Above", "Family"), S_OK);
  Expect({24, 25});
  Tag("Above", "p", "");
  Expect({});
  EXPECT_EQ(VelRbaConfiguration::RemoveConfiguration("Above"), S_OK);
  Expect({35});
  Tag("Above", "p", "flip");
  Expect({29});
  VelRbaConfiguration::Clear();
  Expect({});
}

TEST_F(VelRshTagRecordTest, UnknownWord_IsReportedByEachQuestionAndForgottenWithTheWord) {
  Tag("Above", "p", "angle");
  Expect({35});
  Tag("Above", "p", "strange angle");
  const VelIRshParameterPrivate_var hPrivate(hParameter_);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(hPrivate->HasTag(ParameterTag::Angle), S_OK);
  EXPECT_EQ(checks_.Messages(), Texts(3, "Could not parse tag"));
  EXPECT_EQ(hPrivate->HasTag(ParameterTag::Dpi), S_OK);
  EXPECT_EQ(checks_.Messages(), Texts(4, "Could not parse tag"));
  checks_.Clear();
  Tag("Above", "p", "angle");
  Expect({35});
}

/// A shader of another module may answer otherwise each time, so nothing is remembered.
TEST_F(VelRshTagRecordTest, ShaderOfAnotherModule_IsAskedEachTime) {
  const VelISpecObject_var hFeature = FakeRenderingMaterial::Create(*hContainer_);
  const VelTestConnectedShaderBindings bindings;
  EXPECT_EQ(Access(VelISpecObject_var(hAbove_))->RemoveComponent(parameters_, VelISpecObject_var(hParameter_).Get()),
            S_OK);
  EXPECT_EQ(Access(hFeature)->AppendComponent(Key("Shader", VelSpecAttrKind::Components),
                                              VelISpecObject_var(hParameter_).Get()),
            S_OK);
  Tag("private type", "p", "angle");
  Expect({35});
  Tag("other type", "p", "scale_u");
  VelTestConnectedShader::Of(*hFeature).typeName = "other type";
  Expect({24});
  hParameter_ = nullptr;
  hContainer_ = nullptr;
}

/// Propagation reads each word as often as a parameter above is asked for a tag: once per tag that takes part, until
/// one is found; with traces as well as without.
TEST_F(VelRshTagRecordTest, UnknownWord_IsReportedByEachReadingOfAPropagation) {
  const struct {
    const char* startUp;
    const char* above;
    const char* below;
    std::size_t reports;
    bool follows;
  } cases[] = {{"VelRmaBoolean", "strange", "flip_u", 4, false},
               {"VelRmaInteger", "strange", "flip_u", 2, false},
               {"VelRmaScalar", "strange", "", 5, false},
               {"VelRmaScalar", "strange", "diffuse", 5, false},
               {"VelRmaScalar", "strange dpi", "dpi", 5, false},
               {"VelRmaScalar", "scale_u strange", "scale_u", 0, true},
               {"VelRmaScalar", "strange scale_u", "scale_u", 1, true},
               {"VelRmaScalar", "strange scale_v", "scale_v", 2, true},
               {"VelRmaScalar", "scale_v", "strange scale_v", 1, true},
               {"VelRmaScalar", "offset", "strange scale_v", 0, false},
               {"VelRmaScalar", "scale_v", "strange", 1, false},
               {"VelRmaScalar", "strange scale_u", "strange scale_u", 2, true}};
  Connect();
  for (const auto& test : cases) {
    for (const char* switches : {"", "VelRshParameter=info"}) {
      SCOPED_TRACE(std::string(test.startUp) + ": " + test.above + " / " + test.below + " " + switches);
      const VelIRshParameter_var hSource = Add(hAbove_, "source", test.startUp);
      const VelIRshParameter_var hTarget = Add(hBelow_, "target", test.startUp);
      Tag("Above", "source", test.above);
      Tag("Below", "target", test.below);
      EXPECT_EQ(Write(hTarget, 1), S_OK);
      EXPECT_TRUE(SUCCEEDED(Write(hSource, 1)));
      checks_.Clear();
      VelTraceService::SetSwitches(switches);
      EXPECT_EQ(Write(hSource, 2), S_OK);
      VelTraceService::SetSwitches("");
      EXPECT_EQ(checks_.Messages(), Texts(test.reports, "Could not parse tag"));
      EXPECT_EQ(NumberOf(hTarget), test.follows ? 2 : 1);
      checks_.Clear();
      EXPECT_EQ(LifeCycleObject_var(hSource)->remove(), S_OK);
      EXPECT_EQ(LifeCycleObject_var(hTarget)->remove(), S_OK);
    }
  }
}

/// Any order of changes: what is remembered stays what reading gives.
TEST_F(VelRshTagRecordTest, RandomChanges_NeverLeaveAnOldAnswer) {
  constexpr std::uint32_t seed = 20260731;
  constexpr int steps = 4000;
  std::mt19937 random(seed);
  const auto pick = [&random](const auto& iFrom) { return iFrom[random() % std::size(iFrom)]; };
  const char* configurations[] = {"T1", "T2", "T3", "VelRmaShader", "Default"};
  const char* names[] = {"a", "b", "c"};
  const char* texts[] = {"", "angle", "flip_u flip_v", "scale_u dpi", "diffuse angle", "strange scale_v"};
  std::vector<VelISpecObject_var> shaders;
  std::vector<VelISpecObject_var> parameters;
  for (int i = 0; i < 4; ++i) shaders.push_back(Make("VelRmaShader"));
  for (int i = 0; i < 6; ++i) {
    parameters.push_back(Make(i % 2 == 0 ? "VelRmaScalar" : "VelRmaTexture"));
    EXPECT_EQ(VelIRshParameter_var(parameters.back())->SetName("a"), S_OK);
  }
  int tagged = 0;
  for (int step = 0; step < steps && !HasFailure(); ++step) {
    SCOPED_TRACE(step);
    const VelISpecObject_var hParameter = pick(parameters);
    const VelISpecObject_var hShader = pick(shaders);
    VelISpecObject_var hFather;
    static_cast<void>(hParameter->GetFather(hFather.Receive()));
    switch (random() % 10) {
      case 0:
        EXPECT_EQ(VelIRshParameter_var(hParameter)->SetName(pick(names)), S_OK);
        break;
      case 1:
        if (hFather) static_cast<void>(Access(hFather)->RemoveComponent(parameters_, hParameter.Get()));
        break;
      case 2:
        static_cast<void>(Access(hShader)->AppendComponent(parameters_, hParameter.Get()));
        break;
      case 3:
        static_cast<void>(VelIRshShader_var(hShader)->SetType(pick(configurations)));
        break;
      case 4:
        EXPECT_EQ(Access(hShader)->SetText(type_, pick(configurations)), S_OK);
        break;
      case 5:
        static_cast<void>(VelRbaConfiguration::SetParent(pick(configurations), pick(configurations)));
        break;
      case 6:
        static_cast<void>(VelRbaConfiguration::RemoveConfiguration(pick(configurations)));
        break;
      case 7:
        if (random() % 8 == 0) VelRbaConfiguration::Clear();
        break;
      default:
        Tag(pick(configurations), pick(names), pick(texts));
    }
    for (const VelISpecObject_var& hAny : parameters) {
      const VelIRshParameter_var hAsked(hAny);
      const std::set<int> read = Read(hAsked);
      EXPECT_EQ(Asked(hAsked), read);
      tagged += read.empty() ? 0 : 1;
    }
  }
  EXPECT_GT(tagged, steps) << "or next to nothing was compared";
  checks_.Clear();
}

}  // namespace
