// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceLine.h The form in which people read a trace; inside of the trace folder only.
#ifndef PLATFORM_TRACE_VELTRACELINE_H
#define PLATFORM_TRACE_VELTRACELINE_H

#include <string>

#include "platform/trace/VelTraceRecord.h"

class VelTraceLine {
 public:
  /// @return the word of a kind: info, warning, error, class.
  [[nodiscard]] static const char* WordOf(VelTraceKind iKind) noexcept;

  /// @return "[error] Channel: text (source:line)" with one line end at its end, be there one in the text or not. The
  /// source is left out where none is known, and its line likewise. A class trace shows its level: "[class 3]".
  [[nodiscard]] static std::string ToText(const VelTraceRecord& iRecord);
};

#endif  // PLATFORM_TRACE_VELTRACELINE_H
