// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelConfigurationFiles_test.cpp Loading files and folders through whatever reader the dictionary names.
#include <cstdlib>
#include <filesystem>
#include <string>

#include "platform/configuration/VelMsgCatalog.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/platform/configuration/ConfigurationTest.h"
#include "tests/platform/configuration/FakeConfigurationReader.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

class VelConfigurationFilesTest : public ConfigurationTest {};
using VelConfigurationFilesDeathTest = VelConfigurationFilesTest;

HRESULT Load(const std::string& iPath) { return VelRbaConfiguration::LoadFile(iPath); }

TEST_F(VelConfigurationFilesTest, File_OverridesKeyByKeyAndRaisesTheGenerationOnce) {
  const FakeConfigurationReader reader;
  ASSERT_EQ(VelRbaConfiguration::SetValue("Car", "one", "code"), S_OK);
  ASSERT_EQ(VelRbaConfiguration::SetValue("Car", "two", "code"), S_OK);
  ASSERT_EQ(Value("Car", "three"), "(none)");
  const std::uint64_t before = VelRbaConfiguration::Generation();
  const std::string file = folder_.Write("a.toml", "Car < Metal\nCar one file\nMetal three file\n");
  EXPECT_EQ(Load(file), S_OK);
  EXPECT_EQ(VelRbaConfiguration::Generation(), before + 1);
  EXPECT_EQ(Value("Car", "one"), "file");
  EXPECT_EQ(Value("Car", "two"), "code");
  EXPECT_EQ(Value("Car", "three"), "file");
  EXPECT_EQ(Load(file), S_OK);
  EXPECT_EQ(VelRbaConfiguration::Generation(), before + 1) << "the same again changes nothing";
  EXPECT_EQ(Load(folder_.Write("b.toml", "Car < -\nCar two later\n")), S_OK);
  EXPECT_EQ(Value("Car", "one"), "file");
  EXPECT_EQ(Value("Car", "two"), "later");
  EXPECT_EQ(Value("Car", "three"), "(none)") << "an empty parent is none";
}

TEST_F(VelConfigurationFilesTest, FaultyFile_IsOneErrorAndChangesNothing) {
  const FakeConfigurationReader reader;
  const std::uint64_t before = VelRbaConfiguration::Generation();
  struct Case {
    const char* text;
    const char* expected;
  };
  for (const Case& test : {Case{"Car key file\nfault 3 14\n", "a.toml:3:14: as written"},
                           Case{"Car key file\nfault 0 0\n", "a.toml: as written"},
                           Case{"fail\n", "a.toml: the reader of configuration files failed and gave no cause"},
                           Case{"Car key file\n- key x\n", "a.toml: a configuration has an empty name"},
                           Case{"Car key file\n- < x\n", "a.toml: a configuration has an empty name"},
                           Case{"Car key file\nCar - x\n", "a.toml: a key is empty"},
                           Case{"Car key file\nDefault < x\n", "a.toml: the configuration 'Default' has no parent"}}) {
    SCOPED_TRACE(test.text);
    EXPECT_EQ(Load(folder_.Write("a.toml", test.text)), E_FAIL);
    EXPECT_EQ(TakeErrors(), Texts{std::string("VelRbaConfiguration: ") + test.expected});
    EXPECT_EQ(Value("Car", "key"), "(none)");
  }
  EXPECT_EQ(VelRbaConfiguration::Generation(), before);
}

TEST_F(VelConfigurationFilesTest, ReaderThatThrows_HasFailed) {
  const FakeConfigurationReader reader;
  const RecordingFailureObserver failures;
  EXPECT_EQ(Load(folder_.Write("a.toml", "throw\n")), E_FAIL);
  ASSERT_EQ(failures.Failures().size(), 1U);
  EXPECT_NE(failures.Failures()[0].detail.find("as written"), std::string::npos);
}

