// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterValue_test.cpp Every conversion of the value of every type of parameter.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"

#include <bit>
#include <limits>

#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/parameters/fixtures/FakeParameterLayout.h"

namespace {

using Reader = VelRshReaderParameterValue;
using float3_t = Reader::float3_t;
using float4_t = Reader::float4_t;

static_assert(sizeof(float3_t) == 12 && sizeof(float4_t) == 16, "Packed: nothing between the floats");

/// What the six conversions give of one parameter.
struct Row {
  const char* startUp;
  bool boolean;
  std::int32_t integral;
  float scalar;
  float3_t packed3;
  float4_t packed4;
  const char* text;
};

class VelRshReaderParameterValueTest : public RshModelTest {
 protected:
  /// Gives a new parameter of a start-up a value; none to what has none.
  VelIRshParameter_var MakeValued(const std::string& iStartUp) {
    VelIRshParameter_var hParameter(Make(iStartUp.c_str()));
    HRESULT set = S_OK;
    if (iStartUp == "VelRmaBoolean") set = Set(hParameter, true);
    if (iStartUp == "VelRmaInteger") set = Set(hParameter, std::int32_t{-5});
    if (iStartUp == "VelRmaScalar") set = Set(hParameter, 0.5F);
    if (iStartUp == "VelRmaString") set = Set(hParameter, VelUnicodeString("words"));
    if (iStartUp == "VelRmaColor") set = SetReals<4>(hParameter, {1.0F, 2.0F, 6.0F, 8.0F});
    if (iStartUp == "VelRmaVector") set = SetReals<3>(hParameter, {4.0F, 5.0F, 6.0F});
    if (iStartUp == "VelRmaMatrix") set = SetReals<16>(hParameter, {1.0F, 2.0F, 3.0F, 4.0F});
    if (iStartUp == "VelRmaTexture" || iStartUp == "VelRmaLightProfile") {
      set = hParameter->SetValue(FakeDocument::Create().Get());
    }
    EXPECT_TRUE(SUCCEEDED(set)) << iStartUp;
    return hParameter;
  }

  template <class Value>
  static HRESULT Set(const VelIRshParameter_var& iParameter, const Value& iValue) {
    return iParameter->SetValue(&iValue);
  }

  template <std::size_t Count>
  static HRESULT SetReals(const VelIRshParameter_var& iParameter, const std::array<float, Count>& iValues) {
    return iParameter->SetValue({iValues.data(), iValues.size()});
  }

  static void ExpectRow(const VelIRshParameter_var& iParameter, const Row& iRow) {
    SCOPED_TRACE(iRow.startUp);
    const Reader read;
    EXPECT_EQ(read.asBoolean(*iParameter), iRow.boolean);
    EXPECT_EQ(read.asIntegral(*iParameter), iRow.integral);
    EXPECT_EQ(read.asScalar(*iParameter), iRow.scalar);
    EXPECT_EQ(read.asPackedScalar3(*iParameter), iRow.packed3);
    EXPECT_EQ(read.asPackedScalar4(*iParameter), iRow.packed4);
    EXPECT_EQ(read.asUnicodeText(*iParameter), iRow.text);
  }

  VelIRshParameter_var MakeColor(float iRed, float iGreen, float iBlue) {
    VelIRshParameter_var hColor(Make("VelRmaColor"));
    EXPECT_EQ(SetReals<4>(hColor, {iRed, iGreen, iBlue, 100.0F}), S_OK);
    return hColor;
  }

