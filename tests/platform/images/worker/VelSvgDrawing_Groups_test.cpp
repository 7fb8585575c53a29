// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgDrawing_Groups_test.cpp Some groups of an SVG file, pixel by pixel.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/platform/images/worker/SvgPicture.h"

namespace {

using Names = std::vector<std::string>;

struct Case {
  const char* name;
  const char* elements;  ///< In a picture of 16 x 16.
  Names groups;
  Painting expected;
};

Painting Empty() { return Painting(16, 16); }

constexpr const char* twoOverlapping =
    "<g id='a'><rect width='8' height='8' fill='red'/></g><g id='b'><rect x='4' y='4' width='8' height='8' "
    "fill='blue'/></g><g id='c'><rect width='16' height='16' fill='lime'/></g>";

constexpr const char* nested =
    "<g id='outer' transform='translate(2,3)' fill='red'><g id='inner'><rect width='4' height='4'/></g>"
    "<g id='other'><rect x='6' width='4' height='4' fill='blue'/></g></g><rect width='16' height='1'/>";

constexpr const char* halfTransparent =
    "<g opacity='0.5'><g id='a'><rect width='8' height='8' fill='red'/></g><g id='b'><rect x='4' y='4' width='8' "
    "height='8' fill='blue'/></g><rect width='16' height='16'/></g>";

/// A square of 4 x 4 that its author switched off in some way.
std::string SwitchedOff(const char* iAttributes) {
  return "<style>.off{display:none}</style><g id='a' " + std::string(iAttributes) +
         "><rect width='4' height='4' fill='red'/></g><rect width='16' height='16'/>";
}

std::vector<Case> PlacedCases() {
  return {
      {"OneOfNested", nested, {"inner"}, Empty().Rectangle(2, 3, 4, 4, red)},
      {"TheOtherOfNested", nested, {"other"}, Empty().Rectangle(8, 3, 4, 4, blue)},
      {"TheOuterOfNested", nested, {"outer"}, Empty().Rectangle(2, 3, 4, 4, red).Rectangle(8, 3, 4, 4, blue)},
      {"AGroupAndOneInside",
       nested,
       {"inner", "outer"},
       Empty().Rectangle(2, 3, 4, 4, red).Rectangle(8, 3, 4, 4, blue)},
      {"OrderOfTheText", twoOverlapping, {"a", "b"}, Empty().Rectangle(0, 0, 8, 8, red).Rectangle(4, 4, 8, 8, blue)},
      {"OrderOfTheListIsNone",
       twoOverlapping,
       {"b", "a"},
       Empty().Rectangle(0, 0, 8, 8, red).Rectangle(4, 4, 8, 8, blue)},
      {"RepeatsAreNone", twoOverlapping, {"b", "b", "b"}, Empty().Rectangle(4, 4, 8, 8, blue)},
      {"SomeKnown", twoOverlapping, {"b", "x", ""}, Empty().Rectangle(4, 4, 8, 8, blue)},
      {"OpacityAroundSiblings",
       halfTransparent,
       {"a", "b"},
       Empty().Group(Empty().Rectangle(0, 0, 8, 8, red).Rectangle(4, 4, 8, 8, blue), 0.5)},
      {"OpacityAroundOne", halfTransparent, {"b"}, Empty().Rectangle(4, 4, 8, 8, {0, 0, 1, 0.5})},
  };
}

std::vector<Case> UsingCases() {
  return {
      {"UseOfDefinition",
       "<defs><rect id='r' width='4' height='4' fill='red'/></defs><g id='a'><use xlink:href='#r' x='4' y='2'/></g>"
       "<g id='b'><use xlink:href='#r'/></g>",
       {"a"},
       Empty().Rectangle(4, 2, 4, 4, red)},
      {"UseOfSymbol",
       "<symbol id='s'><rect width='4' height='4' fill='red'/></symbol><g id='a'><use href='#s' x='4' y='2'/></g>"
       "<g id='b'><use href='#s'/></g>",
       {"a"},
       Empty().Rectangle(4, 2, 4, 4, red)},
      {"UseOfAGroupThatIsNotShown",
       "<g id='hidden' fill='red'><rect width='4' height='4'/></g><g id='a'><use href='#hidden' x='8' y='8'/></g>",
       {"a"},
       Empty().Rectangle(8, 8, 4, 4, red)},
      {"ClipPathInAGroupThatIsNotShown",
       "<g id='hidden'><clipPath id='c'><rect x='2' y='2' width='4' height='5'/></clipPath><rect width='9' "
       "height='9'/></g><g id='a' clip-path='url(#c)'><rect width='16' height='16' fill='red'/></g>",
       {"a"},
       Empty().Rectangle(0, 0, 16, 16, red).Keep(2, 2, 4, 5)},
      {"ClipPathOfAGroupAround",
       "<clipPath id='c'><rect x='2' y='2' width='4' height='5'/></clipPath><g clip-path='url(#c)'><g id='a'>"
       "<rect width='16' height='16' fill='red'/></g><rect width='16' height='16'/></g>",
       {"a"},
       Empty().Rectangle(0, 0, 16, 16, red).Keep(2, 2, 4, 5)},
      {"MaskInAGroupThatIsNotShown",
       "<g id='hidden'><mask id='m' maskUnits='userSpaceOnUse' x='0' y='0' width='16' height='16'>"
       "<rect x='4' y='4' width='8' height='8' fill='white'/></mask></g><g id='a' mask='url(#m)'>"
       "<rect width='16' height='16' fill='red'/></g>",
       {"a"},
       Empty().Rectangle(0, 0, 16, 16, red).Keep(4, 4, 8, 8)},
      {"PatternInAGroupThatIsNotShown",
       "<g id='hidden'><pattern id='p' patternUnits='userSpaceOnUse' width='8' height='16'>"
       "<rect width='4' height='16' fill='red'/></pattern></g><rect id='a' width='16' height='16' fill='url(#p)'/>",
       {"a"},
       Empty().Rectangle(0, 0, 4, 16, red).Rectangle(8, 0, 4, 16, red)},
      {"ScaledAndTurned",
       "<g transform='scale(2)'><g id='a' transform='translate(4,0) rotate(90)'>"
       "<rect width='4' height='2' fill='red'/></g><rect width='16' height='16'/></g>",
       {"a"},
       Empty().Rectangle(4, 0, 4, 8, red)},
      {"SwitchedOffByAttribute", nullptr, {"a"}, Empty().Rectangle(0, 0, 4, 4, red)},
  };
}

std::vector<Case> OddCases() {
  return {
      {"LabelOfALayer",
       "<g id='layer1' inkscape:label='Layer 1'><rect width='4' height='4' fill='red'/></g><g id='layer2' "
       "inkscape:label='Layer 2'><rect width='16' height='16'/></g>",
       {"Layer 1"},
       Empty().Rectangle(0, 0, 4, 4, red)},
      {"IdentifierBeforeLabel",
       "<g id='layer1' inkscape:label='x'><rect width='16' height='16'/></g><g id='x' inkscape:label='y'>"
       "<rect width='4' height='4' fill='red'/></g>",
       {"x"},
       Empty().Rectangle(0, 0, 4, 4, red)},
      {"SameIdentifierTwice",
       "<g id='a'><rect width='4' height='4' fill='red'/></g><rect width='16' height='16'/><g id='a'>"
       "<rect x='8' width='4' height='4' fill='blue'/></g>",
       {"a"},
       Empty().Rectangle(0, 0, 4, 4, red).Rectangle(8, 0, 4, 4, blue)},
      {"ChildOfASwitch",
       "<switch><g id='a'><rect width='4' height='4' fill='red'/></g><g id='b'><rect width='16' height='16'/></g>"
       "</switch>",
       {"a"},
       Empty().Rectangle(0, 0, 4, 4, red)},
      {"SecondChildOfASwitch",
       "<switch><g id='a' systemLanguage='xx'><rect width='16' height='16'/></g><g id='b'>"
       "<rect width='4' height='4' fill='red'/></g></switch>",
       {"b"},
       Empty().Rectangle(0, 0, 4, 4, red)},
      {"ChildThatItsSwitchDoesNotTake",
       "<switch><g id='a'><rect width='16' height='16'/></g><g id='b'><rect width='4' height='4'/></g></switch>"
       "<g id='c'><rect width='4' height='4' fill='red'/></g>",
       {"b", "c"},
       Empty().Rectangle(0, 0, 4, 4, red)},
      {"OddNames",
       "<g id='1num.x:y'><rect width='1' height='4' fill='red'/></g><g id='a;b'><rect x='1' width='1' height='4' "
       "fill='red'/></g><g id='a b'><rect x='2' width='1' height='4' fill='red'/></g><g id='gr\xC3\xB6\xC3\x9F"
       "e'><rect x='3' width='1' height='4' fill='red'/></g><rect width='16' height='16'/>",
       {"1num.x:y", "a;b", "a b",
        "gr\xC3\xB6\xC3\x9F"
        "e"},
       Empty().Rectangle(0, 0, 4, 4, red)},
      {"TextThatLooksLikeTags",
       "<!-- <g id='a'> --><style><![CDATA[ /* <g id='a'> */ ]]></style><g id='a' class='x>y' font-family='/>'>"
       "<rect width='4' height='4' fill='red'/></g><g id='b' class='/>'><rect width='16' height='16'/></g>",
       {"a"},
       Empty().Rectangle(0, 0, 4, 4, red)},
      {"ElementsOtherThanGroups",
       "<rect id='a' width='4' height='4' fill='red'/><path id='b' d='M4,0h4v4h-4z' fill='blue'/><rect width='16' "
       "height='16'/>",
       {"a", "b"},
       Empty().Rectangle(0, 0, 4, 4, red).Rectangle(4, 0, 4, 4, blue)},
      {"AnotherPictureInside",
       "<svg x='4' y='4' width='8' height='8' viewBox='0 0 4 4'><g id='a'><rect width='2' height='2' fill='red'/></g>"
       "<rect width='4' height='4'/></svg>",
       {"a"},
       Empty().Rectangle(4, 4, 4, 4, red)},
      {"StylesheetForGroups",
       "<style>#outer{fill:red} .b{fill:blue}</style><g id='outer'><g id='a'><rect width='4' height='4'/></g>"
       "<g class='b' id='b'><rect x='4' width='4' height='4'/></g><rect width='16' height='16'/></g>",
       {"a", "b"},
       Empty().Rectangle(0, 0, 4, 4, red).Rectangle(4, 0, 4, 4, blue)},
  };
}

std::vector<Case> Cases() {
  std::vector<Case> cases = PlacedCases();
  for (Case& one : UsingCases()) cases.push_back(std::move(one));
  for (Case& one : OddCases()) cases.push_back(std::move(one));
  return cases;
}

std::string ElementsOf(const Case& iCase) {
  return iCase.elements != nullptr ? iCase.elements : SwitchedOff("display='none'");
}

TEST(VelSvgDrawingGroups, NamedGroups_AreDrawnInPlaceWithAllTheyUse) {
  for (const Case& one : Cases()) {
    const SvgPicture drawn(SvgPicture::TextOf(ElementsOf(one)), 96, one.groups);
    EXPECT_EQ(drawn.code, S_OK) << one.name << ": " << drawn.cause;
    EXPECT_EQ(Painting::Difference(one.expected, drawn.picture), "") << one.name;
    EXPECT_TRUE(drawn.unknown.empty()) << one.name;
  }
}

TEST(VelSvgDrawingGroups, NamedGroups_AreDrawnInPlaceAtEachResolution) {
  for (const Case& one : Cases()) {
    for (const Resolution& resolution : resolutionsOfWholePixels) {
      const SvgPicture drawn(SvgPicture::LargeTextOf(ElementsOf(one)), resolution.dpi, one.groups);
      EXPECT_EQ(Painting::Difference(one.expected.Enlarged(resolution.pixels), drawn.picture), "")
          << one.name << " at " << resolution.dpi;
    }
  }
}

TEST(VelSvgDrawingGroups, ANamedGroupThatIsSwitchedOff_IsShown) {
  for (const char* attributes :
       {"display='none'", "visibility='hidden'", "style='display:none'", "style=\"visibility:hidden\"",
        "style='display : none ; fill:red;'", "style = 'display:none !important'", "style='display:none;/*'",
        "class='off'", "display='none' visibility='hidden' style='display:none;visibility:hidden'"}) {
    const std::string text = SvgPicture::TextOf(SwitchedOff(attributes));
    EXPECT_EQ(Painting::Difference(Empty().Rectangle(0, 0, 4, 4, red), SvgPicture(text, 96, {"a"}).picture), "")
        << attributes;
    EXPECT_EQ(Painting::Difference(Empty().Rectangle(0, 0, 16, 16, black), SvgPicture(text).picture), "") << attributes;
  }
}

TEST(VelSvgDrawingGroups, WhatIsSwitchedOffInsideANamedGroup_StaysSo) {
  const std::string text = SvgPicture::TextOf(
      "<g id='a'><rect width='4' height='4' fill='red'/><g display='none'><rect x='4' width='4' height='4'/></g>"
      "<g id='b' display='none'><rect x='8' width='4' height='4' fill='blue'/></g></g>");
  const Painting one = Empty().Rectangle(0, 0, 4, 4, red);
  EXPECT_EQ(Painting::Difference(one, SvgPicture(text, 96, {"a"}).picture), "");
  EXPECT_EQ(Painting::Difference(Painting(one).Rectangle(8, 0, 4, 4, blue), SvgPicture(text, 96, {"a", "b"}).picture),
            "");
}

TEST(VelSvgDrawingGroups, GradientsOfGroupsThatAreNotShown_AreThere) {
  const SvgPicture drawn(
      SvgPicture::TextOf(
          "<g id='hidden'><linearGradient id='l' gradientUnits='userSpaceOnUse' x1='0' x2='16'>"
          "<stop offset='0' stop-color='red'/><stop offset='1' stop-color='blue'/></linearGradient>"
          "<rect width='16' height='16'/></g><g id='a'><rect width='16' height='8' fill='url(#l)'/></g>"),
      96, {"a"});
  Painting expected = Empty();
  for (int x = 0; x < 16; ++x) {
    const double share = (x + 0.5) / 16;
    expected.Rectangle(x, 0, 1, 8, {1 - share, 0, share});
  }
  EXPECT_EQ(Painting::Difference(expected, drawn.picture, 2), "");
}

TEST(VelSvgDrawingGroups, WhenNoNameIsKnown_ThePictureIsTransparentAndAllNamesAreTold) {
  const SvgPicture drawn(SvgPicture::TextOf(twoOverlapping), 192, {"z", "x", "A", "x"});
  EXPECT_EQ(drawn.code, S_OK) << drawn.cause;
  EXPECT_EQ(Painting::Difference(Painting(32, 32), drawn.picture, 0), "");
  EXPECT_EQ(drawn.unknown, (Names{"A", "x", "z"}));
}

TEST(VelSvgDrawingGroups, NamesInDefinitions_NeverCount) {
  const std::string text = SvgPicture::TextOf(
      "<defs><g id='a' inkscape:label='b'><rect id='c' width='4' height='4'/></g></defs><clipPath id='d'>"
      "<rect id='e' width='4' height='4'/></clipPath><symbol id='f'><g id='g'/></symbol><mask id='h'><g id='i'/></mask>"
      "<pattern id='j'><g id='k'/></pattern><marker id='l'><g id='m'/></marker><filter id='n'/><style id='o'/>"
      "<text id='p'><tspan id='q'>t</tspan></text><foreignObject><g id='r'/></foreignObject><metadata><g id='s'/>"
      "</metadata><g id='shown'><rect width='1' height='1'/></g>");
  for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m", "n", "o", "q", "r", "s"}) {
    EXPECT_EQ(SvgPicture(text, 96, {name}).unknown, Names{name});
  }
}

