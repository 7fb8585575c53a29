// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelClock_test.cpp The behaviour of the clock and of a source put in its place.
#include "platform/base/VelClock.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "platform/base/system/VelSystemClock.h"

namespace {

/// A clock that stands where it is put.
class FixedClock final : public VelClockSource {
 public:
  explicit FixedClock(std::int64_t iNow) : now_(iNow) {}
  std::int64_t Now() noexcept override { return now_; }

 private:
  std::int64_t now_;
};

/// Puts the clock of the machine back however the test ends.
class VelClockTest : public ::testing::Test {
 protected:
  ~VelClockTest() override { VelClock::SetSource(nullptr); }
};

TEST_F(VelClockTest, WithoutASource_TakesTheTimeOfTheMachine) {
  const std::int64_t before = VelSystemClock::Now();
  const std::int64_t now = VelClock::Now();
  const std::int64_t after = VelSystemClock::Now();
  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
}

TEST_F(VelClockTest, WithASource_TakesItsTime) {
  FixedClock first(100);
  FixedClock second(-7);
  EXPECT_EQ(VelClock::SetSource(&first), nullptr);
  EXPECT_EQ(VelClock::Now(), 100);
  EXPECT_EQ(VelClock::SetSource(&second), &first);
  EXPECT_EQ(VelClock::Now(), -7);
}

TEST_F(VelClockTest, WithItsSourceTakenAway_TakesTheTimeOfTheMachineAgain) {
  FixedClock source(-1);
  VelClock::SetSource(&source);
  EXPECT_EQ(VelClock::SetSource(nullptr), &source);
  EXPECT_GE(VelClock::Now(), 0);
}

}  // namespace
