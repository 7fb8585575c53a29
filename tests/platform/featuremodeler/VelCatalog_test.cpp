// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCatalog_test.cpp Where catalogs are found, what is registered of them and what is refused.
#include "platform/featuremodeler/VelCatalog.h"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/featuremodeler/FindStartUp.h"
#include "platform/featuremodeler/VelFeatureLayout.h"
#include "platform/featuremodeler/VelICatalogManager.h"
#include "platform/featuremodeler/VelIContainer.h"
#include "platform/featuremodeler/VelISpecObject.h"
#include "platform/featuremodeler/VelOsmSUHandler.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/trace/VelDiagnostics.h"
#include "platform/trace/VelTraceService.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

using Texts = std::vector<std::string>;

/// A catalog's text.
std::string Catalog(const std::string& iName, const std::string& iLines = {}) {
  return "velrsh-catalog 1\ncatalog " + iName + '\n' + iLines;
}

/// A folder of its own. Catalogs stay to the end of the process, so each test names its own.
class VelCatalogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ::unsetenv("VEL_CATALOG_PATH");
    VelCatalog::SetFolders({});
    VelTraceService::Reset();
    VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
  }
  void TearDown() override {
    std::filesystem::current_path(startFolder_);
    ::unsetenv("VEL_CATALOG_PATH");
    VelCatalog::SetFolders({});
    VelTraceService::Reset();
  }

  const VelCatalog* Load(const std::string& iFile, const std::string& iText) {
    return VelCatalog::Load(folder_.Write(iFile, iText));
  }

  /// @return what was reported since the last call, without the path of the folder
  Texts TakeErrors() {
    Texts texts;
    const std::string prefix = std::filesystem::canonical(folder_.Path()).string() + '/';
    for (const VelDiagnosticEntry& entry : diagnostics_.Entries()) {
      EXPECT_EQ(entry.kind, VelTraceKind::Error);
      EXPECT_EQ(entry.channel, "VelCatalog");
      EXPECT_EQ(entry.source, "platform/featuremodeler/VelCatalog");
      EXPECT_GT(entry.line, 0U);
      std::string text = entry.text;
      for (auto at = text.find(prefix); at != std::string::npos; at = text.find(prefix)) text.erase(at, prefix.size());
      texts.push_back(text);
    }
    diagnostics_.Clear();
    return texts;
  }

  /// Loads a faulty text, and then a sound one from a file of its own that declares the same names.
  void ExpectRefused(const std::string& iName, const std::string& iLines, const std::string& iError) {
    SCOPED_TRACE(iName);
    EXPECT_EQ(Load(iName + "Faulty", Catalog(iName, iLines)), nullptr);
    EXPECT_EQ(TakeErrors(), Texts({iName + "Faulty:" + iError}));
    EXPECT_EQ(VelCatalog::Find(iName), nullptr);
    const VelCatalog* corrected = Load(iName, Catalog(iName, "startup " + iName + "Sound\nattribute Other text\n"));
    EXPECT_EQ(TakeErrors(), Texts());
    ASSERT_NE(corrected, nullptr);
    const VelFeatureLayout* sound = corrected->FindStartUp(iName + "Sound");
    ASSERT_NE(sound, nullptr);
    EXPECT_EQ(sound->Attributes().size(), 1U);
  }

  const std::string startFolder_ = std::filesystem::current_path().string();
  VelTemporaryFolder folder_;
  VelDiagnostics diagnostics_;
};

/// The attributes of a start-up: name, slot and capacity.
std::string Describe(const VelFeatureLayout* iStartUp) {
  if (iStartUp == nullptr) return "(none)";
  std::string text = iStartUp->Name() + (iStartUp->Base() != nullptr ? " < " + iStartUp->Base()->Name() : "") + ':';
  for (const VelFeatureAttribute& attribute : iStartUp->Attributes()) {
    text +=
        ' ' + attribute.key->Name() + '@' + std::to_string(attribute.slot) + '+' + std::to_string(attribute.capacity);
  }
  return text + " = " + std::to_string(iStartUp->SlotBytes());
}

