// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshAppearanceUpdater_Value_test.cpp What follows from a changed value, step by step.
#include <algorithm>

#include "tests/RenderingShader/updates/UpdatesTest.h"

namespace {

constexpr const char* stored = "time: parameter store";
constexpr const char* copied = "time: 2D transformation copy overhead";
constexpr const char* drawn = "time: DPI raster overhead";
constexpr const char* converted = "time: Bump update overhead";
constexpr const char* followed = "time: texture update overhead";
constexpr const char* done = "time: OnValueUpdate";
constexpr const char* converting = "info: Updating derived bump parameter...";

/// @return the lines of a mapping value that reaches the shader connected to a parameter
std::string Copying(const char* iLink, const char* iName = "scale_u") {
  return std::string("info: Updating ") + iLink + " connected shader mapping data " + iName;
}

class VelRshAppearanceUpdaterValueTest : public UpdatesTest {
 protected:
  /// Adds a parameter with the tags of its name to the root.
  VelIRshParameter_var AddTagged(const char* iName, const char* iWords, const char* iStartUp) {
    Tag(iName, iWords);
    return Add(hRoot_, iName, iStartUp);
  }
  VelIRshParameter_var AddDpi(std::int32_t iDpi) {
    Tag("dpi", "dpi");
    return AddInteger(hRoot_, "dpi", iDpi);
  }

