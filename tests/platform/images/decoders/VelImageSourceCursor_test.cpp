// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageSourceCursor_test.cpp Reading onward, in pieces of every size.
#include "platform/images/decoders/VelImageSourceCursor.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<std::byte>;

/// Longer than several buffers.
Bytes Content() {
  Bytes bytes(300000);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::byte>(i * 7 + i / 251);
  return bytes;
}

/// A source that counts how often it is read.
class CountingSource final : public VelImageSource {
 public:
  explicit CountingSource(std::span<const std::byte> iBytes) : memory_(iBytes) {}
  std::uint64_t Size() const noexcept override { return memory_.Size(); }
  std::size_t ReadAt(std::uint64_t iOffset, std::span<std::byte> oBytes) noexcept override {
    ++reads_;
    return memory_.ReadAt(iOffset, oBytes);
  }
  int Reads() const { return reads_; }

 private:
  VelMemoryImageSource memory_;
  int reads_ = 0;
};

TEST(VelImageSourceCursor, PiecesOfEverySize_MakeUpTheSource) {
  const Bytes content = Content();
  for (const std::size_t size : {1U, 7U, 4096U, 65535U, 65536U, 65537U, 200000U, 300000U, 400000U}) {
    VelMemoryImageSource source(content);
    VelImageSourceCursor cursor(source);
    Bytes all;
    Bytes piece(size);
    for (std::size_t count = size; count == size;) {
      count = cursor.Read(piece);
      all.insert(all.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(count));
      EXPECT_EQ(cursor.Position(), all.size());
    }
    EXPECT_TRUE(all == content) << size;
  }
}

TEST(VelImageSourceCursor, AnyPlace_CanBeReadFrom) {
  const Bytes content = Content();
  VelMemoryImageSource source(content);
  VelImageSourceCursor cursor(source);
  for (const std::uint64_t place : {100000U, 0U, 65530U, 65540U, 299990U, 5U, 131072U}) {
    Bytes piece(10);
    cursor.MoveTo(place);
    EXPECT_EQ(cursor.Read(piece), 10U) << place;
    EXPECT_TRUE(std::equal(piece.begin(), piece.end(), content.begin() + static_cast<std::ptrdiff_t>(place))) << place;
  }
}

TEST(VelImageSourceCursor, BehindTheEnd_NothingIsRead) {
  const Bytes content(10, std::byte{1});
  VelMemoryImageSource source(content);
  VelImageSourceCursor cursor(source);
  for (const std::uint64_t place : {std::uint64_t{10}, std::uint64_t{11}, ~std::uint64_t{0}}) {
    Bytes piece(4, std::byte{9});
    cursor.MoveTo(place);
    EXPECT_EQ(cursor.Read(piece), 0U) << place;
    EXPECT_EQ(piece, Bytes(4, std::byte{9}));
  }
  Bytes piece(4);
  cursor.MoveTo(8);
  EXPECT_EQ(cursor.Read(piece), 2U);
  EXPECT_EQ(cursor.Size(), 10U);
}

TEST(VelImageSourceCursor, SmallPieces_DoNotEachReadTheSource) {
  const Bytes content = Content();
  CountingSource source(content);
  VelImageSourceCursor cursor(source);
  Bytes piece(4);
  for (int i = 0; i < 10000; ++i) EXPECT_EQ(cursor.Read(piece), 4U);
  EXPECT_EQ(source.Reads(), 1);
}

}  // namespace
