// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemDeadline.h A moment up to which something is waited for.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMDEADLINE_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMDEADLINE_H

#include <cstdint>

#include "platform/base/VelPlatformApi.h"

/// Waits that several calls share, so that an interruption by a signal does not begin the time anew.
class VEL_PLATFORM_API VelSystemDeadline {
 public:
  /// What an Await came to.
  enum class Outcome : std::uint8_t { Ready, TimeIsOver, Failed };

  /// @param[in] iMilliseconds from now on; negative for no end
  explicit VelSystemDeadline(int iMilliseconds) noexcept;

  /// @return milliseconds, rounded up; 0 when the time is over, negative for no end
  int Remaining() const noexcept;

  /// Waits for a descriptor, which is looked at once also when the time is over.
  /// @param[in] iEvents those of the system's poll; errors and an end count as ready in any case
  /// @return Failed, with errno set, when the system refuses
  Outcome Await(int iDescriptor, short iEvents) const noexcept;

 private:
  std::int64_t end_;  ///< Ticks of VelSystemClock; negative for no end.
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMDEADLINE_H
