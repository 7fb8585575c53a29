// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformFiles_test.cpp The library of the files behind the dictionary: when it is opened and what it reads.
#include <cstdlib>
#include <string>

#include "platform/configuration/VelIConfigurationReader.h"
#include "platform/configuration/VelIConfigurationTreeReader.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelModule.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/session/VelPlatformSession.h"
#include "tests/platform/configuration/ConfigurationTest.h"

namespace {

constexpr const char* dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelPlatformFiles.dictionary";

bool IsOpen() { return VelModuleRegistration::Find("VelPlatformFiles") != nullptr; }

/// With the dictionary that the build made.
class VelPlatformFilesTest : public ConfigurationTest {
 protected:
  void SetUp() override {
    ConfigurationTest::SetUp();
    ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
  }
  void TearDown() override {
    EXPECT_EQ(VelDictionary::Unload(dictionary), S_OK);
    ConfigurationTest::TearDown();
  }
};
using VelPlatformFilesDeathTest = VelPlatformFilesTest;

TEST_F(VelPlatformFilesDeathTest, Library_IsOpenedByTheFirstFile) {
  EXPECT_EXIT(
      {
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(VelRbaConfiguration::LoadFile(folder_.Path("gone.toml")), E_FAIL);
        EXPECT_EQ(Value("A", "k"), "(none)");
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(VelRbaConfiguration::LoadFile(folder_.Write("a.toml", "[A]\nk = 'v'\n")), S_OK);
        EXPECT_TRUE(IsOpen());
        std::exit(HasFailure() ? 1 : 0);
      },
      ::testing::ExitedWithCode(0), "");
}

TEST_F(VelPlatformFilesTest, Grid_BindsTheReaderAndNothingElse) {
  const VelBaseUnknown_var hFiles = VelObject::Create("VelPlatformFiles", nullptr);
  EXPECT_TRUE(VelIConfigurationReader_var(hFiles));
  EXPECT_TRUE(VelIConfigurationTreeReader_var(hFiles));
  EXPECT_EQ(VelQueryFramework("VelPlatformFiles", "VelIConfigurationReader"), "Platform");
  EXPECT_STREQ(VelIConfigurationReader_var(hFiles)->GetImpl()->ClassName(), "VelConfigurationReader");
}

TEST_F(VelPlatformFilesTest, Files_OverrideEachOtherKeyByKey) {
  EXPECT_EQ(VelRbaConfiguration::LoadFile(folder_.Write("a.toml",
                                                        "[Default]\nMappingScale.DefaultValue = 1.5\n"
                                                        "[BasicMaterial]\nbase_color.Tag = \"mapping\"\n"
                                                        "base_color.Label = \"Color\"\n"
                                                        "[CarPaint]\nparent = \"BasicMaterial\"\n")),
            S_OK);
  EXPECT_EQ(Value("CarPaint", "base_color.Tag"), "mapping");
  EXPECT_EQ(Value("CarPaint", "MappingScale.DefaultValue"), "1.5");
  EXPECT_EQ(VelRbaConfiguration::LoadFile(
                folder_.Write("b.toml", "[BasicMaterial]\n\"base_color.Tag\" = \"\"\n[CarPaint]\nparent = ''\n")),
            S_OK);
  EXPECT_EQ(Value("BasicMaterial", "base_color.Tag"), "");
  EXPECT_EQ(Value("BasicMaterial", "base_color.Label"), "Color");
  EXPECT_EQ(Value("CarPaint", "base_color.Tag"), "(none)");
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelPlatformFilesTest, FileWithASyntaxError_IsIgnoredAsAWholeWithOneErrorThatNamesThePlace) {
  EXPECT_EQ(VelRbaConfiguration::LoadFile(folder_.Write("a.toml", "[A]\nk = 'v'\nl = mapping\n")), E_FAIL);
  EXPECT_EQ(Value("A", "k"), "(none)");
  const Texts errors = TakeErrors();
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_TRUE(errors[0].starts_with("VelRbaConfiguration: a.toml:3:5: ")) << errors[0];
  EXPECT_NE(errors[0].find("value"), std::string::npos) << errors[0];
}

TEST_F(VelPlatformFilesTest, HugeKey_IsRefused) {
  std::string key = "[A]\na";
  for (int i = 0; i < 40000; ++i) key += ".a";
  EXPECT_EQ(VelRbaConfiguration::LoadFile(folder_.Write("a.toml", key + " = 1\n")), E_FAIL);
  EXPECT_EQ(TakeErrors(), Texts{"VelRbaConfiguration: a.toml:2:64: a key has more than 32 parts"});
}

TEST_F(VelPlatformFilesTest, FileOfFourMebibytes_IsTheLargest) {
  constexpr std::size_t limit = 4U << 20U;
  std::string text = "[A]\nk = 'v'\n#";
  text.append(limit - text.size(), 'x');
  EXPECT_EQ(VelRbaConfiguration::LoadFile(folder_.Write("a.toml", text)), S_OK);
  EXPECT_EQ(Value("A", "k"), "v");
  EXPECT_EQ(VelRbaConfiguration::LoadFile(folder_.Write("a.toml", text + 'x')), E_FAIL);
  EXPECT_EQ(TakeErrors().size(), 1U);
}

TEST_F(VelPlatformFilesTest, MessageFiles_AreRead) {
  EXPECT_EQ(VelMsgCatalog::LoadFile(folder_.Write("Cat.de.toml", "[Panel]\nTitle = \"Glanz & Größe\"\n")), S_OK);
  EXPECT_EQ(VelMsgCatalog::LoadFile(folder_.Write("Cat.en.toml", "Panel.Title = \"Gloss\"\nOther = \"only\"\n")), S_OK);
  VelMsgCatalog::SetLanguage("de_DE.UTF-8");
  EXPECT_EQ(Message("Cat", "Panel.Title"), "Glanz & Größe");
  EXPECT_EQ(Message("Cat", "Other"), "only");
  EXPECT_EQ(VelMsgCatalog::LoadFile(folder_.Write("Cat.fr.toml", "Title = [1]\n")), E_FAIL);
  EXPECT_EQ(TakeErrors(),
            Texts{"VelMsgCatalog: Cat.fr.toml:1:9: a value is a text, a number, true or false, found an array"});
}

TEST_F(VelPlatformFilesTest, Session_LoadsFilesThroughTheDictionaryOfItsOptions) {
  ASSERT_EQ(VelDictionary::Unload(dictionary), S_OK);
  const std::string file = folder_.Write("a.toml", "[A]\nk = 'v'\n");
  VelPlatformSession session;
  EXPECT_EQ(session.Start({.dictionaries = {dictionary}, .configurations = {file}}), S_OK);
  EXPECT_EQ(Value("A", "k"), "v");
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(Value("A", "k"), "(none)");
  ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
}

TEST_F(VelPlatformFilesTest, Trees_AreReadBehindTheDictionary) {
  const VelIConfigurationTreeReader_var hReader(VelObject::Create("VelPlatformFiles", nullptr));
  std::vector<VelConfigurationNode> nodes;
  VelConfigurationFault fault;
  EXPECT_EQ(hReader->ReadTree("a = [1]\n", nodes, fault), S_OK);
  ASSERT_EQ(nodes.size(), 2U);
  EXPECT_EQ(nodes[1].parent, 0U);
  EXPECT_EQ(hReader->ReadTree("a = [\n", nodes, fault), E_FAIL);
  EXPECT_EQ(nodes.size(), 2U);
  EXPECT_NE(fault.line, 0U);
}

}  // namespace
