// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshMappingReading_test.cpp What the readers of two components have in common, for each of them.
#include <limits>

#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingFlip.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingOffset.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingRatio.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshReaderMappingScale.h"
#include "platform/base/VelFormat.h"
#include "tests/RenderingShader/services/MappingReaderTest.h"

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
const std::string longest(254, 'n');

template <class Reader>
VelRshMappingPair ReadWith(const VelIRshShader& iShader, const VelRshMappingPair& iFallBack) {
  return Reader()(iShader, iFallBack);
}

struct ReaderCase {
  const char* name;
  VelRshMappingPair (*read)(const VelIRshShader& iShader, const VelRshMappingPair& iFallBack);
  Texts first;              ///< What is told before the keys are looked up.
  const char* parseError;   ///< With its level, up to the key.
  VelRshMappingPair uAndV;  ///< What the parameters "u" and "v" of AddUAndV give.
  const char* uAndVText;
  const char* uText;  ///< What "u" and no second parameter give.
  const char* vText;
};

const ReaderCase readers[] = {
    {"Flip",
     &ReadWith<VelRshReaderMappingFlip>,
     {},
     "E Error while parsing configuflipn { catalog = MappedType, key = ",
     {-1.0, 1.0},
     "( -1.000, 1.000 )",
     "( -1.000, 1.000 )",
     "( 1.000, 1.000 )"},
    {"Offset",
     &ReadWith<VelRshReaderMappingOffset>,
     {"I Default mode { multiplier = ( 1.000, 1.000 ) }"},
     "E Error while parsing configuration { catalog = MappedType, key = ",
     {2.5, 0.0625},
     "( 2.500, 0.062 )",
     "( 2.500, 1.000 )",
     "( 1.000, 0.062 )"},
    {"Ratio",
     &ReadWith<VelRshReaderMappingRatio>,
     {},
     "E Error while parsing configuration { catalog = MappedType, key = ",
     {2.5, 0.0625},
     "( 2.500, 0.062 )",
     "( 2.500, 1.000 )",
     "( 1.000, 0.062 )"},
    {"Scale",
     &ReadWith<VelRshReaderMappingScale>,
     {"E R418 mode could not fetch unit and VelIRmaDimension2D", "E VelIPlasticMaterial not accessible"},
     "E Error while parsing configuration { catalog = MappedType, key = ",
     {2.5, 0.0625},
     "( 2.500, 0.062 )",
     "( 2.500, 1.000 )",
     "( 1.000, 0.062 )"},
};

class VelRshMappingReadingTest : public MappingReaderTest, public ::testing::WithParamInterface<ReaderCase> {
 protected:
  void SetUp() override {
    MappingReaderTest::SetUp();
    name_ = GetParam().name;
  }

  void AddUAndV() {
    if (name_ == "Flip") {
      AddBoolean("u", true);
      AddBoolean("v", false);
    } else {
      AddScalar("u", 2.5F);
      AddScalar("v", 0.0625F);
    }
  }
  void ConfigureNames(const std::string& iNames, const char* iConfiguration = "MappedType") {
    Configure(VelString("Mapping" + name_ + ".ParameterValue"), VelString(iNames), iConfiguration);
  }
  void ConfigureDefault(const std::string& iValue, const char* iConfiguration = "MappedType") {
    Configure(VelString("Mapping" + name_ + ".DefaultValue"), VelString(iValue), iConfiguration);
  }
  VelRshMappingPair Read() { return GetParam().read(*hShader_, {0.25, -3.0}); }

  /// Expects lines, in order, after those that are told before the keys are looked up.
  void ExpectTold(const Texts& iLines) {
    Texts expected = GetParam().first;
    expected.insert(expected.end(), iLines.begin(), iLines.end());
    EXPECT_EQ(Told("VelRshReaderMapping" + name_), expected);
  }
  void ExpectFallBack() {
    EXPECT_EQ(Read(), VelRshMappingPair(0.25, -3.0));
    ExpectTold({"I Mapping " + name_ + " fall back to ( 0.250, -3.000 )"});
  }
  void ExpectUAndV(const std::string& iFirst = "u", const std::string& iSecond = "v") {
    EXPECT_EQ(Read(), GetParam().uAndV);
    ExpectTold({"I First parameter found { name = " + iFirst + " }",
                "I Second parameter found { name = " + iSecond + " }",
                "I Mapping " + name_ + " read as " + GetParam().uAndVText});
  }

  std::string name_;
};

INSTANTIATE_TEST_SUITE_P(Readers, VelRshMappingReadingTest, ::testing::ValuesIn(readers),
                         [](const auto& iCase) { return iCase.param.name; });

