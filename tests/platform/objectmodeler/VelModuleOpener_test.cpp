// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModuleOpener_test.cpp How libraries are found and opened, and what is reported of those that cannot be
/// used.
#include <filesystem>
#include <fstream>

#include "platform/base/system/VelSystemLibrary.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelIDelegation.h"
#include "platform/objectmodeler/VelModule.h"
#include "tests/platform/objectmodeler/DictionaryScope.h"
#include "tests/platform/objectmodeler/modules/VelITestIdentity.h"
#include "tests/platform/objectmodeler/modules/VelITestNumber.h"
#include "tests/platform/objectmodeler/modules/VelITestText.h"

namespace {

using VelModuleOpenerTest = DictionaryTest;

constexpr const char* plugLines =
    "class VelTestAnswerA Implementation\nbind VelTestPlugA VelITestIdentity TIE Component VelTestAnswerA\n";

/// What the system's loader says of a file that is no library.
std::string LoaderCause(const std::string& iPath) {
  std::string cause;
  EXPECT_EQ(VelSystemLibrary::Open(iPath, cause), nullptr);
  EXPECT_NE(cause, "");
  return cause;
}

/// @return a text without the path of the scope's folder, as TakeErrors gives it
std::string Shorten(std::string iText, const std::string& iFolder) {
  for (auto at = iText.find(iFolder + '/'); at != std::string::npos; at = iText.find(iFolder + '/')) {
    iText.erase(at, iFolder.size() + 1);
  }
  return iText;
}

/// The bound interface is refused again and again but reported once, while the component answers everything else.
void ExpectRefused(DictionaryScope& ioScope, const char* iLateType, const VelInterfaceId& iInterface,
                   const std::string& iError) {
  EXPECT_TRUE(Offers(iLateType, iInterface)) << "offered, since nobody has looked yet";
  EXPECT_EQ(ioScope.TakeErrors(), Texts{});
  EXPECT_EQ(Ask(iLateType, iInterface), E_NOINTERFACE);
  EXPECT_EQ(ioScope.TakeErrors(), Texts{iError});
  EXPECT_EQ(Ask(iLateType, iInterface), E_NOINTERFACE);
  EXPECT_EQ(Ask(iLateType, iInterface), E_NOINTERFACE);
  EXPECT_EQ(Ask(iLateType, IID_VelIDelegation), S_OK);
  EXPECT_EQ(ioScope.TakeErrors(), Texts{});
}

TEST_F(VelModuleOpenerTest, LibraryThatIsMissing_IsReportedWithTheLoadersWords) {
  struct Case {
    const char* name;
    std::string library;
    std::string looked;
  };
  const Case cases[] = {
      {"bare name", "libVelTestNowhere.so", "libVelTestNowhere.so"},
      {"with a folder", "../lib/libVelTestNowhere.so", scope_.Path("../lib/libVelTestNowhere.so")},
      {"absolute", "/libVelTestNowhere.so", "/libVelTestNowhere.so"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    ASSERT_EQ(
        scope_.LoadModule("a.dictionary", "VelTestNowhere",
                          "class C Extension\nbind VelTestOpenThing VelITestNumber TIE Reference C\n", each.library),
        S_OK);
    ExpectRefused(scope_, "VelTestOpenThing", IID_VelITestNumber,
                  Shorten("a.dictionary:6: bind VelTestOpenThing VelITestNumber C: the library '" + each.looked +
                              "' cannot be opened: " + LoaderCause(each.looked),
                          scope_.Path()));
    ASSERT_EQ(scope_.Unload("a.dictionary"), S_OK);
  }
}

TEST_F(VelModuleOpenerTest, FileThatIsNoLibrary_IsReportedWithTheLoadersWords) {
  scope_.MakeFolder("folder.so");
  const std::string garbage(4096, 'x');
  struct Case {
    const char* name;
    std::string path;
  };
  const Case cases[] = {{"text", scope_.Write("text.so", "not a library\n")},
                        {"bytes", scope_.Write("bytes.so", garbage)},
                        {"empty", scope_.Write("empty.so", "")},
                        {"folder", scope_.Path("folder.so")}};
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const std::string path = scope_.Path(std::filesystem::path(each.path).filename().string());
    ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestGarbage",
                                "class C Extension\nbind VelTestOpenThing VelITestNumber TIE Reference C\n",
                                std::filesystem::path(path).filename().string()),
              S_OK);
    ExpectRefused(scope_, "VelTestOpenThing", IID_VelITestNumber,
                  Shorten("a.dictionary:6: bind VelTestOpenThing VelITestNumber C: the library '" + path +
                              "' cannot be opened: " + LoaderCause(path),
                          scope_.Path()));
    ASSERT_EQ(scope_.Unload("a.dictionary"), S_OK);
  }
}