  /// @return what is called for one SVG file that is drawn
  static Texts Drawing(const std::string& iPath, const std::string& iGroups, int iDpi) {
    const std::string arguments = "(" + iPath + ", [" + iGroups + "], " + std::to_string(iDpi) + ")";
    return {"GetProjectionPath(" + iPath + ")", "CreatePixelImageFromFullPath" + arguments,
            "ConvertUnsupportedTexture" + arguments};
  }
};

TEST_F(VelRshAppearanceUpdaterValueTest, ParameterWithoutTags_IsLeftAlone) {
  const VelIRshParameter_var hScale = AddScalar(hRoot_, "scale_u", 2.0F);
  const VelIRshParameter_var hTarget = AddScalar(Connect("slotted"), "scale_u", 1.0F);
  UpdateValue(hScale);
  EXPECT_EQ(Told(), (Texts{stored, done}));
  EXPECT_EQ(ScalarOf(hTarget), 1.0F);
  EXPECT_EQ(Cache().Take(), Texts{});
}

TEST_F(VelRshAppearanceUpdaterValueTest, MappingValue_IsCopiedIntoEveryShaderConnectedToTheRoot) {
  Tag("scale_u", "mapping");
  const VelIRshParameter_var hScale = AddScalar(hRoot_, "scale_u", 2.0F);
  const VelIRshParameter_var hFirst = AddScalar(Connect("one"), "scale_u", 1.0F);
  Add(hRoot_, "unconnected", "VelRmaColor");
  AddScalar(Connect("other name"), "scale_v", 1.0F);
  const VelIRshShader_var hTwice = Connect("two");
  const VelIRshParameter_var hSecond = AddScalar(hTwice, "scale_u", 1.0F);
  const VelIRshParameter_var hNamesake = AddScalar(hTwice, "scale_u", 1.0F);
  ASSERT_EQ(Add(hRoot_, "itself", "VelRmaColor")->SetConnection(hRoot_.Get()), S_OK);
  UpdateValue(hScale);
  EXPECT_EQ(Told(), (Texts{stored, Copying("one"), Copying("two"), copied, done}));
  EXPECT_EQ(ScalarOf(hFirst), 2.0F);
  EXPECT_EQ(ScalarOf(hSecond), 2.0F);
  EXPECT_EQ(ScalarOf(hNamesake), 1.0F);
}

TEST_F(VelRshAppearanceUpdaterValueTest, MappingValueThatCannotBeCopied_IsAnErrorAndTheNextOneFollows) {
  Tag("scale_u", "mapping");
  const VelIRshParameter_var hScale = AddScalar(hRoot_, "scale_u", 2.0F);
  AddColor(Connect("colour"), "scale_u", 1.0F, 1.0F, 1.0F);
  const VelIRshShader_var hUnvaluated = Connect("unvaluated");
  Add(hUnvaluated, "scale_u", "VelRmaScalar");
  const VelIRshParameter_var hLast = AddScalar(Connect("last"), "scale_u", 1.0F);
  UpdateValue(hScale);
  constexpr const char* failed = "error: Parameter 'scale_u' update failed";
  EXPECT_EQ(Told(),
            (Texts{stored, Copying("colour"), failed, Copying("unvaluated"), failed, Copying("last"), copied, done}));
  EXPECT_EQ(ScalarOf(hLast), 2.0F);
}

TEST_F(VelRshAppearanceUpdaterValueTest, ConnectionToWhatIsNoShader_IsPassedOver) {
  Tag("scale_u", "mapping dpi bump");
  const VelIRshParameter_var hScale = AddScalar(hRoot_, "scale_u", 2.0F);
  const VelIRshParameter_var hLink = Add(hRoot_, "slotted", "VelRmaColor");
  ASSERT_EQ(Access(VelISpecObject_var(hLink))->SetReference(node_, Make("VelRmaScalar").Get()), S_OK);
  ASSERT_EQ(hLink->GetConnection(nullptr), E_NOINTERFACE);
  UpdateValue(hScale);
  EXPECT_EQ(Told(), (Texts{stored, copied, drawn, converting, converted, done}));
}

TEST_F(VelRshAppearanceUpdaterValueTest, TagsOfASubShader_TriggerTheRasterByGroupsAlone) {
  struct Case {
    const char* words;
    Texts told;
  };
  for (const Case& test :
       {Case{"mapping dpi bump", {stored, done}}, Case{"mapping svggroup bump", {stored, drawn, done}},
        Case{"svggroup dpi", {stored, drawn, done}}}) {
    SCOPED_TRACE(test.words);
    Configure("Sub", "p.Tag", test.words);
    const VelIRshShader_var hSub = Connect("link");
    AddScalar(hSub, "bump", 1.0F);
    UpdateValue(AddText(hSub, "p", "group"));
    EXPECT_EQ(Told(), test.told);
  }
}

TEST_F(VelRshAppearanceUpdaterValueTest, Steps_TellTheirTimesInOrderAndTheOperationLast) {
  const VelIRshParameter_var hAll = AddTagged("all", "bump svggroup mapping dpi", "VelRmaTexture");
  UpdateValue(hAll);
  EXPECT_EQ(Told(), (Texts{stored, copied, drawn, converting, converted, followed, done}));
}

TEST_F(VelRshAppearanceUpdaterValueTest, Resolution_DrawsConnectedSvgTexturesAnew) {
  const VelIRshParameter_var hDpi = AddDpi(300);
  AddSvg(Connect("slotted"), "/a.svg", 72, "one;two");
  AddSvg(Connect("slotted2"), "/b.svg", 96, "");
  images_.conversion.code = S_OK;
  UpdateValue(hDpi);
  Texts calls = Drawing("/a.svg", "one;two", 300);
  for (const std::string& call : Drawing("/b.svg", "", 300)) calls.push_back(call);
  EXPECT_EQ(images_.Take(), calls) << "the groups are those of each shader";
  EXPECT_EQ(Cache().Take(),
            (Texts{"SetEntry(5, /cache/converted.png, image)", "SetEntry(6, /cache/converted.png, image)"}));
  EXPECT_EQ(Told(),
            (Texts{stored, "info: 'slotted' detected as connected to an SVG texture located /a.svg",
                   "info: 'slotted' SVG rasterizing... { dpi: 300, group count: 2 }",
                   "info: 'slotted' rasterized cache entry updated { path: /cache/converted.png }",
                   "info: 'slotted2' detected as connected to an SVG texture located /b.svg",
                   "info: 'slotted2' SVG rasterizing... { dpi: 300, group count: 0 }",
                   "info: 'slotted2' rasterized cache entry updated { path: /cache/converted.png }", drawn, done}));
}

TEST_F(VelRshAppearanceUpdaterValueTest, Groups_DrawEachTextureAtTheResolutionOfItsShader) {
  Tag("groups", "svggroup");
  const VelIRshParameter_var hGroups = AddText(hRoot_, "groups", "left;;right");
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  AddSvg(Connect("slotted2"), "/b.svg", 96, "two");
  UpdateValue(hGroups);
  Texts calls = Drawing("/a.svg", "left;;right", 72);
  for (const std::string& call : Drawing("/b.svg", "left;;right", 96)) calls.push_back(call);
  EXPECT_EQ(images_.Take(), calls);
  EXPECT_EQ(Cache().Take(), (Texts{"SetEntry(5, /a.svg, image)", "SetEntry(6, /b.svg, image)"}));
  EXPECT_EQ(Told()[2], "info: 'slotted' SVG rasterizing... { dpi: 72, group count: 3 }");
}

TEST_F(VelRshAppearanceUpdaterValueTest, GroupsOfASubShader_DrawWhatIsConnectedToTheRoot) {
  Configure("Sub", "group_names.Tag", "svggroup");
  const VelIRshShader_var hSub = Connect("slotted");
  AddSvg(hSub, "/a.svg", 72, "one");
  AddSvg(Connect("slotted2"), "/b.svg", 96, "two");
  UpdateValue(Find(hSub, "group_names"));
  Texts calls = Drawing("/a.svg", "one", 72);
  for (const std::string& call : Drawing("/b.svg", "one", 96)) calls.push_back(call);
  EXPECT_EQ(images_.Take(), calls) << "the edited groups are those of all";
}

TEST_F(VelRshAppearanceUpdaterValueTest, ParameterWithBothTags_SuppliesTheResolutionAlone) {
  Tag("both", "svggroup dpi");
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  UpdateValue(AddInteger(hRoot_, "both", 144));
  EXPECT_EQ(images_.Take(), Drawing("/a.svg", "one", 144));
  Configure("Sub", "both.Tag", "svggroup dpi");
  const VelIRshParameter_var hBelow = AddInteger(Connect("link"), "both", 145);
  UpdateValue(hBelow);
  EXPECT_EQ(images_.Take(), Drawing("/a.svg", "one", 145)) << "on a sub-shader as well";
}

TEST_F(VelRshAppearanceUpdaterValueTest, UnknownTag_CountsAsTheResolution) {
  Tag("p", "nonsense");
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  const VelIRshParameter_var hParameter = AddInteger(hRoot_, "p", 150);
  UpdateValue(hParameter);
  EXPECT_EQ(images_.Take(), Drawing("/a.svg", "one", 150));
  EXPECT_FALSE(checks_.Messages().empty());
  for (const std::string& message : checks_.Messages()) EXPECT_EQ(message, "Could not parse tag");
  checks_.Clear();
}

TEST_F(VelRshAppearanceUpdaterValueTest, TextureConnectedToTheRootItself_IsDrawn) {
  const VelIRshParameter_var hDpi = AddDpi(300);
  AddText(hRoot_, "group_names", "one");
  AddTexture(hRoot_, "svg", "/a.svg");
  ASSERT_EQ(Add(hRoot_, "slotted", "VelRmaColor")->SetConnection(hRoot_.Get()), S_OK);
  UpdateValue(hDpi);
  EXPECT_EQ(images_.Take(), Drawing("/a.svg", "one", 300));
}

TEST_F(VelRshAppearanceUpdaterValueTest, SvgInLettersOfEitherCase_IsDrawn) {
  const VelIRshParameter_var hDpi = AddDpi(300);
  const VelIRshShader_var hSub = Connect("slotted");
  AddText(hSub, "group_names", "one");
  AddTexture(hSub, "sVG", "/a.svg");
  UpdateValue(hDpi);
  EXPECT_EQ(images_.Take(), Drawing("/a.svg", "one", 300)) << "and needs no resolution of its shader";
}

TEST_F(VelRshAppearanceUpdaterValueTest, WhatIsNoSvgTextureWithAChannel_IsPassedOverInSilence) {
  const VelIRshParameter_var hDpi = AddDpi(300);
  AddSvg(Connect("without a channel"), "/a.svg", 72, "one");
  Add(hRoot_, "slotted", "VelRmaColor");
  AddText(Connect("slotted"), "group_names", "no texture");
  AddScalar(Connect("slotted"), "tex", 1.0F);
  const VelIRshShader_var hEmpty = Connect("slotted");
  AddText(hEmpty, "group_names", "no document");
  Add(hEmpty, "tex", "VelRmaTexture");
  const VelIRshShader_var hPng = Connect("slotted");
  AddText(hPng, "group_names", "png");
  AddTexture(hPng, "svgz", "/a.svg");
  UpdateValue(hDpi);
  EXPECT_EQ(Told(), (Texts{stored, drawn, done}));
  EXPECT_EQ(images_.Take(), Texts{});
  EXPECT_EQ(Cache().Take(), Texts{});
}

TEST_F(VelRshAppearanceUpdaterValueTest, PathThatCannotBeHad_IsPassedOverInSilence) {
  const VelIRshParameter_var hDpi = AddDpi(300);
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  images_.projectionPath.code = E_FAIL;
  UpdateValue(hDpi);
  EXPECT_EQ(Told(), (Texts{stored, drawn, done}));
  EXPECT_EQ(images_.Take(), Texts{"GetProjectionPath(/a.svg)"});
  EXPECT_EQ(Cache().Take(), Texts{});
}

TEST_F(VelRshAppearanceUpdaterValueTest, ShaderWithoutItsHalfOfTheDrawing_IsDetectedAndPassedOver) {
  Tag("groups", "svggroup");
  const VelIRshParameter_var hGroups = AddText(hRoot_, "groups", "left");
  const VelIRshParameter_var hDpi = AddDpi(300);
  const VelIRshShader_var hWithoutGroups = Connect("slotted");
  AddInteger(hWithoutGroups, "dpi", 72);
  AddTexture(hWithoutGroups, "svg", "/a.svg");
  const VelIRshShader_var hWithoutDpi = Connect("slotted2");
  AddText(hWithoutDpi, "group_names", "one");
  AddTexture(hWithoutDpi, "svg", "/b.svg");
  const std::string detectedA = "info: 'slotted' detected as connected to an SVG texture located /a.svg";
  const std::string detectedB = "info: 'slotted2' detected as connected to an SVG texture located /b.svg";
  UpdateValue(hGroups);
  EXPECT_EQ(Told(), (Texts{stored, detectedA, detectedB, drawn, done})) << "groups are needed, a resolution too";
  EXPECT_EQ(Cache().Take(), Texts{});
  UpdateValue(hDpi);
  EXPECT_EQ(Told(),
            (Texts{stored, detectedA, detectedB, "info: 'slotted2' SVG rasterizing... { dpi: 300, group count: 1 }",
                   "info: 'slotted2' rasterized cache entry updated { path: /b.svg }", drawn, done}));
  EXPECT_EQ(Cache().Take(), Texts{"SetEntry(6, /b.svg, image)"});
}

TEST_F(VelRshAppearanceUpdaterValueTest, PictureThatCannotBeMade_LeavesTheEntryAsItWas) {
  const VelIRshParameter_var hDpi = AddDpi(100000);
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  AddSvg(Connect("slotted2"), "/b.svg", 72, "one");
  images_.brokenPaths = {"/a.svg"};
  UpdateValue(hDpi);
  EXPECT_EQ(Cache().Take(), Texts{"SetEntry(6, /b.svg, image)"}) << "the next one follows";
  Texts calls = Drawing("/a.svg", "one", 100000);
  calls.pop_back();
  for (const std::string& call : Drawing("/b.svg", "one", 100000)) calls.push_back(call);
  EXPECT_EQ(images_.Take(), calls) << "nothing is converted of which there is no picture";
  EXPECT_EQ(Told()[2], "info: 'slotted' SVG rasterizing... { dpi: 100000, group count: 1 }");
  EXPECT_EQ(Told()[3], "info: 'slotted2' detected as connected to an SVG texture located /b.svg");
}

TEST_F(VelRshAppearanceUpdaterValueTest, ConversionThatFails_KeepsThePathAndThePicture) {
  const VelIRshParameter_var hDpi = AddDpi(300);
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  images_.conversion.code = E_FAIL;
  UpdateValue(hDpi);
  EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /a.svg, image)"});
  EXPECT_EQ(Told()[3], "info: 'slotted' rasterized cache entry updated { path: /a.svg }");
}

