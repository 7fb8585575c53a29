// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformSession_test.cpp Starting and ending the platform, repeatedly and with faulty inputs.
#include "platform/session/VelPlatformSession.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "platform/base/VelCallOnExit.h"
#include "platform/base/VelThreadBinding.h"
#include "platform/featuremodeler/VelCatalog.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/QrnSysTrace.h"
#include "platform/trace/VelDiagnostics.h"
#include "platform/trace/VelTraceRecorder.h"
#include "platform/trace/VelTraceService.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

using Texts = std::vector<std::string>;

/// A folder of its own, the traces in a recorder, the environment as it was before.
class VelPlatformSessionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    // ctest runs this program twice at the same time, once per locale.
    const std::string locale = std::getenv("VEL_TEST_COMMA_LOCALE") != nullptr ? "comma_" : "plain_";
    const std::string test = ::testing::UnitTest::GetInstance()->current_test_info()->name();
    folder_ = std::filesystem::path(::testing::TempDir()) / ("velrsh_session_" + locale + test);
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_ / "more");
    VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
    VelTraceService::AddSink(recorder_);
  }
  void TearDown() override {
    ::unsetenv("VEL_DICTIONARY_PATH");
    VelTraceService::RemoveSink(recorder_);
    VelTraceService::Reset();
    std::filesystem::remove_all(folder_);
    EXPECT_EQ(VelPlatformSession::Current(), nullptr);
  }

  /// Writes a dictionary that binds VelTestISession to a late type named like the module.
  std::string Write(const std::string& iName, const std::string& iModule) {
    const auto path = folder_ / iName;
    std::ofstream(path) << "velrsh-dictionary 1\nmodule " << iModule << "\nframework SessionTests\nlibrary lib"
                        << iModule << ".so\nclass " << iModule << "Class Implementation\nbind " << iModule
                        << " VelTestISession TIE Component " << iModule << "Class\n";
    return path.string();
  }

  static std::string FrameworkOf(const char* iLateType) {
    return std::string(VelQueryFramework(iLateType, "VelTestISession"));
  }
  Texts Errors() const { return recorder_.Texts(VelTraceKind::Error); }

  std::filesystem::path folder_;
  VelTraceRecorder recorder_;
};

TEST_F(VelPlatformSessionTest, Session_StartsAndEndsRepeatedly) {
  const std::string file = Write("one.dictionary", "SessionOne");
  for (int i = 0; i < 3; ++i) {
    SCOPED_TRACE(i);
    VelPlatformSession session;
    EXPECT_FALSE(session.IsRunning());
    EXPECT_EQ(session.End(), S_FALSE);
    ASSERT_EQ(session.Start({.dictionaries = {file}}), S_OK);
    EXPECT_TRUE(session.IsRunning());
    EXPECT_EQ(VelPlatformSession::Current(), &session);
    EXPECT_EQ(FrameworkOf("SessionOne"), "SessionTests");
    EXPECT_EQ(session.End(), S_OK);
    EXPECT_EQ(FrameworkOf("SessionOne"), "");
  }
  EXPECT_EQ(Errors(), Texts{});
}

TEST_F(VelPlatformSessionTest, Session_WithoutOptions_Starts) {
  VelPlatformSession session;
  EXPECT_EQ(session.Start(), S_OK);
}

TEST_F(VelPlatformSessionTest, Session_ThatIsDestroyed_Ends) {
  const std::string file = Write("one.dictionary", "SessionOne");
  {
    VelPlatformSession session;
    ASSERT_EQ(session.Start({.dictionaries = {file}}), S_OK);
  }
  EXPECT_EQ(FrameworkOf("SessionOne"), "");
}

