// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelImage_test.cpp Images in memory: what they keep, which there are none of, and how long they live.
#include "platform/images/VelPixelImage.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "platform/images/VelRbaImageServices.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/RenderingShader/fixtures/FakeImageServices.h"
#include "tests/platform/documents/MissingProviderTest.h"

namespace {

using Format = VelPixelImage::Format;
using ColorSpace = VelPixelImage::ColorSpace;
using Bytes = std::vector<std::byte>;

class VelPixelImageTest : public MissingProviderTest {
 protected:
  void SetUp() override {
    MissingProviderTest::SetUp();
    VelRbaImageServices::ResetWarning();
  }

  static Bytes Ramp(std::size_t iCount) {
    Bytes bytes(iCount);
    for (std::size_t i = 0; i < iCount; ++i) bytes[i] = static_cast<std::byte>(i);
    return bytes;
  }

  static bool Makes(int iWidth, int iHeight, Format iFormat, const Bytes& iPixels) {
    const auto hImage =
        VelBaseUnknown_var::Adopt(VelPixelImage::Create(iWidth, iHeight, iFormat, ColorSpace::Srgb, iPixels));
    return static_cast<bool>(hImage);
  }
};

TEST_F(VelPixelImageTest, AnImage_IsACopyOfThePixelsItIsMadeOf) {
  Bytes pixels = Ramp(24);
  VelPixelImage* image = VelPixelImage::Create(3, 2, Format::Rgba8, ColorSpace::Srgb, pixels);
  ASSERT_NE(image, nullptr);
  pixels.assign(24, std::byte{0});
  EXPECT_EQ(image->GetWidth(), 3);
  EXPECT_EQ(image->GetHeight(), 2);
  EXPECT_EQ(image->GetFormat(), Format::Rgba8);
  EXPECT_EQ(image->GetColorSpace(), ColorSpace::Srgb);
  EXPECT_EQ(Bytes(image->GetPixels().begin(), image->GetPixels().end()), Ramp(24));
  image->Release();
}

TEST_F(VelPixelImageTest, FloatPixels_AreKeptBitForBitAndCanBeReadInPlace) {
  const std::vector<float> values{0.5F, -1.0F, 65504.0F, 1.0F, 1e-30F, -0.0F, 3.25F, 0.0F};
  const VelBaseUnknown_var hImage = VelBaseUnknown_var::Adopt(
      VelPixelImage::Create(1, 2, Format::Rgba32F, ColorSpace::Linear, std::as_bytes(std::span<const float>(values))));
  const VelPixelImage* image = VelPixelImage::From(hImage.Get());
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->GetFormat(), Format::Rgba32F);
  EXPECT_EQ(image->GetColorSpace(), ColorSpace::Linear);
  ASSERT_EQ(image->GetPixels().size(), 32U);
  EXPECT_EQ(std::memcmp(image->GetPixels().data(), values.data(), 32), 0);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(image->GetPixels().data()) % alignof(float), 0U);
}

TEST_F(VelPixelImageTest, OfFiguresThatMakeNoImage_ThereIsNone) {
  struct Case {
    const char* name;
    int width;
    int height;
    Format format;
    std::size_t bytes;
    bool expected;
  };
  const Case cases[] = {
      {"one pixel", 1, 1, Format::Rgba8, 4, true},
      {"one pixel of floats", 1, 1, Format::Rgba32F, 16, true},
      {"the largest side", 16384, 1, Format::Rgba8, 65536, true},
      {"the largest height", 1, 16384, Format::Rgba8, 65536, true},
      {"no width", 0, 1, Format::Rgba8, 0, false},
      {"no height", 1, 0, Format::Rgba8, 0, false},
      {"a negative width", -1, 1, Format::Rgba8, 4, false},
      {"two negative sides", -1, -1, Format::Rgba8, 4, false},
      {"too wide", 16385, 1, Format::Rgba8, 65540, false},
      {"too high", 1, 16385, Format::Rgba8, 65540, false},
      {"a byte too few", 2, 2, Format::Rgba8, 15, false},
      {"a byte too many", 2, 2, Format::Rgba8, 17, false},
      {"no bytes", 2, 2, Format::Rgba8, 0, false},
      {"bytes for floats", 2, 2, Format::Rgba32F, 16, false},
      {"floats for bytes", 2, 2, Format::Rgba8, 64, false},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(Makes(row.width, row.height, row.format, Ramp(row.bytes)), row.expected) << row.name;
  }
}

TEST_F(VelPixelImageTest, ByteCount_KnowsTheLimitOfPixelsInAll) {
  constexpr std::size_t most = std::size_t{1} << 26;
  EXPECT_EQ(VelPixelImage::ByteCount(16384, 4096, Format::Rgba8), 4 * most);
  EXPECT_EQ(VelPixelImage::ByteCount(8192, 8192, Format::Rgba32F), 16 * most);
  EXPECT_EQ(VelPixelImage::ByteCount(16384, 4097, Format::Rgba8), 0U);
  EXPECT_EQ(VelPixelImage::ByteCount(16384, 16384, Format::Rgba32F), 0U);
  EXPECT_EQ(VelPixelImage::ByteCount(2147483647, 2147483647, Format::Rgba32F), 0U);
}