TEST_F(VelModuleOpenerTest, LibraryThatIsNotTheModule_IsRefused) {
  struct Case {
    const char* name;
    const char* module;
    const char* library;
    std::string cause;
  };
  const auto noEntry = [](const char* iLibrary, const std::string& iModule) {
    return "the library '" + BuiltLibrary(iLibrary) + "' does not export 'VelModule_" + iModule +
           "', so it is not the module '" + iModule + "'";
  };
  const Case cases[] = {
      {"no module at all", "VelTestShared", "VelTestShared", noEntry("VelTestShared", "VelTestShared")},
      {"another module", "VelTestGrid", "VelTestPluginA", noEntry("VelTestPluginA", "VelTestGrid")},
      {"entry that tells another name", "VelTestMisnamed", "VelTestFaulty",
       "the library '" + BuiltLibrary("VelTestFaulty") +
           "' is the module 'VelTestSomethingElse', expected 'VelTestMisnamed'"},
      {"another platform ABI", "VelTestOtherAbi", "VelTestFaulty",
       "the library '" + BuiltLibrary("VelTestFaulty") + "' was built for platform ABI " +
           std::to_string(velPlatformAbi + 1) + ", expected " + std::to_string(velPlatformAbi)},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    ASSERT_EQ(scope_.LoadModule("a.dictionary", each.module,
                                "class C Extension\nbind VelTestOpenThing VelITestNumber TIE Reference C\n",
                                BuiltLibrary(each.library)),
              S_OK);
    ExpectRefused(scope_, "VelTestOpenThing", IID_VelITestNumber,
                  "a.dictionary:6: bind VelTestOpenThing VelITestNumber C: " + each.cause);
    ASSERT_EQ(scope_.Unload("a.dictionary"), S_OK);
  }
}

TEST_F(VelModuleOpenerTest, CreationFunctionThatIsMissing_IsReported_AndTheOtherRowsAnswer) {
  struct Case {
    const char* name;
    const char* module;
    const char* library;
    std::string lines;
    std::string error;
  };
  const Case cases[] = {
      {"forwarder", "VelTestGrid", "VelTestGrid",
       "class VelTestGridMain Implementation\nbind VelTestOpenThing VelITestText TIE Component VelTestGridMain\n",
       "6: bind VelTestOpenThing VelITestText VelTestGridMain: the library does not export "
       "'CreateTIEVelITestTextVelTestGridMain'"},
      {"class", "VelTestHalf", "VelTestFaulty",
       "class VelTestHalfClass Implementation\nbind VelTestOpenThing VelITestNumber TIE Component VelTestHalfClass\n",
       "6: bind VelTestOpenThing VelITestNumber VelTestHalfClass: the library does not export "
       "'CreateExtensionVelTestHalfClass'"},
      {"extension", "VelTestGrid", "VelTestGrid",
       "class VelTestGridLabel DelegatingExtension\nbind VelTestOpenThing VelITestNumber BOA Reference "
       "VelTestGridLabel\n",
       "6: bind VelTestOpenThing VelITestNumber VelTestGridLabel: the library does not export "
       "'CreateBOAVelITestNumberVelTestGridLabel'"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const bool grid = std::string_view(each.module) == "VelTestGrid";
    const std::string sound =
        "class VelTestGridSpeaker Extension\nbind VelTestOpenOther VelITestText TIE Reference VelTestGridSpeaker\n";
    ASSERT_EQ(
        scope_.LoadModule("a.dictionary", each.module, each.lines + (grid ? sound : ""), BuiltLibrary(each.library)),
        S_OK);
    const bool isText = each.error.find("VelITestText") != std::string::npos;
    ExpectRefused(scope_, "VelTestOpenThing", isText ? IID_VelITestText : IID_VelITestNumber,
                  "a.dictionary:" + each.error);
    if (grid) {
      EXPECT_EQ(AnsweringClass("VelTestOpenOther", IID_VelITestText), "VelTestGridSpeaker");
    }
    ASSERT_EQ(scope_.Unload("a.dictionary"), S_OK);
  }
}

TEST_F(VelModuleOpenerTest, EachRowOfARefusedLibrary_IsReportedOnce_AndAgainWhenTheFileIsLoadedAnew) {
  const std::string lines =
      "class C Extension\nbind VelTestOpenThing VelITestNumber TIE Reference C\nbind VelTestOpenThing VelITestText TIE "
      "Reference C\n";
  const std::string cause = " C: the library '" + BuiltLibrary("VelTestShared") +
                            "' does not export 'VelModule_VelTestShared', so it is not the module 'VelTestShared'";
  for (int round = 0; round < 2; ++round) {
    SCOPED_TRACE(round);
    ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestShared", lines, BuiltLibrary("VelTestShared")), S_OK);
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(Ask("VelTestOpenThing", IID_VelITestNumber), E_NOINTERFACE);
      EXPECT_EQ(Ask("VelTestOpenThing", IID_VelITestText), E_NOINTERFACE);
      EXPECT_EQ(Ask("VelTestOpenDerived", IID_VelITestText), E_NOINTERFACE);
      // Another file makes every answer be looked up anew, but opens nothing a second time.
      ASSERT_EQ(scope_.LoadModule("b.dictionary", "VelTestOther", "type VelTestOpenDerived VelTestOpenThing\n"), S_OK);
      EXPECT_EQ(Ask("VelTestOpenThing", IID_VelITestNumber), E_NOINTERFACE);
      EXPECT_EQ(Ask("VelTestOpenDerived", IID_VelITestText), E_NOINTERFACE);
      ASSERT_EQ(scope_.Unload("b.dictionary"), S_OK);
    }
    EXPECT_EQ(scope_.TakeErrors(), (Texts{"a.dictionary:6: bind VelTestOpenThing VelITestNumber" + cause,
                                          "a.dictionary:7: bind VelTestOpenThing VelITestText" + cause}));
    ASSERT_EQ(scope_.Unload("a.dictionary"), S_OK);
  }
}

