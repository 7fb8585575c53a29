// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgSize_test.cpp Sizes that no library lets through, but that must do no harm if one does.
#include "platform/images/worker/VelSvgSize.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace {

constexpr double endless = std::numeric_limits<double>::infinity();
constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr const char* nothing = "has nothing to be drawn: its width or its height is 0";
constexpr const char* tooMany =
    "has too many x too many pixels at 96 dpi; expected at most 16384 a side and 67108864 in all";

TEST(VelSvgSize, SizesThatAreNone_AreRefusedBeforeTheyAreCounted) {
  struct Case {
    double side;
    const char* cause;
  };
  for (const Case& one : {Case{1e300, tooMany}, Case{endless, tooMany}, Case{none, nothing}, Case{-1, nothing},
                          Case{-endless, nothing}, Case{0, nothing}}) {
    int width = -7;
    int height = -7;
    std::string cause;
    EXPECT_EQ((VelSvgSize{one.side, one.side}.CountPixels(96, width, height, cause)), E_FAIL) << one.side;
    EXPECT_EQ(cause, one.cause) << one.side;
    EXPECT_EQ(width, -7);
    EXPECT_EQ(height, -7);
  }
}

TEST(VelSvgSize, APictureOfAllPixelsThatThereMayBe_IsCounted) {
  int width = 0;
  int height = 0;
  std::string cause;
  EXPECT_EQ((VelSvgSize{16384, 4096}.CountPixels(96, width, height, cause)), S_OK);
  EXPECT_EQ(width, 16384);
  EXPECT_EQ(height, 4096);
  EXPECT_EQ((VelSvgSize{16384, 4097}.CountPixels(96, width, height, cause)), E_FAIL);
}

TEST(VelSvgSize, ABoxWithoutAnArea_TellsNothing) {
  for (const double side : {0.0, -4.0, none}) {
    EXPECT_FALSE(VelSvgSize::Of({std::nullopt, std::nullopt, side, 10}));
    EXPECT_FALSE(VelSvgSize::Of({std::nullopt, 5, 10, side}));
    EXPECT_TRUE(VelSvgSize::Of({5, 5, side, side}));
  }
}

}  // namespace
