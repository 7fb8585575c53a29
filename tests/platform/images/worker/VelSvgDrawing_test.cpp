// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgDrawing_test.cpp What SVG files show as a whole, pixel by pixel, and what they cannot reach.
#include "platform/images/worker/VelSvgDrawing.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/base/system/VelSystemWrite.h"
#include "tests/platform/images/worker/SvgPicture.h"

namespace {

Painting Empty() { return Painting(16, 16); }

struct Case {
  const char* name;
  const char* elements;  ///< In a picture of 16 x 16.
  Painting expected;
};

const std::vector<Case>& Cases() {
  static const std::vector<Case> cases{
      {"Nothing", "", Empty()},
      {"ColoursLaidOverEachOther",
       "<rect width='8' height='8' fill='red'/><rect x='4' y='4' width='8' height='8' fill='blue' fill-opacity='0.5'/>",
       Empty().Rectangle(0, 0, 8, 8, red).Rectangle(4, 4, 8, 8, {0, 0, 1, 0.5})},
      {"HalfTransparentColoursAreNotMultiplied", "<rect width='8' height='8' fill='#c08040' fill-opacity='0.25'/>",
       Empty().Rectangle(0, 0, 8, 8, {192 / 255.0, 128 / 255.0, 64 / 255.0, 64 / 255.0})},
      {"GroupOpacity",
       "<g opacity='0.5'><rect width='8' height='8' fill='red'/><rect x='4' y='4' width='8' height='8' "
       "fill='blue'/></g>",
       Empty().Group(Empty().Rectangle(0, 0, 8, 8, red).Rectangle(4, 4, 8, 8, blue), 0.5)},
      {"Turned", "<rect width='4' height='2' fill='red' transform='translate(8 0) rotate(90)'/>",
       Empty().Rectangle(6, 0, 2, 4, red)},
      {"ScaledAndMoved",
       "<g transform='translate(2 3)'><rect width='2' height='2' fill='red' transform='scale(3 2)'/></g>",
       Empty().Rectangle(2, 3, 6, 4, red)},
      {"Clipped",
       "<clipPath id='c'><rect x='2' y='3' width='4' height='5'/></clipPath>"
       "<rect width='16' height='16' fill='red' clip-path='url(#c)'/>",
       Empty().Rectangle(2, 3, 4, 5, red)},
      {"MaskedByHalf",
       "<mask id='m' maskUnits='userSpaceOnUse' x='0' y='0' width='16' height='16'><rect width='8' height='16' "
       "fill='white' fill-opacity='0.5'/></mask><rect width='16' height='16' fill='red' mask='url(#m)'/>",
       Empty().Rectangle(0, 0, 8, 16, {1, 0, 0, 0.5})},
      {"SwitchedOff",
       "<g display='none'><rect width='4' height='4'/></g><g visibility='hidden'><rect width='8' height='4'/></g>",
       Empty()},
      {"ScriptsAreNotRun", "<script>document.rootElement.remove()</script><rect width='4' height='4' fill='red'/>",
       Empty().Rectangle(0, 0, 4, 4, red)},
      {"PagesInsideAreNotShown",
       "<foreignObject width='16' height='16'><body xmlns='http://www.w3.org/1999/xhtml'>x</body></foreignObject>",
       Empty()},
  };
  return cases;
}

TEST(VelSvgDrawing, Files_AreDrawnPixelByPixel) {
  for (const Case& one : Cases()) {
    const SvgPicture drawn(SvgPicture::TextOf(one.elements));
    EXPECT_EQ(drawn.code, S_OK) << one.name << ": " << drawn.cause;
    EXPECT_EQ(Painting::Difference(one.expected, drawn.picture), "") << one.name;
  }
}

TEST(VelSvgDrawing, Files_AreDrawnPixelByPixelAtEachResolution) {
  for (const Case& one : Cases()) {
    for (const Resolution& resolution : resolutionsOfWholePixels) {
      const SvgPicture drawn(SvgPicture::LargeTextOf(one.elements), resolution.dpi);
      EXPECT_EQ(Painting::Difference(one.expected.Enlarged(resolution.pixels), drawn.picture), "")
          << one.name << " at " << resolution.dpi;
    }
  }
}

TEST(VelSvgDrawing, AGradient_RunsEvenlyAtEachResolution) {
  for (const Resolution& resolution : resolutionsOfWholePixels) {
    const SvgPicture drawn(
        SvgPicture::LargeTextOf(
            "<linearGradient id='l' gradientUnits='userSpaceOnUse' x1='4' x2='12'><stop offset='0' stop-color='red'/>"
            "<stop offset='1' stop-color='lime' stop-opacity='0.5'/></linearGradient>"
            "<rect width='16' height='16' fill='url(#l)'/>"),
        resolution.dpi);
    const int side = 16 * resolution.pixels;
    Painting expected(side, side);
    for (int x = 0; x < side; ++x) {
      const double share = std::clamp(((x + 0.5) / resolution.pixels - 4) / 8, 0.0, 1.0);
      expected.Rectangle(x, 0, 1, side, {1 - share, share, 0, 1 - share / 2});
    }
    EXPECT_EQ(Painting::Difference(expected, drawn.picture, 2), "") << resolution.dpi;
  }
}

TEST(VelSvgDrawing, OtherFiles_AreOutOfReach) {
  std::string folder;
  std::string cause;
  ASSERT_EQ(VelSystemWrite::MakeUniqueFolder(::testing::TempDir() + "references", folder, cause), S_OK) << cause;
  const std::string secret = folder + "/secret.svg";
  ASSERT_EQ(VelSystemWrite::ReplaceFile(secret, SvgPicture::TextOf("<rect id='r' width='16' height='16' fill='red'/>"),
                                        cause),
            S_OK);
  for (const std::string& reference :
       {"file://" + secret, secret, "../" + folder.substr(folder.rfind('/') + 1) + "/secret.svg",
        std::string("secret.svg"), std::string("http://localhost/secret.svg"), std::string("resource:///secret.svg")}) {
    const SvgPicture drawn(SvgPicture::TextOf("<style>@import url('" + reference + "');</style><image xlink:href='" +
                                              reference + "' width='16' height='16'/><use xlink:href='" + reference +
                                              "#r'/><xi:include "
                                              "xmlns:xi='http://www.w3.org/2001/XInclude' href='" +
                                              reference + "'/><rect width='1' height='1' fill='url(" + reference +
                                              "#r) blue'/>"));
    EXPECT_EQ(drawn.code, S_OK) << drawn.cause;
    EXPECT_EQ(Painting::Difference(Empty().Rectangle(0, 0, 1, 1, blue), drawn.picture), "") << reference;
    EXPECT_NE(SvgPicture("<!DOCTYPE svg [<!ENTITY e SYSTEM '" + reference + "'>]>" + SvgPicture::TextOf("&e;")).code,
              S_OK);
  }
  EXPECT_EQ(VelSystemWrite::RemoveTree(folder, cause), S_OK);
}

TEST(VelSvgDrawing, ImagesInTheFileItself_AreShown) {
  // One red pixel as a BMP file of 58 bytes.
  const SvgPicture drawn(
      SvgPicture::TextOf("<image width='4' height='4' xlink:href='data:image/bmp;base64,"
                         "Qk06AAAAAAAAADYAAAAoAAAAAQAAAAEAAAABABgAAAAAAAQAAAATCwAAEwsAAAAAAAAAAAAAAAD/AA=='/>"));
  EXPECT_EQ(Painting::Difference(Empty().Rectangle(0, 0, 4, 4, red), drawn.picture), "");
}

}  // namespace