TEST_F(VelModuleOpenerTest, RowThatStandsThroughExtend_IsReportedWithItsOwnLine) {
  ASSERT_EQ(
      scope_.LoadModule(
          "a.dictionary", "VelTestShared",
          "class C Extension\nbind VelTestOpenThing VelITestNumber TIE Reference C\n\nextend VelTestOpenOther C\n",
          BuiltLibrary("VelTestShared")),
      S_OK);
  EXPECT_EQ(Ask("VelTestOpenOther", IID_VelITestNumber), E_NOINTERFACE);
  EXPECT_EQ(
      scope_.TakeErrors(),
      Texts{"a.dictionary:8: bind VelTestOpenOther VelITestNumber C: the library '" + BuiltLibrary("VelTestShared") +
            "' does not export 'VelModule_VelTestShared', so it is not the module 'VelTestShared'"});
}

TEST(VelModuleOpenerAloneTest, SecondCopyOfAModule_IsRefused_NamingBothPaths) {
  RunAlone([] {
    DictionaryScope scope;
    scope.MakeFolder("copy");
    std::filesystem::copy_file(BuiltLibrary("VelTestPluginA"), scope.Path("copy/libPlug.so"));
    ASSERT_EQ(VelDictionary::LoadFile(BuiltDictionary("VelTestPluginA")), S_OK);
    EXPECT_EQ(Ask("VelTestPlugA", IID_VelITestIdentity), S_OK);
    ASSERT_EQ(VelDictionary::Unload(BuiltDictionary("VelTestPluginA")), S_OK);

    const std::string first = VelSystemLibrary::PathOf(VelModuleRegistration::Find("VelTestPluginA"));
    EXPECT_TRUE(std::filesystem::equivalent(first, BuiltLibrary("VelTestPluginA")));
    ASSERT_EQ(scope.LoadModule("a.dictionary", "VelTestPluginA", plugLines, "copy/libPlug.so"), S_OK);
    ExpectRefused(
        scope, "VelTestPlugA", IID_VelITestIdentity,
        "a.dictionary:6: bind VelTestPlugA VelITestIdentity VelTestAnswerA: the library 'copy/libPlug.so' is a "
        "second copy of the module 'VelTestPluginA', which is loaded from '" +
            first + "'");
    ASSERT_EQ(scope.Unload("a.dictionary"), S_OK);
    ASSERT_EQ(VelDictionary::LoadFile(BuiltDictionary("VelTestPluginA")), S_OK);
    EXPECT_EQ(Ask("VelTestPlugA", IID_VelITestIdentity), S_OK) << "the first one goes on";
  });
}

TEST(VelModuleOpenerAloneTest, Library_IsOpenedByTheFirstQueryThatNeedsIt) {
  RunAlone([] {
    const DictionaryScope scope;
    ASSERT_EQ(VelDictionary::LoadFile(BuiltDictionary("VelTestPluginA")), S_OK);
    EXPECT_TRUE(Offers("VelTestPlugA", IID_VelITestIdentity));
    EXPECT_EQ(Ask("VelTestPlugA", IID_VelITestNumber), E_NOINTERFACE);
    EXPECT_EQ(Ask("VelTestPlugB", IID_VelITestIdentity), E_NOINTERFACE);
    EXPECT_EQ(Ask("VelTestPlugA", IID_VelIDelegation), S_OK);
    EXPECT_EQ(VelModuleRegistration::Find("VelTestPluginA"), nullptr) << "nothing has needed it yet";
    EXPECT_EQ(Ask("VelTestPlugA", IID_VelITestIdentity), S_OK);
    const VelModuleDescription* found = VelModuleRegistration::Find("VelTestPluginA");
    ASSERT_NE(found, nullptr);
    EXPECT_STREQ(found->framework, "TestFramework");
    EXPECT_EQ(found->platformAbi, velPlatformAbi);
  });
}

