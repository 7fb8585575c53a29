// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelUnicodeString_test.cpp The behaviour of the string for what people read and write.
#include "platform/base/VelUnicodeString.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_set>

#include "platform/base/VelString.h"

namespace {

using namespace std::string_view_literals;

static_assert(sizeof(VelUnicodeString) == sizeof(std::string));
static_assert(std::is_convertible_v<const char*, VelUnicodeString>);
static_assert(!std::is_convertible_v<std::string_view, VelUnicodeString>);
static_assert(!std::is_convertible_v<std::u16string_view, VelUnicodeString>);

/// UTF-8 with what it is in UTF-16; the count of code points follows from that.
struct Utf8Case {
  const char* name;
  std::string_view utf8;
  std::u16string_view utf16;
};

constexpr Utf8Case wellFormedCases[] = {
    {"empty", ""sv, u""sv},
    {"ASCII", "velvet"sv, u"velvet"sv},
    {"embedded NUL", "a\0b"sv, u"a\0b"sv},
    {"U+007F, the last of one byte", "\x7F"sv, u"\x7F"sv},
    {"U+0080, the first of two bytes", "\xC2\x80"sv, u"\x80"sv},
    {"U+07FF, the last of two bytes", "\xDF\xBF"sv, u"\x7FF"sv},
    {"U+0800, the first of three bytes", "\xE0\xA0\x80"sv, u"\x800"sv},
    {"U+D7FF, before the surrogates", "\xED\x9F\xBF"sv, u"\xD7FF"sv},
    {"U+E000, behind the surrogates", "\xEE\x80\x80"sv, u"\xE000"sv},
    {"U+FEFF, a byte order mark", "\xEF\xBB\xBF"sv, u"\xFEFF"sv},
    {"U+FFFD, a replacement that was in the text", "\xEF\xBF\xBD"sv, u"\xFFFD"sv},
    {"U+FFFF, the last of three bytes", "\xEF\xBF\xBF"sv, u"\xFFFF"sv},
    {"U+10000, the first of four bytes", "\xF0\x90\x80\x80"sv, u"\xD800\xDC00"sv},
    {"U+1F3A8", "\xF0\x9F\x8E\xA8"sv, u"\xD83C\xDFA8"sv},
    {"U+10FFFF, the last", "\xF4\x8F\xBF\xBF"sv, u"\xDBFF\xDFFF"sv},
    {"mixed", "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8E\xA8z"sv, u"a\u00E4\u20AC\xD83C\xDFA8z"sv},
};

constexpr Utf8Case illFormedCases[] = {
    {"a lone trail byte", "\x80"sv, u"\xFFFD"sv},
    {"two lone trail bytes", "\x80\xBF"sv, u"\xFFFD\xFFFD"sv},
    {"overlong NUL of two bytes", "\xC0\x80"sv, u"\xFFFD\xFFFD"sv},
    {"overlong slash of two bytes", "\xC1\xAF"sv, u"\xFFFD\xFFFD"sv},
    {"overlong of three bytes", "\xE0\x80\xAF"sv, u"\xFFFD\xFFFD\xFFFD"sv},
    {"the largest overlong of three bytes", "\xE0\x9F\xBF"sv, u"\xFFFD\xFFFD\xFFFD"sv},
    {"overlong of four bytes", "\xF0\x80\x80\xAF"sv, u"\xFFFD\xFFFD\xFFFD\xFFFD"sv},
    {"the largest overlong of four bytes", "\xF0\x8F\xBF\xBF"sv, u"\xFFFD\xFFFD\xFFFD\xFFFD"sv},
    {"the lowest surrogate", "\xED\xA0\x80"sv, u"\xFFFD\xFFFD\xFFFD"sv},
    {"the highest surrogate", "\xED\xBF\xBF"sv, u"\xFFFD\xFFFD\xFFFD"sv},
    {"a pair of surrogates", "\xED\xA0\xBC\xED\xBE\xA8"sv, u"\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD"sv},
    {"U+110000", "\xF4\x90\x80\x80"sv, u"\xFFFD\xFFFD\xFFFD\xFFFD"sv},
    {"F5, a lead byte of nothing", "\xF5\x80\x80\x80"sv, u"\xFFFD\xFFFD\xFFFD\xFFFD"sv},
    {"a form of five bytes", "\xF8\x88\x80\x80\x80"sv, u"\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD"sv},
    {"FE and FF", "\xFE\xFF"sv, u"\xFFFD\xFFFD"sv},
    {"one byte of two", "\xC3"sv, u"\xFFFD"sv},
    {"one byte of three", "\xE2"sv, u"\xFFFD"sv},
    {"two bytes of three", "\xE2\x82"sv, u"\xFFFD"sv},
    {"one byte of four", "\xF0"sv, u"\xFFFD"sv},
    {"two bytes of four", "\xF0\x9F"sv, u"\xFFFD"sv},
    {"three bytes of four", "\xF0\x9F\x8E"sv, u"\xFFFD"sv},
    {"cut short before a letter", "\xE2\x82z"sv, u"\xFFFDz"sv},
    {"cut short before a lead byte", "\xF0\x9F\xC3\xA4"sv, u"\xFFFD\u00E4"sv},
    {"cut short before a NUL", "\xC3\0"sv, u"\xFFFD\0"sv},
    {"lead bytes in a row", "\xE2\xE2\x82\xAC"sv, u"\xFFFD\u20AC"sv},
    {"an example of the Unicode standard", "a\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64"sv,
     u"a\xFFFD\xFFFD\xFFFD"
     u"b\xFFFD"
     u"c\xFFFD\xFFFD"
     u"d"sv},
};

std::size_t CodePointsOf(std::u16string_view iText) {
  std::size_t count = 0;
  for (const char16_t unit : iText) count += unit < 0xDC00 || 0xDFFF < unit ? 1 : 0;
  return count;
}

TEST(VelUnicodeString, WithWellFormedBytes_RoundTripsThroughUtf16) {
  for (const Utf8Case& test : wellFormedCases) {
    SCOPED_TRACE(test.name);
    const VelUnicodeString text(test.utf8);
    EXPECT_TRUE(text.IsWellFormed());
    EXPECT_EQ(text.ToUtf16(), test.utf16);
    EXPECT_EQ(VelUnicodeString(test.utf16), text);
    EXPECT_EQ(text.CodePointCount(), CodePointsOf(test.utf16));
    EXPECT_EQ(text.Length(), test.utf8.size());
  }
}

TEST(VelUnicodeString, WithIllFormedBytes_ReplacesEachMaximalSubpartInUtf16) {
  for (const Utf8Case& test : illFormedCases) {
    SCOPED_TRACE(test.name);
    const VelUnicodeString text(test.utf8);
    EXPECT_FALSE(text.IsWellFormed());
    EXPECT_EQ(text.ToUtf16(), test.utf16);
    EXPECT_EQ(text.CodePointCount(), CodePointsOf(test.utf16));
    EXPECT_EQ(text.View(), test.utf8);
    EXPECT_TRUE(VelUnicodeString(text.ToUtf16()).IsWellFormed());
  }
}

TEST(VelUnicodeString, WithEveryCodePoint_RoundTripsThroughUtf16) {
  for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
    if (0xD800 <= codePoint && codePoint <= 0xDFFF) continue;
    std::u16string units;
    if (codePoint < 0x10000) {
      units.push_back(static_cast<char16_t>(codePoint));
    } else {
      units.push_back(static_cast<char16_t>(0xD7C0 + (codePoint >> 10U)));
      units.push_back(static_cast<char16_t>(0xDC00 + (codePoint & 0x3FFU)));
    }
    const VelUnicodeString text(units);
    ASSERT_TRUE(text.IsWellFormed()) << std::hex << static_cast<std::uint32_t>(codePoint);
    ASSERT_EQ(text.CodePointCount(), 1U) << std::hex << static_cast<std::uint32_t>(codePoint);
    ASSERT_EQ(text.ToUtf16(), units) << std::hex << static_cast<std::uint32_t>(codePoint);
  }
}