TEST_F(VelRshAppearanceUpdaterValueTest, Picture_IsHeldByTheEntryAlone) {
  const VelIRshParameter_var hDpi = AddDpi(300);
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  UpdateValue(hDpi);
  ASSERT_TRUE(Cache().entries[5].image);
  EXPECT_EQ(images_.lastImage.Get(), Cache().entries[5].image->GetComponent());
  Cache().entries.clear();
  EXPECT_EQ(images_.lastImage.Get(), nullptr);
  Cache().setCode = E_FAIL;
  UpdateValue(hDpi);
  EXPECT_EQ(images_.lastImage.Get(), nullptr) << "also when the cache refuses it";
}

TEST_F(VelRshAppearanceUpdaterValueTest, Texture_UpdatesTheConnectionsOfItsShader) {
  const VelIRshShader_var hSub = Connect("slotted2");
  const VelIRshParameter_var hTexture = AddTexture(hSub, "png", "/a.png");
  ASSERT_EQ(Add(hRoot_, "slotted", "VelRmaColor")->SetConnection(hSub.Get()), S_OK);
  AddTexture(Connect("other"), "png", "/other.png");
  UpdateValue(hTexture);
  EXPECT_EQ(Cache().Take(), (Texts{"SetEntry(6, /a.png, image)", "SetEntry(5, /a.png, image)"}))
      << "in the order of the connections";
  constexpr const char* injected = "time: 2D transformation & DPI update overhead";
  constexpr const char* aligned = "time: bump update overhead";
  constexpr const char* connected = "time: OnConnectionUpdate";
  Texts expected{stored};
  for (const std::string name : {"'slotted2'", "'slotted'"}) {
    for (const std::string& line :
         {std::string(stored), std::string(injected), "info: Update required for " + name,
          "info: " + name + " is attached to a non-SVG texture located /a.png",
          "info: " + name + " cache entry updated { path: /a.png }", std::string(aligned), std::string(connected)}) {
      expected.push_back(line);
    }
  }
  expected.insert(expected.end(), {followed, done});
  EXPECT_EQ(Told(), expected);
}

