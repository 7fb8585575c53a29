// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTomlGuard_test.cpp What is refused before the parser sees it, and what is not.
#include "platform/files/VelTomlGuard.h"

#include <string>

#include <gtest/gtest.h>

namespace {

std::string Repeat(const std::string& iText, int iCount) {
  std::string text;
  for (int i = 0; i < iCount; ++i) text += iText;
  return text;
}

/// @return "accepted", or "line:column: cause"
std::string Ask(const std::string& iText) {
  VelConfigurationFault fault{7, 8, "untouched"};
  if (!VelTomlGuard::Accepts(iText, fault)) {
    return std::to_string(fault.line) + ':' + std::to_string(fault.column) + ": " + fault.cause;
  }
  EXPECT_EQ(fault.line, 7U);
  EXPECT_EQ(fault.cause, "untouched");
  return "accepted";
}

constexpr const char* manyParts = ": a key has more than 32 parts";
constexpr const char* manyLevels = ": tables and arrays stand more than 32 deep in each other";

struct Case {
  const char* name;
  std::string text;
  std::string expected;
};

void ExpectAll(const std::vector<Case>& iCases) {
  for (const Case& test : iCases) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(Ask(test.text), test.expected);
  }
}

/// @return a dotted key
std::string Key(int iParts) { return Repeat("a.", iParts - 1) + "a"; }

TEST(VelTomlGuardTest, Keys_HaveAtMost32Parts) {
  ExpectAll({
      {"nothing", "", "accepted"},
      {"32 parts", Key(32) + " = 1\n", "accepted"},
      {"33 parts", Key(33) + " = 1\n", std::string("1:64") + manyParts},
      {"40,000 parts", Repeat("a.", 40000) + "a = 1", std::string("1:64") + manyParts},
      {"header of 32", "[" + Key(32) + "]\n", "accepted"},
      {"header of 33", "\n[" + Key(33) + "]\n", std::string("2:65") + manyParts},
      {"header of an array", "[[" + Key(33) + "]]\n", std::string("1:66") + manyParts},
      {"blanks between", Repeat("a . ", 32) + "a = 1", std::string("1:127") + manyParts},
      {"quoted parts", Repeat("\"a\".", 32) + "a = 1", std::string("1:128") + manyParts},
      {"literal parts", Repeat("'a'.", 32) + "a = 1", std::string("1:128") + manyParts},
      {"empty parts", Repeat("\"\".", 32) + "a = 1", std::string("1:96") + manyParts},
      {"dots in quotes", "\"" + Repeat("a.", 99) + "\" = 1", "accepted"},
      {"in an inline table", "t = { b = 1, " + Key(33) + " = 1 }", std::string("1:77") + manyParts},
      {"each line anew", Repeat(Key(32) + " = 1\n", 9), "accepted"},
      {"each key of an inline table anew", "t = { " + Key(32) + " = 1, " + Key(32) + " = 2 }", "accepted"},
      {"numbers of a list", "t = [" + Repeat("1.5, ", 99) + "]", "accepted"},
  });
}

TEST(VelTomlGuardTest, Brackets_NestAtMost32Deep) {
  ExpectAll({
      {"32 tables", "t = " + Repeat("{ a = ", 32) + "1" + Repeat(" }", 32), "accepted"},
      {"33 tables", "t = " + Repeat("{ a = ", 33) + "1" + Repeat(" }", 33), std::string("1:197") + manyLevels},
      {"33 arrays", "t = " + Repeat("[", 33) + Repeat("]", 33), std::string("1:37") + manyLevels},
      {"33 of both, in lines", "t = " + Repeat("[\n", 30) + Repeat("{a=", 3), std::string("31:7") + manyLevels},
      {"one after the other", "t = [" + Repeat("{ a = 1 }, ", 99) + "]", "accepted"},
      {"headers", Repeat("[a]\n[[b]]\n", 99), "accepted"},
      {"closed without being open", Repeat("]}", 9) + "\nt = " + Repeat("[", 32), "accepted"},
  });
}

TEST(VelTomlGuardTest, StringsAndComments_AreNotLookedInto) {
  const std::string deep = Repeat("[", 40) + Repeat(".", 40);
  ExpectAll({
      {"comment", "# " + deep + "\na = 1 # " + deep, "accepted"},
      {"quote in a comment", "# it's\n" + Key(33) + " = 1", std::string("2:64") + manyParts},
      {"basic string", "a = \"" + deep + "\"", "accepted"},
      {"escaped quote", "a = \"\\\"" + deep + "\"", "accepted"},
      {"escaped backslash", "a = \"\\\\\"\n" + Key(33) + " = 1", std::string("2:64") + manyParts},
      {"literal string", "a = '" + deep + "\\'\n" + Key(33) + " = 1", std::string("2:64") + manyParts},
      {"hash in a string", "a = '#'; " + Key(33), std::string("1:73") + manyParts},
      {"long string", "a = \"\"\"\n" + deep + "\n\"\" \\\"\"\" \n\"\"\"\n" + Key(33), std::string("5:64") + manyParts},
      {"long literal", "a = '''\n" + deep + "\n'' \\'''\n" + Key(33), std::string("4:64") + manyParts},
      {"line feed escaped", "a = \"\"\"\\\n" + deep + "\"\"\"\n" + Key(33), std::string("3:64") + manyParts},
      {"four quotes at the end", "a = \"\"\"b\"\"\"\"\n" + Key(33), std::string("2:64") + manyParts},
      {"five quotes at the end", "a = '''b'''''\n" + Key(33), std::string("2:64") + manyParts},
      {"empty long string", "a = \"\"\"\"\"\"\n" + Key(33), std::string("2:64") + manyParts},
      {"empty string", "a = \"\"\n" + Key(33), std::string("2:64") + manyParts},
      {"string that is not closed", "a = \"b\n" + Key(33), std::string("2:64") + manyParts},
      {"long string that is not closed", "a = '''b\n" + Key(33), "accepted"},
      {"backslash at the end", "a = \"\\", "accepted"},
      {"quote at the end", "a = \"", "accepted"},
      {"quotes at the end", "a = '''b''", "accepted"},
  });
}

TEST(VelTomlGuardTest, Columns_AreCountedInCodePoints) {
  ExpectAll({
      {"two bytes", "\"ä\"." + Key(32) + " = 1", std::string("1:66") + manyParts},
      {"byte order mark", "\xEF\xBB\xBF" + Key(33) + " = 1", std::string("1:64") + manyParts},
      {"CRLF", "a = 1\r\n" + Key(33) + " = 1\r\n", std::string("2:64") + manyParts},
  });
}

}  // namespace
