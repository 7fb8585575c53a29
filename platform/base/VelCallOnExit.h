// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCallOnExit.h Functions that run once when the platform ends, in order of priority.
#ifndef PLATFORM_BASE_VELCALLONEXIT_H
#define PLATFORM_BASE_VELCALLONEXIT_H

#include "platform/base/VelPlatformApi.h"

/// A function to run at the end. It is given 0 and its result is ignored.
using VelExitHook = int (*)(int);

/// Registers a function to run once, when the platform is terminated or, where that never happens, at process exit.
/// Lower priority numbers run first; among equal ones the last registered runs first. A function that registers another
/// while the hooks run has it run in the same round. Traces and the dictionary outlive every hook.
/// @param[in] iHook not null; registering null changes nothing
/// @param[in] iPriority any number
VEL_PLATFORM_API void VelCallOnExit(VelExitHook iHook, int iPriority);

/// Runs every registered function and forgets it. Calling it again, or from inside a hook, runs what is left, so that
/// each function runs once however often the platform is ended. A hook that throws is reported as a check.
VEL_PLATFORM_API void VelPlatformTerminate() noexcept;

#endif  // PLATFORM_BASE_VELCALLONEXIT_H
