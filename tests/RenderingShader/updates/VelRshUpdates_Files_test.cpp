// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpdates_Files_test.cpp The cache of a working material, filled from documents by the image library.
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "RenderingShader/VelRshModel.m/include/VelRshTranslatorParameter.h"
#include "platform/base/VelCallOnExit.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/documents/VelRbaDocumentServices.h"
#include "platform/images/VelPixelImage.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelIRmaAppearanceCache.h"
#include "platform/materials/VelRbaIntegralShaderModifyNotification.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* documents = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelPlatformDocuments.dictionary";
constexpr const char* images = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelPlatformImages.dictionary";

/// Two squares side by side, of 2 x 2 pixels each at 96 dots per inch.
constexpr const char* squares =
    "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='2'>"
    "<g id='left'><rect width='2' height='2' fill='#ff0000'/></g>"
    "<g id='right'><rect x='2' width='2' height='2' fill='#0000ff'/></g></svg>";

/// One green pixel.
const std::string greenGif("GIF89a\1\0\1\0\x80\0\0\0\xFF\0\0\0\0,\0\0\0\0\1\0\1\0\0\2\2\x44\1\0;", 35);

/// One pixel, 1 0.5 0.25, of three mantissas and an exponent.
const std::string floatHdr("#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y 1 +X 1\n\x80\x40\x20\x81", 49);

using Pixel = std::array<int, 4>;
constexpr Pixel red{255, 0, 0, 255};
constexpr Pixel green{0, 255, 0, 255};
constexpr Pixel blue{0, 0, 255, 255};
constexpr Pixel nothing{0, 0, 0, 0};

/// A root whose parameter "slotted" feeds the channel 5 from a shader with a texture.
class VelRshUpdatesFilesTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    ASSERT_EQ(VelDictionary::LoadFile(documents), S_OK);
    ASSERT_EQ(VelDictionary::LoadFile(images), S_OK);
    ::setenv("XDG_CACHE_HOME", folder_.Path("cache").c_str(), 1);
    for (const char* type : {"Top", "MPM"}) {
      ASSERT_TRUE(
          SUCCEEDED(VelRbaConfiguration::SetValue(type, "slotted.SlotIdentifier", "reflectance.diffuse.color")));
    }
    ASSERT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Top", "dpi.Tag", "dpi")));
    ASSERT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Top", "level.Tag", "bump")));
    ASSERT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("vel_phen_texture", "group_names.Tag", "svggroup")));
    MakeRoot("Top");
  }
  void TearDown() override {
    hCache_ = nullptr;
    hRoot_ = hShader_ = nullptr;
    hSlotted_ = hDpi_ = hGroups_ = hTexture_ = nullptr;
    CloseContainer();
    VelPlatformTerminate();
    EXPECT_EQ(VelDictionary::Unload(images), S_OK);
    EXPECT_EQ(VelDictionary::Unload(documents), S_OK);
    ::unsetenv("XDG_CACHE_HOME");
    RshModelTest::TearDown();
  }

  void MakeRoot(const char* iType) {
    VelBaseUnknown_var hMade;
    const VelOsmSUHandler handler("VelRmaRenderingMaterial", "", "VelRmaMaterialCatalog.feat");
    ASSERT_EQ(handler.Instanciate(*hContainer_, "", VelIRenderingMaterial::InterfaceId(), hMade.Receive()), S_OK);
    hCache_ = VelIRmaAppearanceCache_var(hMade);
    hRoot_ = MakeShader(iType);
    ASSERT_EQ(VelIRenderingMaterial_var(hMade)->SetShader(hRoot_.Get()), S_OK);
    hSlotted_ = Add(hRoot_, "slotted", "VelRmaColor");
    hShader_ = AddNode(hRoot_);
    hDpi_ = Add(hShader_, "dpi", "VelRmaInteger");
    hGroups_ = Add(hShader_, "group_names", "VelRmaString");
    hTexture_ = Add(hShader_, "tex", "VelRmaTexture");
    SetDpi(hDpi_, 96);
    SetGroups("");
  }

  static void SetDpi(const VelIRshParameter_var& iParameter, std::int32_t iDpi) {
    EXPECT_TRUE(SUCCEEDED(iParameter->SetValue(&iDpi)));
  }
  void SetGroups(const char* iNames) {
    const VelUnicodeString names(iNames);
    EXPECT_TRUE(SUCCEEDED(hGroups_->SetValue(&names)));
  }
  void SetDocument(const char* iName, const char* iFormat, const std::string& iContent) {
    const VelIPLMDmtDocument_var hDocument = VelRbaDocumentServices::CreateFromBytes(iName, iFormat, iContent);
    EXPECT_EQ(hTexture_->SetValue(hDocument.Get()), S_OK) << iName;
  }

  void PlugIn() {
    EXPECT_TRUE(SUCCEEDED(hSlotted_->SetConnection(hShader_.Get())));
    Update();
  }
  void Update() { EXPECT_EQ(VelIRshParameterPrivate_var(hSlotted_)->UpdateConnection(), S_OK); }
  static void UpdateValue(const VelIRshParameter_var& iParameter) {
    EXPECT_EQ(VelIRshParameterPrivate_var(iParameter)->UpdateValue(), S_OK);
  }

  /// @return the path of the entry, "none" when there is none
  std::string Path() const {
    VelUnicodeString path;
    return SUCCEEDED(hCache_->GetPath(5, path)) ? std::string(path.View()) : "none";
  }
  VelBaseUnknown_var Image() const {
    VelPixelImage* image = nullptr;
    EXPECT_EQ(hCache_->GetImage(5, &image), S_OK);
    return VelBaseUnknown_var::Adopt(image);
  }

  /// @return "<width>x<height>"
  std::string Size() const {
    const VelBaseUnknown_var hImage = Image();
    if (!hImage) return "none";
    const VelPixelImage& image = *VelPixelImage::From(hImage.Get());
    return std::to_string(image.GetWidth()) + "x" + std::to_string(image.GetHeight());
  }
  Pixel PixelAt(int iColumn, int iRow) const {
    const VelBaseUnknown_var hImage = Image();
    const VelPixelImage& image = *VelPixelImage::From(hImage.Get());
    const std::byte* bytes =
        image.GetPixels().data() + static_cast<std::ptrdiff_t>((iRow * image.GetWidth() + iColumn) * 4);
    return {std::to_integer<int>(bytes[0]), std::to_integer<int>(bytes[1]), std::to_integer<int>(bytes[2]),
            std::to_integer<int>(bytes[3])};
  }

  /// Expects the entry to be a PNG file of the user's cache.
  void ExpectConverted() const {
    const std::string path = Path();
    EXPECT_EQ(path.find(folder_.Path("cache/velrsh/images/v1/")), 0U) << path;
    EXPECT_EQ(fs::path(path).extension(), ".png");
    std::ifstream file(path, std::ios::binary);
    std::array<char, 4> begin{};
    file.read(begin.data(), begin.size());
    EXPECT_EQ(std::string(begin.data(), begin.size()), "\x89PNG");
  }

  VelTemporaryFolder folder_;
  VelIRmaAppearanceCache_var hCache_;
  VelIRshShader_var hRoot_;
  VelIRshShader_var hShader_;
  VelIRshParameter_var hSlotted_;
  VelIRshParameter_var hDpi_;
  VelIRshParameter_var hGroups_;
  VelIRshParameter_var hTexture_;
};

