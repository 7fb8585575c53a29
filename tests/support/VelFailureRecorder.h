// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFailureRecorder.h Records the checks, assertions and fatal logs that are raised while it lives.
#ifndef TESTS_SUPPORT_VELFAILURERECORDER_H
#define TESTS_SUPPORT_VELFAILURERECORDER_H

#include <string>
#include <vector>

#include "platform/base/VelCheck.h"

/// A copy of one report, which outlives the call that raised it.
struct RecordedFailure {
  VelFailureKind kind;
  std::string source;
  unsigned line;
  std::string expression;
  std::string message;
  std::string detail;
};

/// Observes failures from its construction to its destruction, and so also keeps them off the standard error stream.
class RecordingFailureObserver final : public VelFailureObserver {
 public:
  RecordingFailureObserver() { VelCheck::AddObserver(*this); }
  ~RecordingFailureObserver() { VelCheck::RemoveObserver(*this); }

  RecordingFailureObserver(const RecordingFailureObserver&) = delete;
  RecordingFailureObserver& operator=(const RecordingFailureObserver&) = delete;

  void OnFailure(const VelFailureReport& iReport) override {
    failures_.push_back({iReport.kind, iReport.position.source, iReport.position.line, std::string(iReport.expression),
                         std::string(iReport.message), std::string(iReport.detail)});
  }

  /// What was raised so far, in order.
  const std::vector<RecordedFailure>& Failures() const { return failures_; }

  /// @return the messages alone, in order, for a comparison at one glance
  std::vector<std::string> Messages() const {
    std::vector<std::string> messages;
    for (const RecordedFailure& failure : failures_) messages.push_back(failure.message);
    return messages;
  }

  void Clear() { failures_.clear(); }

 private:
  std::vector<RecordedFailure> failures_;
};

#endif  // TESTS_SUPPORT_VELFAILURERECORDER_H
