// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConvertedFiles_test.cpp Which converted files are found, kept and swept.
#include "platform/images/services/VelConvertedFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>

#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/images/VelPixelImage.h"
#include "platform/images/encoders/VelExrEncoder.h"
#include "platform/images/pixels/VelPixelBuffer.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

/// What ends as a PNG file does, which is what is looked at.
std::string Png(std::size_t iBytes) {
  std::string bytes(iBytes - 12, 'p');
  return bytes + std::string("\0\0\0\0IEND\xAE\x42\x60\x82", 12);
}

std::string Exr() {
  VelPixelBuffer pixels;
  std::string bytes;
  std::string cause;
  EXPECT_EQ(pixels.Allocate(2, 2, VelPixelImage::Format::Rgba32F, cause), S_OK);
  VelPixelImage* image = pixels.TakeImage();
  EXPECT_EQ(VelExrEncoder::Encode(*image, bytes, cause), S_OK) << cause;
  image->Release();
  return bytes;
}

/// A key of forty digits.
std::string Key(int iNumber) {
  const std::string number = std::to_string(iNumber);
  return std::string(40 - number.size(), '0') + number;
}

class VelConvertedFilesTest : public ::testing::Test {
 protected:
  void SetUp() override { VelRbaConfiguration::Clear(); }
  void TearDown() override { VelRbaConfiguration::Clear(); }

  std::string Keep(VelConvertedFiles& ioFiles, int iKey, const std::string& iBytes, const char* iFormat = "png") {
    std::string path;
    std::string cause;
    EXPECT_EQ(ioFiles.Keep(Key(iKey), iFormat, iBytes, path, cause), S_OK) << cause;
    return path;
  }

  static HRESULT Find(VelConvertedFiles& ioFiles, int iKey, const char* iFormat = "png") {
    std::string path = "untouched";
    const HRESULT code = ioFiles.Find(Key(iKey), iFormat, path);
    EXPECT_EQ(code == S_OK, path != "untouched");
    return code;
  }

  static void SetAge(const std::string& iPath, std::chrono::minutes iAge) {
    fs::last_write_time(iPath, fs::file_time_type::clock::now() - iAge);
  }

  VelTemporaryFolder folder_;
};

TEST_F(VelConvertedFilesTest, AFileThatWasKept_IsFoundByAnyProcess) {
  VelConvertedFiles files(folder_.Path("a/b/v1"));
  EXPECT_EQ(Find(files, 1), S_FALSE);
  const std::string path = Keep(files, 1, Png(100));
  EXPECT_EQ(path, folder_.Path("a/b/v1/00/" + Key(1).substr(2) + ".png"));
  EXPECT_EQ(folder_.Read("a/b/v1/00/" + Key(1).substr(2) + ".png"), Png(100));
  EXPECT_EQ(Find(files, 1), S_OK);
  EXPECT_EQ(Find(files, 1, "exr"), S_FALSE);
  EXPECT_EQ(Find(files, 2), S_FALSE);
  VelConvertedFiles others(folder_.Path("a/b/v1"));
  EXPECT_EQ(Find(others, 1), S_OK);
}

