// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelString_test.cpp The behaviour of the 8-bit string.
#include "platform/base/VelString.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_set>
#include <utility>

#include "platform/base/VelUnicodeString.h"

namespace {

using namespace std::string_view_literals;

template <class Left, class Right>
concept Comparable = requires(const Left& iLeft, const Right& iRight) {
  iLeft == iRight;
};

static_assert(sizeof(VelString) == sizeof(std::string));
static_assert(std::is_convertible_v<const char*, VelString>);
static_assert(!std::is_convertible_v<std::string_view, VelString>);
static_assert(!std::is_convertible_v<VelUnicodeString, VelString>);
static_assert(!std::is_convertible_v<VelString, VelUnicodeString>);
static_assert(!Comparable<VelString, VelUnicodeString>);
static_assert(std::is_nothrow_move_constructible_v<VelString>);

const char* TextOfName(const VelString& iName) { return iName.CString(); }

TEST(VelString, MadeWithoutArguments_IsEmpty) {
  const VelString text;
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(text.Length(), 0U);
  EXPECT_STREQ(text.CString(), "");
}

TEST(VelString, MadeFromNull_IsEmpty) {
  const char* null = nullptr;
  EXPECT_TRUE(VelString(null).IsEmpty());
  EXPECT_TRUE(VelString(null) == null);
  EXPECT_FALSE(VelString("a") == null);
}

TEST(VelString, WhereALiteralStands_IsMadeImplicitly) { EXPECT_STREQ(TextOfName("BasicMaterial"), "BasicMaterial"); }

TEST(VelString, MadeFromAView_KeepsEveryByte) {
  constexpr std::string_view bytes = "a\0b\xFF\xC3"sv;
  const VelString text(bytes);
  EXPECT_EQ(text.Length(), 5U);
  EXPECT_EQ(text.View(), bytes);
  EXPECT_STREQ(text.CString(), "a");
}

TEST(VelString, MadeFromACString_EndsAtItsNul) { EXPECT_EQ(VelString("a\0b").Length(), 1U); }

TEST(VelString, Compared_OrdersByUnsignedBytes) {
  struct Case {
    const char* name;
    std::string_view left;
    std::string_view right;
    std::strong_ordering expected;
  };
  const Case cases[] = {
      {"same", "abc"sv, "abc"sv, std::strong_ordering::equal},
      {"both empty", ""sv, ""sv, std::strong_ordering::equal},
      {"empty first", ""sv, "a"sv, std::strong_ordering::less},
      {"shorter first", "ab"sv, "abc"sv, std::strong_ordering::less},
      {"upper case before lower case", "B"sv, "a"sv, std::strong_ordering::less},
      {"bytes above 127 last", "z"sv, "\xC3\xA4"sv, std::strong_ordering::less},
      {"what follows a NUL counts", "a\0b"sv, "a\0a"sv, std::strong_ordering::greater},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    const VelString left(test.left);
    const VelString right(test.right);
    EXPECT_TRUE((left <=> right) == test.expected);
    EXPECT_EQ(left == right, test.expected == std::strong_ordering::equal);
    EXPECT_EQ(std::hash<VelString>()(left) == std::hash<VelString>()(right), left == right);
  }
}

TEST(VelString, ComparedWithALiteral_NeedsNoConversion) {
  EXPECT_TRUE(VelString("alpha") == "alpha");
  EXPECT_TRUE("alpha" == VelString("alpha"));
  EXPECT_TRUE(VelString("alpha") != "Alpha");
  EXPECT_TRUE(VelString("alpha") < "beta");
}

TEST(VelString, Joined_HoldsBothParts) {
  const VelString left("left");
  const VelString right("right");
  EXPECT_EQ(left + right, "leftright");
  EXPECT_EQ(left + "_x", "left_x");
  EXPECT_EQ("x_" + left, "x_left");
  EXPECT_EQ(left, "left");

  VelString sum;
  sum += left;
  sum += "-";
  sum.Append("\0z"sv).Append(right);
  EXPECT_EQ(sum.View(), "left-\0zright"sv);
}

TEST(VelString, AppendedToItself_Doubles) {
  VelString text("a text that is too long to stand in the string object itself");
  const VelString once(text);
  text += text;
  EXPECT_EQ(text, once + once);
}

TEST(VelString, WithNullAppended_StaysAsItIs) {
  const char* null = nullptr;
  VelString text("a");
  text += null;
  EXPECT_EQ(text + null, "a");
}

TEST(VelString, AskedForItsStartAndItsEnd_ComparesBytes) {
  struct Case {
    const char* name;
    std::string_view text;
    std::string_view part;
    bool starts;
    bool ends;
  };
  const Case cases[] = {
      {"whole", "abc"sv, "abc"sv, true, true},       {"start", "abc"sv, "ab"sv, true, false},
      {"end", "abc"sv, "bc"sv, false, true},         {"empty part", "abc"sv, ""sv, true, true},
      {"both empty", ""sv, ""sv, true, true},        {"longer part", "abc"sv, "abcd"sv, false, false},
      {"other case", "abc"sv, "AB"sv, false, false}, {"NUL", "\0a\0"sv, "\0"sv, true, true},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(VelString(test.text).StartsWith(test.part), test.starts);
    EXPECT_EQ(VelString(test.text).EndsWith(VelString(test.part)), test.ends);
  }
}

TEST(VelString, SearchedForAText_AnswersTheFirstPosition) {
  const VelString text("abcabc\0d"sv);
  EXPECT_EQ(text.Find("abc"), 0U);
  EXPECT_EQ(text.Find("ca"), 2U);
  EXPECT_EQ(text.Find("\0d"sv), 6U);
  EXPECT_EQ(text.Find(""), 0U);
  EXPECT_EQ(text.Find("x"), std::nullopt);
  EXPECT_EQ(VelString().Find("x"), std::nullopt);
  EXPECT_EQ(VelString().Find(""), 0U);
}

TEST(VelString, CutToAPart_StaysInsideTheText) {
  struct Case {
    const char* name;
    std::size_t position;
    std::size_t count;
    const char* expected;
  };
  const Case cases[] = {
      {"start", 0, 2, "ab"},
      {"middle", 1, 1, "b"},
      {"rest", 1, VelString::rest, "bc"},
      {"count too large", 2, 9, "c"},
      {"at the end", 3, 1, ""},
      {"past the end", 4, 1, ""},
      {"far past the end", VelString::rest, VelString::rest, ""},
      {"nothing", 1, 0, ""},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(VelString("abc").SubString(test.position, test.count), test.expected);
  }
  EXPECT_EQ(VelString("abc").SubString(1), "bc");
}

TEST(VelString, InLowerCase_ChangesAsciiLettersOnly) {
  struct Case {
    const char* name;
    std::string_view text;
    std::string_view expected;
  };
  const Case cases[] = {
      {"empty", ""sv, ""sv},
      {"letters", "AZaz"sv, "azaz"sv},
      {"neighbours of the letters", "@[`{"sv, "@[`{"sv},
      {"the letter I in every locale", "I"sv, "i"sv},
      {"UTF-8", "\xC3\x84\xC3\x96"sv, "\xC3\x84\xC3\x96"sv},
      {"Latin-1", "\xC4\xD6"sv, "\xC4\xD6"sv},
      {"NUL", "A\0B"sv, "a\0b"sv},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    const VelString text(test.text);
    EXPECT_EQ(text.ToLower().View(), test.expected);
    EXPECT_EQ(text.View(), test.text);
  }
}

TEST(VelString, Cleared_IsEmpty) {
  VelString text("abc");
  text.Clear();
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(text, VelString());
}

TEST(VelString, InAHashedSet_IsFoundByItsBytes) {
  const std::unordered_set<VelString> names{"a", "b", VelString("a\0"sv)};
  EXPECT_EQ(names.size(), 3U);
  EXPECT_TRUE(names.contains("b"));
  EXPECT_TRUE(names.contains(VelString("a\0"sv)));
  EXPECT_FALSE(names.contains("c"));
}

}  // namespace
