// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ShaderTypeRefusalsTest.h The fixture of the tests of files of shader types that are refused.
#ifndef TESTS_HOST_SHADERTYPES_SHADERTYPEREFUSALSTEST_H
#define TESTS_HOST_SHADERTYPES_SHADERTYPEREFUSALSTEST_H

#include <string>
#include <vector>

#include "tests/host/shadertypes/ShaderTypesTest.h"

/// Files that are refused, each with all that is said of it.
class ShaderTypeRefusalsTest : public ShaderTypesTest {
 protected:
  struct Case {
    const char* name;  ///< Of the case, and of the file.
    std::string text;
    Texts expected;  ///< "line:column: cause", in order.
  };

  /// Writes all files, lists the types once, and compares what was said of each.
  void Check(const std::vector<Case>& iCases) {
    for (const Case& test : iCases) WriteType(test.name, test.text);
    WriteType("Zz", Sound("Zz"));
    ASSERT_EQ(Start(), S_OK);
    EXPECT_EQ(OwnTypes(), Texts{"Zz"}) << "the sound file loads, and no other";
    const Texts errors = TakeErrors();
    for (const Case& test : iCases) {
      Texts said;
      const std::string begin = std::string("VelRmaConfiguredShaderFactory: types/") + test.name + ".toml:";
      for (const std::string& error : errors) {
        if (error.starts_with(begin)) said.push_back(error.substr(begin.size()));
      }
      EXPECT_EQ(said, test.expected) << test.name;
    }
  }

  /// A sound file with one parameter, whose lines 7 and on are the given ones.
  static std::string WithParameter(const std::string& iName, const std::string& iRest) {
    return Sound(iName, "[[parameter]]\nname = \"p\"\n" + iRest);
  }
};

#endif  // TESTS_HOST_SHADERTYPES_SHADERTYPEREFUSALSTEST_H