TEST_F(VelCatalogTest, Load_RegistersTheCatalog_WithItsStartUpsCompiled) {
  EXPECT_EQ(VelCatalog::Find("Compiled"), nullptr);
  const VelCatalog* catalog = Load("c.feat", Catalog("Compiled",
                                                     "startup CompiledColor : CompiledBase\n"
                                                     "  attribute Value reals 4\n"
                                                     "  attribute Last boolean\n"
                                                     "startup CompiledBase\n"
                                                     "  attribute Name text\n"));
  ASSERT_NE(catalog, nullptr);
  EXPECT_EQ(catalog->Name(), "Compiled");
  EXPECT_EQ(VelCatalog::Find("Compiled"), catalog);
  EXPECT_EQ(Describe(catalog->FindStartUp("CompiledBase")), "CompiledBase: Name@0+0 = 8");
  EXPECT_EQ(Describe(catalog->FindStartUp("CompiledColor")),
            "CompiledColor < CompiledBase: Name@0+0 Value@1+4 Last@6+0 = 56");
  EXPECT_EQ(catalog->FindStartUp("CompiledBas"), nullptr);
  EXPECT_EQ(TakeErrors(), Texts());
}

TEST_F(VelCatalogTest, LoadingTwice_GivesTheSame_WhateverThePathAndTheFileSays) {
  const VelCatalog* catalog = Load("twice.feat", Catalog("Twice", "startup TwiceA\n"));
  ASSERT_NE(catalog, nullptr);
  std::filesystem::create_directory(folder_.Path("below"));
  std::filesystem::create_symlink(folder_.Path("twice.feat"), folder_.Path("link.feat"));
  EXPECT_EQ(VelCatalog::Load(folder_.Path("twice.feat")), catalog);
  EXPECT_EQ(VelCatalog::Load(folder_.Path("below/../twice.feat")), catalog);
  EXPECT_EQ(VelCatalog::Load(folder_.Path("link.feat")), catalog);
  EXPECT_EQ(Load("twice.feat", "no catalog any more"), catalog);
  EXPECT_EQ(TakeErrors(), Texts());
}

TEST_F(VelCatalogTest, Name_IsLookedForInTheCurrentFolder_ThenInTheFolders_ThenInThoseOfTheEnvironment) {
  for (const char* place : {"here", "first", "second", "third", "fourth"}) {
    std::filesystem::create_directory(folder_.Path(place));
  }
  const auto write = [this](const std::string& iPlace, const std::string& iFile) {
    static_cast<void>(folder_.Write(iPlace + '/' + iFile, Catalog("Places_" + iPlace + '_' + iFile)));
  };
  for (const char* place : {"here", "first", "second", "third", "fourth"}) write(place, "inAll");
  for (const char* place : {"first", "second", "third", "fourth"}) write(place, "inFolders");
  for (const char* place : {"second", "third", "fourth"}) write(place, "inSecond");
  for (const char* place : {"third", "fourth"}) write(place, "inPath");
  write("fourth", "inLast");
  std::filesystem::create_directory(folder_.Path("fourth/sub"));
  static_cast<void>(folder_.Write("fourth/sub/inSub", Catalog("Places_sub")));
  std::filesystem::current_path(folder_.Path("here"));
  VelCatalog::SetFolders({folder_.Path("nowhere"), folder_.Path("first"), folder_.Path("second")});
  ::setenv("VEL_CATALOG_PATH", (':' + folder_.Path("third") + "::" + folder_.Path("fourth") + ':').c_str(), 1);
  struct Case {
    const char* file;
    const char* name;
  };
  const Case cases[] = {
      {"inAll", "Places_here_inAll"},         {"inFolders", "Places_first_inFolders"},
      {"inSecond", "Places_second_inSecond"}, {"inPath", "Places_third_inPath"},
      {"inLast", "Places_fourth_inLast"},     {"sub/inSub", "Places_sub"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.file);
    const VelCatalog* catalog = VelCatalog::Load(each.file);
    EXPECT_EQ(catalog != nullptr ? catalog->Name() : "(none)", each.name);
  }
  EXPECT_EQ(TakeErrors(), Texts());
}

