// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFailureReport.h What a check, an assertion or the fatal log hands to those who listen.
#ifndef PLATFORM_BASE_VELFAILUREREPORT_H
#define PLATFORM_BASE_VELFAILUREREPORT_H

#include <string_view>

#include "platform/base/VelSourcePosition.h"

/// How grave a report is.
enum class VelFailureKind {
  Check,      ///< Reported, then the program goes on.
  Assertion,  ///< Stops the process, through the fatal-error service.
  FatalLog,   ///< Stops the process, through the fatal-error service.
};

/// One report. The texts live only as long as the call that hands the report over.
struct VelFailureReport {
  VelFailureKind kind;
  VelSourcePosition position;
  std::string_view expression;  ///< The tested expression or the name of the tested thing; may be empty.
  std::string_view message;     ///< What happened. For an assertion "AssertionFailed:" and the expression.
  std::string_view detail;      ///< The datum at fault (an unknown word, an index); may be empty.
};

#endif  // PLATFORM_BASE_VELFAILUREREPORT_H
