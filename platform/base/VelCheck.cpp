// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCheck.cpp Hands reports to the observers and prints those that nobody hears.
#include "platform/base/VelCheck.h"

#include <string>

#include "platform/base/VelFormat.h"
#include "platform/base/VelListenerList.h"
#include "platform/base/system/VelSystemStream.h"

namespace {

/// Never destroyed, so that a check raised while the process ends still finds its observers.
VelListenerList<VelFailureObserver>& Observers() {
  static auto& observers = *new VelListenerList<VelFailureObserver>;
  return observers;
}

const char* Heading(VelFailureKind iKind) {
  switch (iKind) {
    case VelFailureKind::Check:
      return "check failed";
    case VelFailureKind::Assertion:
      return "assertion failed";
    case VelFailureKind::FatalLog:
      return "fatal error";
  }
  return "";
}

std::string ToLine(const VelFailureReport& iReport) {
  std::string line = Heading(iReport.kind);
  // The message of an assertion already holds the expression.
  const bool expressionPrinted = !iReport.expression.empty() && iReport.kind != VelFailureKind::Assertion;
  if (expressionPrinted) line += VelFormat::ToText(": %s", iReport.expression);
  if (!iReport.message.empty()) line += VelFormat::ToText(": %s", iReport.message);
  if (!iReport.detail.empty()) line += VelFormat::ToText(" { detail = %s }", iReport.detail);
  const std::string_view source = iReport.position.source != nullptr ? iReport.position.source : "";
  if (!source.empty()) {
    line += iReport.position.line != 0 ? VelFormat::ToText(" [%s:%u]", source, iReport.position.line)
                                       : VelFormat::ToText(" [%s]", source);
  }
  return line + '\n';
}

}  // namespace

void VelCheck::Failed(VelSourcePosition iPosition, std::string_view iExpression, std::string_view iMessage,
                      std::string_view iDetail) noexcept {
  Publish({VelFailureKind::Check, iPosition, iExpression, iMessage, iDetail});
}

void VelCheck::AddObserver(VelFailureObserver& iObserver) { Observers().Add(iObserver); }

void VelCheck::RemoveObserver(VelFailureObserver& iObserver) noexcept { Observers().Remove(iObserver); }

void VelCheck::Publish(const VelFailureReport& iReport) noexcept {
  const bool heard = Observers().ForEach([&](VelFailureObserver& ioObserver) { ioObserver.OnFailure(iReport); });
  if (!heard) VelSystemStream::WriteToStandardError(ToLine(iReport));
}