TEST_F(VelCatalogTest, FileThatIsNowhere_IsAnError) {
  VelCatalog::SetFolders({folder_.Path()});
  const std::string notInFolders =
      "' is neither in the current folder nor in a folder of catalogs ('" + folder_.Path() + "')";
  const std::string notThere = "' does not exist";
  struct Case {
    const char* name;
    std::string file;
    std::string cause;
  };
  const Case cases[] = {
      {"name", "nowhere.feat", notInFolders},
      {"path", folder_.Path("nowhere.feat"), notThere},
      {"in a folder that is a file", folder_.Write("file", "") + "/nowhere.feat", notThere},
      {"NUL in it", std::string("no\0where", 8), notInFolders},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    EXPECT_EQ(VelCatalog::Load(each.file), nullptr);
    ASSERT_EQ(diagnostics_.Entries().size(), 1U);
    const std::string text = diagnostics_.Entries().front().text;
    EXPECT_TRUE(text.starts_with("the catalog '")) << text;
    EXPECT_TRUE(text.ends_with(each.cause)) << text;
    static_cast<void>(TakeErrors());
  }
}

TEST_F(VelCatalogTest, AbsolutePath_IsNotLookedForInFolders) {
  static_cast<void>(folder_.Write("absolute.feat", Catalog("Absolute")));
  VelCatalog::SetFolders({folder_.Path()});
  EXPECT_EQ(VelCatalog::Load("/absolute.feat"), nullptr);
  EXPECT_EQ(TakeErrors(), Texts({"the catalog '/absolute.feat' does not exist"}));
}

TEST_F(VelCatalogTest, RelativePathWithoutAnyFolder_IsAnErrorThatSaysSo) {
  VelCatalog::SetFolders({});
  EXPECT_EQ(VelCatalog::Load("nowhere.feat"), nullptr);
  EXPECT_EQ(TakeErrors(), Texts({"the catalog 'nowhere.feat' is neither in the current folder nor in a folder of "
                                 "catalogs (there is none)"}));
}

TEST_F(VelCatalogTest, FileThatCannotBeRead_IsAnError) {
  std::filesystem::create_directory(folder_.Path("aFolder"));
  EXPECT_EQ(VelCatalog::Load(folder_.Path("aFolder")), nullptr);
  EXPECT_EQ(TakeErrors(), Texts({"the catalog 'aFolder' cannot be read: is a folder"}));
  std::string text = Catalog("Large", "startup LargeA\n");
  text.resize(1U << 20U, '\n');
  EXPECT_EQ(Load("tooLarge", text + '\n'), nullptr);
  EXPECT_EQ(TakeErrors(), Texts({"the catalog 'tooLarge' cannot be read: is larger than 1048576 bytes"}));
  EXPECT_NE(Load("large", text), nullptr);
}

