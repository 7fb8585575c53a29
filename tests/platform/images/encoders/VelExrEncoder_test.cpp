// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrEncoder_test.cpp OpenEXR files that are written, and read again.
#include "platform/images/encoders/VelExrEncoder.h"

#include <cmath>
#include <cstddef>
#include <cstring>
#include <span>
#include <vector>

#include <gtest/gtest.h>

#include "platform/images/decoders/VelExrDecoder.h"
#include "platform/images/pixels/VelImageSource.h"
#include "platform/images/pixels/VelPixelBuffer.h"
#include "platform/objectmodeler/VelBaseUnknown.h"

namespace {

using Format = VelPixelImage::Format;

VelPixelBuffer Image(int iWidth, int iHeight, const std::vector<float>& iFloats) {
  VelPixelBuffer image;
  std::string cause;
  EXPECT_EQ(image.Allocate(iWidth, iHeight, Format::Rgba32F, cause), S_OK);
  EXPECT_EQ(image.Bytes().size(), iFloats.size() * sizeof(float));
  std::memcpy(image.Bytes().data(), iFloats.data(), image.Bytes().size());
  return image;
}

/// Colours of every size, the alpha of each as it is told to be.
template <typename Alpha>
std::vector<float> Noise(int iPixels, Alpha iAlpha) {
  std::vector<float> floats;
  std::uint32_t state = 1;
  for (int i = 0; i < iPixels; ++i) {
    for (int k = 0; k < 3; ++k) {
      state = state * 1664525 + 1013904223;
      floats.push_back(std::ldexp(static_cast<float>(state >> 8) - 8388608.0F, static_cast<int>(state % 41) - 40));
    }
    floats.push_back(iAlpha(i));
  }
  return floats;
}

std::vector<float> RoundTrip(int iWidth, int iHeight, const std::vector<float>& iFloats) {
  std::string file;
  std::string cause;
  EXPECT_EQ(VelExrEncoder::Encode(Image(iWidth, iHeight, iFloats), file, cause), S_OK) << cause;
  VelMemoryImageSource source(std::as_bytes(std::span<const char>(file)));
  VelPixelBuffer image;
  EXPECT_EQ(VelExrDecoder::Decode(source, image, cause), S_OK) << cause;
  EXPECT_EQ(image.GetWidth(), iWidth);
  EXPECT_EQ(image.GetHeight(), iHeight);
  EXPECT_EQ(image.GetColorSpace(), VelPixelImage::ColorSpace::Linear);
  std::vector<float> floats(image.Bytes().size() / sizeof(float));
  if (!floats.empty()) std::memcpy(floats.data(), image.Bytes().data(), image.Bytes().size());
  return floats;
}

TEST(VelExrEncoder, OpaqueAndTransparentPixels_AreReadAgainBitForBit) {
  const int sides[][2] = {{1, 1}, {1, 50}, {50, 1}, {33, 17}, {40, 16}};
  for (const auto& [width, height] : sides) {
    const auto floats = Noise(width * height, [](int iPixel) { return iPixel % 3 == 0 ? 0.0F : 1.0F; });
    EXPECT_EQ(RoundTrip(width, height, floats), floats) << width << " x " << height;
  }
}

TEST(VelExrEncoder, PixelsOfOtherAlpha_AreReadAgainToTheRoundingOfFloats) {
  const auto floats = Noise(40 * 40, [](int iPixel) { return 0.001F + static_cast<float>(iPixel) / 800.0F; });
  const std::vector<float> again = RoundTrip(40, 40, floats);
  ASSERT_EQ(again.size(), floats.size());
  for (std::size_t i = 0; i < floats.size(); ++i) EXPECT_NEAR(again[i], floats[i], std::fabs(floats[i]) * 3e-7F) << i;
}

TEST(VelExrEncoder, TheFile_HasColorsMultipliedByAlpha) {
  // A row of one pixel is too short to be packed, so the floats stand as they are: alpha, blue, green, red.
  std::string file;
  std::string cause;
  ASSERT_EQ(VelExrEncoder::Encode(Image(1, 1, {2, 4, 6, 0.5F}), file, cause), S_OK) << cause;
  const float expected[] = {0.5F, 3, 2, 1};
  ASSERT_GT(file.size(), sizeof(expected));
  EXPECT_EQ(std::memcmp(file.data() + file.size() - sizeof(expected), expected, sizeof(expected)), 0);
}

TEST(VelExrEncoder, TheSamePixels_GiveTheSameBytes) {
  VelPixelBuffer buffer = Image(30, 30, Noise(900, [](int) { return 0.5F; }));
  std::string first;
  std::string second = "what was there before";
  std::string cause;
  ASSERT_EQ(VelExrEncoder::Encode(buffer, first, cause), S_OK);
  ASSERT_EQ(VelExrEncoder::Encode(buffer, second, cause), S_OK);
  EXPECT_EQ(first, second);
  VelPixelImage* image = buffer.TakeImage();
  ASSERT_NE(image, nullptr);
  ASSERT_EQ(VelExrEncoder::Encode(*image, second, cause), S_OK);
  EXPECT_EQ(first, second);
  image->Release();
}

TEST(VelExrEncoder, WhatItDoesNotTake_IsTold) {
  std::string file = "before";
  std::string cause;
  EXPECT_EQ(VelExrEncoder::Encode(VelPixelBuffer(), file, cause), E_FAIL);
  EXPECT_EQ(cause, "has no pixels");
  EXPECT_EQ(file, "");
  VelPixelBuffer bytes;
  ASSERT_EQ(bytes.Allocate(1, 1, Format::Rgba8, cause), S_OK);
  file = "before";
  EXPECT_EQ(VelExrEncoder::Encode(bytes, file, cause), E_FAIL);
  EXPECT_EQ(cause, "has pixels of bytes, which are written as a PNG file");
  EXPECT_EQ(file, "");
}

}  // namespace
