// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file QrnSysTrace_test.cpp Channels: who shares them, when they are absent, what they emit.
#include "platform/trace/QrnSysTrace.h"

#include <cstdint>

#include "platform/base/VelClock.h"
#include "platform/base/VelUnicodeString.h"
#include "tests/platform/trace/TraceTest.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

using QrnSysTraceTest = TraceTest;

TEST_F(QrnSysTraceTest, Create_WithTheSameName_GivesTheSameCountedChannel) {
  QrnSysTrace* first = QrnSysTraceCreate("Shared");
  QrnSysTrace* second = QrnSysTraceCreate(std::string("Shared").c_str());
  QrnSysTrace* other = QrnSysTraceCreate("shared");
  EXPECT_NE(first, nullptr);
  EXPECT_EQ(first, second);
  EXPECT_NE(first, other);
  EXPECT_EQ(first->Name(), "Shared");
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 3);
  for (QrnSysTrace** const trace : {&first, &second, &other}) QrnSysTraceDestroy(*trace);
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 0);
}

TEST_F(QrnSysTraceTest, Destroy_SetsThePointerToNull_AlsoIfItIsNullAlready) {
  QrnSysTrace* trace = QrnSysTraceCreate("Channel");
  QrnSysTraceDestroy(trace);
  EXPECT_EQ(trace, nullptr);
  QrnSysTraceDestroy(trace);
  EXPECT_EQ(trace, nullptr);
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 0);
}

TEST_F(QrnSysTraceTest, Destroy_MoreOftenThanCreated_IsACheckAndCountsNothing) {
  QrnSysTrace* trace = QrnSysTraceCreate("Channel");
  QrnSysTrace* copy = trace;
  QrnSysTraceDestroy(trace);
  const RecordingFailureObserver failures;
  QrnSysTraceDestroy(copy);
  EXPECT_EQ(copy, nullptr);
  ASSERT_EQ(failures.Failures().size(), 1U);
  EXPECT_EQ(failures.Failures().front().detail, "Channel");
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 0);
}

TEST_F(QrnSysTraceTest, Channel_AfterItsLastDestroy_IsStillThereWithItsSwitch) {
  VelTraceService::SetSwitches("Channel=info");
  const QrnSysTrace* before = OpenChannel("Channel").Get();
  const OpenChannel again("Channel");
  EXPECT_EQ(again.Get(), before);
  EXPECT_TRUE(again->IsOn(VelTraceKind::Information));
}

TEST_F(QrnSysTraceTest, Create_WithoutAName_GivesNull) {
  EXPECT_EQ(QrnSysTraceCreate(nullptr), nullptr);
  EXPECT_EQ(QrnSysTraceCreate(""), nullptr);
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 0);
}

TEST_F(QrnSysTraceTest, Create_WhileTheTracesAreOutOfService_GivesNull) {
  VelTraceService::SetAvailable(false);
  EXPECT_FALSE(VelTraceService::IsAvailable());
  EXPECT_EQ(QrnSysTraceCreate("Channel"), nullptr);
  VelTraceService::SetAvailable(true);
  EXPECT_TRUE(VelTraceService::IsAvailable());
  EXPECT_NE(OpenChannel("Channel").Get(), nullptr);
}

TEST_F(QrnSysTraceTest, Channel_OpenedBeforeTheTracesWentOutOfService_IsSilentMeanwhile) {
  VelTraceService::SetSwitches("*=9");
  const OpenChannel channel("Channel");
  VelTraceService::SetAvailable(false);
  channel->Error({"Source", 1}, "lost");
  EXPECT_FALSE(channel->IsOn(VelTraceKind::Error));
  VelTraceService::SetAvailable(true);
  channel->Error({"Source", 1}, "heard");
  EXPECT_EQ(recorder_.Texts(), Texts{"heard"});
}

TEST_F(QrnSysTraceTest, Messages_OfEveryKind_ArriveFormattedWithTheirKindAndPosition) {
  VelTraceService::SetSwitches("Channel=info");
  const OpenChannel channel("Channel");
  const VelUnicodeString label("Gr\xC3\xBCn");
  channel->Info("%s has %d of %.2f", label, 3, 0.5);
  channel->Warning("%x", 255);
  channel->Error({"src/model/Thing", 209}, "%s", "broken");
  const auto& entries = recorder_.Entries();
  ASSERT_EQ(entries.size(), 3U);
  EXPECT_EQ(entries[0].kind, VelTraceKind::Information);
  EXPECT_EQ(entries[0].text, "Gr\xC3\xBCn has 3 of 0.50");
  EXPECT_EQ(entries[0].source, "");
  EXPECT_EQ(entries[0].line, 0U);
  EXPECT_EQ(entries[1].kind, VelTraceKind::Warning);
  EXPECT_EQ(entries[1].text, "ff");
  EXPECT_EQ(entries[2].kind, VelTraceKind::Error);
  EXPECT_EQ(entries[2].text, "broken");
  EXPECT_EQ(entries[2].source, "src/model/Thing");
  EXPECT_EQ(entries[2].line, 209U);
  for (const auto& entry : entries) {
    EXPECT_EQ(entry.channel, "Channel");
    EXPECT_EQ(entry.classLevel, 0);
  }
}

TEST_F(QrnSysTraceTest, Message_WithANullTemplateOrNullSource_IsEmitted) {
  const OpenChannel channel("Channel");
  channel->Warning(nullptr, 1);
  channel->Error({nullptr, 5}, "text");
  ASSERT_EQ(recorder_.Entries().size(), 2U);
  EXPECT_EQ(recorder_.Entries()[0].text, "");
  EXPECT_EQ(recorder_.Entries()[1].source, "");
}

TEST_F(QrnSysTraceTest, Records_CarryTheTicksOfTheClockAndARisingNumber) {
  class FixedClock final : public VelClockSource {
   public:
    std::int64_t Now() noexcept override { return now += 10; }
    std::int64_t now = 1000;
  };
  FixedClock clock;
  VelClockSource* const previous = VelClock::SetSource(&clock);
  const OpenChannel channel("Channel");
  channel->Warning("first");
  channel->Info("switched off, so that the clock is not read");
  channel->Warning("second");
  VelClock::SetSource(previous);
  ASSERT_EQ(recorder_.Entries().size(), 2U);
  EXPECT_EQ(recorder_.Entries()[0].ticks, 1010);
  EXPECT_EQ(recorder_.Entries()[1].ticks, 1020);
  EXPECT_EQ(recorder_.Entries()[1].sequence, recorder_.Entries()[0].sequence + 1);
}

}  // namespace
