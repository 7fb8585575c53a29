// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceCheckObserver.cpp Writes a report as the text of an error.
#include "platform/trace/VelTraceCheckObserver.h"

#include <string>

#include "platform/base/VelFormat.h"
#include "platform/trace/VelTraceRegistry.h"

namespace {

std::string ToText(const VelFailureReport& iReport) {
  std::string data;
  // The message of an assertion already holds the expression.
  if (!iReport.expression.empty() && iReport.kind != VelFailureKind::Assertion) {
    data = VelFormat::ToText("expression = %s", iReport.expression);
  }
  if (!iReport.detail.empty()) {
    if (!data.empty()) data += ", ";
    data += VelFormat::ToText("detail = %s", iReport.detail);
  }
  if (data.empty()) return std::string(iReport.message);
  return VelFormat::ToText("%s { %s }", iReport.message, data);
}

}  // namespace

void VelTraceCheckObserver::OnFailure(const VelFailureReport& iReport) {
  VelTraceRegistry& registry = VelTraceRegistry::Get();
  const std::string text = ToText(iReport);
  VelTraceRecord record;
  record.kind = VelTraceKind::Error;
  record.text = text;
  record.position = {iReport.position.source != nullptr ? iReport.position.source : "", iReport.position.line};
  registry.Emit(registry.Channel("VelCheck"), record);
  if (iReport.kind != VelFailureKind::Check) registry.Flush();
}
