// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDiagnosticEntry.h One warning or error that a diagnostics scope has collected.
#ifndef PLATFORM_TRACE_VELDIAGNOSTICENTRY_H
#define PLATFORM_TRACE_VELDIAGNOSTICENTRY_H

#include <string>

#include "platform/trace/VelTraceKind.h"

/// A collected message, which owns its texts.
struct VelDiagnosticEntry {
  VelTraceKind kind;    ///< Warning or Error.
  std::string channel;  ///< The name of the channel; "VelCheck" for a check.
  std::string text;
  std::string source;  ///< Empty for a warning.
  unsigned line;       ///< 0 where no line is known.
};

#endif  // PLATFORM_TRACE_VELDIAGNOSTICENTRY_H