TEST_F(VelCatalogTest, FaultOfTheText_IsAnErrorWithFileAndLine_AndNothingIsRegistered) {
  struct Case {
    const char* name;
    const char* lines;
    const char* error;
  };
  const Case cases[] = {
      {"TextWord", "startup TextWordSound\nfeature X\n",
       "4: unknown word 'feature', expected catalog, startup or attribute"},
      {"TextPercent", "startup TextPercentSound\n%s%n\n",
       "4: unknown word '%s%n', expected catalog, startup or attribute"},
      {"TextCycle", "startup TextCycleSound\nstartup TextCycleA : TextCycleA\n",
       "4: the start-up 'TextCycleA' would derive from itself"},
      {"BaseMissing", "startup BaseMissingSound\nstartup BaseMissingA : BaseMissingB\n",
       "4: the base 'BaseMissingB' of 'BaseMissingA' is not declared"},
      {"BaseHas",
       "startup BaseHasC : BaseHasB\nattribute X text\nattribute A text\n"
       "startup BaseHasB : BaseHasSound\nstartup BaseHasSound\nattribute A text\n",
       "5: a base of 'BaseHasC' has the attribute 'A' already"},
      {"BaseHasKind",
       "startup BaseHasKindSound\nattribute A text\nstartup BaseHasKindB : BaseHasKindSound\n"
       "attribute A real\n",
       "6: a base of 'BaseHasKindB' has the attribute 'A' already"},
      {"OwnRoot", "startup OwnRootSound\nstartup VelComponent\n", "4: the name 'VelComponent' is the platform's own"},
      {"OwnFeature", "startup OwnFeatureSound\nstartup VelFeature\n", "4: the name 'VelFeature' is the platform's own"},
      {"OwnContainer", "startup OwnContainerSound\nstartup VelContainer\n",
       "4: the name 'VelContainer' is the platform's own"},
      {"OwnStartUp", "startup OwnStartUpSound\nstartup VelStartUp\n", "4: the name 'VelStartUp' is the platform's own"},
  };
  for (const Case& each : cases) ExpectRefused(each.name, each.lines, each.error);
}

/// @return attribute lines of a kind, with names from a letter and a number
std::string Attributes(int iCount, const std::string& iPrefix, const std::string& iKind) {
  std::string lines;
  for (int i = 0; i < iCount; ++i) lines += "attribute " + iPrefix + std::to_string(i) + ' ' + iKind + '\n';
  return lines;
}

TEST_F(VelCatalogTest, Attributes_UpTo16WithThoseOfTheBases_AreTaken) {
  ExpectRefused("ManyOwn", "startup ManyOwnSound\n" + Attributes(17, "A", "text"),
                "3: the start-up 'ManyOwnSound' has 17 attributes with those of its bases, at most 16 are possible");
  const std::string base = "startup ManyBase\n" + Attributes(10, "A", "text");
  ExpectRefused("ManyFrom", "startup ManyFromSound : ManyBase\n" + Attributes(8, "B", "text") + base,
                "3: the start-up 'ManyFromSound' has 18 attributes with those of its bases, at most 16 are possible");
  const VelCatalog* most =
      Load("most", Catalog("ManyMost", base + "startup ManyMostA : ManyBase\n" + Attributes(6, "B", "text")));
  ASSERT_NE(most, nullptr);
  EXPECT_EQ(most->FindStartUp("ManyMostA")->Attributes().size(), 16U);
}

TEST_F(VelCatalogTest, ListsOfReals_ThatAFeatureHasNoRoomFor_AreRefused) {
  ExpectRefused("WideOwn", "startup WideOwnSound\n" + Attributes(8, "A", "reals 1024"),
                "3: the lists of reals of 'WideOwnSound' are too long for one feature");
  const std::string half = "startup WideHalf\n" + Attributes(4, "A", "reals 1024");
  ASSERT_NE(Load("half", Catalog("WideHalf", half)), nullptr);
  ExpectRefused("WideFrom", "startup WideFromA : WideHalf\n" + Attributes(4, "B", "reals 1024"),
                "3: the lists of reals of 'WideFromA' are too long for one feature");
  ExpectRefused("WideOver",
                "startup WideOverA : WideOverB\n" + Attributes(7, "B", "reals 1024") +
                    "startup WideOverB\nattribute A0 reals 1003\n",
                "3: the lists of reals of 'WideOverA' are too long for one feature");
}