/// Loads a dictionary that names a library, asks it, and tells from where it was opened.
std::string OpenedFrom(DictionaryScope& ioScope, std::string_view iLibrary) {
  EXPECT_EQ(ioScope.LoadModule("a.dictionary", "VelTestPluginA", plugLines, iLibrary), S_OK);
  EXPECT_EQ(Ask("VelTestPlugA", IID_VelITestIdentity), S_OK);
  EXPECT_EQ(ioScope.TakeErrors(), Texts{});
  return VelSystemLibrary::PathOf(VelModuleRegistration::Find("VelTestPluginA"));
}

void Copy(const DictionaryScope& iScope, std::string_view iName) {
  std::filesystem::copy_file(BuiltLibrary("VelTestPluginA"), iScope.Path(iName));
}

TEST(VelModuleOpenerAloneTest, LibraryWithoutFolder_IsFoundBesideTheDictionaryFile_BeforeTheLibraryFolders) {
  RunAlone([] {
    DictionaryScope scope;
    scope.MakeFolder("folder");
    Copy(scope, "libPlug.so");
    Copy(scope, "folder/libPlug.so");
    VelDictionary::SetLibraryFolders({scope.Path("folder")});
    EXPECT_EQ(OpenedFrom(scope, "libPlug.so"), scope.Path("libPlug.so"));
  });
}

TEST(VelModuleOpenerAloneTest, LibraryWithoutFolder_IsFoundInTheFirstLibraryFolderThatHasIt) {
  RunAlone([] {
    DictionaryScope scope;
    for (const char* folder : {"empty", "first", "second"}) scope.MakeFolder(folder);
    Copy(scope, "first/libPlug.so");
    Copy(scope, "second/libPlug.so");
    VelDictionary::SetLibraryFolders(
        {scope.Path("missing"), scope.Path("empty"), scope.Path("first"), scope.Path("second")});
    EXPECT_EQ(OpenedFrom(scope, "libPlug.so"), scope.Path("first/libPlug.so"));
  });
}

TEST(VelModuleOpenerAloneTest, LibraryWithAFolder_IsFoundFromTheDictionaryFile_AndNowhereElse) {
  RunAlone([] {
    DictionaryScope scope;
    for (const char* folder : {"lib", "other", "other/lib"}) scope.MakeFolder(folder);
    Copy(scope, "other/lib/libPlug.so");
    VelDictionary::SetLibraryFolders({scope.Path("other")});
    ASSERT_EQ(scope.LoadModule("a.dictionary", "VelTestPluginA", plugLines, "lib/libPlug.so"), S_OK);
    EXPECT_EQ(Ask("VelTestPlugA", IID_VelITestIdentity), E_NOINTERFACE);
    EXPECT_EQ(scope.TakeErrors().size(), 1U);
    ASSERT_EQ(scope.Unload("a.dictionary"), S_OK);
    Copy(scope, "lib/libPlug.so");
    EXPECT_EQ(OpenedFrom(scope, "lib/libPlug.so"), scope.Path("lib/libPlug.so"));
  });
}

TEST(VelModuleOpenerAloneTest, LibraryWithAnAbsolutePath_IsTakenAsItIs) {
  RunAlone([] {
    DictionaryScope scope;
    scope.MakeFolder("far");
    Copy(scope, "far/libPlug.so");
    EXPECT_EQ(OpenedFrom(scope, scope.Path("far/libPlug.so")), scope.Path("far/libPlug.so"));
  });
}

TEST(VelModuleOpenerAloneTest, DictionaryInTheCurrentFolder_FindsTheLibraryBesideIt) {
  RunAlone([] {
    DictionaryScope scope;
    Copy(scope, "libPlug.so");
    scope.Write("a.dictionary", ModuleText("VelTestPluginA", plugLines, "libPlug.so"));
    std::filesystem::current_path(scope.Path());
    ASSERT_EQ(VelDictionary::LoadFile("a.dictionary"), S_OK);
    std::filesystem::current_path("/");
    EXPECT_EQ(Ask("VelTestPlugA", IID_VelITestIdentity), S_OK);
    EXPECT_EQ(VelDictionary::Unload(scope.Path()), S_OK);
    EXPECT_EQ(scope.TakeErrors(), Texts{});
  });
}

}  // namespace
