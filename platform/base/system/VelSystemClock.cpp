// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemClock.cpp The monotonic clock of the machine.
#include "platform/base/system/VelSystemClock.h"

#include <time.h>

namespace {

constexpr std::int64_t ticksPerSecond = 10'000'000;
constexpr std::int64_t nanosecondsPerTick = 100;

}  // namespace

std::int64_t VelSystemClock::Now() noexcept {
  timespec now{};
  ::clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<std::int64_t>(now.tv_sec) * ticksPerSecond +
         static_cast<std::int64_t>(now.tv_nsec) / nanosecondsPerTick;
}