TEST_F(VelCatalogTest, WidestFeature_ThatIsTaken_CanBeMade) {
  // A slab of 65536 bytes less its header and the feature's own 48: 8178 slots, one of them per list for its size.
  const std::string lines = "startup WidestA\n" + Attributes(7, "A", "reals 1024") + "attribute B reals 1002\n";
  const std::string file = folder_.Write("widest", Catalog("Widest", lines));
  ASSERT_NE(VelCatalog::Load(file), nullptr);
  EXPECT_EQ(VelCatalog::Find("Widest")->FindStartUp("WidestA")->SlotBytes(), 8178U * 8U);
  const VelIContainer_var hContainer = VelIContainer::Create();
  const VelOsmSUHandler handler("WidestA", "", file.c_str());
  for (int i = 0; i < 3; ++i) {
    VelBaseUnknown_var hFeature;
    EXPECT_EQ(handler.Instanciate(*hContainer, "Wide", VelISpecObject::InterfaceId(), hFeature.Receive()), S_OK);
  }
}

TEST_F(VelCatalogTest, BaseOfAnotherCatalog_IsUsed_OnceThatIsLoaded) {
  const std::string derived = Catalog("OtherDerived", "startup OtherB : OtherA\nattribute Second reals 2\n");
  EXPECT_EQ(Load("derived", derived), nullptr);
  EXPECT_EQ(TakeErrors(), Texts({"derived:3: the base 'OtherA' of 'OtherB' is not declared"}));
  const VelCatalog* base = Load("base", Catalog("OtherBase", "startup OtherA\nattribute First text\n"));
  ASSERT_NE(base, nullptr);
  const VelCatalog* catalog = VelCatalog::Load(folder_.Path("derived"));
  ASSERT_NE(catalog, nullptr);
  EXPECT_EQ(Describe(catalog->FindStartUp("OtherB")), "OtherB < OtherA: First@0+0 Second@1+2 = 32");
  EXPECT_EQ(catalog->FindStartUp("OtherB")->Base(), base->FindStartUp("OtherA"));
  EXPECT_EQ(catalog->FindStartUp("OtherA"), nullptr);
  ExpectRefused("OtherAgain", "startup OtherAgainA : OtherB\nattribute First text\n",
                "4: a base of 'OtherAgainA' has the attribute 'First' already");
}

TEST_F(VelCatalogTest, SecondFile_ThatDeclaresNamesOfTheFirst_IsRefused) {
  const VelCatalog* first = Load("first", Catalog("Contested", "startup ContestedA\n"));
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(Load("second", "velrsh-catalog 1\n\n\ncatalog Contested\nstartup ContestedB\n"), nullptr);
  EXPECT_EQ(TakeErrors(), Texts({"second:4: the catalog 'Contested' is loaded already from another file"}));
  EXPECT_EQ(VelCatalog::Find("Contested"), first);
  EXPECT_EQ(first->FindStartUp("ContestedB"), nullptr);
  ExpectRefused("Contesting", "startup ContestingSound\nstartup ContestedA\n",
                "4: another catalog declares the start-up 'ContestedA' already");
}

TEST_F(VelCatalogTest, StartUp_WhoseBaseADictionaryDeclares_IsRefused) {
  const std::string dictionary = folder_.Write("d.dictionary",
                                               "velrsh-dictionary 1\nmodule CatalogTest\nframework F\nlibrary l.so\n"
                                               "type DeclaredA DeclaredElsewhere\n");
  ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
  ExpectRefused("Declared", "startup DeclaredSound\nstartup DeclaredA\n",
                "4: a dictionary declares a base of 'DeclaredA' already");
  ASSERT_EQ(VelDictionary::Unload(dictionary), S_OK);
  EXPECT_NE(Load("later", Catalog("DeclaredLater", "startup DeclaredA\n")), nullptr);
  EXPECT_EQ(TakeErrors(), Texts());
}

