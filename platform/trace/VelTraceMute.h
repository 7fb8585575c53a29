// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceMute.h Keeps what is only tried out from being traced.
#ifndef PLATFORM_TRACE_VELTRACEMUTE_H
#define PLATFORM_TRACE_VELTRACEMUTE_H

#include "platform/base/VelPlatformApi.h"

/// While one lives, no channel is on, whatever the switches, and nothing reaches a sink or a diagnostics scope: for
/// work on objects that nobody else has ever seen, about which a warning would only mislead. Checks are no traces then,
/// yet still heard by their other observers; an assertion or a fatal log is a line on the standard error stream.
/// Switches may be set meanwhile and count from the end on. May be nested. Thread: the application thread.
class VEL_PLATFORM_API VelTraceMute {
 public:
  VelTraceMute() noexcept;
  ~VelTraceMute();
  VelTraceMute(const VelTraceMute&) = delete;
  VelTraceMute& operator=(const VelTraceMute&) = delete;
};

#endif  // PLATFORM_TRACE_VELTRACEMUTE_H
