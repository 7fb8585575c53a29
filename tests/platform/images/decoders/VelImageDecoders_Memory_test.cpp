// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageDecoders_Memory_test.cpp Short files that claim large images, and what memory they get.
#include <sys/resource.h>

#include <gtest/gtest.h>

#include "tests/platform/images/decoders/DecodedImage.h"
#include "tests/platform/images/decoders/ExrBytes.h"
#include "tests/platform/images/decoders/FileBytes.h"
#include "tests/platform/images/decoders/PngBytes.h"
#include "tests/platform/images/decoders/TiffBytes.h"

namespace {

/// The most memory that the process ever had, in kilobytes.
long PeakMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

std::string ResizedJpeg(const std::string& iName, int iFrameMarker) {
  std::string file = ReadTestFile(iName);
  return file.replace(file.find(BytesOf({0xFF, iFrameMarker})) + 5, 4, BigEndian(8192, 2) + BigEndian(8192, 2));
}

TEST(VelImageDecoders, AShortFile_GetsNoMemoryForTheImageItClaims) {
  // 512 groups of 16 rows, none of which has a byte.
  const ExrBytes rows{0, 0, 8191, 8191, {{"B"}, {"G"}, {"R"}}, std::vector<std::string>(512), 0, 3};
  const ExrBytes tile{0, 0, 8191, 8191, {{"Y"}}, {std::string(4, '\0')}, 8192, 3};
  const auto attribute = [](const std::string& iType, std::uint64_t iLength) {
    return std::string("a") + '\0' + iType + '\0' + LittleEndian(iLength, 4);
  };
  const std::string exrHead = BytesOf({0x76, 0x2F, 0x31, 0x01, 2, 0, 0, 0});
  struct Case {
    const char* name;
    VelImageKind kind;
    std::string file;
  };
  const Case cases[] = {
      {"PNG", VelImageKind::Png, PngBytes{8192, 8192, 8, 6, false, "", std::string(100, '\0')}.File()},
      {"PNG of 16 bits", VelImageKind::Png, PngBytes{8192, 8192, 16, 6, true, "", std::string(100, '\0')}.File()},
      {"JPEG", VelImageKind::Jpeg, ResizedJpeg("letters.jpg", 0xC0)},
      {"JPEG of scans", VelImageKind::Jpeg, ResizedJpeg("two_scans.jpg", 0xC2)},
      {"JPEG of inks", VelImageKind::Jpeg, ResizedJpeg("cmyk.jpg", 0xC0)},
      {"TIFF", VelImageKind::Tiff, TiffBytes{8192, 8192, 8, 4, 2, {"abcd"}, {}}.File()},
      {"TIFF of deflate", VelImageKind::Tiff, TiffBytes{8192, 8192, 8, 4, 2, {"abcd"}, {{259, {8}}}}.File()},
      {"TIFF of floats", VelImageKind::Tiff,
       TiffBytes{8192, 8192, 32, 1, 1, {"abcd"}, {{259, {5}}, {339, {3}}}}.File()},
      {"TIFF of a tile", VelImageKind::Tiff,
       TiffBytes{1, 1, 8, 1, 1, {"abcd"}, {{259, {8}}, {322, {16384}}, {323, {16384}}}}.File()},
      {"OpenEXR of rows", VelImageKind::Exr, rows.File()},
      {"OpenEXR of a tile", VelImageKind::Exr, tile.File()},
      {"OpenEXR of a long text", VelImageKind::Exr, exrHead + attribute("string", 0x7FFFFFFF)},
      {"OpenEXR of a long text in a float", VelImageKind::Exr,
       exrHead + attribute("float", 80) + "abcd" + attribute("string", 0x7FFFFFFF) + std::string(80, 'x')},
      {"OpenEXR of a long text in channels", VelImageKind::Exr,
       exrHead + attribute("chlist", 80) + '\0' + attribute("string", 0x7FFFFFFF) + std::string(80, 'x')},
      {"OpenEXR of a long text among others", VelImageKind::Exr,
       exrHead + attribute("stringvector", 80) + LittleEndian(0x7FFFFFFF, 4) + std::string(80, 'x')},
  };
  constexpr long allowedKilobytes = 64L * 1024;
  for (const Case& example : cases) {
    const long before = PeakMemory();
    EXPECT_EQ(DecodedImage::Of(example.kind, example.file).result, E_FAIL) << example.name;
    EXPECT_LE(PeakMemory() - before, allowedKilobytes) << example.name;
  }
}

}  // namespace
