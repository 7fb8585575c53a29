// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorParameter_Resolution_test.cpp An edited resolution, at which the textures are drawn anew.
#include <type_traits>

#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorDerived.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorPlain.h"
#include "tests/RenderingShader/bindings/FatalErrorRecorder.h"
#include "tests/RenderingShader/services/fixtures/VelTestListingShader.h"
#include "tests/RenderingShader/updates/TranslatorTest.h"

namespace {

static_assert(std::is_base_of_v<VelIRshTranslatorParameter, VelRshTranslatorParameter>);
static_assert(std::is_base_of_v<VelIRshTranslatorParameter, VelRshTranslatorPlain>);
static_assert(std::is_base_of_v<VelIRshTranslatorDerivedParameter, VelRshTranslatorDerived>);
static_assert(std::is_polymorphic_v<VelIRshTranslatorParameter>);

/// The root is of a type with derived parameters and has a resolution.
class VelRshTranslatorResolutionTest : public TranslatorTest {
 protected:
  void SetUp() override {
    TranslatorTest::SetUp();
    Configure("MPM", "slotted.SlotIdentifier", "reflectance.diffuse.color");
    Configure("MPM", "slotted2.SlotIdentifier", "reflectance.specular.color");
    MakeRoot("MPM");
    hDpi_ = AddInteger(hRoot_, "dpi", 72);
  }
  void TearDown() override {
    hDpi_ = nullptr;
    TranslatorTest::TearDown();
  }

  bool SendDpi(const VelIRshParameter_var& iParameter, std::int32_t iPrevious, std::int32_t iNext) {
    Listen();
    return Send<SentIntegral>(iParameter.Get(), iPrevious, iNext);
  }

  VelIRshParameter_var hDpi_;
};

TEST_F(VelRshTranslatorResolutionTest, Resolution_IsCarriedOverAndSvgTexturesAreDrawn) {
  const VelIRshShader_var hFirst = Connect("slotted");
  AddSvg(hFirst, "/a.svg", 72, "left;right");
  AddSvg(Connect("slotted2"), "/b.svg", 72, "");
  images_.conversion.code = S_OK;
  EXPECT_TRUE(SendDpi(hDpi_, 72, 144));
  EXPECT_EQ(IntegerOf(hDpi_), 144);
  EXPECT_EQ(IntegerOf(Find(hFirst, "dpi")), 144);
  EXPECT_EQ(images_.Take(),
            (Texts{"GetProjectionPath(/a.svg)", "CreatePixelImageFromFullPath(/a.svg, [left;right], 144)",
                   "ConvertUnsupportedTexture(/a.svg, [left;right], 144)", "GetProjectionPath(/b.svg)",
                   "CreatePixelImageFromFullPath(/b.svg, [], 144)", "ConvertUnsupportedTexture(/b.svg, [], 144)"}));
  EXPECT_EQ(Cache().Take(),
            (Texts{"SetEntry(5, /cache/converted.png, image)", "SetEntry(6, /cache/converted.png, image)"}));
}

TEST_F(VelRshTranslatorResolutionTest, PlainTextures_AreLoadedAgain) {
  AddTexture(Connect("slotted"), "png", "/a.png");
  EXPECT_TRUE(SendDpi(hDpi_, 72, 144));
  EXPECT_EQ(images_.Take(), (Texts{"GetProjectionPath(/a.png)", "CreatePixelImageFromFullPath(/a.png, [], 72)",
                                   "ConvertUnsupportedTexture(/a.png, [], 72)"}));
  EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /a.png, image)"});
}

TEST_F(VelRshTranslatorResolutionTest, SvgInLettersOfEitherCaseAndWithoutAResolution_IsDrawn) {
  const VelIRshShader_var hSub = Connect("slotted");
  AddText(hSub, "group_names", "one");
  AddTexture(hSub, "SVG", "/a.svg");
  EXPECT_TRUE(SendDpi(hDpi_, 72, 144));
  EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /a.svg, image)"});
}