TEST_P(VelRshMappingReadingTest, NoKeys_GiveTheFallBackUnchanged) { ExpectFallBack(); }

TEST_P(VelRshMappingReadingTest, EmptyKeys_AreNone) {
  ConfigureNames("");
  ConfigureDefault("");
  ExpectFallBack();
}

TEST_P(VelRshMappingReadingTest, KeysOfOtherReaders_AreNotLookedUp) {
  for (const ReaderCase& other : readers) {
    if (other.name == name_) continue;
    Configure(VelString("Mapping" + std::string(other.name) + ".DefaultValue"), "7 7");
    Configure(VelString("Mapping" + std::string(other.name) + ".ParameterValue"), "u");
  }
  Configure("MappingRotation.DefaultValue", "7");
  ExpectFallBack();
}

TEST_P(VelRshMappingReadingTest, Default_IsTwoNumbers) {
  const struct {
    const char* text;
    VelRshMappingPair values;
    const char* told;
    bool isComplete;
  } cases[] = {
      {"0.5 -1.25e1", {0.5, -12.5}, "( 0.500, -12.500 )", true},
      {" \t\r\n\v\f2\n3 ", {2.0, 3.0}, "( 2.000, 3.000 )", true},
      {"2 3 4", {2.0, 3.0}, "( 2.000, 3.000 )", true},
      {"2 3x", {2.0, 3.0}, "( 2.000, 3.000 )", true},
      {"1.5 2.5", {1.5, 2.5}, "( 1.500, 2.500 )", true},
      {"0x1p4 -0X.8", {16.0, -0.5}, "( 16.000, -0.500 )", true},
      {"inf -Infinity", {infinite, -infinite}, "( inf, -inf )", true},
      {"1e999 1e-999", {infinite, 0.0}, "( inf, 0.000 )", true},
      {"0.1 0.2", {0.1, 0.2}, "( 0.100, 0.200 )", true},
      {"2", {2.0, 1.0}, "( 2.000, 1.000 )", false},
      {"2 x", {2.0, 1.0}, "( 2.000, 1.000 )", false},
      {"2x 3", {2.0, 1.0}, "( 2.000, 1.000 )", false},
      {"x 2", {1.0, 1.0}, "( 1.000, 1.000 )", false},
      {"1,5", {1.0, 1.0}, "( 1.000, 1.000 )", false},
      {"3,5 2,5", {3.0, 1.0}, "( 3.000, 1.000 )", false},
      {" \t", {1.0, 1.0}, "( 1.000, 1.000 )", false},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.text);
    ConfigureDefault(test.text);
    EXPECT_EQ(Read(), test.values);
    ExpectTold({(test.isComplete ? "I Mapping " : "E Mapping ") + name_ + " defaulted to " + test.told});
  }
}

TEST_P(VelRshMappingReadingTest, TwoNames_GiveAComponentEach) {
  AddUAndV();
  for (const char* names : {"u v", " \tu\r\n\v\fv ", "u v u"}) {
    SCOPED_TRACE(names);
    ConfigureNames(names);
    ExpectUAndV();
  }
}

TEST_P(VelRshMappingReadingTest, OneName_ServesBothComponents) {
  AddUAndV();
  ConfigureNames("  u\n");
  const double u = GetParam().uAndV.first;
  EXPECT_EQ(Read(), VelRshMappingPair(u, u));
  ExpectTold({"I First parameter found { name = u }", "I Second parameter found { name = u }",
              "I " + VelFormat::ToText("Mapping %s read as ( %.3lf, %.3lf )", name_, u, u)});
}

TEST_P(VelRshMappingReadingTest, Names_ComeBeforeTheDefault) {
  AddUAndV();
  ConfigureDefault("7 8");
  ConfigureNames("u v");
  ExpectUAndV();
  ConfigureNames("missing");
  EXPECT_EQ(Read(), VelRshMappingPair(1.0, 1.0)) << "also when there are no such parameters";
}

TEST_P(VelRshMappingReadingTest, EmptyNames_LeaveTheDefault) {
  ConfigureDefault("7 8");
  ConfigureNames("");
  EXPECT_EQ(Read(), VelRshMappingPair(7.0, 8.0));
  ExpectTold({"I Mapping " + name_ + " defaulted to ( 7.000, 8.000 )"});
}

TEST_P(VelRshMappingReadingTest, WhiteSpaceInsteadOfNames_TellsTheFallBackAndReadsOnes) {
  Add(hShader_, "", "VelRmaScalar");
  ConfigureDefault("7 8");
  ConfigureNames(" \t ");
  EXPECT_EQ(Read(), VelRshMappingPair(1.0, 1.0));
  ExpectTold({GetParam().parseError + ("Mapping" + name_) + ".ParameterValue, value =  \t  }",
              "I Mapping " + name_ + " fall back to ( 0.250, -3.000 )", "E First parameter found { name =  }",
              "E Second parameter found { name =  }", "I Mapping " + name_ + " read as ( 1.000, 1.000 )"});
}

