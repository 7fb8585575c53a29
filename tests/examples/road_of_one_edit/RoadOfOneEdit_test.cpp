// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file RoadOfOneEdit_test.cpp What the road shows is so: values, the order of events, cache entries and pixels.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

#include "RenderingShader/VelRshModel.m/include/VelRshFeatureModelerCopier.h"
#include "examples/road_of_one_edit/RoadMaterial.h"
#include "examples/road_of_one_edit/RoadPage.h"
#include "examples/road_of_one_edit/RoadRecorder.h"
#include "examples/road_of_one_edit/RoadTree.h"
#include "examples/road_of_one_edit/RoadUpgrade.h"
#include "platform/images/VelPixelImage.h"
#include "platform/materials/VelIPlasticMaterial.h"
#include "platform/materials/VelIRmaAppearanceCache.h"
#include "platform/materials/VelIRmaDimension2D.h"
#include "platform/materials/VelParmDictionary.h"
#include "platform/session/VelPlatformSession.h"
#include "platform/viewer/VelIRmaVisuTextureCoordinateTransformation.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;
using Pixel = std::array<int, 4>;

constexpr std::uint32_t normalSlot = 1;
constexpr std::uint32_t diffuseSlot = 5;
constexpr const char* files = VEL_TEST_EXAMPLE_FOLDER "/files";
constexpr const char* versions = VEL_TEST_EXAMPLE_FOLDER "/types";

/// The colors of the drawing that nothing shines through.
constexpr Pixel seamColor{0xF2, 0xA1, 0x54, 255};
constexpr Pixel quiltingColor{0xA7, 0xD3, 0xC5, 255};

class RoadOfOneEditTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ::setenv("XDG_CACHE_HOME", folder_.Path("cache").c_str(), 1);
    VelPlatformOptions options;
    options.dictionaries = {VEL_TEST_LIBRARY_FOLDER "/dictionaries"};
    options.catalogs = {VEL_TEST_CATALOGS "/VelRmaCatalog.feat", VEL_TEST_CATALOGS "/VelRmaMaterialCatalog.feat"};
    options.shaderTypes = {folder_.Path("types")};
    ASSERT_TRUE(upgrade_->Publish("before"));
    ASSERT_EQ(session_.Start(options), S_OK);
    RoadRecorder::SwitchOff();
    ASSERT_TRUE(road_->Make());
    ASSERT_TRUE(road_->Follow());
    ASSERT_TRUE(road_->Decorate(files));
  }
  void TearDown() override {
    road_.reset();
    upgrade_.reset();
    EXPECT_EQ(session_.End(), S_OK);
    ::unsetenv("XDG_CACHE_HOME");
  }

  /// @return the value of a parameter as the tree tells it
  static std::string ValueOf(const VelIRshShader_var& iShader, const char* iName) {
    const RoadTree tree = RoadTree::Read(*iShader);
    const auto found = std::ranges::find(tree.parameters, iName, &RoadTree::Parameter::name);
    return found != tree.parameters.end() ? found->value : "(none)";
  }

  /// @return what an edit sets in motion, a line each, without times and without the paths of files
  template <class Value>
  Texts RoadOf(const char* iName, Value iBefore, Value iAfter) {
    const RoadRecorder recorder({{road_->hShader->GetComponent(), "material"},
                                 {road_->hDrawing->GetComponent(), "drawing"},
                                 {road_->hNormals->GetComponent(), "normals"}});
    EXPECT_TRUE(road_->Edit(iName, iBefore, iAfter));
    const auto isEarlier = [](const RoadRecorder::Step& iLeft, const RoadRecorder::Step& iRight) {
      return iLeft.ticks < iRight.ticks;
    };
    EXPECT_TRUE(std::ranges::is_sorted(recorder.Steps(), isEarlier));
    Texts texts;
    for (const std::string& line : recorder.Lines()) {
      constexpr std::string_view unit = " us  ";
      const std::string text = line.substr(line.find(unit) + unit.size());
      texts.push_back(text.substr(0, std::min(text.find(" located /"), text.find("path: /"))));
    }
    return texts;
  }

  std::string PathOf(std::uint32_t iSlot) const {
    VelUnicodeString path;
    EXPECT_EQ(VelIRmaAppearanceCache_var(road_->hMaterial)->GetPath(iSlot, path), S_OK);
    return std::string(path.View());
  }

  /// @return the image of a channel; empty when there is none
  VelBaseUnknown_var ImageOf(std::uint32_t iSlot) const {
    VelPixelImage* image = nullptr;
    if (FAILED(VelIRmaAppearanceCache_var(road_->hMaterial)->GetImage(iSlot, &image))) return nullptr;
    return VelBaseUnknown_var::Adopt(image);
  }

  static std::string SizeOf(const VelBaseUnknown_var& iImage) {
    const VelPixelImage* const image = VelPixelImage::From(iImage.Get());
    return image != nullptr ? std::to_string(image->GetWidth()) + " x " + std::to_string(image->GetHeight()) : "none";
  }

  static Pixel PixelOf(const VelBaseUnknown_var& iImage, int iColumn, int iRow) {
    const VelPixelImage& image = *VelPixelImage::From(iImage.Get());
    const std::byte* const bytes =
        image.GetPixels().data() + static_cast<std::ptrdiff_t>(iRow * image.GetWidth() + iColumn) * 4;
    return {std::to_integer<int>(bytes[0]), std::to_integer<int>(bytes[1]), std::to_integer<int>(bytes[2]),
            std::to_integer<int>(bytes[3])};
  }

  /// @return how many pixels have exactly a color
  static int Count(const VelBaseUnknown_var& iImage, const Pixel& iColor) {
    const VelPixelImage& image = *VelPixelImage::From(iImage.Get());
    int count = 0;
    for (int row = 0; row < image.GetHeight(); ++row) {
      for (int column = 0; column < image.GetWidth(); ++column) count += PixelOf(iImage, column, row) == iColor ? 1 : 0;
    }
    return count;
  }

  VelTemporaryFolder folder_;
  VelPlatformSession session_;
  std::optional<RoadMaterial> road_{std::in_place};
  std::optional<RoadUpgrade> upgrade_{std::in_place, versions, folder_.Path("types")};
};