TEST_F(VelConvertedFilesTest, FilesAndFolders_AreForTheirOwnerAlone) {
  VelConvertedFiles files(folder_.Path("v1"));
  const std::string path = Keep(files, 1, Png(100));
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
  ASSERT_EQ(::stat(folder_.Path("v1").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(VelConvertedFilesTest, AFileThatIsNotWhole_IsRemovedInsteadOfFound) {
  VelConvertedFiles files(folder_.Path("v1"));
  const std::string exr = Exr();
  struct Case {
    const char* name;
    const char* format;
    std::string bytes;
    HRESULT expected;
  };
  const Case cases[] = {
      {"whole PNG", "png", Png(100), S_OK}, {"cut PNG", "png", Png(100).substr(0, 99), S_FALSE},
      {"short", "png", "x", S_FALSE},       {"empty", "png", "", S_FALSE},
      {"whole EXR", "exr", exr, S_OK},      {"cut EXR", "exr", exr.substr(0, exr.size() - 1), S_FALSE}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    const std::string path = Keep(files, 1, test.bytes, test.format);
    EXPECT_EQ(Find(files, 1, test.format), test.expected);
    EXPECT_EQ(fs::exists(path), test.expected == S_OK);
  }
}

TEST_F(VelConvertedFilesTest, AFileThatIsCutAfterItWasFound_IsNotFoundAgain) {
  VelConvertedFiles files(folder_.Path("v1"));
  const std::string exr = Keep(files, 1, Exr(), "exr");
  EXPECT_EQ(Find(files, 1, "exr"), S_OK);
  fs::resize_file(exr, fs::file_size(exr) / 2);
  EXPECT_EQ(Find(files, 1, "exr"), S_FALSE);
}

TEST_F(VelConvertedFilesTest, Sweep_RemovesTheOldestDownToFourFifthsOfTheCap) {
  VelConvertedFiles files(folder_.Path("v1"), 1000);
  for (int i = 0; i < 10; ++i) SetAge(Keep(files, i, Png(100)), std::chrono::minutes(200 - i));
  files.Sweep();
  EXPECT_EQ(Find(files, 0), S_OK) << "what fits is not swept";
  SetAge(Keep(files, 0, Png(100)), std::chrono::minutes(200));
  SetAge(Keep(files, 10, Png(100)), std::chrono::minutes(100));
  files.Sweep();
  for (int i = 0; i <= 10; ++i) EXPECT_EQ(Find(files, i), i < 3 ? S_FALSE : S_OK) << i;
}

TEST_F(VelConvertedFilesTest, Sweep_LeavesWhatWasUsedLately) {
  VelConvertedFiles files(folder_.Path("v1"), 100);
  SetAge(Keep(files, 1, Png(100)), std::chrono::minutes(50));
  SetAge(Keep(files, 2, Png(100)), std::chrono::minutes(70));
  SetAge(Keep(files, 3, Png(100)), std::chrono::minutes(80));
  EXPECT_EQ(Find(files, 3), S_OK) << "finding a file is a use of it";
  files.Sweep();
  EXPECT_EQ(Find(files, 1), S_OK);
  EXPECT_EQ(Find(files, 2), S_FALSE);
  EXPECT_EQ(Find(files, 3), S_OK);
}

TEST_F(VelConvertedFilesTest, Sweep_RemovesWhatAProcessThatDiedLeftBehind) {
  VelConvertedFiles files(folder_.Path("v1"));
  Keep(files, 1, Png(100));
  const std::string old = folder_.Write("v1/00/x.png.new-abcdef", "half");
  const std::string young = folder_.Write("v1/00/y.png.new-abcdef", "half");
  SetAge(old, std::chrono::minutes(61));
  files.Sweep();
  EXPECT_FALSE(fs::exists(old));
  EXPECT_TRUE(fs::exists(young));
}

TEST_F(VelConvertedFilesTest, Keep_SweepsByItselfNowAndThen) {
  VelConvertedFiles first(folder_.Path("v1"), 1000);
  for (int i = 0; i < 30; ++i) SetAge(Keep(first, i, Png(100)), std::chrono::minutes(200 - i));
  std::uintmax_t held = 0;
  for (const auto& file : fs::recursive_directory_iterator(folder_.Path("v1")))
    held += file.is_regular_file() ? 100 : 0;
  EXPECT_LE(held, 1100U);
}

TEST_F(VelConvertedFilesTest, Keep_WhereNothingCanBeWritten_SaysWhere) {
  folder_.Write("file", "");
  VelConvertedFiles files(folder_.Path("file/v1"));
  std::string path = "untouched";
  std::string cause;
  EXPECT_EQ(files.Keep(Key(1), "png", Png(100), path, cause), E_FAIL);
  EXPECT_EQ(path, "untouched");
  EXPECT_NE(cause.find("cannot be converted to '" + folder_.Path("file/v1")), std::string::npos) << cause;
}

TEST_F(VelConvertedFilesTest, OfUser_FollowsTheRulesOfTheCacheFolder) {
  struct Case {
    const char* name;
    const char* xdg;
    const char* home;
    const char* expected;
  };
  const Case cases[] = {{"XDG", "/x", "/home/u", "/x/velrsh/images/v1"},
                        {"relative XDG", "x", "/home/u", "/home/u/.cache/velrsh/images/v1"},
                        {"empty XDG", "", "/home/u", "/home/u/.cache/velrsh/images/v1"},
                        {"home alone", nullptr, "/home/u", "/home/u/.cache/velrsh/images/v1"},
                        {"relative home", nullptr, "u", nullptr},
                        {"neither", nullptr, nullptr, nullptr}};
  const char* home = std::getenv("HOME");
  const std::string homeBefore = home != nullptr ? home : "";
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    test.xdg != nullptr ? ::setenv("XDG_CACHE_HOME", test.xdg, 1) : ::unsetenv("XDG_CACHE_HOME");
    test.home != nullptr ? ::setenv("HOME", test.home, 1) : ::unsetenv("HOME");
    const VelConvertedFiles* files = VelConvertedFiles::OfUser();
    ASSERT_EQ(files != nullptr, test.expected != nullptr);
    EXPECT_EQ(files != nullptr ? files->GetFolder() : "", test.expected != nullptr ? test.expected : "");
  }
  ::setenv("HOME", homeBefore.c_str(), 1);
  ::unsetenv("XDG_CACHE_HOME");
}

TEST_F(VelConvertedFilesTest, TheCapOfTheUser_IsConfigured) {
  ASSERT_EQ(VelRbaConfiguration::SetValue("Images", "ConvertedFilesMegabytes", "0"), S_OK);
  VelConvertedFiles files(folder_.Path("v1"));
  SetAge(Keep(files, 1, Png(100)), std::chrono::minutes(100));
  files.Sweep();
  EXPECT_EQ(Find(files, 1), S_FALSE);
  ASSERT_EQ(VelRbaConfiguration::SetValue("Images", "ConvertedFilesMegabytes", "many"), S_OK);
  SetAge(Keep(files, 1, Png(100)), std::chrono::minutes(100));
  files.Sweep();
  EXPECT_EQ(Find(files, 1), S_OK);
}

}  // namespace
