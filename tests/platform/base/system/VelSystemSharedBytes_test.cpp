// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemSharedBytes_test.cpp Memory that changes no more, and what is none.
#include "platform/base/system/VelSystemSharedBytes.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/platform/base/system/VelOpenDescriptors.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

constexpr int allSeals = F_SEAL_WRITE | F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL;

int MakeMemory(off_t iSize, int iSeals, unsigned iFlags = MFD_ALLOW_SEALING) {
  const int memory = ::memfd_create("test", iFlags);
  if (memory >= 0 && ::ftruncate(memory, iSize) != 0) ADD_FAILURE() << "no memory of that size";
  if (iSeals != 0 && ::fcntl(memory, F_ADD_SEALS, iSeals) != 0) ADD_FAILURE() << "it cannot be sealed";
  return memory;
}

class VelSystemSharedBytesTest : public ::testing::Test {
 protected:
  std::string cause_ = "untouched";
};

TEST_F(VelSystemSharedBytesTest, WhatIsFilledAndSealed_IsReadElsewhere) {
  VelSystemSharedBytes writer;
  ASSERT_EQ(writer.Create(5000, cause_), S_OK);
  ASSERT_EQ(writer.WritableBytes().size(), 5000U);
  EXPECT_EQ(writer.WritableBytes()[4999], std::byte{0});
  std::ranges::fill(writer.WritableBytes(), std::byte{7});
  EXPECT_EQ(writer.Seal(cause_), S_OK);
  EXPECT_TRUE(writer.WritableBytes().empty());
  EXPECT_EQ(::fcntl(writer.GetDescriptor(), F_GET_SEALS) & allSeals, allSeals);
  EXPECT_EQ(::fcntl(writer.GetDescriptor(), F_GETFD), FD_CLOEXEC);

  VelSystemSharedBytes reader;
  ASSERT_EQ(VelSystemSharedBytes::Map(::dup(writer.GetDescriptor()), 5000, reader, cause_), S_OK);
  EXPECT_TRUE(reader.WritableBytes().empty());
  EXPECT_EQ(reader.Bytes().size(), 5000U);
  EXPECT_TRUE(std::ranges::all_of(reader.Bytes(), [](std::byte iByte) { return iByte == std::byte{7}; }));
  EXPECT_EQ(cause_, "untouched");
}

TEST_F(VelSystemSharedBytesTest, SealedMemory_CanNeitherBeWrittenNorResized) {
  VelSystemSharedBytes memory;
  ASSERT_EQ(memory.Create(100, cause_), S_OK);
  ASSERT_EQ(memory.Seal(cause_), S_OK);
  EXPECT_LT(::write(memory.GetDescriptor(), "x", 1), 0);
  EXPECT_NE(::ftruncate(memory.GetDescriptor(), 99), 0);
  EXPECT_NE(::ftruncate(memory.GetDescriptor(), 101), 0);
  EXPECT_EQ(::mmap(nullptr, 100, PROT_READ | PROT_WRITE, MAP_SHARED, memory.GetDescriptor(), 0), MAP_FAILED);
  EXPECT_EQ(memory.Seal(cause_), E_UNEXPECTED) << "once is enough";
}

TEST_F(VelSystemSharedBytesTest, Seal_WhileSomebodyMayWrite_IsRefused) {
  VelSystemSharedBytes memory;
  ASSERT_EQ(memory.Create(100, cause_), S_OK);
  void* second = ::mmap(nullptr, 100, PROT_READ | PROT_WRITE, MAP_SHARED, memory.GetDescriptor(), 0);
  ASSERT_NE(second, MAP_FAILED);
  EXPECT_EQ(memory.Seal(cause_), E_FAIL);
  EXPECT_NE(cause_, "untouched");
  ::munmap(second, 100);
}