TEST_F(VelPlatformSessionTest, SecondSession_WhileOneRuns_IsUnexpectedAndLeavesTheFirstAlone) {
  VelPlatformSession first;
  ASSERT_EQ(first.Start(), S_OK);
  VelPlatformSession second;
  EXPECT_EQ(second.Start(), E_UNEXPECTED);
  EXPECT_EQ(first.Start(), E_UNEXPECTED) << "also for the running one itself";
  EXPECT_EQ(second.End(), S_FALSE);
  EXPECT_TRUE(first.IsRunning());
  EXPECT_EQ(Errors(), Texts(2, "A platform session is running already; end it before another one is started"));
}

TEST_F(VelPlatformSessionTest, Dictionaries_AreFilesAndFoldersFoundThroughTheSearchFolders) {
  Write("one.dictionary", "SessionOne");
  Write("more/two.dictionary", "SessionTwo");
  Write("more/three.dictionary", "SessionThree");
  VelPlatformSession session;
  ASSERT_EQ(session.Start({.dictionaries = {"one.dictionary", "more"}, .searchFolders = {"nowhere", folder_.string()}}),
            S_OK);
  EXPECT_EQ(FrameworkOf("SessionOne"), "SessionTests");
  EXPECT_EQ(FrameworkOf("SessionTwo"), "SessionTests");
  EXPECT_EQ(FrameworkOf("SessionThree"), "SessionTests");
  EXPECT_EQ(session.Locate("one.dictionary"), folder_.string() + "/one.dictionary");
  EXPECT_EQ(session.Locate("four.dictionary"), "");
  EXPECT_EQ(session.End(), S_OK);
  for (const char* lateType : {"SessionOne", "SessionTwo", "SessionThree"}) EXPECT_EQ(FrameworkOf(lateType), "");
}

TEST_F(VelPlatformSessionTest, MissingDictionary_IsAFailureThatLeavesNothingStarted) {
  const std::string file = Write("one.dictionary", "SessionOne");
  VelPlatformSession session;
  EXPECT_EQ(session.Start({.dictionaries = {file, "missing.dictionary"}}), E_FAIL);
  EXPECT_FALSE(session.IsRunning());
  EXPECT_EQ(FrameworkOf("SessionOne"), "");
  EXPECT_EQ(Errors(),
            Texts{"The dictionary 'missing.dictionary' is neither in the current folder nor in a search folder"});
}

TEST_F(VelPlatformSessionTest, FaultyDictionaryOfTheOptions_IsAFailureThatLeavesNothingStarted) {
  Write("more/a.dictionary", "SessionOne");
  std::ofstream(folder_ / "more" / "b.dictionary") << "velrsh-dictionary 1\nmodul X\n";
  VelPlatformSession session;
  EXPECT_EQ(session.Start({.dictionaries = {(folder_ / "more").string()}}), E_FAIL);
  EXPECT_EQ(FrameworkOf("SessionOne"), "") << "the sound file of the folder is taken out again";
  ASSERT_EQ(Errors().size(), 1U);
  EXPECT_NE(Errors()[0].find("b.dictionary:2: unknown word 'modul'"), std::string::npos) << Errors()[0];
}

TEST_F(VelPlatformSessionTest, FaultyDictionaryOfTheEnvironment_IsReportedAndLeftOut) {
  const std::string file = Write("one.dictionary", "SessionOne");
  ::setenv("VEL_DICTIONARY_PATH", ("/nowhere/at/all:" + file).c_str(), 1);
  VelPlatformSession session;
  EXPECT_EQ(session.Start(), S_OK);
  EXPECT_EQ(FrameworkOf("SessionOne"), "SessionTests");
  EXPECT_EQ(Errors().size(), 1U);
}

TEST_F(VelPlatformSessionTest, DictionaryLoadedBeforeTheSession_StaysAfterIt) {
  const std::string file = Write("one.dictionary", "SessionOne");
  ASSERT_EQ(VelDictionary::LoadFile(file), S_OK);
  VelPlatformSession session;
  ASSERT_EQ(session.Start({.dictionaries = {file}}), S_OK);
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(FrameworkOf("SessionOne"), "SessionTests");
  EXPECT_EQ(VelDictionary::Unload(file), S_OK);
}

