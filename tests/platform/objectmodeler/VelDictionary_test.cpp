// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDictionary_test.cpp Loading and unloading of dictionary files, and what they say together.
#include "platform/objectmodeler/VelDictionary.h"

#include <filesystem>

#include "platform/objectmodeler/VelIDelegation.h"
#include "platform/objectmodeler/VelObject.h"
#include "tests/platform/objectmodeler/DictionaryScope.h"
#include "tests/platform/objectmodeler/modules/VelITestNumber.h"
#include "tests/platform/objectmodeler/modules/VelITestText.h"

namespace {

const std::string numberRow = "class C Implementation\nbind VelTestDictThing VelITestNumber TIE Component C\n";

using VelDictionaryTest = DictionaryTest;

std::string_view FrameworkOfNumber() { return VelQueryFramework("VelTestDictThing", "VelITestNumber"); }

TEST_F(VelDictionaryTest, LoadingAFile_BindsItsRows_AndUnloadingTakesThemOut) {
  EXPECT_FALSE(Offers("VelTestDictThing", IID_VelITestNumber));
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne", numberRow), S_OK);
  EXPECT_EQ(FrameworkOfNumber(), "FrameworkOfVelTestOne");
  EXPECT_TRUE(Offers("VelTestDictThing", IID_VelITestNumber));
  EXPECT_FALSE(Offers("VelTestDictThing", IID_VelITestText));
  EXPECT_EQ(scope_.Unload("a.dictionary"), S_OK);
  EXPECT_EQ(FrameworkOfNumber(), "");
  EXPECT_FALSE(Offers("VelTestDictThing", IID_VelITestNumber));
  EXPECT_EQ(scope_.TakeErrors(), Texts{});
}

TEST_F(VelDictionaryTest, LoadingAFileTwice_ChangesNothing_ByWhicheverPath) {
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne", numberRow), S_OK);
  scope_.MakeFolder("sub");
  std::filesystem::create_symlink(scope_.Path("a.dictionary"), scope_.Path("link"));
  EXPECT_EQ(VelDictionary::LoadFile(scope_.Path("a.dictionary")), S_FALSE);
  EXPECT_EQ(VelDictionary::LoadFile(scope_.Path("sub/../a.dictionary")), S_FALSE);
  EXPECT_EQ(VelDictionary::LoadFile(scope_.Path("link")), S_FALSE);
  EXPECT_EQ(VelDictionary::Unload(scope_.Path("link")), S_OK) << "once loaded, once unloaded";
  EXPECT_EQ(FrameworkOfNumber(), "");
  EXPECT_EQ(scope_.TakeErrors(), Texts{});
}

TEST_F(VelDictionaryTest, UnloadingWhatIsNotLoaded_SaysSo) {
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne", numberRow), S_OK);
  EXPECT_EQ(scope_.Unload("b.dictionary"), S_FALSE);
  EXPECT_EQ(VelDictionary::Unload(""), S_FALSE);
  EXPECT_EQ(scope_.Unload("a.dictionary"), S_OK);
  EXPECT_EQ(scope_.Unload("a.dictionary"), S_FALSE);
}

TEST_F(VelDictionaryTest, FileThatIsGoneMeanwhile_CanBeUnloaded) {
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne", numberRow), S_OK);
  std::filesystem::remove(scope_.Path("a.dictionary"));
  EXPECT_EQ(scope_.Unload("a.dictionary"), S_OK);
  EXPECT_EQ(FrameworkOfNumber(), "");
}

TEST_F(VelDictionaryTest, FileThatCannotBeRead_IsRefusedWithTheCause) {
  scope_.MakeFolder("sub");
  scope_.Write("large.dictionary", std::string((1U << 20U) + 1, '#'));
  struct Case {
    const char* name;
    const char* cause;
  };
  const Case cases[] = {{"missing.dictionary", "no such file"},
                        {"sub", "is a folder"},
                        {"large.dictionary", "is larger than 1048576 bytes"}};
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    EXPECT_EQ(VelDictionary::LoadFile(scope_.Path(each.name)), E_FAIL);
    EXPECT_EQ(scope_.TakeErrors(),
              Texts{std::string("the dictionary file '") + each.name + "' cannot be read: " + each.cause});
  }
}

