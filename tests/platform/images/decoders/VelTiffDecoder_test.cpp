// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiffDecoder_test.cpp TIFF files of every kind, whole, damaged and hostile.
#include "platform/images/decoders/VelTiffDecoder.h"

#include <algorithm>
#include <utility>

#include <gtest/gtest.h>

#include "tests/platform/images/decoders/DecodedImage.h"
#include "tests/platform/images/decoders/FileBytes.h"
#include "tests/platform/images/decoders/TiffBytes.h"

namespace {

using ColorSpace = VelPixelImage::ColorSpace;

DecodedImage Decode(const std::string& iFile) { return DecodedImage::Of(VelImageKind::Tiff, iFile); }

constexpr int compressionTag = 259;
constexpr int orientationTag = 274;

constexpr int rowsPerStripTag = 278;
constexpr int planarTag = 284;
constexpr int colorMapTag = 320;
constexpr int tileWidthTag = 322;
constexpr int tileHeightTag = 323;
constexpr int extraTag = 338;
constexpr int formatTag = 339;

/// Grey pixels of the letters a to f, in two rows of three.
TiffBytes Letters() { return {3, 2, 8, 1, 1, {"abcdef"}, {}}; }

TEST(VelTiffDecoder, EveryKindOfWholeNumbers_BecomesRedGreenBlueAndAlpha) {
  const std::map<int, std::vector<std::uint32_t>> straight{{extraTag, {2}}};
  const std::map<int, std::vector<std::uint32_t>> associated{{extraTag, {1}}};
  const std::map<int, std::vector<std::uint32_t>> unspecified{{extraTag, {0}}};
  const std::map<int, std::vector<std::uint32_t>> map{
      {colorMapTag, {0x0000, 0x0081, 0xFFFF, 0x8000, 0x0101, 0x4040, 0, 0, 0xFF00, 0x0102, 0x0080, 1}}};
  std::map<int, std::vector<std::uint32_t>> narrowMap{{colorMapTag, {0, 10, 20, 30, 1, 11, 21, 31, 2, 12, 22, 255}}};
  struct Case {
    const char* name;
    TiffBytes tiff;
    std::vector<int> expected;
  };
  const Case cases[] = {
      {"black is 0, 1 bit",
       {3, 1, 1, 1, 1, {BytesOf({0b10100000})}, {}},
       {255, 255, 255, 255, 0, 0, 0, 255, 255, 255, 255, 255}},
      {"white is 0, 1 bit",
       {3, 1, 1, 1, 0, {BytesOf({0b10100000})}, {}},
       {0, 0, 0, 255, 255, 255, 255, 255, 0, 0, 0, 255}},
      {"grey of 2 bits",
       {4, 1, 2, 1, 1, {BytesOf({0b00011011})}, {}},
       {0, 0, 0, 255, 85, 85, 85, 255, 170, 170, 170, 255, 255, 255, 255, 255}},
      {"grey of 4 bits", {2, 1, 4, 1, 1, {BytesOf({0x1E})}, {}}, {17, 17, 17, 255, 238, 238, 238, 255}},
      {"grey of 8 bits", {2, 1, 8, 1, 1, {BytesOf({7, 200})}, {}}, {7, 7, 7, 255, 200, 200, 200, 255}},
      {"white is 0, 8 bits", {1, 1, 8, 1, 0, {BytesOf({7})}, {}}, {248, 248, 248, 255}},
      {"grey of 16 bits, to the nearest",
       {4, 1, 16, 1, 1, {BytesOf({0x80, 0x00, 0x81, 0x00, 0x00, 0x80, 0x7F, 0xFF})}, {}},
       {0, 0, 0, 255, 1, 1, 1, 255, 128, 128, 128, 255, 255, 255, 255, 255}},
      {"grey of 16 bits, highest byte first", {1, 1, 16, 1, 1, {BytesOf({0x00, 0x81})}, {}, true}, {1, 1, 1, 255}},
      {"grey and alpha", {1, 1, 8, 2, 1, {BytesOf({200, 100})}, straight}, {200, 200, 200, 100}},
      {"grey with alpha multiplied", {1, 1, 8, 2, 1, {BytesOf({50, 100})}, associated}, {128, 128, 128, 100}},
      {"grey and a sample of no meaning", {1, 1, 8, 2, 1, {BytesOf({50, 100})}, unspecified}, {50, 50, 50, 255}},
      {"RGB", {1, 1, 8, 3, 2, {BytesOf({1, 2, 3})}, {}}, {1, 2, 3, 255}},
      {"RGB of 4 bits", {2, 1, 4, 3, 2, {BytesOf({0x12, 0x3F, 0xED})}, {}}, {17, 34, 51, 255, 255, 238, 221, 255}},
      {"RGB of 16 bits", {1, 1, 16, 3, 2, {BytesOf({0x81, 0, 0xFF, 0xFF, 0, 0x80})}, {}}, {1, 255, 128, 255}},
      {"RGB and alpha",
       {2, 1, 8, 4, 2, {BytesOf({250, 128, 3, 1, 9, 8, 7, 0})}, straight},
       {250, 128, 3, 1, 9, 8, 7, 0}},
      {"RGB with alpha multiplied",
       {3, 1, 8, 4, 2, {BytesOf({50, 100, 1, 100, 9, 8, 7, 0, 200, 100, 0, 100})}, associated},
       {128, 255, 3, 100, 9, 8, 7, 0, 255, 255, 0, 100}},
      {"RGB with alpha multiplied, 16 bits",
       {1, 1, 16, 4, 2, {BytesOf({0x00, 0x10, 0x00, 0x20, 0x01, 0x00, 0x00, 0x40})}, associated},
       {64, 128, 0, 64}},
      {"RGB and a sample of no meaning", {1, 1, 8, 4, 2, {BytesOf({1, 2, 3, 4})}, unspecified}, {1, 2, 3, 255}},
      {"RGB, a sample of no meaning and alpha",
       {1, 1, 8, 5, 2, {BytesOf({1, 2, 3, 4, 5})}, {{extraTag, {0, 2}}}},
       {1, 2, 3, 5}},
      {"a palette",
       {4, 1, 2, 1, 3, {BytesOf({0b00011011})}, map},
       {0, 1, 254, 255, 1, 64, 1, 255, 255, 0, 0, 255, 128, 0, 0, 255}},
      {"a palette of narrow colours",
       {2, 1, 2, 1, 3, {BytesOf({0b11010000})}, narrowMap},
       {30, 31, 255, 255, 10, 11, 12, 255}},
      {"inks",
       {2, 1, 8, 4, 5, {BytesOf({0, 128, 255, 51, 10, 20, 30, 128})}, {}},
       {204, 102, 0, 255, 122, 117, 112, 255}},
      {"inks of 16 bits", {1, 1, 16, 4, 5, {BytesOf({0, 0, 0, 0x80, 0xFF, 0xFF, 0x33, 0x33})}, {}}, {204, 102, 0, 255}},
  };
  for (const Case& example : cases) {
    const DecodedImage decoded = Decode(example.tiff.File());
    EXPECT_EQ(decoded.Bytes(), example.expected) << example.name << ": " << decoded.cause;
  }
}

TEST(VelTiffDecoder, Floats_AreKeptAsTheyAre) {
  const auto floats = [](std::initializer_list<float> iNumbers) {
    std::string bytes;
    for (const float number : iNumbers) bytes += FloatBytes(number);
    return bytes;
  };
  struct Case {
    const char* name;
    TiffBytes tiff;
    std::vector<float> expected;
  };
  const Case cases[] = {
      {"grey",
       {2, 1, 32, 1, 1, {floats({-1.5F, 70000.0F})}, {{formatTag, {3}}}},
       {-1.5F, -1.5F, -1.5F, 1, 70000, 70000, 70000, 1}},
      {"white is 0", {1, 1, 32, 1, 0, {floats({0.25F})}, {{formatTag, {3}}}}, {0.75F, 0.75F, 0.75F, 1}},
      {"RGB", {1, 1, 32, 3, 2, {floats({1.5F, 0.0F, -2.0F})}, {{formatTag, {3, 3, 3}}}}, {1.5F, 0, -2, 1}},
      {"RGB and alpha",
       {1, 1, 32, 4, 2, {floats({1, 2, 3, 0.5F})}, {{formatTag, {3, 3, 3, 3}}, {extraTag, {2}}}},
       {1, 2, 3, 0.5F}},
      {"RGB with alpha multiplied",
       {3,
        1,
        32,
        4,
        2,
        {floats({1, 2, 3, 0.5F, 1, 2, 3, 0, 1, 2, 3, 1})},
        {{formatTag, {3, 3, 3, 3}}, {extraTag, {1}}}},
       {2, 4, 6, 0.5F, 1, 2, 3, 0, 1, 2, 3, 1}},
      {"halves: 1, -2 and the largest",
       {1, 1, 16, 3, 2, {BytesOf({0, 0x3C, 0, 0xC0, 0xFF, 0x7B})}, {{formatTag, {3, 3, 3}}}},
       {1, -2, 65504, 1}},
  };
  for (const Case& example : cases) {
    const DecodedImage decoded = Decode(example.tiff.File());
    EXPECT_EQ(decoded.Floats(), example.expected) << example.name << ": " << decoded.cause;
    EXPECT_EQ(decoded.image.GetColorSpace(), ColorSpace::Linear) << example.name;
  }
}

TEST(VelTiffDecoder, StripsTilesAndPlanes_AreOneImage) {
  const auto padded = [](const std::string& iRow) { return iRow + std::string(16 - iRow.size(), '-'); };
  const std::string emptyRows(16 * 14, '-');
  // 18 x 18 letters in tiles of 16 x 16, of which the right and lower ones hold two columns or rows.
  const auto letter = [](int iX, int iY) { return static_cast<char>('A' + (iX + 3 * iY) % 26); };
  TiffBytes tiled{18, 18, 8, 1, 1, {}, {{tileWidthTag, {16}}, {tileHeightTag, {16}}}};
  std::string expected;
  for (int y = 0; y < 18; ++y) {
    if (y != 0) expected += '/';
    for (int x = 0; x < 18; ++x) expected += letter(x, y);
  }
  for (const int top : {0, 16}) {
    for (const int left : {0, 16}) {
      std::string tile;
      for (int y = top; y < std::min(top + 16, 18); ++y) {
        std::string row;
        for (int x = left; x < std::min(left + 16, 18); ++x) row += letter(x, y);
        tile += padded(row);
      }
      tile.resize(256, '-');
      tiled.pieces.push_back(tile);
    }
  }
  struct Case {
    const char* name;
    TiffBytes tiff;
    std::string letters;
  };
  const Case cases[] = {
      {"one strip", Letters(), "abc/def"},
      {"a strip a row", {3, 2, 8, 1, 1, {"abc", "def"}, {{rowsPerStripTag, {1}}}}, "abc/def"},
      {"the last strip shorter", {3, 3, 8, 1, 1, {"abcdef", "ghi"}, {{rowsPerStripTag, {2}}}}, "abc/def/ghi"},
      {"tiles", tiled, expected},
      {"planes", {3, 2, 8, 3, 2, {"abcdef", "ghijkl", "mnopqr"}, {{planarTag, {2}}}}, "abc/def"},
      {"planes in strips",
       {3, 3, 8, 3, 2, {"abcdef", "ghi", "------", "---", "------", "---"}, {{planarTag, {2}}, {rowsPerStripTag, {2}}}},
       "abc/def/ghi"},
      {"planes in tiles",
       {3,
        2,
        8,
        2,
        1,
        {padded("abc") + padded("def") + emptyRows, std::string(256, '-')},
        {{planarTag, {2}}, {extraTag, {2}}, {tileWidthTag, {16}}, {tileHeightTag, {16}}}},
       "abc/def"},
  };
  for (const Case& example : cases) {
    const DecodedImage decoded = Decode(example.tiff.File());
    EXPECT_EQ(decoded.Letters(), example.letters) << example.name << ": " << decoded.cause;
  }
}

TEST(VelTiffDecoder, Planes_AreTakenInOrder) {
  const TiffBytes bytes{
      1, 1, 8, 4, 2, {BytesOf({1}), BytesOf({2}), BytesOf({3}), BytesOf({4})}, {{planarTag, {2}}, {extraTag, {2}}}};
  EXPECT_EQ(Decode(bytes.File()).Bytes(), (std::vector<int>{1, 2, 3, 4}));
  const TiffBytes words{1, 1, 16, 3, 2, {BytesOf({0, 1}), BytesOf({0, 2}), BytesOf({0, 3})}, {{planarTag, {2}}}};
  EXPECT_EQ(Decode(words.File()).Bytes(), (std::vector<int>{1, 2, 3, 255}));
  const TiffBytes bits{3, 1, 1, 3, 2, {BytesOf({0x80}), BytesOf({0x40}), BytesOf({0x20})}, {{planarTag, {2}}}};
  EXPECT_EQ(Decode(bits.File()).Bytes(), (std::vector<int>{255, 0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255}));
}

TEST(VelTiffDecoder, ColorsThatTheLibraryConverts_AreRedGreenAndBlue) {
  // Blocks of 2 x 2: four of brightness, then blue and red. 16 to 235 is the range that the file declares none of.
  const TiffBytes luma{2, 2, 8, 3, 6, {BytesOf({0, 255, 100, 50, 128, 128})}, {}};
  const DecodedImage decoded = Decode(luma.File());
  EXPECT_EQ(decoded.Bytes(), (std::vector<int>{0, 0, 0, 255, 255, 255, 255, 255, 100, 100, 100, 255, 50, 50, 50, 255}))
      << decoded.cause;
  const TiffBytes lab{1, 1, 8, 3, 8, {BytesOf({255, 0, 0})}, {}};
  const std::vector<int> white = Decode(lab.File()).Bytes();
  ASSERT_EQ(white.size(), 4U);
  // The white of print is that of warm light, which the library keeps.
  EXPECT_TRUE(white[0] >= 250 && white[1] >= 250 && white[2] >= 215 && white[3] == 255);
}

TEST(VelTiffDecoder, AnImage_IsTurnedUprightByItsTag) {
  struct Case {
    std::uint32_t orientation;
    const char* expected;
  };
  const Case cases[] = {{1, "abc/def"},  {2, "cba/fed"},  {3, "fed/cba"},  {4, "def/abc"},
                        {5, "ad/be/cf"}, {6, "da/eb/fc"}, {7, "fc/eb/da"}, {8, "cf/be/ad"}};
  for (const Case& example : cases) {
    TiffBytes tiff = Letters();
    tiff.tags[orientationTag] = {example.orientation};
    EXPECT_EQ(Decode(tiff.File()).Letters(), example.expected) << example.orientation;
    TiffBytes luma{
        2, 1, 8, 3, 6, {"ab" + BytesOf({128, 128})}, {{530, {2, 1}}, {orientationTag, {example.orientation}}}};
    const bool isReversed = example.orientation == 2 || example.orientation == 3;
    const bool isReversedColumn = example.orientation >= 7;
    const char* upright = example.orientation <= 4 ? "ab" : "a/b";
    const char* reversed = example.orientation <= 4 ? "ba" : "b/a";
    EXPECT_EQ(Decode(luma.File()).Letters(), isReversed || isReversedColumn ? reversed : upright)
        << example.orientation;
  }
}

TEST(VelTiffDecoder, TheFirstPage_IsTheImage) {
  const TiffBytes second{1, 1, 8, 1, 1, {"x"}, {}};
  EXPECT_EQ(Decode(Letters().File({second, second})).Letters(), "abc/def");
}

TEST(VelTiffDecoder, AFileThatIsCut_IsNoImage) {
  ExpectNoImageOfBeginnings(VelImageKind::Tiff, Letters().File(), 1);
  TiffBytes tiled{3, 2, 8, 1, 1, {std::string(256, 'x')}, {{tileWidthTag, {16}}, {tileHeightTag, {16}}}};
  ExpectNoImageOfBeginnings(VelImageKind::Tiff, tiled.File(), 1);
}

TEST(VelTiffDecoder, AFileWithAByteWrong_IsReadOrRefused) {
  const std::string whole = Letters().File();
  int refused = 0;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    for (const int mask : {0xFF, 0x01, 0x80}) {
      std::string file = whole;
      file[i] = static_cast<char>(file[i] ^ mask);
      if (FAILED(Decode(file).result)) ++refused;
    }
  }
  EXPECT_GT(refused, 50);
}

