// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemClock.h The monotonic clock of the machine.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMCLOCK_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMCLOCK_H

#include <cstdint>

#include "platform/base/VelPlatformApi.h"

/// A clock that never goes back. Only differences mean something.
class VelSystemClock {
 public:
  /// @return ticks of 100 nanoseconds since some moment before the process began
  VEL_PLATFORM_API static std::int64_t Now() noexcept;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMCLOCK_H
