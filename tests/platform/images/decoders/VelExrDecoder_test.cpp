// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrDecoder_test.cpp OpenEXR files of every kind, whole, damaged and hostile.
#include "platform/images/decoders/VelExrDecoder.h"

#include <cmath>
#include <initializer_list>

#include <gtest/gtest.h>

#include "tests/platform/images/decoders/DecodedImage.h"
#include "tests/platform/images/decoders/ExrBytes.h"
#include "tests/platform/images/decoders/FileBytes.h"

namespace {

DecodedImage Decode(const std::string& iFile) { return DecodedImage::Of(VelImageKind::Exr, iFile); }

std::string Floats(std::initializer_list<float> iNumbers) {
  std::string bytes;
  for (const float number : iNumbers) bytes += FloatBytes(number);
  return bytes;
}

/// Two rows of two grey pixels, 1 to 4.
ExrBytes Grey() { return {0, 0, 1, 1, {{"Y"}}, {Floats({1, 2}), Floats({3, 4})}}; }

TEST(VelExrDecoder, TheChannelsOfAPicture_BecomeRedGreenBlueAndAlpha) {
  struct Case {
    const char* name;
    ExrBytes exr;
    std::vector<float> expected;
  };
  const Case cases[] = {
      {"red, green and blue",
       {0, 0, 1, 0, {{"B"}, {"G"}, {"R"}}, {Floats({1, 2, 3, 4, 5, -6})}},
       {5, 3, 1, 1, -6, 4, 2, 1}},
      {"alpha is divided by", {0, 0, 0, 0, {{"A"}, {"B"}, {"G"}, {"R"}}, {Floats({0.5F, 1, 2, 3})}}, {6, 4, 2, 0.5F}},
      {"but 0 is not", {0, 0, 0, 0, {{"A"}, {"B"}, {"G"}, {"R"}}, {Floats({0, 1, 2, 3})}}, {3, 2, 1, 0}},
      {"halves: 1, 0.5, 2 and 0.25",
       {0, 0, 0, 0, {{"A", 1}, {"B", 1}, {"G", 1}, {"R", 1}}, {BytesOf({0, 0x38, 0, 0x3C, 0, 0x40, 0, 0x34})}},
       {0.5F, 4, 2, 0.5F}},
      {"whole numbers",
       {0, 0, 0, 0, {{"B", 0}, {"G", 0}, {"R", 0}}, {BytesOf({7, 0, 0, 0, 0, 1, 0, 0, 9, 0, 0, 0})}},
       {9, 256, 7, 1}},
      {"red alone of the colours", {0, 0, 0, 0, {{"R"}}, {Floats({0.5F})}}, {0.5F, 0, 0, 1}},
      {"brightness", {0, 0, 1, 0, {{"Y"}}, {Floats({0.25F, 8})}}, {0.25F, 0.25F, 0.25F, 1, 8, 8, 8, 1}},
      {"brightness and alpha", {0, 0, 0, 0, {{"A"}, {"Y"}}, {Floats({0.5F, 3})}}, {6, 6, 6, 0.5F}},
      {"a single channel", {0, 0, 0, 0, {{"Z"}}, {Floats({100})}}, {100, 100, 100, 1}},
      {"a single channel and alpha", {0, 0, 0, 0, {{"A"}, {"height"}}, {Floats({0.5F, 1})}}, {2, 2, 2, 0.5F}},
      {"alpha alone", {0, 0, 0, 0, {{"A"}}, {Floats({0.5F})}}, {0.5F, 0.5F, 0.5F, 1}},
      {"colours among others",
       {0, 0, 0, 0, {{"B"}, {"G"}, {"R"}, {"Z"}, {"depth.R"}}, {Floats({1, 2, 3, 4, 5})}},
       {3, 2, 1, 1}},
  };
  for (const Case& example : cases) {
    const DecodedImage decoded = Decode(example.exr.File());
    EXPECT_EQ(decoded.Floats(), example.expected) << example.name << ": " << decoded.cause;
    EXPECT_EQ(decoded.image.GetColorSpace(), VelPixelImage::ColorSpace::Linear) << example.name;
  }
}

TEST(VelExrDecoder, NumbersThatAreNone_ArePassedOn) {
  const float infinity = HUGE_VALF;
  const ExrBytes exr{0, 0, 1, 0, {{"A"}, {"B"}, {"G"}, {"R"}}, {Floats({NAN, infinity, 1, 2, 3, 4, infinity, NAN})}};
  const std::vector<float> floats = Decode(exr.File()).Floats();
  ASSERT_EQ(floats.size(), 8U);
  EXPECT_EQ(std::vector<float>(floats.begin(), floats.begin() + 3), (std::vector<float>{infinity, 3, 1}));
  EXPECT_TRUE(std::isnan(floats[3]) && std::isnan(floats[4]));
  EXPECT_EQ(std::vector<float>(floats.begin() + 5, floats.end()), (std::vector<float>{4, 2, infinity}));
}

TEST(VelExrDecoder, TheDataWindow_IsTheImage) {
  for (const int offset : {-1000000, -1, 5, 1000000}) {
    ExrBytes exr = Grey();
    exr.left = exr.top = offset;
    exr.right = exr.bottom = offset + 1;
    const DecodedImage decoded = Decode(exr.File());
    EXPECT_EQ(decoded.Size(), "2x2");
    EXPECT_EQ(decoded.Floats(), (std::vector<float>{1, 1, 1, 1, 2, 2, 2, 1, 3, 3, 3, 1, 4, 4, 4, 1})) << offset;
  }
}

TEST(VelExrDecoder, Tiles_AreOneImage) {
  ExrBytes exr{0, 0, 2, 1, {{"Y"}}, {Floats({1, 2, 4, 5}), Floats({3, 6})}, 2};
  const std::vector<float> floats = Decode(exr.File()).Floats();
  ASSERT_EQ(floats.size(), 24U) << Decode(exr.File()).cause;
  for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(floats[4 * i], static_cast<float>(i + 1));
  ExpectNoImageOfBeginnings(VelImageKind::Exr, exr.File(), 1);
}

TEST(VelExrDecoder, TheFirstPartThatIsFlat_IsTheImage) {
  ExrBytes deep{0, 0, 0, 0, {{"Z"}}, {std::string(28, '\0')}};
  deep.type = "deepscanline";
  const ExrBytes second{0, 0, 0, 0, {{"Y"}}, {Floats({9})}};
  EXPECT_EQ(Decode(Grey().File({second})).Size(), "2x2");
  EXPECT_EQ(Decode(second.File({Grey()})).Size(), "1x1");
  EXPECT_EQ(Decode(deep.File({Grey(), second})).Size(), "2x2");
  EXPECT_EQ(Decode(deep.File({deep})).cause, "is an OpenEXR file of deep images alone; expected one that is flat");
}

/// The files have 16 x 40 pixels, whose colours and alpha follow from their places.
void ExpectGradient(const std::string& iName, float iTolerance) {
  const DecodedImage decoded = Decode(ReadTestFile(iName));
  ASSERT_EQ(decoded.Size(), "16x40") << iName;
  const std::vector<float> floats = decoded.Floats();
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 16; ++x) {
      const float* pixel = &floats[static_cast<std::size_t>(y * 16 + x) * 4];
      const auto column = static_cast<float>(x);
      const auto row = static_cast<float>(y);
      const float expected[] = {column / 8, row / 4, (column + row) / 16, x < 8 ? 1.0F : 0.5F};
      for (std::size_t k = 0; k < 4; ++k)
        ASSERT_NEAR(pixel[k], expected[k], iTolerance) << iName << ": " << x << ", " << y;
    }
  }
}