TEST_F(RoadOfOneEditTest, TheMaterial_HasItsFiguresItsShaderAndTwoNodes) {
  float width = 0.0F;
  float height = 0.0F;
  const VelIRmaDimension2D_var hSize(road_->hMaterial);
  ASSERT_EQ(hSize->GetSize(*VelParmDictionary::FindUnit("MM"), width, height), S_OK);
  EXPECT_FLOAT_EQ(width, 200.0F);
  EXPECT_FLOAT_EQ(height, 100.0F);
  const VelIPlasticMaterial_var hPlastic(road_->hMaterial);
  std::uint32_t version = 0;
  EXPECT_EQ(hPlastic->GetVersion(version), S_OK);
  EXPECT_EQ(version, 418U);
  VelListPtrVelBaseUnknown* nodes = nullptr;
  ASSERT_EQ(road_->hShader->GetNodes(&nodes), S_OK);
  EXPECT_EQ(nodes->Size(), 2);
  for (VelBaseUnknown* node : *nodes) node->Release();
  delete nodes;
}

TEST_F(RoadOfOneEditTest, TheChannels_HoldTheDrawnAndTheDecodedPicture) {
  EXPECT_EQ(SizeOf(ImageOf(diffuseSlot)), "192 x 96");
  EXPECT_EQ(SizeOf(ImageOf(normalSlot)), "96 x 48");
  EXPECT_EQ(PathOf(diffuseSlot).find(folder_.Path("cache/velrsh/images/v1/")), 0U) << PathOf(diffuseSlot);
  EXPECT_GT(Count(ImageOf(diffuseSlot), seamColor), 100);
  EXPECT_GT(Count(ImageOf(diffuseSlot), quiltingColor), 100);
  // On the top of a cushion the normal points straight up.
  EXPECT_EQ(PixelOf(ImageOf(normalSlot), 0, 0)[3], 255);
  for (std::uint32_t slot = 1; slot <= 11; ++slot) {
    EXPECT_EQ(static_cast<bool>(ImageOf(slot)), slot == diffuseSlot || slot == normalSlot) << slot;
  }
}

