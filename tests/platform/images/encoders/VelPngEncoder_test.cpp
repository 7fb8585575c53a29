// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPngEncoder_test.cpp PNG files that are written, and read again.
#include "platform/images/encoders/VelPngEncoder.h"

#include <cstddef>
#include <cstring>
#include <span>

#include <gtest/gtest.h>

#include "platform/images/decoders/VelPngDecoder.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/pixels/VelPixelBuffer.h"
#include "platform/objectmodeler/VelBaseUnknown.h"

namespace {

using ColorSpace = VelPixelImage::ColorSpace;
using Format = VelPixelImage::Format;

/// Pixels that do not follow from one another, with every alpha.
VelPixelBuffer Noise(int iWidth, int iHeight) {
  VelPixelBuffer image;
  std::string cause;
  EXPECT_EQ(image.Allocate(iWidth, iHeight, Format::Rgba8, cause), S_OK);
  std::uint32_t state = 1;
  for (std::byte& byte : image.Bytes()) {
    state = state * 1664525 + 1013904223;
    byte = static_cast<std::byte>(state >> 24);
  }
  return image;
}

bool IsSame(const VelPixelBuffer& iLeft, const VelPixelBuffer& iRight) {
  return iLeft.GetWidth() == iRight.GetWidth() && iLeft.GetHeight() == iRight.GetHeight() &&
         iLeft.GetFormat() == iRight.GetFormat() && iLeft.Bytes().size() == iRight.Bytes().size() &&
         std::memcmp(iLeft.Bytes().data(), iRight.Bytes().data(), iLeft.Bytes().size()) == 0;
}

VelPixelBuffer Decode(const std::string& iFile) {
  VelMemoryImageSource source(std::as_bytes(std::span<const char>(iFile)));
  VelPixelBuffer image;
  std::string cause;
  EXPECT_EQ(VelPngDecoder::Decode(source, image, cause), S_OK) << cause;
  return image;
}

TEST(VelPngEncoder, WhatIsWritten_IsReadAgainPixelForPixel) {
  const int sides[][2] = {{1, 1}, {1, 300}, {300, 1}, {64, 48}, {257, 129}};
  for (const auto& [width, height] : sides) {
    const VelPixelBuffer image = Noise(width, height);
    std::string file;
    std::string cause;
    ASSERT_EQ(VelPngEncoder::Encode(image, file, cause), S_OK) << cause;
    EXPECT_TRUE(IsSame(Decode(file), image)) << width << " x " << height;
  }
}

TEST(VelPngEncoder, TheColorSpace_IsWrittenWhereItIsKnown) {
  struct Case {
    ColorSpace colorSpace;
    bool hasSrgb;
    bool hasGamma;
  };
  const Case cases[] = {
      {ColorSpace::Srgb, true, false}, {ColorSpace::Linear, false, true}, {ColorSpace::Unknown, false, false}};
  for (const Case& example : cases) {
    VelPixelBuffer image = Noise(2, 2);
    image.SetColorSpace(example.colorSpace);
    std::string file;
    std::string cause;
    ASSERT_EQ(VelPngEncoder::Encode(image, file, cause), S_OK);
    EXPECT_EQ(file.find("sRGB") != std::string::npos, example.hasSrgb);
    // 1, in 1/100000.
    EXPECT_EQ(file.find(std::string("gAMA\0\x01\x86\xA0", 8)) != std::string::npos, example.hasGamma);
    // Of a file that tells nothing, the colours are those of displays.
    const bool isTold = example.colorSpace != ColorSpace::Unknown;
    EXPECT_EQ(Decode(file).GetColorSpace(), isTold ? example.colorSpace : ColorSpace::Srgb);
  }
}

TEST(VelPngEncoder, TheSamePixels_GiveTheSameBytes) {
  VelPixelBuffer buffer = Noise(100, 100);
  std::string first;
  std::string second = "what was there before";
  std::string cause;
  ASSERT_EQ(VelPngEncoder::Encode(buffer, first, cause), S_OK);
  ASSERT_EQ(VelPngEncoder::Encode(buffer, second, cause), S_OK);
  EXPECT_EQ(first, second);
  VelPixelImage* image = buffer.TakeImage();
  ASSERT_NE(image, nullptr);
  ASSERT_EQ(VelPngEncoder::Encode(*image, second, cause), S_OK);
  EXPECT_EQ(first, second);
  image->Release();
}

TEST(VelPngEncoder, WhatItDoesNotTake_IsTold) {
  std::string file = "before";
  std::string cause;
  EXPECT_EQ(VelPngEncoder::Encode(VelPixelBuffer(), file, cause), E_FAIL);
  EXPECT_EQ(cause, "has no pixels");
  EXPECT_EQ(file, "");
  VelPixelBuffer floats;
  ASSERT_EQ(floats.Allocate(1, 1, Format::Rgba32F, cause), S_OK);
  file = "before";
  EXPECT_EQ(VelPngEncoder::Encode(floats, file, cause), E_FAIL);
  EXPECT_EQ(cause, "has pixels of floats, which a PNG file does not take");
  EXPECT_EQ(file, "");
}

}  // namespace
