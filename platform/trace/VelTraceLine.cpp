// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceLine.cpp Writes a record as one line.
#include "platform/trace/VelTraceLine.h"

#include "platform/base/VelFormat.h"

const char* VelTraceLine::WordOf(VelTraceKind iKind) noexcept {
  switch (iKind) {
    case VelTraceKind::Information:
      return "info";
    case VelTraceKind::Warning:
      return "warning";
    case VelTraceKind::Error:
      return "error";
    case VelTraceKind::ClassTrace:
      return "class";
  }
  return "";
}

std::string VelTraceLine::ToText(const VelTraceRecord& iRecord) {
  std::string_view text = iRecord.text;
  if (text.ends_with('\n')) text.remove_suffix(1);
  std::string line = VelFormat::ToText("[%s", WordOf(iRecord.kind));
  if (iRecord.kind == VelTraceKind::ClassTrace) line += VelFormat::ToText(" %d", iRecord.classLevel);
  line += VelFormat::ToText("] %s: %s", iRecord.channel, text);
  const std::string_view source = iRecord.position.source;
  if (!source.empty()) {
    line += iRecord.position.line != 0 ? VelFormat::ToText(" (%s:%u)", source, iRecord.position.line)
                                       : VelFormat::ToText(" (%s)", source);
  }
  return line + '\n';
}
