// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFormat_test.cpp Every placeholder with every kind of argument, and templates that do not fit their
/// arguments.
#include "platform/base/VelFormat.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

#include <gtest/gtest.h>

#include "platform/base/HResult.h"
#include "platform/base/VelString.h"
#include "platform/base/VelUnicodeString.h"

namespace {

static_assert(std::is_trivially_copyable_v<VelFormatArgument>);
static_assert(!std::is_constructible_v<VelFormatArgument, long double>);

enum class Direction : std::int8_t { Forward = 1, Backward = -1 };

const void* PointerTo(std::uintptr_t iAddress) { return reinterpret_cast<const void*>(iAddress); }

std::string HexadecimalAddress(const void* iPointer) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%jx",
                static_cast<std::uintmax_t>(reinterpret_cast<std::uintptr_t>(iPointer)));
  return text.data();
}

/// One argument and what it prints under each placeholder.
struct Case {
  const char* name;
  VelFormatArgument argument;
  const char* s;
  const char* d;  ///< Also of %u.
  const char* x;
  const char* f;       ///< Also of %lf.
  const char* twoF;    ///< %.2f and %.2lf.
  const char* wholeF;  ///< %.0f and %.0lf.
};

const Case formatCases[] = {
    {"true", true, "true", "1", "1", "1.000000", "1.00", "1"},
    {"false", false, "false", "0", "0", "0.000000", "0.00", "0"},
    {"int8", std::int8_t{-1}, "-1", "-1", "ff", "-1.000000", "-1.00", "-1"},
    {"uint8", std::uint8_t{200}, "200", "200", "c8", "200.000000", "200.00", "200"},
    {"char", 'A', "65", "65", "41", "65.000000", "65.00", "65"},
    {"int16", std::int16_t{-2}, "-2", "-2", "fffe", "-2.000000", "-2.00", "-2"},
    {"uint16", std::uint16_t{65535}, "65535", "65535", "ffff", "65535.000000", "65535.00", "65535"},
    {"int32", -255, "-255", "-255", "ffffff01", "-255.000000", "-255.00", "-255"},
    {"int32 zero", 0, "0", "0", "0", "0.000000", "0.00", "0"},
    {"uint32", 4000000000U, "4000000000", "4000000000", "ee6b2800", "4000000000.000000", "4000000000.00", "4000000000"},
    {"long", -1L, "-1", "-1", "ffffffffffffffff", "-1.000000", "-1.00", "-1"},
    {"long long", 31LL, "31", "31", "1f", "31.000000", "31.00", "31"},
    {"int64 lowest", std::numeric_limits<std::int64_t>::min(), "-9223372036854775808", "-9223372036854775808",
     "8000000000000000", "-9223372036854775808.000000", "-9223372036854775808.00", "-9223372036854775808"},
    {"uint64 highest, with digits that a real would lose", std::numeric_limits<std::uint64_t>::max(),
     "18446744073709551615", "18446744073709551615", "ffffffffffffffff", "18446744073709551615.000000",
     "18446744073709551615.00", "18446744073709551615"},
    {"result code", E_FAIL, "-2147467259", "-2147467259", "80004005", "-2147467259.000000", "-2147467259.00",
     "-2147467259"},
    {"scoped enumerator", Direction::Backward, "-1", "-1", "ff", "-1.000000", "-1.00", "-1"},
    {"float", 1.5F, "1.500000", "1.500000", "1.500000", "1.500000", "1.50", "2"},
    {"float widened", 0.1F, "0.100000", "0.100000", "0.100000", "0.100000", "0.10", "0"},
    {"double", -1234.56789, "-1234.567890", "-1234.567890", "-1234.567890", "-1234.567890", "-1234.57", "-1235"},
    {"double rounded half to even", 0.125, "0.125000", "0.125000", "0.125000", "0.125000", "0.12", "0"},
    {"minus zero", -0.0, "-0.000000", "-0.000000", "-0.000000", "-0.000000", "-0.00", "-0"},
    {"not a number", std::numeric_limits<double>::quiet_NaN(), "nan", "nan", "nan", "nan", "nan", "nan"},
    {"minus not a number", -std::numeric_limits<double>::quiet_NaN(), "nan", "nan", "nan", "nan", "nan", "nan"},
    {"infinity", std::numeric_limits<double>::infinity(), "inf", "inf", "inf", "inf", "inf", "inf"},
    {"minus infinity", -std::numeric_limits<float>::infinity(), "-inf", "-inf", "-inf", "-inf", "-inf", "-inf"},
    {"pointer", PointerTo(0x7FFEBEEF), "7ffebeef", "7ffebeef", "7ffebeef", "7ffebeef", "7ffebeef", "7ffebeef"},
    {"null pointer", PointerTo(0), "0", "0", "0", "0", "0", "0"},
    {"nullptr", nullptr, "0", "0", "0", "0", "0", "0"},
    {"null text", static_cast<const char*>(nullptr), "", "", "0", "", "", ""},
};

