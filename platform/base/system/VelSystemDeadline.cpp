// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemDeadline.cpp Polls again after each interruption, for what is left of the time.
#include "platform/base/system/VelSystemDeadline.h"

#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <limits>

#include "platform/base/system/VelSystemClock.h"

namespace {

constexpr std::int64_t ticksPerMillisecond = 10'000;
constexpr std::int64_t noEnd = -1;

}  // namespace

VelSystemDeadline::VelSystemDeadline(int iMilliseconds) noexcept
    : end_(iMilliseconds < 0 ? noEnd : VelSystemClock::Now() + iMilliseconds * ticksPerMillisecond) {}

int VelSystemDeadline::Remaining() const noexcept {
  if (end_ == noEnd) return -1;
  const std::int64_t ticks = std::max<std::int64_t>(end_ - VelSystemClock::Now(), 0);
  const std::int64_t milliseconds = (ticks + ticksPerMillisecond - 1) / ticksPerMillisecond;
  return static_cast<int>(std::min<std::int64_t>(milliseconds, std::numeric_limits<int>::max()));
}

VelSystemDeadline::Outcome VelSystemDeadline::Await(int iDescriptor, short iEvents) const noexcept {
  pollfd awaited{iDescriptor, iEvents, 0};
  while (true) {
    const int count = ::poll(&awaited, 1, Remaining());
    if (count > 0) return Outcome::Ready;
    if (count == 0) return Outcome::TimeIsOver;
    if (errno != EINTR) return Outcome::Failed;
  }
}
