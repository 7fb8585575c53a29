// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDiagnostics_test.cpp Scopes that collect warnings and errors.
#include "platform/trace/VelDiagnostics.h"

#include <memory>

#include "platform/base/VelCheck.h"
#include "platform/trace/VelClassTrace.h"
#include "tests/platform/trace/TraceTest.h"

namespace {

using VelDiagnosticsTest = TraceTest;

Texts TextsOf(const VelDiagnostics& iScope) {
  Texts texts;
  for (const VelDiagnosticEntry& entry : iScope.Entries()) texts.push_back(entry.text);
  return texts;
}

TEST_F(VelDiagnosticsTest, Scope_CollectsWarningsAndErrorsOnly_WithAllTheirData) {
  VelTraceService::SetSwitches("*=9");
  const OpenChannel channel("Channel");
  static constinit VelClassTrace classTrace{"Class"};
  const VelDiagnostics scope;
  EXPECT_TRUE(scope.Entries().empty());
  channel->Info("information");
  classTrace.Print(1, "class trace\n");
  channel->Warning("first %d", 1);
  channel->Error({"src/Thing", 7}, "second");
  ASSERT_EQ(scope.Entries().size(), 2U);
  const VelDiagnosticEntry& warning = scope.Entries()[0];
  EXPECT_EQ(warning.kind, VelTraceKind::Warning);
  EXPECT_EQ(warning.channel, "Channel");
  EXPECT_EQ(warning.text, "first 1");
  EXPECT_EQ(warning.source, "");
  EXPECT_EQ(warning.line, 0U);
  const VelDiagnosticEntry& error = scope.Entries()[1];
  EXPECT_EQ(error.kind, VelTraceKind::Error);
  EXPECT_EQ(error.text, "second");
  EXPECT_EQ(error.source, "src/Thing");
  EXPECT_EQ(error.line, 7U);
  EXPECT_EQ(recorder_.Texts().size(), 4U);
}

TEST_F(VelDiagnosticsTest, Counts_TellErrorsFromWarnings_UntilCleared) {
  const OpenChannel channel("Channel");
  VelDiagnostics scope;
  EXPECT_FALSE(scope.HasErrors());
  channel->Warning("w");
  channel->Warning("w");
  EXPECT_FALSE(scope.HasErrors());
  channel->Error({"s", 1}, "e");
  EXPECT_TRUE(scope.HasErrors());
  EXPECT_EQ(scope.ErrorCount(), 1U);
  EXPECT_EQ(scope.WarningCount(), 2U);
  scope.Clear();
  EXPECT_FALSE(scope.HasErrors());
  EXPECT_EQ(scope.WarningCount(), 0U);
  channel->Warning("after");
  EXPECT_EQ(TextsOf(scope), Texts{"after"});
}

TEST_F(VelDiagnosticsTest, ChannelsThatAreOff_AreCollectedButReachNoSink) {
  VelTraceService::SetSwitches("*=off,Half=error");
  const OpenChannel off("Off");
  const OpenChannel half("Half");
  const VelDiagnostics scope;
  const OpenChannel later("CreatedInTheScope");
  EXPECT_TRUE(later->IsOn(VelTraceKind::Warning));
  EXPECT_FALSE(off->IsOn(VelTraceKind::Information)) << "only what is collected is let through";
  off->Warning("off warning");
  off->Error({"s", 1}, "off error");
  half->Warning("half warning");
  half->Error({"s", 1}, "half error");
  later->Warning("later");
  EXPECT_EQ(TextsOf(scope), (Texts{"off warning", "off error", "half warning", "half error", "later"}));
  EXPECT_EQ(recorder_.Texts(), Texts{"half error"});
}

TEST_F(VelDiagnosticsTest, EndOfTheScope_PutsTheSwitchesBack) {
  VelTraceService::SetSwitches("*=off");
  const OpenChannel channel("Channel");
  {
    const VelDiagnostics outer;
    { const VelDiagnostics inner; }
    EXPECT_TRUE(channel->IsOn(VelTraceKind::Error)) << "the outer scope is still active";
  }
  EXPECT_FALSE(channel->IsOn(VelTraceKind::Warning));
  EXPECT_FALSE(channel->IsOn(VelTraceKind::Error));
}

TEST_F(VelDiagnosticsTest, SwitchesChangedInsideOfTheScope_CountAfterIt) {
  const OpenChannel channel("Channel");
  {
    const VelDiagnostics scope;
    VelTraceService::SetSwitches("*=off");
    EXPECT_TRUE(channel->IsOn(VelTraceKind::Error));
  }
  EXPECT_FALSE(channel->IsOn(VelTraceKind::Error));
}

TEST_F(VelDiagnosticsTest, NestedScopes_AllCollect_WhateverTheOrderOfTheirEnds) {
  const OpenChannel channel("Channel");
  auto first = std::make_unique<VelDiagnostics>();
  channel->Warning("one");
  const auto second = std::make_unique<VelDiagnostics>();
  channel->Warning("two");
  EXPECT_EQ(TextsOf(*first), (Texts{"one", "two"}));
  first.reset();
  channel->Warning("three");
  EXPECT_EQ(TextsOf(*second), (Texts{"two", "three"}));
}

TEST_F(VelDiagnosticsTest, Checks_AreCollectedAsErrors_AlsoIfTheirChannelIsOff) {
  VelTraceService::SetSwitches("VelCheck=off");
  const VelDiagnostics scope;
  EXPECT_EQ(PrintedBy([] { VelCheck::Failed({"src/Thing", 3}, "a < b", "Odd", "7"); }), "");
  ASSERT_EQ(scope.Entries().size(), 1U);
  EXPECT_EQ(scope.Entries()[0].kind, VelTraceKind::Error);
  EXPECT_EQ(scope.Entries()[0].channel, "VelCheck");
  EXPECT_EQ(scope.Entries()[0].text, "Odd { expression = a < b, detail = 7 }");
  EXPECT_EQ(scope.Entries()[0].source, "src/Thing");
  EXPECT_EQ(scope.Entries()[0].line, 3U);
  EXPECT_TRUE(recorder_.Entries().empty());
}

TEST_F(VelDiagnosticsTest, Checks_WhileTheTracesAreOutOfService_AreStillCollected) {
  VelTraceService::SetAvailable(false);
  const VelDiagnostics scope;
  EXPECT_EQ(PrintedBy([] { VelCheck::Failed({"src/Thing", 3}, "", "Odd"); }), "");
  EXPECT_EQ(TextsOf(scope), Texts{"Odd"});
  EXPECT_TRUE(recorder_.Entries().empty());
}

TEST_F(VelDiagnosticsTest, BadSwitches_AreCollected) {
  const VelDiagnostics scope;
  VelTraceService::SetSwitches("A=loud");
  EXPECT_EQ(scope.WarningCount(), 1U);
}

TEST_F(VelDiagnosticsTest, Scope_DuringReset_GoesOnCollecting) {
  const OpenChannel channel("Channel");
  const VelDiagnostics scope;
  VelTraceService::Reset();
  VelTraceService::SetSwitches("*=off");
  channel->Warning("after");
  EXPECT_EQ(TextsOf(scope), Texts{"after"});
}

}  // namespace