TEST_F(VelRshUpdatesFilesTest, SvgTextureThatIsPluggedIn_FillsTheEntry) {
  SetDocument("squares.svg", "SVG", squares);
  EXPECT_EQ(Path(), "none");
  PlugIn();
  ExpectConverted();
  ASSERT_EQ(Size(), "4x2");
  EXPECT_EQ(PixelAt(0, 0), red);
  EXPECT_EQ(PixelAt(1, 1), red);
  EXPECT_EQ(PixelAt(2, 0), blue);
}

TEST_F(VelRshUpdatesFilesTest, ResolutionOfTheRoot_DrawsAnew) {
  SetDocument("squares.svg", "svg", squares);
  PlugIn();
  const std::string plain = Path();
  const VelIRshParameter_var hRootDpi = Add(hRoot_, "dpi", "VelRmaInteger");
  SetDpi(hRootDpi, 288);
  UpdateValue(hRootDpi);
  ASSERT_EQ(Size(), "12x6");
  EXPECT_EQ(PixelAt(5, 5), red);
  EXPECT_EQ(PixelAt(6, 0), blue);
  ExpectConverted();
  EXPECT_NE(Path(), plain);
  Update();
  EXPECT_EQ(Size(), "12x6") << "a connection takes the resolution of the root over";
}

TEST_F(VelRshUpdatesFilesTest, Groups_ChooseWhatIsDrawn) {
  SetDocument("squares.svg", "svg", squares);
  PlugIn();
  SetGroups("right;unknown");
  UpdateValue(hGroups_);
  ASSERT_EQ(Size(), "4x2");
  EXPECT_EQ(PixelAt(1, 0), nothing);
  EXPECT_EQ(PixelAt(2, 0), blue);
  SetGroups("left");
  UpdateValue(hGroups_);
  EXPECT_EQ(PixelAt(1, 0), red);
  EXPECT_EQ(PixelAt(2, 0), nothing);
}

TEST_F(VelRshUpdatesFilesTest, GifTexture_IsConverted) {
  SetDocument("green.gif", "gif", greenGif);
  PlugIn();
  ExpectConverted();
  ASSERT_EQ(Size(), "1x1");
  EXPECT_EQ(PixelAt(0, 0), green);
}

TEST_F(VelRshUpdatesFilesTest, TextureThatTheRendererReads_KeepsItsFile) {
  SetDocument("float.hdr", "hdr", floatHdr);
  PlugIn();
  EXPECT_EQ(fs::path(Path()).filename(), "float.hdr");
  const VelBaseUnknown_var hImage = Image();
  ASSERT_TRUE(hImage);
  const VelPixelImage& image = *VelPixelImage::From(hImage.Get());
  ASSERT_EQ(image.GetFormat(), VelPixelImage::Format::Rgba32F);
  const auto* values = reinterpret_cast<const float*>(image.GetPixels().data());
  const float expected[] = {1.0F, 0.5F, 0.25F, 1.0F};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(values[i], expected[i]) << i;
}

