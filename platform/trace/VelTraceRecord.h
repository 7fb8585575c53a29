// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceRecord.h One emitted trace, as the sinks see it.
#ifndef PLATFORM_TRACE_VELTRACERECORD_H
#define PLATFORM_TRACE_VELTRACERECORD_H

#include <cstdint>
#include <string_view>

#include "platform/base/VelSourcePosition.h"
#include "platform/trace/VelTraceKind.h"

/// One trace. The texts live only as long as the call that hands the record over.
struct VelTraceRecord {
  VelTraceKind kind = VelTraceKind::Information;
  int classLevel = 0;                 ///< 1 to 9 for a class trace, else 0.
  std::string_view channel;           ///< The name of the channel.
  std::string_view text;              ///< The message, word for word; a class trace usually ends in a line end.
  VelSourcePosition position{"", 0};  ///< Of an error; else the empty text and 0.
  std::int64_t ticks = 0;             ///< When it was emitted, by VelClock, in 100 ns.
  std::uint64_t sequence = 0;         ///< Counts the emitted traces of the process from 1.
};

#endif  // PLATFORM_TRACE_VELTRACERECORD_H