TEST_F(VelRshTranslatorResolutionTest, ResolutionOfASubShader_DrawsWhatIsConnectedToTheRoot) {
  const VelIRshShader_var hSub = Connect("slotted");
  AddSvg(hSub, "/a.svg", 72, "one");
  EXPECT_TRUE(SendDpi(Find(hSub, "dpi"), 72, 200));
  EXPECT_EQ(images_.Take()[1], "CreatePixelImageFromFullPath(/a.svg, [one], 200)");
  EXPECT_EQ(IntegerOf(hDpi_), 72) << "it is not carried up";
}

TEST_F(VelRshTranslatorResolutionTest, WhatIsNoEditedResolution_DrawsNothing) {
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  const VelIRshParameter_var hOther = AddInteger(hRoot_, "DPI", 72);
  const VelIRshParameter_var hScalar = AddScalar(hRoot_, "dpi", 72.0F);
  EXPECT_TRUE(SendDpi(hOther, 72, 144)) << "another name";
  EXPECT_EQ(images_.Take(), Texts{});
  EXPECT_TRUE(SendDpi(hDpi_, 144, 144)) << "equal values";
  EXPECT_EQ(images_.Take(), Texts{});
  Listen();
  EXPECT_FALSE(Send<SentFloat>(hScalar)) << "a number of another kind, which the shader's resolution cannot take";
  EXPECT_EQ(images_.Take(), Texts{});
  EXPECT_EQ(Cache().Take(), Texts{});
}

TEST_F(VelRshTranslatorResolutionTest, RootWithoutDerivedParameters_DrawsNothing) {
  MakeRoot("Top");
  const VelIRshParameter_var hDpi = AddInteger(hRoot_, "dpi", 72);
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  EXPECT_TRUE(SendDpi(hDpi, 72, 144));
  EXPECT_EQ(images_.Take(), Texts{});
}

TEST_F(VelRshTranslatorResolutionTest, MaterialWithoutACache_IsNotHandledAfterTheValueWasCarriedOver) {
  const VelIRshShader_var hSub = Connect("slotted");
  AddSvg(hSub, "/a.svg", 72, "one");
  Cache().isOffered = false;
  EXPECT_FALSE(SendDpi(hDpi_, 72, 144));
  EXPECT_EQ(IntegerOf(Find(hSub, "dpi")), 144);
  EXPECT_EQ(images_.Take(), Texts{});
  const VelIRshParameter_var hFree = AddInteger(MakeShader("MPM"), "dpi", 72);
  EXPECT_FALSE(SendDpi(hFree, 72, 144)) << "no material at all";
}

TEST_F(VelRshTranslatorResolutionTest, PropagationControl_IsNotNeeded) {
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  Material().offersPropagation = false;
  EXPECT_TRUE(SendDpi(hDpi_, 72, 144));
  EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /a.svg, image)"});
}

TEST_F(VelRshTranslatorResolutionTest, ValueThatCannotBeCarriedOver_DrawsNothing) {
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  AddScalar(Connect("slotted2"), "dpi", 72.0F);
  EXPECT_FALSE(SendDpi(hDpi_, 72, 144));
  EXPECT_EQ(images_.Take(), Texts{});
}

TEST_F(VelRshTranslatorResolutionTest, WhatCannotBeDone_IsPassedOver) {
  AddSvg(Connect("without a channel"), "/0.svg", 72, "one");
  Add(hRoot_, "slotted", "VelRmaColor");
  AddText(Connect("slotted"), "group_names", "no texture");
  Add(Connect("slotted"), "tex", "VelRmaTexture");
  AddScalar(Connect("slotted"), "tex", 1.0F);
  AddTexture(Connect("slotted"), "svg", "/without groups.svg");
  AddSvg(Connect("slotted"), "/broken.svg", 72, "one");
  AddTexture(Connect("slotted"), "png", "/broken.png");
  AddSvg(Connect("slotted2"), "/b.svg", 72, "one");
  images_.brokenPaths = {"/broken.svg", "/broken.png"};
  EXPECT_TRUE(SendDpi(hDpi_, 72, 144));
  EXPECT_EQ(Cache().Take(), Texts{"SetEntry(6, /b.svg, image)"});
  EXPECT_EQ(
      images_.Take(),
      (Texts{"GetProjectionPath(/without groups.svg)", "GetProjectionPath(/broken.svg)",
             "CreatePixelImageFromFullPath(/broken.svg, [one], 144)", "GetProjectionPath(/broken.png)",
             "CreatePixelImageFromFullPath(/broken.png, [], 72)", "GetProjectionPath(/b.svg)",
             "CreatePixelImageFromFullPath(/b.svg, [one], 144)", "ConvertUnsupportedTexture(/b.svg, [one], 144)"}));
  images_.projectionPath.code = E_FAIL;
  EXPECT_TRUE(SendDpi(hDpi_, 144, 72));
  EXPECT_EQ(Cache().Take(), Texts{}) << "no document has a path";
}

