// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypeReader_Refusals_test.cpp All that is refused in a file of a shader type, with what is said of
/// it.
#include "tests/host/shadertypes/ShaderTypeRefusalsTest.h"

namespace {

using VelRmaShaderTypeReaderRefusalsTest = ShaderTypeRefusalsTest;

TEST_F(VelRmaShaderTypeReaderRefusalsTest, TheHead) {
  Check({
      {"Empty",
       "",
       {"1:1: the key 'type' is missing; expected the name of the type, which is that of the file without '.toml'",
        "1:1: the key 'output' is missing; expected the start-up of what the type produces, such as \"VelRmaColor\"",
        "1:1: the key 'version' is missing; expected a whole number from 1 to 4294967295"}},
      {"NoToml", "type =\n", {"1:7: Error while parsing key-value pair: expected value, saw '\\n'"}},
      {"Renamed", Sound("Former"), {"1:8: the type is 'Former', but the file is named after 'Renamed'"}},
      {"Default", Sound("Default"), {"1:8: 'Default' is the configuration below all others, and no type"}},
      {"TypeKind",
       "type = 7\noutput = [1]\nversion = 1\n",
       {"1:8: 'type': expected the name of the type, which is that of the file without '.toml', found the number 7",
        "2:10: 'output': expected the start-up of what the type produces, such as \"VelRmaColor\", found an array of "
        "1"}},
      {"Output",
       "type = \"Output\"\noutput = \"color\"\nversion = 1\n",
       {"2:10: unknown start-up 'color'; expected VelRmaBoolean, VelRmaInteger, VelRmaScalar, VelRmaVector, "
        "VelRmaColor, "
        "VelRmaString, VelRmaMatrix, VelRmaTexture, VelRmaLightProfile or VelRmaVoid; did you mean 'VelRmaColor'?"}},
      {"Unknown",
       Sound("Unknown", "lable = \"x\"\nzzzzzzzz = 1\n"),
       {"5:1: unknown key 'lable' of a shader type; expected type, output, usage, version, parent, label, parameter or "
        "mapping; did you mean 'label'?",
        "6:1: unknown key 'zzzzzzzz' of a shader type; expected type, output, usage, version, parent, label, parameter "
        "or "
        "mapping"}},
      {"Twice",
       Sound("Twice", "version = 2\n"),
       {"5:11: Error while parsing key-value pair: cannot redefine existing integer 'version'"}},
      {"Version0",
       "type = \"Version0\"\noutput = \"VelRmaVoid\"\nversion = 0\n",
       {"3:11: 'version': expected a whole number from 1 to 4294967295, found the number 0"}},
      {"VersionHigh",
       "type = \"VersionHigh\"\noutput = \"VelRmaVoid\"\nversion = 4294967296\n",
       {"3:11: 'version': expected a whole number from 1 to 4294967295, found the number 4294967296"}},
      {"UsageWord",
       "type = \"UsageWord\"\noutput = \"VelRmaVoid\"\nversion = 1\nusage = \"all\"\n",
       {"4:9: 'usage': expected \"any\" or a whole number from 0 to 4294967295, found the text 'all'"}},
      {"UsageRange",
       "type = \"UsageRange\"\noutput = \"VelRmaVoid\"\nversion = 1\nusage = -1\n",
       {"4:9: 'usage': expected \"any\" or a whole number from 0 to 4294967295, found the number -1"}},
      {"UsageReal",
       "type = \"UsageReal\"\noutput = \"VelRmaVoid\"\nversion = 1\nusage = 1.5\n",
       {"4:9: 'usage': expected \"any\" or a whole number from 0 to 4294967295, found the number 1.5"}},
      {"UsageOfQuestion",
       "type = \"UsageOfQuestion\"\noutput = \"VelRmaVoid\"\nversion = 1\nusage = 0x1\n",
       {"4:9: 'usage': 1 alone is the question for new types and no context; expected \"any\" or the bits of contexts "
        "such as 0x6"}},
      {"Parent",
       Sound("Parent", "parent = \"Parent\"\n"),
       {"5:10: 'parent': expected the name of another configuration, found the text 'Parent'"}},
      {"ParentKind",
       Sound("ParentKind", "parent = true\n"),
       {"5:10: 'parent': expected the name of a configuration, found true"}},
      {"Moment",
       Sound("Moment", "label = 2026-01-01\n"),
       {"5:9: 'label': expected a text, or a table of texts by language such as { en = \"Color\" }, found a date"}},
      {"Languages",
       Sound("Languages", "[label]\ngerman = \"x\"\nde = 1\nde_at = \"x\"\nfr = \"\"\n"),
       {"5:1: the label has no English text; expected the key 'en' beside the others",
        "6:1: expected a language such as en or de_AT, found 'german'",
        "7:6: expected a text that is not empty for a label, found the number 1",
        "8:1: expected a language such as en or de_AT, found 'de_at'",
        "9:6: expected a text that is not empty for a label, found the text ''"}},
      {"ParameterTable",
       Sound("ParameterTable", "[parameter]\nname = \"x\"\n"),
       {"5:1: 'parameter': expected tables, each below a header [[parameter]], found a table"}},
      {"ParameterList",
       Sound("ParameterList", "parameter = [1]\n"),
       {"5:14: 'parameter': expected tables, each below a header [[parameter]], found the number 1"}},
  });
}

TEST_F(VelRmaShaderTypeReaderRefusalsTest, Parameters) {
  Check({
      {"Missing",
       Sound("Missing", "[[parameter]]\n"),
       {"5:1: the key 'name' is missing; expected a text of 1 to 254 bytes without blanks",
        "5:1: the key 'type' is missing; expected a start-up such as \"VelRmaScalar\""}},
      {"NameBlank",
       Sound("NameBlank", "[[parameter]]\nname = \"a b\"\ntype = \"VelRmaVoid\"\n"),
       {"6:8: 'name': expected a text of 1 to 254 bytes without blanks, found the text 'a b'"}},
      {"NameReserved",
       Sound("NameReserved", "[[parameter]]\nname = \"MappingScale\"\ntype = \"VelRmaVoid\"\n"),
       {"6:8: the name 'MappingScale' is that of a mapping reader"}},
      {"NameTwice",
       WithParameter("NameTwice", "type = \"VelRmaVoid\"\n[[parameter]]\ntype = \"VelRmaVoid\"\nname = \"p\"\n"),
       {"10:8: the parameter 'p' is there already, in line 6"}},
      {"StartUp",
       WithParameter("StartUp", "type = \"Scaler\"\n"),
       {"7:8: unknown start-up 'Scaler'; expected VelRmaBoolean, VelRmaInteger, VelRmaScalar, VelRmaVector, "
        "VelRmaColor, "
        "VelRmaString, VelRmaMatrix, VelRmaTexture, VelRmaLightProfile or VelRmaVoid; did you mean 'VelRmaScalar'?"}},
      {"Key",
       WithParameter("Key", "type = \"VelRmaVoid\"\ntag = [\"dpi\"]\n"),
       {"8:1: unknown key 'tag' of a parameter; expected name, type, default, tags, slot, label or layout; did you "
        "mean "
        "'tags'?"}},
      {"Tag",
       WithParameter("Tag", "type = \"VelRmaVoid\"\ntags = [\"mapping\", \"scale-u\", \"xyzzyxyzzy\"]\n"),
       {"8:20: unknown tag 'scale-u'; expected one of the tags of docs/shader_types.md; did you mean 'scale_u'?",
        "8:31: unknown tag 'xyzzyxyzzy'; expected one of the tags of docs/shader_types.md"}},
      {"TagTwice",
       WithParameter("TagTwice", "type = \"VelRmaVoid\"\ntags = [\"dpi\", \"dpi\"]\n"),
       {"8:16: the tag 'dpi' is there already"}},
      {"TagKind",
       WithParameter("TagKind", "type = \"VelRmaVoid\"\ntags = [3]\n"),
       {"8:9: 'tags': expected an array of tags such as [\"mapping\", \"scale_u\"], found the number 3"}},
      {"Tags",
       WithParameter("Tags", "type = \"VelRmaVoid\"\ntags = \"dpi\"\n"),
       {"8:8: 'tags': expected an array of tags such as [\"mapping\", \"scale_u\"], found the text 'dpi'"}},
      {"Slot",
       WithParameter("Slot", "type = \"VelRmaVoid\"\nslot = \"surface.normals\"\n"),
       {"8:8: unknown slot 'surface.normals'; expected surface.normal, surface.height, surface.opacity, "
        "surface.ambient-occlusion, reflectance.diffuse.color, reflectance.specular.color, "
        "reflectance.specular.glossiness, reflectance.anisotropy.orientation, transmittance.specular.weight, "
        "transmittance.specular.glossiness or emittance.diffuse.color; did you mean 'surface.normal'?"}},
      {"Label",
       WithParameter("Label", "type = \"VelRmaVoid\"\nlabel = { de = \"Wert\" }\n"),
       {"8:9: the label has no English text; expected the key 'en' beside the others"}},
      {"Layout",
       WithParameter("Layout", "type = \"VelRmaVoid\"\nlayout = { show = true, text = 1 }\n"),
       {"8:10: the key 'kind' is missing; expected the kind of control, such as \"slider\"",
        "8:12: unknown key 'show' of a layout; expected kind, shown or text; did you mean 'shown'?",
        "8:32: 'text': expected the text of the control, found the number 1"}},
      {"LayoutKind",
       WithParameter("LayoutKind", "type = \"VelRmaVoid\"\nlayout = { kind = \"\", shown = \"Yes\" }\n"),
       {"8:19: 'kind': expected the kind of control, such as \"slider\", found the text ''",
        "8:31: 'shown': expected true or false, found the text 'Yes'"}},
  });
}

TEST_F(VelRmaShaderTypeReaderRefusalsTest, DefaultsThatDoNotFit) {
  const auto with = [](const char* iName, const char* iStartUp, const char* iDefault) {
    return WithParameter(iName, std::string("type = \"") + iStartUp + "\"\ndefault = " + iDefault + "\n");
  };
  Check({
      {"None",
       WithParameter("None", "type = \"VelRmaScalar\"\n"),
       {"5:1: the key 'default' is missing; expected the value that a new shader has"}},
      {"Boolean",
       with("Boolean", "VelRmaBoolean", "1"),
       {"8:11: expected true or false for a VelRmaBoolean, found the number 1"}},
      {"Integer",
       with("Integer", "VelRmaInteger", "2147483648"),
       {"8:11: expected a whole number from -2147483648 to 2147483647 for a VelRmaInteger, found the number "
        "2147483648"}},
      {"IntegerReal",
       with("IntegerReal", "VelRmaInteger", "1.0"),
       {"8:11: expected a whole number from -2147483648 to 2147483647 for a VelRmaInteger, found the number 1.0"}},
      {"IntegerExponent",
       with("IntegerExponent", "VelRmaInteger", "1e39"),
       {"8:11: expected a whole number from -2147483648 to 2147483647 for a VelRmaInteger, found the number 1e+39"}},
      {"Scalar",
       with("Scalar", "VelRmaScalar", "[1.0]"),
       {"8:11: expected a number, or a text of a number and a unit such as \"45 deg\", found an array"}},
      {"ScalarText",
       with("ScalarText", "VelRmaScalar", "\"much\""),
       {"8:11: expected a number, or a text of a number and a unit such as \"45 deg\", found 'much'"}},
      {"ScalarRange",
       with("ScalarRange", "VelRmaScalar", "1e39"),
       {"8:11: expected a number that single precision holds, found 1e+39"}},
      {"ScalarNan",
       with("ScalarNan", "VelRmaScalar", "nan"),
       {"8:11: expected a number that single precision holds, found nan"}},
      {"Unit",
       with("Unit", "VelRmaScalar", "\"45 dge\""),
       {"8:11: unknown unit 'dge'; expected deg, rad, um, mm, cm, m or in; did you mean 'deg'?"}},
      {"NoUnit",
       with("NoUnit", "VelRmaScalar", "\"45\""),
       {"8:11: no unit stands behind the number in '45'; expected deg, rad, um, mm, cm, m or in"}},
      {"UnitOfAnAngle",
       WithParameter("UnitOfAnAngle", "type = \"VelRmaScalar\"\ndefault = \"45 mm\"\ntags = [\"angle\"]\n"),
       {"8:11: the unit 'mm' does not measure what is given here; expected deg or rad"}},
      {"Vector",
       with("Vector", "VelRmaVector", "[1, 2]"),
       {"8:11: expected an array of 3 numbers, found an array of 2"}},
      {"VectorText", with("VectorText", "VelRmaVector", "[1, true, 3]"), {"8:15: expected a number, found true"}},
      {"Color",
       with("Color", "VelRmaColor", "[1, 2, 3, 4, 5]"),
       {"8:11: expected an array of 3 or 4 numbers, found an array of 5"}},
      {"ArrayUnits",
       WithParameter("ArrayUnits",
                     "type = \"VelRmaColor\"\ndefault = [\"45 deg\", 1, 1]\n"
                     "[[parameter]]\nname = \"v\"\ntype = \"VelRmaVector\"\ndefault = [1, \"2 mm\", 1]\n"
                     "[[parameter]]\nname = \"m\"\ntype = \"VelRmaMatrix\"\n"
                     "default = [[1, 2, 3, 4], [1, 2, 3, \"4 m\"], [1, 2, 3, 4], [1, 2, 3, 4]]\n"
                     "[mapping]\nscale = { default = [\"1 mm\", 1] }\n"),
       {"8:12: expected a number, found the text '45 deg'", "12:15: expected a number, found the text '2 mm'",
        "16:36: expected a number, found the text '4 m'", "18:22: expected a number, found the text '1 mm'"}},
      {"ColorText",
       with("ColorText", "VelRmaColor", "\"#ff0000\""),
       {"8:11: expected an array of 3 or 4 numbers, found the text '#ff0000'"}},
      {"String", with("String", "VelRmaString", "3"), {"8:11: expected a text for a VelRmaString, found the number 3"}},
      {"Matrix",
       with("Matrix", "VelRmaMatrix", "[1, 2, 3]"),
       {"8:11: expected an array of 16 numbers, or of 4 rows of 4, found an array of 3"}},
      {"MatrixRow",
       with("MatrixRow", "VelRmaMatrix", "[[1, 2, 3, 4], [1, 2, 3, 4], [1, 2, 3], [1, 2, 3, 4]]"),
       {"8:11: expected an array of 16 numbers, or of 4 rows of 4, found an array of 4"}},
      {"Texture",
       with("Texture", "VelRmaTexture", "\"a.png\""),
       {"8:11: expected no value for a VelRmaTexture, found the text 'a.png'"}},
      {"LightProfile",
       with("LightProfile", "VelRmaLightProfile", "0"),
       {"8:11: expected no value for a VelRmaLightProfile, found the number 0"}},
      {"Void", with("Void", "VelRmaVoid", "{}"), {"8:11: expected no value for a VelRmaVoid, found a table"}},
  });
}

TEST_F(VelRmaShaderTypeReaderRefusalsTest, Mappings) {
  const std::string parameters =
      "[[parameter]]\nname = \"scale_u\"\ntype = \"VelRmaScalar\"\ndefault = 1\n"
      "[[parameter]]\nname = \"flip_u\"\ntype = \"VelRmaBoolean\"\ndefault = false\n[mapping]\n";
  Check({
      {"MapTable",
       Sound("MapTable", "mapping = 1\n"),
       {"5:11: 'mapping': expected a table of mapping readers, found the number 1"}},
      {"MapReader",
       Sound("MapReader", "[mapping]\nscales = {}\n"),
       {"6:1: unknown key 'scales' of a mapping; expected flip, offset, ratio, scale or rotation; did you mean "
        "'scale'?"}},
      {"MapKind", Sound("MapKind", "[mapping]\nflip = true\n"), {"6:8: 'flip': expected a table, found true"}},
      {"MapEmpty",
       Sound("MapEmpty", "[mapping]\nratio = {}\n"),
       {"6:9: expected the key 'parameters' or 'default' of 'ratio', found neither"}},
      {"MapKey",
       Sound("MapKey", "[mapping]\nratio = { defualt = [1, 1] }\n"),
       {"6:11: unknown key 'defualt' of a mapping reader; expected parameters or default; did you mean 'default'?"}},
      {"MapNames",
       Sound("MapNames", parameters + "scale = { parameters = [] }\noffset = { parameters = \"scale_u\" }\n"),
       {"14:24: 'parameters': expected an array of one or two names of parameters, found an array of 0",
        "15:25: 'parameters': expected an array of one or two names of parameters, found the text 'scale_u'"}},
      {"MapName",
       Sound("MapName", parameters + "scale = { parameters = [\"scale_u\", \"scale_w\"] }\n"),
       {"14:36: there is no parameter 'scale_w'; did you mean 'scale_u'?"}},
      {"MapType",
       Sound("MapType",
             parameters + "flip = { parameters = [\"scale_u\"] }\nscale = { parameters = [\"flip_u\", 1] }\n"),
       {"14:24: the parameter 'scale_u' is a VelRmaScalar; 'flip' takes VelRmaBoolean",
        "15:25: the parameter 'flip_u' is a VelRmaBoolean; 'scale' takes VelRmaScalar, VelRmaInteger or VelRmaColor",
        "15:35: 'parameters': expected an array of one or two names of parameters, found the number 1"}},
      {"MapDefault",
       Sound("MapDefault", "[mapping]\nscale = { default = [1] }\nrotation = { default = \"1 mm\" }\n"),
       {"6:21: 'default': expected an array of 2 numbers, found an array of 1",
        "7:24: the unit 'mm' does not measure what is given here; expected deg or rad"}},
      {"MapRotation",
       Sound("MapRotation", "[mapping]\nrotation = { default = [1], parameters = [\"a\", \"b\"] }\n"),
       {"6:12: expected the key 'parameters' or 'default' of 'rotation', found both",
        "6:24: expected a number in radians, or a text such as \"45 deg\", found an array",
        "6:42: 'parameters': expected an array of one name of a parameter, found an array of 2"}},
  });
}

TEST_F(VelRmaShaderTypeReaderRefusalsTest, LimitsOfTheText) {
  Check({
      {"Deep",
       "a = " + std::string(40, '[') + std::string(40, ']') + "\n",
       {"1:37: tables and arrays stand more than 32 deep in each other"}},
      {"Dots",
       "a.b.c.d.e.f.g.h.i.j.k.l.m.n.o.p.q.r.s.t.u.v.w.x.y.z.a.b.c.d.e.f.g = 1\n",
       {"1:64: a key has more than 32 parts"}},
      {"Large", std::string((4U << 20U) + 1, '#'), {" is larger than 4194304 bytes"}},
  });
}

TEST_F(VelRmaShaderTypeReaderRefusalsTest, OfManyFaults_TheFirstTwentyAreTold) {
  std::string text = Sound("Many");
  for (int i = 0; i < 25; ++i) text += "z" + std::to_string(i) + " = 1\n";
  WriteType("Many", text);
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(OwnTypes(), Texts{});
  const Texts errors = TakeErrors();
  ASSERT_EQ(errors.size(), 21U);
  EXPECT_EQ(errors.back(), "VelRmaConfiguredShaderFactory: types/Many.toml: there are 5 more faults in the file");
}

TEST_F(VelRmaShaderTypeReaderRefusalsTest, AnyNumberOfFaults_IsCounted) {
  std::string text = Sound("Many");
  for (int i = 0; i < 100000; ++i) text += "z" + std::to_string(i) + "=1\n";
  WriteType("Many", text);
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(OwnTypes(), Texts{});
  const Texts errors = TakeErrors();
  ASSERT_EQ(errors.size(), 21U);
  EXPECT_EQ(errors.back(), "VelRmaConfiguredShaderFactory: types/Many.toml: there are 99980 more faults in the file");
}

TEST_F(VelRmaShaderTypeReaderRefusalsTest, LongAndUnprintableTexts_AreCutInMessages) {
  WriteType("Cut", Sound("Cut", "\"" + std::string(100, 'k') + "\" = 1\n\"a\\u0007\" = 1\n"));
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(OwnTypes(), Texts{});
  const Texts errors = TakeErrors();
  ASSERT_EQ(errors.size(), 2U);
  EXPECT_NE(errors[0].find("unknown key '" + std::string(80, 'k') + "...' of"), std::string::npos) << errors[0];
  EXPECT_NE(errors[1].find("unknown key 'a?' of"), std::string::npos) << errors[1];
}

}  // namespace
