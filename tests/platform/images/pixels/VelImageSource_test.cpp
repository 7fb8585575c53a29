// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageSource_test.cpp Reading the bytes of an image from memory and from a file.
#include "platform/images/pixels/VelImageSource.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/base/system/VelSystemInputFile.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

std::string Read(VelImageSource& ioSource, std::uint64_t iOffset, std::size_t iCount) {
  std::string bytes(iCount, '?');
  bytes.resize(ioSource.ReadAt(iOffset, std::as_writable_bytes(std::span(bytes))));
  return bytes;
}

void ExpectToReadDigits(VelImageSource& ioSource) {
  EXPECT_EQ(ioSource.Size(), 10U);
  EXPECT_EQ(Read(ioSource, 0, 10), "0123456789");
  EXPECT_EQ(Read(ioSource, 4, 2), "45");
  EXPECT_EQ(Read(ioSource, 8, 100), "89");
  EXPECT_EQ(Read(ioSource, 10, 1), "");
  EXPECT_EQ(Read(ioSource, ~std::uint64_t{0}, 1), "");
}

TEST(VelImageSource, Memory_IsReadFromAnyPlace) {
  constexpr std::string_view digits = "0123456789";
  VelMemoryImageSource source(std::as_bytes(std::span(digits)));
  ExpectToReadDigits(source);
}

TEST(VelImageSource, AFile_IsReadFromAnyPlace) {
  const VelTemporaryFolder folder;
  VelSystemInputFile file;
  std::string cause;
  ASSERT_EQ(file.Open(folder.Write("digits", "0123456789"), cause), S_OK);
  VelFileImageSource source(file);
  ExpectToReadDigits(source);
}

}  // namespace