TEST_F(VelRshTranslatorResolutionTest, RootWithWhatIsNoParameter_EndsTheProcess) {
  VelTestListingShaders shaders;
  shaders.type.value = "MPM";
  const VelISpecObject_var hBox = VelTestListingShaders::CreateBox(*hContainer_);
  ASSERT_EQ(VelIRenderingMaterial_var(hMaterial_)->SetShader(hBox.Get()), S_OK);
  const VelIRshParameter_var hBoxed(Make("VelRmaInteger"));
  ASSERT_EQ(hBoxed->SetName("dpi"), S_OK);
  VelTestListingShaders::Put(hBox, hBoxed.Get());
  const FatalErrorRecorder fatal;
  SendDpi(hBoxed, 72, 144);
  EXPECT_EQ(fatal.Messages(), (Texts{"parameter is not a VelIRshParameter", "parameter is not a VelIRshParameter"}))
      << "by the one who carries over and by the one who draws";
}

TEST_F(VelRshTranslatorResolutionTest, Handler_KnowsIntegralsAlone) {
  const VelRshTranslatorResolution resolution;
  VelBaseUnknown* const object = hDpi_.Get();
  const VelInterfaceId& by = VelIRshParameter::InterfaceId();
  EXPECT_TRUE(resolution(VelRbaIntegralShaderModifyNotification("dpi", object, by, 72, 72)));
  EXPECT_TRUE(resolution(VelRbaIntegralShaderModifyNotification("dpi", object, by, 72, 144)));
  EXPECT_FALSE(resolution(VelRbaIntegralShaderModifyNotification("dpi", hRoot_.Get(), by, 72, 144)));
  EXPECT_FALSE(resolution(VelRbaBooleanShaderModifyNotification("dpi", object, by, false, false)));
  EXPECT_FALSE(resolution(VelRbaFloatShaderModifyNotification("dpi", object, by, 1.0, 2.0)));
  EXPECT_FALSE(resolution(VelRbaStringShaderModifyNotification("dpi", object, by, "", "")));
  EXPECT_FALSE(resolution(VelRbaColorShaderModifyNotification("dpi", object, by, {}, {})));
  EXPECT_FALSE(resolution(VelRbaResetRenderingMaterialNotification(object)));
  EXPECT_FALSE(resolution(
      VelRbaNotificationTopologyModification("dpi", object, by, nullptr, nullptr, VelIRshShader::InterfaceId())));
}

TEST_F(VelRshTranslatorResolutionTest, Translators_HandleEqualValuesWithoutALook) {
  const VelRshTranslatorPlain plain;
  const VelRshTranslatorDerived derived;
  const VelIRshParameter_var hAlone(Make("VelRmaInteger"));
  const VelInterfaceId& by = VelIRshParameter::InterfaceId();
  const VelRbaIntegralShaderModifyNotification equal("p", hAlone.Get(), by, 1, 1);
  const VelRbaIntegralShaderModifyNotification different("p", hAlone.Get(), by, 1, 2);
  EXPECT_TRUE(plain(equal));
  EXPECT_TRUE(derived(equal));
  EXPECT_FALSE(plain(different)) << "there is no root";
  EXPECT_FALSE(derived(different));
}

}  // namespace