TEST(VelFormat, EveryPlaceholder_WithEveryKindOfArgument_PrintsItsTableEntry) {
  for (const Case& testCase : formatCases) {
    SCOPED_TRACE(testCase.name);
    EXPECT_EQ(VelFormat::ToText("%s", testCase.argument), testCase.s);
    EXPECT_EQ(VelFormat::ToText("%d", testCase.argument), testCase.d);
    EXPECT_EQ(VelFormat::ToText("%u", testCase.argument), testCase.d);
    EXPECT_EQ(VelFormat::ToText("%x", testCase.argument), testCase.x);
    EXPECT_EQ(VelFormat::ToText("%f", testCase.argument), testCase.f);
    EXPECT_EQ(VelFormat::ToText("%lf", testCase.argument), testCase.f);
    EXPECT_EQ(VelFormat::ToText("%.2f", testCase.argument), testCase.twoF);
    EXPECT_EQ(VelFormat::ToText("%.2lf", testCase.argument), testCase.twoF);
    EXPECT_EQ(VelFormat::ToText("%.0f", testCase.argument), testCase.wholeF);
    EXPECT_EQ(VelFormat::ToText("%.0lf", testCase.argument), testCase.wholeF);
  }
}

TEST(VelFormat, EveryPlaceholder_WithAnyKindOfText_PrintsTheTextAndUnderXItsAddress) {
  const char array[] =
      "Gr\xC3\xBC\xC3\x9F"
      "e";
  char mutableArray[] = "changeable";
  const std::string standard = "standard";
  const std::string_view part = std::string_view(standard).substr(2, 3);
  const VelString system("Diffuse");
  const VelUnicodeString unicode("\xE2\x82\xAC 5");
  const struct {
    const char* name;
    VelFormatArgument argument;
    std::string expected;
    const void* address;
  } cases[] = {
      {"array", array,
       "Gr\xC3\xBC\xC3\x9F"
       "e",
       array},
      {"mutable array", mutableArray, "changeable", mutableArray},
      {"std::string", standard, "standard", standard.data()},
      {"part of a text without a NUL", part, "and", part.data()},
      {"VelString", system, "Diffuse", system.CString()},
      {"VelUnicodeString", unicode, "\xE2\x82\xAC 5", unicode.CString()},
  };
  for (const auto& testCase : cases) {
    SCOPED_TRACE(testCase.name);
    for (const char* const placeholder : {"%s", "%d", "%u", "%f", "%lf", "%.2f", "%.2lf"}) {
      EXPECT_EQ(VelFormat::ToText(placeholder, testCase.argument), testCase.expected) << placeholder;
    }
    EXPECT_EQ(VelFormat::ToText("%x", testCase.argument), HexadecimalAddress(testCase.address));
  }
}

TEST(VelFormat, Pointer_OfAnyObjectType_PrintsItsAddress) {
  int number = 0;
  const Case* const testCase = formatCases;
  unsigned char bytes[4] = {};
  EXPECT_EQ(VelFormat::ToText("%x", &number), HexadecimalAddress(&number));
  EXPECT_EQ(VelFormat::ToText("%x", testCase), HexadecimalAddress(testCase));
  EXPECT_EQ(VelFormat::ToText("%x", bytes), HexadecimalAddress(bytes)) << "bytes are no text";
}

