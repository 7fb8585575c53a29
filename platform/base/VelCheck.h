// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCheck.h Non-fatal checks: a broken expectation is reported and the program goes on.
#ifndef PLATFORM_BASE_VELCHECK_H
#define PLATFORM_BASE_VELCHECK_H

#include <string_view>

#include "platform/base/VelFailureReport.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelSourcePosition.h"

/// Hears every check, assertion and fatal log of the process, in the order in which they are raised. Observers are not
/// owned and must be removed before they die. An observer that raises a check itself is not called again for it.
class VEL_PLATFORM_API VelFailureObserver {
 public:
  virtual void OnFailure(const VelFailureReport& iReport) = 0;

 protected:
  ~VelFailureObserver() = default;
};

/// The non-fatal checks of the process. A report that no observer hears, or that each of them throws at, is one line on
/// the standard error stream, where empty parts are left out:
///
///     check failed: <message> { expression = <expression>, detail = <detail> } [<source>:<line>]
///
/// Assertions and fatal logs start with "assertion failed" and "fatal error"; an assertion's expression stands in its
/// message alone. Thread: the application thread. Re-entrancy: observers may raise checks, add and remove observers;
/// one added while a report is handed round waits for the next. What an observer throws ends there.
class VEL_PLATFORM_API VelCheck {
 public:
  /// Reports a check that failed and returns.
  /// @param[in] iExpression the tested expression or thing, as it is written in the source; may be empty
  /// @param[in] iMessage what is wrong
  /// @param[in] iDetail the datum at fault; may be empty
  static void Failed(VelSourcePosition iPosition, std::string_view iExpression, std::string_view iMessage,
                     std::string_view iDetail = {}) noexcept;

  /// Adds an observer at the end of the list. Adding one twice changes nothing.
  static void AddObserver(VelFailureObserver& iObserver);

  /// Takes an observer out. One that is not in the list changes nothing.
  static void RemoveObserver(VelFailureObserver& iObserver) noexcept;

  /// Hands a report of any kind to the observers, or to the standard error stream where there are none. The fatal-error
  /// service uses it before it stops the process.
  static void Publish(const VelFailureReport& iReport) noexcept;
};

#endif  // PLATFORM_BASE_VELCHECK_H
