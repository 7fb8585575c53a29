// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgDrawing_Sizes_test.cpp How many pixels SVG files have, whatever their sizes are written in.
#include <array>
#include <string>

#include <gtest/gtest.h>

#include "tests/platform/images/worker/SvgPicture.h"

namespace {

constexpr std::array resolutions{72, 96, 150, 300};

struct Case {
  const char* name;
  const char* attributes;
  std::array<const char*, 4> expected;  ///< At the resolutions above.
};

// By hand: inches times dpi, where an inch is 96 px, 72 pt, 6 pc, 25.4 mm, 2.54 cm.
constexpr std::array cases{
    Case{"Pixels", "width='100' height='50'", {"75x38", "100x50", "156x78", "313x156"}},
    Case{"PixelsByName", "width='100px' height='50px'", {"75x38", "100x50", "156x78", "313x156"}},
    Case{"Millimetres",
         "width='100mm' height='50mm' viewBox='0 0 100 50'",
         {"283x142", "378x189", "591x295", "1181x591"}},
    Case{"MillimetresAlone", "width='100mm' height='50mm'", {"283x142", "378x189", "591x295", "1181x591"}},
    Case{"Centimetres", "width='10cm' height='5cm'", {"283x142", "378x189", "591x295", "1181x591"}},
    Case{"Inches", "width='1in' height='2in'", {"72x144", "96x192", "150x300", "300x600"}},
    Case{"PointsAndPicas", "width='72pt' height='6pc'", {"72x72", "96x96", "150x150", "300x300"}},
    Case{"Letters", "width='10em' height='5ex'", {"90x23", "120x30", "188x47", "375x94"}},
    Case{"Percent", "width='100%' height='100%' viewBox='0 0 300 150'", {"225x113", "300x150", "469x234", "938x469"}},
    Case{"ViewBox", "viewBox='0 0 300 150'", {"225x113", "300x150", "469x234", "938x469"}},
    Case{"ViewBoxElsewhere", "viewBox='-50 -20 300 150'", {"225x113", "300x150", "469x234", "938x469"}},
    Case{"WidthAndViewBox", "width='100' viewBox='0 0 300 150'", {"75x38", "100x50", "156x78", "313x156"}},
    Case{"HeightAndViewBox", "height='50' viewBox='0 0 300 150'", {"75x38", "100x50", "156x78", "313x156"}},
    Case{"WidthInInchesAndViewBox", "width='1in' viewBox='0 0 300 150'", {"72x36", "96x48", "150x75", "300x150"}},
    Case{"PercentOfTheWidthAndHeight",
         "width='50%' height='50' viewBox='0 0 300 150'",
         {"75x38", "100x50", "156x78", "313x156"}},
    Case{"Nothing", "", {"38x38", "50x50", "78x78", "156x156"}},
    Case{"PercentWithoutViewBox", "width='100%' height='100%'", {"38x38", "50x50", "78x78", "156x156"}},
    Case{"NegativeCountsAsNothing", "width='-5' height='-5'", {"38x38", "50x50", "78x78", "156x156"}},
    Case{"WordsCountAsNothing", "width='abc' height='abc'", {"38x38", "50x50", "78x78", "156x156"}},
    Case{"LessThanHalfAPixel", "width='0.2' height='0.1'", {"1x1", "1x1", "1x1", "1x1"}},
};

std::string TextOf(std::string_view iAttributes) {
  return "<svg xmlns='http://www.w3.org/2000/svg' " + std::string(iAttributes) +
         "><rect width='50' height='50'/></svg>";
}

TEST(VelSvgDrawingSizes, EveryUnit_FollowsTheResolution) {
  for (const Case& one : cases) {
    for (std::size_t i = 0; i < resolutions.size(); ++i) {
      const SvgPicture drawn(TextOf(one.attributes), resolutions[i]);
      EXPECT_EQ(drawn.code, S_OK) << one.name << drawn.cause;
      EXPECT_EQ(drawn.Size(), one.expected[i]) << one.name << " at " << resolutions[i];
    }
  }
}

TEST(VelSvgDrawingSizes, APictureThatFillsItsSpace_HasNoTransparentEdge) {
  for (const char* attributes :
       {"width='100mm' height='50mm'", "viewBox='0 0 333.3 77.7'", "width='33.4' height='7.6'"}) {
    for (const int dpi : resolutions) {
      const SvgPicture drawn("<svg xmlns='http://www.w3.org/2000/svg' " + std::string(attributes) +
                                 "><rect width='100%' height='100%' fill='blue'/></svg>",
                             dpi);
      Painting expected(drawn.picture.Width(), drawn.picture.Height());
      expected.Rectangle(0, 0, drawn.picture.Width(), drawn.picture.Height(), blue);
      EXPECT_EQ(Painting::Difference(expected, drawn.picture, 0), "") << attributes << " at " << dpi;
    }
  }
}

TEST(VelSvgDrawingSizes, TheContent_GrowsWithTheResolution) {
  for (const char* attributes : {"width='8' height='4'", "viewBox='0 0 8 4'", "viewBox='0 0 8 4' width='8'", ""}) {
    const SvgPicture drawn(
        "<svg xmlns='http://www.w3.org/2000/svg' " + std::string(attributes) +
            "><rect width='4' height='4' fill='red'/><rect x='4' width='4' height='4' fill='blue'/></svg>",
        192);
    const Painting expected = Painting(16, 8).Rectangle(0, 0, 8, 8, red).Rectangle(8, 0, 8, 8, blue);
    EXPECT_EQ(Painting::Difference(expected, drawn.picture, 0), "") << attributes;
  }
}

TEST(VelSvgDrawingSizes, APictureWithoutASize_ShowsWhatIsDrawnWhereverItIs) {
  const SvgPicture drawn(
      "<svg xmlns='http://www.w3.org/2000/svg'><rect x='-20' y='30' width='4' height='4' fill='red'/>"
      "<rect x='-16' y='34' width='4' height='4' fill='blue'/></svg>");
  const Painting expected = Painting(8, 8).Rectangle(0, 0, 4, 4, red).Rectangle(4, 4, 4, 4, blue);
  EXPECT_EQ(Painting::Difference(expected, drawn.picture, 0), "");
}

TEST(VelSvgDrawingSizes, APictureWithoutASize_IsAsLargeAsAWholeWhenOneGroupIsDrawn) {
  const SvgPicture drawn(
      "<svg xmlns='http://www.w3.org/2000/svg'><rect width='4' height='4' fill='red'/>"
      "<g id='a'><rect x='4' y='4' width='4' height='4' fill='blue'/></g></svg>",
      96, {"a"});
  EXPECT_EQ(Painting::Difference(Painting(8, 8).Rectangle(4, 4, 4, 4, blue), drawn.picture, 0), "");
}

TEST(VelSvgDrawingSizes, APictureOfNoSizeOrTooLarge_IsRefused) {
  struct Refusal {
    const char* attributes;
    int dpi;
    const char* cause;
  };
  constexpr const char* nothing = "has nothing to be drawn: its width or its height is 0";
  const Refusal refusals[] = {
      {"width='0' height='0'", 96, nothing},
      {"width='10' height='0'", 96, nothing},
      {"width='16385' height='1'", 96,
       "has 16385 x 1 pixels at 96 dpi; expected at most 16384 a side and 67108864 in all"},
      {"width='1' height='16385'", 96,
       "has 1 x 16385 pixels at 96 dpi; expected at most 16384 a side and 67108864 in all"},
      {"width='8193' height='8193'", 96,
       "has 8193 x 8193 pixels at 96 dpi; expected at most 16384 a side and 67108864 in all"},
      {"width='8192' height='8192'", 97,
       "has 8277 x 8277 pixels at 97 dpi; expected at most 16384 a side and 67108864 in all"},
      {"width='1e9' height='1e9'", 300,
       "has 3125000000 x 3125000000 pixels at 300 dpi; expected at most 16384 a side and 67108864 in all"},
      {"viewBox='0 0 1e9 1e9'", 72,
       "has 750000000 x 750000000 pixels at 72 dpi; expected at most 16384 a side and 67108864 in all"},
  };
  for (const Refusal& refusal : refusals) {
    const SvgPicture drawn(TextOf(refusal.attributes), refusal.dpi);
    EXPECT_EQ(drawn.code, E_FAIL) << refusal.attributes;
    EXPECT_EQ(drawn.cause, refusal.cause) << refusal.attributes;
  }
  EXPECT_EQ(SvgPicture("<svg xmlns='http://www.w3.org/2000/svg'/>").cause, nothing);
}

TEST(VelSvgDrawingSizes, TheLargestSide_IsDrawn) {
  EXPECT_EQ(SvgPicture(TextOf("width='16384' height='2'")).Size(), "16384x2");
  EXPECT_EQ(SvgPicture(TextOf("width='2' height='4096'"), 384).Size(), "8x16384");
}

TEST(VelSvgDrawingSizes, AResolutionThatIsNone_IsRefused) {
  for (const int dpi : {0, -1, 4801}) {
    const SvgPicture drawn(TextOf("width='1' height='1'"), dpi);
    EXPECT_EQ(drawn.code, E_INVALIDARG) << dpi;
    EXPECT_EQ(drawn.cause, "is asked for at " + std::to_string(dpi) + " dpi; expected 1 to 4800");
  }
  EXPECT_EQ(SvgPicture(TextOf("width='1' height='1'"), 4800).Size(), "50x50");
  EXPECT_EQ(SvgPicture(TextOf("width='96' height='96'"), 1).Size(), "1x1");
}

}  // namespace