TEST_F(VelPlatformSessionTest, CatalogReadAtTheStart_IsFoundByItsFilesNameAlone) {
  const std::filesystem::path catalog = folder_ / "named.feat";
  std::ofstream(catalog) << "velrsh-catalog 1\ncatalog SessionNamedCatalog\nstartup SessionNamedStartUp\n";
  VelPlatformSession session;
  ASSERT_EQ(session.Start({.catalogs = {catalog.string()}}), S_OK);
  EXPECT_NE(VelCatalog::Load("named.feat"), nullptr);
  EXPECT_EQ(session.End(), S_OK);
  const VelDiagnostics diagnostics;
  EXPECT_EQ(VelCatalog::Load("named.feat"), nullptr) << "the folders go with the session";
}

TEST_F(VelPlatformSessionTest, Catalogs_AreReadAtTheStart) {
  std::ofstream(folder_ / "good.feat") << "velrsh-catalog 1\ncatalog SessionCatalog\nstartup SessionStartUp\n";
  std::ofstream(folder_ / "bad.feat") << "velrsh-catalog 1\ncatalog SessionBadCatalog\nstartup A : B\n";
  VelPlatformSession session;
  ASSERT_EQ(session.Start({.catalogs = {"good.feat"}, .searchFolders = {folder_.string()}}), S_OK);
  EXPECT_NE(VelCatalog::Find("SessionCatalog"), nullptr);
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(Errors(), Texts{});
  EXPECT_EQ(session.Start({.catalogs = {"bad.feat"}, .searchFolders = {folder_.string()}}), E_FAIL);
  EXPECT_FALSE(session.IsRunning());
  EXPECT_EQ(Errors(), Texts{(folder_ / "bad.feat").string() + ":3: the base 'B' of 'A' is not declared"});
  EXPECT_EQ(session.Start({.catalogs = {"missing.feat"}}), E_FAIL);
}

TEST_F(VelPlatformSessionTest, FolderOfWhichAFileWasLoadedBefore_LosesOnlyWhatTheSessionLoaded) {
  const std::string before = Write("more/one.dictionary", "SessionOne");
  Write("more/two.dictionary", "SessionTwo");
  ASSERT_EQ(VelDictionary::LoadFile(before), S_OK);
  VelPlatformSession session;
  ASSERT_EQ(session.Start({.dictionaries = {(folder_ / "more").string()}}), S_OK);
  EXPECT_EQ(FrameworkOf("SessionTwo"), "SessionTests");
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(FrameworkOf("SessionOne"), "SessionTests");
  EXPECT_EQ(FrameworkOf("SessionTwo"), "");
  EXPECT_EQ(VelDictionary::Unload(before), S_OK);
}

TEST_F(VelPlatformSessionTest, AbsolutePathThatDoesNotExist_IsSaidToBeJustThat) {
  VelPlatformSession session;
  EXPECT_EQ(session.Start({.dictionaries = {"/nowhere/at/all"}}), E_FAIL);
  EXPECT_EQ(Errors(), Texts{"The dictionary '/nowhere/at/all' does not exist"});
  EXPECT_EQ(session.Start({.dictionaries = {""}}), E_FAIL);
}

TEST_F(VelPlatformSessionTest, WhatIsOddButNoFailure_IsAWarning) {
  ::setenv("VEL_DICTIONARY_PATH", "/nowhere/at/all", 1);
  const VelBaseUnknown_var hLeft = VelObject::Create("SessionOne", nullptr);
  VelPlatformSession session;
  EXPECT_EQ(session.Start({.searchFolders = {"/no/folder"}}), S_OK);
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(recorder_.Texts(VelTraceKind::Warning),
            (Texts{"VEL_DICTIONARY_PATH names '/nowhere/at/all', which is not loaded, or not as a whole",
                   "The search folder '/no/folder' cannot be read",
                   "Objects outlive the session { components = 1, forwarders = 0 }"}));
}