TEST_F(VelRshUpdatesFilesTest, PngTexture_KeepsItsFile) {
  SetDocument("squares.svg", "svg", squares);
  PlugIn();
  std::ifstream file(Path(), std::ios::binary);
  const std::string png{std::istreambuf_iterator<char>(file), {}};
  SetDocument("squares.png", "PNG", png);
  UpdateValue(hTexture_);
  EXPECT_EQ(fs::path(Path()).filename(), "squares.png");
  ASSERT_EQ(Size(), "4x2");
  EXPECT_EQ(PixelAt(0, 0), red);
  EXPECT_EQ(PixelAt(3, 1), blue);
}

TEST_F(VelRshUpdatesFilesTest, OtherDocument_ReplacesTheEntry) {
  SetDocument("squares.svg", "svg", squares);
  PlugIn();
  SetDocument("green.gif", "gif", greenGif);
  EXPECT_EQ(Size(), "4x2") << "a bare setter updates nothing";
  UpdateValue(hTexture_);
  EXPECT_EQ(Size(), "1x1");
}

TEST_F(VelRshUpdatesFilesTest, PictureThatCannotBeMade_LeavesTheEntryAsItWas) {
  SetDocument("green.gif", "gif", greenGif);
  PlugIn();
  const std::string path = Path();
  const VelBaseUnknown_var hImage = Image();
  struct Case {
    const char* name;
    const char* format;
    std::string content;
    int dpi;
  };
  const Case cases[] = {{"cut.svg", "svg", "<svg", 96},        {"squares.svg", "svg", squares, 0},
                        {"squares.svg", "svg", squares, 4801}, {"cut.gif", "gif", greenGif.substr(0, 30), 96},
                        {"text.txt", "txt", "no picture", 96}, {"empty.png", "png", "", 96}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    SetDocument(test.name, test.format, test.content);
    SetDpi(hDpi_, test.dpi);
    Update();
    EXPECT_EQ(Path(), path);
    EXPECT_EQ(Image().Get(), hImage.Get());
    UpdateValue(hGroups_);
    EXPECT_EQ(Path(), path);
  }
}

TEST_F(VelRshUpdatesFilesTest, UnpluggedTexture_ResetsTheEntry) {
  SetDocument("squares.svg", "svg", squares);
  PlugIn();
  ASSERT_NE(Path(), "none");
  EXPECT_EQ(hSlotted_->SetConnection(nullptr), S_OK);
  Update();
  EXPECT_EQ(Path(), "none");
}

TEST_F(VelRshUpdatesFilesTest, SameTextureAgain_IsNotDrawnAgain) {
  SetDocument("squares.svg", "svg", squares);
  PlugIn();
  const VelBaseUnknown_var hImage = Image();
  const std::string path = Path();
  Update();
  EXPECT_EQ(Image().Get(), hImage.Get());
  EXPECT_EQ(Path(), path);
}

TEST_F(VelRshUpdatesFilesTest, BumpLevelOfTheRoot_IsScaledForAShaderWithoutABumpType) {
  const VelIRshParameter_var hLevel = Add(hRoot_, "level", "VelRmaScalar");
  const VelIRshParameter_var hBump = Add(hShader_, "bump", "VelRmaScalar");
  const float none = 0.0F;
  const float level = 0.05F;
  ASSERT_TRUE(SUCCEEDED(hBump->SetValue(&none)));
  ASSERT_TRUE(SUCCEEDED(hSlotted_->SetConnection(hShader_.Get())));
  ASSERT_TRUE(SUCCEEDED(hLevel->SetValue(&level)));
  UpdateValue(hLevel);
  float read = -1.0F;
  EXPECT_EQ(hBump->GetValue(&read), S_OK);
  EXPECT_EQ(read, 50.0F);
}

TEST_F(VelRshUpdatesFilesTest, EditedResolution_DrawsBelowADerivingRoot) {
  MakeRoot("MPM");
  SetDocument("squares.svg", "svg", squares);
  PlugIn();
  ASSERT_EQ(Size(), "4x2");
  const VelIRshParameter_var hRootDpi = Add(hRoot_, "dpi", "VelRmaInteger");
  SetDpi(hRootDpi, 96);
  const VelRshTranslatorParameter translate;
  const auto send = [&](std::int32_t iPrevious, std::int32_t iNext) {
    return translate(VelRbaIntegralShaderModifyNotification("dpi", hRootDpi.Get(), VelIRshParameter::InterfaceId(),
                                                            iPrevious, iNext));
  };
  EXPECT_TRUE(send(96, 192));
  EXPECT_EQ(Size(), "8x4");
  EXPECT_TRUE(send(192, 100000)) << "a resolution that nobody can draw is passed over";
  EXPECT_EQ(Size(), "8x4");
}

}  // namespace