TEST(VelUnicodeString, MadeFromUtf16WithUnpairedSurrogates_HoldsReplacements) {
  struct Case {
    const char* name;
    std::u16string_view utf16;
    std::string_view expected;
  };
  const Case cases[] = {
      {"a high one at the end", u"a\xD83C"sv, "a\xEF\xBF\xBD"sv},
      {"a high one before a letter", u"\xD83Cz"sv, "\xEF\xBF\xBDz"sv},
      {"a low one alone", u"\xDFA8"sv, "\xEF\xBF\xBD"sv},
      {"low before high", u"\xDFA8\xD83C"sv, "\xEF\xBF\xBD\xEF\xBF\xBD"sv},
      {"two high ones, then a low one", u"\xD83C\xD83C\xDFA8"sv, "\xEF\xBF\xBD\xF0\x9F\x8E\xA8"sv},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(VelUnicodeString(test.utf16).View(), test.expected);
  }
}

TEST(VelUnicodeString, ConvertedToAVelStringAndBack_KeepsEveryByte) {
  std::string allBytes;
  for (int byte = 0; byte < 256; ++byte) allBytes += static_cast<char>(byte);
  const VelUnicodeString text{std::string_view(allBytes)};
  EXPECT_EQ(text.ToVelString().View(), allBytes);
  EXPECT_EQ(VelString(text).View(), allBytes);
  EXPECT_EQ(VelUnicodeString(text.ToVelString()), text);
}

