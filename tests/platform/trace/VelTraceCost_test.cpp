// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceCost_test.cpp A trace that is off converts nothing, allocates nothing and reads no clock.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

#include "platform/base/VelClock.h"
#include "platform/trace/VelClassTrace.h"
#include "tests/platform/trace/TraceTest.h"
#include "tests/support/VelAllocationCounter.h"

namespace {

constinit int conversions = 0;

/// Notices when a message asks for its value.
struct NoticingArgument {
  operator VelFormatArgument() const {  // NOLINT(google-explicit-constructor): as the arguments that it stands for
    ++conversions;
    return "converted";
  }
};

class NoticingClock final : public VelClockSource {
 public:
  NoticingClock() { previous_ = VelClock::SetSource(this); }
  ~NoticingClock() { VelClock::SetSource(previous_); }
  NoticingClock(const NoticingClock&) = delete;
  NoticingClock& operator=(const NoticingClock&) = delete;

  std::int64_t Now() noexcept override { return ++readings; }

  int readings = 0;

 private:
  VelClockSource* previous_ = nullptr;
};

constinit VelClassTrace classTrace{"CostOfAClassTrace"};

class VelTraceCostTest : public TraceTest {
 protected:
  void EmitAll() const {
    channel_->Info("%s", argument_);
    channel_->Warning("%s", argument_);
    channel_->Error({"Source", 1}, "%s", argument_);
    classTrace.Print(9, "%s", argument_);
  }

  OpenChannel channel_{"Cost"};
  NoticingArgument argument_;
};

TEST_F(VelTraceCostTest, Messages_ThatAreOff_NeitherConvertNorAllocateNorReadTheClock) {
  VelTraceService::SetSwitches("*=off");
  EXPECT_FALSE(classTrace.IsOn(1)) << "the first use looks its channel up, which is no cost of a message";
  const NoticingClock clock;
  conversions = 0;
  const VelAllocationCounter allocations;
  EmitAll();
  const long count = allocations.Count();
  EXPECT_EQ(count, 0);
  EXPECT_EQ(conversions, 0);
  EXPECT_EQ(clock.readings, 0);
}

TEST_F(VelTraceCostTest, Messages_ThatAreOn_AreNoticedByTheSameMeans) {
  VelTraceService::SetSwitches("*=9");
  const NoticingClock clock;
  conversions = 0;
  const VelAllocationCounter allocations;
  EmitAll();
  const long count = allocations.Count();
  EXPECT_GT(count, 0);
  EXPECT_EQ(conversions, 4);
  EXPECT_EQ(clock.readings, 4);
  EXPECT_EQ(recorder_.Texts(), (Texts{"converted", "converted", "converted", "converted"}));
}

}  // namespace
