// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceSink.h Where traces go.
#ifndef PLATFORM_TRACE_VELTRACESINK_H
#define PLATFORM_TRACE_VELTRACESINK_H

#include "platform/base/VelPlatformApi.h"
#include "platform/trace/VelTraceRecord.h"

/// Implemented by: the sinks of this folder, and by hosts. Thread: the application thread. Re-entrancy: a sink may emit
/// traces, raise checks, add and remove sinks; what it emits while it writes goes to the other sinks only. What it
/// throws ends with the call.
class VEL_PLATFORM_API VelTraceSink {
 public:
  /// Takes one record, whose texts must be copied if they are to be kept.
  virtual void Write(const VelTraceRecord& iRecord) = 0;

  /// Brings everything written so far to where it is safe should the process stop.
  virtual void Flush() = 0;

 protected:
  VelTraceSink() = default;
  ~VelTraceSink() = default;
};

#endif  // PLATFORM_TRACE_VELTRACESINK_H