TEST_F(VelDictionaryTest, FaultyFile_RegistersNothingAtAll) {
  const std::string text = ModuleText("VelTestOne", "type VelTestDictDerived VelTestDictThing\n" + numberRow) +
                           "module VelTestTwo\nframework F\nlibrary l.so\nbind T I TIE Component Nobody\n";
  EXPECT_EQ(scope_.Load("a.dictionary", text), E_FAIL);
  EXPECT_EQ(scope_.TakeErrors(), Texts{"a.dictionary:11: the class 'Nobody' has no 'class' line before this one"});
  EXPECT_EQ(FrameworkOfNumber(), "");
  EXPECT_FALSE(Offers("VelTestDictThing", IID_VelITestNumber));
  EXPECT_FALSE(Offers("VelTestDictDerived", IID_VelITestNumber));
  EXPECT_EQ(scope_.Unload("a.dictionary"), S_FALSE);
  EXPECT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne", numberRow), S_OK) << "mended, it is taken";
}

struct ContradictionCase {
  const char* name;
  std::string text;
  std::string error;
};

TEST_F(VelDictionaryTest, FileThatContradictsAnother_IsRefusedAsAWhole) {
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne", "type VelTestDictDerived VelTestDictThing\n" + numberRow),
            S_OK);
  const std::string own = "class D Extension\nbind VelTestDictThing VelITestText TIE Reference D\n";
  const std::string byA = "by '" + scope_.Path("a.dictionary") + "'";
  const ContradictionCase cases[] = {
      {"module", ModuleText("VelTestOne", own),
       "b.dictionary:2: the module 'VelTestOne' is declared already by 'a.dictionary'"},
      {"module of the second part", ModuleText("VelTestTwo", own) + "module VelTestOne\nframework F\nlibrary l.so\n",
       "b.dictionary:7: the module 'VelTestOne' is declared already by 'a.dictionary'"},
      {"linked module", ModuleText("VelPlatform", own),
       "b.dictionary:2: the module 'VelPlatform' is declared already by the linked module 'VelPlatform'"},
      {"row", ModuleText("VelTestTwo", own + "bind VelTestDictThing VelITestNumber TIE Reference D\n"),
       "b.dictionary:7: 'VelITestNumber' is bound to 'VelTestDictThing' already by 'a.dictionary' with the class 'C'"},
      {"row by extend",
       ModuleText("VelTestTwo", own +
                                    "bind VelTestDictOther VelITestNumber TIE Reference D\nclass E Extension\n"
                                    "bind VelTestDictLast VelITestNumber TIE Reference E\nextend VelTestDictThing E\n"),
       "b.dictionary:10: 'VelITestNumber' is bound to 'VelTestDictThing' already by 'a.dictionary' with the class 'C'"},
      {"base", ModuleText("VelTestTwo", own + "type VelTestDictDerived VelTestDictOther\n"),
       "b.dictionary:7: the base of 'VelTestDictDerived' is 'VelTestDictThing' already by 'a.dictionary', found "
       "'VelTestDictOther'"},
  };
  for (const ContradictionCase& each : cases) {
    SCOPED_TRACE(each.name);
    EXPECT_EQ(scope_.Load("b.dictionary", each.text), E_FAIL);
    EXPECT_EQ(scope_.TakeErrors(), Texts{each.error});
    EXPECT_FALSE(Offers("VelTestDictThing", IID_VelITestText));
    EXPECT_FALSE(Offers("VelTestDictOther", IID_VelITestNumber));
    EXPECT_EQ(scope_.Unload("b.dictionary"), S_FALSE);
    EXPECT_TRUE(Offers("VelTestDictDerived", IID_VelITestNumber)) << "what stood before still stands";
  }
}