TEST(VelSvgDrawingGroups, TextsThatNameTheirNamespace_AreCutAlike) {
  for (const char* text :
       {"<s:svg xmlns:s='http://www.w3.org/2000/svg' width='16' height='16'><s:g id='a'><s:rect width='4' height='4' "
        "fill='red'/></s:g><s:g id='b'><s:rect width='16' height='16'/></s:g></s:svg>",
        "<!DOCTYPE svg [<!ENTITY ns 'http://www.w3.org/2000/svg'>]><svg xmlns='&ns;' width='16' height='16'><g id='a'>"
        "<rect width='4' height='4' fill='red'/></g><g id='b'><rect width='16' height='16'/></g></svg>",
        "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?>\n<svg xmlns='http://www.w3.org/2000/svg' width='16' "
        "height='16'>\r\n<g id='a'>\r\n<rect width='4' height='4' fill='red'/>\r\n</g>\r\n<g id='b'><rect width='16' "
        "height='16'/></g></svg>\r\n",
        "<?xml version='1.0' encoding='ISO-8859-1'?><svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'>"
        "<!-- \xE4\xF6\xFC --><g id='a'><rect width='4' height='4' fill='red'/></g><g id='\xE4'><rect width='16' "
        "height='16'/></g></svg>",
        "<?xml version='1.0' encoding='windows-1252'?><svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'>"
        "<!-- \x80 --><g id='a'><rect width='4' height='4' fill='red'/></g><g id='\x80'><rect width='16' height='16'/>"
        "</g></svg>"}) {
    const SvgPicture drawn(text, 96, {"a"});
    EXPECT_EQ(drawn.code, S_OK) << drawn.cause << text;
    EXPECT_EQ(Painting::Difference(Empty().Rectangle(0, 0, 4, 4, red), drawn.picture), "") << text;
  }
}

