// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPngDecoder_test.cpp PNG files of every kind, whole, damaged and hostile.
#include "platform/images/decoders/VelPngDecoder.h"

#include <gtest/gtest.h>

#include "tests/platform/images/decoders/DecodedImage.h"
#include "tests/platform/images/decoders/ExifBytes.h"
#include "tests/platform/images/decoders/FileBytes.h"
#include "tests/platform/images/decoders/PngBytes.h"

namespace {

using ColorSpace = VelPixelImage::ColorSpace;

DecodedImage Decode(const std::string& iFile) { return DecodedImage::Of(VelImageKind::Png, iFile); }

/// One grey pixel, and whatever chunks.
PngBytes GreyPixel(const std::string& iChunks) { return {1, 1, 8, 0, false, iChunks, BytesOf({0, 77})}; }

/// Grey pixels of the letters a to f, in two rows of three.
PngBytes Letters(const std::string& iChunks) {
  return {3, 2, 8, 0, false, iChunks, BytesOf({0, 'a', 'b', 'c', 0, 'd', 'e', 'f'})};
}

TEST(VelPngDecoder, EveryColorTypeAndDepth_BecomesRedGreenBlueAndAlpha) {
  const std::string palette = PngBytes::Chunk("PLTE", BytesOf({1, 2, 3, 40, 50, 60, 255, 0, 128, 9, 9, 9}));
  const std::string paletteAlpha = palette + PngBytes::Chunk("tRNS", BytesOf({128, 0}));
  const auto transparent = [](std::initializer_list<int> iBytes) { return PngBytes::Chunk("tRNS", BytesOf(iBytes)); };
  struct Case {
    const char* name;
    PngBytes png;
    std::vector<int> expected;
  };
  const Case cases[] = {
      {"grey of 1 bit",
       {3, 1, 1, 0, false, "", BytesOf({0, 0b10100000})},
       {255, 255, 255, 255, 0, 0, 0, 255, 255, 255, 255, 255}},
      {"grey of 2 bits",
       {4, 1, 2, 0, false, "", BytesOf({0, 0b00011011})},
       {0, 0, 0, 255, 85, 85, 85, 255, 170, 170, 170, 255, 255, 255, 255, 255}},
      {"grey of 4 bits", {2, 1, 4, 0, false, "", BytesOf({0, 0x1E})}, {17, 17, 17, 255, 238, 238, 238, 255}},
      {"grey of 4 bits, one of them transparent",
       {2, 1, 4, 0, false, transparent({0, 1}), BytesOf({0, 0x1E})},
       {17, 17, 17, 0, 238, 238, 238, 255}},
      {"grey of 8 bits", {2, 1, 8, 0, false, "", BytesOf({0, 7, 200})}, {7, 7, 7, 255, 200, 200, 200, 255}},
      {"grey of 8 bits, one of them transparent",
       {2, 1, 8, 0, false, transparent({0, 7}), BytesOf({0, 7, 8})},
       {7, 7, 7, 0, 8, 8, 8, 255}},
      {"grey of 16 bits, to the nearest",
       {4, 1, 16, 0, false, "", BytesOf({0, 0x00, 0x80, 0x00, 0x81, 0x80, 0x00, 0xFF, 0x7F})},
       {0, 0, 0, 255, 1, 1, 1, 255, 128, 128, 128, 255, 255, 255, 255, 255}},
      {"grey of 16 bits, transparent in all of them",
       {2, 1, 16, 0, false, transparent({0x12, 0x34}), BytesOf({0, 0x12, 0x34, 0x12, 0x35})},
       {18, 18, 18, 0, 18, 18, 18, 255}},
      {"RGB of 8 bits",
       {2, 1, 8, 2, false, "", BytesOf({0, 1, 2, 3, 253, 254, 255})},
       {1, 2, 3, 255, 253, 254, 255, 255}},
      {"RGB of 8 bits, one of them transparent",
       {2, 1, 8, 2, false, transparent({0, 1, 0, 2, 0, 3}), BytesOf({0, 1, 2, 3, 1, 2, 4})},
       {1, 2, 3, 0, 1, 2, 4, 255}},
      {"RGB of 16 bits", {1, 1, 16, 2, false, "", BytesOf({0, 0, 0x81, 0xFF, 0xFF, 0x40, 0x40})}, {1, 255, 64, 255}},
      {"a palette of 1 bit", {2, 1, 1, 3, false, palette, BytesOf({0, 0b01000000})}, {1, 2, 3, 255, 40, 50, 60, 255}},
      {"a palette of 2 bits with alpha",
       {3, 1, 2, 3, false, paletteAlpha, BytesOf({0, 0b00011000})},
       {1, 2, 3, 128, 40, 50, 60, 0, 255, 0, 128, 255}},
      {"a palette of 4 bits", {2, 1, 4, 3, false, palette, BytesOf({0, 0x20})}, {255, 0, 128, 255, 1, 2, 3, 255}},
      {"a palette of 8 bits with alpha",
       {2, 1, 8, 3, false, paletteAlpha, BytesOf({0, 3, 0})},
       {9, 9, 9, 255, 1, 2, 3, 128}},
      {"grey and alpha", {1, 1, 8, 4, false, "", BytesOf({0, 9, 0})}, {9, 9, 9, 0}},
      {"grey and alpha of 16 bits", {1, 1, 16, 4, false, "", BytesOf({0, 0x80, 0x00, 0x00, 0x81})}, {128, 128, 128, 1}},
      {"RGB and alpha, not multiplied", {1, 1, 8, 6, false, "", BytesOf({0, 250, 128, 3, 1})}, {250, 128, 3, 1}},
      {"RGB and alpha of 16 bits",
       {1, 1, 16, 6, false, "", BytesOf({0, 0xFF, 0xFF, 0x80, 0x00, 0, 0x80, 0, 0x81})},
       {255, 128, 0, 1}},
  };
  for (const Case& example : cases) {
    const DecodedImage decoded = Decode(example.png.File());
    EXPECT_EQ(decoded.Bytes(), example.expected) << example.name << ": " << decoded.cause;
    EXPECT_EQ(decoded.Size(), std::to_string(example.png.width) + "x1") << example.name;
  }
}

TEST(VelPngDecoder, EachFilterOfRows_IsUndone) {
  const std::string rows = BytesOf({0, 10, 20, 30}) + BytesOf({1, 5, 1, 1}) + BytesOf({2, 1, 1, 1}) +
                           BytesOf({3, 0, 0, 0}) + BytesOf({4, 1, 0, 0});
  const DecodedImage decoded = Decode(PngBytes{3, 5, 8, 0, false, "", rows}.File());
  ASSERT_EQ(decoded.Size(), "3x5") << decoded.cause;
  std::vector<int> reds;
  for (std::size_t i = 0; i < decoded.Bytes().size(); i += 4) reds.push_back(decoded.Bytes()[i]);
  EXPECT_EQ(reds, (std::vector<int>{10, 20, 30, 5, 6, 7, 6, 7, 8, 3, 5, 6, 4, 5, 6}));
}

TEST(VelPngDecoder, AnInterlacedFile_IsPutTogetherFromItsSevenPasses) {
  // The place of each pass's first pixel and the steps to the next, as the format orders them.
  struct Pass {
    int x, y, stepX, stepY;
  };
  const Pass passes[] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                         {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
  constexpr int side = 9;
  std::string rows;
  for (const Pass& pass : passes) {
    for (int y = pass.y; y < side; y += pass.stepY) {
      rows += '\0';
      for (int x = pass.x; x < side; x += pass.stepX) rows += static_cast<char>(y * side + x);
    }
  }
  const std::string file = PngBytes{side, side, 8, 0, true, "", rows}.File();
  const DecodedImage decoded = Decode(file);
  ASSERT_EQ(decoded.Size(), "9x9") << decoded.cause;
  const std::vector<int> bytes = decoded.Bytes();
  for (std::size_t i = 0; i < 81; ++i) EXPECT_EQ(bytes[4 * i], static_cast<int>(i));
  ExpectNoImageOfBeginnings(VelImageKind::Png, file, 1);
}

TEST(VelPngDecoder, TheColorSpace_IsWhatTheFileTells) {
  const auto gamma = [](std::uint64_t iGamma) { return PngBytes::Chunk("gAMA", BigEndian(iGamma, 4)); };
  const std::string isSrgb = PngBytes::Chunk("sRGB", BytesOf({0}));
  const std::string profile = PngBytes::Chunk("iCCP", std::string("name\0\0", 6) + PngBytes::Stored("no profile"));
  struct Case {
    const char* name;
    std::string chunks;
    ColorSpace expected;
  };
  const Case cases[] = {
      {"nothing", "", ColorSpace::Srgb},
      {"sRGB", isSrgb, ColorSpace::Srgb},
      {"sRGB and its gamma", isSrgb + gamma(45455), ColorSpace::Srgb},
      {"the gamma of sRGB", gamma(45455), ColorSpace::Srgb},
      {"gamma 1", gamma(100000), ColorSpace::Linear},
      {"another gamma", gamma(55556), ColorSpace::Unknown},
      {"no gamma at all", gamma(0), ColorSpace::Unknown},
      {"a profile", profile, ColorSpace::Unknown},
      {"a profile and gamma 1", gamma(100000) + profile, ColorSpace::Unknown},
      {"a profile and sRGB", profile + isSrgb, ColorSpace::Srgb},
  };
  for (const Case& example : cases) {
    const DecodedImage decoded = Decode(GreyPixel(example.chunks).File());
    EXPECT_EQ(decoded.image.GetColorSpace(), example.expected) << example.name;
    EXPECT_EQ(decoded.Bytes(), (std::vector<int>{77, 77, 77, 255})) << example.name << ": " << decoded.cause;
  }
}

TEST(VelPngDecoder, AnImage_IsTurnedUprightByItsExifData) {
  struct Case {
    int orientation;
    const char* expected;
  };
  const Case cases[] = {{0, "abc/def"},  {1, "abc/def"},  {2, "cba/fed"},  {3, "fed/cba"},  {4, "def/abc"},
                        {5, "ad/be/cf"}, {6, "da/eb/fc"}, {7, "fc/eb/da"}, {8, "cf/be/ad"}, {9, "abc/def"}};
  for (const Case& example : cases) {
    for (const bool isBigEndian : {false, true}) {
      const std::string exif = PngBytes::Chunk("eXIf", ExifBytes(example.orientation, isBigEndian));
      EXPECT_EQ(Decode(Letters(exif).File()).Letters(), example.expected) << example.orientation;
    }
  }
}

TEST(VelPngDecoder, ExifDataBehindTheImage_CountsToo) {
  const std::string end = PngBytes::Chunk("IEND", "");
  std::string file = Letters("").File();
  file.insert(file.size() - end.size(), PngBytes::Chunk("eXIf", ExifBytes(3, true)));
  EXPECT_EQ(Decode(file).Letters(), "fed/cba");
}

TEST(VelPngDecoder, AFileThatIsCut_IsNoImage) { ExpectNoImageOfBeginnings(VelImageKind::Png, Letters("").File(), 1); }

TEST(VelPngDecoder, AFileWithAnyBitWrong_IsNoImage) {
  const std::string whole = Letters(PngBytes::Chunk("tEXt", std::string("Title\0six", 9))).File();
  for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
    std::string file = whole;
    file[bit / 8] = static_cast<char>(file[bit / 8] ^ (1 << bit % 8));
    EXPECT_EQ(Decode(file).result, E_FAIL) << bit;
  }
}

TEST(VelPngDecoder, WhatFollowsTheEndOfTheImage_IsNotRead) {
  EXPECT_EQ(Decode(Letters("").File() + "whatever").Letters(), "abc/def");
}

TEST(VelPngDecoder, OfAnUnfitFile_TheCauseIsTold) {
  PngBytes fewRows = Letters("");
  fewRows.height = 3;
  PngBytes unknownFilter = Letters("");
  unknownFilter.rows[0] = 9;
  struct Case {
    const char* name;
    std::string file;
    const char* cause;
  };
  const Case cases[] = {
      {"empty", "", "is a damaged PNG file: it ends too early"},
      {"another format", std::string(64, 'x'), "is a damaged PNG file: Not a PNG file"},
      {"too few rows", fewRows.File(), "is a damaged PNG file: Not enough image data"},
      {"an unknown filter", unknownFilter.File(), "is a damaged PNG file: bad adaptive filter value"},
      {"no width", PngBytes{0, 1, 8, 0, false, "", BytesOf({0, 1})}.File(), "is a damaged PNG file: Invalid IHDR data"},
      {"too wide", PngBytes{16385, 1, 8, 0, false, "", std::string(16386, '\0')}.File(),
       "has 16385 x 1 pixels; expected 1 to 16384 a side and at most 67108864 in all"},
      {"too many", PngBytes{16384, 4097, 1, 0, false, "", std::string(16384, '\0')}.File(),
       "has 16384 x 4097 pixels; expected 1 to 16384 a side and at most 67108864 in all"},
      {"wide beyond all bounds", PngBytes{100000, 100000, 8, 6, false, "", BytesOf({0, 1})}.File(),
       "claims 40000100000 bytes of pixels, more than its 70 bytes can hold"},
      {"as wide as can be written", PngBytes{0x7FFFFFFF, 1, 8, 0, false, "", BytesOf({0, 1})}.File(),
       "claims 2147483648 bytes of pixels, more than its 70 bytes can hold"},
      {"an unknown chunk that is needed", Letters(PngBytes::Chunk("NEED", "x")).File(),
       "is a damaged PNG file: NEED: unhandled critical chunk"},
  };
  for (const Case& example : cases) EXPECT_EQ(Decode(example.file).cause, example.cause) << example.name;
}

TEST(VelPngDecoder, NoAmountOfOtherChunks_KeepsAnImageFromBeingRead) {
  std::string chunks;
  for (int i = 0; i < 20000; ++i) {
    chunks += PngBytes::Chunk("tEXt", std::string("a\0b", 3)) + PngBytes::Chunk("prIv", "c");
  }
  const std::string hugeProfile(9 * 1024 * 1024, 'p');
  EXPECT_EQ(Decode(Letters(chunks).File()).Letters(), "abc/def");
  EXPECT_EQ(Decode(Letters(PngBytes::Chunk("iCCP", hugeProfile)).File()).Letters(), "abc/def");
}

}  // namespace