TEST_F(VelDictionaryTest, TwoBasesOfOneTypeInOneFile_AreRefused) {
  EXPECT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne",
                              "type VelTestDictD VelTestDictA\ntype VelTestDictD VelTestDictB\n"),
            E_FAIL);
  EXPECT_EQ(scope_.TakeErrors(), Texts{"a.dictionary:6: the base of 'VelTestDictD' is 'VelTestDictA' already by "
                                       "'a.dictionary', found 'VelTestDictB'"});
  EXPECT_EQ(scope_.LoadModule("b.dictionary", "VelTestTwo", "type VelTestDictD VelTestDictB\n"), S_OK)
      << "neither is left";
}

TEST_F(VelDictionaryTest, CycleOfBases_IsRefused_WhereverItCloses) {
  struct Case {
    const char* name;
    const char* lines;
    const char* error;
  };
  const Case cases[] = {
      {"itself", "type VelTestDictQ VelTestDictQ\n",
       "b.dictionary:5: 'VelTestDictQ' would derive from itself through 'VelTestDictQ'"},
      {"in one file", "type VelTestDictX VelTestDictY\ntype VelTestDictY VelTestDictX\n",
       "b.dictionary:6: 'VelTestDictY' would derive from itself through 'VelTestDictX'"},
      {"across files", "type VelTestDictC VelTestDictA\n",
       "b.dictionary:5: 'VelTestDictC' would derive from itself through 'VelTestDictA'"},
      {"across files, long", "type VelTestDictC VelTestDictD\ntype VelTestDictD VelTestDictA\n",
       "b.dictionary:6: 'VelTestDictD' would derive from itself through 'VelTestDictA'"},
      {"through the root", "type VelComponent VelTestDictA\n",
       "b.dictionary:5: 'VelComponent' would derive from itself through 'VelTestDictA'"},
  };
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne",
                              "type VelTestDictA VelTestDictB\ntype VelTestDictB VelTestDictC\n" + numberRow),
            S_OK);
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    EXPECT_EQ(scope_.LoadModule("b.dictionary", "VelTestTwo", each.lines), E_FAIL);
    EXPECT_EQ(scope_.TakeErrors(), Texts{each.error});
    EXPECT_EQ(Ask("VelTestDictA", IID_VelITestText), E_NOINTERFACE) << "the climb ends";
  }
  ASSERT_EQ(scope_.Unload("a.dictionary"), S_OK);
  EXPECT_EQ(scope_.LoadModule("b.dictionary", "VelTestTwo", "type VelTestDictC VelTestDictA\n"), S_OK)
      << "no cycle any more";
}