TEST(VelSvgDrawingGroups, ANameIsTheSame_WhateverTheTextIsWrittenIn) {
  const SvgPicture drawn(
      "<?xml version='1.0' encoding='ISO-8859-1'?><svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'>"
      "<g id='\xE4'><rect width='4' height='4' fill='red'/></g><rect width='16' height='16'/></svg>",
      96, {"\xC3\xA4"});
  EXPECT_EQ(Painting::Difference(Empty().Rectangle(0, 0, 4, 4, red), drawn.picture), "");
}

TEST(VelSvgDrawingGroups, ElementsOfEntities_AreDrawnAsAWholeAlone) {
  const std::string text =
      "<!DOCTYPE svg [<!ENTITY e '<g id=\"a\"><rect width=\"4\" height=\"4\" fill=\"red\"/></g>'>]>"
      "<svg xmlns='http://www.w3.org/2000/svg' width='16' height='16'>&e;</svg>";
  EXPECT_EQ(Painting::Difference(Empty().Rectangle(0, 0, 4, 4, red), SvgPicture(text).picture), "");
  const SvgPicture part(text, 96, {"a"});
  EXPECT_EQ(part.code, E_FAIL);
  EXPECT_EQ(part.cause,
            "has elements in entities, of which no groups are drawn by themselves; expected elements as they are");
}

TEST(VelSvgDrawingGroups, WideLetters_AreDrawnAsAWholeAlone) {
  std::string text = "\xFF\xFE";
  for (const char letter : SvgPicture::TextOf("<g id='a'><rect width='4' height='4' fill='red'/></g>")) {
    text.append(1, letter).append(1, '\0');
  }
  EXPECT_EQ(Painting::Difference(Empty().Rectangle(0, 0, 4, 4, red), SvgPicture(text).picture), "");
  EXPECT_EQ(SvgPicture(text, 96, {"a"}).cause,
            "is in UTF-16, of which no groups are drawn by themselves; expected UTF-8");
}

}  // namespace
