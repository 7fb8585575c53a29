// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelClock.h The time that the system measures durations with.
#ifndef PLATFORM_BASE_VELCLOCK_H
#define PLATFORM_BASE_VELCLOCK_H

#include <cstdint>

#include "platform/base/VelClockSource.h"
#include "platform/base/VelPlatformApi.h"

/// A monotonic clock. Only differences mean something.
class VelClock {
 public:
  /// @return ticks of 100 nanoseconds, never less than at an earlier call on the same source
  VEL_PLATFORM_API static std::int64_t Now() noexcept;

  /// Replaces the clock of the machine, so that a test decides what time it is.
  /// @param[in] iSource not owned, to be replaced before it dies; null puts the clock of the machine back
  /// @return the source that was in force, null for the clock of the machine
  VEL_PLATFORM_API static VelClockSource* SetSource(VelClockSource* iSource) noexcept;
};

#endif  // PLATFORM_BASE_VELCLOCK_H
