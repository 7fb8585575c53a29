// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiffDecoder_Packing_test.cpp TIFF files whose rows are packed.
#include <cstdlib>

#include <gtest/gtest.h>

#include "tests/platform/images/decoders/DecodedImage.h"
#include "tests/platform/images/decoders/FileBytes.h"
#include "tests/platform/images/decoders/PngBytes.h"
#include "tests/platform/images/decoders/TiffBytes.h"

namespace {

constexpr int compressionTag = 259;
constexpr int subsamplingTag = 530;

DecodedImage Decode(const std::string& iFile) { return DecodedImage::Of(VelImageKind::Tiff, iFile); }

/// Grey pixels of 8 bits, packed as the tag tells.
TiffBytes Packed(std::uint32_t iCompression, std::uint32_t iHeight, const std::string& iStrip) {
  return {3, iHeight, 8, 1, 1, {iStrip}, {{compressionTag, {iCompression}}}};
}

TEST(VelTiffDecoder, PackedRows_AreUnpacked) {
  // Codes of 9 bits: clear, the six letters, end.
  const std::string lzw = BytesOf({0x80, 0x18, 0x4C, 0x46, 0x33, 0x21, 0x94, 0xCD, 0x01, 0});
  struct Case {
    const char* name;
    TiffBytes tiff;
    const char* letters;
  };
  const Case cases[] = {
      {"runs", Packed(32773, 2, BytesOf({2, 'a', 'b', 'c', 0xFE, 'd'})), "abc/ddd"},
      {"LZW", Packed(5, 2, lzw), "abc/def"},
      {"deflate", Packed(8, 3, PngBytes::Stored("abcdefghi")), "abc/def/ghi"},
      {"deflate by its older number", Packed(32946, 3, PngBytes::Stored("abcdefghi")), "abc/def/ghi"},
  };
  for (const Case& example : cases) {
    SCOPED_TRACE(example.name);
    EXPECT_EQ(Decode(example.tiff.File()).Letters(), example.letters);
    const std::size_t begin = example.tiff.File().size() - example.tiff.pieces[0].size();
    for (std::size_t length = 0; length < example.tiff.pieces[0].size(); ++length) {
      EXPECT_EQ(Decode(example.tiff.File().substr(0, begin + length)).result, E_FAIL) << length;
    }
  }
}

TEST(VelTiffDecoder, DifferencesOfNeighbours_AreAddedUp) {
  TiffBytes tiff = Packed(8, 2, PngBytes::Stored(BytesOf({'a', 1, 1, 'd', 1, 0xFF})));
  tiff.tags[317] = {2};
  EXPECT_EQ(Decode(tiff.File()).Letters(), "abc/ded");
}

TEST(VelTiffDecoder, RowsOfAFax_AreUnpacked) {
  // Two rows like the white one before them, a bit each, and the end.
  const TiffBytes white{3, 2, 1, 1, 0, {BytesOf({0xC0, 0x04, 0x00, 0x40})}, {{compressionTag, {4}}}};
  EXPECT_EQ(Decode(white.File()).Bytes(), std::vector<int>(24, 255));
}

TEST(VelTiffDecoder, JpegInside_IsReadAsAJpegFileIs) {
  const TiffBytes grey{24, 16, 8, 1, 1, {ReadTestFile("letters.jpg")}, {{compressionTag, {7}}}};
  const DecodedImage letters = Decode(grey.File());
  ASSERT_EQ(letters.Size(), "24x16");
  for (int i = 0; i < 6; ++i) {
    const auto place = static_cast<std::size_t>(i % 3 * 8 + 4) * 4;
    EXPECT_EQ(letters.image.Row(i / 3 * 8 + 4)[place], static_cast<std::byte>('a' + i));
  }
  const TiffBytes color{
      48, 32, 8, 3, 6, {ReadTestFile("baseline.jpg")}, {{compressionTag, {7}}, {subsamplingTag, {2, 2}}}};
  const DecodedImage patches = Decode(color.File());
  ASSERT_EQ(patches.Size(), "48x32");
  const int expected[][3] = {{220, 30, 40}, {20, 200, 60}, {30, 40, 210}, {255, 255, 255}, {0, 0, 0}, {128, 100, 70}};
  for (int i = 0; i < 6; ++i) {
    const auto pixel = patches.image.Row(i / 3 * 16 + 8).subspan(static_cast<std::size_t>(i % 3 * 16 + 8) * 4);
    for (std::size_t k = 0; k < 3; ++k) EXPECT_NEAR(std::to_integer<int>(pixel[k]), expected[i][k], 3) << i;
    EXPECT_EQ(pixel[3], std::byte{255});
  }
}

TEST(VelTiffDecoder, ADamagedJpegInside_IsNoImage) {
  for (const int removed : {3, 30, 100}) {
    const std::string jpeg = ReadTestFile("baseline.jpg");
    const std::string cut = jpeg.substr(0, jpeg.size() - static_cast<std::size_t>(removed));
    const TiffBytes color{48, 32, 8, 3, 6, {cut}, {{compressionTag, {7}}, {subsamplingTag, {2, 2}}}};
    EXPECT_EQ(Decode(color.File()).result, E_FAIL) << removed;
  }
}

}  // namespace