  const FakeDocumentBindings documents_;
};

// The order of the columns is that of Row.
constexpr Row valued[] = {
    {"VelRmaVoid", false, 0, 0.0F, {0.0F, 0.0F, 0.0F}, {0.0F, 0.0F, 0.0F, 0.0F}, ""},
    {"VelRmaBoolean", true, 0, 0.0F, {0.0F, 0.0F, 0.0F}, {0.0F, 0.0F, 0.0F, 0.0F}, ""},
    {"VelRmaColor", false, 0, 3.0F, {1.0F, 2.0F, 6.0F}, {1.0F, 2.0F, 6.0F, 8.0F}, ""},
    {"VelRmaScalar", false, 0, 0.5F, {0.5F, 0.5F, 0.5F}, {0.5F, 0.5F, 0.5F, 0.5F}, ""},
    {"VelRmaInteger", false, -5, 0.0F, {0.0F, 0.0F, 0.0F}, {0.0F, 0.0F, 0.0F, 0.0F}, ""},
    {"VelRmaString", false, 0, 0.0F, {0.0F, 0.0F, 0.0F}, {0.0F, 0.0F, 0.0F, 0.0F}, "words"},
    {"VelRmaVector", false, 0, 0.0F, {4.0F, 5.0F, 6.0F}, {4.0F, 5.0F, 6.0F, 1.0F}, ""},
    {"VelRmaTexture", false, 0, 0.0F, {0.0F, 0.0F, 0.0F}, {0.0F, 0.0F, 0.0F, 0.0F}, ""},
    {"VelRmaMatrix", false, 0, 0.0F, {0.0F, 0.0F, 0.0F}, {0.0F, 0.0F, 0.0F, 0.0F}, ""},
    {"VelRmaLightProfile", false, 0, 0.0F, {0.0F, 0.0F, 0.0F}, {0.0F, 0.0F, 0.0F, 0.0F}, ""},
};

TEST_F(VelRshReaderParameterValueTest, EachConversion_GivesTheValueOfItsTypesAndTheNeutralOneOfAllOthers) {
  for (const Row& row : valued) ExpectRow(MakeValued(row.startUp), row);
}

TEST_F(VelRshReaderParameterValueTest, EachConversion_OfWhatHasNoValue_IsNeutral) {
  for (const Row& row : valued) {
    const VelIRshParameter_var hParameter(Make(row.startUp));
    ExpectRow(hParameter, {row.startUp, false, 0, 0.0F, {}, {}, ""});
  }
}

TEST_F(VelRshReaderParameterValueTest, EachConversion_OfAClosedParameter_IsNeutral) {
  for (const Row& row : valued) {
    const VelIRshParameter_var hParameter = MakeValued(row.startUp);
    EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
    ExpectRow(hParameter, {row.startUp, false, 0, 0.0F, {}, {}, ""});
  }
}

TEST_F(VelRshReaderParameterValueTest, WhatALayoutSupplies_CountsUnlessItFails) {
  FakeParameterLayouts layouts;
  layouts.boolean = true;
  layouts.integer = 7;
  layouts.reals = {1.0F, 2.0F, 6.0F, 8.0F};
  layouts.text = "supplied";
  const Row supplied[] = {
      {"VelRmaBoolean", true, 0, 0.0F, {}, {}, ""},
      {"VelRmaColor", false, 0, 3.0F, {1.0F, 2.0F, 6.0F}, {1.0F, 2.0F, 6.0F, 8.0F}, ""},
      {"VelRmaScalar", false, 0, 1.0F, {1.0F, 1.0F, 1.0F}, {1.0F, 1.0F, 1.0F, 1.0F}, ""},
      {"VelRmaInteger", false, 7, 0.0F, {}, {}, ""},
      {"VelRmaString", false, 0, 0.0F, {}, {}, "supplied"},
      {"VelRmaVector", false, 0, 0.0F, {1.0F, 2.0F, 6.0F}, {1.0F, 2.0F, 6.0F, 1.0F}, ""},
  };
  for (const Row& row : supplied) {
    layouts.layoutCode = layouts.dialogCode = S_OK;
    ExpectRow(VelIRshParameter_var(Make(row.startUp)), row);
    layouts.layoutCode = layouts.dialogCode = E_FAIL;
    ExpectRow(VelIRshParameter_var(Make(row.startUp)), {row.startUp, false, 0, 0.0F, {}, {}, ""});
  }
}

TEST_F(VelRshReaderParameterValueTest, Boolean_IsReadAsItIs) {
  const VelIRshParameter_var hParameter(Make("VelRmaBoolean"));
  EXPECT_EQ(Set(hParameter, false), S_OK);
  EXPECT_FALSE(Reader().asBoolean(*hParameter));
  EXPECT_EQ(Set(hParameter, true), S_OK);
  EXPECT_TRUE(Reader().asBoolean(*hParameter));
}

TEST_F(VelRshReaderParameterValueTest, Integral_HasItsWholeRange) {
  const VelIRshParameter_var hParameter(Make("VelRmaInteger"));
  for (const std::int32_t value :
       {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_EQ(Set(hParameter, value), S_OK);
    EXPECT_EQ(Reader().asIntegral(*hParameter), value);
  }
}

TEST_F(VelRshReaderParameterValueTest, ScalarOfAColor_IsTheMeanToTheLastBit) {
  const struct {
    float red, green, blue;
    std::uint32_t bits;  ///< Of the mean.
  } cases[] = {
      {0.2F, 0.4F, 0.6F, std::bit_cast<std::uint32_t>(0.4F)},
      {0.0F, 0.0F, 0.0F, 0x00000000U},
      {1.0F, 0.0F, 0.0F, 0x3EAAAAABU},  // 1/3: alpha, 100, does not count.
      // 2^24 + 1 is 2^24 in single precision, so that whichever is added last decides.
      {16777216.0F, 1.0F, 1.0F, 0x4AAAAAABU},
      {1.0F, 16777216.0F, 1.0F, 0x4AAAAAABU},
      {1.0F, 1.0F, 16777216.0F, 0x4AAAAAACU},
      {1.0e38F, -1.0e38F, 3.0F, 0x3F800000U},
      // The sum overflows in single precision, not only the mean.
      {3.0e38F, 3.0e38F, -3.0e38F, 0x7F800000U},
      {-0.0F, -0.0F, -0.0F, 0x80000000U},
  };
  for (const auto& test : cases) {
    const float mean = Reader().asScalar(*MakeColor(test.red, test.green, test.blue));
    EXPECT_EQ(std::bit_cast<std::uint32_t>(mean), test.bits) << test.red << ", " << test.green << ", " << test.blue;
  }
  EXPECT_TRUE(Reader().asScalar(*MakeColor(0.0F, 0.0F, std::numeric_limits<float>::quiet_NaN())) != 0.0F);
}

TEST_F(VelRshReaderParameterValueTest, Text_IsKeptByteForByte) {
  const VelIRshParameter_var hParameter(Make("VelRmaString"));
  for (const char* text : {"", " x ", "\xC3\xA9\xE2\x82\xAC", "\\\\?\\C:\\a"}) {
    EXPECT_TRUE(SUCCEEDED(Set(hParameter, VelUnicodeString(text))));
    EXPECT_EQ(Reader().asUnicodeText(*hParameter), text);
  }
}

}  // namespace