TEST(VelExrDecoder, EachCompression_IsUndone) {
  for (const char* name : {"rle.exr", "zips.exr", "zip.exr", "piz.exr", "pxr24.exr", "mipmap.exr"})
    ExpectGradient(name, 0);
  for (const char* name : {"b44.exr", "b44a.exr", "dwaa.exr", "dwab.exr"}) ExpectGradient(name, 0.25F);
}

TEST(VelExrDecoder, AFileThatIsCut_IsNoImage) {
  ExpectNoImageOfBeginnings(VelImageKind::Exr, Grey().File(), 1);
  for (const char* name : {"zip.exr", "piz.exr", "dwaa.exr"}) {
    SCOPED_TRACE(name);
    ExpectNoImageOfBeginnings(VelImageKind::Exr, ReadTestFile(name), 13);
  }
}

TEST(VelExrDecoder, WhatIsCutBehindTheImage_DoesNotMatter) {
  constexpr std::size_t chunkOfSecond = 4 + 4 + 4 + 8;
  const std::string parts = Grey().File({Grey()});
  ExpectNoImageOfBeginnings(VelImageKind::Exr, parts.substr(0, parts.size() - 2 * chunkOfSecond), 7);
  // The smaller levels of detail, of 8 x 20 pixels and less.
  const std::string levels = ReadTestFile("mipmap.exr");
  ExpectNoImageOfBeginnings(VelImageKind::Exr, levels.substr(0, 1820), 13);
}