TEST_F(VelPixelImageTest, AnImage_LivesAsLongAsItIsReferenced) {
  VelPixelImage* image = FakeImageServices::MakeImage();
  const VelBaseUnknown_WR watched(image);
  EXPECT_EQ(VelInstanceCounts::Now().components, 1) << "counted, so that a lost one is seen";
  EXPECT_EQ(image->AddRef(), 2U);
  EXPECT_EQ(image->Release(), 1U);
  EXPECT_EQ(watched.Get(), image);
  EXPECT_EQ(image->Release(), 0U);
  EXPECT_EQ(watched.Get(), nullptr);
  EXPECT_EQ(VelInstanceCounts::Now().components, 0);
}

TEST_F(VelPixelImageTest, AnImage_IsAnObjectAndAnswersNoInterface) {
  const VelBaseUnknown_var hImage = VelBaseUnknown_var::Adopt(FakeImageServices::MakeImage());
  EXPECT_STREQ(hImage->ClassName(), "VelPixelImage");
  EXPECT_TRUE(hImage->IsAKindOf("VelObject"));
  VelBaseUnknown_var hAnswer;
  EXPECT_EQ(hImage->QueryInterfaceByName("VelIImageServices", hAnswer.Receive()), E_NOINTERFACE);
  EXPECT_EQ(hImage->QueryInterface(IID_VelBaseUnknown, hAnswer.Receive()), S_OK);
  EXPECT_EQ(VelPixelImage::From(hAnswer.Get()), hImage.Get());
}

TEST_F(VelPixelImageTest, From_OfAnythingElse_IsNull) {
  EXPECT_EQ(VelPixelImage::From(nullptr), nullptr);
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestThing", nullptr);
  EXPECT_EQ(VelPixelImage::From(hObject.Get()), nullptr);
}

TEST_F(VelPixelImageTest, CreateFromFile_GivesTheImageOfTheProvider) {
  FakeImageServices provider;
  provider.image = VelBaseUnknown_var::Adopt(FakeImageServices::MakeImage());
  const auto hImage = VelBaseUnknown_var::Adopt(VelPixelImage::CreateFromFile("/textures/wood.png", 1, 0));
  EXPECT_EQ(hImage.Get(), provider.image.Get());
  const auto hByDefault = VelBaseUnknown_var::Adopt(VelPixelImage::CreateFromFile("/textures/oak.png"));
  EXPECT_EQ(hByDefault.Get(), provider.image.Get());
  EXPECT_EQ(provider.Take(),
            (Texts{"CreatePixelImageFromFile(/textures/wood.png)", "CreatePixelImageFromFile(/textures/oak.png)"}));
  EXPECT_EQ(Take(), Texts{});
}

TEST_F(VelPixelImageTest, CreateFromFile_GivesEachCallerOneReference) {
  FakeImageServices provider;
  VelPixelImage* image = VelPixelImage::CreateFromFile("/textures/wood.png");
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(provider.lastImage.Get(), image);
  EXPECT_EQ(image->Release(), 0U);
  EXPECT_EQ(provider.lastImage.Get(), nullptr);
}

TEST_F(VelPixelImageTest, CreateFromFile_ThatTheProviderCannotMake_IsNull) {
  FakeImageServices provider;
  provider.brokenPaths = {"/textures/broken.png"};
  EXPECT_EQ(VelPixelImage::CreateFromFile("/textures/broken.png"), nullptr);
  provider.givesImages = false;
  EXPECT_EQ(VelPixelImage::CreateFromFile("/textures/wood.png"), nullptr);
  EXPECT_EQ(provider.Take().size(), 2U);
}

TEST_F(VelPixelImageTest, CreateFromFile_InAnyOtherManner_IsNullAndNobodyIsAsked) {
  FakeImageServices provider;
  EXPECT_EQ(VelPixelImage::CreateFromFile("/textures/wood.png", 0, 0), nullptr);
  EXPECT_EQ(VelPixelImage::CreateFromFile("/textures/wood.png", 2, 0), nullptr);
  EXPECT_EQ(VelPixelImage::CreateFromFile("/textures/wood.png", 1, 1), nullptr);
  EXPECT_EQ(provider.Take(), Texts{});
}

TEST_F(VelPixelImageTest, CreateFromFile_WithoutProvider_IsNullAndTheFirstWarns) {
  EXPECT_EQ(VelPixelImage::CreateFromFile("/textures/wood.png"), nullptr);
  EXPECT_EQ(Take(),
            Texts{"VelRbaImageServices: The service is not available: the library VelPlatformImages is missing, "
                  "or no dictionary names it"});
  EXPECT_EQ(VelPixelImage::CreateFromFile("/textures/wood.png"), nullptr);
  EXPECT_EQ(Take(), Texts{});
}

}  // namespace
