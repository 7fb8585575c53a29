// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceCheckObserver.h Turns checks, assertions and fatal logs into traces; inside of the trace folder only.
#ifndef PLATFORM_TRACE_VELTRACECHECKOBSERVER_H
#define PLATFORM_TRACE_VELTRACECHECKOBSERVER_H

#include "platform/base/VelCheck.h"

/// Every report becomes an error on the channel "VelCheck". One that is about to stop the process flushes the sinks,
/// and is a line on the standard error stream where no sink took it.
class VelTraceCheckObserver final : public VelFailureObserver {
 public:
  void OnFailure(const VelFailureReport& iReport) override;
};

#endif  // PLATFORM_TRACE_VELTRACECHECKOBSERVER_H
