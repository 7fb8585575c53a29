// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Factories_test.cpp Which factories the manager finds, in which order, and whose types they
/// become.
#include <filesystem>

#include "platform/objectmodeler/VelDictionary.h"
#include "platform/trace/VelDiagnostics.h"
#include "tests/RenderingShader/management/fixtures/ManagementTest.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

using VelRshShaderManagerFactoriesTest = ManagementTest;

TEST_F(VelRshShaderManagerFactoriesTest, TheManager_IsOneCommandOfItsOwnLateType) {
  VelRshShaderManager* const manager = VelRshShaderManager::GetManager();
  ASSERT_NE(manager, nullptr);
  EXPECT_EQ(VelRshShaderManager::GetManager(), manager);
  EXPECT_EQ(manager->LateTypeName(), std::string("VelRshShaderManager"));
  EXPECT_STREQ(manager->ClassName(), "VelRshShaderManager");
  EXPECT_STREQ(manager->IsA(), "VelRshShaderManager");
  EXPECT_TRUE(manager->IsAKindOf("VelCommand"));
  EXPECT_STREQ(VelRshShaderManager::ClassId(), "VelNull");
  EXPECT_EQ(VelRshShaderManager::CreateItself(), nullptr);
  EXPECT_EQ(&manager->GetMetaObject(), &VelRshShaderManager::MetaObject());
  EXPECT_STREQ(VelRshShaderManager::MetaObject().Framework(), "RenderingShader");
  EXPECT_EQ(VelRshShaderManager::MetaObject().Base(), &VelCommand::MetaObject());
  EXPECT_EQ(manager->GetParent(), nullptr);
  EXPECT_TRUE(manager->GetName().IsEmpty());
}

TEST_F(VelRshShaderManagerFactoriesTest, Discovery_TellsWhatItFindsAndWhatItSkips) {
  factories_->DeclareHost();
  StartTraces();
  static_cast<void>(Manager());
  EXPECT_EQ(Told(), (Texts{"4 (VelRshShaderManager::Init)\n",
                           "7 (VelRshShaderManager::Init) Supported interface: 'VelIRshShaderFactory'\n",
                           "7 (VelRshShaderManager::Init) Supported interface: 'VelITestUnrelated'\n",
                           "4 (VelRshShaderManager::Init) Framework: 'TestContributions'\n",
                           "7 (VelRshShaderManager::Init) Supported interface: 'VelITestFirstFactory'\n",
                           "4 (VelRshShaderManager::Init) Framework: 'TestContributions'\n",
                           "4 (VelRshShaderManager::Init) Adding interface: 'VelITestFirstFactory'\n",
                           "7 (VelRshShaderManager::Init) Supported interface: 'VelITestSecondFactory'\n",
                           "4 (VelRshShaderManager::Init) Framework: 'TestContributions'\n",
                           "4 (VelRshShaderManager::Init) Adding interface: 'VelITestSecondFactory'\n",
                           "7 (VelRshShaderManager::Init) Supported interface: 'VelIRmaShaderFactory'\n",
                           "4 (VelRshShaderManager::Init) Framework: 'TestHost'\n",
                           "4 (VelRshShaderManager::Init) Adding interface: 'VelIRmaShaderFactory'\n"}));
}

TEST_F(VelRshShaderManagerFactoriesTest, AFactoryThatIsDeclined_IsSkipped) {
  First().declines = true;
  First().Add("lost");
  Second().Add("found");
  StartTraces();
  EXPECT_EQ(List().types, Texts{"found"});
  for (const std::string& line : Told()) {
    EXPECT_EQ(line.find("Adding interface: 'VelITestFirstFactory'"), std::string::npos);
  }
}

TEST_F(VelRshShaderManagerFactoriesTest, Types_AreThoseOfTheHostFirstThenInTheOrderOfDiscovery) {
  factories_->DeclareHost();
  First().Add("f1");
  First().Add("f2");
  Second().Add("s1");
  Host().Add("h1");
  Host().Add("h2");
  EXPECT_EQ(List().types, (Texts{"h1", "h2", "f1", "f2", "s1"}));
}

TEST_F(VelRshShaderManagerFactoriesTest, ATypeListedTwice_BelongsToTheFirstThatListsItTheHostBeforeAll) {
  factories_->DeclareHost();
  First().Add("shared", "the first");
  First().Add("both", "the first");
  First().Add("both", "the first again");
  Second().Add("shared", "the second");
  Second().Add("both", "the second");
  Second().Add("Both", "the second");
  Host().Add("shared", "the host");
  const Listed listed = List();
  EXPECT_EQ(listed.types, (Texts{"shared", "both", "Both"}));
  EXPECT_EQ(listed.names, (Texts{"shared of the host", "both of the first", "Both of the second"}));
}

