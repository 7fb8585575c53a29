// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file FatalErrorRecorder.h Notes the fatal errors that are raised while it lives, and lets the process go on.
#ifndef TESTS_RENDERINGSHADER_BINDINGS_FATALERRORRECORDER_H
#define TESTS_RENDERINGSHADER_BINDINGS_FATALERRORRECORDER_H

#include <string>
#include <vector>

#include "platform/base/VelFatalErrorService.h"

class FatalErrorRecorder final : public VelFatalErrorHandler {
 public:
  FatalErrorRecorder() : before_(VelFatalErrorService::SetHandler(this)) {}
  ~FatalErrorRecorder() { VelFatalErrorService::SetHandler(before_); }
  FatalErrorRecorder(const FatalErrorRecorder&) = delete;
  FatalErrorRecorder& operator=(const FatalErrorRecorder&) = delete;

  void OnFatalError(const VelFailureReport& iReport) override {
    messages_.emplace_back(iReport.message);
    raised_.push_back(std::string(iReport.position.source) + ":" + std::to_string(iReport.position.line) + " " +
                      messages_.back());
  }

  /// @return the messages alone, in order
  const std::vector<std::string>& Messages() const noexcept { return messages_; }

  /// @return each as "source:line message"
  const std::vector<std::string>& Raised() const noexcept { return raised_; }

 private:
  VelFatalErrorHandler* before_;
  std::vector<std::string> messages_;
  std::vector<std::string> raised_;
};

#endif  // TESTS_RENDERINGSHADER_BINDINGS_FATALERRORRECORDER_H
