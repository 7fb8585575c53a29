// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFatalErrorService_test.cpp Fatal errors end the process, or go to the handler of a test.
#include "platform/base/VelFatalErrorService.h"

#include <csignal>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/VelFailureRecorder.h"

namespace {

constexpr VelSourcePosition here{"src/model/Thing", 209};

/// Records fatal errors, and does something of the test's choice about them.
class RecordingHandler final : public VelFatalErrorHandler {
 public:
  explicit RecordingHandler(std::function<void()> iReaction = [] {}) : reaction_(std::move(iReaction)) {
    previous_ = VelFatalErrorService::SetHandler(this);
  }
  ~RecordingHandler() { VelFatalErrorService::SetHandler(previous_); }
  RecordingHandler(const RecordingHandler&) = delete;
  RecordingHandler& operator=(const RecordingHandler&) = delete;

  void OnFatalError(const VelFailureReport& iReport) override {
    reports.push_back({iReport.kind, iReport.position.source, iReport.position.line, std::string(iReport.expression),
                       std::string(iReport.message), std::string(iReport.detail)});
    reaction_();
  }

  std::vector<RecordedFailure> reports;

 private:
  std::function<void()> reaction_;
  VelFatalErrorHandler* previous_ = nullptr;
};

TEST(VelFatalErrorService, AssertionFailed_WithAHandlerThatReturns_ReturnsWithTheReportHandedOver) {
  const RecordingHandler handler;
  VelFatalErrorService::AssertionFailed(here, "count > 0");
  ASSERT_EQ(handler.reports.size(), 1U);
  const RecordedFailure& report = handler.reports.front();
  EXPECT_EQ(report.kind, VelFailureKind::Assertion);
  EXPECT_EQ(report.message, "AssertionFailed:count > 0");
  EXPECT_EQ(report.expression, "count > 0");
  EXPECT_EQ(report.source, "src/model/Thing");
  EXPECT_EQ(report.line, 209U);
}

TEST(VelFatalErrorService, FatalLog_WithAHandlerThatReturns_ReturnsWithTheReportHandedOver) {
  const RecordingHandler handler;
  VelFatalErrorService::FatalLog(here, "The catalog is damaged");
  ASSERT_EQ(handler.reports.size(), 1U);
  EXPECT_EQ(handler.reports.front().kind, VelFailureKind::FatalLog);
  EXPECT_EQ(handler.reports.front().message, "The catalog is damaged");
  EXPECT_EQ(handler.reports.front().expression, "");
}

TEST(VelFatalErrorService, Handler_InForce_KeepsTheReportFromTheObservers) {
  const RecordingHandler handler;
  const RecordingFailureObserver observer;
  VelFatalErrorService::FatalLog(here, "Lost");
  EXPECT_TRUE(observer.Failures().empty());
}

TEST(VelFatalErrorService, Handler_ThatThrows_LetsTheCallReturn) {
  const RecordingHandler handler([] { throw std::runtime_error("handler"); });
  VelFatalErrorService::FatalLog(here, "First");
  VelFatalErrorService::FatalLog(here, "Second");
  EXPECT_EQ(handler.reports.size(), 2U);
}

TEST(VelFatalErrorService, SetHandler_HandsBackTheOneThatWasInForce) {
  EXPECT_EQ(VelFatalErrorService::SetHandler(nullptr), nullptr);
  RecordingHandler outer;
  {
    const RecordingHandler inner;
    VelFatalErrorService::FatalLog(here, "Inner");
  }
  EXPECT_EQ(VelFatalErrorService::SetHandler(nullptr), &outer);
}

TEST(VelFatalErrorServiceDeathTest, AssertionFailed_WithoutHandler_PrintsAndAborts) {
  EXPECT_DEATH(VelFatalErrorService::AssertionFailed(here, "count > 0"),
               "assertion failed: AssertionFailed:count > 0 \\[src/model/Thing:209\\]");
}

TEST(VelFatalErrorServiceDeathTest, FatalLog_WithoutHandler_TellsTheObserversAndAborts) {
  class PrintingObserver final : public VelFailureObserver {
   public:
    void OnFailure(const VelFailureReport& iReport) override {
      std::fprintf(stderr, "observed %s\n", std::string(iReport.message).c_str());
    }
  };
  EXPECT_EXIT(
      {
        PrintingObserver observer;
        VelCheck::AddObserver(observer);
        VelFatalErrorService::FatalLog(here, "Lost");
      },
      ::testing::KilledBySignal(SIGABRT), "observed Lost");
}

TEST(VelFatalErrorServiceDeathTest, FatalLog_FromInsideOfTheHandler_AbortsInsteadOfAskingItAgain) {
  EXPECT_DEATH(
      {
        const RecordingHandler handler([] { VelFatalErrorService::FatalLog(here, "Inner"); });
        VelFatalErrorService::FatalLog(here, "Outer");
      },
      "fatal error: Inner");
}

TEST(VelFatalErrorServiceDeathTest, FatalLog_WithoutHandler_WritesOutWhatTheProgramPrinted) {
  EXPECT_DEATH(
      {
        // A full buffer, as of a stream that goes to a file.
        std::setvbuf(stderr, nullptr, _IOFBF, 4096);
        std::fputs("printed before", stderr);
        VelFatalErrorService::FatalLog(here, "Lost");
      },
      "printed before");
}

}  // namespace