TEST_F(VelRshAppearanceUpdaterValueTest, TextureOfTheRoot_FollowsItsConnectionsToo) {
  const VelIRshParameter_var hTexture = AddTexture(hRoot_, "png", "/a.png");
  ASSERT_EQ(Add(hRoot_, "slotted", "VelRmaColor")->SetConnection(hRoot_.Get()), S_OK);
  UpdateValue(hTexture);
  EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /a.png, image)"});
}

TEST_F(VelRshAppearanceUpdaterValueTest, ValueAndConnection_EndsOnTheLastConnectedParameter) {
  const VelIRshShader_var hSub = Connect("slotted2");
  const VelIRshParameter_var hTexture = AddTexture(hSub, "png", "/a.png");
  ASSERT_EQ(Add(hRoot_, "slotted", "VelRmaColor")->SetConnection(hSub.Get()), S_OK);
  Listen();
  ASSERT_EQ(VelIRshParameterPrivate_var(hTexture)->UpdateValueAndConnection(), S_OK);
  EXPECT_EQ(Cache().Take(),
            (Texts{"SetEntry(6, /a.png, image)", "SetEntry(5, /a.png, image)", "SetEntry(5, /a.png, image)"}));
  const Texts told = Told();
  EXPECT_EQ(std::count(told.begin(), told.end(), stored), 3) << "it is not seated on the texture again";
  EXPECT_EQ(told.back(), "time: OnConnectionUpdate");
  EXPECT_EQ(std::count(told.begin(), told.end(), "info: Update required for 'slotted'"), 2);
}

TEST_F(VelRshAppearanceUpdaterValueTest, ValueAndConnection_OfWhatNothingIsConnectedTo_StaysOnTheParameter) {
  const VelIRshShader_var hFree = AddNode(hRoot_, "Sub");
  const VelIRshParameter_var hTexture = AddTexture(hFree, "png", "/a.png");
  Listen();
  ASSERT_EQ(VelIRshParameterPrivate_var(hTexture)->UpdateValueAndConnection(), S_OK);
  EXPECT_EQ(Told(), (Texts{stored, followed, done, "info: Appearance cache entry reset for 'tex'",
                           "time: appearance cache slot reset overhead", "time: OnConnectionUpdate"}));
}

}  // namespace
