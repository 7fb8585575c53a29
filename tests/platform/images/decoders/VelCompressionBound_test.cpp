// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCompressionBound_test.cpp Claims at and beyond the bound.
#include "platform/images/decoders/VelCompressionBound.h"

#include <gtest/gtest.h>

namespace {

TEST(VelCompressionBound, AClaim_IsBelievedUpToTheRatio) {
  struct Case {
    std::uint64_t unpacked;
    std::uint64_t fileSize;
    std::uint64_t ratio;
    HRESULT expected;
  };
  const std::uint64_t most = ~std::uint64_t{0};
  const Case cases[] = {
      {0, 0, 1, S_OK},
      {100, 100, 1, S_OK},
      {101, 100, 1, E_FAIL},
      {102400, 100, 1024, S_OK},
      {1024 * 101, 100, 1024, E_FAIL},
      {most, 1, 1, E_FAIL},
      {most, most, most, S_OK},
  };
  for (const Case& example : cases) {
    std::string cause;
    EXPECT_EQ(VelCompressionBound::Check(example.unpacked, example.fileSize, example.ratio, cause), example.expected)
        << example.unpacked << " of " << example.fileSize;
    EXPECT_EQ(cause.empty(), example.expected == S_OK);
  }
}

TEST(VelCompressionBound, ThatAClaimIsTooLarge_IsTold) {
  std::string cause;
  EXPECT_EQ(VelCompressionBound::Check(2000, 1, 1000, cause), E_FAIL);
  EXPECT_EQ(cause, "claims 2000 bytes of pixels, more than its 1 bytes can hold");
}

}  // namespace
