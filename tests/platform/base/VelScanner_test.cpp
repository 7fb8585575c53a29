// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelScanner_test.cpp Words and numbers of a text, read as scanf reads them in the "C" locale.
#include "platform/base/VelScanner.h"

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

struct WordCase {
  const char* name;
  std::string text;
  std::vector<std::string> words;
};

const WordCase wordCases[] = {
    {"Nothing", "", {}},
    {"WhiteSpaceOnly", " \t\n\v\f\r", {}},
    {"One", "scale_u", {"scale_u"}},
    {"Two", "  scale_u\t scale_v ", {"scale_u", "scale_v"}},
    {"TooLongGoesOnAsTheNext", "abcdefghij k", {"abcdefgh", "ij", "k"}},
    {"ExactlyTheLimit", "abcdefgh k", {"abcdefgh", "k"}},
    {"NulEnds", std::string("a\0b c", 5), {"a"}},
    {"OtherBytesStay", "\xC3\xA4;,", {"\xC3\xA4;,"}},
};

class VelScannerWordTest : public ::testing::TestWithParam<WordCase> {};

TEST_P(VelScannerWordTest, Word_ReadsUpToWhiteSpaceOrTheLimit) {
  VelScanner scanner(GetParam().text);
  std::vector<std::string> words;
  while (const auto word = scanner.Word(8)) words.emplace_back(*word);
  EXPECT_EQ(words, GetParam().words);
  EXPECT_FALSE(scanner.Word(8));
}

INSTANTIATE_TEST_SUITE_P(Words, VelScannerWordTest, ::testing::ValuesIn(wordCases),
                         [](const auto& iCase) { return iCase.param.name; });

struct RealCase {
  const char* name;
  const char* text;
  std::vector<double> reals;
};

const RealCase realCases[] = {
    {"Nothing", "", {}},
    {"WhiteSpaceOnly", " \n", {}},
    {"One", "2", {2.0}},
    {"Two", " 0.5\t-1.25e1 ", {0.5, -12.5}},
    {"Plus", "+3", {3.0}},
    {"PointFirst", ".5", {0.5}},
    {"PointLast", "5.", {5.0}},
    {"PointOnly", ".", {}},
    {"SignOnly", "-", {}},
    {"TwoSigns", "--1", {}},
    {"CommaEnds", "1,5", {1.0}},
    {"WordEndsEverything", "1 two 3", {1.0}},
    {"TwoPoints", "1.2.3", {1.2, 0.3}},
    {"ExponentWithoutDigitsIsTaken", "1e 2", {1.0, 2.0}},
    {"Hexadecimal", "0x1p4 0X.8", {16.0, 0.5}},
    {"HexadecimalPrefixOnly", "0x", {}},
    {"Infinite", "inf -INFINITY", {infinite, -infinite}},
    {"InfiniteCutOff", "infin", {}},
    {"TooLarge", "1e999 -1e999", {infinite, -infinite}},
    {"TooSmall", "1e-999 0.5", {0.0, 0.5}},
};

class VelScannerRealTest : public ::testing::TestWithParam<RealCase> {};

TEST_P(VelScannerRealTest, Real_ReadsOneNumberAfterTheOther) {
  VelScanner scanner(GetParam().text);
  std::vector<double> reals;
  while (const auto real = scanner.Real()) reals.push_back(*real);
  EXPECT_EQ(reals, GetParam().reals);
  EXPECT_FALSE(scanner.Real()) << "nothing is read after what cannot be read";
}

INSTANTIATE_TEST_SUITE_P(Reals, VelScannerRealTest, ::testing::ValuesIn(realCases),
                         [](const auto& iCase) { return iCase.param.name; });

TEST(VelScannerTest, Real_ReadsWhatIsNoNumber) {
  VelScanner scanner("NaN");
  const auto real = scanner.Real();
  ASSERT_TRUE(real);
  EXPECT_TRUE(std::isnan(*real));
}

/// Whether a number is too large or too small takes both its digits and its exponent.
TEST(VelScannerTest, Real_OfManyDigits_IsMeasuredTogetherWithItsExponent) {
  const std::string zeros(1000, '0');
  EXPECT_EQ(VelScanner("1" + zeros + "e-400").Real(), infinite);
  EXPECT_EQ(VelScanner("1" + zeros + "e-1001").Real(), 0.1);
  EXPECT_EQ(VelScanner("1" + zeros + "e-1400").Real(), 0.0);
  EXPECT_EQ(VelScanner("0." + zeros + "1e500").Real(), 0.0);
  EXPECT_EQ(VelScanner("0." + zeros + "1e+1002").Real(), 10.0);
  EXPECT_EQ(VelScanner("0." + zeros + "1e1400").Real(), infinite);
  EXPECT_EQ(VelScanner("0x1" + zeros + "p-2000").Real(), infinite);
  EXPECT_EQ(VelScanner("0x1" + zeros + "p-3999").Real(), 2.0);
  EXPECT_EQ(VelScanner("0x." + zeros + "1p2000").Real(), 0.0);
  EXPECT_EQ(VelScanner("1e-99999999999999999999").Real(), 0.0);
  EXPECT_EQ(VelScanner("1e99999999999999999999").Real(), infinite);
}

TEST(VelScannerTest, Real_OfManyDigits_IsInfiniteOrZero) {
  const std::string many(400, '9');
  EXPECT_EQ(VelScanner(many).Real(), infinite);
  EXPECT_EQ(VelScanner("0." + std::string(400, '0') + "1").Real(), 0.0);
}

}  // namespace
