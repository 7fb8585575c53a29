// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemWrite_test.cpp Files that are replaced as a whole, folders that are made and removed.
#include "platform/base/system/VelSystemWrite.h"

#include <sys/stat.h>

#include <filesystem>

#include <gtest/gtest.h>

#include "platform/base/system/VelSystemFile.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

class VelSystemWriteTest : public ::testing::Test {
 protected:
  static std::string ContentOf(const std::string& iPath) {
    std::string bytes("unreadable");
    std::string cause;
    static_cast<void>(VelSystemFile::ReadWholeFile(iPath, 1 << 20U, bytes, cause));
    return bytes;
  }

  static unsigned ModeOf(const std::string& iPath) {
    struct stat status {};
    EXPECT_EQ(::stat(iPath.c_str(), &status), 0) << iPath;
    return status.st_mode & 0777U;
  }

  std::size_t CountEntries() const {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder_.Path(""))) ++count;
    return count;
  }

  VelTemporaryFolder folder_;
  std::string cause_;
};

TEST_F(VelSystemWriteTest, ReplaceFile_WritesANewOneForItsOwnerAlone) {
  const std::string path = folder_.Path("new");
  EXPECT_EQ(VelSystemWrite::ReplaceFile(path, std::string_view("a\0b", 3), cause_), S_OK);
  EXPECT_EQ(ContentOf(path), std::string("a\0b", 3));
  EXPECT_EQ(ModeOf(path), 0600U);
  EXPECT_EQ(CountEntries(), 1U) << "nothing is left beside it";
}

TEST_F(VelSystemWriteTest, PublishFile_WritesForWhomTheMaskLetsIn) {
  const mode_t before = ::umask(0027);
  const std::string path = folder_.Write("old", "a long content");
  EXPECT_EQ(VelSystemWrite::PublishFile(path, "new", cause_), S_OK);
  EXPECT_EQ(ContentOf(path), "new");
  EXPECT_EQ(ModeOf(path), 0640U);
  EXPECT_EQ(::umask(before), 0027U) << "the mask stays as it was";
  EXPECT_EQ(VelSystemWrite::PublishFile(folder_.Path("nowhere/file"), "x", cause_), E_FAIL);
  EXPECT_EQ(CountEntries(), 1U) << "nothing is left beside it";
}

TEST_F(VelSystemWriteTest, ReplaceFile_ReplacesWhatWasThere) {
  const std::string path = folder_.Write("old", "a long content");
  EXPECT_EQ(VelSystemWrite::ReplaceFile(path, "", cause_), S_OK);
  EXPECT_EQ(ContentOf(path), "");
}

TEST_F(VelSystemWriteTest, ReplaceFile_WhereNothingCanBeWritten_LeavesWhatWasThere) {
  EXPECT_EQ(VelSystemWrite::ReplaceFile(folder_.Path("nowhere/file"), "x", cause_), E_FAIL);
  EXPECT_FALSE(cause_.empty());
  EXPECT_EQ(VelSystemWrite::MakeFolder(folder_.Path("folder"), cause_), S_OK);
  folder_.Write("folder/kept", "kept");
  EXPECT_EQ(VelSystemWrite::ReplaceFile(folder_.Path("folder"), "x", cause_), E_FAIL) << "a folder is no file";
  EXPECT_EQ(ContentOf(folder_.Path("folder/kept")), "kept");
  EXPECT_EQ(CountEntries(), 1U) << "nothing is left beside it";
}

TEST_F(VelSystemWriteTest, MakeFolder_IsForItsOwnerAlone) {
  const std::string path = folder_.Path("made");
  EXPECT_EQ(VelSystemWrite::MakeFolder(path, cause_), S_OK);
  EXPECT_EQ(ModeOf(path), 0700U);
  EXPECT_EQ(VelSystemWrite::MakeFolder(path, cause_), S_FALSE);
  EXPECT_EQ(VelSystemWrite::MakeFolder(folder_.Write("file", "x"), cause_), E_FAIL);
  EXPECT_EQ(cause_, "a part of the path is not a folder");
  EXPECT_EQ(VelSystemWrite::MakeFolder(folder_.Path("a/b"), cause_), E_FAIL);
}

TEST_F(VelSystemWriteTest, MakeUniqueFolder_NeverGivesTheSame) {
  std::string one;
  std::string two;
  EXPECT_EQ(VelSystemWrite::MakeUniqueFolder(folder_.Path("unique-"), one, cause_), S_OK);
  EXPECT_EQ(VelSystemWrite::MakeUniqueFolder(folder_.Path("unique-"), two, cause_), S_OK);
  EXPECT_NE(one, two);
  EXPECT_EQ(ModeOf(one), 0700U);
  EXPECT_EQ(VelSystemWrite::MakeUniqueFolder(folder_.Path("nowhere/unique-"), one, cause_), E_FAIL);
}

TEST_F(VelSystemWriteTest, RemoveTree_TakesFoldersWithAllThatIsInThem_AndFollowsNoLink) {
  EXPECT_EQ(VelSystemWrite::MakeFolder(folder_.Path("outside"), cause_), S_OK);
  const std::string kept = folder_.Write("outside/kept", "kept");
  EXPECT_EQ(VelSystemWrite::MakeFolder(folder_.Path("tree"), cause_), S_OK);
  EXPECT_EQ(VelSystemWrite::MakeFolder(folder_.Path("tree/below"), cause_), S_OK);
  folder_.Write("tree/below/file", "x");
  std::filesystem::create_directory_symlink(folder_.Path("outside"), folder_.Path("tree/link"));
  EXPECT_EQ(VelSystemWrite::RemoveTree(folder_.Path("tree"), cause_), S_OK);
  EXPECT_FALSE(VelSystemFile::Exists(folder_.Path("tree")));
  EXPECT_EQ(ContentOf(kept), "kept");
  EXPECT_EQ(VelSystemWrite::RemoveTree(folder_.Path("tree"), cause_), S_FALSE);
}

TEST_F(VelSystemWriteTest, PathWithANul_IsRefused) {
  const std::string path = folder_.Path(std::string("a\0b", 3));
  std::string made;
  EXPECT_EQ(VelSystemWrite::ReplaceFile(path, "x", cause_), E_INVALIDARG);
  EXPECT_EQ(VelSystemWrite::MakeFolder(path, cause_), E_INVALIDARG);
  EXPECT_EQ(VelSystemWrite::MakeUniqueFolder(path, made, cause_), E_INVALIDARG);
  EXPECT_EQ(VelSystemWrite::RemoveTree(path, cause_), E_INVALIDARG);
  EXPECT_EQ(CountEntries(), 0U);
}

}  // namespace
