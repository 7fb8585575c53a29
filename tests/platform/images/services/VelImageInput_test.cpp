// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageInput_test.cpp Which files are opened as images, and what tells what is made of them apart.
#include "platform/images/services/VelImageInput.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

constexpr const char* svg = "<svg xmlns='http://www.w3.org/2000/svg' width='1' height='1'/>";
constexpr const char* gif = "GIF89a\1";

class VelImageInputTest : public ::testing::Test {
 protected:
  std::string KeyOf(const std::string& iPath, const VelDrawingOptions& iOptions = {}) {
    VelImageInput input;
    EXPECT_EQ(input.Open(iPath, cause_), S_OK) << cause_;
    return input.KeyOf("pixels", iOptions);
  }

  /// Gives a file times that lie long back, as files have that nobody is writing; its other times stay the present.
  static void MakeOld(const std::string& iPath, std::int64_t iSeconds) {
    const struct timespec times[2] = {{iSeconds, 0}, {iSeconds, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, iPath.c_str(), times, 0), 0);
  }

  VelTemporaryFolder folder_;
  std::string cause_;
};

TEST_F(VelImageInputTest, Open_TellsFormatAndExtension) {
  VelImageInput input;
  ASSERT_EQ(input.Open(folder_.Write("a.PnG", svg), cause_), S_OK);
  EXPECT_EQ(input.GetKind(), VelImageKind::Svg);
  EXPECT_EQ(input.GetExtension(), "png");
  ASSERT_EQ(input.Open(folder_.Write("plain", gif), cause_), S_OK);
  EXPECT_EQ(input.GetKind(), VelImageKind::Gif);
  EXPECT_EQ(input.GetExtension(), "");
}

TEST_F(VelImageInputTest, Open_OfWhatIsNoImage_SaysWhy) {
  ASSERT_EQ(::mkfifo(folder_.Path("fifo.png").c_str(), 0600), 0);
  const std::string big = folder_.Write("big.svg", svg);
  std::filesystem::resize_file(big, VelImageInput::mostSvgBytes + 1);
  struct Case {
    std::string path;
    const char* cause;
  };
  const Case cases[] = {
      {folder_.Path("gone.png"), "no such file"},
      {folder_.Path(), "is a folder"},
      {folder_.Path("fifo.png"), "is not a regular file"},
      {std::string("a\0.png", 6), "the path holds a NUL byte"},
      {folder_.Write("empty.png", ""), "is empty"},
      {folder_.Write("text.png", "text"),
       "is of no accepted format; expected SVG, PNG, JPEG, TIFF, EXR, BMP, GIF, TGA, PNM, ICO, HDR or WebP"},
      {big, "has 33554433 bytes; an SVG file may have 33554432"}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.path);
    VelImageInput input;
    cause_.clear();
    EXPECT_EQ(input.Open(test.path, cause_), E_FAIL);
    EXPECT_NE(cause_.find(test.cause), std::string::npos) << cause_;
  }
}

TEST_F(VelImageInputTest, KeyOf_TellsDrawingsApartByResolutionAndGroupsForSvgAlone) {
  const std::string drawn = folder_.Write("a.svg", svg);
  const std::string decoded = folder_.Write("a.gif", gif);
  for (const VelDrawingOptions& other :
       {VelDrawingOptions{{}, 72}, VelDrawingOptions{{"a"}, 96}, VelDrawingOptions{{""}, 96}}) {
    EXPECT_NE(KeyOf(drawn), KeyOf(drawn, other));
    EXPECT_EQ(KeyOf(decoded), KeyOf(decoded, other));
  }
  EXPECT_NE(KeyOf(drawn, {{"a", "b"}, 96}), KeyOf(drawn, {{"ab"}, 96}));
  EXPECT_NE(KeyOf(drawn), KeyOf(decoded));
  VelImageInput input;
  ASSERT_EQ(input.Open(drawn, cause_), S_OK);
  EXPECT_NE(input.KeyOf("pixels", {}), input.KeyOf("converted", {}));
}

TEST_F(VelImageInputTest, KeyOf_AFileJustWritten_CountsItsContent) {
  const std::string path = folder_.Write("a.svg", svg);
  const std::string before = KeyOf(path);
  EXPECT_EQ(KeyOf(path), before);
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  std::string other = svg;
  other[other.find("width='1'") + 7] = '2';
  folder_.Write("a.svg", other);
  // The same size and, on a slow clock, the same times.
  const struct timespec times[2] = {status.st_atim, status.st_mtim};
  ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
  EXPECT_NE(KeyOf(path), before);
}

TEST_F(VelImageInputTest, KeyOf_AFileThatWasYoung_StaysWhenItAges) {
  const std::string path = folder_.Write("a.svg", svg);
  const std::string other = folder_.Write("b.svg", svg);
  const std::string young = KeyOf(path);
  std::this_thread::sleep_for(std::chrono::milliseconds(2100));
  EXPECT_EQ(KeyOf(path), young) << "what was made of it is still found";
  EXPECT_EQ(KeyOf(path), young);
  const std::string aged = KeyOf(other);
  EXPECT_EQ(KeyOf(other), aged) << "one that was never asked for while it was young is told by its times";
}

TEST_F(VelImageInputTest, KeyOf_ALargeFileJustWritten_IsNeverTheSame) {
  const std::string path = folder_.Write("a.gif", gif);
  std::filesystem::resize_file(path, (std::uintmax_t{64} << 20U) + 1);
  EXPECT_NE(KeyOf(path), KeyOf(path));
}

TEST_F(VelImageInputTest, KeyOf_TellsVersionsApartByTheirTimes) {
  const std::string path = folder_.Write("a.gif", gif);
  MakeOld(path, 1'000'000'000);
  const std::string before = KeyOf(path);
  MakeOld(path, 1'000'000'001);
  EXPECT_NE(KeyOf(path), before);
}

}  // namespace
