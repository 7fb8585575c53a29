// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelToken_test.cpp The behaviour of the tokeniser.
#include "platform/base/VelToken.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_view_literals;

std::vector<std::string> WordsOf(VelToken& ioToken) {
  std::vector<std::string> words;
  for (VelString word = ioToken.Next(); !word.IsEmpty(); word = ioToken.Next()) words.emplace_back(word.View());
  return words;
}

using Words = std::vector<std::string>;

TEST(VelToken, WithWhiteSpace_AnswersTheWords) {
  struct Case {
    const char* name;
    std::string_view text;
    Words expected;
  };
  const Case cases[] = {
      {"empty", ""sv, {}},
      {"white space only", " \t\r\n\v\f"sv, {}},
      {"one word", "editable"sv, {"editable"}},
      {"one letter", "a"sv, {"a"}},
      {"leading and trailing", "  a b  "sv, {"a", "b"}},
      {"runs count as one", "a \t\r\n b"sv, {"a", "b"}},
      {"each of them separates", "a b\tc\rd\ne\vf\fg"sv, {"a", "b", "c", "d", "e", "f", "g"}},
      {"other control characters do not", "a\x01\x1F\x7Fz"sv, {"a\x01\x1F\x7Fz"}},
      {"a NUL does not", "a\0b c"sv, {std::string("a\0b", 3), "c"}},
      {"a no-break space does not", "a\xC2\xA0z"sv, {"a\xC2\xA0z"}},
      {"ill-formed bytes do not", "\xFF \xC3"sv, {"\xFF", "\xC3"}},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    VelToken token{VelString(test.text)};
    EXPECT_EQ(WordsOf(token), test.expected);
    EXPECT_TRUE(token.Next().IsEmpty());
  }
}

TEST(VelToken, WithSeparatorsOfItsOwn_KeepsWhiteSpaceInTheWords) {
  struct Case {
    const char* name;
    std::string_view text;
    std::string_view separators;
    Words expected;
  };
  const Case cases[] = {
      {"comma", ",a b,,c,"sv, ","sv, {"a b", "c"}},
      {"several", "a;b,c"sv, ",;"sv, {"a", "b", "c"}},
      {"none", " a b "sv, ""sv, {" a b "}},
      {"a NUL", "a\0b"sv, "\0"sv, {"a", "b"}},
      {"bytes above 127 are passed over", "a\xC3\xA4,z"sv, "\xC3,\xA4"sv, {"a\xC3\xA4", "z"}},
      {"the highest ASCII byte", "a\x7Fz"sv, "\x7F"sv, {"a", "z"}},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    VelToken token{VelString(test.text), VelString(test.separators)};
    EXPECT_EQ(WordsOf(token), test.expected);
    EXPECT_TRUE(token.Next().IsEmpty());
  }
}

TEST(VelToken, MadeFromATemporary_OutlivesIt) {
  const char* longText = "a text that is too long to stand in the string object itself";
  VelToken token(VelString(longText) + " tail");
  EXPECT_EQ(token.Next(), "a");
  Words rest = WordsOf(token);
  ASSERT_FALSE(rest.empty());
  EXPECT_EQ(rest.back(), "tail");
}

}  // namespace