/// A service that notes its start and end while the test runs, and stays silent afterwards: participants are for ever.
class Participant final : public VelSessionParticipant {
 public:
  explicit Participant(std::string iName) : name_(std::move(iName)) { VelPlatformSession::AddParticipant(*this); }

  HRESULT OnSessionStart(const VelPlatformOptions&) override {
    if (notes != nullptr) notes->push_back("start " + name_);
    if (inStart) inStart();
    return result;
  }
  void OnSessionEnd() override {
    if (notes != nullptr) notes->push_back("end " + name_);
    if (inEnd) inEnd();
  }

  HRESULT result = S_OK;
  std::function<void()> inStart;
  std::function<void()> inEnd;
  static Texts* notes;

 private:
  std::string name_;
};
Texts* Participant::notes = nullptr;

Participant& First() {
  static auto& participant = *new Participant("first");
  return participant;
}
Participant& Second() {
  static auto& participant = *new Participant("second");
  return participant;
}

/// Adds a service that stays for the rest of the process.
void Add() {
  static int count = 0;
  static_cast<void>(new Participant(std::to_string(++count)));
}

/// Without the notes of the services that one of the tests adds for the rest of the process.
Texts NotesOfTheTwo(Texts iNotes) {
  std::erase_if(iNotes,
                [](const std::string& iNote) { return iNote.find_first_of("0123456789") != std::string::npos; });
  return iNotes;
}

int NoteHook(int) {
  if (Participant::notes != nullptr) {
    Participant::notes->push_back("hook, dictionary " + (VelQueryFramework("SessionOne", "VelTestISession").empty()
                                                             ? std::string("gone")
                                                             : std::string("there")));
  }
  return 0;
}

TEST_F(VelPlatformSessionTest, Services_StartInOrderAndEndInReverseAfterTheExitHooks) {
  First();
  Second();
  VelPlatformSession::AddParticipant(First());
  const std::string file = Write("one.dictionary", "SessionOne");
  Texts notes;
  Participant::notes = &notes;
  VelPlatformSession session;
  ASSERT_EQ(session.Start({.dictionaries = {file}}), S_OK);
  VelCallOnExit(&NoteHook, 3);
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(NotesOfTheTwo(notes),
            (Texts{"start first", "start second", "hook, dictionary there", "end second", "end first"}));
  Participant::notes = nullptr;
}

TEST_F(VelPlatformSessionTest, ServiceThatFails_EndsThoseStartedBeforeIt) {
  First();
  Second().result = E_INVALIDARG;
  Texts notes;
  Participant::notes = &notes;
  VelPlatformSession session;
  EXPECT_EQ(session.Start(), E_INVALIDARG);
  EXPECT_EQ(NotesOfTheTwo(notes), (Texts{"start first", "start second", "end first"}));
  EXPECT_FALSE(session.IsRunning());
  Participant::notes = nullptr;
  Second().result = S_OK;
}

TEST_F(VelPlatformSessionTest, ServiceThatThrows_HasFailedAndStopsNoOther) {
  First();
  Second().inStart = [] { throw std::runtime_error("start"); };
  First().inEnd = [] { throw std::runtime_error("end"); };
  const RecordingFailureObserver failures;
  VelPlatformSession session;
  EXPECT_EQ(session.Start(), E_FAIL);
  EXPECT_FALSE(session.IsRunning());
  EXPECT_EQ(failures.Messages(), (Texts{"A service threw an exception when the session started",
                                        "A service threw an exception when the session ended"}));
  EXPECT_EQ(failures.Failures()[0].detail, "OnSessionStart: start");
  Second().inStart = nullptr;
  First().inEnd = nullptr;
}

