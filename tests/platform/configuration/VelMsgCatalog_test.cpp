// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMsgCatalog_test.cpp Messages, languages and the fall-back to English.
#include "platform/configuration/VelMsgCatalog.h"

#include <cstdlib>
#include <string>

#include "tests/platform/configuration/ConfigurationTest.h"
#include "tests/platform/configuration/FakeConfigurationReader.h"

namespace {

void Set(const char* iLanguage, const char* iKey, const char* iText) {
  ASSERT_EQ(VelMsgCatalog::SetMessage(iLanguage, "Cat", iKey, iText), S_OK);
}

class VelMsgCatalogTest : public ConfigurationTest {};

TEST_F(VelMsgCatalogTest, Message_IsThatOfTheLanguageElseOfItsParentElseEnglish) {
  Set("en", "all", "english");
  Set("de", "all", "deutsch");
  Set("de_AT", "all", "österreichisch");
  Set("en", "german", "english");
  Set("de", "german", "deutsch");
  Set("en", "english", "english");
  Set("fr", "french", "français");
  Set("de", "empty", "");
  Set("en", "empty", "english");
  struct Case {
    const char* language;
    const char* key;
    const char* expected;
  };
  for (const Case& test : {Case{"", "all", "english"},
                           Case{"en", "all", "english"},
                           Case{"C", "all", "english"},
                           Case{"POSIX", "all", "english"},
                           Case{"C.UTF-8", "all", "english"},
                           Case{"de", "all", "deutsch"},
                           Case{"de_DE", "all", "deutsch"},
                           Case{"de_DE.UTF-8", "all", "deutsch"},
                           Case{"de@euro", "all", "deutsch"},
                           Case{"de_AT", "all", "österreichisch"},
                           Case{"de-AT", "all", "österreichisch"},
                           Case{"de_AT.UTF-8", "all", "österreichisch"},
                           Case{"de_AT_Wien", "all", "österreichisch"},
                           Case{"de_AT", "german", "deutsch"},
                           Case{"de_AT", "english", "english"},
                           Case{"it", "all", "english"},
                           Case{"DE", "all", "english"},
                           Case{"de", "french", ""},
                           Case{"de_AT", "empty", ""},
                           Case{"de", "missing", ""},
                           Case{"_", "all", "english"}}) {
    SCOPED_TRACE(std::string(test.language) + " " + test.key);
    VelMsgCatalog::SetLanguage(test.language);
    EXPECT_EQ(Message("Cat", test.key), test.expected);
  }
  EXPECT_EQ(Message("Unknown", "all"), "");
  EXPECT_EQ(Message("", ""), "");
}

TEST_F(VelMsgCatalogTest, Language_IsTheOneThatWasSetElseThatOfTheEnvironmentElseEnglish) {
  EXPECT_EQ(VelMsgCatalog::Language(), "en");
  ::setenv("VEL_LANGUAGE", "de_DE.UTF-8", 1);
  EXPECT_EQ(VelMsgCatalog::Language(), "de_DE");
  VelMsgCatalog::SetLanguage("fr-CA");
  EXPECT_EQ(VelMsgCatalog::Language(), "fr_CA");
  VelMsgCatalog::SetLanguage("");
  EXPECT_EQ(VelMsgCatalog::Language(), "de_DE");
  ::setenv("VEL_LANGUAGE", "", 1);
  EXPECT_EQ(VelMsgCatalog::Language(), "en");
}

TEST_F(VelMsgCatalogTest, SetMessage_SaysWhetherItChangedSomething) {
  EXPECT_EQ(VelMsgCatalog::SetMessage("de", "Cat", "key", "text"), S_OK);
  EXPECT_EQ(VelMsgCatalog::SetMessage("de", "Cat", "key", "text"), S_FALSE);
  EXPECT_EQ(VelMsgCatalog::SetMessage("de", "Cat", "key", "other"), S_OK);
  EXPECT_EQ(VelMsgCatalog::SetMessage("", "Cat", "key", "english"), S_OK) << "no language is English";
  EXPECT_EQ(VelMsgCatalog::SetMessage("de", "", "key", "text"), E_INVALIDARG);
  EXPECT_EQ(VelMsgCatalog::SetMessage("de", "Cat", "", "text"), E_INVALIDARG);
  EXPECT_EQ(Message("Cat", "key"), "english");
  VelMsgCatalog::SetLanguage("de");
  EXPECT_EQ(Message("Cat", "key"), "other");
  VelMsgCatalog::Clear();
  EXPECT_EQ(Message("Cat", "key"), "");
  EXPECT_EQ(VelMsgCatalog::Language(), "en");
}

TEST_F(VelMsgCatalogTest, File_NamesItsCatalogAndLanguageAndOverridesKeyByKey) {
  const FakeConfigurationReader reader;
  Set("de", "Title", "code");
  Set("de", "Other", "code");
  EXPECT_EQ(VelMsgCatalog::LoadFile(folder_.Write("Cat.de.toml", "- Title Titel\n- New neu\n")), S_OK);
  EXPECT_EQ(VelMsgCatalog::LoadFile(folder_.Write("Cat.en_GB.toml", "- Title Title\n")), S_OK);
  EXPECT_EQ(VelMsgCatalog::LoadFile(folder_.Write("My.Cat.de.toml", "- Title dotted\n")), S_OK);
  VelMsgCatalog::SetLanguage("de");
  EXPECT_EQ(Message("Cat", "Title"), "Titel");
  EXPECT_EQ(Message("Cat", "Other"), "code");
  EXPECT_EQ(Message("Cat", "New"), "neu");
  EXPECT_EQ(Message("My.Cat", "Title"), "dotted");
  VelMsgCatalog::SetLanguage("en_GB");
  EXPECT_EQ(Message("Cat", "Title"), "Title");
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelMsgCatalogTest, FileThatCannotBeLoaded_IsOneErrorAndLeavesTheMessages) {
  const FakeConfigurationReader reader;
  Set("en", "Title", "code");
  struct Case {
    const char* file;
    const char* text;
    const char* expected;
  };
  for (const Case& test : {Case{"Cat.toml", "", "Cat.toml: a message file is named <catalog>.<language>.toml"},
                           Case{"Cat.en.txt", "", "Cat.en.txt: a message file is named <catalog>.<language>.toml"},
                           Case{".en.toml", "", ".en.toml: a message file is named <catalog>.<language>.toml"},
                           Case{"Cat..toml", "", "Cat..toml: a message file is named <catalog>.<language>.toml"},
                           Case{"Cat.en.toml", "- Title new\nfault 2 7\n", "Cat.en.toml:2:7: as written"}}) {
    SCOPED_TRACE(test.file);
    EXPECT_EQ(VelMsgCatalog::LoadFile(folder_.Write(test.file, test.text)), E_FAIL);
    EXPECT_EQ(TakeErrors(), Texts{std::string("VelMsgCatalog: ") + test.expected});
  }
  EXPECT_EQ(VelMsgCatalog::LoadFile(folder_.Path("Gone.en.toml")), E_FAIL);
  EXPECT_EQ(TakeErrors(), Texts{"VelMsgCatalog: Gone.en.toml: no such file"});
  EXPECT_EQ(Message("Cat", "Title"), "code");
}

}  // namespace
