// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceMute_test.cpp Nothing is traced while a mute lives.
#include "platform/trace/VelTraceMute.h"

#include <optional>

#include "platform/base/VelCheck.h"
#include "platform/trace/VelClassTrace.h"
#include "platform/trace/VelDiagnostics.h"
#include "tests/platform/trace/TraceTest.h"

namespace {

constinit VelClassTrace classTrace{"Mute"};

class VelTraceMuteTest : public TraceTest {
 protected:
  void SetUp() override { VelTraceService::SetSwitches("*=9"); }

  /// Emits one message of each kind, and a check.
  void Tell() const {
    channel_->Info("information");
    channel_->Warning("warning");
    channel_->Error({"source", 1}, "error");
    classTrace.Print(1, "class trace");
    VelCheck::Failed({"source", 2}, "expression", "check");
  }

  const OpenChannel channel_{"Channel"};
};

TEST_F(VelTraceMuteTest, Muted_NoChannelIsOnAndNeitherSinksNorScopesHear) {
  const VelDiagnostics scope;
  {
    const VelTraceMute mute;
    EXPECT_FALSE(channel_->IsOn(VelTraceKind::Information));
    EXPECT_FALSE(channel_->IsOn(VelTraceKind::Error));
    EXPECT_FALSE(classTrace.IsOn(1));
    EXPECT_EQ(PrintedBy([&] { Tell(); }), "");
  }
  EXPECT_EQ(recorder_.Texts(), Texts{});
  EXPECT_TRUE(scope.Entries().empty());
  Tell();
  EXPECT_EQ(recorder_.Texts().size(), 5U);
  EXPECT_EQ(scope.Entries().size(), 3U);
}

TEST_F(VelTraceMuteTest, Nested_TheOutermostCounts) {
  std::optional<VelTraceMute> outer(std::in_place);
  { const VelTraceMute inner; }
  Tell();
  EXPECT_EQ(recorder_.Texts(), Texts{});
  outer.reset();
  Tell();
  EXPECT_EQ(recorder_.Texts().size(), 5U);
}

TEST_F(VelTraceMuteTest, WhatIsSetOrOpenedMeanwhile_CountsFromTheEndOn) {
  std::optional<VelTraceMute> mute(std::in_place);
  const OpenChannel opened("Opened");
  VelTraceService::SetSwitches("Opened=info,Channel=off");
  opened->Info("muted");
  mute.reset();
  opened->Info("heard");
  channel_->Error({"source", 1}, "off");
  EXPECT_EQ(recorder_.Texts(), Texts{"heard"});
}

TEST_F(VelTraceMuteTest, AChannelFirstUsedMeanwhile_IsOnAfterwards) {
  static constinit VelClassTrace late{"MuteLate"};
  {
    const VelTraceMute mute;
    late.Print(1, "muted");
  }
  late.Print(1, "heard");
  EXPECT_EQ(recorder_.Texts(), Texts{"heard"});
}

}  // namespace
