// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParentShaderEvents_Tags_test.cpp Which tags let which parameters follow the shader above.
#include <set>

#include "tests/RenderingShader/parameters/PropagationTest.h"

namespace {

/// Written out by hand, in the order in which they are tried.
const struct {
  const char* startUp;
  Texts words;
} followers[] = {{"VelRmaBoolean", {"flip_u", "flip_v", "repeat_u", "repeat_v"}},
                 {"VelRmaInteger", {"mapping-behavior", "projector-function"}},
                 {"VelRmaScalar", {"scale_u", "scale_v", "offset_u", "offset_v", "angle"}}};

constexpr const char* allWords[] = {
#define VEL_RSH_TAG(Enumerator, Word) Word,
#include "RenderingShader/interfaces/VelRshTags.def"
#undef VEL_RSH_TAG
};

class VelRshParentShaderEventsTagsTest : public PropagationTest {
 protected:
  struct Pair {
    VelIRshParameter_var hSource;
    VelIRshParameter_var hTarget;
  };

  /// Makes a parameter above and one below.
  Pair MakePair(const char* iStartUp) { return {Add(hAbove_, "source", iStartUp), Add(hBelow_, "target", iStartUp)}; }

  static bool IsSet(const Texts& iWords, const std::string& iWord) {
    return std::set<std::string>(iWords.begin(), iWords.end()).count(iWord) != 0;
  }
};

TEST_F(VelRshParentShaderEventsTagsTest, EveryWordOfTheVocabulary_LetsItsOwnClassesFollowAValueAndNoOther) {
  Connect();
  int following = 0;
  for (const auto& follower : followers) {
    const Pair pair = MakePair(follower.startUp);
    for (const char* word : allWords) {
      Tag("Above", "source", word);
      Tag("Below", "target", word);
      const bool follows = IsSet(follower.words, word);
      EXPECT_TRUE(SUCCEEDED(Write(pair.hTarget, 1)));
      EXPECT_TRUE(SUCCEEDED(Write(pair.hSource, 1)));
      EXPECT_EQ(Write(pair.hSource, 2), S_OK);
      EXPECT_EQ(NumberOf(pair.hTarget), follows ? 2 : 1) << follower.startUp << " " << word;
      following += follows ? 1 : 0;
    }
    EXPECT_EQ(LifeCycleObject_var(pair.hSource)->remove(), S_OK);
    EXPECT_EQ(LifeCycleObject_var(pair.hTarget)->remove(), S_OK);
  }
  EXPECT_EQ(following, 11);
}

TEST_F(VelRshParentShaderEventsTagsTest, EveryWordOfTheVocabulary_LetsItsOwnClassesTakeAValueOverAtAConnection) {
  for (const auto& follower : followers) {
    const Pair pair = MakePair(follower.startUp);
    EXPECT_EQ(Write(pair.hSource, 2), S_OK);
    for (const char* word : allWords) {
      Tag("Above", "source", word);
      Tag("Below", "target", word);
      EXPECT_TRUE(SUCCEEDED(Write(pair.hTarget, 1)));
      EXPECT_EQ(hAbove_->AddNode(hBelow_.Get()), S_OK);
      Connect();
      EXPECT_EQ(NumberOf(pair.hTarget), IsSet(follower.words, word) ? 2 : 1) << follower.startUp << " " << word;
      EXPECT_EQ(hLink_->SetConnection(nullptr), S_OK);
    }
    EXPECT_EQ(LifeCycleObject_var(pair.hSource)->remove(), S_OK);
    EXPECT_EQ(LifeCycleObject_var(pair.hTarget)->remove(), S_OK);
  }
}

TEST_F(VelRshParentShaderEventsTagsTest, SeveralTags_AreCompared) {
  const struct {
    const char* startUp;
    const char* above;
    const char* below;
    bool follows;
  } cases[] = {{"VelRmaBoolean", "repeat_u", "flip_v repeat_u", true},
               {"VelRmaBoolean", "flip_u", "flip_v repeat_u", false},
               {"VelRmaBoolean", "flip_u flip_v", "repeat_v flip_v", true},
               {"VelRmaBoolean", "diffuse flip_u", "diffuse", false},
               {"VelRmaBoolean", "diffuse flip_u", "diffuse flip_v", false},
               {"VelRmaBoolean", "scale_u", "scale_u", false},
               {"VelRmaBoolean", "", "flip_u", false},
               {"VelRmaBoolean", "flip_u", "", false},
               {"VelRmaInteger", "mapping projector-function", "projector-function mapping-behavior", true},
               {"VelRmaInteger", "mapping mapping-behavior", "mapping projector-function", false},
               {"VelRmaScalar", "angle scale_u", "offset_v angle", true},
               {"VelRmaScalar", "scale offset angle", "scale offset scale_u", false},
               {"VelRmaScalar", "flip_u", "flip_u", false}};
  Connect();
  for (const auto& test : cases) {
    const Pair pair = MakePair(test.startUp);
    Tag("Above", "source", test.above);
    Tag("Below", "target", test.below);
    EXPECT_EQ(Write(pair.hTarget, 1), S_OK);
    EXPECT_TRUE(SUCCEEDED(Write(pair.hSource, 1)));
    EXPECT_EQ(Write(pair.hSource, 2), S_OK);
    EXPECT_EQ(NumberOf(pair.hTarget), test.follows ? 2 : 1) << test.above << " / " << test.below;
    EXPECT_EQ(LifeCycleObject_var(pair.hSource)->remove(), S_OK);
    EXPECT_EQ(LifeCycleObject_var(pair.hTarget)->remove(), S_OK);
  }
}

/// At a connection the first tag of the order alone decides, even when nobody above has it.
TEST_F(VelRshParentShaderEventsTagsTest, Connection_GoesByTheFirstTagOfTheOrder) {
  for (const auto& follower : followers) {
    for (std::size_t i = 0; i < follower.words.size(); ++i) {
      for (std::size_t j = i + 1; j < follower.words.size(); ++j) {
        SCOPED_TRACE(follower.words[i] + " " + follower.words[j]);
        const VelIRshShader_var hAbove = MakeShader("Above");
        const VelIRshShader_var hBelow = MakeShader("Below");
        const VelIRshParameter_var hLater = Add(hAbove, "later", follower.startUp);
        const VelIRshParameter_var hFirst = Add(hAbove, "first", follower.startUp);
        const VelIRshParameter_var hLink = Add(hAbove, "link", "VelRmaColor");
        const VelIRshParameter_var hTarget = Add(hBelow, "target", follower.startUp);
        Tag("Above", "later", follower.words[j].c_str());
        Tag("Above", "first", follower.words[i].c_str());
        Tag("Below", "target", (follower.words[j] + " " + follower.words[i]).c_str());
        EXPECT_EQ(Write(hLater, 1), S_OK);
        EXPECT_EQ(Write(hFirst, 2), S_OK);
        EXPECT_EQ(Write(hTarget, 1), S_OK);
        EXPECT_EQ(hLink->SetConnection(hBelow.Get()), S_OK);
        EXPECT_EQ(NumberOf(hTarget), 2);
        EXPECT_EQ(hAbove->AddNode(hBelow.Get()), S_OK);
        EXPECT_EQ(hLink->SetConnection(nullptr), S_OK);
        Tag("Above", "first", "");
        EXPECT_EQ(Write(hTarget, 2), S_FALSE);
        EXPECT_EQ(hLink->SetConnection(hBelow.Get()), S_OK);
        EXPECT_EQ(NumberOf(hTarget), 2) << "the second tag is not tried";
      }
    }
  }
}

TEST_F(VelRshParentShaderEventsTagsTest, Connection_TakesTheFirstOfSeveralAbove) {
  const VelIRshParameter_var hFirst = Add(hAbove_, "angle", "VelRmaScalar");
  const VelIRshParameter_var hSecond = Add(hAbove_, "angle", "VelRmaScalar");
  const VelIRshParameter_var hTarget = Add(hBelow_, "angle", "VelRmaScalar");
  Tag("Default", "angle", "angle");
  EXPECT_EQ(Write(hFirst, 1), S_OK);
  EXPECT_EQ(Write(hSecond, 2), S_OK);
  Connect();
  EXPECT_EQ(NumberOf(hTarget), 1);
}

TEST_F(VelRshParentShaderEventsTagsTest, AnotherTypeAbove_IsNotFollowed) {
  Tag("Default", "p", "angle mapping-behavior flip_u");
  const char* startUps[] = {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar"};
  Connect();
  for (const char* above : startUps) {
    for (const char* below : startUps) {
      const VelIRshParameter_var hSource = Add(hAbove_, "p", above);
      const VelIRshParameter_var hTarget = Add(hBelow_, "p", below);
      EXPECT_EQ(Write(hTarget, 1), S_OK);
      EXPECT_TRUE(SUCCEEDED(Write(hSource, 1)));
      EXPECT_EQ(Write(hSource, 2), S_OK);
      EXPECT_EQ(NumberOf(hTarget), above == below ? 2 : 1) << above << " " << below;
      EXPECT_EQ(LifeCycleObject_var(hSource)->remove(), S_OK);
      EXPECT_EQ(LifeCycleObject_var(hTarget)->remove(), S_OK);
    }
  }
}

/// The other classes that hear their shader forward what they hear, but follow nothing.
TEST_F(VelRshParentShaderEventsTagsTest, OtherClasses_FollowNothing) {
  const float above[4] = {0.1F, 0.2F, 0.3F, 0.4F};
  const struct {
    const char* startUp;
    std::uint32_t count;
  } cases[] = {{"VelRmaColor", 4}, {"VelRmaVector", 3}};
  Tag("Default", "p", "angle scale_u scale offset flip mapping-behavior");
  Connect();
  for (const auto& test : cases) {
    const VelIRshParameter_var hSource = Add(hAbove_, "p", test.startUp);
    const VelIRshParameter_var hTarget = Add(hBelow_, "p", test.startUp);
    EXPECT_EQ(hSource->SetValue(VelRshValueSource(above, test.count)), S_OK);
    float below[4] = {};
    static_cast<void>(hTarget->GetValue(VelRshValueTarget(below, test.count)));
    EXPECT_EQ(below[0], 0.0F) << test.startUp;
  }
  const VelUnicodeString text("text");
  EXPECT_EQ(Add(hAbove_, "p", "VelRmaString")->SetValue(&text), S_OK);
}

}  // namespace