TEST_F(VelSystemSharedBytesTest, Create_OfNoBytesOrTooMany_HoldsNothing) {
  VelSystemSharedBytes memory;
  EXPECT_EQ(memory.Create(0, cause_), E_INVALIDARG);
  EXPECT_EQ(memory.Create(static_cast<std::size_t>(-1), cause_), E_FAIL);
  EXPECT_EQ(cause_, "of 18446744073709551615 bytes is not to be had");
  EXPECT_TRUE(memory.Bytes().empty());
  EXPECT_EQ(memory.GetDescriptor(), -1);
}

TEST_F(VelSystemSharedBytesTest, Map_OfAnythingElse_IsRefusedAndCloses) {
  const VelTemporaryFolder folder;
  const std::string file = folder.Write("file", std::string(100, 'x'));
  int pipes[2];
  ASSERT_EQ(::pipe(pipes), 0);
  struct Case {
    const char* name;
    int descriptor;
    const char* cause;
  };
  const Case cases[] = {
      {"no descriptor", -1, "is not memory"},
      {"a regular file", ::open(file.c_str(), O_RDWR), "is not memory"},
      {"endless zeros", ::open("/dev/zero", O_RDWR), "is not memory"},
      {"a folder", ::open(folder.Path().c_str(), O_RDONLY), "is not memory"},
      {"a pipe", pipes[0], "is not memory"},
      {"its other end", pipes[1], "is not memory"},
      {"memory unsealed", MakeMemory(100, 0), "is not sealed against writing, growing and shrinking"},
      {"memory that takes no seals", MakeMemory(100, 0, 0), "is not sealed against writing, growing and shrinking"},
      {"may be written", MakeMemory(100, F_SEAL_GROW | F_SEAL_SHRINK),
       "is not sealed against writing, growing and shrinking"},
      {"may be written through what was mapped", MakeMemory(100, F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_FUTURE_WRITE),
       "is not sealed against writing, growing and shrinking"},
      {"may shrink", MakeMemory(100, F_SEAL_GROW | F_SEAL_WRITE),
       "is not sealed against writing, growing and shrinking"},
      {"may grow", MakeMemory(100, F_SEAL_SHRINK | F_SEAL_WRITE),
       "is not sealed against writing, growing and shrinking"},
      {"too small", MakeMemory(99, allSeals), "has 99 bytes where 100 were expected"},
      {"too large", MakeMemory(101, allSeals), "has 101 bytes where 100 were expected"},
      {"empty", MakeMemory(0, allSeals), "has 0 bytes where 100 were expected"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    VelSystemSharedBytes reader;
    cause_ = "untouched";
    EXPECT_EQ(VelSystemSharedBytes::Map(each.descriptor, 100, reader, cause_), E_FAIL);
    EXPECT_EQ(cause_, each.cause);
    EXPECT_TRUE(reader.Bytes().empty());
    EXPECT_EQ(::fcntl(each.descriptor, F_GETFD), -1) << "it is still open";
  }
}

TEST_F(VelSystemSharedBytesTest, Map_OfNoBytes_IsNoSize) {
  VelSystemSharedBytes reader;
  EXPECT_EQ(VelSystemSharedBytes::Map(MakeMemory(0, allSeals), 0, reader, cause_), E_INVALIDARG);
}

TEST_F(VelSystemSharedBytesTest, NothingStaysOpen) {
  const std::size_t before = CountOpenDescriptors();
  {
    VelSystemSharedBytes writer;
    VelSystemSharedBytes reader;
    ASSERT_EQ(writer.Create(100, cause_), S_OK);
    ASSERT_EQ(writer.Create(200, cause_), S_OK);
    ASSERT_EQ(writer.Seal(cause_), S_OK);
    ASSERT_EQ(VelSystemSharedBytes::Map(::dup(writer.GetDescriptor()), 200, reader, cause_), S_OK);
    ASSERT_EQ(VelSystemSharedBytes::Map(::dup(writer.GetDescriptor()), 200, reader, cause_), S_OK);
  }
  EXPECT_EQ(CountOpenDescriptors(), before);
}

}  // namespace
