// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFatalErrorService.h Stops the process on an assertion or a fatal log; a test can have it recorded instead.
#ifndef PLATFORM_BASE_VELFATALERRORSERVICE_H
#define PLATFORM_BASE_VELFATALERRORSERVICE_H

#include <string_view>

#include "platform/base/VelFailureReport.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelSourcePosition.h"

/// Decides what a fatal error does. The handler in force by default publishes the report (VelCheck::Publish), flushes
/// and aborts. A handler that returns makes the raising operation return the failure code that it documents; one that
/// throws counts as having returned. A fatal error that a handler raises itself takes the default way.
class VEL_PLATFORM_API VelFatalErrorHandler {
 public:
  virtual void OnFatalError(const VelFailureReport& iReport) = 0;

 protected:
  ~VelFatalErrorHandler() = default;
};

/// The one way by which the system stops its process.
class VEL_PLATFORM_API VelFatalErrorService {
 public:
  /// Raises "AssertionFailed:" followed by the expression.
  static void AssertionFailed(VelSourcePosition iPosition, std::string_view iExpression) noexcept;

  /// Raises a fatal log with its text.
  static void FatalLog(VelSourcePosition iPosition, std::string_view iText) noexcept;

  /// Installs a handler, which is not owned.
  /// @param[in] iHandler null puts the default one back
  /// @return the handler that was in force, null for the default one
  static VelFatalErrorHandler* SetHandler(VelFatalErrorHandler* iHandler) noexcept;
};

#endif  // PLATFORM_BASE_VELFATALERRORSERVICE_H
