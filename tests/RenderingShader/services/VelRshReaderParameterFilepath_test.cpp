// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterFilepath_test.cpp Every source of the path of a parameter's image, and what is told of
/// it.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterFilepath.h"

#include <type_traits>

#include "tests/RenderingShader/services/ImageReaderTest.h"

namespace {

constexpr const char* timed = "VelRshReaderParameterFilepathPerformanceTime: file path extraction";
constexpr const char* drawn = "VelRshReaderParameterFilepathPerformanceTime: SVG raster (VelRbaImageServices)";
constexpr const char* nothing = "warning: Could not produce a filepath { parameter name = p }";
constexpr const char* nothingSlotted = "warning: Could not produce a filepath { parameter name = slotted }";

class VelRshReaderParameterFilepathTest : public ImageReaderTest {
 protected:
  std::string Read(const VelIRshParameter_var& iParameter) {
    Forget();
    return std::string(VelRshReaderParameterFilepath()(*iParameter).View());
  }

  /// Expects that nothing is found, and told by the closing warning alone.
  void ExpectNothing(const VelIRshParameter_var& iParameter, const Texts& iCalls) {
    EXPECT_EQ(Read(iParameter), "");
    EXPECT_EQ(Told(), (Texts{nothing, timed}));
    EXPECT_EQ(images_.Take(), iCalls);
  }

