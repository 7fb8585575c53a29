// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationParticipant_test.cpp The configurations that a session brings and takes away again.
#include <cstdlib>
#include <filesystem>
#include <string>

#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/session/VelPlatformSession.h"
#include "tests/platform/configuration/ConfigurationTest.h"
#include "tests/platform/configuration/FakeConfigurationReader.h"

namespace {

class VelConfigurationParticipantTest : public ConfigurationTest {};

TEST_F(VelConfigurationParticipantTest, Session_LoadsTheEnvironmentThenTheOptionsInTheirOrder) {
  const FakeConfigurationReader reader;
  std::filesystem::create_directory(folder_.Path("folder"));
  folder_.Write("folder/b.toml", "C folder b\nC last b\n");
  folder_.Write("folder/a.toml", "C folder a\nC last a\n");
  folder_.Write("folder/note.txt", "C folder txt\n");
  const std::string first = folder_.Write("first.toml", "C folder first\nC file first\nC last first\n");
  folder_.Write("option.toml", "C file option\nC last option\n");
  folder_.Write("later.toml", "C last later\n");
  ::setenv("VEL_CONFIGURATION_PATH", (first + ":" + folder_.Path("folder")).c_str(), 1);
  VelPlatformSession session;
  ASSERT_EQ(
      session.Start({.configurations = {"option.toml", "later.toml"}, .searchFolders = {"nowhere", folder_.Path()}}),
      S_OK);
  EXPECT_EQ(Value("C", "folder"), "b");
  EXPECT_EQ(Value("C", "file"), "option");
  EXPECT_EQ(Value("C", "last"), "later");
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelConfigurationParticipantTest, FolderOfTheOptions_IsLoadedToo) {
  const FakeConfigurationReader reader;
  folder_.Write("a.toml", "C key a\n");
  VelPlatformSession session;
  ASSERT_EQ(session.Start({.configurations = {folder_.Path()}}), S_OK);
  EXPECT_EQ(Value("C", "key"), "a");
}

TEST_F(VelConfigurationParticipantTest, EndOfTheSession_TakesAwayWhatItBroughtAndBringsBackWhatThatCovered) {
  const FakeConfigurationReader reader;
  ASSERT_EQ(VelRbaConfiguration::SetValue("C", "covered", "code"), S_OK);
  ASSERT_EQ(VelRbaConfiguration::SetValue("C", "equal", "same"), S_OK);
  ASSERT_EQ(VelRbaConfiguration::SetValue("C", "kept", "code"), S_OK);
  ASSERT_EQ(VelRbaConfiguration::SetValue("C", "overwritten", "code"), S_OK);
  ASSERT_EQ(VelRbaConfiguration::SetParent("C", "Code"), S_OK);
  ASSERT_EQ(VelRbaConfiguration::SetValue("Code", "above", "code"), S_OK);
  folder_.Write("a.toml",
                "C < Session\nNew < Code\nC covered once\nC equal same\nC overwritten session\nC new session\nSession "
                "above session\n");
  folder_.Write("b.toml", "C covered twice\n");
  VelPlatformSession session;
  ASSERT_EQ(session.Start({.configurations = {folder_.Path()}}), S_OK);
  EXPECT_EQ(Value("C", "covered"), "twice");
  EXPECT_EQ(Value("C", "above"), "session");
  EXPECT_EQ(Value("C", "new"), "session");
  EXPECT_EQ(Value("New", "above"), "code");
  ASSERT_EQ(VelRbaConfiguration::SetValue("C", "overwritten", "later"), S_OK);
  const std::string own = folder_.Write("own.txt", "C own file\n");
  ASSERT_EQ(VelRbaConfiguration::LoadFile(own), S_OK);
  const std::uint64_t before = VelRbaConfiguration::Generation();
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(VelRbaConfiguration::Generation(), before + 1);
  struct Case {
    const char* configuration;
    const char* key;
    const char* expected;
  };
  for (const Case& test :
       {Case{"C", "covered", "code"}, Case{"C", "equal", "same"}, Case{"C", "kept", "code"},
        Case{"C", "overwritten", "later"}, Case{"C", "own", "file"}, Case{"C", "above", "code"},
        Case{"C", "new", "(none)"}, Case{"New", "above", "(none)"}, Case{"Session", "above", "(none)"}}) {
    SCOPED_TRACE(test.key);
    EXPECT_EQ(Value(test.configuration, test.key), test.expected);
  }
  EXPECT_EQ(VelRbaConfiguration::RemoveConfiguration("Session"), S_FALSE) << "nothing of it is left";
}

TEST_F(VelConfigurationParticipantTest, SessionWithoutConfigurations_ChangesNothing) {
  ASSERT_EQ(VelRbaConfiguration::SetValue("C", "key", "code"), S_OK);
  const std::uint64_t before = VelRbaConfiguration::Generation();
  VelPlatformSession session;
  ASSERT_EQ(session.Start(), S_OK);
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(VelRbaConfiguration::Generation(), before);
}

TEST_F(VelConfigurationParticipantTest, FaultyFileOfTheOptions_EndsTheStartAndLeavesNothing) {
  const FakeConfigurationReader reader;
  const std::string good = folder_.Write("good.toml", "C key good\n");
  const std::string bad = folder_.Write("bad.toml", "fault 2 3\n");
  struct Case {
    std::string path;
    std::string expected;
  };
  for (const Case& test :
       {Case{bad, "bad.toml:2:3: as written"}, Case{"/nowhere/at/all", "/nowhere/at/all: no such file"}}) {
    SCOPED_TRACE(test.path);
    VelPlatformSession session;
    EXPECT_EQ(session.Start({.configurations = {good, test.path}}), E_FAIL);
    EXPECT_FALSE(session.IsRunning());
    EXPECT_EQ(Value("C", "key"), "(none)");
    const Texts errors = TakeErrors();
    ASSERT_EQ(errors.size(), 2U);
    EXPECT_EQ(errors[0], "VelRbaConfiguration: " + test.expected);
    EXPECT_TRUE(errors[1].starts_with("VelPlatformSession: The session does not start without its configuration "));
  }
}

TEST_F(VelConfigurationParticipantTest, FaultyFileOfTheEnvironment_IsReportedAndLeftOut) {
  const FakeConfigurationReader reader;
  const std::string bad = folder_.Write("bad.toml", "fault 2 3\n");
  const std::string good = folder_.Write("good.toml", "C key good\n");
  ::setenv("VEL_CONFIGURATION_PATH", (bad + ":/nowhere/at/all:" + good).c_str(), 1);
  VelPlatformSession session;
  EXPECT_EQ(session.Start(), S_OK);
  EXPECT_EQ(Value("C", "key"), "good");
  const Texts warnings = Take(VelTraceKind::Warning);
  EXPECT_EQ(warnings, (Texts{"VelPlatformSession: VEL_CONFIGURATION_PATH names 'bad.toml', which is left out",
                             "VelPlatformSession: VEL_CONFIGURATION_PATH names '/nowhere/at/all', which is left out"}));
}

TEST_F(VelConfigurationParticipantTest, OptionsWithoutAReader_EndTheStart) {
  const std::string file = folder_.Write("a.toml", "C key a\n");
  VelPlatformSession session;
  EXPECT_EQ(session.Start({.configurations = {file}}), E_FAIL);
  EXPECT_EQ(TakeErrors(), Texts{"VelPlatformSession: The session does not start without its configuration 'a.toml'"});
  EXPECT_EQ(session.Start(), S_OK);
}

}  // namespace
