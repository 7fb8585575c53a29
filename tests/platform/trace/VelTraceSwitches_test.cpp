// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceSwitches_test.cpp The text form of the switches: what is understood and what is complained about.
#include "tests/platform/trace/TraceTest.h"

namespace {

using VelTraceSwitchesTest = TraceTest;

/// @return what is on, as one letter per kind: e w i and the class level bit c.
std::string StateOf(const char* iChannel) {
  const OpenChannel channel(iChannel);
  std::string state;
  if (channel->IsOn(VelTraceKind::Error)) state += 'e';
  if (channel->IsOn(VelTraceKind::Warning)) state += 'w';
  if (channel->IsOn(VelTraceKind::Information)) state += 'i';
  if (channel->IsOn(VelTraceKind::ClassTrace)) state += 'c';
  return state;
}

struct Case {
  const char* name;
  const char* switches;
  const char* alpha;  ///< State of the channel "Alpha".
  const char* beta;   ///< State of the channel "Beta".
};

const Case levelCases[] = {
    {"nothing", "", "ew", "ew"},
    {"only blanks and commas", " , ,\t,", "ew", "ew"},
    {"off", "Alpha=off", "", "ew"},
    {"error", "Alpha=error", "e", "ew"},
    {"warning", "Alpha=warning", "ew", "ew"},
    {"info", "Alpha=info", "ewi", "ew"},
    {"lowest class level", "Alpha=1", "ewic", "ew"},
    {"highest class level", "Alpha=9", "ewic", "ew"},
    {"no level means info", "Alpha", "ewi", "ew"},
    {"everything", "*=info", "ewi", "ewi"},
    {"everything without level", "*", "ewi", "ewi"},
    {"prefix", "Al*=off", "", "ew"},
    {"prefix that is the whole name", "Alpha*=off", "", "ew"},
    {"prefix longer than the name", "Alphabet*=off", "ew", "ew"},
    {"part of a name is not the name", "Alph=off", "ew", "ew"},
    {"longer name", "Alphabet=off", "ew", "ew"},
    {"case counts", "alpha=off", "ew", "ew"},
    {"several items", "Alpha=off,Beta=info", "", "ewi"},
    {"later entries override", "*=off,Beta=error", "", "e"},
    {"later entries override a more exact one", "Beta=error,*=info", "ewi", "ewi"},
    {"twice the same name", "Alpha=off,Alpha=info", "ewi", "ew"},
    {"blanks around everything", "  Alpha = off\t,  Beta=\ninfo ", "", "ewi"},
    {"trailing comma", "Alpha=off,", "", "ew"},
};

TEST_F(VelTraceSwitchesTest, SetSwitches_WithGoodItems_SwitchesAndStaysSilent) {
  for (const Case& testCase : levelCases) {
    SCOPED_TRACE(testCase.name);
    VelTraceService::SetSwitches(testCase.switches);
    EXPECT_EQ(StateOf("Alpha"), testCase.alpha);
    EXPECT_EQ(StateOf("Beta"), testCase.beta);
    EXPECT_EQ(recorder_.Texts(), Texts{});
  }
}

struct BadCase {
  const char* item;
  bool isLevelBad;  ///< Else the pattern is.
};

const BadCase badCases[] = {
    {"Alpha=loud", true},   {"Alpha=", true},
    {"Alpha=0", true},      {"Alpha=10", true},
    {"Alpha=-1", true},     {"Alpha=INFO", true},
    {"Alpha=info=1", true}, {"Alpha=info Beta=off", true},
    {"=info", false},       {"=", false},
    {"Al*a=info", false},   {"**=info", false},
    {"*a", false},          {"Alpha=\xFF\x01", true},
};

TEST_F(VelTraceSwitchesTest, SetSwitches_WithABadItem_WarnsOnceAndHeedsTheOthers) {
  for (const BadCase& testCase : badCases) {
    SCOPED_TRACE(testCase.item);
    recorder_.Clear();
    VelTraceService::SetSwitches(std::string("Alpha=error, ") + testCase.item + " ,Beta=info");
    EXPECT_EQ(StateOf("Alpha"), "e");
    EXPECT_EQ(StateOf("Beta"), "ewi");
    const std::string expected = std::string("Trace switch \"") + testCase.item + "\" left out: expected " +
                                 (testCase.isLevelBad ? "off, error, warning, info or a digit from 1 to 9 after the ="
                                                      : "a channel name, a prefix followed by * or * before the level");
    EXPECT_EQ(recorder_.Texts("VelTrace", VelTraceKind::Warning), Texts{expected});
    EXPECT_EQ(recorder_.Entries().size(), 1U);
  }
}

TEST_F(VelTraceSwitchesTest, SetSwitches_WithABadItem_WarnsEvenIfEverythingIsSwitchedOff) {
  VelTraceService::SetSwitches("*=off,Alpha=loud,Beta=louder");
  EXPECT_EQ(recorder_.Texts("VelTrace").size(), 2U);
}

TEST_F(VelTraceSwitchesTest, SetSwitches_ReplacesTheSwitchesBefore) {
  VelTraceService::SetSwitches("Alpha=info");
  VelTraceService::SetSwitches("Beta=info");
  EXPECT_EQ(StateOf("Alpha"), "ew");
  EXPECT_EQ(StateOf("Beta"), "ewi");
}

TEST_F(VelTraceSwitchesTest, SetSwitches_AppliesToOpenChannelsAndToThoseCreatedLater) {
  const OpenChannel open("OpenBefore");
  VelTraceService::SetSwitches("OpenBefore=off,CreatedLater=info");
  EXPECT_FALSE(open->IsOn(VelTraceKind::Error));
  EXPECT_EQ(StateOf("CreatedLater"), "ewi");
}

TEST_F(VelTraceSwitchesTest, Reset_PutsEveryChannelBackToWarning) {
  const OpenChannel channel("Alpha");
  VelTraceService::SetSwitches("*=9");
  VelTraceService::Reset();
  EXPECT_EQ(StateOf("Alpha"), "ew");
}

TEST_F(VelTraceSwitchesTest, Messages_ThatAreSwitchedOff_ReachNoSink) {
  VelTraceService::SetSwitches("Alpha=error");
  const OpenChannel channel("Alpha");
  channel->Info("info");
  channel->Warning("warning");
  channel->Error({"Source", 1}, "error");
  EXPECT_EQ(recorder_.Texts(), Texts{"error"});
}

}  // namespace
