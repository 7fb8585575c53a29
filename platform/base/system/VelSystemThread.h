// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemThread.h Tells threads apart.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMTHREAD_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMTHREAD_H

#include <cstdint>

#include "platform/base/VelPlatformApi.h"

/// The calling thread.
class VelSystemThread {
 public:
  /// @return a number that no other living thread of the process has; it may come back once the thread has ended. Costs
  /// no system call, so that the thread assertions may ask at every reference count.
  VEL_PLATFORM_API static std::uint64_t CurrentId() noexcept;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMTHREAD_H
