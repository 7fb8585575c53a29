// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFailureText.h Puts reports of checks, assertions and fatal logs into words; inside of the platform only.
#ifndef PLATFORM_BASE_VELFAILURETEXT_H
#define PLATFORM_BASE_VELFAILURETEXT_H

#include <string>

#include "platform/base/VelFailureReport.h"

/// One wording, whether a report becomes a trace or a line of its own. Empty parts are left out.
class VelFailureText {
 public:
  /// @return "message { expression = ..., detail = ... }"; an assertion's expression stands in its message alone
  static std::string ToText(const VelFailureReport& iReport);

  /// @return "check failed: text [source:line]" with its line end; "assertion failed" and "fatal error" for the others
  static std::string ToLine(const VelFailureReport& iReport);
};

#endif  // PLATFORM_BASE_VELFAILURETEXT_H
