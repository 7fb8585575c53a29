// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterImage_test.cpp The image that feeds a parameter, who owns it, and what is told of it.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterImage.h"

#include "platform/base/VelFormat.h"
#include "tests/RenderingShader/services/ImageReaderTest.h"

namespace {

constexpr const char* timed = "VelRshReaderParameterImagePerformanceTime: image extraction";
constexpr const char* pathTimed = "VelRshReaderParameterFilepathPerformanceTime: file path extraction";
constexpr const char* nothing = "warning: Could not produce a image from parameter { parameter name = p }";
constexpr const char* noPath = "warning: Could not produce a filepath { parameter name = p }";

class VelRshReaderParameterImageTest : public ImageReaderTest {
 protected:
  VelBaseUnknown_var Read(const VelIRshParameter_var& iParameter) {
    Forget();
    return VelBaseUnknown_var::Adopt(VelRshReaderParameterImage()(*iParameter));
  }

  /// Expects the line of a path that became an image; the address of a text is told, which no caller can know.
  static void ExpectCreated(const std::string& iLine) {
    constexpr std::string_view front = "info: Parameter's image created from filepath ";
    constexpr std::string_view back = " { parameter name = p }";
    ASSERT_TRUE(iLine.starts_with(front) && iLine.ends_with(back)) << iLine;
    const std::string address = iLine.substr(front.size(), iLine.size() - front.size() - back.size());
    EXPECT_FALSE(address.empty());
    EXPECT_EQ(address.find_first_not_of("0123456789abcdef"), std::string::npos) << address;
  }
};

TEST_F(VelRshReaderParameterImageTest, CachedImage_IsGivenWithAReferenceOfTheCallers) {
  VelPixelImage* const image = FakeImageServices::MakeImage();
  const VelBaseUnknown_WR weak(image);
  Cache().entries[5] = {"/cached.png", VelBaseUnknown_var::Adopt(image)};
  VelBaseUnknown_var hRead = Read(AddTexture(hShader_, "slotted"));
  EXPECT_EQ(hRead.Get(), image);
  EXPECT_EQ(Told(), (Texts{"info: " + VelFormat::ToText("Parameter's image found into VelIRmaAppearanceCache : %x "
                                                        "{ parameter name = slotted }",
                                                        static_cast<const void*>(image)),
                           timed}));
  EXPECT_EQ(images_.Take(), Texts{});
  EXPECT_EQ(Cache().Take(), Texts{"GetImage(5)"});
  Cache().entries.clear();
  EXPECT_NE(weak.Get(), nullptr) << "the caller holds it";
  hRead = nullptr;
  EXPECT_EQ(weak.Get(), nullptr) << "nobody else does";
}

TEST_F(VelRshReaderParameterImageTest, CacheWithoutAnImage_IsPassedOver) {
  const VelIRshParameter_var hParameter = AddText(hShader_, "slotted", "/value.png");
  Cache().entries[5] = {"/cached.png", nullptr};
  EXPECT_TRUE(Read(hParameter));
  EXPECT_EQ(Cache().Take(), (Texts{"GetImage(5)", "GetPath(5)"}));
  EXPECT_EQ(images_.Take(), Texts{"CreatePixelImageFromFile(/cached.png)"});
  Cache().entries[5] = {"/cached.png", VelBaseUnknown_var::Adopt(FakeImageServices::MakeImage())};
  Cache().getImageCode = Cache().getPathCode = E_FAIL;
  EXPECT_TRUE(Read(hParameter));
  EXPECT_EQ(images_.Take(), (Texts{"ResolvePath(/value.png)", "CreatePixelImageFromFile(/value.png)"}));
  Cache().entries.clear();
  Cache().getImageCode = Cache().getPathCode = S_OK;
  EXPECT_TRUE(Read(hParameter));
  EXPECT_EQ(images_.Take(), (Texts{"ResolvePath(/value.png)", "CreatePixelImageFromFile(/value.png)"}));
}

TEST_F(VelRshReaderParameterImageTest, ParameterWithoutASlotOrACache_AsksNoCache) {
  Cache().entries[0] = Cache().entries[5] = {"/cached.png", VelBaseUnknown_var::Adopt(FakeImageServices::MakeImage())};
  EXPECT_TRUE(Read(AddText(hShader_, "p", "/value.png")));
  EXPECT_EQ(Cache().Take(), Texts{});
  Cache().isOffered = false;
  EXPECT_TRUE(Read(AddText(hShader_, "slotted", "/value.png")));
  EXPECT_EQ(Cache().Take(), Texts{});
  Cache().isOffered = true;
  EXPECT_TRUE(Read(AddText(MakeShader(), "slotted", "/value.png")));
  EXPECT_EQ(Cache().Take(), Texts{});
}

TEST_F(VelRshReaderParameterImageTest, LoadedImage_IsTheCallersAlone) {
  VelBaseUnknown_var hRead = Read(AddText(hShader_, "p", "/a.png"));
  ASSERT_TRUE(hRead);
  EXPECT_EQ(images_.lastImage.Get(), hRead->GetComponent());
  hRead = nullptr;
  EXPECT_EQ(images_.lastImage.Get(), nullptr);
  EXPECT_EQ(images_.Take(), (Texts{"ResolvePath(/a.png)", "CreatePixelImageFromFile(/a.png)"}));
  const Texts told = Told();
  ASSERT_EQ(told.size(), 4U);
  EXPECT_EQ(told[0], "info: File path found into resolved string's parameter value : /a.png { parameter name = p }");
  EXPECT_EQ(told[1], pathTimed) << "the inner time first";
  ExpectCreated(told[2]);
  EXPECT_EQ(told[3], timed);
}

TEST_F(VelRshReaderParameterImageTest, TextureImage_IsLoadedFromTheConvertedFile) {
  const VelIRshParameter_var hParameter = AddTexture(hShader_, "p");
  images_.conversion.code = S_OK;
  EXPECT_TRUE(Read(hParameter));
  EXPECT_EQ(images_.Take().back(), "CreatePixelImageFromFile(/cache/converted.png)");
}

TEST_F(VelRshReaderParameterImageTest, FileThatIsNoImage_IsAWarning) {
  images_.brokenPaths = {"/a.png"};
  EXPECT_FALSE(Read(AddText(hShader_, "p", "/a.png")));
  EXPECT_EQ(Told(), (Texts{"info: File path found into resolved string's parameter value : /a.png { parameter name = "
                           "p }",
                           pathTimed, nothing, timed}));
}

TEST_F(VelRshReaderParameterImageTest, ParameterWithoutAPath_IsTwoWarnings) {
  images_.givesImages = false;
  EXPECT_FALSE(Read(Add(hShader_, "p", "VelRmaColor")));
  EXPECT_EQ(Told(), (Texts{noPath, pathTimed, nothing, timed}));
  EXPECT_EQ(images_.Take(), Texts{"CreatePixelImageFromFile()"});
}

TEST_F(VelRshReaderParameterImageTest, Reader_IsCalledManyTimesAndCopied) {
  const VelIRshParameter_var hParameter = AddText(hShader_, "p", "/a.png");
  const int before = VelTraceService::OpenChannelCount();
  {
    const VelRshReaderParameterImage read;
    EXPECT_EQ(VelTraceService::OpenChannelCount(), before + 4) << "its own two and those of the path";
    VelRshReaderParameterImage copy(read);
    copy = read;
    EXPECT_EQ(VelTraceService::OpenChannelCount(), before + 8);
    for (int time = 0; time < 2; ++time) {
      Forget();
      EXPECT_TRUE(VelBaseUnknown_var::Adopt(read(*hParameter)));
      EXPECT_TRUE(VelBaseUnknown_var::Adopt(copy(*hParameter)));
      EXPECT_EQ(Told().size(), 8U) << "a copy tells as well";
    }
  }
  EXPECT_EQ(VelTraceService::OpenChannelCount(), before);
}

}  // namespace
