// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelParmDictionary_test.cpp The units of length: which there are, and what they are worth.
#include "platform/materials/VelParmDictionary.h"

#include <string_view>

#include <gtest/gtest.h>

namespace {

TEST(VelParmDictionaryTest, FindUnit_KnowsTheseUnits) {
  struct Case {
    const char* symbol;
    double metersPerUnit;
  };
  const Case cases[] = {{"MM", 0.001}, {"CM", 0.01}, {"M", 1.0}, {"IN", 0.0254}, {"KM", 1000.0}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.symbol);
    const VelUnit* unit = VelParmDictionary::FindUnit(row.symbol);
    ASSERT_NE(unit, nullptr);
    EXPECT_EQ(unit->symbol, row.symbol);
    EXPECT_EQ(unit->metersPerUnit, row.metersPerUnit);
    EXPECT_EQ(VelParmDictionary::FindUnit(row.symbol), unit) << "the same one each time";
  }
}

TEST(VelParmDictionaryTest, FindUnit_OfAnyOtherSymbol_IsNull) {
  for (const char* symbol : {"", "mm", "Mm", " MM", "MM ", "MMM", "FT", "meter"}) {
    EXPECT_EQ(VelParmDictionary::FindUnit(symbol), nullptr) << "'" << symbol << "'";
  }
  EXPECT_EQ(VelParmDictionary::FindUnit(VelString(std::string_view("MM\0", 3))), nullptr);
}

}  // namespace