TEST(VelFormat, Text_WithEmbeddedNul_IsPrintedWhole) {
  const std::string text("a\0b", 3);
  EXPECT_EQ(VelFormat::ToText("[%s]", text), std::string("[a\0b]", 5));
}

TEST(VelFormat, Text_WithPercentSigns_IsNotReadAsATemplate) {
  EXPECT_EQ(VelFormat::ToText("%s and %s", "%d", "100%"), "%d and 100%");
}

TEST(VelFormat, Precision_UpToSeventeen_GivesThatManyDecimals) {
  EXPECT_EQ(VelFormat::ToText("%.1f", 0.25), "0.2");
  EXPECT_EQ(VelFormat::ToText("%.3f", 2.0 / 3.0), "0.667");
  EXPECT_EQ(VelFormat::ToText("%.17f", 0.1), "0.10000000000000001");
  EXPECT_EQ(VelFormat::ToText("%.17lf", 0.1F), "0.10000000149011612");
  EXPECT_EQ(VelFormat::ToText("%.06f", 0.5), "0.500000");
}

TEST(VelFormat, Real_OfAnySize_KeepsEveryDigit) {
  const std::string largest = VelFormat::ToText("%.17f", -std::numeric_limits<double>::max());
  EXPECT_EQ(largest.size(), 1U + 309U + 1U + 17U);
  EXPECT_EQ(largest.substr(0, 10), "-179769313");
  EXPECT_EQ(VelFormat::ToText("%f", std::numeric_limits<double>::denorm_min()), "0.000000");
}

/// Templates and what becomes of them with the two arguments 7 and "seven".
struct TemplateCase {
  const char* name;
  const char* format;
  const char* expected;
};

const TemplateCase templateCases[] = {
    {"empty", "", ""},
    {"surplus arguments", "nothing", "nothing"},
    {"arguments in order", "%d is %s.", "7 is seven."},
    {"side by side", "%d%s", "7seven"},
    {"missing argument", "%d %s %d", "7 seven %d"},
    {"missing argument with precision", "%d %s %.3lf", "7 seven %.3lf"},
    {"percent sign", "%d%%, %s%%", "7%, seven%"},
    {"percent sign before a letter", "%%d %d", "%d 7"},
    {"percent sign without arguments left", "%d%s%%%%", "7seven%%"},
    {"percent sign at the end", "%d %", "7 %"},
    {"unknown letter uses up no argument", "%q %d", "%q 7"},
    {"blank after the percent sign", "50 % done: %d", "50 % done: 7"},
    {"width is no placeholder", "%5d %d", "%5d 7"},
    {"length of an integer is no placeholder", "%ld %d", "%ld 7"},
    {"precision without digits", "%.f %d", "%.f 7"},
    {"precision too large", "%.18f %d", "%.18f 7"},
    {"precision far too large", "%.99999999999999999999f %d", "%.99999999999999999999f 7"},
    {"precision of an integer", "%.3d %d", "%.3d 7"},
    {"precision cut short", "%d %.3", "7 %.3"},
    {"length cut short", "%d %l", "7 %l"},
    {"two lengths", "%llf %d", "%llf 7"},
    {"upper case", "%D %S %X %d", "%D %S %X 7"},
    {"unknown one before a placeholder", "%!%d", "%!7"},
};

TEST(VelFormat, Template_ThatDoesNotFitItsArguments_LosesNothing) {
  for (const TemplateCase& testCase : templateCases) {
    SCOPED_TRACE(testCase.name);
    EXPECT_EQ(VelFormat::ToText(testCase.format, 7, "seven"), testCase.expected);
  }
}

TEST(VelFormat, Template_WithoutArguments_StaysAsItStands) {
  EXPECT_EQ(VelFormat::ToText("%s %d %u %x %f %lf %.2f %.2lf %%"), "%s %d %u %x %f %lf %.2f %.2lf %");
}

TEST(VelFormat, ListToText_WithAList_PrintsLikeToText) {
  const VelFormatArgument arguments[] = {"x", 3};
  EXPECT_EQ(VelFormat::ListToText("%s=%d", arguments), "x=3");
  EXPECT_EQ(VelFormat::ListToText("%s=%d", {}), "%s=%d");
}

}  // namespace
