// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelClockSource.h Where VelClock takes the time from.
#ifndef PLATFORM_BASE_VELCLOCKSOURCE_H
#define PLATFORM_BASE_VELCLOCKSOURCE_H

#include <cstdint>

#include "platform/base/VelPlatformApi.h"

/// A source of time. Must not go back.
class VEL_PLATFORM_API VelClockSource {
 public:
  /// @return ticks of 100 nanoseconds
  virtual std::int64_t Now() noexcept = 0;

 protected:
  ~VelClockSource() = default;
};

#endif  // PLATFORM_BASE_VELCLOCKSOURCE_H
