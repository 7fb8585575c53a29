// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemAppendFile_test.cpp The behaviour of a file that text is added to.
#include "platform/base/system/VelSystemAppendFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

class VelSystemAppendFileTest : public ::testing::Test {
 protected:
  VelTemporaryFolder folder_;
  std::string cause_;
};

TEST_F(VelSystemAppendFileTest, Flushed_HoldsWhatWasWritten) {
  VelSystemAppendFile file;
  ASSERT_EQ(file.Open(folder_.Path("trace"), cause_), S_OK);
  EXPECT_TRUE(file.IsOpen());
  EXPECT_EQ(file.Write("one "), S_OK);
  EXPECT_EQ(file.Write("two"), S_OK);
  EXPECT_EQ(folder_.Read("trace"), "");
  EXPECT_EQ(file.Flush(), S_OK);
  EXPECT_EQ(folder_.Read("trace"), "one two");
  EXPECT_EQ(file.Flush(), S_OK);
  EXPECT_EQ(folder_.Read("trace"), "one two");
}

TEST_F(VelSystemAppendFileTest, WithTextThatWasThere_AddsBehindIt) {
  const std::string path = folder_.Write("trace", "before ");
  VelSystemAppendFile first;
  VelSystemAppendFile second;
  ASSERT_EQ(first.Open(path, cause_), S_OK);
  ASSERT_EQ(second.Open(path, cause_), S_OK);
  EXPECT_EQ(first.Write("one "), S_OK);
  EXPECT_EQ(first.Flush(), S_OK);
  EXPECT_EQ(second.Write("two "), S_OK);
  EXPECT_EQ(second.Flush(), S_OK);
  EXPECT_EQ(first.Write("three"), S_OK);
  EXPECT_EQ(first.Close(), S_OK);
  EXPECT_EQ(folder_.Read("trace"), "before one two three");
}

TEST_F(VelSystemAppendFileTest, WithAFullBuffer_WritesItOutUnasked) {
  VelSystemAppendFile file;
  ASSERT_EQ(file.Open(folder_.Path("trace"), cause_), S_OK);
  const std::string line(1000, 'x');
  for (int count = 0; count < 200; ++count) ASSERT_EQ(file.Write(line), S_OK);
  EXPECT_GT(folder_.Read("trace").size(), 100'000U);
  EXPECT_EQ(file.Close(), S_OK);
  EXPECT_EQ(folder_.Read("trace").size(), 200'000U);
}

TEST_F(VelSystemAppendFileTest, Destroyed_HasWrittenEverything) {
  {
    VelSystemAppendFile file;
    ASSERT_EQ(file.Open(folder_.Path("trace"), cause_), S_OK);
    EXPECT_EQ(file.Write("last words"), S_OK);
  }
  EXPECT_EQ(folder_.Read("trace"), "last words");
}

TEST_F(VelSystemAppendFileTest, OpenedAgain_ClosesTheFirstFile) {
  VelSystemAppendFile file;
  ASSERT_EQ(file.Open(folder_.Path("first"), cause_), S_OK);
  EXPECT_EQ(file.Write("one"), S_OK);
  ASSERT_EQ(file.Open(folder_.Path("second"), cause_), S_OK);
  EXPECT_EQ(file.Write("two"), S_OK);
  EXPECT_EQ(file.Close(), S_OK);
  EXPECT_EQ(folder_.Read("first"), "one");
  EXPECT_EQ(folder_.Read("second"), "two");
}

TEST_F(VelSystemAppendFileTest, WhileClosed_RefusesToWrite) {
  VelSystemAppendFile file;
  EXPECT_FALSE(file.IsOpen());
  EXPECT_EQ(file.Write("lost"), E_UNEXPECTED);
  EXPECT_EQ(file.Flush(), E_UNEXPECTED);
  EXPECT_EQ(file.Close(), S_FALSE);
  ASSERT_EQ(file.Open(folder_.Path("trace"), cause_), S_OK);
  EXPECT_EQ(file.Close(), S_OK);
  EXPECT_EQ(file.Close(), S_FALSE);
  EXPECT_EQ(folder_.Read("trace"), "");
}

TEST_F(VelSystemAppendFileTest, OnWhatIsNoFile_RefusesWithACause) {
  ASSERT_EQ(::mkfifo(folder_.Path("fifo").c_str(), 0600), 0);
  struct Case {
    const char* name;
    std::string path;
    HRESULT code;
    const char* cause;
  };
  const Case cases[] = {
      {"fifo", folder_.Path("fifo"), E_FAIL, "is not a regular file"},
      {"folder", folder_.Path(), E_FAIL, "is a folder"},
      {"absent folder", folder_.Path("absent/trace"), E_FAIL, "no such file"},
      {"NUL", folder_.Path("trace") + std::string("\0", 1), E_INVALIDARG, "the path holds a NUL byte"},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    VelSystemAppendFile file;
    EXPECT_EQ(file.Open(test.path, cause_), test.code);
    EXPECT_EQ(cause_, test.cause);
    EXPECT_FALSE(file.IsOpen());
  }
}

TEST_F(VelSystemAppendFileTest, OnADeviceThatIsFull_TellsAtTheFlushAndDropsTheText) {
  VelSystemAppendFile file;
  ASSERT_EQ(file.Open("/dev/full", cause_), S_OK);
  EXPECT_EQ(file.Write("text"), S_OK);
  EXPECT_EQ(file.Flush(), E_FAIL);
  EXPECT_EQ(file.Flush(), S_OK);
  EXPECT_EQ(file.Write("text"), S_OK);
  EXPECT_EQ(file.Close(), E_FAIL);
  EXPECT_FALSE(file.IsOpen());
}

}  // namespace