TEST_F(VelConfigurationFilesTest, UnreadableFile_IsAnErrorForWhichNoReaderIsAsked) {
  const FakeConfigurationReader reader;
  EXPECT_EQ(Load(folder_.Path("gone.toml")), E_FAIL);
  EXPECT_EQ(TakeErrors(), Texts{"VelRbaConfiguration: gone.toml: no such file"});
  EXPECT_EQ(Load(folder_.Path()), E_FAIL) << "a folder";
  EXPECT_EQ(TakeErrors().size(), 1U);
  EXPECT_EQ(FakeConfigurationReader::Count(), 0);
}

TEST_F(VelConfigurationFilesTest, FileOfFourMebibytes_IsTheLargest) {
  const FakeConfigurationReader reader;
  constexpr std::size_t limit = 4U << 20U;
  std::string text = "Car key file";
  text.append(limit - text.size(), ' ');
  EXPECT_EQ(Load(folder_.Write("a.toml", text)), S_OK);
  EXPECT_EQ(Value("Car", "key"), "file");
  EXPECT_EQ(FakeConfigurationReader::Count(), 1);
  EXPECT_EQ(Load(folder_.Write("a.toml", text + ' ')), E_FAIL);
  EXPECT_EQ(FakeConfigurationReader::Count(), 1);
  EXPECT_EQ(TakeErrors().size(), 1U);
}

TEST_F(VelConfigurationFilesTest, Folder_LoadsItsTomlFilesInTheOrderOfTheirNames) {
  const FakeConfigurationReader reader;
  folder_.Write("b.toml", "Car key b\nCar b b\n");
  folder_.Write("a.toml", "Car key a\nCar a a\n");
  folder_.Write("c.txt", "Car key c\n");
  EXPECT_EQ(VelRbaConfiguration::LoadFolder(folder_.Path()), S_OK);
  EXPECT_EQ(Value("Car", "key"), "b");
  EXPECT_EQ(Value("Car", "a"), "a");
  EXPECT_EQ(Value("Car", "b"), "b");
}

TEST_F(VelConfigurationFilesTest, FaultyFileOfAFolder_LeavesTheOthers) {
  const FakeConfigurationReader reader;
  folder_.Write("a.toml", "Car a a\n");
  folder_.Write("b.toml", "fault 1 1\n");
  folder_.Write("c.toml", "Car c c\n");
  EXPECT_EQ(VelRbaConfiguration::LoadFolder(folder_.Path()), E_FAIL);
  EXPECT_EQ(TakeErrors(), Texts{"VelRbaConfiguration: b.toml:1:1: as written"});
  EXPECT_EQ(Value("Car", "a"), "a");
  EXPECT_EQ(Value("Car", "c"), "c");
}

TEST_F(VelConfigurationFilesTest, FolderWithoutFiles_IsAWarningAndAMissingOneAnError) {
  std::filesystem::create_directory(folder_.Path("empty"));
  EXPECT_EQ(VelRbaConfiguration::LoadFolder(folder_.Path("empty")), S_OK);
  EXPECT_EQ(TakeWarnings(), Texts{"VelRbaConfiguration: The folder 'empty' holds no configuration file"});
  EXPECT_EQ(VelRbaConfiguration::LoadFolder(folder_.Path("gone")), E_FAIL);
  EXPECT_EQ(TakeErrors().size(), 1U);
}

TEST_F(VelConfigurationFilesDeathTest, MissingReader_IsAFailureAndOneWarningPerProcess) {
  EXPECT_EXIT(
      {
        const std::string file = folder_.Write("Cat.en.toml", "Car key file\n");
        EXPECT_EQ(Load(file), E_FAIL);
        EXPECT_EQ(TakeWarnings(),
                  Texts{"VelRbaConfiguration: 'Cat.en.toml' is not loaded, nor is any other configuration or message "
                        "file: the library VelPlatformFiles is missing, or no dictionary names it"});
        EXPECT_EQ(Load(file), E_FAIL);
        EXPECT_EQ(VelMsgCatalog::LoadFile(file), E_FAIL);
        EXPECT_EQ(Take(VelTraceKind::Warning), Texts{});
        EXPECT_EQ(Value("Car", "key"), "(none)");
        std::exit(HasFailure() ? 1 : 0);
      },
      ::testing::ExitedWithCode(0), "");
}

}  // namespace
