// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelClassTrace_test.cpp Levelled traces of a class.
#include "platform/trace/VelClassTrace.h"

#include <climits>
#include <type_traits>

#include "tests/platform/trace/TraceTest.h"

namespace {

constinit VelClassTrace trace{"TracedClass"};
constinit VelClassTrace sameTrace{"TracedClass"};
constinit VelClassTrace neverUsedBefore{"ClassUsedWhileOutOfService"};

static_assert(std::is_trivially_destructible_v<VelClassTrace>);

using VelClassTraceTest = TraceTest;

TEST_F(VelClassTraceTest, Print_IsOff_ByDefaultAndAtInfo) {
  for (const char* const switches : {"", "*=info"}) {
    SCOPED_TRACE(switches);
    VelTraceService::SetSwitches(switches);
    EXPECT_FALSE(trace.IsOn(1));
    trace.Print(1, "silent\n");
  }
  EXPECT_TRUE(recorder_.Entries().empty());
}

TEST_F(VelClassTraceTest, IsOn_ForEachPairOfLevels_ComparesThem) {
  for (int switched = 1; switched <= 9; ++switched) {
    VelTraceService::SetSwitches("TracedClass=" + std::to_string(switched));
    for (int level = 1; level <= 9; ++level) EXPECT_EQ(trace.IsOn(level), level <= switched) << level << switched;
  }
}

TEST_F(VelClassTraceTest, IsOn_ForALevelThatDoesNotExist_IsFalse) {
  VelTraceService::SetSwitches("*=9");
  for (const int level : {0, -1, 10, INT_MIN, INT_MAX}) EXPECT_FALSE(trace.IsOn(level)) << level;
  const constinit static VelClassTrace fresh{"FreshClass"};
  for (const int level : {0, -1, 10, INT_MIN, INT_MAX}) EXPECT_FALSE(fresh.IsOn(level)) << level;
  EXPECT_TRUE(fresh.IsOn(9));
}

TEST_F(VelClassTraceTest, Print_KeepsTheTextWordForWordWithItsLevel) {
  VelTraceService::SetSwitches("TracedClass=5");
  trace.Print(5, "Building %s, %d parts\n", "cube", 6);
  trace.Print(6, "too detailed\n");
  sameTrace.Print(1, "");
  ASSERT_EQ(recorder_.Entries().size(), 2U);
  EXPECT_EQ(recorder_.Entries()[0].text, "Building cube, 6 parts\n");
  EXPECT_EQ(recorder_.Entries()[0].kind, VelTraceKind::ClassTrace);
  EXPECT_EQ(recorder_.Entries()[0].classLevel, 5);
  EXPECT_EQ(recorder_.Entries()[0].channel, "TracedClass");
  EXPECT_EQ(recorder_.Entries()[1].text, "");
}

TEST_F(VelClassTraceTest, Level_ChangedAfterTheFirstUse_IsHeeded) {
  EXPECT_FALSE(trace.IsOn(1));
  VelTraceService::SetSwitches("Traced*=2");
  EXPECT_TRUE(trace.IsOn(2));
  VelTraceService::Reset();
  EXPECT_FALSE(trace.IsOn(1));
}

TEST_F(VelClassTraceTest, Channel_OfTheSameName_SharesTheSwitchAndIsNotCountedAsOpen) {
  VelTraceService::SetSwitches("TracedClass=3");
  EXPECT_TRUE(trace.IsOn(3));
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 0);
  const OpenChannel channel("TracedClass");
  EXPECT_TRUE(channel->IsOn(VelTraceKind::ClassTrace));
  EXPECT_TRUE(channel->IsOn(VelTraceKind::Information)) << "a class level includes info";
}

TEST_F(VelClassTraceTest, Trace_FirstUsedWhileOutOfService_IsSilentAndWorksLater) {
  VelTraceService::SetSwitches("*=9");
  VelTraceService::SetAvailable(false);
  EXPECT_FALSE(neverUsedBefore.IsOn(1));
  VelTraceService::SetAvailable(true);
  EXPECT_TRUE(neverUsedBefore.IsOn(9));
}

}  // namespace
