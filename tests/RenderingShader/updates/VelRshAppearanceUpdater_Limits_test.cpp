// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshAppearanceUpdater_Limits_test.cpp Updates for which something is missing, or goes away on the way.
#include "RenderingShader/VelRshModel.m/src/updates/VelRshAppearanceUpdater.h"
#include "platform/objectmodeler/VelNullHandleError.h"
#include "tests/RenderingShader/updates/UpdatesTest.h"
#include "tests/RenderingShader/updates/fixtures/FakeParameter.h"
#include "tests/RenderingShader/updates/fixtures/FakeShyParameter.h"

namespace {

constexpr const char* stored = "time: parameter store";
constexpr const char* copied = "time: 2D transformation copy overhead";
constexpr const char* drawn = "time: DPI raster overhead";
constexpr const char* converted = "time: Bump update overhead";
constexpr const char* injected = "time: 2D transformation & DPI update overhead";
constexpr const char* valueDone = "time: OnValueUpdate";
constexpr const char* connectionDone = "time: OnConnectionUpdate";
constexpr const char* noParameter = "error: E_NOINTERFACE VelIRshParameter";

/// @return the line with "0" for each handle of nothing and "*" for each other one, by which it can be foretold
std::string WithoutAddresses(std::string iLine) {
  for (std::size_t at = iLine.find("= "); at != std::string::npos; at = iLine.find("= ", at)) {
    at += 2;
    const std::size_t length = iLine.find_first_not_of("0123456789abcdef", at) - at;
    const bool isNothing = iLine.find_first_not_of('0', at) >= at + length;
    EXPECT_GT(length, 0U) << iLine;
    iLine.replace(at, length, isNothing ? "0" : "*");
  }
  return iLine;
}

class VelRshAppearanceUpdaterLimitsTest : public UpdatesTest {
 protected:
  void TearDown() override {
    for (const auto mode : {VelIRmaEditionMode::Mode::BatchEdition, VelIRmaEditionMode::Mode::Preview}) {
      VelIRmaEditionMode::SetActivation(mode, false);
    }
    hAll_ = nullptr;
    hSub_ = nullptr;
    UpdatesTest::TearDown();
  }

  /// Makes a root parameter that every step wants to act on, and what each would change.
  void MakeAll() {
    Tag("all", "mapping dpi bump");
    hAll_ = AddScalar(hRoot_, "all", 2.0F);
    hSub_ = Connect("slotted");
    AddScalar(hSub_, "all", 1.0F);
    AddScalar(hSub_, "bump", 1.0F);
    AddSvg(hSub_, "/a.svg", 72, "one");
    Cache().entries[5] = {"/old.png", nullptr};
  }

  void ExpectNothingChanged() {
    EXPECT_EQ(ScalarOf(Find(hSub_, "all")), 1.0F);
    EXPECT_EQ(ScalarOf(Find(hSub_, "bump")), 1.0F);
    EXPECT_EQ(Cache().Take(), Texts{});
    EXPECT_EQ(images_.Take(), Texts{});
  }

  /// Removes a parameter of the root, which its shader does not list any more then.
  std::function<void()> Removing(const char* iName) {
    return [this, iName] { Remove(Find(hRoot_, iName)); };
  }

