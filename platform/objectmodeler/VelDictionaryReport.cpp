// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDictionaryReport.cpp Sends the dictionary's errors to its trace channel.
#include "platform/objectmodeler/VelDictionaryReport.h"

#include "platform/trace/VelTraceHandle.h"

void VelReportDictionaryError(std::string_view iFile, unsigned iLine, std::string_view iText) noexcept {
  const VelTraceHandle trace("VelDictionary");
  const VelSourcePosition position = VEL_HERE("platform/objectmodeler/VelDictionary");
  if (iFile.empty()) return trace.Error(position, "%s", iText);
  trace.Error(position, "%s:%u: %s", iFile, iLine, iText);
}