  /// Adds what an SVG texture needs beside it.
  void AddDrawing(const VelIRshShader_var& iShader, std::int32_t iDpi, const char* iGroups) {
    EXPECT_EQ(Add(iShader, "dpi", "VelRmaInteger")->SetValue(&iDpi), S_OK);
    AddText(iShader, "group_names", iGroups);
  }
};

TEST_F(VelRshReaderParameterFilepathTest, CachedPath_ComesBeforeAnyOtherSource) {
  Cache().entries[5] = {"/cached.png", nullptr};
  const VelIRshParameter_var hParameters[] = {AddText(hShader_, "slotted", "/value.png"),
                                              AddTexture(hShader_, "slotted"), Add(hShader_, "slotted", "VelRmaColor"),
                                              Add(hShader_, "slotted", "VelRmaLightProfile")};
  for (const VelIRshParameter_var& hParameter : hParameters) {
    EXPECT_EQ(Read(hParameter), "/cached.png");
    EXPECT_EQ(Told(), (Texts{"info: File path found into VelIRmaAppearanceCache : /cached.png { parameter name = "
                             "slotted }",
                             timed}));
    EXPECT_EQ(images_.Take(), Texts{});
    EXPECT_EQ(Cache().Take(), Texts{"GetPath(5)"});
  }
}

TEST_F(VelRshReaderParameterFilepathTest, CachedEmptyPath_IsAnErrorAndTheValueIsTried) {
  Cache().entries[5] = {"", nullptr};
  EXPECT_EQ(Read(AddText(hShader_, "slotted", "/value.png")), "/value.png");
  EXPECT_EQ(Told(), (Texts{"error: File path found into VelIRmaAppearanceCache :  { parameter name = slotted }",
                           "info: File path found into resolved string's parameter value : /value.png { parameter "
                           "name = slotted }",
                           timed}));
  EXPECT_EQ(traces_.Entries()[0].source, "RenderingShader/VelRshModel.m/src/VelRshReaderParameterFilepath");
  EXPECT_NE(traces_.Entries()[0].line, 0U);
  EXPECT_EQ(Read(Add(hShader_, "slotted", "VelRmaColor")), "");
  EXPECT_EQ(Told(), (Texts{"error: File path found into VelIRmaAppearanceCache :  { parameter name = slotted }",
                           nothingSlotted, timed}));
}

TEST_F(VelRshReaderParameterFilepathTest, CacheThatDoesNotAnswer_IsPassedOver) {
  const VelIRshParameter_var hParameter = Add(hShader_, "slotted", "VelRmaColor");
  EXPECT_EQ(Read(hParameter), "") << "no entry";
  EXPECT_EQ(Told(), (Texts{nothingSlotted, timed}));
  EXPECT_EQ(Cache().Take(), Texts{"GetPath(5)"});
  Cache().entries[5] = {"/cached.png", nullptr};
  Cache().getPathCode = E_FAIL;
  EXPECT_EQ(Read(hParameter), "") << "a failure";
  EXPECT_EQ(Told(), (Texts{nothingSlotted, timed}));
  Cache().getPathCode = S_OK;
  Cache().isOffered = false;
  EXPECT_EQ(Read(hParameter), "") << "the material is no cache";
  EXPECT_EQ(Cache().Take(), Texts{});
  Cache().isOffered = true;
  const VelIRshShader_var hFree = MakeShader();
  EXPECT_EQ(Read(Add(hFree, "slotted", "VelRmaColor")), "") << "no material";
  EXPECT_EQ(Cache().Take(), Texts{});
}

TEST_F(VelRshReaderParameterFilepathTest, ParameterWithoutASlot_NeverAsksTheCache) {
  Cache().entries[0] = Cache().entries[5] = {"/cached.png", nullptr};
  EXPECT_EQ(Read(AddText(hShader_, "p", "/value.png")), "/value.png");
  EXPECT_EQ(Cache().Take(), Texts{});
}

TEST_F(VelRshReaderParameterFilepathTest, Text_IsResolvedAndLosesTheLongPathPrefix) {
  const struct {
    const char* text;
    const char* resolved;
    const char* path;
  } cases[] = {{"wood.png", "/full/wood.png", "/full/wood.png"},
               {"wood.png", "\\\\?\\C:\\wood.png", "C:\\wood.png"},
               {"wood.png", "\\\\?\\C:\\\\\\?\\wood.png", "C:\\wood.png"},
               {"\\\\?\\C:\\wood.png", "\\\\?\\C:\\wood.png", "C:\\wood.png"},
               {"wood.png", "\\\\.\\C:\\wood.png", "\\\\.\\C:\\wood.png"},
               {"\xC3\xA9.png", "/\xC3\xA9.png", "/\xC3\xA9.png"}};
  const VelIRshParameter_var hParameter = Add(hShader_, "p", "VelRmaString");
  for (const auto& test : cases) {
    SCOPED_TRACE(test.resolved);
    const VelUnicodeString text(test.text);
    EXPECT_TRUE(SUCCEEDED(hParameter->SetValue(&text)));
    images_.resolvedPaths = {{test.text, test.resolved}};
    EXPECT_EQ(Read(hParameter), test.path);
    EXPECT_EQ(images_.Take(), Texts{std::string("ResolvePath(") + test.text + ")"});
    EXPECT_EQ(Told(), (Texts{std::string("info: File path found into resolved string's parameter value : ") +
                                 test.path + " { parameter name = p }",
                             timed}));
  }
}

TEST_F(VelRshReaderParameterFilepathTest, TextThatCannotBeResolved_IsTakenAsItStands) {
  images_.resolveCode = E_FAIL;
  EXPECT_EQ(Read(AddText(hShader_, "p", "\\\\?\\C:\\wood.png")), "C:\\wood.png");
}

TEST_F(VelRshReaderParameterFilepathTest, TextThatBecomesEmpty_IsAnErrorAndNoPath) {
  images_.resolvedPaths = {{"gone", ""}};
  const VelIRshParameter_var hParameters[] = {Add(hShader_, "p", "VelRmaString"), AddText(hShader_, "p", "gone"),
                                              AddText(hShader_, "p", "\\\\?\\")};
  for (const VelIRshParameter_var& hParameter : hParameters) {
    EXPECT_EQ(Read(hParameter), "");
    EXPECT_EQ(Told(), (Texts{"error: File path found into resolved string's parameter value :  { parameter name = p }",
                             nothing, timed}));
    EXPECT_EQ(traces_.Entries()[0].source, "RenderingShader/VelRshModel.m/src/VelRshReaderParameterFilepath");
  }
}

TEST_F(VelRshReaderParameterFilepathTest, OtherTypes_HaveNoPath) {
  for (const char* startUp : {"VelRmaVoid", "VelRmaBoolean", "VelRmaColor", "VelRmaScalar", "VelRmaInteger",
                              "VelRmaVector", "VelRmaMatrix", "VelRmaLightProfile", "VelRmaParameter"}) {
    SCOPED_TRACE(startUp);
    ExpectNothing(Add(hShader_, "p", startUp), {});
  }
  const VelIRshParameter_var hLight = Add(hShader_, "p", "VelRmaLightProfile");
  EXPECT_EQ(hLight->SetValue(FakeDocument::Create().Get()), S_OK);
  ExpectNothing(hLight, {});
}

TEST_F(VelRshReaderParameterFilepathTest, TextureWithoutADocument_IsToldAndHasNoPath) {
  EXPECT_EQ(Read(Add(hShader_, "p", "VelRmaTexture")), "");
  EXPECT_EQ(Told(), (Texts{"info: No texture linked { parameter name = p }", nothing, timed}));
  EXPECT_EQ(images_.Take(), Texts{});
}

TEST_F(VelRshReaderParameterFilepathTest, Texture_IsProjectedAndConvertedWithoutGroupsAt72) {
  const struct {
    HRESULT code;
    const char* path;
  } cases[] = {{S_FALSE, "/projection/wood.png"}, {S_OK, "/cache/converted.png"}, {E_FAIL, "/projection/wood.png"}};
  const VelIRshParameter_var hParameter = AddTexture(hShader_, "p", "tga");
  for (const auto& test : cases) {
    images_.conversion.code = test.code;
    EXPECT_EQ(Read(hParameter), test.path);
    EXPECT_EQ(images_.Take(),
              (Texts{"GetProjectionPath(fake)", "ConvertUnsupportedTexture(/projection/wood.png, [], 72)"}));
    EXPECT_EQ(Told(), (Texts{std::string("info: File path found into projected non-SVG texture : ") + test.path +
                                 " { parameter name = p }",
                             timed}));
  }
}

TEST_F(VelRshReaderParameterFilepathTest, TextureWithAnEmptyPath_IsAnError) {
  const VelIRshParameter_var hParameter = AddTexture(hShader_, "p");
  images_.projectionPath.value = "";
  EXPECT_EQ(Read(hParameter), "");
  EXPECT_EQ(Told(),
            (Texts{"error: File path found into projected non-SVG texture :  { parameter name = p }", nothing, timed}));
  EXPECT_EQ(traces_.Entries()[0].source, "RenderingShader/VelRshModel.m/src/VelRshReaderParameterFilepath");
}

TEST_F(VelRshReaderParameterFilepathTest, TextureThatCannotBeProjected_HasNoPath) {
  AddDrawing(hShader_, 300, "a");
  const VelIRshParameter_var hPlain = AddTexture(hShader_, "p");
  const VelIRshParameter_var hSvg = AddTexture(hShader_, "p", "svg");
  images_.projectionPath.code = E_FAIL;
  ExpectNothing(hPlain, {"GetProjectionPath(fake)"});
  ExpectNothing(hSvg, {"GetProjectionPath(fake)"});
}

TEST_F(VelRshReaderParameterFilepathTest, TextureWhoseFormatCannotBeRead_IsNoSvg) {
  const VelIRshParameter_var hParameter = AddTexture(hShader_, "p", "svg");
  VelBaseUnknown_var hDocument;
  EXPECT_EQ(hParameter->GetValue(hDocument.Receive()), S_OK);
  FakeDocument::Of(*hDocument).format.code = E_FAIL;
  EXPECT_EQ(Read(hParameter), "/projection/wood.png");
}

TEST_F(VelRshReaderParameterFilepathTest, Svg_IsDrawnByTheResolutionAndTheGroupsBesideIt) {
  AddDrawing(hShader_, 300, "one;;two");
  AddDrawing(hShader_, 1, "second");
  images_.projectionPath.value = "/a.png";
  images_.conversion.code = S_OK;
  for (const char* format : {"svg", "SVG", "sVg"}) {
    EXPECT_EQ(Read(AddTexture(hShader_, "p", format)), "/cache/converted.png") << format;
    EXPECT_EQ(images_.Take(), (Texts{"GetProjectionPath(fake)", "CreatePixelImageFromFullPath(/a.png, [one;;two], 300)",
                                     "ConvertUnsupportedTexture(/a.png, [one;;two], 300)"}));
    EXPECT_EQ(Told(), (Texts{"info: SVG rasterizing... { dpi: 300, group count: 3 }", drawn,
                             "info: File path found into projected non-SVG texture : /cache/converted.png { parameter "
                             "name = p }",
                             timed}));
    EXPECT_EQ(images_.lastImage.Get(), nullptr) << "the image is released";
  }
}

TEST_F(VelRshReaderParameterFilepathTest, SvgWithoutGroups_IsDrawnWhole) {
  AddDrawing(hShader_, -7, "");
  EXPECT_EQ(Read(AddTexture(hShader_, "p", "svg")), "/projection/wood.png") << "nothing was converted";
  EXPECT_EQ(images_.Take(),
            (Texts{"GetProjectionPath(fake)", "CreatePixelImageFromFullPath(/projection/wood.png, [], -7)",
                   "ConvertUnsupportedTexture(/projection/wood.png, [], -7)"}));
  EXPECT_EQ(Told()[0], "info: SVG rasterizing... { dpi: -7, group count: 0 }");
}

TEST_F(VelRshReaderParameterFilepathTest, SvgWithoutResolutionOrGroups_HasNoPath) {
  const VelIRshParameter_var hSvg = AddTexture(hShader_, "p", "svg");
  ExpectNothing(hSvg, {"GetProjectionPath(fake)"});
  const std::int32_t dpi = 300;
  EXPECT_EQ(Add(hShader_, "dpi", "VelRmaInteger")->SetValue(&dpi), S_OK);
  ExpectNothing(hSvg, {"GetProjectionPath(fake)"});
  const VelIRshShader_var hOther = AddNode(hShader_);
  AddText(hOther, "group_names", "a");
  ExpectNothing(AddTexture(hOther, "p", "svg"), {"GetProjectionPath(fake)"});
}

TEST_F(VelRshReaderParameterFilepathTest, SvgWithoutAShader_HasNoPath) {
  const VelIRshParameter_var hFree(Make("VelRmaTexture"));
  EXPECT_EQ(hFree->SetName("p"), S_OK);
  const VelIPLMDmtDocument_var hDocument = FakeDocument::Create();
  FakeDocument::Of(*hDocument).format.value = "svg";
  EXPECT_EQ(hFree->SetValue(hDocument.Get()), S_OK);
  ExpectNothing(hFree, {"GetProjectionPath(fake)"});
}

TEST_F(VelRshReaderParameterFilepathTest, SvgThatCannotBeDrawn_HasNoPath) {
  AddDrawing(hShader_, 300, "a");
  images_.givesImages = false;
  EXPECT_EQ(Read(AddTexture(hShader_, "p", "svg")), "");
  EXPECT_EQ(Told(), (Texts{"info: SVG rasterizing... { dpi: 300, group count: 1 }", drawn, nothing, timed}));
  EXPECT_EQ(images_.Take(),
            (Texts{"GetProjectionPath(fake)", "CreatePixelImageFromFullPath(/projection/wood.png, [a], 300)"}));
}

TEST_F(VelRshReaderParameterFilepathTest, SvgWithAnEmptyPath_IsAnErrorOnceItIsDrawn) {
  AddDrawing(hShader_, 300, "a");
  const VelIRshParameter_var hSvg = AddTexture(hShader_, "p", "svg");
  images_.projectionPath.value = "";
  EXPECT_EQ(Read(hSvg), "");
  EXPECT_EQ(Told(),
            (Texts{"info: SVG rasterizing... { dpi: 300, group count: 1 }", drawn,
                   "error: File path found into projected non-SVG texture :  { parameter name = p }", nothing, timed}));
}

TEST_F(VelRshReaderParameterFilepathTest, Document_IsReleasedInEveryCase) {
  AddDrawing(hShader_, 300, "a");
  for (const char* format : {"png", "svg"}) {
    const VelIRshParameter_var hParameter = AddTexture(hShader_, "p", format);
    VelBaseUnknown_var hDocument;
    EXPECT_EQ(hParameter->GetValue(hDocument.Receive()), S_OK);
    VelComponent* const component = hDocument->GetComponent();
    const std::uint32_t before = (component->AddRef(), component->Release());
    for (const bool projects : {true, false}) {
      for (const bool givesImages : {true, false}) {
        images_.projectionPath.code = projects ? S_OK : E_FAIL;
        images_.givesImages = givesImages;
        Read(hParameter);
        EXPECT_EQ((component->AddRef(), component->Release()), before) << format;
      }
    }
    images_.projectionPath.code = S_OK;
    images_.givesImages = true;
  }
}

TEST_F(VelRshReaderParameterFilepathTest, Reader_IsCalledManyTimesAndCopied) {
  const VelIRshParameter_var hParameter = AddText(hShader_, "p", "/a.png");
  const int before = VelTraceService::OpenChannelCount();
  {
    const VelRshReaderParameterFilepath read;
    EXPECT_EQ(VelTraceService::OpenChannelCount(), before + 2);
    VelRshReaderParameterFilepath copy(read);
    EXPECT_EQ(VelTraceService::OpenChannelCount(), before + 4);
    copy = read;
    EXPECT_EQ(VelTraceService::OpenChannelCount(), before + 4);
    for (const VelRshReaderParameterFilepath* reader :
         {&read, static_cast<const VelRshReaderParameterFilepath*>(&copy), &read}) {
      Forget();
      EXPECT_EQ((*reader)(*hParameter), "/a.png");
      EXPECT_EQ(Told().size(), 2U) << "a copy tells as well";
    }
  }
  EXPECT_EQ(VelTraceService::OpenChannelCount(), before);
}

static_assert(std::is_copy_constructible_v<VelRshReaderParameterFilepath> &&
              std::is_copy_assignable_v<VelRshReaderParameterFilepath>);

}  // namespace