TEST(VelTiffDecoder, AnEmbeddedProfile_LeavesTheColorSpaceUnknown) {
  EXPECT_EQ(Decode(Letters().File()).image.GetColorSpace(), ColorSpace::Srgb);
  // The tag's type is bytes of any meaning, which is the library's to check.
  TiffBytes tiff = Letters();
  tiff.tags[34675] = {0x4142};
  std::string file = tiff.File();
  const std::size_t entry = file.find(LittleEndian(34675, 2));
  file.replace(entry + 2, 6, LittleEndian(7, 2) + LittleEndian(2, 4));
  EXPECT_EQ(Decode(file).image.GetColorSpace(), ColorSpace::Unknown);
}

TiffBytes With(TiffBytes iTiff, int iTag, std::vector<std::uint32_t> iValues) {
  iTiff.tags[iTag] = std::move(iValues);
  return iTiff;
}

TEST(VelTiffDecoder, OfAnUnfitFile_TheCauseIsTold) {
  const TiffBytes huge{100000, 100000, 8, 4, 2, {"abcd"}, {}};
  const TiffBytes endless{0x7FFFFFFF, 0x7FFFFFFF, 16, 4, 2, {"abcd"}, {}};
  const TiffBytes bomb{8192, 8192, 8, 1, 1, {"abcd"}, {{compressionTag, {8}}}};
  const TiffBytes hugeTile{1, 1, 8, 1, 1, {"abcd"}, {{tileWidthTag, {1U << 30}}, {tileHeightTag, {16}}}};
  struct Case {
    const char* name;
    std::string file;
    const char* cause;
  };
  const Case cases[] = {
      {"empty", "", "is a damaged TIFF file: "},
      {"another format", std::string(64, 'x'), "is a damaged TIFF file: Not a TIFF or MDI file"},
      {"too large", huge.File(), "has 100000 x 100000 pixels; expected"},
      {"as large as can be written", endless.File(), "is a damaged TIFF file: it cannot be read"},
      {"more than can be packed", bomb.File(), "claims 67108864 bytes of pixels"},
      {"a tile larger than its image", hugeTile.File(), "claims 17179869184 bytes of pixels"},
      {"a strip behind the end", With(Letters(), 273, {4000}).File(), "is a damaged TIFF file: "},
      {"a strip of too few bytes",
       TiffBytes{3, 2, 8, 1, 1, {BytesOf({2, 'a', 'b', 'c'})}, {{compressionTag, {32773}}}}.File(),
       "is a damaged TIFF file: "},
      {"whole numbers of 32 bits", TiffBytes{1, 1, 32, 1, 1, {"abcd"}, {}}.File(),
       "is a TIFF file of a kind that is not read: samples of 32 bits and of format 1"},
      {"signed numbers", With(Letters(), formatTag, {2}).File(),
       "is a TIFF file of a kind that is not read: samples of 8 bits and of format 2"},
      {"floats of 64 bits", TiffBytes{1, 1, 64, 1, 1, {"abcdefgh"}, {{formatTag, {3}}}}.File(),
       "is a TIFF file of a kind that is not read: samples of 64 bits and of format 3"},
      {"an unknown kind of colours", With(Letters(), 262, {999}).File(),
       "is a TIFF file of a kind that is not read: colours of kind 999"},
      {"RGB in a single sample", With(Letters(), 262, {2}).File(),
       "is a TIFF file of a kind that is not read: colours of kind 2 in 1 samples"},
      {"JPEG of the old style", With(Letters(), compressionTag, {6}).File(),
       "is a TIFF file of a kind that is not read: compression 6"},
      {"an unknown compression", With(Letters(), compressionTag, {4711}).File(),
       "is a TIFF file of a kind that is not read: compression 4711"},
  };
  for (const Case& example : cases) {
    const DecodedImage decoded = Decode(example.file);
    EXPECT_EQ(decoded.cause.substr(0, std::string(example.cause).size()), example.cause) << example.name;
    EXPECT_EQ(decoded.result, E_FAIL) << example.name;
  }
}

}  // namespace
