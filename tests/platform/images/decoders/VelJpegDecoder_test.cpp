// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelJpegDecoder_test.cpp JPEG files of every kind, whole, damaged and hostile.
#include "platform/images/decoders/VelJpegDecoder.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include <gtest/gtest.h>

#include "tests/platform/images/decoders/DecodedImage.h"
#include "tests/platform/images/decoders/ExifBytes.h"
#include "tests/platform/images/decoders/FileBytes.h"

namespace {

using ColorSpace = VelPixelImage::ColorSpace;

DecodedImage Decode(const std::string& iFile) { return DecodedImage::Of(VelImageKind::Jpeg, iFile); }

/// A file with a segment behind its first marker.
std::string WithSegment(const std::string& iFile, int iMarker, const std::string& iData) {
  std::string file = iFile;
  return file.insert(2, BytesOf({0xFF, iMarker}) + BigEndian(iData.size() + 2, 2) + iData);
}

std::string WithOrientation(int iOrientation, bool iIsBigEndian) {
  const std::string exif = std::string("Exif\0\0", 6) + ExifBytes(iOrientation, iIsBigEndian);
  return WithSegment(ReadTestFile("letters.jpg"), 0xE1, exif);
}

/// letters.jpg has six patches of 8 x 8 grey pixels, in two rows of three.
std::string PatchLetters(const DecodedImage& iDecoded) {
  std::string letters;
  for (int y = 4; y < iDecoded.image.GetHeight(); y += 8) {
    for (int x = 4; x < iDecoded.image.GetWidth(); x += 8) {
      letters += static_cast<char>(iDecoded.image.Row(y)[static_cast<std::size_t>(x) * 4]);
    }
    letters += '/';
  }
  return letters;
}

using Rgba = std::array<int, 4>;

/// The file has patches of 16 x 16 pixels. Their middles are compared, which no smoothing of neighbours reaches.
void ExpectPatches(const std::string& iName, int iColumns, const std::vector<Rgba>& iExpected, int iTolerance) {
  const DecodedImage decoded = Decode(ReadTestFile(iName));
  const int rows = static_cast<int>(iExpected.size()) / iColumns;
  ASSERT_EQ(decoded.Size(), std::to_string(iColumns * 16) + "x" + std::to_string(rows * 16)) << iName;
  const std::vector<int> bytes = decoded.Bytes();
  for (int i = 0; i < iColumns * rows; ++i) {
    const int pixel = (i / iColumns * 16 + 8) * iColumns * 16 + i % iColumns * 16 + 8;
    const auto* found = &bytes[static_cast<std::size_t>(pixel) * 4];
    const Rgba& expected = iExpected[static_cast<std::size_t>(i)];
    for (std::size_t k = 0; k < 3; ++k) EXPECT_NEAR(found[k], expected[k], iTolerance) << iName << ": " << i;
    EXPECT_EQ(found[3], 255) << iName;
  }
}

TEST(VelJpegDecoder, ColorFiles_HaveTheColorsTheyWereMadeOf) {
  const std::vector<Rgba> colors{{220, 30, 40},   {20, 200, 60}, {30, 40, 210},
                                 {255, 255, 255}, {0, 0, 0},     {128, 100, 70}};
  for (const char* name :
       {"baseline.jpg", "progressive.jpg", "component_scans.jpg", "adobe_rgb.jpg", "arithmetic.jpg"}) {
    ExpectPatches(name, 3, colors, 3);
  }
}

TEST(VelJpegDecoder, FilesOfPrint_BecomeTheLightThatTheirInksLeave) {
  const std::vector<Rgba> colors{{0, 255, 255}, {204, 102, 0}, {122, 117, 112}};
  for (const char* name : {"cmyk.jpg", "cmyk_adobe.jpg", "ycck_adobe.jpg"}) ExpectPatches(name, 3, colors, 3);
}

TEST(VelJpegDecoder, AGreyFile_IsGreyInAllColors) {
  const DecodedImage decoded = Decode(ReadTestFile("letters.jpg"));
  ASSERT_EQ(decoded.Size(), "24x16");
  EXPECT_EQ(PatchLetters(decoded), "abc/def/");
  const std::vector<int> bytes = decoded.Bytes();
  for (std::size_t i = 0; i < bytes.size(); i += 4) {
    EXPECT_TRUE(bytes[i] == bytes[i + 1] && bytes[i] == bytes[i + 2] && bytes[i + 3] == 255) << i;
  }
}

TEST(VelJpegDecoder, AnImage_IsTurnedUprightByItsExifData) {
  struct Case {
    int orientation;
    const char* expected;
  };
  const Case cases[] = {{1, "abc/def/"},  {2, "cba/fed/"},  {3, "fed/cba/"},  {4, "def/abc/"},
                        {5, "ad/be/cf/"}, {6, "da/eb/fc/"}, {7, "fc/eb/da/"}, {8, "cf/be/ad/"}};
  for (const Case& example : cases) {
    for (const bool isBigEndian : {false, true}) {
      const DecodedImage decoded = Decode(WithOrientation(example.orientation, isBigEndian));
      EXPECT_EQ(PatchLetters(decoded), example.expected) << example.orientation;
    }
  }
}

TEST(VelJpegDecoder, OnlyTheFirstExifData_Counts) {
  const std::string exif = std::string("Exif\0\0", 6) + ExifBytes(2, true);
  const std::string notes = WithSegment(WithOrientation(6, true), 0xE1, exif);
  EXPECT_EQ(PatchLetters(Decode(notes)), "cba/fed/");
  const std::string other = WithSegment(WithOrientation(6, true), 0xE1, "http://ns.adobe.com/xap/1.0/");
  EXPECT_EQ(PatchLetters(Decode(other)), "da/eb/fc/");
}

TEST(VelJpegDecoder, TheColorSpace_IsThatOfDisplaysUnlessAProfileIsEmbedded) {
  const std::string plain = ReadTestFile("baseline.jpg");
  const std::string profile = std::string("ICC_PROFILE\0\1\1", 14) + "whatever";
  EXPECT_EQ(Decode(plain).image.GetColorSpace(), ColorSpace::Srgb);
  EXPECT_EQ(Decode(WithSegment(plain, 0xE2, profile)).image.GetColorSpace(), ColorSpace::Unknown);
  EXPECT_EQ(Decode(WithSegment(plain, 0xE2, "MPF")).image.GetColorSpace(), ColorSpace::Srgb);
}

TEST(VelJpegDecoder, AFileThatIsCut_IsNoImage) {
  for (const char* name : {"baseline.jpg", "progressive.jpg", "component_scans.jpg", "cmyk.jpg", "ycck_adobe.jpg",
                           "letters.jpg", "two_scans.jpg", "arithmetic.jpg"}) {
    SCOPED_TRACE(name);
    ExpectNoImageOfBeginnings(VelImageKind::Jpeg, ReadTestFile(name), 1);
  }
}

TEST(VelJpegDecoder, AFileWithAByteWrong_IsReadOrRefused) {
  for (const char* name : {"baseline.jpg", "progressive.jpg", "component_scans.jpg"}) {
    const std::string whole = ReadTestFile(name);
    int refused = 0;
    for (std::size_t i = 0; i < whole.size(); ++i) {
      std::string file = whole;
      file[i] = static_cast<char>(~file[i]);
      if (FAILED(Decode(file).result)) ++refused;
    }
    EXPECT_GT(refused, 100) << name;
  }
}

/// @return the file with a new size in its frame header
std::string Resized(const std::string& iName, int iFrameMarker, std::uint64_t iWidth, std::uint64_t iHeight) {
  std::string file = ReadTestFile(iName);
  const std::size_t frame = file.find(BytesOf({0xFF, iFrameMarker}));
  EXPECT_NE(frame, std::string::npos);
  return file.replace(frame + 5, 4, BigEndian(iHeight, 2) + BigEndian(iWidth, 2));
}

/// @return the file with its last scan once more, so often
std::string WithScansRepeated(const std::string& iFile, int iCount) {
  const std::size_t scan = iFile.rfind(BytesOf({0xFF, 0xDA}));
  const std::size_t end = iFile.size() - 2;
  std::string file = iFile.substr(0, end);
  for (int i = 0; i < iCount; ++i) file += iFile.substr(scan, end - scan);
  return file + iFile.substr(end);
}

TEST(VelJpegDecoder, OfAnUnfitFile_TheCauseIsTold) {
  const std::string twoScans = ReadTestFile("two_scans.jpg");
  struct Case {
    const char* name;
    std::string file;
    const char* cause;
  };
  const Case cases[] = {
      {"empty", "", "is a damaged JPEG file: Premature end of input file"},
      {"another format", "PNG and so on", "is a damaged JPEG file: Not a JPEG file: starts with 0x50 0x4e"},
      {"nothing but the end", BytesOf({0xFF, 0xD8, 0xFF, 0xD9}),
       "is a damaged JPEG file: JPEG datastream contains no image"},
      {"12 bits",
       Resized("letters.jpg", 0xC0, 24, 16).replace(ReadTestFile("letters.jpg").find("\xFF\xC0") + 4, 1, "\x0C"),
       "is a damaged JPEG file: Unsupported JPEG data precision 12"},
      {"too large", Resized("baseline.jpg", 0xC0, 65500, 65500),
       "claims 6436161024 bytes of pixels, more than its 677 bytes can hold"},
      {"too wide", Resized("letters.jpg", 0xC0, 16385, 8),
       "has 16385 x 8 pixels; expected 1 to 16384 a side and at most 67108864 in all"},
      {"larger than written", Resized("letters.jpg", 0xC0, 24, 32),
       "is a damaged JPEG file: Corrupt JPEG data: premature end of data segment"},
      {"65 scans", WithScansRepeated(twoScans, 63), "is a damaged JPEG file: it has more than 64 scans"},
      {"3,000 scans without the data of so large an image",
       WithScansRepeated(Resized("two_scans.jpg", 0xC2, 2000, 2000), 3000),
       "is a damaged JPEG file: Corrupt JPEG data: premature end of data segment"},
  };
  for (const Case& example : cases) EXPECT_EQ(Decode(example.file).cause, example.cause) << example.name;
  EXPECT_EQ(PatchLetters(Decode(WithScansRepeated(twoScans, 62))), "abc/def/");
}

TEST(VelJpegDecoder, NoAmountOfSegments_KeepsAnImageFromBeingRead) {
  std::string comments;
  for (int i = 0; i < 20000; ++i) comments += BytesOf({0xFF, 0xFE, 0, 3, 'c'});
  std::string file = WithOrientation(3, true);
  EXPECT_EQ(PatchLetters(Decode(file.insert(2, comments))), "abc/def/") << "the orientation stands too far behind";
  file = WithOrientation(3, true);
  EXPECT_EQ(PatchLetters(Decode(file.insert(2, comments.substr(0, 5000)))), "fed/cba/");
}

}  // namespace
