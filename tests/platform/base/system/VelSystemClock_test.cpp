// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemClock_test.cpp The behaviour of the clock of the machine.
#include "platform/base/system/VelSystemClock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>

namespace {

/// The same clock by another way, in ticks of 100 nanoseconds.
std::int64_t SteadyTicks() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() / 100;
}

TEST(VelSystemClock, Read_CountsTicksOfAHundredNanoseconds) {
  const std::int64_t before = SteadyTicks();
  const std::int64_t now = VelSystemClock::Now();
  const std::int64_t after = SteadyTicks();
  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
}

TEST(VelSystemClock, ReadManyTimes_NeverGoesBack) {
  std::int64_t last = VelSystemClock::Now();
  for (int count = 0; count < 1000; ++count) {
    const std::int64_t now = VelSystemClock::Now();
    ASSERT_LE(last, now);
    last = now;
  }
}

}  // namespace
