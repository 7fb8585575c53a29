// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationParticipant_test.cpp The configurations that a session brings and takes away again.
#include <cstdlib>
#include <filesystem>
#include <string>

#include "platform/base/system/VelSystemLibrary.h"
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
  std::filesystem::create_directory(folder_.Path("mixed"));
  folder_.Write("mixed/a.toml", "fault 4 5\n");
  folder_.Write("mixed/b.toml", "C mixed good\n");
  const std::string paths = bad + ":/nowhere/at/all:" + good + ':' + folder_.Path("mixed");
  ::setenv("VEL_CONFIGURATION_PATH", paths.c_str(), 1);
  VelPlatformSession session;
  EXPECT_EQ(session.Start(), S_OK);
  EXPECT_EQ(Value("C", "key"), "good");
  EXPECT_EQ(Value("C", "mixed"), "good") << "the sound files of a folder are loaded";
  const Texts warnings = TakeWarnings();
  ASSERT_EQ(warnings.size(), 3U);
  std::size_t index = 0;
  for (const char* path : {"bad.toml", "/nowhere/at/all", "mixed"}) {
    EXPECT_EQ(warnings[index++], std::string("VelPlatformSession: VEL_CONFIGURATION_PATH names '") + path +
                                     "', which is not loaded, or not as a whole");
  }
}

TEST_F(VelConfigurationParticipantTest, OptionsWithoutAReader_EndTheStart) {
  const std::string file = folder_.Write("a.toml", "C key a\n");
  VelPlatformSession session;
  EXPECT_EQ(session.Start({.configurations = {file}}), E_FAIL);
  EXPECT_EQ(TakeErrors(), Texts{"VelPlatformSession: The session does not start without its configuration 'a.toml'"});
  EXPECT_EQ(session.Start(), S_OK);
}

/// The installation lies where the library lies, so this program runs anew with a copy of it. The copy finds what the
/// outer run wrote: a faulty file and a sound one.
class VelConfigurationInstallationTest : public ConfigurationTest {
 protected:
  static bool IsInnerRun() { return std::getenv("VEL_TEST_INSTALLATION") != nullptr; }

  void Install() const {
    const std::filesystem::path library =
        VelSystemLibrary::PathOf(reinterpret_cast<const void*>(&VelPlatformSession::AddParticipant));
    const std::filesystem::path libraries = folder_.Path("prefix/inner/lib");
    const std::filesystem::path share = (libraries / VEL_SHARE_FROM_LIBRARY / "configuration").lexically_normal();
    std::filesystem::create_directories(libraries);
    std::filesystem::create_directories(share);
    std::filesystem::copy_file(library, libraries / library.filename());
    folder_.Write((share / "bad.toml").string(), "fault 2 3\n");
    folder_.Write((share / "good.toml").string(), "C installed yes\nC both installation\n");
  }

  /// @return what the program's inner run ends with, 0 for success
  int RunInner() const {
    const std::string name = ::testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::string command = "VEL_TEST_INSTALLATION=1 LD_LIBRARY_PATH='" + folder_.Path("prefix/inner/lib") + "' '" +
                                program + "' --gtest_brief=1 --gtest_filter='*." + name + "'";
    return std::system(command.c_str());
  }
};

TEST_F(VelConfigurationInstallationTest, Installation_IsLoadedBeforeWhatTheUserNames) {
  if (!IsInnerRun()) {
    Install();
    EXPECT_EQ(RunInner(), 0);
    return;
  }
  const FakeConfigurationReader reader;
  ::setenv("VEL_CONFIGURATION_PATH", folder_.Write("own.toml", "C both environment\n").c_str(), 1);
  VelPlatformSession session;
  ASSERT_EQ(session.Start(), S_OK);
  EXPECT_EQ(Value("C", "installed"), "yes");
  EXPECT_EQ(Value("C", "both"), "environment");
  const Texts warnings = TakeWarnings();
  ASSERT_EQ(warnings.size(), 1U);
  EXPECT_TRUE(warnings[0].starts_with("VelPlatformSession: The installed configurations in '/")) << warnings[0];
  EXPECT_TRUE(warnings[0].ends_with("/share/velrsh/configuration' are not loaded, or not all of them")) << warnings[0];
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(Value("C", "installed"), "(none)");
}

}  // namespace
