// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixelBuffer_test.cpp The sizes for which there is room, the rows, and the image made of them.
#include "platform/images/pixels/VelPixelBuffer.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

namespace {

using Format = VelPixelImage::Format;

TEST(VelPixelBuffer, Allocate_OfWhatIsNoImageSize_SaysWhatWasExpected) {
  constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
  struct Case {
    std::int64_t width;
    std::int64_t height;
  };
  const Case cases[] = {{0, 1}, {1, 0}, {-1, 5}, {16385, 1}, {1, 16385}, {16384, 4097}, {100000, 100000}, {most, most}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.width);
    VelPixelBuffer buffer;
    std::string cause;
    EXPECT_EQ(buffer.Allocate(test.width, test.height, Format::Rgba8, cause), E_FAIL);
    EXPECT_EQ(cause, "has " + std::to_string(test.width) + " x " + std::to_string(test.height) +
                         " pixels; expected 1 to 16384 a side and at most 67108864 in all");
    EXPECT_TRUE(buffer.IsEmpty());
    EXPECT_TRUE(buffer.Bytes().empty());
  }
}

TEST(VelPixelBuffer, Rows_LieOneBehindAnotherAndBeginBlack) {
  VelPixelBuffer buffer;
  std::string cause;
  ASSERT_EQ(buffer.Allocate(3, 2, Format::Rgba8, cause), S_OK);
  EXPECT_EQ(cause, "");
  EXPECT_EQ(buffer.Bytes().size(), 24U);
  for (const std::byte byte : buffer.Bytes()) EXPECT_EQ(byte, std::byte{0});
  EXPECT_EQ(buffer.Row(0).data(), buffer.Bytes().data());
  EXPECT_EQ(buffer.Row(1).data(), buffer.Bytes().data() + 12);
  EXPECT_EQ(buffer.Row(1).size(), 12U);
  ASSERT_EQ(buffer.Allocate(1, 1, Format::Rgba32F, cause), S_OK);
  EXPECT_EQ(buffer.PixelSize(), 16U);
  EXPECT_EQ(buffer.Bytes().size(), 16U);
}

TEST(VelPixelBuffer, TakeImage_HandsThePixelsOverWithoutACopy) {
  VelPixelBuffer buffer;
  std::string cause;
  ASSERT_EQ(buffer.Allocate(2, 1, Format::Rgba8, cause), S_OK);
  buffer.SetColorSpace(VelPixelImage::ColorSpace::Linear);
  buffer.Row(0)[5] = std::byte{77};
  const std::byte* pixels = buffer.Bytes().data();
  VelPixelImage* image = buffer.TakeImage();
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->GetPixels().data(), pixels);
  EXPECT_EQ(image->GetPixels()[5], std::byte{77});
  EXPECT_EQ(image->GetWidth(), 2);
  EXPECT_EQ(image->GetColorSpace(), VelPixelImage::ColorSpace::Linear);
  EXPECT_TRUE(buffer.IsEmpty());
  EXPECT_EQ(buffer.TakeImage(), nullptr);
  image->Release();
}

}  // namespace
