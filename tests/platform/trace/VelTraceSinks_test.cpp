// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceSinks_test.cpp The list of sinks, the lines on the standard error stream, and sinks that misbehave.
#include <functional>
#include <stdexcept>
#include <utility>

#include "platform/trace/VelClassTrace.h"
#include "platform/trace/VelTraceStreamSink.h"
#include "tests/platform/trace/TraceTest.h"

namespace {

using VelTraceSinksTest = TraceTest;

/// Counts, then does something of the test's choice.
class ReactingSink final : public VelTraceSink {
 public:
  explicit ReactingSink(std::function<void()> iReaction = [] {}) : reaction_(std::move(iReaction)) {
    VelTraceService::AddSink(*this);
  }
  ~ReactingSink() { VelTraceService::RemoveSink(*this); }
  ReactingSink(const ReactingSink&) = delete;
  ReactingSink& operator=(const ReactingSink&) = delete;

  void Write(const VelTraceRecord&) override {
    ++writes;
    reaction_();
  }
  void Flush() override {
    ++flushes;
    reaction_();
  }

  int writes = 0;
  int flushes = 0;

 private:
  std::function<void()> reaction_;
};

struct LineCase {
  const char* name;
  VelTraceRecord record;
  const char* expected;
};

VelTraceRecord Record(VelTraceKind iKind, const char* iText, VelSourcePosition iPosition = {"", 0}, int iLevel = 0) {
  return {iKind, iLevel, "Channel", iText, iPosition, 5, 1};
}

const LineCase lineCases[] = {
    {"information", Record(VelTraceKind::Information, "text"), "[info] Channel: text\n"},
    {"warning", Record(VelTraceKind::Warning, "text"), "[warning] Channel: text\n"},
    {"error", Record(VelTraceKind::Error, "text", {"src/Thing", 12}), "[error] Channel: text (src/Thing:12)\n"},
    {"error without line", Record(VelTraceKind::Error, "text", {"Thing", 0}), "[error] Channel: text (Thing)\n"},
    {"error without source", Record(VelTraceKind::Error, "text"), "[error] Channel: text\n"},
    {"class trace", Record(VelTraceKind::ClassTrace, "text\n", {"", 0}, 3), "[class 3] Channel: text\n"},
    {"class trace without line end", Record(VelTraceKind::ClassTrace, "text", {"", 0}, 9), "[class 9] Channel: text\n"},
    {"two line ends", Record(VelTraceKind::Warning, "text\n\n"), "[warning] Channel: text\n\n"},
    {"error with line end", Record(VelTraceKind::Error, "text\n", {"Thing", 1}), "[error] Channel: text (Thing:1)\n"},
    {"empty text", Record(VelTraceKind::Warning, ""), "[warning] Channel: \n"},
    {"percent signs", Record(VelTraceKind::Warning, "100%s"), "[warning] Channel: 100%s\n"},
};

TEST_F(VelTraceSinksTest, StreamSink_PrintsOneLinePerRecord) {
  VelTraceStreamSink sink;
  for (const LineCase& testCase : lineCases) {
    SCOPED_TRACE(testCase.name);
    EXPECT_EQ(PrintedBy([&] { sink.Write(testCase.record); }), testCase.expected);
  }
}

TEST_F(VelTraceSinksTest, Default_IsTheStandardErrorStreamAlone) {
  VelTraceService::Reset();
  const OpenChannel channel("Channel");
  const std::string printed = PrintedBy([&] {
    channel->Info("not printed");
    channel->Warning("printed");
  });
  EXPECT_EQ(printed, "[warning] Channel: printed\n");
  EXPECT_TRUE(recorder_.Entries().empty()) << "the reset has taken the recorder out";
}

TEST_F(VelTraceSinksTest, Sinks_GetEachRecordInTheOrderOfAdding_OnceEach) {
  std::string order;
  ReactingSink first([&] { order += 'a'; });
  const ReactingSink second([&] { order += 'b'; });
  VelTraceService::AddSink(first);
  OpenChannel("Channel")->Warning("text");
  EXPECT_EQ(order, "ab");
  EXPECT_EQ(recorder_.Entries().size(), 1U);
}

TEST_F(VelTraceSinksTest, Flush_ReachesEverySink_AlsoIfOneThrows) {
  const ReactingSink first([] { throw std::runtime_error("sink"); });
  const ReactingSink second;
  VelTraceService::Flush();
  EXPECT_EQ(first.flushes, 1);
  EXPECT_EQ(second.flushes, 1);
  EXPECT_EQ(recorder_.FlushCount(), 1);
}

TEST_F(VelTraceSinksTest, Sink_ThatThrows_KeepsTheRecordFromNobody) {
  const ReactingSink thrower([] { throw std::runtime_error("sink"); });
  const ReactingSink after;
  const OpenChannel channel("Channel");
  channel->Warning("one");
  channel->Warning("two");
  EXPECT_EQ(thrower.writes, 2);
  EXPECT_EQ(after.writes, 2);
}

TEST_F(VelTraceSinksTest, Sink_ThatTraces_IsLeftOutOfWhatItEmits) {
  const OpenChannel channel("Channel");
  const OpenChannel ofTheSink("OfTheSink");
  const ReactingSink tracer([&] { ofTheSink->Warning("nested"); });
  channel->Warning("outer");
  EXPECT_EQ(tracer.writes, 1);
  EXPECT_EQ(recorder_.Texts("Channel"), Texts{"outer"});
  EXPECT_EQ(recorder_.Texts("OfTheSink"), Texts{"nested"});
}

TEST_F(VelTraceSinksTest, TwoSinks_ThatBothTrace_ComeToAnEnd) {
  const OpenChannel channel("Channel");
  const ReactingSink first([&] { channel->Warning("first"); });
  const ReactingSink second([&] { channel->Warning("second"); });
  channel->Warning("outer");
  EXPECT_EQ(first.writes, 2);
  EXPECT_EQ(second.writes, 2);
}

TEST_F(VelTraceSinksTest, Sink_ThatRemovesTheNextOrAddsOne_LeavesTheListSound) {
  const OpenChannel channel("Channel");
  ReactingSink* next = nullptr;
  VelTraceRecorder added;
  const ReactingSink changer([&] {
    VelTraceService::RemoveSink(*next);
    VelTraceService::AddSink(added);
  });
  ReactingSink removed;
  next = &removed;
  channel->Warning("one");
  EXPECT_EQ(removed.writes, 0);
  EXPECT_TRUE(added.Entries().empty());
  channel->Warning("two");
  EXPECT_EQ(added.Texts(), Texts{"two"});
  VelTraceService::RemoveSink(added);
}

TEST_F(VelTraceSinksTest, Sink_ThatResetsTheService_EndsTheWalk) {
  const OpenChannel channel("Channel");
  const ReactingSink resetter([] { VelTraceService::Reset(); });
  const ReactingSink after;
  channel->Warning("one");
  EXPECT_EQ(resetter.writes, 1);
  EXPECT_EQ(after.writes, 0);
}

TEST_F(VelTraceSinksTest, Recorder_PicksTextsByChannelAndKind_UntilCleared) {
  VelTraceService::SetSwitches("*=info");
  const OpenChannel one("One");
  const OpenChannel two("Two");
  one->Info("a");
  one->Warning("b");
  two->Warning("c");
  two->Error({"s", 1}, "d");
  EXPECT_EQ(recorder_.Texts(), (Texts{"a", "b", "c", "d"}));
  EXPECT_EQ(recorder_.Texts("One"), (Texts{"a", "b"}));
  EXPECT_EQ(recorder_.Texts(VelTraceKind::Warning), (Texts{"b", "c"}));
  EXPECT_EQ(recorder_.Texts("Two", VelTraceKind::Error), Texts{"d"});
  EXPECT_EQ(recorder_.Texts("Three"), Texts{});
  recorder_.Flush();
  recorder_.Clear();
  EXPECT_TRUE(recorder_.Entries().empty());
  EXPECT_EQ(recorder_.FlushCount(), 0);
}

}  // namespace