TEST_F(VelCatalogTest, StartUp_FromWhichADictionaryDerivesFeatures_IsRefused) {
  const std::string dictionary = folder_.Write("d.dictionary",
                                               "velrsh-dictionary 1\nmodule CatalogTest\nframework F\nlibrary l.so\n"
                                               "type VelFeature AboveA\ntype AboveA AboveB\n");
  ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
  ExpectRefused("Above", "startup AboveSound\nstartup AboveB\n", "4: every feature derives from 'AboveB' already");
  EXPECT_EQ(VelDictionary::Unload(dictionary), S_OK);
}

TEST_F(VelCatalogTest, Dictionary_ThatGivesAStartUpAnotherBase_IsRefused) {
  ASSERT_NE(Load("kept.feat", Catalog("Kept", "startup KeptA\nstartup KeptB : KeptA\n")), nullptr);
  const std::string head = "velrsh-dictionary 1\nmodule CatalogTest\nframework F\nlibrary l.so\n";
  EXPECT_EQ(VelDictionary::LoadFile(folder_.Write("other", head + "type KeptB VelFeature\n")), E_FAIL);
  ASSERT_EQ(diagnostics_.Entries().size(), 1U);
  const std::string file = std::filesystem::canonical(folder_.Path("kept.feat")).string();
  EXPECT_TRUE(diagnostics_.Entries().front().text.ends_with("5: the base of 'KeptB' is 'KeptA' already by '" + file +
                                                            "', found 'VelFeature'"))
      << diagnostics_.Entries().front().text;
  diagnostics_.Clear();
}

TEST_F(VelCatalogTest, FeatureOfALoadedStartUp_AnswersAsAFeature_EvenWhenItsNameWasUsedBefore) {
  const VelIContainer_var hContainer = VelIContainer::Create();
  const VelOsmSUHandler handler("AskedA", "", "asked.feat");
  VelBaseUnknown_var hFeature;
  EXPECT_TRUE(FAILED(handler.Instanciate(*hContainer, "Name", VelISpecObject::InterfaceId(), hFeature.Receive())));
  static_cast<void>(TakeErrors());
  static_cast<void>(folder_.Write("asked.feat", Catalog("Asked", "startup AskedA\n")));
  VelCatalog::SetFolders({folder_.Path()});
  ASSERT_EQ(handler.Instanciate(*hContainer, "Name", VelISpecObject::InterfaceId(), hFeature.Receive()), S_OK);
  VelString type;
  EXPECT_EQ(VelISpecObject_var(hFeature)->GetType(type), S_OK);
  EXPECT_EQ(type, "AskedA");
}

TEST_F(VelCatalogTest, AContainerMadeLikeAnother_KnowsItsCatalogsAndIsEmpty) {
  const std::string file = folder_.Write("like", Catalog("Like", "startup LikeA\n"));
  VelIContainer_var hContainer = VelIContainer::Create();
  ASSERT_EQ(VelICatalogManager_var(hContainer)->LoadCatalog(file.c_str()), S_OK);
  VelBaseUnknown_var hStartUp;
  ASSERT_EQ(FindStartUp("VelISpecObject", "", "LikeA", *hContainer, hStartUp.Receive()), S_OK);
  VelBaseUnknown_var hFeature;
  ASSERT_EQ(VelISpecObject_var(hStartUp)->Instanciate("", hContainer.Get(), VelISpecObject::InterfaceId(),
                                                      hFeature.Receive()),
            S_OK);
  const VelIContainer_var hLike = VelIContainer::CreateLike(*hContainer);
  ASSERT_TRUE(hLike);
  EXPECT_EQ(hLike->CountFeatures(), 0);
  EXPECT_EQ(FindStartUp("VelISpecObject", "", "LikeA", *hLike, hStartUp.Receive()), S_OK);
  EXPECT_EQ(FindStartUp("VelISpecObject", "", "LikeA", *VelIContainer::Create(), hStartUp.Receive()), E_FAIL);
}

}  // namespace