TEST_F(VelPlatformSessionTest, ServiceAddedByAnothersStart_TakesPartFromTheNextSessionOn) {
  First().inStart = [] {
    for (int i = 0; i < 100; ++i) Add();
  };
  Texts notes;
  Participant::notes = &notes;
  VelPlatformSession session;
  ASSERT_EQ(session.Start(), S_OK);
  const auto before = notes.size();
  EXPECT_EQ(session.End(), S_OK);
  notes.clear();
  First().inStart = nullptr;
  ASSERT_EQ(session.Start(), S_OK);
  EXPECT_EQ(notes.size(), before + 100U);
  Participant::notes = nullptr;
  EXPECT_EQ(session.End(), S_OK);
}

VelPlatformSession* endedByHook = nullptr;

TEST_F(VelPlatformSessionTest, HookThatEndsTheSession_ChangesNothing) {
  VelPlatformSession session;
  endedByHook = &session;
  ASSERT_EQ(session.Start(), S_OK);
  static HRESULT inner;
  inner = S_OK;
  VelCallOnExit(
      [](int) {
        inner = endedByHook->End();
        return 0;
      },
      1);
  EXPECT_EQ(session.End(), S_OK);
  EXPECT_EQ(inner, S_FALSE);
  EXPECT_FALSE(session.IsRunning());
}

TEST_F(VelPlatformSessionTest, ServiceThatEndsTheSessionWhileItStarts_ChangesNothing) {
  VelPlatformSession session;
  HRESULT inner = S_OK;
  First().inStart = [&] { inner = session.End(); };
  EXPECT_EQ(session.Start(), S_OK);
  EXPECT_EQ(inner, S_FALSE);
  EXPECT_TRUE(session.IsRunning());
  EXPECT_EQ(session.End(), S_OK);
  First().inStart = nullptr;
}

TEST_F(VelPlatformSessionTest, ServiceThatEndsTheSessionWhoseStartFailed_ChangesNothing) {
  VelPlatformSession session;
  HRESULT inner = S_OK;
  int ends = 0;
  First().inEnd = [&] {
    if (++ends == 1) inner = session.End();
  };
  Second().result = E_INVALIDARG;
  EXPECT_EQ(session.Start(), E_INVALIDARG);
  EXPECT_EQ(inner, S_FALSE);
  EXPECT_EQ(ends, 1);
  EXPECT_FALSE(session.IsRunning());
  First().inEnd = nullptr;
  Second().result = S_OK;
  EXPECT_EQ(session.Start(), S_OK);
}

using VelPlatformSessionDeathTest = VelPlatformSessionTest;

TEST_F(VelPlatformSessionDeathTest, ExitHooks_AtProcessExit_StillHaveTracesAndTheDictionary) {
  const std::string file = Write("one.dictionary", "SessionOne");
  EXPECT_EXIT(
      {
        VelTraceService::Reset();
        // The session is left running: the process ends without it.
        auto& session = *new VelPlatformSession;
        if (FAILED(session.Start({.dictionaries = {file}}))) std::exit(1);
        VelCallOnExit(
            [](int) {
              QrnSysTrace* trace = QrnSysTraceCreate("ExitHook");
              trace->Warning("framework %s", VelQueryFramework("SessionOne", "VelTestISession"));
              QrnSysTraceDestroy(trace);
              return 0;
            },
            3);
        std::exit(0);
      },
      ::testing::ExitedWithCode(0), "ExitHook: framework SessionTests");
}

TEST_F(VelPlatformSessionTest, Session_BindsItsThread) {
  VelPlatformSession session;
  ASSERT_EQ(session.Start(), S_OK);
  EXPECT_TRUE(VelThreadBinding::IsBoundThread());
  bool bound = true;
  std::thread([&] { bound = VelThreadBinding::IsBoundThread(); }).join();
  EXPECT_FALSE(bound);
  EXPECT_EQ(session.End(), S_OK);
  std::thread([&] { bound = VelThreadBinding::IsBoundThread(); }).join();
  EXPECT_TRUE(bound);
}

}  // namespace
