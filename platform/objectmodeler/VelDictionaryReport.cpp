// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDictionaryReport.cpp Sends the dictionary's errors to its trace channel.
#include "platform/objectmodeler/VelDictionaryReport.h"

#include "platform/trace/QrnSysTrace.h"

void VelReportDictionaryError(std::string_view iFile, unsigned iLine, std::string_view iText) noexcept {
  QrnSysTrace* trace = QrnSysTraceCreate("VelDictionary");
  if (trace == nullptr) return;
  const VelSourcePosition position = VEL_HERE("platform/objectmodeler/VelDictionary");
  if (iFile.empty()) {
    trace->Error(position, "%s", iText);
  } else {
    trace->Error(position, "%s:%u: %s", iFile, iLine, iText);
  }
  QrnSysTraceDestroy(trace);
}
