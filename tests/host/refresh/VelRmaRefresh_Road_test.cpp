// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaRefresh_Road_test.cpp The whole road of an edit, from an editor's notification to the pixels, on real
/// files.
#include <cmath>
#include <cstdlib>

#include "RenderingShader/VelRshModel.m/include/VelRshTranslatorParameter.h"
#include "host/refresh/VelIRmaRefresh.h"
#include "platform/base/VelCallOnExit.h"
#include "platform/documents/VelRbaDocumentServices.h"
#include "platform/events/VelModelEventsListener.h"
#include "platform/images/VelPixelImage.h"
#include "platform/materials/VelIRmaAppearanceCache.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/materials/VelRbaIntegralShaderModifyNotification.h"
#include "platform/materials/VelRbaStringShaderModifyNotification.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/VelTraceRecord.h"
#include "platform/trace/VelTraceService.h"
#include "platform/trace/VelTraceSink.h"
#include "tests/host/HostTest.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

constexpr const char* documents = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelPlatformDocuments.dictionary";
constexpr const char* images = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelPlatformImages.dictionary";
constexpr std::uint32_t diffuseSlot = 5;

/// Two squares side by side, of 2 x 2 pixels each.
constexpr const char* squares =
    "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='2'>"
    "<g id='left'><rect width='2' height='2' fill='#ff0000'/></g>"
    "<g id='right'><rect x='2' width='2' height='2' fill='#0000ff'/></g></svg>";

/// Notes what the updater tells, with the converted files' path left out.
class RoadSink final : public VelTraceSink {
 public:
  explicit RoadSink(Texts& ioRoad) : road_(ioRoad) {}

  void Write(const VelTraceRecord& iRecord) override {
    if (iRecord.channel != "VelRshAppearanceUpdater") return;
    std::string text(iRecord.text);
    for (const char* before : {" located ", "path: "}) {
      const std::size_t at = text.find(before);
      if (at != std::string::npos) text.erase(at + std::string_view(before).size());
    }
    road_.push_back("updater: " + text);
  }
  void Flush() override {}

 private:
  Texts& road_;
};

/// Notes what parameters tell their host.
class RoadListener final : public VelModelEventsListener {
 public:
  RoadListener(Texts& ioRoad, std::string iName) : road_(ioRoad), name_(std::move(iName)) {}
  ~RoadListener() override = default;

  void Receive(VelNotification& ioNotification) override {
    if (const auto* real = VelNotificationCast<VelRbaFloatShaderModifyNotification>(&ioNotification)) {
      Note(real->GetPrevious(), real->GetNext());
    }
    if (const auto* integer = VelNotificationCast<VelRbaIntegralShaderModifyNotification>(&ioNotification)) {
      Note(integer->GetPrevious(), integer->GetNext());
    }
  }

 private:
  /// Whole numbers, which look the same in every locale.
  void Note(double iPrevious, double iNext) {
    road_.push_back(name_ + ": " + std::to_string(std::lround(iPrevious)) + " -> " +
                    std::to_string(std::lround(iNext)));
  }

  Texts& road_;
  std::string name_;
};

