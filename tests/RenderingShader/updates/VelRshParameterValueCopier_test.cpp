// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterValueCopier_test.cpp What is copied from one parameter into another, and in which order.
#include "RenderingShader/VelRshModel.m/src/updates/VelRshParameterValueCopier.h"

#include <algorithm>
#include <limits>

#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/updates/fixtures/FakeParameter.h"

namespace {

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

/// The types whose value is copied, and how many elements of it are read and written.
struct Kind {
  const char* startUp;
  int count;
  bool isComparable;  ///< Whether an equal value is not written.
};

constexpr Kind kinds[] = {{"VelRmaBoolean", 1, true}, {"VelRmaInteger", 1, true}, {"VelRmaScalar", 1, true},
                          {"VelRmaString", 1, true},  {"VelRmaColor", 4, false},  {"VelRmaVector", 3, false}};

class VelRshParameterValueCopierTest : public RshModelTest {
 protected:
  void MakeFakes(const char* iSourceType, const char* iTargetType) {
    notes_.clear();
    hSource_ = FakeParameter::Create("source", iSourceType, notes_);
    hTarget_ = FakeParameter::Create("target", iTargetType, notes_);
    Fill(FakeParameter::Of(hSource_));
  }
  void TearDown() override {
    hSource_ = hTarget_ = nullptr;
    RshModelTest::TearDown();
  }

  static void Fill(FakeParameter& ioParameter) {
    ioParameter.boolean = true;
    ioParameter.integer = -7;
    ioParameter.reals = {0.25F, -2.0F, 3.0F, 0.5F};
    ioParameter.text = "wood;stone";
  }

  bool Copy() const { return VelRshParameterValueCopier()(*hSource_, *hTarget_); }

  /// @return the reads and the write of a value, each of so many elements
  static Texts Notes(int iCount, bool iIsWritten) {
    const std::string count = std::to_string(iCount);
    Texts notes{"target read of " + count, "source read of " + count};
    if (iIsWritten) notes.push_back("target write of " + count);
    return notes;
  }