TEST_F(RoadOfOneEditTest, AnEditedScale_ReachesBothTexturesInOrder_AndDrawsNothing) {
  const std::string before = PathOf(diffuseSlot);
  EXPECT_EQ(
      RoadOf("scale_u", 1.0, 2.0),
      (Texts{"VALUE_UPDATED: material.scale_u -> material",
             "   PARAMETER_VALUE_UPDATED: material -> material.default_slot_diffuse_color",
             "      FORWARD_PARAMETER_VALUE_UPDATED: material.default_slot_diffuse_color -> drawing",
             "         FORWARDED_PARAMETER_VALUE_UPDATED: drawing -> drawing.tex ... drawing.scale_u (6)",
             "            VALUE_UPDATED: drawing.scale_u -> drawing",
             "               PARAMETER_VALUE_UPDATED: drawing -> drawing.tex ... VelRmaRefresh (18)",
             "         FORWARDED_PARAMETER_VALUE_UPDATED: drawing -> drawing.scale_v ... drawing.group_names (10)",
             "   PARAMETER_VALUE_UPDATED: material -> material.default_slot_specular_color ... "
             "material.default_slot_normal (5)",
             "      FORWARD_PARAMETER_VALUE_UPDATED: material.default_slot_normal -> normals",
             "         FORWARDED_PARAMETER_VALUE_UPDATED: normals -> normals.tex ... normals.scale_u (6)",
             "            VALUE_UPDATED: normals.scale_u -> normals",
             "               PARAMETER_VALUE_UPDATED: normals -> normals.tex ... VelRmaRefresh (18)",
             "         FORWARDED_PARAMETER_VALUE_UPDATED: normals -> normals.scale_v ... normals.group_names (10)",
             "   PARAMETER_VALUE_UPDATED: material -> material.normal_convention ... VelRmaRefresh (25)",
             "VelRshAppearanceUpdater: Updating default_slot_diffuse_color connected shader mapping data scale_u",
             "VelRshAppearanceUpdater: Updating default_slot_normal connected shader mapping data scale_u"}));
  for (const VelIRshShader_var& hShader : {road_->hShader, road_->hDrawing, road_->hNormals}) {
    EXPECT_EQ(ValueOf(hShader, "scale_u"), "2");
  }
  EXPECT_EQ(PathOf(diffuseSlot), before);
}

TEST_F(RoadOfOneEditTest, AnEditedScale_ChangesWhatAViewerAppliesToTextureCoordinates) {
  const auto transformation = [&] {
    Vel3x3Matrix matrix;
    EXPECT_EQ(VelIRmaVisuTextureCoordinateTransformation_var(road_->hDrawing)->GetTransformation(matrix), S_OK);
    return matrix;
  };
  // Coordinates are millimetres: 200 of them are one repetition of the texture, 400 at twice the scale.
  EXPECT_FLOAT_EQ(transformation().Get(0, 0), 1.0F / 200.0F);
  EXPECT_FLOAT_EQ(transformation().Get(1, 1), 1.0F / 100.0F);
  ASSERT_TRUE(road_->Edit("scale_u", 1.0, 2.0));
  EXPECT_FLOAT_EQ(transformation().Get(0, 0), 1.0F / 400.0F);
  EXPECT_FLOAT_EQ(transformation().Get(1, 1), 1.0F / 100.0F);
}

TEST_F(RoadOfOneEditTest, AnEditedResolution_DrawsTheDrawingAnew_AndLeavesThePhotograph) {
  const std::string drawing = PathOf(diffuseSlot);
  const std::string normals = PathOf(normalSlot);
  EXPECT_EQ(
      RoadOf("dpi", 96, 192),
      (Texts{"VALUE_UPDATED: material.dpi -> material",
             "   PARAMETER_VALUE_UPDATED: material -> material.default_slot_diffuse_color",
             "      FORWARD_PARAMETER_VALUE_UPDATED: material.default_slot_diffuse_color -> drawing",
             "         FORWARDED_PARAMETER_VALUE_UPDATED: drawing -> drawing.tex ... drawing.group_names (16)",
             "   PARAMETER_VALUE_UPDATED: material -> material.default_slot_specular_color ... "
             "material.default_slot_normal (5)",
             "      FORWARD_PARAMETER_VALUE_UPDATED: material.default_slot_normal -> normals",
             "         FORWARDED_PARAMETER_VALUE_UPDATED: normals -> normals.tex ... normals.group_names (16)",
             "   PARAMETER_VALUE_UPDATED: material -> material.normal_convention ... VelRmaRefresh (25)",
             "VALUE_UPDATED: drawing.dpi -> drawing",
             "   PARAMETER_VALUE_UPDATED: drawing -> drawing.tex ... VelRmaRefresh (18)",
             "VALUE_UPDATED: normals.dpi -> normals",
             "   PARAMETER_VALUE_UPDATED: normals -> normals.tex ... VelRmaRefresh (18)",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' detected as connected to an SVG texture",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' SVG rasterizing... { dpi: 192, group count: 0 }",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' rasterized cache entry updated { "}));
  EXPECT_EQ(ValueOf(road_->hDrawing, "dpi"), "192");
  EXPECT_EQ(SizeOf(ImageOf(diffuseSlot)), "384 x 192");
  EXPECT_EQ(SizeOf(ImageOf(normalSlot)), "96 x 48");
  EXPECT_NE(PathOf(diffuseSlot), drawing);
  EXPECT_EQ(PathOf(normalSlot), normals);
}