class VelRmaRefreshRoadTest : public HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    ::setenv("XDG_CACHE_HOME", folder_.Path("cache").c_str(), 1);
    for (const char* dictionary : {documents, images}) ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
    Configure("map.SlotIdentifier", "reflectance.diffuse.color");
    Configure("scale_u.Tag", "mapping scale_u");
    Configure("scale_u.Tag", "mapping scale_u", "vel_phen_texture");
    Configure("dpi.Tag", "dpi");
    Configure("group_names.Tag", "svggroup", "vel_phen_texture");
    Build();
    VelTraceService::SetSwitches("VelRshAppearanceUpdater");
    VelTraceService::AddSink(sink_);
  }
  void TearDown() override {
    VelTraceService::RemoveSink(sink_);
    hRefresh_ = nullptr;
    hCache_ = nullptr;
    hGroups_ = nullptr;
    hInnerDpi_ = nullptr;
    hInnerScale_ = nullptr;
    hDpi_ = nullptr;
    hScale_ = nullptr;
    hMaterial_ = nullptr;
    HostTest::TearDown();
    VelPlatformTerminate();
    for (const char* dictionary : {documents, images}) EXPECT_EQ(VelDictionary::Unload(dictionary), S_OK);
    ::unsetenv("XDG_CACHE_HOME");
  }

  /// A material whose diffuse colour is fed by the left one of the squares.
  void Build() {
    const VelIRshShader_var hRoot = MakeShader(type);
    const VelIRshShader_var hTexture = AddNode(hRoot, "vel_phen_texture");
    const VelIRshParameter_var hMap = Add(hRoot, "map", "VelRmaColor");
    const float scale = 1.0F;
    const std::int32_t dpi = 96;
    const VelUnicodeString group = "left";
    hScale_ = Add(hRoot, "scale_u", "VelRmaScalar");
    hDpi_ = Add(hRoot, "dpi", "VelRmaInteger");
    hInnerScale_ = Add(hTexture, "scale_u", "VelRmaScalar");
    hInnerDpi_ = Add(hTexture, "dpi", "VelRmaInteger");
    hGroups_ = Add(hTexture, "group_names", "VelRmaString");
    const VelIRshParameter_var hFile = Add(hTexture, "tex", "VelRmaTexture");
    for (const VelIRshParameter_var& hOne : {hScale_, hInnerScale_}) ASSERT_EQ(hOne->SetValue(&scale), S_OK);
    for (const VelIRshParameter_var& hOne : {hDpi_, hInnerDpi_}) ASSERT_EQ(hOne->SetValue(&dpi), S_OK);
    ASSERT_EQ(hGroups_->SetValue(&group), S_OK);
    const VelIPLMDmtDocument_var hDocument =
        VelRbaDocumentServices::CreateFromFile(VelUnicodeString(folder_.Write("squares.svg", squares)));
    ASSERT_EQ(hFile->SetValue(static_cast<VelBaseUnknown*>(hDocument.Get())), S_OK);
    hMaterial_ = MakeMaterial(hRoot);
    hCache_ = VelIRmaAppearanceCache_var(hMaterial_);
    hRefresh_ = VelIRmaRefresh_var(VelObject::Create("VelRmaRefresh", nullptr));
    ASSERT_EQ(hRefresh_->Attach(hMaterial_.Get()), S_OK);
    ASSERT_EQ(hMap->SetConnection(hTexture.Get()), S_OK);
    ASSERT_EQ(hRefresh_->Flush(), S_OK);
  }

  /// @return "width x height" of the picture in the diffuse channel, then the colours of its first row
  std::string Picture() const {
    VelPixelImage* image = nullptr;
    if (FAILED(hCache_->GetImage(diffuseSlot, &image)) || image == nullptr) return "none";
    const auto hImage = VelBaseUnknown_var::Adopt(image);
    std::string text = std::to_string(image->GetWidth()) + " x " + std::to_string(image->GetHeight()) + ":";
    for (int column = 0; column < image->GetWidth(); ++column) {
      const std::byte* const pixel = image->GetPixels().data() + static_cast<std::ptrdiff_t>(column) * 4;
      const bool isSeen = pixel[3] == std::byte{255};
      text += isSeen ? (pixel[0] == std::byte{255} ? 'R' : 'B') : '.';
    }
    return text;
  }

  std::string Path() const {
    VelUnicodeString path;
    EXPECT_EQ(hCache_->GetPath(diffuseSlot, path), S_OK);
    return std::string(path.View());
  }

  VelTemporaryFolder folder_;
  Texts road_;
  RoadSink sink_{road_};
  const VelRshTranslatorParameter translate_;
  VelIRenderingMaterial_var hMaterial_;
  VelIRmaAppearanceCache_var hCache_;
  VelIRmaRefresh_var hRefresh_;
  VelIRshParameter_var hScale_;
  VelIRshParameter_var hDpi_;
  VelIRshParameter_var hInnerScale_;
  VelIRshParameter_var hInnerDpi_;
  VelIRshParameter_var hGroups_;
};

