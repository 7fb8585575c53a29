// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCheck_test.cpp Who hears a check, and the line that is printed when nobody does.
#include "platform/base/VelCheck.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/VelFailureRecorder.h"

namespace {

constexpr VelSourcePosition here{"src/model/Thing", 12};

/// Does something of the test's choice when it hears a report.
class ReactingObserver final : public VelFailureObserver {
 public:
  explicit ReactingObserver(std::function<void()> iReaction) : reaction_(std::move(iReaction)) {
    VelCheck::AddObserver(*this);
  }
  ~ReactingObserver() { VelCheck::RemoveObserver(*this); }
  ReactingObserver(const ReactingObserver&) = delete;
  ReactingObserver& operator=(const ReactingObserver&) = delete;

  void OnFailure(const VelFailureReport&) override {
    ++calls;
    reaction_();
  }

  int calls = 0;

 private:
  std::function<void()> reaction_;
};

std::string PrintedBy(const std::function<void()>& iAction) {
  ::testing::internal::CaptureStderr();
  iAction();
  return ::testing::internal::GetCapturedStderr();
}

struct LineCase {
  const char* name;
  VelFailureReport report;
  const char* expected;
};

const LineCase lineCases[] = {
    {"everything",
     {VelFailureKind::Check, here, "index < count", "Out of range", "7"},
     "check failed: Out of range { expression = index < count, detail = 7 } [src/model/Thing:12]\n"},
    {"no expression",
     {VelFailureKind::Check, here, "", "Out of range", "7"},
     "check failed: Out of range { detail = 7 } [src/model/Thing:12]\n"},
    {"no detail",
     {VelFailureKind::Check, here, "index < count", "Out of range", ""},
     "check failed: Out of range { expression = index < count } [src/model/Thing:12]\n"},
    {"no message",
     {VelFailureKind::Check, here, "index < count", "", "7"},
     "check failed: { expression = index < count, detail = 7 } [src/model/Thing:12]\n"},
    {"no line", {VelFailureKind::Check, {"Thing", 0}, "", "Odd", ""}, "check failed: Odd [Thing]\n"},
    {"no source", {VelFailureKind::Check, {"", 0}, "", "Odd", ""}, "check failed: Odd\n"},
    {"null source", {VelFailureKind::Check, {nullptr, 3}, "", "Odd", ""}, "check failed: Odd\n"},
    {"percent signs are text",
     {VelFailureKind::Check, {"", 0}, "", "100%s", "%d"},
     "check failed: 100%s { detail = %d }\n"},
    {"assertion",
     {VelFailureKind::Assertion, here, "a == b", "AssertionFailed:a == b", ""},
     "assertion failed: AssertionFailed:a == b [src/model/Thing:12]\n"},
    {"fatal log", {VelFailureKind::FatalLog, here, "", "Lost", ""}, "fatal error: Lost [src/model/Thing:12]\n"},
};

TEST(VelCheck, Publish_WhileNobodyObserves_PrintsOneLine) {
  for (const LineCase& testCase : lineCases) {
    SCOPED_TRACE(testCase.name);
    EXPECT_EQ(PrintedBy([&] { VelCheck::Publish(testCase.report); }), testCase.expected);
  }
}

TEST(VelCheck, Failed_WhileObserved_HandsEverythingOverAndPrintsNothing) {
  const RecordingFailureObserver recorder;
  EXPECT_EQ(PrintedBy([] { VelCheck::Failed(here, "index < count", "Out of range", "7"); }), "");
  ASSERT_EQ(recorder.Failures().size(), 1U);
  const RecordedFailure& failure = recorder.Failures().front();
  EXPECT_EQ(failure.kind, VelFailureKind::Check);
  EXPECT_EQ(failure.source, "src/model/Thing");
  EXPECT_EQ(failure.line, 12U);
  EXPECT_EQ(failure.expression, "index < count");
  EXPECT_EQ(failure.message, "Out of range");
  EXPECT_EQ(failure.detail, "7");
}

TEST(VelCheck, Failed_WithSeveralObservers_ReachesEachOnceEvenIfAddedTwice) {
  RecordingFailureObserver first;
  const RecordingFailureObserver second;
  VelCheck::AddObserver(first);
  VelCheck::Failed(here, "", "Odd");
  EXPECT_EQ(first.Messages(), std::vector<std::string>{"Odd"});
  EXPECT_EQ(second.Messages(), std::vector<std::string>{"Odd"});
}

TEST(VelCheck, RemoveObserver_OfTheLastOne_HasReportsPrintedAgain) {
  { const RecordingFailureObserver recorder; }
  EXPECT_EQ(PrintedBy([] { VelCheck::Failed({"", 0}, "", "Odd"); }), "check failed: Odd\n");
}

TEST(VelCheck, Observer_ThatThrows_KeepsTheReportFromNobody) {
  const ReactingObserver thrower([] { throw std::runtime_error("observer"); });
  const RecordingFailureObserver recorder;
  VelCheck::Failed(here, "", "Odd");
  EXPECT_EQ(thrower.calls, 1);
  EXPECT_EQ(recorder.Messages(), std::vector<std::string>{"Odd"});
}

TEST(VelCheck, Observer_ThatRaisesACheckItself_IsNotCalledForIt) {
  const ReactingObserver raiser([] { VelCheck::Failed(here, "", "Inner"); });
  const RecordingFailureObserver recorder;
  VelCheck::Failed(here, "", "Outer");
  EXPECT_EQ(raiser.calls, 1);
  EXPECT_EQ(recorder.Messages(), (std::vector<std::string>{"Inner", "Outer"}));
}

TEST(VelCheck, Check_RaisedByTheOnlyObserver_IsPrinted) {
  const ReactingObserver raiser([] { VelCheck::Failed({"", 0}, "", "Inner"); });
  EXPECT_EQ(PrintedBy([] { VelCheck::Failed(here, "", "Outer"); }), "check failed: Inner\n");
}

TEST(VelCheck, Observer_RemovedWhileAReportIsHandedRound_IsNotCalled) {
  RecordingFailureObserver second;
  VelCheck::RemoveObserver(second);
  const ReactingObserver remover([&] { VelCheck::RemoveObserver(second); });
  VelCheck::AddObserver(second);
  VelCheck::Failed(here, "", "Odd");
  EXPECT_TRUE(second.Failures().empty());
}

}  // namespace
