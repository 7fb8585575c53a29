// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelLineReader_test.cpp Lines and words of the platform's own formats.
#include "platform/base/VelLineReader.h"

#include <string>

#include <gtest/gtest.h>

namespace {

/// Every line with its number, words joined by '|'.
std::string LinesOf(std::string_view iText) {
  std::string lines;
  VelLineReader reader(iText);
  while (reader.Next()) {
    lines += std::to_string(reader.Line()) + ':';
    for (const std::string_view word : reader.Words()) lines.append(word).append("|");
    lines += ' ';
  }
  return lines;
}

TEST(VelLineReader, Text_IsReadLineByLineInWords) {
  struct Case {
    const char* name;
    std::string_view text;
    std::string expected;
  };
  for (const Case& test :
       {Case{"empty", "", ""}, Case{"blank lines", "\n \t\n\r\n", ""}, Case{"words", "a  bc\td\n", "1:a|bc|d| "},
        Case{"no line end", "a\nb", "1:a| 2:b| "}, Case{"CRLF", "a b\r\nc\r\n", "1:a|b| 2:c| "},
        Case{"comments", "# a\nb # c\nd#e f\n", "2:b| 3:d#e|f| "},
        Case{"form feed and vertical tab", "a\fb\vc", "1:a|b|c| "}}) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(LinesOf(test.text), test.expected);
  }
}

TEST(VelLineReader, AtTheEnd_TellsTheLastLine) {
  VelLineReader reader("a\n\n# b\n");
  EXPECT_EQ(reader.Line(), 0U);
  EXPECT_TRUE(reader.Next());
  EXPECT_FALSE(reader.Next());
  EXPECT_EQ(reader.Line(), 3U);
}

TEST(VelLineReader, Name_IsLettersDigitsAndUnderscores) {
  for (const char* name : {"a", "Z9_", "_", "VelRmaScalar"}) EXPECT_TRUE(VelIsName(name)) << name;
  for (const char* other : {"a.b", "a-b", "\xC3\xA9", "a:b", "'"}) EXPECT_FALSE(VelIsName(other)) << other;
}

}  // namespace