TEST_P(VelRshMappingReadingTest, MissingParameters_AreErrorsAndOnes) {
  AddUAndV();
  const auto& [u, v] = GetParam().uAndV;
  ConfigureNames("u w");
  EXPECT_EQ(Read(), VelRshMappingPair(u, 1.0));
  ExpectTold({"I First parameter found { name = u }", "E Second parameter found { name = w }",
              "I Mapping " + name_ + " read as " + GetParam().uText});
  ConfigureNames("w v");
  EXPECT_EQ(Read(), VelRshMappingPair(1.0, v));
  ExpectTold({"E First parameter found { name = w }", "I Second parameter found { name = v }",
              "I Mapping " + name_ + " read as " + GetParam().vText});
  ConfigureNames("U");
  EXPECT_EQ(Read(), VelRshMappingPair(1.0, 1.0)) << "case counts";
  ExpectTold({"E First parameter found { name = U }", "E Second parameter found { name = U }",
              "I Mapping " + name_ + " read as ( 1.000, 1.000 )"});
}

TEST_P(VelRshMappingReadingTest, LongNames_AreCutAndTheRestIsTheNextName) {
  AddUAndV();
  if (name_ == "Flip") AddBoolean(longest.c_str(), true);
  if (name_ != "Flip") AddScalar(longest.c_str(), 2.5F);
  ConfigureNames(longest + " v");
  ExpectUAndV(longest, "v");
  ConfigureNames(longest + "v");
  ExpectUAndV(longest, "v");
  ConfigureNames("u " + longest + "v");
  EXPECT_EQ(Read().second, GetParam().uAndV.first) << "what is cut off the second name is ignored";
}

TEST_P(VelRshMappingReadingTest, FirstParameterOfAName_Counts) {
  AddUAndV();
  Add(hShader_, "u", "VelRmaVoid");
  ConfigureNames("u v");
  ExpectUAndV();
}

TEST_P(VelRshMappingReadingTest, Keys_AreInheritedOneByOne) {
  AddUAndV();
  EXPECT_EQ(VelRbaConfiguration::SetParent("MappedType", "Above"), S_OK);
  ConfigureDefault("2 3", "Default");
  EXPECT_EQ(Read(), VelRshMappingPair(2.0, 3.0));
  ConfigureDefault("4 5", "Above");
  EXPECT_EQ(Read(), VelRshMappingPair(4.0, 5.0));
  ConfigureDefault("6 7");
  EXPECT_EQ(Read(), VelRshMappingPair(6.0, 7.0));
  traces_.Clear();
  ConfigureNames("u v", "Default");
  ExpectUAndV();
  ConfigureNames("", "Above");
  EXPECT_EQ(Read(), VelRshMappingPair(6.0, 7.0)) << "an empty key hides those above";
}

TEST_P(VelRshMappingReadingTest, ShaderWithoutAType_HasNoConfiguration) {
  ConfigureDefault("2 3", "Default");
  ConfigureNames("u", "Default");
  hShader_ = MakeShader("");
  ExpectFallBack();
}

TEST_P(VelRshMappingReadingTest, ClosedShader_GivesTheFallBack) {
  ConfigureDefault("2 3");
  ConfigureNames("u v");
  AddUAndV();
  EXPECT_EQ(LifeCycleObject_var(hShader_)->remove(), S_OK);
  ExpectFallBack();
}

/// Of what they read, readers other than that of flips make a scalar.
TEST_P(VelRshMappingReadingTest, ValuesOfOtherKinds_AreScalars) {
  if (name_ == "Flip") return;
  const float color[] = {0.25F, 0.5F, 0.75F, 1.0F};
  AddScalar("tenth", 0.1F);
  AddValued("color", "VelRmaColor", {color, 4});
  AddInteger("integer", 7);
  AddBoolean("boolean", true);
  Add(hShader_, "unvaluated", "VelRmaScalar");
  ConfigureNames("tenth color");
  EXPECT_EQ(Read(), VelRshMappingPair(static_cast<double>(0.1F), 0.5)) << "in single precision";
  ConfigureNames("integer boolean");
  EXPECT_EQ(Read(), VelRshMappingPair(0.0, 0.0));
  ConfigureNames("unvaluated missing");
  EXPECT_EQ(Read(), VelRshMappingPair(0.0, 1.0));
}

}  // namespace