  VelIRshParameter_var hAll_;
  VelIRshShader_var hSub_;
};

TEST_F(VelRshAppearanceUpdaterLimitsTest, WithNothingMissing_EverythingChanges) {
  MakeAll();
  UpdateValue(hAll_);
  EXPECT_EQ(ScalarOf(Find(hSub_, "all")), 2.0F);
  EXPECT_EQ(ScalarOf(Find(hSub_, "bump")), 2000.0F);
  EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /a.svg, image)"});
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, SilentPropagation_AllowsNoUpdate) {
  constexpr const char* refused = "info: FBDI mode, derived update NOT allowed";
  MakeAll();
  Listen();
  VelIRmaEditionMode::SetActivation(silent, true);
  EXPECT_EQ(VelIRshParameterPrivate_var(hAll_)->UpdateValue(), S_OK);
  EXPECT_EQ(Told(), (Texts{stored, refused, valueDone}));
  Listen();
  VelIRmaEditionMode::SetActivation(silent, true);
  EXPECT_EQ(VelIRshParameterPrivate_var(Find(hRoot_, "slotted"))->UpdateConnection(), S_OK);
  EXPECT_EQ(Told(), (Texts{stored, refused, connectionDone}));
  ExpectNothingChanged();
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, OtherModes_AllowEveryUpdate) {
  MakeAll();
  for (const auto mode : {VelIRmaEditionMode::Mode::BatchEdition, VelIRmaEditionMode::Mode::Preview}) {
    VelIRmaEditionMode::SetActivation(mode, true);
    UpdateValue(hAll_);
    EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /a.svg, image)"});
    UpdateConnection(Find(hRoot_, "slotted"));
    EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /a.svg, image)"});
  }
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, ParameterThatIsGone_IsAWarning) {
  MakeAll();
  Listen();
  VelRshAppearanceUpdater updater(*hAll_);
  Remove(hAll_);
  hAll_ = nullptr;
  updater.OnValueUpdate();
  updater.OnConnectionUpdate();
  constexpr const char* gone = "warning: VelIRshParameter not available";
  EXPECT_EQ(Told(), (Texts{stored, gone, valueDone, gone, connectionDone}));
  ExpectNothingChanged();
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, Updater_OpensTwoChannelsAndKeepsNoParameterAlive) {
  const VelIRshParameter_var hParameter(Make("VelRmaScalar"));
  const int before = VelTraceService::OpenChannelCount();
  {
    const VelRshAppearanceUpdater updater(*hParameter);
    EXPECT_EQ(VelTraceService::OpenChannelCount(), before + 2);
    EXPECT_EQ(hParameter->AddRef(), 2U) << "the handle's and this one";
    hParameter->Release();
  }
  EXPECT_EQ(VelTraceService::OpenChannelCount(), before);
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, WhatIsMissing_IsToldInOneWarning) {
  MakeAll();
  const VelIRshParameter_var hAlone(Make("VelRmaScalar"));
  const VelIRshShader_var hFreeShader = MakeShader("Top");
  const VelIRshParameter_var hFree = Add(hFreeShader, "all", "VelRmaScalar");
  struct Case {
    const char* name;
    VelIRshParameter_var parameter;
    bool hasCache;
    bool hasControl;
    const char* ofValue;
    const char* ofConnection;
  };
  const Case cases[] = {
      {"no shader", hAlone, true, true, "parent shader = 0, rendering material = 0, appearance = 0",
       "rendering material = 0, appearance = 0"},
      {"no material", hFree, true, true, "parent shader = *, rendering material = 0, appearance = 0",
       "rendering material = 0, appearance = 0"},
      {"no cache", hAll_, false, true, "parent shader = *, rendering material = 0, appearance = *",
       "rendering material = 0, appearance = 0"},
      {"no propagation control", hAll_, true, false, "parent shader = *, rendering material = *, appearance = 0",
       "rendering material = *, appearance = 0"}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    Cache().isOffered = test.hasCache;
    Material().offersPropagation = test.hasControl;
    const std::string front = "warning: OnValueUpdate - Parameter cannot be processed { ";
    UpdateValue(test.parameter);
    ASSERT_EQ(Told().size(), 3U);
    EXPECT_EQ(WithoutAddresses(Told()[1]), front + test.ofValue + " }");
    EXPECT_EQ(Told()[2], valueDone);
    UpdateConnection(test.parameter);
    ASSERT_EQ(Told().size(), 3U);
    EXPECT_EQ(WithoutAddresses(Told()[1]), front + test.ofConnection + " }");
    EXPECT_EQ(Told()[2], connectionDone);
    ExpectNothingChanged();
  }
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, MaterialWithoutAShader_IsAWarning) {
  MakeAll();
  Material().getShaderCode = E_FAIL;
  constexpr const char* missing = "warning: OnValueUpdate - Parameter cannot be processed { rendering shader = 0 }";
  UpdateValue(hAll_);
  ASSERT_EQ(Told().size(), 3U);
  EXPECT_EQ(WithoutAddresses(Told()[1]), missing);
  EXPECT_EQ(Told()[2], valueDone);
  UpdateConnection(Find(hRoot_, "slotted"));
  ASSERT_EQ(Told().size(), 3U);
  EXPECT_EQ(WithoutAddresses(Told()[1]), missing);
  EXPECT_EQ(Told()[2], connectionDone);
  ExpectNothingChanged();
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, Flags_AreAskedForOnceAndInOrder) {
  const FakeParameterBindings bindings;
  FakeParameter::Notes notes;
  const VelIRshParameter_var hFake = FakeParameter::Create("fake", "VelRmaScalar", notes);
  Listen();
  VelRshAppearanceUpdater updater(*hFake);
  EXPECT_EQ(notes, (Texts{"fake texture", "fake tag 20", "fake tag 0", "fake tag 1", "fake tag 2"}));
  notes.clear();
  updater.OnValueUpdate();
  EXPECT_EQ(notes, Texts{});
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, ParameterWithoutAPrivateSide_HasNoFlagsOnANewUpdater) {
  Tag("void", "mapping dpi svggroup bump");
  const VelIRshParameter_var hVoid = Add(hRoot_, "void", "VelRmaVoid");
  Listen();
  VelRshAppearanceUpdater updater(*hVoid);
  updater.OnValueUpdate();
  EXPECT_EQ(Told(), (Texts{stored, valueDone}));
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, ParameterWithoutAPrivateSide_KeepsTheFlagsOfTheOneBefore) {
  Tag("all", "mapping dpi svggroup bump");
  const VelIRshParameter_var hAll = Add(hRoot_, "all", "VelRmaTexture");
  const VelIRshParameter_var hVoid = Add(hRoot_, "slotted", "VelRmaVoid");
  const VelIRshParameter_var hPlain = Add(hRoot_, "slotted2", "VelRmaScalar");
  Listen();
  VelRshAppearanceUpdater updater(*hAll);
  updater.StoreParameter(*hVoid);
  updater.OnValueUpdate();
  EXPECT_EQ(Told(), (Texts{stored, stored, copied, drawn, "info: Updating derived bump parameter...", converted,
                           "time: texture update overhead", valueDone}));
  updater.OnConnectionUpdate();
  EXPECT_EQ(Cache().Take(), Texts{"ResetEntry(5)"}) << "name and channel are those of the new one";
  Listen();
  updater.StoreParameter(*hPlain);
  updater.OnValueUpdate();
  EXPECT_EQ(Told(), (Texts{stored, valueDone})) << "a private side has the last word";
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, RootParameterRemovedDuringTheCopyOfMapping_EndsItWithANullHandle) {
  Tag("scale_u", "mapping");
  const VelIRshParameter_var hScale = AddScalar(hRoot_, "scale_u", 2.0F);
  AddScalar(Connect("one"), "scale_u", 1.0F);
  AddScalar(Connect("two"), "scale_u", 1.0F);
  const VelIRshParameter_var hLast = AddScalar(Connect("three"), "scale_u", 1.0F);
  Listen();
  VelRshAppearanceUpdater updater(*hScale);
  const ActOnLine act("Updating one connected", Removing("two"));
  EXPECT_THROW(updater.OnValueUpdate(), VelNullHandleError);
  EXPECT_EQ(Told(), (Texts{stored, "info: Updating one connected shader mapping data scale_u", noParameter, copied,
                           valueDone}));
  EXPECT_EQ(ScalarOf(hLast), 1.0F);
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, RootParameterRemovedDuringTheRaster_EndsItWithANullHandle) {
  Tag("dpi", "dpi");
  const VelIRshParameter_var hDpi = AddInteger(hRoot_, "dpi", 300);
  AddSvg(Connect("slotted"), "/a.svg", 72, "one");
  AddScalar(hRoot_, "two", 1.0F);
  AddSvg(Connect("slotted2"), "/b.svg", 72, "one");
  Listen();
  VelRshAppearanceUpdater updater(*hDpi);
  const ActOnLine act("'slotted' SVG rasterizing", Removing("two"));
  EXPECT_THROW(updater.OnValueUpdate(), VelNullHandleError);
  EXPECT_EQ(Cache().Take(), Texts{"SetEntry(5, /a.svg, image)"}) << "and what was done stays";
  EXPECT_EQ(Told(),
            (Texts{stored, "info: 'slotted' detected as connected to an SVG texture located /a.svg",
                   "info: 'slotted' SVG rasterizing... { dpi: 300, group count: 1 }",
                   "info: 'slotted' rasterized cache entry updated { path: /a.svg }", noParameter, drawn, valueDone}));
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, NullHandle_IsReportedByTheEntryPoint) {
  Tag("scale_u", "mapping");
  const VelIRshParameter_var hScale = AddScalar(hRoot_, "scale_u", 2.0F);
  AddScalar(Connect("one"), "scale_u", 1.0F);
  Connect("two");
  Listen();
  const ActOnLine act("Updating one connected", Removing("two"));
  EXPECT_EQ(VelIRshParameterPrivate_var(hScale)->UpdateValue(), E_FAIL);
  EXPECT_EQ(checks_.Messages(), Texts{"An operation of an interface threw an exception"});
  checks_.Clear();
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, RootParameterRemovedDuringTheConversionOfBump_IsPassedOver) {
  Tag("level", "bump");
  const VelIRshParameter_var hLevel = AddScalar(hRoot_, "level", 0.05F);
  AddScalar(Connect("one"), "bump", 0.0F);
  Connect("two");
  const VelIRshParameter_var hLast = AddScalar(Connect("three"), "bump", 0.0F);
  const ActOnLine act("MDL Bump translation", Removing("two"));
  UpdateValue(hLevel);
  const Texts told = Told();
  ASSERT_EQ(told.size(), 11U);
  EXPECT_EQ(told[4], "info: MDL Bump update from 0.000000 to 50.000000");
  EXPECT_EQ(told[5], noParameter);
  EXPECT_EQ(told[6], "info: Found connected shader bump parameter { is bump type present = no }");
  EXPECT_EQ(ScalarOf(hLast), 50.0F);
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, RootParameterRemovedDuringTheInjection_IsPassedOver) {
  Tag("scale_u", "mapping");
  Tag("scale_v", "mapping");
  Tag("offset_u", "mapping");
  for (const char* name : {"scale_u", "scale_v", "offset_u"}) AddScalar(hRoot_, name, 2.0F);
  const VelIRshShader_var hSub = Connect("link");
  for (const char* name : {"scale_u", "scale_v", "offset_u"}) AddScalar(hSub, name, 1.0F);
  const ActOnLine act("Updating link connected", Removing("scale_v"));
  UpdateConnection(Find(hRoot_, "link"));
  const Texts told = Told();
  EXPECT_EQ(told[2], "error: E_NOINTERFACE VelIRshParameterPrivate");
  EXPECT_EQ(told[3], "info: Updating link connected shader mapping data offset_u");
  EXPECT_EQ(ScalarOf(Find(hSub, "scale_v")), 1.0F);
}

TEST_F(VelRshAppearanceUpdaterLimitsTest, RootParameterThatIsNoneAnyMore_IsPassedOverByTheInjection) {
  const FakeShyParameterBindings bindings;
  VelIRshParameter_var hShy = FakeShyParameter::Create(*hContainer_);
  ASSERT_EQ(hRoot_->AppendParameter(hShy.Get()), S_OK);
  hShy = nullptr;
  Tag("scale_u", "mapping");
  AddScalar(hRoot_, "scale_u", 2.0F);
  const VelIRshShader_var hSub = Connect("link");
  AddScalar(hSub, "shy", 1.0F);
  AddScalar(hSub, "scale_u", 1.0F);
  UpdateConnection(Find(hRoot_, "link"));
  const Texts told = Told();
  EXPECT_EQ(told[1], noParameter);
  EXPECT_EQ(told[2], "info: Updating link connected shader mapping data scale_u");
  EXPECT_EQ(told[3], injected);
}

}  // namespace
