// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgOutline_test.cpp Which SVG texts are handed to the drawing library at all.
#include "platform/images/worker/VelSvgOutline.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/platform/images/worker/SvgPicture.h"

namespace {

std::string Repeat(std::string_view iText, std::size_t iCount) {
  std::string text;
  for (std::size_t i = 0; i < iCount; ++i) text += iText;
  return text;
}

/// @return why a text is not drawn; empty when it may be
std::string CauseOf(std::string_view iText) {
  VelSvgOutline outline;
  std::string cause;
  const HRESULT code = outline.Read(iText, {}, cause);
  EXPECT_EQ(FAILED(code), !cause.empty());
  return cause;
}

std::string CauseInside(std::string_view iElements) { return CauseOf(SvgPicture::TextOf(iElements)); }

TEST(VelSvgOutline, Elements_AreCounted) {
  EXPECT_EQ(CauseInside(Repeat("<g/>", 199'999)), "");
  EXPECT_EQ(CauseInside(Repeat("<g/>", 200'000)), "has too many elements; expected at most 200000");
  EXPECT_EQ(CauseInside(Repeat("<g/>", 1'000'000)), "has too many elements; expected at most 200000");
}

TEST(VelSvgOutline, Depth_IsLimited) {
  EXPECT_EQ(CauseInside(Repeat("<g>", 199) + Repeat("</g>", 199)), "");
  EXPECT_EQ(CauseInside(Repeat("<g>", 200) + Repeat("</g>", 200)),
            "has too many elements inside each other; expected at most 200");
  EXPECT_EQ(CauseInside(Repeat("<g>", 1'000'000)), "has too many elements inside each other; expected at most 200");
}

TEST(VelSvgOutline, Attributes_AreCounted) {
  const auto attributes = [](int iCount) {
    std::string text;
    for (int i = 0; i < iCount; ++i) text += " a" + std::to_string(i) + "='1'";
    return "<g" + text + "/>";
  };
  EXPECT_EQ(CauseInside(attributes(4096)), "");
  EXPECT_EQ(CauseInside(attributes(4097)), "has an element with too many attributes; expected at most 4096");
  EXPECT_EQ(CauseInside(attributes(200'000)), "has an element with too many attributes; expected at most 4096");
}

TEST(VelSvgOutline, DrawnLetters_AreCounted) {
  constexpr const char* tooMany = "has too many bytes of text; expected at most 65536";
  EXPECT_EQ(CauseInside("<text>" + Repeat("x", 65536) + "</text>"), "");
  EXPECT_EQ(CauseInside("<text>" + Repeat("x", 65537) + "</text>"), tooMany);
  EXPECT_EQ(CauseInside(Repeat("<text>a<tspan>b</tspan></text>", 32769)), tooMany);
  EXPECT_EQ(CauseInside(Repeat("\n", 1'000'000) + "<style>" + Repeat(" ", 1'000'000) + "</style>"), "");
}

TEST(VelSvgOutline, FiltersThatWorkWithoutEnd_AreRefused) {
  const struct {
    const char* element;
    bool isDrawn;
  } cases[] = {
      {"<feTurbulence numOctaves='16'/>", true},
      {"<feTurbulence numOctaves='17'/>", false},
      {"<feTurbulence numOctaves='2e9'/>", false},
      {"<feTurbulence numOctaves='2000000000'/>", false},
      {"<feTurbulence/>", true},
      {"<feConvolveMatrix order='16'/>", true},
      {"<feConvolveMatrix order='3 16'/>", true},
      {"<feConvolveMatrix order='3,17'/>", false},
      {"<feConvolveMatrix order='17'/>", false},
      {"<feConvolveMatrix order='5e1'/>", false},
      {"<feConvolveMatrix order='&#53;0'/>", false},
      {"<x:feConvolveMatrix xmlns:x='a' order='50'/>", false},
      {"<feTurbulence numOctaves=' 1 '/>", true},
      {"<feOffset numOctaves='99' order='99'/>", true},
      {"<feTurbulence numOctaves='999999999999999999999999'/>", false},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(CauseInside("<filter>" + std::string(one.element) + "</filter>").empty(), one.isDrawn) << one.element;
  }
  EXPECT_EQ(CauseInside("<feTurbulence numOctaves='17'/>"),
            "has a filter feTurbulence whose numOctaves is too large; expected at most 16");
}

TEST(VelSvgOutline, EntitiesThatGrow_AreRefused) {
  std::string laughs = "<!DOCTYPE svg [<!ENTITY a0 'ha'>";
  for (int i = 1; i < 10; ++i) {
    laughs += "<!ENTITY a" + std::to_string(i) + " '" + Repeat("&a" + std::to_string(i - 1) + ";", 10) + "'>";
  }
  EXPECT_NE(CauseOf(laughs + "]><svg><title>&a9;</title></svg>"), "");
  EXPECT_NE(CauseOf(laughs + "]><svg id='&a9;'/>"), "");
  EXPECT_NE(CauseOf("<!DOCTYPE svg [<!ENTITY a '" + Repeat("x", 100'000) + "'>]><svg><style>" + Repeat("&a;", 2000) +
                    "</style></svg>"),
            "");
  EXPECT_NE(CauseOf("<!DOCTYPE svg [<!ENTITY a '&a;'>]><svg>&a;</svg>"), "");
  EXPECT_EQ(CauseOf("<!DOCTYPE svg [<!ENTITY a 'http://www.w3.org/2000/svg'>]><svg xmlns='&a;'/>"), "");
}

TEST(VelSvgOutline, WhatIsNoSvgText_IsRefused) {
  for (const char* text : {"", " ", "x", "<", "<svg", "<svg>", "<svg><g></svg>", "<svg/><svg/>", "<svg/>x",
                           "<svg a='1' a='2'/>", "<svg>&x;</svg>", "<svg>\xFF\xFE</svg>", "<svg>\x01</svg>",
                           "\xFF\xFE<", "\x1F\x8B", "<?xml version='1.0' encoding='no-such-encoding'?><svg/>"}) {
    EXPECT_TRUE(CauseOf(text).starts_with("is no SVG file: line ")) << text;
  }
  EXPECT_EQ(CauseOf("<html/>"), "is no SVG file: its root is not \"svg\"");
  EXPECT_EQ(CauseOf("<svg><g></svg>"), "is no SVG file: line 1, column 11: mismatched tag");
}

}  // namespace
