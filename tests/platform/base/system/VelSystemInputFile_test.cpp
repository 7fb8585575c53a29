// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemInputFile_test.cpp Opening a file, what is told of it, and reading it in pieces.
#include "platform/base/system/VelSystemInputFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <filesystem>
#include <string_view>

#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

class VelSystemInputFileTest : public ::testing::Test {
 protected:
  std::string Read(std::uint64_t iOffset, std::size_t iCount) const {
    std::string bytes(iCount, '?');
    bytes.resize(file_.ReadAt(iOffset, std::as_writable_bytes(std::span(bytes))));
    return bytes;
  }

  VelTemporaryFolder folder_;
  VelSystemInputFile file_;
  std::string cause_;
};

TEST_F(VelSystemInputFileTest, ReadAt_AnswersTheBytesOfAPlaceUpToTheEnd) {
  ASSERT_EQ(file_.Open(folder_.Write("file", "0123456789"), cause_), S_OK);
  struct Case {
    const char* name;
    std::uint64_t offset;
    std::size_t count;
    const char* expected;
  };
  const Case cases[] = {{"from the beginning", 0, 4, "0123"},
                        {"from inside", 7, 2, "78"},
                        {"over the end", 8, 9, "89"},
                        {"at the end", 10, 1, ""},
                        {"far behind the end", 1ULL << 40U, 1, ""},
                        {"nothing", 3, 0, ""}};
  for (const Case& test : cases) EXPECT_EQ(Read(test.offset, test.count), test.expected) << test.name;
}

TEST_F(VelSystemInputFileTest, Open_OfWhatIsNoRegularFile_SaysWhy) {
  ASSERT_EQ(::mkfifo(folder_.Path("fifo").c_str(), 0600), 0);
  struct Case {
    std::string path;
    HRESULT code;
    const char* cause;
  };
  const Case cases[] = {{folder_.Path("gone"), E_FAIL, "no such file"},
                        {folder_.Path(), E_FAIL, "is a folder"},
                        {folder_.Path("fifo"), E_FAIL, "is not a regular file"},
                        {"/dev/zero", E_FAIL, "is not a regular file"}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.path);
    ASSERT_EQ(file_.Open(folder_.Write("good", "1"), cause_), S_OK);
    EXPECT_EQ(file_.Open(test.path, cause_), test.code);
    EXPECT_EQ(cause_, test.cause);
    cause_.clear();
  }
  EXPECT_EQ(file_.Open(std::string("a\0b", 3), cause_), E_INVALIDARG);
}

TEST_F(VelSystemInputFileTest, Open_ThatFails_LeavesNothingOpen) {
  ASSERT_EQ(file_.Open(folder_.Write("good", "1"), cause_), S_OK);
  ASSERT_EQ(file_.Open(folder_.Path(), cause_), E_FAIL);
  EXPECT_FALSE(file_.IsOpen());
  EXPECT_EQ(file_.GetStatus(), VelSystemFileStatus());
  EXPECT_EQ(Read(0, 1), "");
}

TEST_F(VelSystemInputFileTest, Status_TellsVersionsOfAFileApart) {
  const std::string path = folder_.Write("file", "one");
  ASSERT_EQ(file_.Open(path, cause_), S_OK);
  const VelSystemFileStatus first = file_.GetStatus();
  EXPECT_EQ(first.size, 3U);
  ASSERT_EQ(file_.Open(path, cause_), S_OK);
  EXPECT_EQ(file_.GetStatus(), first);

  struct timespec times[2] = {{1'000'000'000, 5}, {1'000'000'000, 7}};
  ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
  ASSERT_EQ(file_.Open(path, cause_), S_OK);
  EXPECT_EQ(file_.GetStatus().modifiedAt, 1'000'000'000'000'000'007);
  EXPECT_NE(file_.GetStatus(), first);

  ASSERT_EQ(file_.Open(folder_.Write("other", "one"), cause_), S_OK);
  EXPECT_NE(file_.GetStatus().number, first.number);
  EXPECT_EQ(file_.GetStatus().device, first.device);
}

TEST_F(VelSystemInputFileTest, Status_OfAnOpenFile_StaysWhenThePathIsGone) {
  const std::string path = folder_.Write("file", "one");
  ASSERT_EQ(file_.Open(path, cause_), S_OK);
  std::filesystem::remove(path);
  EXPECT_EQ(file_.GetStatus().size, 3U);
  EXPECT_EQ(Read(0, 3), "one");
}

TEST_F(VelSystemInputFileTest, Adopt_TakesADescriptorOverAlsoWhereItRefuses) {
  const int good = ::open(folder_.Write("file", "one").c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(file_.Adopt(good, cause_), S_OK);
  EXPECT_EQ(file_.GetDescriptor(), good);
  EXPECT_EQ(Read(1, 2), "ne");
  const int folder = ::open(folder_.Path().c_str(), O_RDONLY | O_CLOEXEC);
  EXPECT_EQ(file_.Adopt(folder, cause_), E_FAIL);
  EXPECT_EQ(::fcntl(folder, F_GETFD), -1) << "the refused descriptor is still open";
  EXPECT_EQ(::fcntl(good, F_GETFD), -1) << "the former descriptor is still open";
  EXPECT_EQ(file_.Adopt(-1, cause_), E_FAIL);
}

}  // namespace