TEST_F(RoadOfOneEditTest, EditedGroups_LeaveOutWhatIsNotChosen) {
  const int seam = Count(ImageOf(diffuseSlot), seamColor);
  EXPECT_EQ(
      RoadOf("group_names", "", "cloth;seam"),
      (Texts{"VALUE_UPDATED: material.group_names -> material",
             "   PARAMETER_VALUE_UPDATED: material -> material.default_slot_diffuse_color",
             "      FORWARD_PARAMETER_VALUE_UPDATED: material.default_slot_diffuse_color -> drawing",
             "         FORWARDED_PARAMETER_VALUE_UPDATED: drawing -> drawing.tex ... drawing.group_names (16)",
             "   PARAMETER_VALUE_UPDATED: material -> material.default_slot_specular_color ... "
             "material.default_slot_normal (5)",
             "      FORWARD_PARAMETER_VALUE_UPDATED: material.default_slot_normal -> normals",
             "         FORWARDED_PARAMETER_VALUE_UPDATED: normals -> normals.tex ... normals.group_names (16)",
             "   PARAMETER_VALUE_UPDATED: material -> material.normal_convention ... VelRmaRefresh (25)",
             "VALUE_UPDATED: drawing.group_names -> drawing",
             "   PARAMETER_VALUE_UPDATED: drawing -> drawing.tex ... VelRmaRefresh (18)",
             "VALUE_UPDATED: normals.group_names -> normals",
             "   PARAMETER_VALUE_UPDATED: normals -> normals.tex ... VelRmaRefresh (18)",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' detected as connected to an SVG texture",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' SVG rasterizing... { dpi: 96, group count: 2 }",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' rasterized cache entry updated { ",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' detected as connected to an SVG texture",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' SVG rasterizing... { dpi: 96, group count: 2 }",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' rasterized cache entry updated { ",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' detected as connected to an SVG texture",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' SVG rasterizing... { dpi: 96, group count: 2 }",
             "VelRshAppearanceUpdater: 'default_slot_diffuse_color' rasterized cache entry updated { "}));
  EXPECT_EQ(ValueOf(road_->hDrawing, "group_names"), "\"cloth;seam\"");
  EXPECT_EQ(Count(ImageOf(diffuseSlot), quiltingColor), 0);
  EXPECT_EQ(Count(ImageOf(diffuseSlot), seamColor), seam);
  ASSERT_TRUE(road_->Edit("group_names", "cloth;seam", "quilting"));
  EXPECT_EQ(Count(ImageOf(diffuseSlot), seamColor), 0);
  EXPECT_GT(Count(ImageOf(diffuseSlot), quiltingColor), 0);
}

TEST_F(RoadOfOneEditTest, AnEditToTheValueThatIsThere_SetsNothingInMotion) {
  EXPECT_EQ(RoadOf("scale_u", 1.0, 1.0), Texts{});
}

TEST_F(RoadOfOneEditTest, TheTree_MarksWhatChanged) {
  const RoadTree before = RoadTree::Read(*road_->hShader);
  ASSERT_TRUE(road_->Edit("scale_u", 1.0, 2.0));
  const RoadTree after = RoadTree::Read(*road_->hShader);
  const auto count = [](const Texts& iLines, const char* iText) {
    return std::ranges::count_if(iLines,
                                 [&](const std::string& iLine) { return iLine.find(iText) != std::string::npos; });
  };
  EXPECT_EQ(count(after.Lines(&before), "*"), 3);
  EXPECT_EQ(count(after.Lines(&before), "*scale_u 2"), 3);
  EXPECT_EQ(count(after.Lines(), "*"), 0);
  EXPECT_EQ(count(after.Lines(&after), "*"), 0);
  EXPECT_EQ(before.Lines().front(), "CustomShader, version 1");
}