TEST_F(VelDictionaryTest, LateType_AnswersItselfBeforeItsBases_AndClimbsToTheFirstThatKnows) {
  const std::string lines =
      "type VelTestDictSon VelTestDictFather\n"
      "type VelTestDictFather VelTestDictRoot\n";
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestTypes", lines), S_OK);
  ASSERT_EQ(scope_.LoadModule("b.dictionary", "VelTestRoot",
                              "class R Implementation\nbind VelTestDictRoot VelITestNumber TIE Component R\n"
                              "bind VelTestDictRoot VelITestText TIE Component R\n"),
            S_OK);
  ASSERT_EQ(scope_.LoadModule("c.dictionary", "VelTestFather",
                              "class F Implementation\nbind VelTestDictFather VelITestText TIE Component F\n"),
            S_OK);
  ASSERT_EQ(scope_.LoadModule("d.dictionary", "VelTestSon",
                              "class S Implementation\nbind VelTestDictSon VelITestOnlySon TIE Component S\n"
                              "bind VelTestDictSon VelIDelegation TIE Component S\n"),
            S_OK);
  struct Case {
    const char* lateType;
    const char* interfaceName;
    const char* framework;
  };
  const Case cases[] = {
      {"VelTestDictSon", "VelITestOnlySon", "FrameworkOfVelTestSon"},
      {"VelTestDictSon", "VelITestText", "FrameworkOfVelTestFather"},
      {"VelTestDictSon", "VelITestNumber", "FrameworkOfVelTestRoot"},
      {"VelTestDictSon", "VelIDelegation", "FrameworkOfVelTestSon"},
      {"VelTestDictFather", "VelITestText", "FrameworkOfVelTestFather"},
      {"VelTestDictFather", "VelITestOnlySon", ""},
      {"VelTestDictFather", "VelIDelegation", "Platform"},
      {"VelTestDictRoot", "VelITestText", "FrameworkOfVelTestRoot"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(std::string(each.lateType) + ' ' + each.interfaceName);
    EXPECT_EQ(VelQueryFramework(each.lateType, each.interfaceName), each.framework);
  }
  ASSERT_EQ(scope_.Unload("c.dictionary"), S_OK);
  EXPECT_EQ(VelQueryFramework("VelTestDictSon", "VelITestText"), "FrameworkOfVelTestRoot");
  ASSERT_EQ(scope_.Unload("a.dictionary"), S_OK);
  EXPECT_EQ(VelQueryFramework("VelTestDictSon", "VelITestText"), "") << "the bases are gone";
  EXPECT_EQ(VelQueryFramework("VelTestDictSon", "VelITestOnlySon"), "FrameworkOfVelTestSon");
}

TEST_F(VelDictionaryTest, BaseThatTwoFilesDeclare_StaysUntilBothAreGone) {
  const std::string base = "type VelTestDictDerived VelTestDictThing\n";
  ASSERT_EQ(scope_.LoadModule("rows.dictionary", "VelTestRows", numberRow), S_OK);
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne", base), S_OK);
  ASSERT_EQ(scope_.LoadModule("b.dictionary", "VelTestTwo", base), S_OK);
  EXPECT_TRUE(Offers("VelTestDictDerived", IID_VelITestNumber));
  ASSERT_EQ(scope_.Unload("a.dictionary"), S_OK);
  EXPECT_TRUE(Offers("VelTestDictDerived", IID_VelITestNumber));
  ASSERT_EQ(scope_.Unload("b.dictionary"), S_OK);
  EXPECT_FALSE(Offers("VelTestDictDerived", IID_VelITestNumber));
  EXPECT_EQ(scope_.TakeErrors(), Texts{});
}

// One file declares rows alone, the other a base alone, so that neither makes up for what the other does not forget.
TEST_F(VelDictionaryTest, CachedAnswer_IsForgotten_WhenItsRowsOrBasesAreUnloadedAndLoadedAgain) {
  const std::string rows = ModuleText(
      "VelTestGrid",
      "class VelTestGridMain Implementation\nbind VelTestDictBase VelITestNumber TIE Component VelTestGridMain\n",
      BuiltLibrary("VelTestGrid"));
  scope_.Write("rows", rows);
  scope_.Write("base", ModuleText("VelTestBase", "type VelTestDictDerived VelTestDictBase\n"));
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestDictDerived", "VelTestDictionaryObject");
  VelBaseUnknown_var hAnswer;
  const auto expect = [&](HRESULT iCode) {
    EXPECT_EQ(hObject->QueryInterface(IID_VelITestNumber, hAnswer.Receive()), iCode);
    EXPECT_EQ(hObject->QueryInterface(IID_VelITestNumber, hAnswer.Receive()), iCode) << "remembered";
  };
  ASSERT_EQ(VelDictionary::LoadFile(scope_.Path("base")), S_OK);
  ASSERT_EQ(VelDictionary::LoadFile(scope_.Path("rows")), S_OK);
  expect(S_OK);
  for (const char* changed : {"rows", "base"}) {
    SCOPED_TRACE(changed);
    ASSERT_EQ(scope_.Unload(changed), S_OK);
    expect(E_NOINTERFACE);
    ASSERT_EQ(VelDictionary::LoadFile(scope_.Path(changed)), S_OK);
    expect(S_OK);
  }
  EXPECT_EQ(scope_.TakeErrors(), Texts{});
}

TEST_F(VelDictionaryTest, WhatWasBuiltBeforeUnloading_StaysUsable_AndIsFoundAgain) {
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestGridThing", "VelTestDictionaryObject");
  ASSERT_EQ(VelDictionary::LoadFile(BuiltDictionary("VelTestGrid")), S_OK);
  VelITestNumber_var hNumber(hObject);
  ASSERT_EQ(VelDictionary::Unload(BuiltDictionary("VelTestGrid")), S_OK);
  ASSERT_TRUE(hNumber);
  EXPECT_EQ(hNumber->SetNumber(7), S_OK);
  ASSERT_EQ(VelDictionary::LoadFile(BuiltDictionary("VelTestGrid")), S_OK);
  const VelITestNumber_var hAgain(hObject);
  int number = 0;
  EXPECT_EQ(hAgain->GetNumber(number), S_OK);
  EXPECT_EQ(number, 7);
  EXPECT_EQ(VelDictionary::Unload(BuiltDictionary("VelTestGrid")), S_OK);
}

TEST_F(VelDictionaryTest, LateTypeThatNobodyKnows_AnswersWhatEveryComponentAnswers) {
  EXPECT_EQ(Ask("VelTestDictNobody", IID_VelBaseUnknown), S_OK);
  EXPECT_EQ(Ask("VelTestDictNobody", IID_VelIDelegation), S_OK);
  EXPECT_EQ(Ask("VelTestDictNobody", IID_VelITestNumber), E_NOINTERFACE);
  EXPECT_EQ(scope_.TakeErrors(), Texts{}) << "that nothing is bound is no error";
}

TEST_F(VelDictionaryTest, Folder_IsLoadedInTheOrderOfNames_AndAFaultyFileStopsNoOther) {
  // The second file to bind the same row is the one that is refused, so the order shows.
  scope_.Write("2.dictionary",
               ModuleText("VelTestTwo", "class E Extension\nbind VelTestDictThing VelITestNumber TIE Reference E\n"));
  scope_.Write("10.dictionary", ModuleText("VelTestTen", numberRow));
  scope_.Write("1.dictionary", "velrsh-dictionary 1\nmodul VelTestBroken\n");
  scope_.Write("3.dictionary",
               ModuleText("VelTestThree", "class D Extension\nbind VelTestDictThing VelITestText TIE Reference D\n"));
  scope_.Write("0.txt", "no dictionary");
  scope_.Write("4.dictionary~", "no dictionary either");
  EXPECT_EQ(VelDictionary::LoadFolder(scope_.Path()), E_FAIL);
  EXPECT_EQ(
      scope_.TakeErrors(),
      (Texts{"1.dictionary:2: unknown word 'modul', expected module, framework, library, type, class, bind or extend",
             "2.dictionary:6: 'VelITestNumber' is bound to 'VelTestDictThing' already by '10.dictionary' with the "
             "class 'C'"}));
  EXPECT_EQ(FrameworkOfNumber(), "FrameworkOfVelTestTen");
  EXPECT_TRUE(Offers("VelTestDictThing", IID_VelITestText));
  EXPECT_EQ(VelDictionary::Unload(scope_.Path()), S_OK);
  EXPECT_EQ(FrameworkOfNumber(), "");
  EXPECT_FALSE(Offers("VelTestDictThing", IID_VelITestText));
  EXPECT_EQ(VelDictionary::Unload(scope_.Path()), S_FALSE);
}

TEST_F(VelDictionaryTest, ClassThatAnotherModuleDeclares_IsRefused) {
  ASSERT_EQ(scope_.Load("a.dictionary", ModuleText("VelTestOne", numberRow)), S_OK);
  // On a type of its own, so that the rows themselves do not contradict each other.
  EXPECT_EQ(scope_.Load("b.dictionary", ModuleText("VelTestTwo",
                                                   "class C Extension\n"
                                                   "bind VelTestDictOther VelITestText TIE Reference C\n")),
            E_FAIL);
  EXPECT_EQ(scope_.TakeErrors(), Texts{"b.dictionary:5: the class 'C' is declared already by 'a.dictionary'"});
  EXPECT_FALSE(Offers("VelTestDictOther", IID_VelITestText));
}

TEST_F(VelDictionaryTest, FolderWithoutDictionaries_IsAWarning) {
  EXPECT_EQ(VelDictionary::LoadFolder(scope_.Path()), S_OK);
  EXPECT_EQ(scope_.TakeWarnings().size(), 1U);
}

TEST_F(VelDictionaryTest, FolderLoadedTwice_ChangesNothing_AndTellsWhichFilesItLoaded) {
  scope_.Write("a.dictionary", ModuleText("VelTestOne", numberRow));
  std::vector<std::string> files;
  EXPECT_EQ(VelDictionary::LoadFolder(scope_.Path(), &files), S_OK);
  EXPECT_EQ(files, Texts{scope_.Path("a.dictionary")});
  EXPECT_EQ(VelDictionary::LoadFolder(scope_.Path(), &files), S_OK);
  EXPECT_EQ(files.size(), 1U) << "the second time there was nothing to load";
  EXPECT_EQ(FrameworkOfNumber(), "FrameworkOfVelTestOne");
  EXPECT_EQ(scope_.TakeErrors(), Texts{});
}

TEST_F(VelDictionaryTest, FolderThatCannotBeRead_IsRefusedWithTheCause) {
  scope_.Write("file", "");
  EXPECT_EQ(VelDictionary::LoadFolder(scope_.Path("missing")), E_FAIL);
  EXPECT_EQ(VelDictionary::LoadFolder(scope_.Path("file")), E_FAIL);
  EXPECT_EQ(scope_.TakeErrors(), (Texts{"the dictionary folder 'missing' cannot be read: no such folder",
                                        "the dictionary folder 'file' cannot be read: is not a folder"}));
}

TEST_F(VelDictionaryTest, FolderOfLinks_IsUnloadedAsAWhole) {
  scope_.MakeFolder("links");
  scope_.Write("real", ModuleText("VelTestOne", numberRow));
  std::filesystem::create_symlink(scope_.Path("real"), scope_.Path("links/a.dictionary"));
  ASSERT_EQ(VelDictionary::LoadFolder(scope_.Path("links")), S_OK);
  EXPECT_EQ(FrameworkOfNumber(), "FrameworkOfVelTestOne");
  EXPECT_EQ(VelDictionary::Unload(scope_.Path("links")), S_OK);
  EXPECT_EQ(FrameworkOfNumber(), "");
}

constexpr VelModuleType linkedTypes[] = {{"VelTestLinkedDerived", "VelTestLinkedThing"}};
constexpr VelModuleClass linkedClasses[] = {{"VelTestLinkedClass", VelTypeOfClass::Implementation, nullptr},
                                            {"VelTestLinkedDirect", VelTypeOfClass::DelegatingExtension, nullptr}};

VelModuleRow LinkedRow(const char* iClass, VelMechanism iMechanism = VelMechanism::TIE,
                       VelLifetime iLifetime = VelLifetime::Component) {
  return {"VelTestLinkedThing", "VelITestNumber", iMechanism, iLifetime, iClass, nullptr, nullptr};
}

TEST_F(VelDictionaryTest, LinkedTable_IsDeclaredOnce_AndTakenOutOnce) {
  const VelModuleRow rows[] = {LinkedRow("VelTestLinkedClass")};
  const VelModuleExtend extends[] = {{"VelTestLinkedOther", "VelTestLinkedClass"}};
  const VelModuleTable table{"VelTestLinked", "LinkedFramework", linkedTypes, linkedClasses, rows, extends};
  EXPECT_EQ(VelDictionary::Undeclare(table), S_FALSE);
  EXPECT_EQ(VelDictionary::Declare(table), S_OK);
  EXPECT_EQ(VelDictionary::Declare(table), S_FALSE);
  EXPECT_EQ(VelQueryFramework("VelTestLinkedDerived", "VelITestNumber"), "LinkedFramework");
  EXPECT_EQ(VelQueryFramework("VelTestLinkedOther", "VelITestNumber"), "LinkedFramework");
  EXPECT_EQ(VelDictionary::Undeclare(table), S_OK);
  EXPECT_EQ(VelQueryFramework("VelTestLinkedDerived", "VelITestNumber"), "");
  EXPECT_EQ(VelDictionary::Undeclare(table), S_FALSE);
  EXPECT_EQ(scope_.TakeErrors(), Texts{});
}

TEST_F(VelDictionaryTest, LinkedClassOfTwoLateTypes_ExtendsWithWhatItAnswersOnTheFirst) {
  const VelModuleRow rows[] = {LinkedRow("VelTestLinkedClass"),
                               {"VelTestLinkedSecond", "VelITestText", VelMechanism::TIE, VelLifetime::Component,
                                "VelTestLinkedClass", nullptr, nullptr}};
  const VelModuleExtend extends[] = {{"VelTestLinkedOther", "VelTestLinkedClass"}};
  const VelModuleTable table{"VelTestLinked", "LinkedFramework", linkedTypes, linkedClasses, rows, extends};
  ASSERT_EQ(VelDictionary::Declare(table), S_OK);
  EXPECT_TRUE(Offers("VelTestLinkedSecond", IID_VelITestText));
  EXPECT_TRUE(Offers("VelTestLinkedOther", IID_VelITestNumber));
  EXPECT_FALSE(Offers("VelTestLinkedOther", IID_VelITestText));
  EXPECT_EQ(VelDictionary::Undeclare(table), S_OK);
}

TEST_F(VelDictionaryTest, LinkedTableThatContradictsAFile_IsRefused) {
  ASSERT_EQ(scope_.LoadModule("a.dictionary", "VelTestOne",
                              "class C Extension\nbind VelTestLinkedThing VelITestNumber TIE Reference C\n"),
            S_OK);
  const VelModuleRow rows[] = {LinkedRow("VelTestLinkedClass")};
  EXPECT_EQ(VelDictionary::Declare({"VelTestLinked", "LinkedFramework", linkedTypes, linkedClasses, rows, {}}), E_FAIL);
  EXPECT_EQ(scope_.TakeErrors(),
            Texts{"'VelITestNumber' is bound to 'VelTestLinkedThing' already by 'a.dictionary' with the class 'C'"});
  EXPECT_FALSE(Offers("VelTestLinkedDerived", IID_VelITestNumber));
}

TEST_F(VelDictionaryTest, LinkedTableWithAFault_IsRefusedAsAFileWouldBe) {
  struct Case {
    const char* name;
    std::vector<VelModuleRow> rows;
    const char* fault;
  };
  const Case cases[] = {
      {"no class", {LinkedRow("VelTestLinkedNobody")}, "the class 'VelTestLinkedNobody' is not declared"},
      {"twice",
       {LinkedRow("VelTestLinkedClass"), LinkedRow("VelTestLinkedClass")},
       "'VelITestNumber' is bound to 'VelTestLinkedThing' twice"},
      {"TIE of a delegating extension",
       {LinkedRow("VelTestLinkedDirect")},
       "a DelegatingExtension answers by BOA and every other class by TIE, 'VelTestLinkedDirect' does not"},
      {"BOA of an implementation",
       {LinkedRow("VelTestLinkedClass", VelMechanism::BOA, VelLifetime::Reference)},
       "a DelegatingExtension answers by BOA and every other class by TIE, 'VelTestLinkedClass' does not"},
      {"BOA with Component",
       {LinkedRow("VelTestLinkedDirect", VelMechanism::BOA)},
       "a BOA row lives by Reference, found Component for 'VelTestLinkedDirect'"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const VelModuleTable table{"VelTestLinked", "LinkedFramework", linkedTypes, linkedClasses, each.rows, {}};
    EXPECT_EQ(VelDictionary::Declare(table), E_FAIL);
    EXPECT_EQ(scope_.TakeErrors(),
              Texts{std::string("the grid of the linked module 'VelTestLinked' is faulty: ") + each.fault});
    EXPECT_FALSE(Offers("VelTestLinkedDerived", IID_VelITestNumber));
    EXPECT_EQ(VelDictionary::Undeclare(table), S_FALSE);
  }
}

}  // namespace
