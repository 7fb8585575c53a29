// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceStreamSink.h Prints traces on the standard error stream.
#ifndef PLATFORM_TRACE_VELTRACESTREAMSINK_H
#define PLATFORM_TRACE_VELTRACESTREAMSINK_H

#include "platform/trace/VelTraceSink.h"

/// One line per trace: "[error] Channel: text (source:line)". A line end is added only where the text has none.
class VEL_PLATFORM_API VelTraceStreamSink final : public VelTraceSink {
 public:
  void Write(const VelTraceRecord& iRecord) override;

  /// Changes nothing: every line is written at once.
  void Flush() override {}
};

#endif  // PLATFORM_TRACE_VELTRACESTREAMSINK_H