TEST_F(RoadOfOneEditTest, TheCopy_HasTheValuesOfTheOriginal) {
  ASSERT_TRUE(road_->Edit("scale_u", 1.0, 2.0));
  const VelIContainer_var hOther = VelIContainer::Create();
  const VelIRshShader_var hCopy = VelRshFeatureModelerCopier(*hOther).Copy(road_->hShader);
  ASSERT_TRUE(hCopy);
  Texts original = RoadTree::Read(*road_->hShader).Lines();
  Texts copied = RoadTree::Read(*hCopy).Lines();
  // The copier copies parameters, not the version of the type.
  for (std::string& line : original) {
    constexpr std::string_view version = ", version 1";
    if (line.ends_with(version)) line.erase(line.size() - version.size());
  }
  EXPECT_EQ(copied, original);
}

TEST_F(RoadOfOneEditTest, TheUpgrade_DoesWhatItsPlanSays) {
  ASSERT_TRUE(upgrade_->Make(road_->hContainer));
  ASSERT_TRUE(upgrade_->Publish("after"));
  VelRshUpgradePlan plan;
  ASSERT_TRUE(upgrade_->Plan(plan));
  EXPECT_EQ(plan.from, 1U);
  EXPECT_EQ(plan.to, 2U);
  EXPECT_EQ(std::string(plan.Text().View()),
            "QuiltedLeather from version 1 to 2\n"
            "  'dye' keeps (0.35, 0.2, 0.1, 1); its default is (0.2, 0.1, 0.05, 1)\n"
            "  'dye' stays connected to vel_phen_texture\n"
            "  'roughness' keeps 0.35; its default is 0.6\n"
            "  'stitches' was VelRmaScalar 6 and is VelRmaInteger 5\n"
            "  'sheen' is new, with 0.25\n"
            "  'supplier' loses \"Gerberei am Bach\" and takes \"\"\n"
            "  'wax' goes, and with it 0.1\n");
  EXPECT_EQ(ValueOf(upgrade_->hShader, "wax"), "0.1");
  ASSERT_TRUE(upgrade_->Run());
  EXPECT_EQ(RoadTree::Read(*upgrade_->hShader).Lines().front(), "QuiltedLeather, version 2");
  struct Case {
    const char* name;
    const char* expected;
  };
  for (const Case& one : {Case{"dye", "(0.35 0.2 0.1 1)"}, Case{"roughness", "0.35"}, Case{"stitches", "5"},
                          Case{"sheen", "0.25"}, Case{"supplier", "\"\""}, Case{"wax", "(none)"}}) {
    EXPECT_EQ(ValueOf(upgrade_->hShader, one.name), one.expected) << one.name;
  }
  EXPECT_EQ(RoadTree::Read(*upgrade_->hShader).parameters.front().connected.size(), 1U);
}

TEST_F(RoadOfOneEditTest, ThePage_HoldsEachPictureAsTheCacheHasIt) {
  RoadPage page(folder_.Path(""));
  ASSERT_TRUE(page.Add("A <title>", "first", {"the tree"}, {"1 us  a -> b"}, road_->hMaterial));
  ASSERT_TRUE(page.Write());
  EXPECT_EQ(page.Files(), (Texts{folder_.Path("") + "/first-channel-1.png", folder_.Path("") + "/first-channel-5.png",
                                 folder_.Path("") + "/index.html"}));
  for (const std::uint32_t slot : {normalSlot, diffuseSlot}) {
    const std::string path = folder_.Path("first-channel-" + std::to_string(slot) + ".png");
    const auto hWritten = VelBaseUnknown_var::Adopt(VelPixelImage::CreateFromFile(VelUnicodeString(path)));
    ASSERT_TRUE(hWritten) << path;
    EXPECT_TRUE(std::ranges::equal(VelPixelImage::From(hWritten.Get())->GetPixels(),
                                   VelPixelImage::From(ImageOf(slot).Get())->GetPixels()));
  }
  std::ifstream file(page.Files().back());
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  for (const char* part : {"<h2>A &lt;title&gt;</h2>", "<img src=\"first-channel-5.png\"",
                           "alt=\"channel 5, default_slot_diffuse_color, 192 x 96 pixels\"", "<pre>the tree\n</pre>",
                           "<pre>1 us  a -&gt; b\n</pre>", "</html>\n"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part;
  }
}

TEST_F(RoadOfOneEditTest, ThePage_IntoAFolderThatIsNotThere_FailsAndSaysSo) {
  RoadPage page(folder_.Path("missing"));
  EXPECT_FALSE(page.Write());
  EXPECT_EQ(page.Files(), Texts{});
}

}  // namespace
