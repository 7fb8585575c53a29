// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemProcess.h The end of the process.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMPROCESS_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMPROCESS_H

#include "platform/base/VelPlatformApi.h"

/// For the fatal-error service alone.
class VelSystemProcess {
 public:
  /// Ends the process abnormally: no destructor and no exit hook runs, no buffer is written out.
  [[noreturn]] VEL_PLATFORM_API static void Abort() noexcept;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMPROCESS_H