TEST_F(VelRshShaderManagerFactoriesTest, TheFactoryBehindTheBareInterface_IsNeverAsked) {
  factories_->plain.Add("bare");
  First().Add("f");
  EXPECT_EQ(List().types, Texts{"f"});
  EXPECT_EQ(factories_->plain.calls, Texts{});
}

TEST_F(VelRshShaderManagerFactoriesTest, AFactoryWhoseListingFails_IsPassedOver) {
  First().Add("f");
  First().listCode = E_UNEXPECTED;
  Second().Add("s");
  EXPECT_EQ(List().types, Texts{"s"});
}

TEST_F(VelRshShaderManagerFactoriesTest, WithoutFactories_ThereIsNoTypeAndTheInterfacesAreWalkedOnce) {
  factories_.reset();
  StartTraces();
  EXPECT_EQ(List(1).code, E_FAIL);
  EXPECT_EQ(List(1).code, E_FAIL);
  const std::string init = "4 (VelRshShaderManager::Init)\n";
  EXPECT_EQ(Told(), (Texts{init, init, init}));
  factories_.emplace();
  First().Add("late");
  EXPECT_EQ(List(1).code, E_FAIL) << "factories are discovered once";
}

TEST_F(VelRshShaderManagerFactoriesTest, ARescan_AsksTheFactoriesAgainAndAppendsWhatIsNew) {
  First().Add("f");
  Second().Add("s");
  EXPECT_EQ(List(2).types, (Texts{"f", "s"}));
  First().Add("f2");
  Second().Add("f");
  EXPECT_EQ(List(2).types, (Texts{"f", "s"})) << "only the usage 1 asks again";
  EXPECT_EQ(List(3).types, (Texts{"f", "s"})) << "and 1 alone";
  EXPECT_EQ(List(1).types, (Texts{"f", "s", "f2"}));
  First().types.clear();
  First().Add("f2");
  First().Add("f3");
  EXPECT_EQ(List(1).types, (Texts{"s", "f2", "f3"})) << "'f' stays the first factory's, which does not know it now";
  EXPECT_EQ(List(2).types, (Texts{"s", "f2", "f3"}));
}

TEST_F(VelRshShaderManagerFactoriesTest, AReload_TellsTheInitLineAndNothingElse) {
  First().Add("f");
  static_cast<void>(Manager());
  StartTraces();
  const std::string init = "4 (VelRshShaderManager::Init)\n";
  static_cast<void>(List(2));
  EXPECT_EQ(Told(), Texts{init}) << "the first list";
  static_cast<void>(List(2));
  EXPECT_EQ(Told(), Texts{init});
  static_cast<void>(List(1));
  EXPECT_EQ(Told(), (Texts{init, init}));
}

TEST_F(VelRshShaderManagerFactoriesTest, TypesThatAppearInAFactoryThatFailedBefore_AreTakenByTheNextRescan) {
  First().Add("f");
  First().listCode = E_FAIL;
  EXPECT_EQ(List().code, E_FAIL);
  First().listCode = S_FALSE;
  EXPECT_EQ(List(2).code, E_FAIL);
  EXPECT_EQ(List(1).types, Texts{"f"}) << "S_FALSE is a success";
}

TEST_F(VelRshShaderManagerFactoriesTest, ACopyOfTheManager_KnowsTheSameFactoriesAndLetsThemGoByItself) {
  First().Add("f");
  EXPECT_EQ(List().types, Texts{"f"});
  int ends = 0;
  First().onEnd = [&] { ++ends; };
  auto* const copy = new VelRshShaderManager(Manager());
  auto* const assigned = new VelRshShaderManager(Manager());
  *assigned = *copy;
  VelListValVelString types;
  VelListValVelUnicodeString names;
  EXPECT_EQ(copy->ListAvailableShaders(0, "", types, names), S_OK);
  EXPECT_EQ(assigned->ListAvailableShaders(0, "", types, names), S_OK);
  EXPECT_EQ(types.Size(), 2);
  for (VelRshShaderManager* manager : {copy, assigned}) {
    manager->EndLife();
    manager->Release();
  }
  EXPECT_EQ(ends, 0) << "the manager itself still has it";
  EXPECT_EQ(List().types, Texts{"f"});
}

TEST_F(VelRshShaderManagerFactoriesTest, ACopyOfTheManager_KnowsTheTypesThatWereRead) {
  First().Add("f");
  EXPECT_EQ(List().types, Texts{"f"});
  First().listCode = E_FAIL;
  auto* const copy = new VelRshShaderManager(Manager());
  auto* const assigned = new VelRshShaderManager(Manager());
  *assigned = Manager();
  for (VelRshShaderManager* manager : {copy, assigned}) {
    VelListValVelString types;
    VelListValVelUnicodeString names;
    EXPECT_EQ(manager->ListAvailableShaders(0, "", types, names), S_OK);
    EXPECT_EQ(types.Size(), 1);
    manager->EndLife();
    manager->Release();
  }
}

