// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationSources_test.cpp What a source of the host says beneath all configurations and messages.
#include <string>

#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/session/VelPlatformSession.h"
#include "tests/platform/configuration/ConfigurationTest.h"
#include "tests/platform/configuration/FakeConfigurationSource.h"

namespace {

class VelConfigurationSourcesTest : public ConfigurationTest {
 protected:
  void SetUp() override {
    ConfigurationTest::SetUp();
    source_.configurations["A"] = {.parent = "B", .entries = {{"", "own", "a"}, {"", "empty", ""}}, .messages = {}};
    source_.configurations["B"] = {
        .parent = {},
        .entries = {{"", "own", "b"}, {"", "above", "b"}},
        .messages = {{"en", "label", "Color"}, {"de", "label", "Farbe"}, {"de_AT", "label", "Farb"}}};
  }

  FakeConfigurationSource source_;
  VelPlatformSession session_;
};

TEST_F(VelConfigurationSourcesTest, WithoutASession_NobodyIsAsked) {
  EXPECT_EQ(Value("A", "own"), "(none)");
  EXPECT_EQ(Message("B", "label"), "");
  VelRbaConfiguration::ForgetSources();
  EXPECT_EQ(source_.calls, Texts{});
}

TEST_F(VelConfigurationSourcesTest, ASession_AsksAtTheFirstLookUpAndForWhatIsLookedInto) {
  ASSERT_EQ(session_.Start(), S_OK);
  EXPECT_EQ(source_.calls, Texts{});
  EXPECT_EQ(Value("Nobody", "own"), "(none)");
  EXPECT_EQ(source_.calls, Texts{"list"});
  EXPECT_EQ(Value("A", "own"), "a");
  EXPECT_EQ(source_.calls, (Texts{"list", "read A"}));
  EXPECT_EQ(Value("A", "above"), "b");
  EXPECT_EQ(Value("A", "empty"), "");
  EXPECT_EQ(Value("A", "nothing"), "(none)");
  EXPECT_EQ(source_.calls, (Texts{"list", "read A", "read B"}));
}

TEST_F(VelConfigurationSourcesTest, WhatWasAbsentBeforeTheSession_IsFound) {
  EXPECT_EQ(Value("A", "own"), "(none)");
  ASSERT_EQ(session_.Start(), S_OK);
  const std::uint64_t before = VelRbaConfiguration::Generation();
  EXPECT_EQ(Value("A", "own"), "a");
  EXPECT_EQ(VelRbaConfiguration::Generation(), before + 1);
}

TEST_F(VelConfigurationSourcesTest, EverythingElse_StandsAboveIt) {
  ASSERT_EQ(VelRbaConfiguration::SetValue("A", "own", "code"), S_OK);
  ASSERT_EQ(VelRbaConfiguration::SetValue("Default", "above", "default"), S_OK);
  ASSERT_EQ(session_.Start(), S_OK);
  EXPECT_EQ(Value("A", "own"), "code");
  EXPECT_EQ(Value("A", "above"), "b") << "a parent before the default";
  ASSERT_EQ(VelRbaConfiguration::SetParent("A", "C"), S_OK);
  EXPECT_EQ(Value("A", "above"), "default");
  EXPECT_EQ(VelRbaConfiguration::RemoveConfiguration("A"), S_OK);
  EXPECT_EQ(Value("A", "own"), "(none)");
  EXPECT_EQ(Value("A", "above"), "default");
}

TEST_F(VelConfigurationSourcesTest, TextsByLanguage_FollowTheLanguageAndAreMessagesToo) {
  ASSERT_EQ(session_.Start(), S_OK);
  struct Case {
    const char* language;
    const char* expected;
  };
  for (const Case& test :
       {Case{"en", "Color"}, Case{"de", "Farbe"}, Case{"de_CH", "Farbe"}, Case{"de_AT", "Farb"}, Case{"fr", "Color"}}) {
    VelMsgCatalog::SetLanguage(test.language);
    EXPECT_EQ(Value("A", "label"), test.expected) << test.language;
    EXPECT_EQ(Message("B", "label"), test.expected) << test.language;
    EXPECT_EQ(Message("A", "label"), "") << "a catalog has no parent";
  }
  VelMsgCatalog::SetLanguage("de");
  ASSERT_EQ(VelMsgCatalog::SetMessage("de", "B", "label", "Ton"), S_OK);
  EXPECT_EQ(Value("A", "label"), "Ton");
  ASSERT_EQ(VelRbaConfiguration::SetValue("B", "label", "fixed"), S_OK);
  EXPECT_EQ(Value("A", "label"), "fixed");
  EXPECT_EQ(Message("B", "label"), "Ton");
}

TEST_F(VelConfigurationSourcesTest, TheEndOfTheSession_LetsGoOfTheSource) {
  ASSERT_EQ(session_.Start(), S_OK);
  EXPECT_EQ(Value("A", "own"), "a");
  EXPECT_EQ(source_.live, 1);
  EXPECT_EQ(session_.End(), S_OK);
  EXPECT_EQ(source_.live, 0);
  EXPECT_EQ(Value("A", "own"), "(none)");
  EXPECT_EQ(Message("B", "label"), "");
  source_.configurations["A"].entries[0].value = "again";
  ASSERT_EQ(session_.Start(), S_OK);
  EXPECT_EQ(Value("A", "own"), "again");
}

TEST_F(VelConfigurationSourcesTest, ForgetSources_HasThemAskedAgain) {
  ASSERT_EQ(session_.Start(), S_OK);
  EXPECT_EQ(Value("A", "own"), "a");
  source_.configurations["A"].entries[0].value = "new";
  EXPECT_EQ(Value("A", "own"), "a");
  const std::uint64_t before = VelRbaConfiguration::Generation();
  VelRbaConfiguration::ForgetSources();
  EXPECT_GT(VelRbaConfiguration::Generation(), before);
  EXPECT_EQ(Value("A", "own"), "new");
}

TEST_F(VelConfigurationSourcesTest, Clear_TakesOutWhatWasSaidUntilTheSourceIsAskedAgain) {
  ASSERT_EQ(session_.Start(), S_OK);
  EXPECT_EQ(Value("A", "own"), "a");
  VelRbaConfiguration::Clear();
  EXPECT_EQ(Value("A", "own"), "(none)");
  VelRbaConfiguration::ForgetSources();
  EXPECT_EQ(Value("A", "own"), "a");
}

TEST_F(VelConfigurationSourcesTest, ASourceThatFails_SaysNothing) {
  source_.alsoListed = {"", "Default", "Refused"};
  ASSERT_EQ(session_.Start(), S_OK);
  EXPECT_EQ(Value("Refused", "own"), "(none)");
  EXPECT_EQ(Value("Refused", "other"), "(none)");
  EXPECT_EQ(source_.calls, (Texts{"list", "read Refused"})) << "asked once, and not for the default";
  EXPECT_EQ(session_.End(), S_OK);
  source_.listCode = E_FAIL;
  ASSERT_EQ(session_.Start(), S_OK);
  EXPECT_EQ(Value("A", "own"), "(none)");
}

TEST_F(VelConfigurationSourcesTest, LookUpsOfTheSourceItself_AreAnsweredWithoutIt) {
  source_.onRead = [] {
    EXPECT_EQ(Value("B", "own"), "(none)");
    VelRbaConfiguration::ForgetSources();
  };
  ASSERT_EQ(session_.Start(), S_OK);
  EXPECT_EQ(Value("A", "own"), "a");
  source_.onRead = nullptr;
  EXPECT_EQ(Value("B", "own"), "b");
}

TEST_F(VelConfigurationSourcesTest, ParentsInACircle_EndTheLookUp) {
  source_.configurations["B"].parent = "A";
  ASSERT_EQ(session_.Start(), S_OK);
  EXPECT_EQ(Value("A", "above"), "b");
  EXPECT_EQ(Value("A", "nothing"), "(none)");
  EXPECT_EQ(TakeErrors(), Texts{"VelRbaConfiguration: The parents of 'A' run in a circle"});
}

TEST_F(VelConfigurationSourcesTest, ShaderTypesOfTheOptions_GoToTheSource) {
  const std::string own = folder_.Write("Own.toml", "");
  ASSERT_EQ(session_.Start({.shaderTypes = {"Own.toml", "/nowhere/Gone.toml"}, .searchFolders = {folder_.Path()}}),
            S_OK);
  EXPECT_EQ(source_.calls, (Texts{"add " + own, "add /nowhere/Gone.toml"}));
  EXPECT_EQ(session_.End(), S_OK);
  source_.addCode = E_FAIL;
  EXPECT_EQ(session_.Start({.shaderTypes = {own}}), E_FAIL);
  EXPECT_EQ(TakeErrors(), Texts{"VelPlatformSession: The session does not start without its shader types 'Own.toml'"});
  EXPECT_EQ(source_.live, 0);
}

TEST(VelConfigurationSourcesAbsenceTest, ShaderTypesOfTheOptionsWithoutASource_EndTheStart) {
  VelPlatformSession session;
  EXPECT_EQ(session.Start({.shaderTypes = {"Own.toml"}}), E_FAIL);
}

}  // namespace
