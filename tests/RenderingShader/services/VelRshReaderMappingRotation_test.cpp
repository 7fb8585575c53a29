// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingRotation_test.cpp The angle of a texture: one name, one number.
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingRotation.h"

#include <limits>

#include "tests/RenderingShader/services/MappingReaderTest.h"

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr const char* names = "MappingRotation.ParameterValue";
constexpr const char* defaultValue = "MappingRotation.DefaultValue";

class VelRshReaderMappingRotationTest : public MappingReaderTest {
 protected:
  double Read() { return VelRshReaderMappingRotation()(*hShader_, 0.75); }
  Texts Told() { return MappingReaderTest::Told("VelRshReaderMappingRotation"); }
};

TEST_F(VelRshReaderMappingRotationTest, NoKeys_GiveTheFallBack) {
  const Texts told{"I Mapping Rotation fall back to ( 0.750 )"};
  EXPECT_EQ(Read(), 0.75);
  EXPECT_EQ(Told(), told);
  Configure(names, "");
  Configure(defaultValue, "");
  EXPECT_EQ(Read(), 0.75) << "empty keys are none";
  EXPECT_EQ(Told(), told);
}

TEST_F(VelRshReaderMappingRotationTest, Default_IsOneNumber) {
  const struct {
    const char* text;
    double value;
    const char* told;
  } cases[] = {
      {"0.5", 0.5, "I Mapping Rotation defaulted to ( 0.500 )"},
      {" -2 x", -2.0, "I Mapping Rotation defaulted to ( -2.000 )"},
      {"3 4", 3.0, "I Mapping Rotation defaulted to ( 3.000 )"},
      {"1.5", 1.5, "I Mapping Rotation defaulted to ( 1.500 )"},
      {"2,5", 2.0, "I Mapping Rotation defaulted to ( 2.000 )"},
      {"0x.8", 0.5, "I Mapping Rotation defaulted to ( 0.500 )"},
      {"-inf", -infinite, "I Mapping Rotation defaulted to ( -inf )"},
      {"0.1", 0.1, "I Mapping Rotation defaulted to ( 0.100 )"},
      {"x", 1.0, "E Mapping Rotation defaulted to ( 1.000 )"},
      {" \t", 1.0, "E Mapping Rotation defaulted to ( 1.000 )"},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.text);
    Configure(defaultValue, test.text);
    EXPECT_EQ(Read(), test.value);
    EXPECT_EQ(Told(), Texts{test.told});
  }
}

TEST_F(VelRshReaderMappingRotationTest, Name_ComesBeforeTheDefault) {
  AddScalar("angle", 0.1F);
  Configure(defaultValue, "7");
  for (const char* text : {"angle", " angle other"}) {
    SCOPED_TRACE(text);
    Configure(names, text);
    EXPECT_EQ(Read(), static_cast<double>(0.1F));
    EXPECT_EQ(Told(), (Texts{"I Parameter found { name = angle }", "I Mapping Rotation read as ( 0.100 )"}));
  }
}

TEST_F(VelRshReaderMappingRotationTest, MissingParameter_IsAnErrorAndOne) {
  Configure(defaultValue, "7");
  Configure(names, "angle");
  EXPECT_EQ(Read(), 1.0);
  EXPECT_EQ(Told(), (Texts{"E Parameter found { name = angle }", "I Mapping Rotation read as ( 1.000 )"}));
}

TEST_F(VelRshReaderMappingRotationTest, WhiteSpaceInsteadOfAName_TellsTheFallBackAndReadsOne) {
  Add(hShader_, "", "VelRmaScalar");
  Configure(names, " \n");
  EXPECT_EQ(Read(), 1.0);
  EXPECT_EQ(Told(), (Texts{"E Error while parsing configuration { catalog = MappedType, key = "
                           "MappingRotation.ParameterValue, value =  \n }",
                           "I Mapping Rotation fall back to ( 0.750 )", "E Parameter found { name =  }",
                           "I Mapping Rotation read as ( 1.000 )"}));
}

TEST_F(VelRshReaderMappingRotationTest, LongName_IsCut) {
  const std::string longest(254, 'n');
  AddScalar(longest.c_str(), 2.5F);
  Configure(names, VelString(longest + "n"));
  EXPECT_EQ(Read(), 2.5);
  EXPECT_EQ(Told(), (Texts{"I Parameter found { name = " + longest + " }", "I Mapping Rotation read as ( 2.500 )"}));
}

TEST_F(VelRshReaderMappingRotationTest, Keys_AreInherited) {
  Configure(defaultValue, "2", "Default");
  EXPECT_EQ(Read(), 2.0);
  EXPECT_EQ(VelRbaConfiguration::SetParent("MappedType", "Above"), S_OK);
  Configure(defaultValue, "3", "Above");
  EXPECT_EQ(Read(), 3.0);
  EXPECT_EQ(VelRshReaderMappingRotation()(*MakeShader("Other"), 0.75), 2.0);
  EXPECT_EQ(VelRshReaderMappingRotation()(*MakeShader(""), 0.75), 0.75) << "without a type there is no configuration";
}

TEST_F(VelRshReaderMappingRotationTest, ValuesOfOtherKinds_AreScalars) {
  const float color[] = {0.25F, 0.5F, 0.75F, 1.0F};
  AddValued("color", "VelRmaColor", {color, 4});
  AddInteger("integer", 7);
  Configure(names, "color");
  EXPECT_EQ(Read(), 0.5);
  Configure(names, "integer");
  EXPECT_EQ(Read(), 0.0);
}

}  // namespace
