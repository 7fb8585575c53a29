// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemFile_test.cpp The behaviour of reading files, listing folders and resolving paths.
#include "platform/base/system/VelSystemFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

using namespace std::string_view_literals;

constexpr std::size_t byteLimit = 4194304;

class VelSystemFileTest : public ::testing::Test {
 protected:
  VelTemporaryFolder folder_;
  std::string cause_;
};

using Names = std::vector<std::string>;

TEST_F(VelSystemFileTest, ReadWholeFile_OfARegularFile_AnswersEveryByte) {
  struct Case {
    const char* name;
    std::string bytes;
  };
  const Case cases[] = {{"empty", ""},
                        {"text", "one\r\ntwo\n"},
                        {"binary", std::string("\0\xFF\0", 3)},
                        {"larger than one read", std::string(300'000, 'x') + "end"}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    std::string bytes = "before";
    EXPECT_EQ(VelSystemFile::ReadWholeFile(folder_.Write("file", test.bytes), byteLimit, bytes, cause_), S_OK);
    EXPECT_TRUE(bytes == test.bytes) << bytes.size() << " bytes were read";
    EXPECT_EQ(cause_, "");
  }
}

TEST_F(VelSystemFileTest, ReadWholeFile_AtTheLimit_ReadsAndPastItRefuses) {
  const std::string path = folder_.Write("file", "12345");
  std::string bytes;
  EXPECT_EQ(VelSystemFile::ReadWholeFile(path, 5, bytes, cause_), S_OK);
  EXPECT_EQ(bytes, "12345");
  EXPECT_EQ(VelSystemFile::ReadWholeFile(path, 4, bytes, cause_), E_FAIL);
  EXPECT_EQ(cause_, "is larger than 4 bytes");
  EXPECT_EQ(bytes, "12345");
}

TEST_F(VelSystemFileTest, ReadWholeFile_OfAFileThatTellsNoSize_HoldsTheLimit) {
  std::string bytes;
  EXPECT_EQ(VelSystemFile::ReadWholeFile("/proc/self/status", byteLimit, bytes, cause_), S_OK);
  EXPECT_TRUE(std::string_view(bytes).starts_with("Name:"));
  EXPECT_EQ(VelSystemFile::ReadWholeFile("/proc/self/status", 3, bytes, cause_), E_FAIL);
  EXPECT_EQ(cause_, "is larger than 3 bytes");
}

TEST_F(VelSystemFileTest, ReadWholeFile_OfAnythingElse_RefusesWithACause) {
  folder_.Write("file", "x");
  ASSERT_EQ(::mkfifo(folder_.Path("fifo").c_str(), 0600), 0);
  std::filesystem::create_symlink(folder_.Path("fifo"), folder_.Path("link"));
  std::filesystem::create_symlink(folder_.Path("loop"), folder_.Path("loop"));
  struct Case {
    const char* name;
    std::string path;
    HRESULT code;
    const char* cause;
  };
  const Case cases[] = {
      {"absent", folder_.Path("absent"), E_FAIL, "no such file"},
      {"no path", "", E_FAIL, "no such file"},
      {"folder", folder_.Path(), E_FAIL, "is a folder"},
      {"fifo", folder_.Path("fifo"), E_FAIL, "is not a regular file"},
      {"link to a fifo", folder_.Path("link"), E_FAIL, "is not a regular file"},
      {"device", "/dev/zero", E_FAIL, "is not a regular file"},
      {"link to itself", folder_.Path("loop"), E_FAIL, "too many symbolic links"},
      {"below a file", folder_.Path("file/below"), E_FAIL, "a part of the path is not a folder"},
      {"long name", folder_.Path(std::string(300, 'n')), E_FAIL, "the path is too long"},
      {"NUL", folder_.Path("file") + std::string("\0x", 2), E_INVALIDARG, "the path holds a NUL byte"},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    std::string bytes = "before";
    EXPECT_EQ(VelSystemFile::ReadWholeFile(test.path, byteLimit, bytes, cause_), test.code);
    EXPECT_EQ(cause_, test.cause);
    EXPECT_EQ(bytes, "before");
  }
}

TEST_F(VelSystemFileTest, ListFolder_WithASuffix_SortsTheNamesThatEndInIt) {
  for (const char* name : {"b.toml", "a.toml", "B.toml", "\xC3\xA4.toml", ".toml", "a.TOML", "a.toml~", "toml"}) {
    folder_.Write(name, "");
  }
  std::filesystem::create_directory(folder_.Path("folder.toml"));
  Names names{"before"};
  EXPECT_EQ(VelSystemFile::ListFolder(folder_.Path(), ".toml", names, cause_), S_OK);
  EXPECT_EQ(names, (Names{".toml", "B.toml", "a.toml", "b.toml", "folder.toml", "\xC3\xA4.toml"}));
  EXPECT_EQ(cause_, "");
}

TEST_F(VelSystemFileTest, ListFolder_WithoutASuffix_ListsAllButTheDots) {
  folder_.Write("b", "");
  folder_.Write("..a", "");
  Names names;
  EXPECT_EQ(VelSystemFile::ListFolder(folder_.Path(), "", names, cause_), S_OK);
  EXPECT_EQ(names, (Names{"..a", "b"}));
}

TEST_F(VelSystemFileTest, ListFolder_OfAnEmptyFolder_EmptiesTheNames) {
  Names names{"before"};
  EXPECT_EQ(VelSystemFile::ListFolder(folder_.Path(), "", names, cause_), S_OK);
  EXPECT_TRUE(names.empty());
}

TEST_F(VelSystemFileTest, ListFolder_OfAnythingElse_RefusesWithACause) {
  ASSERT_EQ(::mkfifo(folder_.Path("fifo").c_str(), 0600), 0);
  struct Case {
    const char* name;
    std::string path;
    HRESULT code;
    const char* cause;
  };
  const Case cases[] = {
      {"absent", folder_.Path("absent"), E_FAIL, "no such folder"},
      {"file", folder_.Write("file", ""), E_FAIL, "is not a folder"},
      {"fifo", folder_.Path("fifo"), E_FAIL, "is not a folder"},
      {"NUL", std::string("/\0", 2), E_INVALIDARG, "the path holds a NUL byte"},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    Names names{"before"};
    EXPECT_EQ(VelSystemFile::ListFolder(test.path, "", names, cause_), test.code);
    EXPECT_EQ(cause_, test.cause);
    EXPECT_EQ(names, Names{"before"});
  }
}

TEST_F(VelSystemFileTest, CanonicalPath_ThroughLinksAndDots_NamesTheFile) {
  std::filesystem::create_directory(folder_.Path("sub"));
  const std::string file = folder_.Write("file", "");
  std::filesystem::create_symlink("../file", folder_.Path("sub/link"));
  std::string direct;
  std::string indirect;
  EXPECT_EQ(VelSystemFile::CanonicalPath(file, direct, cause_), S_OK);
  EXPECT_EQ(VelSystemFile::CanonicalPath(folder_.Path() + "/sub/.././sub//link", indirect, cause_), S_OK);
  EXPECT_EQ(direct, indirect);
  EXPECT_TRUE(std::string_view(direct).ends_with("/file"));
}

TEST_F(VelSystemFileTest, CanonicalPath_OfNothing_RefusesWithACause) {
  std::string path = "before";
  EXPECT_EQ(VelSystemFile::CanonicalPath(folder_.Path("absent"), path, cause_), E_FAIL);
  EXPECT_EQ(cause_, "no such file");
  EXPECT_EQ(VelSystemFile::CanonicalPath(std::string("/\0", 2), path, cause_), E_INVALIDARG);
  EXPECT_EQ(path, "before");
}

TEST_F(VelSystemFileTest, Exists_IsTrueForWhateverIsReachedThroughLinks) {
  const std::string file = folder_.Write("file", "");
  std::filesystem::create_directory(folder_.Path("sub"));
  std::filesystem::create_symlink("file", folder_.Path("link"));
  std::filesystem::create_symlink("sub", folder_.Path("folder link"));
  std::filesystem::create_symlink("absent", folder_.Path("dangling"));
  std::filesystem::create_symlink("loop", folder_.Path("loop"));
  struct Case {
    const char* name;
    std::string path;
    bool expected;
  };
  const Case cases[] = {
      {"file", file, true},
      {"folder", folder_.Path("sub"), true},
      {"folder with a slash", folder_.Path("sub/"), true},
      {"link to a file", folder_.Path("link"), true},
      {"link to a folder", folder_.Path("folder link"), true},
      {"link to nothing", folder_.Path("dangling"), false},
      {"link to itself", folder_.Path("loop"), false},
      {"absent", folder_.Path("absent"), false},
      {"below a file", file + "/below", false},
      {"no path", "", false},
      {"NUL behind a file", file + '\0', false},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(VelSystemFile::Exists(test.path), test.expected);
  }
}

TEST(VelSystemFile, FolderOf_TakesTheLastNameOff) {
  struct Case {
    const char* path;
    const char* expected;
  };
  const Case cases[] = {
      {"/a/b/c", "/a/b"}, {"/a/b", "/a"}, {"/a", "/"},     {"/", "/"}, {"a/b", "a"},
      {"./a", "."},       {"../a", ".."}, {"a/b/", "a/b"}, {"a", "."}, {"", "."},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.path);
    EXPECT_EQ(VelSystemFile::FolderOf(test.path), test.expected);
  }
}

}  // namespace
