// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Tags_test.cpp The vocabulary of tags, and the tags that the configuration gives.
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "tests/RenderingShader/RshModelTest.h"

namespace {

using Tag = VelIRshParameterPrivate::Tag;
using Codes = std::vector<int>;

/// Written out by hand: configurations of the field depend on each row.
constexpr struct {
  const char* word;
  int code;
} vocabulary[] = {{"dpi", 0},
                  {"svggroup", 1},
                  {"bump", 2},
                  {"bump_type", 3},
                  {"tangent-space-normal", 4},
                  {"emissive", 5},
                  {"diffuse", 6},
                  {"specular", 7},
                  {"glossiness", 8},
                  {"anisotropy", 9},
                  {"anisotropyTurn", 10},
                  {"transparency", 11},
                  {"opacity", 12},
                  {"displacement", 13},
                  {"normal-convention", 14},
                  {"height", 15},
                  {"multiplier", 16},
                  {"additioner", 17},
                  {"alpha-mode", 18},
                  {"alpha-test", 19},
                  {"mapping", 20},
                  {"mapping-behavior", 21},
                  {"projector-function", 22},
                  {"scale", 23},
                  {"scale_u", 24},
                  {"scale_v", 25},
                  {"offset", 26},
                  {"offset_u", 27},
                  {"offset_v", 28},
                  {"flip", 29},
                  {"flip_u", 30},
                  {"flip_v", 31},
                  {"repeat", 32},
                  {"repeat_u", 33},
                  {"repeat_v", 34},
                  {"angle", 35}};

class VelRshParameterBaseTagsTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hShader_ = MakeShader("TaggedType");
    hParameter_ = Add(hShader_, "base", "VelRmaScalar");
  }
  void TearDown() override {
    hParameter_ = nullptr;
    hShader_ = nullptr;
    RshModelTest::TearDown();
  }

  static void SetTags(const char* iText) {
    EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("TaggedType", "base.Tag", iText)));
  }
  static HRESULT Has(const VelIRshParameter_var& iParameter, int iCode) {
    return VelIRshParameterPrivate_var(iParameter)->HasTag(static_cast<Tag>(iCode));
  }
  static Codes CodesOf(const VelIRshParameter_var& iParameter) {
    VelListVal<int> tags;
    tags.Append(99);
    EXPECT_EQ(VelIRshParameterPrivate_var(iParameter)->GetTags(tags), S_OK);
    Codes codes;
    for (int position = 1; position <= tags.Size(); ++position) codes.push_back(tags[position]);
    return codes;
  }

  void ExpectUnknown(std::size_t iCount, const char* iWord) {
    EXPECT_EQ(checks_.Failures().size(), iCount);
    for (const RecordedFailure& failure : checks_.Failures()) {
      EXPECT_EQ(failure.message, "Could not parse tag");
      EXPECT_EQ(failure.detail, iWord);
      EXPECT_EQ(failure.source, "RenderingShader/VelRshModel.m/src/VelRshParameterBase");
      EXPECT_EQ(failure.line, 209U);
      EXPECT_EQ(failure.kind, VelFailureKind::Check);
    }
    checks_.Clear();
  }

  VelIRshShader_var hShader_;
  VelIRshParameter_var hParameter_;
};

TEST_F(VelRshParameterBaseTagsTest, EveryWord_HasItsCodeAndNoOther) {
  int count = 0;
  for (const auto& row : vocabulary) {
    SetTags(row.word);
    EXPECT_EQ(CodesOf(hParameter_), Codes{row.code}) << row.word;
    for (int code = 0; code <= 36; ++code) {
      EXPECT_EQ(Has(hParameter_, code), code == row.code ? S_OK : E_FAIL) << row.word << " " << code;
    }
    EXPECT_EQ(row.code, count++);
  }
  EXPECT_EQ(count, 36);
}

TEST_F(VelRshParameterBaseTagsTest, Words_AreReadInOrderWithRepetitionsAndAnySeparators) {
  const struct {
    const char* text;
    Codes codes;
  } cases[] = {{"diffuse scale_u", {6, 24}},
               {"scale_u diffuse", {24, 6}},
               {"diffuse diffuse angle diffuse", {6, 6, 35, 6}},
               {"  diffuse\t \n scale_u  ", {6, 24}},
               {"", {}},
               {"   ", {}}};
  for (const auto& test : cases) {
    SetTags(test.text);
    EXPECT_EQ(CodesOf(hParameter_), test.codes) << test.text;
  }
}

TEST_F(VelRshParameterBaseTagsTest, Words_CountCaseAndNothingElse) {
  for (const char* word : {"Diffuse", "DIFFUSE", "diffuse,", "diffus", "diffuses", "scale-u"}) {
    SetTags(word);
    EXPECT_EQ(CodesOf(hParameter_), Codes{0}) << word;
    ExpectUnknown(1, word);
  }
}

