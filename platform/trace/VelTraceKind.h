// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceKind.h The kinds of messages that a trace channel carries.
#ifndef PLATFORM_TRACE_VELTRACEKIND_H
#define PLATFORM_TRACE_VELTRACEKIND_H

#include <cstdint>

/// What kind of message a trace is.
enum class VelTraceKind : std::uint8_t {
  Information,  ///< What the system does.
  Warning,      ///< Something that the user of the system may want to mend; the operation goes on.
  Error,        ///< An operation failed. Carries a source position.
  ClassTrace,   ///< What one class does in detail, graded by a class level from 1 to 9.
};

#endif  // PLATFORM_TRACE_VELTRACEKIND_H