  const FakeParameterBindings bindings_;
  FakeParameter::Notes notes_;
  VelIRshParameter_var hSource_;
  VelIRshParameter_var hTarget_;
};

TEST_F(VelRshParameterValueCopierTest, AnotherValue_IsWrittenAfterTargetAndSourceWereRead) {
  for (const Kind& kind : kinds) {
    SCOPED_TRACE(kind.startUp);
    MakeFakes(kind.startUp, kind.startUp);
    EXPECT_TRUE(Copy());
    EXPECT_EQ(notes_, Notes(kind.count, true));
  }
}

TEST_F(VelRshParameterValueCopierTest, TheWholeValue_IsCopied) {
  for (const Kind& kind : kinds) {
    SCOPED_TRACE(kind.startUp);
    MakeFakes(kind.startUp, kind.startUp);
    ASSERT_TRUE(Copy());
    const FakeParameter& target = FakeParameter::Of(hTarget_);
    const std::string type = kind.startUp;
    EXPECT_EQ(target.boolean, type == "VelRmaBoolean");
    EXPECT_EQ(target.integer, type == "VelRmaInteger" ? -7 : 0);
    EXPECT_EQ(target.text, type == "VelRmaString" ? "wood;stone" : "");
    std::array<float, 4> reals{};
    if (type == "VelRmaScalar") reals = {0.25F};
    if (type == "VelRmaVector") reals = {0.25F, -2.0F, 3.0F};
    if (type == "VelRmaColor") reals = {0.25F, -2.0F, 3.0F, 0.5F};
    EXPECT_EQ(target.reals, reals);
  }
}

TEST_F(VelRshParameterValueCopierTest, AnEqualValue_IsWrittenForColoursAndVectorsAlone) {
  for (const Kind& kind : kinds) {
    SCOPED_TRACE(kind.startUp);
    MakeFakes(kind.startUp, kind.startUp);
    Fill(FakeParameter::Of(hTarget_));
    EXPECT_TRUE(Copy());
    EXPECT_EQ(notes_, Notes(kind.count, !kind.isComparable));
  }
}

TEST_F(VelRshParameterValueCopierTest, ScalarsAreComparedAsNumbers) {
  MakeFakes("VelRmaScalar", "VelRmaScalar");
  FakeParameter::Of(hSource_).reals[0] = FakeParameter::Of(hTarget_).reals[0] = nan;
  EXPECT_TRUE(Copy());
  EXPECT_EQ(notes_, Notes(1, true)) << "not a number is no other";
  notes_.clear();
  FakeParameter::Of(hSource_).reals[0] = -0.0F;
  FakeParameter::Of(hTarget_).reals[0] = 0.0F;
  EXPECT_TRUE(Copy());
  EXPECT_EQ(notes_, Notes(1, false)) << "zero is zero";
}

TEST_F(VelRshParameterValueCopierTest, ReadThatFails_IsTheLastThingDone) {
  for (const Kind& kind : kinds) {
    SCOPED_TRACE(kind.startUp);
    MakeFakes(kind.startUp, kind.startUp);
    FakeParameter::Of(hTarget_).getCode = E_FAIL;
    EXPECT_FALSE(Copy());
    EXPECT_EQ(notes_, Texts{"target read of " + std::to_string(kind.count)});
    notes_.clear();
    FakeParameter::Of(hTarget_).getCode = S_OK;
    FakeParameter::Of(hSource_).getCode = E_FAIL;
    EXPECT_FALSE(Copy());
    EXPECT_EQ(notes_, Notes(kind.count, false));
  }
}

TEST_F(VelRshParameterValueCopierTest, Write_SucceedsByItsCode) {
  struct Case {
    HRESULT code;
    bool isCopied;
  };
  for (const Kind& kind : kinds) {
    for (const Case& test : {Case{S_OK, true}, Case{S_FALSE, true}, Case{E_FAIL, false}, Case{E_NOINTERFACE, false}}) {
      SCOPED_TRACE(kind.startUp);
      MakeFakes(kind.startUp, kind.startUp);
      FakeParameter::Of(hTarget_).setCode = test.code;
      EXPECT_EQ(Copy(), test.isCopied);
      EXPECT_EQ(notes_, Notes(kind.count, true));
    }
  }
}

TEST_F(VelRshParameterValueCopierTest, Textures_AreAskedForNothingAndNeverWritten) {
  for (const HRESULT code : {S_OK, E_FAIL}) {
    MakeFakes("VelRmaTexture", "VelRmaTexture");
    FakeParameter::Of(hTarget_).getCode = FakeParameter::Of(hSource_).getCode = code;
    EXPECT_TRUE(Copy());
    EXPECT_EQ(notes_, (Texts{"target read of a document into nothing", "source read of a document into nothing"}));
  }
}

TEST_F(VelRshParameterValueCopierTest, TypesWithoutACopy_AreNeitherReadNorWritten) {
  for (const char* type : {"VelRmaVoid", "VelRmaMatrix", "VelRmaLightProfile", "VelRmaParameter", ""}) {
    SCOPED_TRACE(type);
    MakeFakes(type, type);
    EXPECT_FALSE(Copy());
    EXPECT_EQ(notes_, Texts{});
  }
  MakeFakes("VelRmaScalar", "VelRmaScalar");
  FakeParameter::Of(hSource_).type.code = FakeParameter::Of(hTarget_).type.code = E_FAIL;
  EXPECT_FALSE(Copy());
  EXPECT_EQ(notes_, Texts{});
}

TEST_F(VelRshParameterValueCopierTest, TwoTypes_AreNeitherReadNorWritten) {
  const char* const types[] = {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar",  "VelRmaString", "VelRmaColor",
                               "VelRmaVector",  "VelRmaTexture", "VelRmaUnknown", "VelRmaVoid"};
  for (const char* source : types) {
    for (const char* target : types) {
      if (source == target) continue;
      SCOPED_TRACE(std::string(source) + " into " + target);
      MakeFakes(source, target);
      EXPECT_FALSE(Copy());
      EXPECT_EQ(notes_, Texts{});
    }
  }
}

TEST_F(VelRshParameterValueCopierTest, UnvaluatedParameters_AreNotCopied) {
  for (const char* type : {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaString"}) {
    SCOPED_TRACE(type);
    MakeFakes(type, type);
    const VelIRshParameter_var hUnvaluated(Make(type));
    EXPECT_FALSE(VelRshParameterValueCopier()(*hSource_, *hUnvaluated));
    EXPECT_EQ(notes_, Texts{}) << "the source is not read any more";
    hSource_ = hUnvaluated;
    EXPECT_FALSE(Copy());
    EXPECT_EQ(notes_, Texts{"target read of 1"});
  }
}

TEST_F(VelRshParameterValueCopierTest, ParametersOfTheCatalog_TakeTheValue) {
  const VelIRshParameter_var hColor(Make("VelRmaColor"));
  const VelIRshParameter_var hOther(Make("VelRmaColor"));
  const VelIRshParameter_var hScalar(Make("VelRmaScalar"));
  const float red[4] = {1.0F, 0.25F, 0.0F, 0.5F};
  const float half = 0.5F;
  ASSERT_EQ(hColor->SetValue(red), S_OK);
  ASSERT_EQ(hOther->SetValue({&half, 1}), E_FAIL);
  ASSERT_EQ(hScalar->SetValue(&half), S_OK);
  EXPECT_FALSE(VelRshParameterValueCopier()(*hColor, *hOther)) << "it has no value to compare";
  const float black[4] = {};
  ASSERT_TRUE(SUCCEEDED(hOther->SetValue(black)));
  EXPECT_TRUE(VelRshParameterValueCopier()(*hColor, *hOther));
  float read[4] = {};
  ASSERT_EQ(hOther->GetValue(read), S_OK);
  EXPECT_TRUE(std::equal(red, red + 4, read));
  EXPECT_FALSE(VelRshParameterValueCopier()(*hColor, *hScalar));
  EXPECT_FALSE(VelRshParameterValueCopier()(*hScalar, *hColor));
}

}  // namespace