TEST_F(VelRshParameterBaseTagsTest, UnknownWord_CountsAsDpiAndIsReportedEachTime) {
  SetTags("diffuse colour");
  EXPECT_EQ(CodesOf(hParameter_), (Codes{6, 0}));
  ExpectUnknown(1, "colour");
  EXPECT_EQ(CodesOf(hParameter_), (Codes{6, 0}));
  ExpectUnknown(1, "colour");
  EXPECT_EQ(Has(hParameter_, 0), S_OK);
  ExpectUnknown(1, "colour");
  EXPECT_EQ(Has(hParameter_, 24), E_FAIL);
  ExpectUnknown(1, "colour");
  // Looking stops at the first match, before the unknown word.
  EXPECT_EQ(Has(hParameter_, 6), S_OK);
  ExpectUnknown(0, "");
  SetTags("colour colour");
  EXPECT_EQ(CodesOf(hParameter_), (Codes{0, 0}));
  ExpectUnknown(2, "colour");
  EXPECT_EQ(Has(hParameter_, 0), S_OK);
  ExpectUnknown(1, "colour");
}

TEST_F(VelRshParameterBaseTagsTest, WithoutAnEntry_ThereAreNone) {
  EXPECT_EQ(CodesOf(hParameter_), Codes{});
  EXPECT_EQ(Has(hParameter_, 0), E_FAIL);
}

TEST_F(VelRshParameterBaseTagsTest, WithoutAShaderAbove_ThereAreNone) {
  EXPECT_EQ(VelRbaConfiguration::SetValue("Default", "free.Tag", "diffuse"), S_OK);
  const VelIRshParameter_var hFree(Make("VelRmaScalar"));
  EXPECT_EQ(hFree->SetName("free"), S_OK);
  EXPECT_EQ(CodesOf(hFree), Codes{});
  EXPECT_EQ(Has(hFree, 6), E_FAIL);
}

TEST_F(VelRshParameterBaseTagsTest, WithoutAName_HasTagIsUnexpectedAndThereAreNone) {
  const VelIRshParameter_var hNameless(Make("VelRmaScalar"));
  EXPECT_EQ(hShader_->AppendParameter(hNameless.Get()), S_OK);
  EXPECT_EQ(Has(hNameless, 0), E_UNEXPECTED);
  EXPECT_EQ(CodesOf(hNameless), Codes{});
}

TEST_F(VelRshParameterBaseTagsTest, Configuration_IsReadThroughItsHierarchyAndWhenItChanges) {
  EXPECT_EQ(VelRbaConfiguration::SetValue("Default", "base.Tag", "bump"), S_OK);
  EXPECT_EQ(CodesOf(hParameter_), Codes{2});
  EXPECT_EQ(VelRbaConfiguration::SetValue("Above", "base.Tag", "angle"), S_OK);
  EXPECT_EQ(VelRbaConfiguration::SetParent("TaggedType", "Above"), S_OK);
  EXPECT_EQ(CodesOf(hParameter_), Codes{35});
  SetTags("flip");
  EXPECT_EQ(CodesOf(hParameter_), Codes{29});
  EXPECT_EQ(Has(hParameter_, 29), S_OK);
  EXPECT_EQ(hParameter_->SetName("renamed"), S_OK);
  EXPECT_EQ(CodesOf(hParameter_), Codes{});
}

TEST_F(VelRshParameterBaseTagsTest, ClosedParameter_AnswersEFail) {
  SetTags("diffuse");
  const VelIRshParameterPrivate_var hPrivate(hParameter_);
  EXPECT_EQ(LifeCycleObject_var(hParameter_)->remove(), S_OK);
  EXPECT_EQ(hPrivate->HasTag(Tag::Diffuse), E_FAIL);
  VelListVal<int> tags;
  EXPECT_EQ(hPrivate->GetTags(tags), E_FAIL);
  EXPECT_TRUE(tags.IsEmpty());
}

TEST_F(VelRshParameterBaseTagsTest, ObjectThatIsNoParameterAnyMore_IsReported) {
  SetTags("diffuse");
  const VelIRshParameterPrivate_var hPrivate(hParameter_);
  ASSERT_EQ(hParameter_->SetName("renamed"), S_OK) << "so that nothing is remembered of its tags";
  const std::string dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelRshModel.dictionary";
  ASSERT_EQ(VelDictionary::Unload(dictionary), S_OK);
  EXPECT_EQ(hPrivate->HasTag(Tag::Diffuse), E_UNEXPECTED);
  VelListVal<int> tags;
  EXPECT_EQ(hPrivate->GetTags(tags), S_OK);
  EXPECT_TRUE(tags.IsEmpty());
  ASSERT_EQ(checks_.Failures().size(), 1U);
  const RecordedFailure failure = checks_.Failures()[0];
  checks_.Clear();
  EXPECT_EQ(failure.message, "VelIRshParameter not available");
  EXPECT_EQ(failure.expression, "hParameter");
  EXPECT_EQ(failure.source, "RenderingShader/VelRshModel.m/src/VelRshParameterBase");
  EXPECT_EQ(failure.line, 816U);
  EXPECT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
}

}  // namespace
