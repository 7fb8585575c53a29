// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceCheckObserver.cpp Writes a report as the text of an error.
#include "platform/trace/VelTraceCheckObserver.h"

#include <string>

#include "platform/base/VelFailureText.h"
#include "platform/base/system/VelSystemStream.h"
#include "platform/trace/VelTraceRegistry.h"

void VelTraceCheckObserver::OnFailure(const VelFailureReport& iReport) {
  VelTraceRegistry& registry = VelTraceRegistry::Get();
  const std::string text = VelFailureText::ToText(iReport);
  VelTraceRecord record;
  record.kind = VelTraceKind::Error;
  record.text = text;
  record.position = {iReport.position.source != nullptr ? iReport.position.source : "", iReport.position.line};
  const bool taken = registry.Emit(registry.Channel("VelCheck"), record);
  if (iReport.kind == VelFailureKind::Check) return;
  registry.Flush();
  // The process is about to stop: switches say what is worth a trace, not that it may stop without a word.
  if (!taken) VelSystemStream::WriteToStandardError(VelFailureText::ToLine(iReport));
}
