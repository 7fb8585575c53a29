// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceHandle_test.cpp Handles open and close their channel, and do nothing without one.
#include "platform/trace/VelTraceHandle.h"

#include <type_traits>
#include <utility>

#include "tests/platform/trace/TraceTest.h"

namespace {

static_assert(sizeof(VelTraceHandle) == 8);
static_assert(!std::is_copy_constructible_v<VelTraceHandle> && !std::is_copy_assignable_v<VelTraceHandle>);
static_assert(std::is_nothrow_move_constructible_v<VelTraceHandle> &&
              std::is_nothrow_move_assignable_v<VelTraceHandle>);
static_assert(!std::is_convertible_v<VelTraceHandle, bool> && !std::is_convertible_v<const char*, VelTraceHandle>);

constinit int conversions = 0;

/// Notices when a message asks for its value.
struct NoticingArgument {
  operator VelFormatArgument() const {  // NOLINT(google-explicit-constructor): as the arguments that it stands for
    ++conversions;
    return "converted";
  }
};

void EmitOneOfEach(const VelTraceHandle& iTrace) {
  const NoticingArgument argument;
  iTrace.Info("info %s", argument);
  iTrace.Warning("warning %s", argument);
  iTrace.Error({"src/model/Thing", 209}, "error %s", argument);
}

class VelTraceHandleTest : public TraceTest {
 protected:
  VelTraceHandleTest() { conversions = 0; }
};

TEST_F(VelTraceHandleTest, Handle_WhileItLives_HoldsTheChannelOfItsName) {
  {
    const VelTraceHandle trace("Channel");
    EXPECT_TRUE(trace);
    EXPECT_EQ(trace.Get(), OpenChannel("Channel").Get());
    EXPECT_EQ(VelTraceService::OpenChannelCount(), 1);
  }
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 0);
}

TEST_F(VelTraceHandleTest, Messages_OfEveryKind_ArriveAsOnTheChannelItself) {
  VelTraceService::SetSwitches("Channel=info");
  EmitOneOfEach(VelTraceHandle("Channel"));
  const auto& entries = recorder_.Entries();
  ASSERT_EQ(entries.size(), 3U);
  EXPECT_EQ(entries[0].kind, VelTraceKind::Information);
  EXPECT_EQ(entries[0].text, "info converted");
  EXPECT_EQ(entries[1].kind, VelTraceKind::Warning);
  EXPECT_EQ(entries[1].text, "warning converted");
  EXPECT_EQ(entries[2].kind, VelTraceKind::Error);
  EXPECT_EQ(entries[2].text, "error converted");
  EXPECT_EQ(entries[2].source, "src/model/Thing");
  EXPECT_EQ(entries[2].line, 209U);
  for (const auto& entry : entries) EXPECT_EQ(entry.channel, "Channel");
  EXPECT_EQ(conversions, 3);
}

TEST_F(VelTraceHandleTest, IsOn_FollowsTheSwitchOfTheChannel) {
  const VelTraceHandle trace("Channel");
  VelTraceService::SetSwitches("Channel=warning");
  EXPECT_TRUE(trace.IsOn(VelTraceKind::Error));
  EXPECT_TRUE(trace.IsOn(VelTraceKind::Warning));
  EXPECT_FALSE(trace.IsOn(VelTraceKind::Information));
  VelTraceService::SetSwitches("Channel=info");
  EXPECT_TRUE(trace.IsOn(VelTraceKind::Information));
}

TEST_F(VelTraceHandleTest, Messages_ThatAreOff_ConvertNothing) {
  VelTraceService::SetSwitches("*=off");
  EmitOneOfEach(VelTraceHandle("Channel"));
  EXPECT_EQ(conversions, 0);
  EXPECT_TRUE(recorder_.Entries().empty());
}

TEST_F(VelTraceHandleTest, Handle_WithoutAChannel_TakesEveryMessageAndDoesNothing) {
  VelTraceService::SetSwitches("*=9");
  struct Case {
    const char* name;
    VelTraceHandle trace;
  };
  const Case cases[] = {
      {"default", VelTraceHandle()}, {"null", VelTraceHandle(nullptr)}, {"empty name", VelTraceHandle("")}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    EXPECT_FALSE(test.trace);
    EXPECT_EQ(test.trace.Get(), nullptr);
    EXPECT_FALSE(test.trace.IsOn(VelTraceKind::Error));
    EmitOneOfEach(test.trace);
  }
  EXPECT_EQ(conversions, 0);
  EXPECT_TRUE(recorder_.Entries().empty());
}

TEST_F(VelTraceHandleTest, Handle_OpenedWhileTheTracesAreOutOfService_HoldsNoChannelAndStaysSilentAfterwards) {
  VelTraceService::SetAvailable(false);
  const VelTraceHandle trace("Channel");
  VelTraceService::SetAvailable(true);
  EXPECT_FALSE(trace);
  EXPECT_EQ(trace.Get(), nullptr);
  EmitOneOfEach(trace);
  EXPECT_TRUE(recorder_.Entries().empty());
}

TEST_F(VelTraceHandleTest, Move_HandsTheChannelOver) {
  VelTraceHandle first("First");
  QrnSysTrace* const channel = first.Get();
  const VelTraceHandle second(std::move(first));
  EXPECT_EQ(second.Get(), channel);
  EXPECT_EQ(first.Get(), nullptr);  // NOLINT(bugprone-use-after-move): what a handle is after its move is the subject
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 1);
}

TEST_F(VelTraceHandleTest, MoveAssignment_GivesBackWhatWasHeld_AndToItselfChangesNothing) {
  VelTraceHandle first("First");
  VelTraceHandle second("Second");
  QrnSysTrace* const channel = first.Get();
  second = std::move(first);
  EXPECT_EQ(second.Get(), channel);
  EXPECT_EQ(first.Get(), nullptr);  // NOLINT(bugprone-use-after-move): as above
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 1);
  VelTraceHandle& same = second;
  second = std::move(same);
  EXPECT_EQ(second.Get(), channel);
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 1);
  second = VelTraceHandle();
  EXPECT_FALSE(second);
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 0);
}

}  // namespace