TEST_F(VelRmaRefreshRoadTest, PluggingATexture_FillsTheChannelWithPathAndPixels) {
  EXPECT_EQ(Picture(), "4 x 2:RR..");
  EXPECT_EQ(Path().find(folder_.Path("cache/velrsh/images/v1/")), 0U) << Path();
  EXPECT_TRUE(Path().ends_with(".png"));
}

TEST_F(VelRmaRefreshRoadTest, AnEditedMappingValue_ReachesTheSubShaderAndThenTheAppearance) {
  RoadListener outer(road_, "root");
  RoadListener inner(road_, "sub-shader");
  ASSERT_EQ(outer.ConnectTo(hScale_.Get()), S_OK);
  ASSERT_EQ(inner.ConnectTo(hInnerScale_.Get()), S_OK);
  EXPECT_TRUE(translate_(
      VelRbaFloatShaderModifyNotification("scale_u", hScale_.Get(), VelIRshParameter::InterfaceId(), 1.0, 2.0)));
  // The sub-shader hears the change before the host does, and takes it over; the host hears of the inner one first.
  EXPECT_EQ(road_, (Texts{"sub-shader: 1 -> 2", "root: 1 -> 2",
                          "updater: Updating map connected shader mapping data scale_u"}));
  float scale = 0.0F;
  EXPECT_EQ(hInnerScale_->GetValue(&scale), S_OK);
  EXPECT_EQ(scale, 2.0F);
  EXPECT_EQ(Picture(), "4 x 2:RR..");
}

TEST_F(VelRmaRefreshRoadTest, AnEditedResolution_DrawsTheTextureAnew) {
  RoadListener outer(road_, "root");
  RoadListener inner(road_, "sub-shader");
  ASSERT_EQ(outer.ConnectTo(hDpi_.Get()), S_OK);
  ASSERT_EQ(inner.ConnectTo(hInnerDpi_.Get()), S_OK);
  const std::string before = Path();
  EXPECT_TRUE(
      translate_(VelRbaIntegralShaderModifyNotification("dpi", hDpi_.Get(), VelIRshParameter::InterfaceId(), 96, 192)));
  EXPECT_EQ(road_, (Texts{"root: 96 -> 192", "sub-shader: 96 -> 192",
                          "updater: 'map' detected as connected to an SVG texture located ",
                          "updater: 'map' SVG rasterizing... { dpi: 192, group count: 1 }",
                          "updater: 'map' rasterized cache entry updated { path: "}));
  EXPECT_EQ(Picture(), "8 x 4:RRRR....");
  EXPECT_NE(Path(), before);
}

TEST_F(VelRmaRefreshRoadTest, EditedGroups_ShowWhatWasChosen) {
  EXPECT_TRUE(translate_(VelRbaStringShaderModifyNotification("group_names", hGroups_.Get(),
                                                              VelIRshParameter::InterfaceId(), "left", "right;left")));
  EXPECT_EQ(road_, (Texts{"updater: 'map' detected as connected to an SVG texture located ",
                          "updater: 'map' SVG rasterizing... { dpi: 96, group count: 2 }",
                          "updater: 'map' rasterized cache entry updated { path: "}));
  EXPECT_EQ(Picture(), "4 x 2:RRBB");
}

TEST_F(VelRmaRefreshRoadTest, AnAbsurdResolution_LeavesTheChannelAsItWas) {
  EXPECT_TRUE(translate_(
      VelRbaIntegralShaderModifyNotification("dpi", hDpi_.Get(), VelIRshParameter::InterfaceId(), 96, 1000000)));
  EXPECT_EQ(Picture(), "4 x 2:RR..");
  EXPECT_EQ(road_.back(), "updater: 'map' SVG rasterizing... { dpi: 1000000, group count: 1 }");
}

}  // namespace