TEST_F(VelRshShaderManagerFactoriesTest, AManagerAssignedToItself_KeepsItsFactories) {
  First().Add("f");
  EXPECT_EQ(List().types, Texts{"f"});
  int ends = 0;
  First().onEnd = [&] { ++ends; };
  VelRshShaderManager& same = Manager();
  Manager() = same;
  EXPECT_EQ(ends, 0);
  EXPECT_EQ(List().types, Texts{"f"});
}

/// Dictionary files of a test, which are unloaded at its end.
class VelRshShaderManagerLibrariesTest : public ManagementTest {
 protected:
  void SetUp() override {
    ManagementTest::SetUp();
    // Those that the program itself brings stay away.
    factories_.reset();
    path_ = std::filesystem::canonical(folder_.Path()).string() + "/";
  }
  void TearDown() override {
    EXPECT_TRUE(SUCCEEDED(VelDictionary::Unload(plugin)));
    EXPECT_TRUE(SUCCEEDED(VelDictionary::Unload(folder_.Path())));
    ManagementTest::TearDown();
  }

  void LoadModule(const char* iName, const std::string& iModule, const std::string& iLibrary,
                  const std::string& iInterface, const std::string& iClass) {
    const std::string text = "velrsh-dictionary 1\nmodule " + iModule + "\nframework TestLibraries\nlibrary " +
                             iLibrary + "\nclass " + iClass + " Extension\nbind VelRshShaderManager " + iInterface +
                             " TIE Component " + iClass + "\n";
    ASSERT_EQ(VelDictionary::LoadFile(folder_.Write(iName, text)), S_OK);
  }

  static constexpr const char* plugin = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelTestShaderPlugin.dictionary";
  VelTemporaryFolder folder_;
  std::string path_;
};

TEST_F(VelRshShaderManagerLibrariesTest, AFactoryOfALibrary_IsOpenedAndCreatesItsShaders) {
  ASSERT_EQ(VelDictionary::LoadFile(plugin), S_OK);
  StartTraces();
  const Listed listed = List(4, "VelRmaVector");
  EXPECT_EQ(listed.code, S_OK);
  EXPECT_EQ(listed.types, Texts{"TestPluginShader"});
  EXPECT_EQ(listed.names, Texts{"Shader of a plug-in"});
  EXPECT_EQ(Told(), (Texts{"4 (VelRshShaderManager::Init)\n",
                           "7 (VelRshShaderManager::Init) Supported interface: 'VelITestShaderPluginFactory'\n",
                           "4 (VelRshShaderManager::Init) Framework: 'TestShaderPlugin'\n",
                           "4 (VelRshShaderManager::Init) Adding interface: 'VelITestShaderPluginFactory'\n",
                           "4 (VelRshShaderManager::Init)\n"}));
  VelIRshShader_var hShader;
  ASSERT_EQ(Manager().CreateShader(hContainer_, "TestPluginShader", hShader.Receive(), 3), S_OK);
  EXPECT_EQ(ParameterNames(hShader), Texts{"gain"});
  EXPECT_EQ(ScalarOf(Find(hShader, "gain")), 3.0F);
}

TEST_F(VelRshShaderManagerLibrariesTest, ALibraryThatIsMissing_IsReportedAndSkipped) {
  const VelDiagnostics diagnostics;
  LoadModule("a.dictionary", "VelTestNowhere", "libVelTestNowhere.so", "VelITestNowhereFactory", "VelTestNowhere");
  ASSERT_EQ(VelDictionary::LoadFile(plugin), S_OK);
  EXPECT_EQ(List(4).types, Texts{"TestPluginShader"});
  ASSERT_EQ(diagnostics.Entries().size(), 1U);
  const std::string cause = path_ + "a.dictionary:6: bind VelRshShaderManager VelITestNowhereFactory VelTestNowhere: " +
                            "the library 'libVelTestNowhere.so' cannot be opened: ";
  EXPECT_EQ(diagnostics.Entries().front().text.substr(0, cause.size()), cause);
}

TEST_F(VelRshShaderManagerLibrariesTest, ALibraryWithoutTheClass_IsReportedAndSkipped) {
  const VelDiagnostics diagnostics;
  LoadModule("a.dictionary", "VelTestShaderPlugin", VEL_TEST_PLUGIN_LIBRARY, "VelITestShaderPluginFactory",
             "VelTestNoSuchClass");
  EXPECT_EQ(List().code, E_FAIL);
  ASSERT_EQ(diagnostics.Entries().size(), 1U);
  EXPECT_EQ(diagnostics.Entries().front().text,
            path_ + "a.dictionary:6: bind VelRshShaderManager VelITestShaderPluginFactory VelTestNoSuchClass: " +
                "the library does not export 'CreateTIEVelITestShaderPluginFactoryVelTestNoSuchClass'");
}

}  // namespace
