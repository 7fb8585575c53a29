// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypeReader_Hints_test.cpp That one mistake in a file of a shader type is told once, where it was
/// made, and that what could do nothing is refused.
#include "tests/host/shadertypes/ShaderTypeRefusalsTest.h"

namespace {

using VelRmaShaderTypeReaderHintsTest = ShaderTypeRefusalsTest;

TEST_F(VelRmaShaderTypeReaderHintsTest, AKeyOfTheFileBelowAHeader_IsToldWhereItBelongsAndIsNotMissing) {
  const std::string hint = " is a key of the file, and stands before the first header such as [[parameter]]";
  const std::string ofParameter =
      " of a parameter; expected name, type, default, tags, slot, label or layout; 'version'" + hint;
  const std::string ofMapping = " of a mapping; expected flip, offset, ratio, scale or rotation; ";
  Check({
      {"LowVersion",
       "type = \"LowVersion\"\noutput = \"VelRmaVoid\"\n[[parameter]]\nname = \"p\"\ntype = \"VelRmaVoid\"\n"
       "version = 1\n",
       {"6:1: unknown key 'version'" + ofParameter}},
      {"LowInMapping",
       "[mapping]\ntype = \"LowInMapping\"\noutput = \"VelRmaVoid\"\nversion = 1\n",
       {"2:1: unknown key 'type'" + ofMapping + "'type'" + hint,
        "3:1: unknown key 'output'" + ofMapping + "'output'" + hint,
        "4:1: unknown key 'version'" + ofMapping + "'version'" + hint}},
      {"LowInLabel",
       "type = \"LowInLabel\"\noutput = \"VelRmaVoid\"\n[label]\nen = \"x\"\nversion = 1\n",
       {"5:1: expected a language such as en or de_AT, found 'version'; 'version'" + hint}},
      {"LowType",
       Sound("LowType", "[[parameter]]\nname = \"p\"\ntype = \"VelRmaVoid\"\ntype = \"LowType\"\n"),
       {"8:8: Error while parsing key-value pair: cannot redefine existing string 'type'"}},
      {"Inline",
       WithParameter("Inline", "type = \"VelRmaVoid\"\nlayout = { kind = \"map\", type = \"x\" }\n"),
       {"8:26: unknown key 'type' of a layout; expected kind, shown or text"}},
      {"OfTheParameter",
       WithParameter("OfTheParameter", "type = \"VelRmaVoid\"\n[parameter.label]\nen = \"x\"\nlabel = \"y\"\n"),
       {"10:1: expected a language such as en or de_AT, found 'label'"}},
      {"Misspelt",
       "type = \"Misspelt\"\noutput = \"VelRmaVoid\"\nverson = 1\n[[parameter]]\nnmae = \"p\"\n"
       "type = \"VelRmaVoid\"\n",
       {"3:1: unknown key 'verson' of a shader type; expected type, output, usage, version, parent, label, parameter "
        "or "
        "mapping; did you mean 'version'?",
        "5:1: unknown key 'nmae' of a parameter; expected name, type, default, tags, slot, label or layout; did you "
        "mean 'name'?"}},
  });
}

TEST_F(VelRmaShaderTypeReaderHintsTest, ARefusedParameter_IsNotMissedByTheMapping) {
  const std::string scalar = "type = \"VelRmaScalar\"\ndefault = 1\n";
  const std::string mapping = "[mapping]\nscale = { parameters = [\"su\", \"sv\"] }\n";
  const std::string slot = "slot = \"surface.opacity\"\n";
  const std::string first = "[[parameter]]\nname = \"su\"\n" + scalar;
  Check({
      {"MapBlank",
       Sound("MapBlank", "[[parameter]]\nname = \"s u\"\n" + scalar + mapping),
       {"6:8: 'name': expected a text of 1 to 254 bytes without blanks, found the text 's u'"}},
      {"MapTwice",
       Sound("MapTwice", first + first + mapping),
       {"10:8: the parameter 'su' is there already, in line 6"}},
      {"Copied",
       Sound("Copied", first + slot + first + slot + mapping),
       {"11:8: the parameter 'su' is there already, in line 6"}},
      {"MapHeader",
       Sound("MapHeader", "[[parameters]]\nname = \"su\"\n" + scalar + mapping),
       {"5:3: unknown key 'parameters' of a shader type; expected type, output, usage, version, parent, label, "
        "parameter or mapping; did you mean 'parameter'?"}},
      {"MapTable",
       Sound("MapTable", "[parameter]\nname = \"su\"\n" + scalar + mapping),
       {"5:1: 'parameter': expected tables, each below a header [[parameter]], found a table"}},
      {"MapStartUp",
       Sound("MapStartUp", "[[parameter]]\nname = \"su\"\ndefault = 1\n[mapping]\nscale.parameters = [\"su\"]\n"),
       {"5:1: the key 'type' is missing; expected a start-up such as \"VelRmaScalar\""}},
  });
}

TEST_F(VelRmaShaderTypeReaderHintsTest, WhatCouldDoNothing) {
  const auto with = [](const char* iName, const char* iStartUp, const char* iDefault, const char* iRest) {
    return WithParameter(iName,
                         std::string("type = \"") + iStartUp + "\"\ndefault = " + iDefault + '\n' + iRest + '\n');
  };
  Check({
      {"SlotTwice",
       WithParameter("SlotTwice",
                     "type = \"VelRmaScalar\"\ndefault = 1\nslot = \"surface.opacity\"\n[[parameter]]\nname = \"q\"\n"
                     "type = \"VelRmaScalar\"\ndefault = 1\nslot = \"surface.opacity\"\n"),
       {"14:8: the slot 'surface.opacity' is there already, in line 9"}},
      {"SlotOfText",
       with("SlotOfText", "VelRmaString", "\"x\"", "slot = \"surface.opacity\""),
       {"9:8: a VelRmaString feeds no slot; expected a VelRmaColor, VelRmaScalar, VelRmaVector, VelRmaInteger or "
        "VelRmaTexture"}},
      {"AngleOfBoolean",
       with("AngleOfBoolean", "VelRmaBoolean", "true", "tags = [\"mapping\", \"angle\"]"),
       {"9:20: the tag 'angle' does nothing on a VelRmaBoolean; expected a VelRmaScalar"}},
      {"FlipOfInteger",
       with("FlipOfInteger", "VelRmaInteger", "1", "tags = [\"flip_u\"]"),
       {"9:9: the tag 'flip_u' does nothing on a VelRmaInteger; expected a VelRmaBoolean"}},
      {"BehaviorOfScalar",
       with("BehaviorOfScalar", "VelRmaScalar", "1", "tags = [\"mapping-behavior\"]"),
       {"9:9: the tag 'mapping-behavior' does nothing on a VelRmaScalar; expected a VelRmaInteger"}},
  });
}

}  // namespace
