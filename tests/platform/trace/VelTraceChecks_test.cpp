// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceChecks_test.cpp Checks, assertions and fatal logs on their way into the traces.
#include <memory>
#include <stdexcept>
#include <vector>

#include "platform/base/VelCheck.h"
#include "platform/base/VelFatalErrorService.h"
#include "platform/trace/VelDiagnostics.h"
#include "tests/platform/trace/TraceTest.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

using VelTraceChecksTest = TraceTest;

struct Case {
  const char* name;
  VelFailureReport report;
  const char* expected;
};

const Case textCases[] = {
    {"message alone", {VelFailureKind::Check, {"s", 1}, "", "Odd", ""}, "Odd"},
    {"expression", {VelFailureKind::Check, {"s", 1}, "a < b", "Odd", ""}, "Odd { expression = a < b }"},
    {"detail", {VelFailureKind::Check, {"s", 1}, "", "Odd", "7"}, "Odd { detail = 7 }"},
    {"both", {VelFailureKind::Check, {"s", 1}, "a < b", "Odd", "7"}, "Odd { expression = a < b, detail = 7 }"},
    {"no message", {VelFailureKind::Check, {"s", 1}, "a < b", "", ""}, "{ expression = a < b }"},
    {"percent signs", {VelFailureKind::Check, {"s", 1}, "%s", "100%d", "%x"}, "100%d { expression = %s, detail = %x }"},
    {"assertion", {VelFailureKind::Assertion, {"s", 1}, "a < b", "AssertionFailed:a < b", ""}, "AssertionFailed:a < b"},
    {"fatal log", {VelFailureKind::FatalLog, {"s", 1}, "", "Lost", ""}, "Lost"},
};

TEST_F(VelTraceChecksTest, Report_OfAnyKind_BecomesAnErrorWithItsData) {
  for (const Case& testCase : textCases) {
    SCOPED_TRACE(testCase.name);
    recorder_.Clear();
    VelCheck::Publish(testCase.report);
    EXPECT_EQ(recorder_.Texts("VelCheck", VelTraceKind::Error), Texts{testCase.expected});
    EXPECT_EQ(recorder_.Entries().size(), 1U);
  }
}

TEST_F(VelTraceChecksTest, Check_KeepsItsPosition) {
  VelCheck::Failed({"src/model/Thing", 209}, "", "Odd");
  VelCheck::Failed({nullptr, 3}, "", "Nowhere");
  ASSERT_EQ(recorder_.Entries().size(), 2U);
  EXPECT_EQ(recorder_.Entries()[0].source, "src/model/Thing");
  EXPECT_EQ(recorder_.Entries()[0].line, 209U);
  EXPECT_EQ(recorder_.Entries()[1].source, "");
}

TEST_F(VelTraceChecksTest, Check_FlushesNothing_WhatStopsTheProcessFlushesEverySink) {
  VelTraceRecorder second;
  VelTraceService::AddSink(second);
  VelCheck::Failed({"s", 1}, "", "Odd");
  EXPECT_EQ(recorder_.FlushCount(), 0);
  VelCheck::Publish({VelFailureKind::Assertion, {"s", 1}, "a", "AssertionFailed:a", ""});
  EXPECT_EQ(recorder_.FlushCount(), 1);
  VelCheck::Publish({VelFailureKind::FatalLog, {"s", 1}, "", "Lost", ""});
  EXPECT_EQ(recorder_.FlushCount(), 2);
  EXPECT_EQ(second.FlushCount(), 2);
  VelTraceService::RemoveSink(second);
}

TEST_F(VelTraceChecksTest, Check_WithItsChannelOff_ReachesNoSinkAndIsNotPrinted) {
  VelTraceService::SetSwitches("VelCheck=off");
  EXPECT_EQ(PrintedBy([] { VelCheck::Failed({"s", 1}, "", "Odd"); }), "");
  EXPECT_TRUE(recorder_.Entries().empty());
}

struct SilenceCase {
  const char* name;
  void (*silence)();  ///< Done after Reset, with the standard error sink in the list.
};

class ThrowingSink final : public VelTraceSink {
 public:
  void Write(const VelTraceRecord&) override { throw std::runtime_error("sink"); }
  void Flush() override { throw std::runtime_error("sink"); }
};

void RemoveEverySink() { VelTraceService::RemoveSink(VelTraceService::StandardErrorSink()); }

const SilenceCase silenceCases[] = {
    {"every channel off", [] { VelTraceService::SetSwitches("*=off"); }},
    {"channel off", [] { VelTraceService::SetSwitches("VelCheck=off"); }},
    {"no sink", [] { RemoveEverySink(); }},
    {"a sink that throws",
     [] {
       static ThrowingSink sink;
       RemoveEverySink();
       VelTraceService::AddSink(sink);
     }},
    {"out of service", [] { VelTraceService::SetAvailable(false); }},
};

TEST_F(VelTraceChecksTest, WhatStopsTheProcess_WhereNoSinkTakesIt_IsTheLineOfTheChecksThemselvesOnce) {
  for (const SilenceCase& test : silenceCases) {
    for (const bool collected : {false, true}) {
      SCOPED_TRACE(testing::Message() << test.name << (collected ? ", with a scope" : ""));
      VelTraceService::Reset();
      const auto scope = collected ? std::make_unique<VelDiagnostics>() : nullptr;
      test.silence();
      EXPECT_EQ(
          PrintedBy([] {
            VelCheck::Publish({VelFailureKind::Assertion, {"src/Thing", 9}, "a < b", "AssertionFailed:a < b", ""});
          }),
          "assertion failed: AssertionFailed:a < b [src/Thing:9]\n");
      EXPECT_EQ(PrintedBy([] {
                  VelCheck::Publish({VelFailureKind::FatalLog, {"src/Thing", 9}, "", "Lost", ""});
                }),
                "fatal error: Lost [src/Thing:9]\n");
    }
  }
}

