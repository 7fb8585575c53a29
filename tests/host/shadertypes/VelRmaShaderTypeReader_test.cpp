// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypeReader_test.cpp What each key of a file does to shaders of its type.
#include <array>
#include <fstream>
#include <iterator>

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/interfaces/VelIRshParameterDialog.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "platform/viewer/VelIRmaVisuTextureCoordinateTransformation.h"
#include "tests/host/shadertypes/ShaderTypesTest.h"

namespace {

using Tag = VelIRshParameterPrivate::Tag;

class VelRmaShaderTypeReaderTest : public ShaderTypesTest {
 protected:
  /// Starts a session with a type "Own" of the given lines, and makes a shader of it.
  VelIRshShader_var Make(const std::string& iRest) {
    WriteType("Own", Sound("Own", iRest));
    EXPECT_EQ(Start(), S_OK);
    VelIRshShader_var hShader = Create("Own");
    EXPECT_EQ(TakeErrors(), Texts{});
    return hShader;
  }

  static std::string Parameter(const std::string& iName, const std::string& iStartUp, const std::string& iRest) {
    return "[[parameter]]\nname = \"" + iName + "\"\ntype = \"" + iStartUp + "\"\n" + iRest + "\n";
  }
};

TEST_F(VelRmaShaderTypeReaderTest, AFileOfThreeLines_IsAType) {
  const VelIRshShader_var hShader = Make("");
  EXPECT_EQ(ParametersOf(hShader), Texts{});
  VelString output;
  std::uint32_t usage = 7;
  std::uint32_t version = 7;
  EXPECT_EQ(hShader->GetOutputType(output), S_OK);
  EXPECT_EQ(hShader->GetUsage(usage), S_OK);
  EXPECT_EQ(hShader->GetVersion(version), S_OK);
  EXPECT_EQ(output, "VelRmaColor");
  EXPECT_EQ(usage, 0U);
  EXPECT_EQ(version, 1U);
  EXPECT_EQ(OwnTypes(), Texts{"Own"});
  EXPECT_EQ(DisplayName("Own"), "Own");
}

TEST_F(VelRmaShaderTypeReaderTest, OutputUsageAndVersion_AreWrittenOnTheShader) {
  WriteType("Own", "type = \"Own\"\noutput = \"VelRmaVector\"\nversion = 0xFFFF_FFFF\nusage = 0x8000_0006\n");
  ASSERT_EQ(Start(), S_OK);
  const VelIRshShader_var hShader = Create("Own");
  VelString output;
  std::uint32_t usage = 0;
  std::uint32_t version = 0;
  EXPECT_EQ(hShader->GetOutputType(output), S_OK);
  EXPECT_EQ(hShader->GetUsage(usage), S_OK);
  EXPECT_EQ(hShader->GetVersion(version), S_OK);
  EXPECT_EQ(output, "VelRmaVector");
  EXPECT_EQ(usage, 0x80000006U);
  EXPECT_EQ(version, 0xFFFFFFFFU);
  VelListValVelString types;
  VelListValVelUnicodeString names;
  EXPECT_EQ(Manager().ListAvailableShaders(2, "VelRmaVector", types, names), S_OK);
  EXPECT_TRUE(types.Locate("Own") > 0);
  VelListValVelString others;
  static_cast<void>(Manager().ListAvailableShaders(8, "VelRmaVector", others, names));
  EXPECT_EQ(others.Locate("Own"), 0);
}

TEST_F(VelRmaShaderTypeReaderTest, AllTenStartUps_ComeInOrderWithTheirDefaults) {
  const VelIRshShader_var hShader = Make(
      Parameter("on", "VelRmaBoolean", "default = true") + Parameter("count", "VelRmaInteger", "default = -3") +
      Parameter("level", "VelRmaScalar", "default = 0.25") +
      Parameter("axis", "VelRmaVector", "default = [1, 2.5, -3]") +
      Parameter("tint", "VelRmaColor", "default = [0.5, 0.25, 1.0]") +
      Parameter("note", "VelRmaString", "default = \"gr\u00fcn und blau\"") +
      Parameter("rows", "VelRmaMatrix", "default = [[1, 2, 3, 4], [5, 6, 7, 8], [9, 10, 11, 12], [13, 14, 15, 16]]") +
      Parameter("flat", "VelRmaMatrix", "default = [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16]") +
      Parameter("tex", "VelRmaTexture", "") + Parameter("profile", "VelRmaLightProfile", "") +
      Parameter("sub", "VelRmaVoid", ""));
  EXPECT_EQ(ParametersOf(hShader),
            (Texts{"on: VelRmaBoolean", "count: VelRmaInteger", "level: VelRmaScalar", "axis: VelRmaVector",
                   "tint: VelRmaColor", "note: VelRmaString", "rows: VelRmaMatrix", "flat: VelRmaMatrix",
                   "tex: VelRmaTexture", "profile: VelRmaLightProfile", "sub: VelRmaVoid"}));
  for (const char* name : {"on", "count", "level", "axis", "tint", "note", "rows", "flat"}) {
    EXPECT_TRUE(HasOwnValue(Find(hShader, name))) << name;
  }
  bool on = false;
  std::int32_t count = 0;
  float axis[3] = {};
  float tint[4] = {};
  VelUnicodeString note;
  EXPECT_EQ(Find(hShader, "on")->GetValue(&on), S_OK);
  EXPECT_EQ(Find(hShader, "count")->GetValue(&count), S_OK);
  EXPECT_EQ(Find(hShader, "axis")->GetValue(axis), S_OK);
  EXPECT_EQ(Find(hShader, "tint")->GetValue(tint), S_OK);
  EXPECT_EQ(Find(hShader, "note")->GetValue(&note), S_OK);
  EXPECT_TRUE(on);
  EXPECT_EQ(count, -3);
  EXPECT_EQ(ScalarOf(hShader, "level"), 0.25F);
  EXPECT_EQ(std::to_array(axis), (std::array{1.0F, 2.5F, -3.0F}));
  EXPECT_EQ(std::to_array(tint), (std::array{0.5F, 0.25F, 1.0F, 1.0F}));
  EXPECT_EQ(note, VelUnicodeString("gr\u00fcn und blau"));
  for (const char* name : {"rows", "flat"}) {
    float matrix[16] = {};
    EXPECT_EQ(Find(hShader, name)->GetValue(matrix), S_OK);
    for (int i = 0; i < 16; ++i) EXPECT_EQ(matrix[i], static_cast<float>(i + 1)) << name;
  }
  for (const char* name : {"tex", "profile"}) {
    VelBaseUnknown_var hDocument;
    EXPECT_EQ(Find(hShader, name)->GetValue(hDocument.Receive()), S_OK);
    EXPECT_FALSE(hDocument);
  }
}

TEST_F(VelRmaShaderTypeReaderTest, UnitsOfScalars_AreThoseOfTheSystem) {
  struct Case {
    const char* name;
    const char* text;
    float expected;
  };
  const Case cases[] = {
      {"deg", "\"180 deg\"", 3.14159274F}, {"near", "\"90deg\"", 1.57079637F}, {"rad", "\"1.5 rad\"", 1.5F},
      {"um", "\"250 um\"", 0.25F},         {"mm", "\"2 mm\"", 2.0F},           {"cm", "\"2.5 cm\"", 25.0F},
      {"m", "\"0.5 m\"", 500.0F},          {"in", "\"-1 in\"", -25.4F},        {"plain", "7", 7.0F}};
  std::string rest;
  for (const Case& test : cases) {
    rest += Parameter(test.name, "VelRmaScalar", std::string("default = ") + test.text);
  }
  const VelIRshShader_var hShader = Make(rest);
  for (const Case& test : cases) EXPECT_EQ(ScalarOf(hShader, test.name), test.expected) << test.name;
}

TEST_F(VelRmaShaderTypeReaderTest, ADefaultOfZero_IsAValueToo) {
  const VelIRshShader_var hShader =
      Make(Parameter("level", "VelRmaScalar", "default = 0") + Parameter("off", "VelRmaBoolean", "default = false") +
           Parameter("count", "VelRmaInteger", "default = 0") + Parameter("text", "VelRmaString", "default = \"\""));
  for (const char* name : {"level", "off", "count", "text"}) EXPECT_TRUE(HasOwnValue(Find(hShader, name))) << name;
}

TEST_F(VelRmaShaderTypeReaderTest, TagsAndSlot_AreThoseOfTheParameter) {
  const VelIRshShader_var hShader =
      Make(Parameter("scale_u", "VelRmaScalar", "default = 1\ntags = [\"mapping\", \"scale_u\"]") +
           Parameter("map", "VelRmaColor", "default = [1, 1, 1]\nslot = \"surface.normal\"") +
           Parameter("bare", "VelRmaScalar", "default = 1\ntags = []"));
  const VelIRshParameterPrivate_var hScale(Find(hShader, "scale_u"));
  EXPECT_EQ(hScale->HasTag(Tag::Mapping), S_OK);
  EXPECT_EQ(hScale->HasTag(Tag::ScaleU), S_OK);
  EXPECT_EQ(hScale->HasTag(Tag::ScaleV), E_FAIL);
  EXPECT_EQ(VelIRshParameterPrivate_var(Find(hShader, "bare"))->HasTag(Tag::Dpi), E_FAIL);
  EXPECT_EQ(VelRshParameterServices::ComputeParameterSlot(*Find(hShader, "map")), 1U);
  EXPECT_EQ(VelRshParameterServices::ComputeParameterSlot(*Find(hShader, "bare")), 0U);
}

TEST_F(VelRmaShaderTypeReaderTest, Layout_IsThatOfTheParameter) {
  const VelIRshShader_var hShader =
      Make(Parameter("shown", "VelRmaBoolean", "default = true\nlayout = { kind = \"checkbox\", text = \"yes\" }") +
           Parameter("hidden", "VelRmaVoid", "layout = { kind = \"none\", shown = false }") +
           Parameter("bare", "VelRmaVoid", ""));
  VelString text;
  const VelIRshParameterImmLayout_var hShown(Find(hShader, "shown"));
  EXPECT_EQ(hShown->GetKind(text), S_OK);
  EXPECT_EQ(text, "checkbox");
  EXPECT_EQ(hShown->GetShown(text), S_OK);
  EXPECT_EQ(text, "Yes");
  EXPECT_EQ(hShown->GetTextValue(text), S_OK);
  EXPECT_EQ(text, "yes");
  const VelIRshParameterImmLayout_var hHidden(Find(hShader, "hidden"));
  EXPECT_EQ(hHidden->GetKind(text), S_OK);
  EXPECT_EQ(text, "none");
  EXPECT_EQ(hHidden->GetShown(text), S_OK);
  EXPECT_EQ(text, "No");
  EXPECT_EQ(hHidden->GetTextValue(text), E_FAIL);
  EXPECT_FALSE(VelIRshParameterImmLayout_var(Find(hShader, "bare")));
}

TEST_F(VelRmaShaderTypeReaderTest, TheDefault_IsWhatAResetGoesBackTo) {
  const VelIRshShader_var hShader = Make(Parameter("angle", "VelRmaScalar", "default = \"90 deg\"") +
                                         Parameter("tint", "VelRmaColor", "default = [0.5, 0.25, 1, 0.75]"));
  const float other = 3.0F;
  EXPECT_EQ(Find(hShader, "angle")->SetValue(&other), S_OK);
  float angle = 0.0F;
  float tint[4] = {};
  EXPECT_EQ(VelIRshParameterDialog_var(Find(hShader, "angle"))->GetDefaultValue(&angle), S_OK);
  EXPECT_EQ(VelIRshParameterDialog_var(Find(hShader, "tint"))->GetDefaultValue(tint), S_OK);
  EXPECT_EQ(angle, 1.57079637F);
  EXPECT_EQ(std::to_array(tint), (std::array{0.5F, 0.25F, 1.0F, 0.75F}));
}

TEST_F(VelRmaShaderTypeReaderTest, Labels_FollowTheLanguage) {
  WriteType("Own",
            Sound("Own", "label = { en = \"Own type\", de = \"Eigener Typ\", de_AT = \"Eigner Typ\" }\n" +
                             Parameter("a", "VelRmaVoid", "label = { en = \"Color\", de = \"Farbe\" }") +
                             Parameter("b", "VelRmaVoid", "label = \"Plain\"") + Parameter("c", "VelRmaVoid", "")));
  ASSERT_EQ(Start(), S_OK);
  struct Case {
    const char* language;
    const char* type;
    const char* first;
  };
  for (const Case& test :
       {Case{"en", "Own type", "Color"}, Case{"de", "Eigener Typ", "Farbe"}, Case{"de_AT", "Eigner Typ", "Farbe"},
        Case{"de_CH", "Eigener Typ", "Farbe"}, Case{"fr", "Own type", "Color"}, Case{"", "Own type", "Color"}}) {
    SCOPED_TRACE(test.language);
    VelMsgCatalog::SetLanguage(test.language);
    const VelIRshShader_var hShader = Create("Own");
    EXPECT_EQ(DisplayName("Own"), test.type);
    EXPECT_EQ(LabelOf(hShader.Get()), test.type);
    EXPECT_EQ(LabelOf(Find(hShader, "a").Get()), test.first);
    EXPECT_EQ(LabelOf(Find(hShader, "b").Get()), "Plain");
    EXPECT_EQ(LabelOf(Find(hShader, "c").Get()), "c");
  }
}

TEST_F(VelRmaShaderTypeReaderTest, Mapping_IsWhatTheReadersTake) {
  const VelIRshShader_var hShader =
      Make(Parameter("su", "VelRmaScalar", "default = 2") + Parameter("fu", "VelRmaBoolean", "default = true") +
           "[mapping]\nscale = { parameters = [\"su\"] }\nflip = { parameters = [\"fu\", \"fu\"] }\n"
           "offset = { default = [0.25, 1] }\nratio.default = [1, 1]\nrotation = { default = \"90 deg\" }\n");
  struct Case {
    const char* key;
    const char* expected;
  };
  for (const Case& test :
       {Case{"MappingScale.ParameterValue", "su"}, Case{"MappingScale.DefaultValue", "(none)"},
        Case{"MappingFlip.ParameterValue", "fu fu"}, Case{"MappingFlip.DefaultValue", "(none)"},
        Case{"MappingOffset.ParameterValue", ""}, Case{"MappingOffset.DefaultValue", "0.25 1"},
        Case{"MappingRatio.DefaultValue", "1 1"}, Case{"MappingRotation.DefaultValue", "1.5707964"}}) {
    EXPECT_EQ(Value("Own", test.key), test.expected) << test.key;
  }
  VelTraceService::SetSwitches("*=error,VelRshReaderMapping*=off");
  Vel3x3Matrix transformation;
  EXPECT_EQ(VelIRmaVisuTextureCoordinateTransformation_var(hShader)->GetTransformation(transformation), S_OK);
}

TEST_F(VelRmaShaderTypeReaderTest, Parent_IsTheConfigurationAbove) {
  WriteType("Upper",
            Sound("Upper", Parameter("a", "VelRmaScalar", "default = 1\ntags = [\"diffuse\"]\nlabel = \"Above\"")));
  const VelIRshShader_var hShader = Make("parent = \"Upper\"\n" + Parameter("a", "VelRmaScalar", "default = 1"));
  EXPECT_EQ(VelIRshParameterPrivate_var(Find(hShader, "a"))->HasTag(Tag::Diffuse), S_OK);
  EXPECT_EQ(LabelOf(Find(hShader, "a").Get()), "Above");
}

TEST_F(VelRmaShaderTypeReaderTest, AMappingDefault_StandsBeforeTheNamesOfTheParent) {
  const VelIRshShader_var hShader = Make(
      "parent = \"BasicMaterial\"\n[mapping]\noffset = { default = [0.25, 0.5] }\nratio = { default = [1, 1] }\n"
      "scale = { default = [2, 4] }\nrotation = { default = 0 }\nflip = { default = [1, 1] }\n");
  VelTraceService::SetSwitches("*=warning,VelRshReaderMappingScale=off");
  Vel3x3Matrix transformation;
  EXPECT_EQ(VelIRmaVisuTextureCoordinateTransformation_var(hShader)->GetTransformation(transformation), S_OK);
  EXPECT_EQ(transformation, Vel3x3Matrix({0.5F, 0.0F, 0.0F, 0.25F}, {0.25F, 0.5F}));
  for (const std::string& error : TakeErrors()) {
    EXPECT_TRUE(error.starts_with("VelRshReaderMappingScale: ")) << error << ": of a shader without a material alone";
  }
}

TEST_F(VelRmaShaderTypeReaderTest, EveryOption_GivesThePlainSet) {
  WriteType("Own", Sound("Own", Parameter("a", "VelRmaScalar", "default = 1")));
  ASSERT_EQ(Start(), S_OK);
  for (const std::uint8_t option : std::to_array<std::uint8_t>({0, 1, 255})) {
    VelIRshShader_var hShader;
    EXPECT_EQ(Manager().CreateShader(hContainer_, "Own", hShader.Receive(), option), S_OK);
    EXPECT_EQ(ParametersOf(hShader), Texts{"a: VelRmaScalar"});
  }
}

TEST_F(VelRmaShaderTypeReaderTest, TheExampleOfTheGuide_DoesWhatTheGuideSays) {
  std::ifstream file(VEL_TEST_GUIDE);
  const std::string guide{std::istreambuf_iterator<char>(file), {}};
  const std::string begin = "```toml\n";
  const std::size_t from = guide.find(begin) + begin.size();
  WriteType("Varnish", guide.substr(from, guide.find("```", from) - from));
  ASSERT_EQ(Start(), S_OK);
  const VelIRshShader_var hShader = Create("Varnish");
  EXPECT_EQ(TakeErrors(), Texts{});
  EXPECT_EQ(ParametersOf(hShader), (Texts{"coat: VelRmaColor", "grain: VelRmaScalar"}));
  EXPECT_EQ(ScalarOf(hShader, "grain"), 0.785398185F);
  EXPECT_EQ(VelRshParameterServices::ComputeParameterSlot(*Find(hShader, "coat")), 5U);
  EXPECT_EQ(Value("Varnish", "MappingScale.DefaultValue"), "1.5 1.5");
  EXPECT_EQ(Value("Varnish", "MappingRotation.ParameterValue"), "grain");
  VelMsgCatalog::SetLanguage("de");
  EXPECT_EQ(DisplayName("Varnish"), "Lack");
  EXPECT_EQ(LabelOf(Find(hShader, "coat").Get()), "Decklack");
}

}  // namespace