TEST(VelUnicodeString, MadeFromNull_IsEmpty) {
  const char* null = nullptr;
  EXPECT_TRUE(VelUnicodeString(null).IsEmpty());
  EXPECT_EQ(VelUnicodeString(null).CodePointCount(), 0U);
}

TEST(VelUnicodeString, WithATextRemoved_KeepsWhatStoodAround) {
  struct Case {
    const char* name;
    std::string_view text;
    std::string_view removed;
    std::string_view expected;
  };
  const Case cases[] = {
      {"absent", "abc"sv, "x"sv, "abc"sv},
      {"empty text", ""sv, "x"sv, ""sv},
      {"nothing to remove", "abc"sv, ""sv, "abc"sv},
      {"start, middle and end", "-a-b-"sv, "-"sv, "ab"sv},
      {"in a row", "a---b"sv, "-"sv, "ab"sv},
      {"the whole text", "abab"sv, "ab"sv, ""sv},
      {"overlapping occurrences", "aaa"sv, "aa"sv, "a"sv},
      {"what the removal joins stays", "aabb"sv, "ab"sv, "ab"sv},
      {"longer than the text", "a"sv, "ab"sv, "a"sv},
      {"a NUL", "a\0b\0"sv, "\0"sv, "ab"sv},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    VelUnicodeString text(test.text);
    text.RemoveAll(test.removed);
    EXPECT_EQ(text.View(), test.expected);
  }
}

TEST(VelUnicodeString, WithItselfRemoved_IsEmpty) {
  VelUnicodeString text("abc");
  text.RemoveAll(text);
  EXPECT_TRUE(text.IsEmpty());
}

TEST(VelUnicodeString, UsedAsAText_SharesTheOperationsOfVelString) {
  VelUnicodeString path("textures/");
  path += "wood";
  EXPECT_EQ(path + ".png", "textures/wood.png");
  EXPECT_TRUE(path.StartsWith("textures"));
  EXPECT_EQ(path.Find("/"), 8U);
  EXPECT_EQ(path.SubString(9), "wood");
  EXPECT_TRUE(VelUnicodeString("a") < VelUnicodeString("b"));
  EXPECT_EQ(std::unordered_set<VelUnicodeString>({"a", "a", "b"}).size(), 2U);
}

}  // namespace
