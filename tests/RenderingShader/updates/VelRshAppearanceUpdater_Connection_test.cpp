// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshAppearanceUpdater_Connection_test.cpp What follows from a changed connection, step by step.
#include <limits>

#include "tests/RenderingShader/updates/UpdatesTest.h"

namespace {

constexpr const char* stored = "time: parameter store";
constexpr const char* injected = "time: 2D transformation & DPI update overhead";
constexpr const char* aligned = "time: bump update overhead";
constexpr const char* reset = "time: appearance cache slot reset overhead";
constexpr const char* done = "time: OnConnectionUpdate";
constexpr const char* detected =
    "info: Detected connection to vel_phen_bump with a bump_type parameter, bump value update required";

class VelRshAppearanceUpdaterConnectionTest : public UpdatesTest {
 protected:
  /// Updates the parameter of a name that was added last.
  void Update(const char* iName = "slotted") {
    VelIRshParameter_var hLast;
    for (const VelIRshParameter_var& hParameter : VelRshReaderParameterCollection()(*hRoot_)) {
      if (NameOfParameter(hParameter.Get()) == iName) hLast = hParameter;
    }
    UpdateConnection(hLast);
  }

  /// @return what is told of a connection whose texture is loaded or not, and which has no values to take over
  static Texts Loading(std::initializer_list<std::string> iLines, bool iIsReset = false) {
    Texts told{stored, injected};
    told.insert(told.end(), iLines);
    told.emplace_back(aligned);
    if (iIsReset) told.insert(told.end(), {"info: Appearance cache entry reset for 'slotted'", reset});
    told.emplace_back(done);
    return told;
  }
};

TEST_F(VelRshAppearanceUpdaterConnectionTest, ParameterWithoutAConnection_HasItsEntryReset) {
  Add(hRoot_, "slotted", "VelRmaColor");
  Cache().entries[5] = {"/old.png", nullptr};
  Update();
  EXPECT_EQ(Told(), (Texts{stored, "info: Appearance cache entry reset for 'slotted'", reset, done}));
  EXPECT_EQ(Cache().Take(), Texts{"ResetEntry(5)"});
  EXPECT_EQ(images_.Take(), Texts{});
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, ConnectionToWhatIsNoShader_ResetsTheEntry) {
  const VelIRshParameter_var hLink = Add(hRoot_, "slotted", "VelRmaColor");
  ASSERT_EQ(Access(VelISpecObject_var(hLink))->SetReference(node_, Make("VelRmaScalar").Get()), S_OK);
  Update();
  EXPECT_EQ(Told(), (Texts{stored, "info: Appearance cache entry reset for 'slotted'", reset, done}));
  EXPECT_EQ(Cache().Take(), Texts{"ResetEntry(5)"});
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, ParameterWithoutAChannel_LoadsNothingAndResetsTheChannelZero) {
  AddSvg(Connect("link"), "/a.svg", 72, "one");
  Update("link");
  EXPECT_EQ(Told(), (Texts{stored, injected, aligned, "info: Appearance cache entry reset for 'link'", reset, done}));
  EXPECT_EQ(Cache().Take(), Texts{"ResetEntry(0)"});
  EXPECT_EQ(images_.Take(), Texts{});
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, MappingAndResolution_AreTakenOverFromTheRoot) {
  Tag("scale_u", "mapping");
  Tag("dpi", "dpi");
  Tag("both", "dpi mapping");
  Tag("other", "svggroup bump diffuse");
  const char* const names[] = {"scale_u", "untagged", "dpi", "both", "other", "scale_v"};
  for (const char* name : names) AddScalar(hRoot_, name, 2.0F);
  const VelIRshShader_var hSub = Connect("link");
  for (const char* name : names) AddScalar(hSub, name, 1.0F);
  const VelIRshParameter_var hNamesake = AddScalar(hSub, "scale_u", 1.0F);
  Update("link");
  EXPECT_EQ(Told(), (Texts{stored, "info: Updating link connected shader mapping data scale_u",
                           "info: Updating link connected shader mapping data dpi",
                           "info: Updating link connected shader mapping data both", injected, aligned,
                           "info: Appearance cache entry reset for 'link'", reset, done}));
  EXPECT_EQ(ScalarOf(Find(hSub, "scale_u")), 2.0F);
  EXPECT_EQ(ScalarOf(Find(hSub, "dpi")), 2.0F);
  EXPECT_EQ(ScalarOf(Find(hSub, "both")), 2.0F);
  EXPECT_EQ(ScalarOf(Find(hSub, "untagged")), 1.0F);
  EXPECT_EQ(ScalarOf(Find(hSub, "other")), 1.0F);
  EXPECT_EQ(ScalarOf(hNamesake), 1.0F);
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, ValueThatTheConnectedShaderHasNot_IsPassedOver) {
  Tag("scale_u", "mapping");
  AddScalar(hRoot_, "scale_u", 2.0F);
  AddScalar(Connect("link"), "SCALE_U", 1.0F);
  Update("link");
  EXPECT_EQ(Told()[1], injected);
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, ValueThatCannotBeTakenOver_IsAnErrorAndTheNextOneFollows) {
  Tag("scale_u", "mapping");
  Tag("scale_v", "mapping");
  AddScalar(hRoot_, "scale_u", 2.0F);
  AddScalar(hRoot_, "scale_v", 2.0F);
  const VelIRshShader_var hSub = Connect("slotted");
  AddInteger(hSub, "scale_u", 1);
  AddScalar(hSub, "scale_v", 1.0F);
  Update();
  const Texts told = Told();
  EXPECT_EQ(told[1], "info: Updating slotted connected shader mapping data scale_u");
  EXPECT_EQ(told[2], "error: 2D transformation input injection failed for 'slotted' on 'scale_u' update failed");
  EXPECT_EQ(told[3], "info: Updating slotted connected shader mapping data scale_v");
  EXPECT_EQ(told[4], injected);
  EXPECT_EQ(ScalarOf(Find(hSub, "scale_v")), 2.0F);
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, RootParameterWithoutAPrivateSide_IsAnErrorAndTheNextOneFollows) {
  Add(hRoot_, "void", "VelRmaVoid");
  Add(hRoot_, "light", "VelRmaLightProfile");
  Tag("scale_u", "mapping");
  AddScalar(hRoot_, "scale_u", 2.0F);
  const VelIRshShader_var hSub = Connect("link");
  AddScalar(hSub, "scale_u", 1.0F);
  Update("link");
  const Texts told = Told();
  EXPECT_EQ(told[1], "error: E_NOINTERFACE VelIRshParameterPrivate");
  EXPECT_EQ(told[2], "error: E_NOINTERFACE VelIRshParameterPrivate");
  EXPECT_EQ(told[3], "info: Updating link connected shader mapping data scale_u");
  EXPECT_EQ(ScalarOf(Find(hSub, "scale_u")), 2.0F);
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, PlainTexture_FillsTheEntryWithThePathAfterConversion) {
  for (const char* format : {"png", "GIF", "svgz", ""}) {
    SCOPED_TRACE(format);
    AddTexture(Connect("slotted"), format, "/a.gif");
    images_.conversion.code = S_OK;
    Update();
    EXPECT_EQ(images_.Take(), (Texts{"GetProjectionPath(/a.gif)", "CreatePixelImageFromFullPath(/a.gif, [], 72)",
                                     "ConvertUnsupportedTexture(/a.gif, [], 72)"}));
    EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /cache/converted.png, image)"});
    EXPECT_EQ(Told(), Loading({"info: Update required for 'slotted'",
                               "info: 'slotted' is attached to a non-SVG texture located /a.gif",
                               "info: 'slotted' cache entry updated { path: /cache/converted.png }"}));
  }
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, DocumentThatDoesNotTellItsFormat_IsNoSvgTexture) {
  const VelIRshParameter_var hTexture = AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  VelBaseUnknown_var hDocument;
  ASSERT_EQ(hTexture->GetValue(hDocument.Receive()), S_OK);
  FakeDocument::Of(*hDocument).format.code = E_FAIL;
  Update();
  EXPECT_EQ(images_.Take()[1], "CreatePixelImageFromFullPath(/a.svg, [], 72)");
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, SvgTexture_IsDrawnWithTheValuesOfItsShader) {
  for (const char* format : {"svg", "SVG", "Svg"}) {
    SCOPED_TRACE(format);
    const VelIRshShader_var hSub = Connect("slotted");
    AddInteger(hSub, "dpi", 144);
    AddText(hSub, "group_names", "left;right");
    AddTexture(hSub, format, "/a.svg");
    images_.conversion.code = S_OK;
    Update();
    EXPECT_EQ(images_.Take(),
              (Texts{"GetProjectionPath(/a.svg)", "CreatePixelImageFromFullPath(/a.svg, [left;right], 144)",
                     "ConvertUnsupportedTexture(/a.svg, [left;right], 144)"}));
    EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /cache/converted.png, image)"});
    EXPECT_EQ(Told(), Loading({"info: Update required for 'slotted'",
                               "info: 'slotted' is attached to a SVG texture located /a.svg",
                               "info: 'slotted' SVG rasterizing... { dpi: 144, group count: 2 }",
                               "info: 'slotted' rasterized cache entry updated { path: /cache/converted.png }"}));
  }
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, SvgTexture_IsDrawnAtTheResolutionThatWasJustTakenOver) {
  Tag("dpi", "dpi");
  AddInteger(hRoot_, "dpi", 300);
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  Update();
  EXPECT_EQ(images_.Take()[1], "CreatePixelImageFromFullPath(/a.svg, [one], 300)");
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, ShaderWithoutATexture_HasTheEntryReset) {
  const std::string none = "info: No texture linked to 'slotted'";
  AddInteger(Connect("slotted"), "dpi", 72);
  Update();
  EXPECT_EQ(Told(), Loading({none}, true));
  EXPECT_EQ(Cache().Take(), Texts{"ResetEntry(5)"});
  AddScalar(Connect("slotted"), "tex", 1.0F);
  Update();
  EXPECT_EQ(Told(), Loading({none}, true)) << "a texture that is none";
  Add(Connect("slotted"), "tex", "VelRmaTexture");
  Update();
  EXPECT_EQ(Told(), Loading({none}, true)) << "a texture without a document";
  EXPECT_EQ(images_.Take(), Texts{});
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, FirstTexture_IsTheOneThatCounts) {
  const VelIRshShader_var hSub = Connect("slotted");
  Add(hSub, "tex", "VelRmaTexture");
  AddTexture(hSub, "png", "/second.png");
  Update();
  EXPECT_EQ(Cache().Take(), Texts{"ResetEntry(5)"});
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, PathThatCannotBeHad_LeavesTheEntryAsItWas) {
  for (const char* format : {"png", "svg"}) {
    SCOPED_TRACE(format);
    AddTexture(Connect("slotted"), format, "/a");
    images_.projectionPath.code = E_FAIL;
    Update();
    EXPECT_EQ(Told(), Loading({"info: Update required for 'slotted'"}));
    EXPECT_EQ(images_.Take(), Texts{"GetProjectionPath(/a)"});
    EXPECT_EQ(Cache().Take(), Texts{});
  }
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, PictureThatCannotBeMade_LeavesTheEntryAsItWas) {
  images_.givesImages = false;
  AddTexture(Connect("slotted"), "png", "/a.png");
  Update();
  EXPECT_EQ(Told(), Loading({"info: Update required for 'slotted'",
                             "info: 'slotted' is attached to a non-SVG texture located /a.png"}));
  EXPECT_EQ(images_.Take().size(), 2U) << "nothing is converted";
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  Update();
  EXPECT_EQ(Told(), Loading({"info: Update required for 'slotted'",
                             "info: 'slotted' is attached to a SVG texture located /a.svg",
                             "info: 'slotted' SVG rasterizing... { dpi: 72, group count: 1 }"}));
  EXPECT_EQ(images_.Take().size(), 2U);
  EXPECT_EQ(Cache().Take(), Texts{});
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, SvgTextureWithoutItsResolutionOrGroups_LeavesTheEntryAsItWas) {
  for (const bool hasDpi : {false, true}) {
    const VelIRshShader_var hSub = Connect("slotted");
    if (hasDpi) AddInteger(hSub, "dpi", 72);
    if (!hasDpi) AddText(hSub, "group_names", "one");
    AddTexture(hSub, "svg", "/a.svg");
    Update();
    EXPECT_EQ(Told(), Loading({"info: Update required for 'slotted'",
                               "info: 'slotted' is attached to a SVG texture located /a.svg"}));
    EXPECT_EQ(images_.Take(), Texts{"GetProjectionPath(/a.svg)"});
    EXPECT_EQ(Cache().Take(), Texts{});
  }
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, Picture_IsHeldByTheEntryAlone) {
  AddTexture(Connect("slotted"), "png", "/a.png");
  Update();
  ASSERT_TRUE(Cache().entries[5].image);
  EXPECT_EQ(images_.lastImage.Get(), Cache().entries[5].image->GetComponent());
  Cache().entries.clear();
  EXPECT_EQ(images_.lastImage.Get(), nullptr);
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, BumpLevelOfTheRoot_IsCopiedUnchangedIntoABumpShaderWithAType) {
  AddScalar(hRoot_, "default_sp_bump", 0.05F);
  const VelIRshShader_var hBump = Connect("link", "vel_phen_bump");
  AddInteger(hBump, "bump_type", 1);
  const VelIRshParameter_var hLevel = AddScalar(hBump, "bump", 0.25F);
  Update("link");
  EXPECT_EQ(ScalarOf(hLevel), 0.05F);
  EXPECT_EQ(Told(), (Texts{stored, injected, detected, "info: MDL Bump update from 0.250000 to 0.050000", aligned,
                           "info: Appearance cache entry reset for 'link'", reset, done}));
  Update("link");
  EXPECT_EQ(Told()[3], "info: MDL Bump unchanged level-0/level-1 0.050000");
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, BumpLevelThatIsNoNumber_IsAlwaysWritten) {
  constexpr float nan = std::numeric_limits<float>::quiet_NaN();
  AddScalar(hRoot_, "default_sp_bump", nan);
  const VelIRshShader_var hBump = Connect("link", "vel_phen_bump");
  AddInteger(hBump, "bump_type", 1);
  AddScalar(hBump, "bump", nan);
  Update("link");
  EXPECT_EQ(Told()[3], "info: MDL Bump update from nan to nan");
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, BumpThatIsNoScalar_IsAFailedWrite) {
  AddScalar(hRoot_, "default_sp_bump", 0.05F);
  const VelIRshShader_var hBump = Connect("link", "vel_phen_bump");
  AddInteger(hBump, "bump_type", 1);
  AddColor(hBump, "bump", 1.0F, 1.0F, 1.0F);
  Update("link");
  EXPECT_EQ(Told()[3], "info: MDL Bump unchanged level-0/level-1 0.050000");
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, BumpLevel_IsAlignedWhereTypeAndBothLevelsAreThere) {
  struct Case {
    const char* shader;
    bool hasType;
    bool hasRootLevel;
    bool hasLevel;
    bool isDetected;
  };
  const Case cases[] = {{"vel_phen_bump", false, true, true, false},
                        {"vel_phen_bumps", true, true, true, false},
                        {"Vel_phen_bump", true, true, true, false},
                        {"vel_phen_bump", true, false, true, true},
                        {"vel_phen_bump", true, true, false, true}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.shader);
    const VelIRshShader_var hTop = MakeShader("Top");
    ASSERT_EQ(VelIRenderingMaterial_var(hMaterial_)->SetShader(hTop.Get()), S_OK);
    hRoot_ = hTop;
    if (test.hasRootLevel) AddScalar(hRoot_, "default_sp_bump", 0.05F);
    const VelIRshShader_var hBump = Connect("link", test.shader);
    if (test.hasType) AddInteger(hBump, "bump_type", 1);
    if (test.hasLevel) AddScalar(hBump, "bump", 0.25F);
    Update("link");
    Texts expected{stored, injected};
    if (test.isDetected) expected.emplace_back(detected);
    expected.insert(expected.end(), {aligned, "info: Appearance cache entry reset for 'link'", reset, done});
    EXPECT_EQ(Told(), expected);
    EXPECT_TRUE(!test.hasLevel || ScalarOf(Find(hBump, "bump")) == 0.25F);
  }
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, Steps_ComeInOrder) {
  Tag("dpi", "dpi");
  AddInteger(hRoot_, "dpi", 300);
  AddScalar(hRoot_, "default_sp_bump", 0.05F);
  const VelIRshShader_var hBump = Connect("slotted", "vel_phen_bump");
  AddInteger(hBump, "bump_type", 1);
  AddScalar(hBump, "bump", 0.25F);
  AddSvg(hBump, "/a.svg", 72, "one");
  Update();
  EXPECT_EQ(Told(),
            (Texts{stored, "info: Updating slotted connected shader mapping data dpi", injected,
                   "info: Update required for 'slotted'", "info: 'slotted' is attached to a SVG texture located /a.svg",
                   "info: 'slotted' SVG rasterizing... { dpi: 300, group count: 1 }",
                   "info: 'slotted' rasterized cache entry updated { path: /a.svg }", detected,
                   "info: MDL Bump update from 0.250000 to 0.050000", aligned, done}));
}

TEST_F(VelRshAppearanceUpdaterConnectionTest, ConnectionBelowTheRoot_TakesTheValuesOfTheRoot) {
  Tag("scale_u", "mapping");
  AddScalar(hRoot_, "scale_u", 2.0F);
  const VelIRshShader_var hMiddle = Connect("link");
  AddScalar(hMiddle, "scale_u", 3.0F);
  Configure("Sub", "scale_u.Tag", "mapping");
  const VelIRshShader_var hLeaf = AddNode(hMiddle, "Leaf");
  const VelIRshParameter_var hTarget = AddScalar(hLeaf, "scale_u", 1.0F);
  const VelIRshParameter_var hLink = Add(hMiddle, "below", "VelRmaColor");
  ASSERT_EQ(hLink->SetConnection(hLeaf.Get()), S_OK);
  UpdateConnection(hLink);
  EXPECT_EQ(ScalarOf(hTarget), 2.0F);
  EXPECT_EQ(Told()[1], "info: Updating below connected shader mapping data scale_u");
}

}  // namespace
