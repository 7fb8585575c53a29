// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFailureText.cpp Puts reports of checks, assertions and fatal logs into words.
#include "platform/base/VelFailureText.h"

#include "platform/base/VelFormat.h"

namespace {

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

}  // namespace

std::string VelFailureText::ToText(const VelFailureReport& iReport) {
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
  return VelFormat::ToText("%s%s{ %s }", iReport.message, iReport.message.empty() ? "" : " ", data);
}

std::string VelFailureText::ToLine(const VelFailureReport& iReport) {
  std::string line = VelFormat::ToText("%s: %s", Heading(iReport.kind), ToText(iReport));
  const std::string_view source = iReport.position.source != nullptr ? iReport.position.source : "";
  if (!source.empty()) {
    line += iReport.position.line != 0 ? VelFormat::ToText(" [%s:%u]", source, iReport.position.line)
                                       : VelFormat::ToText(" [%s]", source);
  }
  return line + '\n';
}
