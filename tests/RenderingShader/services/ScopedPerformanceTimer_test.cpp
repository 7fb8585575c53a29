// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ScopedPerformanceTimer_test.cpp What timers report, by a clock that the tests set.
#include "RenderingShader/VelRshModel.m/include/ScopedPerformanceTimer.h"

#include <gtest/gtest.h>

#include "platform/base/VelClockSource.h"
#include "platform/trace/VelTraceHandle.h"
#include "platform/trace/VelTraceRecorder.h"
#include "platform/trace/VelTraceService.h"

namespace {

using Texts = std::vector<std::string>;

class TestClock final : public VelClockSource {
 public:
  TestClock() { VelClock::SetSource(this); }
  ~TestClock() { VelClock::SetSource(nullptr); }
  TestClock(const TestClock&) = delete;
  TestClock& operator=(const TestClock&) = delete;

  std::int64_t Now() noexcept override {
    ++reads;
    return now;
  }

  std::int64_t now = 1'000'000;  ///< In ticks of 100 ns.
  int reads = 0;
};

class ScopedPerformanceTimerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    VelTraceService::Reset();
    VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
    VelTraceService::AddSink(traces_);
    VelTraceService::SetSwitches("StepPerformanceTime=info");
    trace_ = VelTraceHandle("StepPerformanceTime");
  }
  void TearDown() override { VelTraceService::Reset(); }

  Texts Reported() const { return traces_.Texts("StepPerformanceTime", VelTraceKind::Information); }

  VelTraceRecorder traces_;
  VelTraceHandle trace_;
};

TEST_F(ScopedPerformanceTimerTest, Report_IsInMillisecondsCutDownToMicroseconds) {
  const struct {
    std::int64_t ticks;
    const char* text;
  } cases[] = {{0, "Step finished in 0.000 ms"},
               {1, "Step finished in 0.000 ms"},
               {9, "Step finished in 0.000 ms"},
               {10, "Step finished in 0.001 ms"},
               {19, "Step finished in 0.001 ms"},
               {15'678, "Step finished in 1.567 ms"},
               {99'999, "Step finished in 9.999 ms"},
               {12'345'678, "Step finished in 1234.567 ms"},
               {36'000'000'000, "Step finished in 3600000.000 ms"}};
  for (const auto& test : cases) {
    TestClock clock;
    traces_.Clear();
    {
      const ScopedPerformanceTimer timer("Step", trace_.Get());
      clock.now += test.ticks;
      EXPECT_EQ(Reported(), Texts{}) << "not before the scope ends";
    }
    EXPECT_EQ(Reported(), Texts{test.text}) << test.ticks;
  }
}

TEST_F(ScopedPerformanceTimerTest, NestedTimers_ReportTheInnerFirst) {
  TestClock clock;
  {
    const ScopedPerformanceTimer outer("Outer", trace_.Get());
    clock.now += 10'000;
    {
      const ScopedPerformanceTimer inner("Inner", trace_.Get());
      clock.now += 20'000;
    }
    clock.now += 30'000;
  }
  EXPECT_EQ(Reported(), (Texts{"Inner finished in 2.000 ms", "Outer finished in 6.000 ms"}));
}

TEST_F(ScopedPerformanceTimerTest, NullChannel_ReportsNothing) {
  TestClock clock;
  {
    const ScopedPerformanceTimer timer("Step", nullptr);
    clock.now += 10'000;
  }
  EXPECT_EQ(traces_.Texts(), Texts{});
  EXPECT_EQ(clock.reads, 0);
}

TEST_F(ScopedPerformanceTimerTest, ChannelThatIsOff_ReportsNothingAndReadsNoClock) {
  TestClock clock;
  VelTraceService::SetSwitches("StepPerformanceTime=warning");
  {
    const ScopedPerformanceTimer timer("Step", trace_.Get());
    VelTraceService::SetSwitches("StepPerformanceTime=info");
    clock.now += 10'000;
  }
  EXPECT_EQ(traces_.Texts(), Texts{});
  EXPECT_EQ(clock.reads, 0);
}

TEST_F(ScopedPerformanceTimerTest, ChannelSwitchedOffMeanwhile_ReportsNothing) {
  TestClock clock;
  {
    const ScopedPerformanceTimer timer("Step", trace_.Get());
    VelTraceService::SetSwitches("StepPerformanceTime=warning");
  }
  EXPECT_EQ(traces_.Texts(), Texts{});
}

TEST_F(ScopedPerformanceTimerTest, Label_IsCopied) {
  TestClock clock;
  std::string label("a label that is too long to be kept inside the object itself");
  {
    const ScopedPerformanceTimer timer(label, trace_.Get());
    label.assign(label.size(), '?');
  }
  EXPECT_EQ(Reported(), Texts{"a label that is too long to be kept inside the object itself finished in 0.000 ms"});
}

static_assert(!std::is_copy_constructible_v<ScopedPerformanceTimer> &&
                  !std::is_copy_assignable_v<ScopedPerformanceTimer>,
              "A timer is neither copied nor reset");

}  // namespace
