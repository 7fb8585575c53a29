// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFatalErrorService.cpp Asks the handler in force, or publishes the report and aborts.
#include "platform/base/VelFatalErrorService.h"

#include <cstdio>
#include <string>
#include <utility>

#include "platform/base/VelCheck.h"
#include "platform/base/system/VelSystemProcess.h"

namespace {

constinit VelFatalErrorHandler* handlerInForce = nullptr;
constinit bool handlerRunning = false;

void StopProcess(const VelFailureReport& iReport) {
  VelCheck::Publish(iReport);
  // An abort drops what the program has printed and the C library still keeps.
  std::fflush(nullptr);
  VelSystemProcess::Abort();
}

void Raise(const VelFailureReport& iReport) noexcept {
  // A handler that raises a fatal error itself is not asked about it again: that would never end.
  if (handlerInForce == nullptr || handlerRunning) {
    StopProcess(iReport);
    return;
  }
  handlerRunning = true;
  try {
    handlerInForce->OnFatalError(iReport);
  } catch (...) {
    // Same as a return: the raising operation goes on to its failure code.
  }
  handlerRunning = false;
}

}  // namespace

void VelFatalErrorService::AssertionFailed(VelSourcePosition iPosition, std::string_view iExpression) noexcept {
  const std::string message = std::string("AssertionFailed:").append(iExpression);
  Raise({VelFailureKind::Assertion, iPosition, iExpression, message, {}});
}

void VelFatalErrorService::FatalLog(VelSourcePosition iPosition, std::string_view iText) noexcept {
  Raise({VelFailureKind::FatalLog, iPosition, {}, iText, {}});
}

VelFatalErrorHandler* VelFatalErrorService::SetHandler(VelFatalErrorHandler* iHandler) noexcept {
  return std::exchange(handlerInForce, iHandler);
}