TEST(VelExrDecoder, AFileWithAByteWrong_IsReadOrRefused) {
  for (const std::string& whole : {Grey().File(), ReadTestFile("zip.exr"), ReadTestFile("mipmap.exr")}) {
    int refused = 0;
    for (std::size_t i = 0; i < whole.size(); ++i) {
      std::string file = whole;
      file[i] = static_cast<char>(~file[i]);
      if (FAILED(Decode(file).result)) ++refused;
    }
    EXPECT_GT(refused, 100);
  }
}

TEST(VelExrDecoder, ADamagedTableOfRows_IsNotGuessedAt) {
  for (const std::uint64_t offset : {std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{1} << 40, ~std::uint64_t{0}}) {
    std::string file = Grey().File();
    file.replace(Grey().Head().size(), 8, LittleEndian(offset, 8));
    EXPECT_EQ(Decode(file).result, E_FAIL) << offset;
  }
}

TEST(VelExrDecoder, OfAnUnfitFile_TheCauseIsTold) {
  const auto sized = [](int iWidth, int iHeight, int iTileSize, int iCompression) {
    return ExrBytes{0, 0, iWidth - 1, iHeight - 1, {{"Y"}}, {Floats({1})}, iTileSize, iCompression}.File();
  };
  std::vector<ExrBytes::Channel> many;
  for (int i = 0; i < 3000; ++i) many.push_back({"c" + std::to_string(10000 + i)});
  many.insert(many.begin(), {"Y"});
  const ExrBytes subsampled{0, 0, 1, 1, {{"B", 2, 2}, {"G"}, {"R"}}, {Floats({1, 2, 3, 4, 5}), Floats({2, 3, 4, 5})}};
  struct Case {
    const char* name;
    std::string file;
    const char* cause;
  };
  const Case cases[] = {
      {"empty", "", "is a damaged OpenEXR file: its header has an attribute of a wrong length"},
      {"another format", std::string(64, '\0'), "is a damaged OpenEXR file: File is not an image file."},
      {"too large", sized(100000, 100000, 0, 0), "is a damaged OpenEXR file: The width of the data window exceeds"},
      {"as wide as can be written", sized(0x7FFFFFFF, 1, 0, 0), "is a damaged OpenEXR file: Invalid data window"},
      {"a window of no size", sized(0, 0, 0, 0), "is a damaged OpenEXR file: "},
      {"more than fits into it", sized(8192, 8192, 0, 3), "is a damaged OpenEXR file: it ends too early"},
      {"tiles of one pixel", sized(16384, 16384, 1, 0), "is a damaged OpenEXR file: it ends too early"},
      {"an unknown compression", sized(1, 1, 0, 77), "is a damaged OpenEXR file: Unknown compression"},
      {"subsampled colours", subsampled.File(), "is an OpenEXR file whose channel B does not have every pixel"},
      {"brightness and chroma", ExrBytes{0, 0, 0, 0, {{"BY"}, {"RY"}, {"Y"}}, {Floats({1, 2, 3})}}.File(),
       "is an OpenEXR file of luminance and chroma; expected channels R, G, B and A, or Y"},
      {"channels of unknown names", ExrBytes{0, 0, 0, 0, {{"u"}, {"v"}}, {Floats({1, 2})}}.File(),
       "is an OpenEXR file of 2 channels, none of them R, G, B or Y; expected one of these, or a single channel"},
      {"more channels than it has bytes for", ExrBytes{0, 0, 99, 0, many, {Floats({1})}}.File(), "claims "},
  };
  for (const Case& example : cases) {
    const DecodedImage decoded = Decode(example.file);
    EXPECT_EQ(decoded.cause.substr(0, std::string(example.cause).size()), example.cause) << example.name;
  }
}

}  // namespace
