// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceCheckObserver.cpp Writes a report as the text of an error.
#include "platform/trace/VelTraceCheckObserver.h"

#include <string>

#include "platform/base/VelFailureText.h"
#include "platform/trace/VelTraceRegistry.h"

void VelTraceCheckObserver::OnFailure(const VelFailureReport& iReport) {
  VelTraceRegistry& registry = VelTraceRegistry::Get();
  const std::string text = VelFailureText::ToText(iReport);
  VelTraceRecord record;
  record.kind = VelTraceKind::Error;
  record.text = text;
  record.position = {iReport.position.source != nullptr ? iReport.position.source : "", iReport.position.line};
  registry.Emit(registry.Channel("VelCheck"), record);
  if (iReport.kind != VelFailureKind::Check) registry.Flush();
}