TEST_F(VelTraceChecksTest, WhatStopsTheProcess_WhereAnySinkTakesIt_IsNotPrintedBesides) {
  ThrowingSink thrower;
  VelTraceService::AddSink(thrower);
  EXPECT_EQ(PrintedBy([] { VelCheck::Publish({VelFailureKind::FatalLog, {"s", 1}, "", "Lost", ""}); }), "");
  EXPECT_EQ(recorder_.Texts("VelCheck"), Texts{"Lost"});
  VelTraceService::RemoveSink(thrower);
}

TEST_F(VelTraceChecksTest, Check_ByDefault_IsPrintedByTheStreamSinkOnce) {
  VelTraceService::Reset();
  EXPECT_EQ(PrintedBy([] {
              VelCheck::Failed({"src/Thing", 3}, "", "Odd", "7");
            }),
            "[error] VelCheck: Odd { detail = 7 } (src/Thing:3)\n");
}

TEST_F(VelTraceChecksTest, Check_WhileTheTracesAreOutOfService_IsTheLineOfTheChecksThemselves) {
  VelTraceService::SetAvailable(false);
  EXPECT_EQ(PrintedBy([] { VelCheck::Failed({"src/Thing", 3}, "", "Odd"); }), "check failed: Odd [src/Thing:3]\n");
  VelTraceService::SetAvailable(true);
  VelCheck::Failed({"src/Thing", 3}, "", "Odd");
  EXPECT_EQ(recorder_.Texts("VelCheck"), Texts{"Odd"});
}

TEST_F(VelTraceChecksTest, Check_ReachesTheOtherObserversToo) {
  const RecordingFailureObserver observer;
  VelCheck::Failed({"s", 1}, "", "Odd");
  EXPECT_EQ(observer.Messages(), Texts{"Odd"});
  EXPECT_EQ(recorder_.Texts("VelCheck"), Texts{"Odd"});
}

TEST_F(VelTraceChecksTest, Sink_ThatRaisesAChecksForEveryRecord_ComesToAnEnd) {
  class CheckingSink final : public VelTraceSink {
   public:
    void Write(const VelTraceRecord&) override {
      ++writes;
      VelCheck::Failed({"s", 1}, "", "From the sink");
    }
    void Flush() override {}
    int writes = 0;
  };
  CheckingSink first;
  CheckingSink second;
  VelTraceService::AddSink(first);
  VelTraceService::AddSink(second);
  const OpenChannel channel("Channel");
  PrintedBy([&] { channel->Warning("outer"); });
  EXPECT_GE(first.writes, 1);
  EXPECT_LE(first.writes + second.writes, 8);
  EXPECT_EQ(recorder_.Texts("Channel"), Texts{"outer"});
  VelTraceService::RemoveSink(first);
  VelTraceService::RemoveSink(second);
}

TEST(VelTraceChecksDeathTest, FatalLog_WithoutHandler_IsATraceBeforeTheAbort) {
  EXPECT_DEATH(
      {
        VelTraceService::Reset();
        VelFatalErrorService::FatalLog({"src/Thing", 9}, "Lost");
      },
      "\\[error\\] VelCheck: Lost \\(src/Thing:9\\)");
}

TEST(VelTraceChecksDeathTest, FatalLog_WhereNoSinkTakesIt_IsPrintedBeforeTheAbort) {
  for (const SilenceCase& test : silenceCases) {
    SCOPED_TRACE(test.name);
    EXPECT_DEATH(
        {
          VelTraceService::Reset();
          test.silence();
          VelFatalErrorService::FatalLog({"src/Thing", 9}, "Lost");
        },
        "^fatal error: Lost \\[src/Thing:9\\]\n$");
  }
}

TEST(VelTraceChecksDeathTest, Assertion_WhereNoSinkTakesIt_IsPrintedBeforeTheAbort) {
  for (const SilenceCase& test : silenceCases) {
    SCOPED_TRACE(test.name);
    EXPECT_DEATH(
        {
          VelTraceService::Reset();
          test.silence();
          VelFatalErrorService::AssertionFailed({"src/Thing", 9}, "a < b");
        },
        "^assertion failed: AssertionFailed:a < b \\[src/Thing:9\\]\n$");
  }
}

TEST(VelTraceChecksDeathTest, Assertion_BeforeAnyTraceWasUsed_IsTheLineOfTheChecksThemselves) {
  EXPECT_DEATH(VelFatalErrorService::AssertionFailed({"src/Thing", 9}, "a < b"),
               "assertion failed: AssertionFailed:a < b \\[src/Thing:9\\]");
}

TEST_F(VelTraceChecksTest, FatalError_WithARecordingHandler_IsNoTrace) {
  class Handler final : public VelFatalErrorHandler {
   public:
    void OnFatalError(const VelFailureReport& iReport) override { messages.emplace_back(iReport.message); }
    std::vector<std::string> messages;
  };
  Handler handler;
  VelFatalErrorHandler* const previous = VelFatalErrorService::SetHandler(&handler);
  VelFatalErrorService::FatalLog({"src/Thing", 9}, "Lost");
  VelFatalErrorService::SetHandler(previous);
  EXPECT_EQ(handler.messages, Texts{"Lost"});
  EXPECT_TRUE(recorder_.Entries().empty());
}

}  // namespace
