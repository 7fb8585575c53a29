// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaShaderTypes_test.cpp Where files of shader types are looked for, and what becomes of them later.
#include <filesystem>

#include <stdlib.h>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "RenderingShader/interfaces/VelIRmaShaderFactory.h"
#include "platform/objectmodeler/VelModule.h"
#include "platform/trace/VelTraceRecorder.h"
#include "tests/host/shadertypes/ShaderTypesTest.h"

namespace {

using Tag = VelIRshParameterPrivate::Tag;

constexpr const char* tagged =
    "[[parameter]]\nname = \"a\"\ntype = \"VelRmaScalar\"\ndefault = 2\ntags = [\"diffuse\"]\n";

class VelRmaShaderTypesTest : public ShaderTypesTest {
 protected:
  static std::string Channel(const std::string& iText) { return "VelRmaConfiguredShaderFactory: " + iText; }

  /// @return a shader as it comes from a document: nobody has asked the manager for its type
  VelIRshShader_var MakeWithoutManager(const char* iType) {
    VelIRshShader_var hShader = VelRshModelFactoryFeature(*hContainer_).CreateShader(iType);
    VelIRshParameter_var hParameter;
    EXPECT_EQ(hShader->AddParameter("a", "VelRmaScalar", hParameter.Receive()), S_OK);
    return hShader;
  }

  static HRESULT HasTag(const VelIRshShader_var& iShader, Tag iTag) {
    return VelIRshParameterPrivate_var(Find(iShader, "a"))->HasTag(iTag);
  }
};

TEST_F(VelRmaShaderTypesTest, Files_AreThoseOfTheEnvironmentThenOfTheOptions) {
  std::filesystem::create_directory(folder_.Path("more"));
  const std::string single = folder_.Write("Single.toml", Sound("Single"));
  folder_.Write("Option.toml", Sound("Option"));
  folder_.Write("more/Lower.toml", Sound("Lower"));
  WriteType("B", Sound("B"));
  WriteType("A", Sound("A"));
  folder_.Write("types/note.txt", "no type");
  ::setenv("VEL_SHADER_TYPES_PATH", (single + "::" + folder_.Path("types")).c_str(), 1);
  ASSERT_EQ(Start({.shaderTypes = {"Option.toml", "more"}, .searchFolders = {folder_.Path()}}), S_OK);
  EXPECT_EQ(OwnTypes(), (Texts{"Single", "A", "B", "Option", "Lower"}));
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelRmaShaderTypesTest, AFaultyFile_IsReportedOnceAndLeftOut) {
  WriteType("Bad", "type = 1\n");
  WriteType("Good", Sound("Good"));
  ::setenv("VEL_SHADER_TYPES_PATH",
           (folder_.Path("types") + ":" + folder_.Path("nowhere") + ":" + folder_.Write("note.txt", "no type") + ":" +
            folder_.Path("nowhere/Gone.toml"))
               .c_str(),
           1);
  ASSERT_EQ(Start(), S_OK);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(OwnTypes(), Texts{"Good"});
  EXPECT_EQ(
      TakeErrors(),
      (Texts{Channel("nowhere: no such file or folder"),
             Channel("note.txt: expected a file that is named <type>.toml, or a folder of such files"),
             Channel("types/Bad.toml:1:1: the key 'output' is missing; expected the start-up of what the type "
                     "produces, such as \"VelRmaColor\""),
             Channel("types/Bad.toml:1:1: the key 'version' is missing; expected a whole number from 1 to 4294967295"),
             Channel("types/Bad.toml:1:8: 'type': expected the name of the type, which is that of the file without "
                     "'.toml', found the number 1"),
             Channel("nowhere/Gone.toml: no such file")}));
}

TEST_F(VelRmaShaderTypesTest, ATypeThatIsThereAlready_IsRefusedWithTheNameOfTheOtherFile) {
  std::filesystem::create_directory(folder_.Path("more"));
  WriteType("Own", Sound("Own", "label = \"First\"\n"));
  folder_.Write("more/Own.toml", Sound("Own", "label = \"Second\"\n"));
  ::setenv("VEL_SHADER_TYPES_PATH", (folder_.Path("types") + ":" + folder_.Path("more")).c_str(), 1);
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(DisplayName("Own"), "First");
  EXPECT_EQ(TakeErrors(), Texts{Channel("more/Own.toml: the type 'Own' is defined already by 'types/Own.toml'")});
}

TEST_F(VelRmaShaderTypesTest, AFileThatIsNamedTwice_IsNoOther) {
  const std::string own = WriteType("Own", Sound("Own"));
  std::filesystem::create_directory_symlink(folder_.Path("types"), folder_.Path("link"));
  ::setenv("VEL_SHADER_TYPES_PATH",
           (folder_.Path("types") + ":" + folder_.Path("types") + "/:" + folder_.Path("link")).c_str(), 1);
  ASSERT_EQ(Start({.shaderTypes = {own, folder_.Path("link/Own.toml")}}), S_OK);
  EXPECT_EQ(OwnTypes(), Texts{"Own"});
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelRmaShaderTypesTest, OfFilesOfOneName_TheFirstSoundOneCounts) {
  std::filesystem::create_directory(folder_.Path("more"));
  WriteType("Own", "type = \"Own\"\n");
  folder_.Write("more/Own.toml", Sound("Own", "label = \"Second\"\n"));
  ::setenv("VEL_SHADER_TYPES_PATH", (folder_.Path("types") + ":" + folder_.Path("more")).c_str(), 1);
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(DisplayName("Own"), "Second");
  TakeErrors();
  WriteType("Own", Sound("Own", "label = \"First\"\n"));
  EXPECT_EQ(DisplayName("Own"), "First");
}

TEST_F(VelRmaShaderTypesTest, AFaultyFileOfTheOptions_EndsTheStart) {
  const std::string bad = folder_.Write("Bad.toml", "type = \"Bad\"\n");
  EXPECT_EQ(Start({.shaderTypes = {bad}}), E_FAIL);
  const Texts errors = TakeErrors();
  ASSERT_EQ(errors.size(), 3U);
  EXPECT_EQ(errors[2], "VelPlatformSession: The session does not start without its shader types 'Bad.toml'");
  End();
  EXPECT_EQ(Start({.shaderTypes = {folder_.Path("Gone.toml")}}), E_FAIL);
  EXPECT_EQ(TakeErrors(),
            (Texts{Channel("Gone.toml: no such file"),
                   "VelPlatformSession: The session does not start without its shader types 'Gone.toml'"}));
  End();
  WriteType("Own", Sound("Own"));
  EXPECT_EQ(Start({.shaderTypes = {folder_.Write("Own.toml", Sound("Own"))}}), E_FAIL);
  EXPECT_EQ(TakeErrors(),
            (Texts{Channel("Own.toml: the type 'Own' is defined already by 'types/Own.toml'"),
                   "VelPlatformSession: The session does not start without its shader types 'Own.toml'"}));
}

TEST_F(VelRmaShaderTypesTest, AShaderOfADocument_FindsWhatItsFileSaysBeforeAnybodyAsksForTypes) {
  WriteType("Own", Sound("Own", std::string("label = \"Own label\"\n") + tagged));
  ASSERT_EQ(Start(), S_OK);
  const VelIRshShader_var hShader = MakeWithoutManager("Own");
  EXPECT_EQ(HasTag(hShader, Tag::Diffuse), S_OK);
  EXPECT_EQ(LabelOf(hShader.Get()), "Own label");
  EXPECT_EQ(ScalarOf(hShader, "a"), 2.0F);
}

TEST_F(VelRmaShaderTypesTest, EveryFileThatIsRead_IsToldOnce) {
  WriteType("Own", Sound("Own", tagged));
  WriteType("Bad", "type = 1\n");
  ASSERT_EQ(Start(), S_OK);
  VelTraceService::SetSwitches("VelRmaConfiguredShaderFactory");
  VelTraceRecorder recorder;
  VelTraceService::AddSink(recorder);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(OwnTypes(), Texts{"Own"});
  VelTraceService::RemoveSink(recorder);
  Texts own;
  for (const std::string& line : recorder.Texts(VelTraceKind::Information)) {
    if (line.find("/types/") != std::string::npos) own.push_back(line);
  }
  EXPECT_EQ(own, Texts{"Shader type read { file = " + folder_.Path("types/Own.toml") + ", type = Own, version = 1 }"});
}

TEST_F(VelRmaShaderTypesTest, OnlyTheFileThatIsLookedInto_IsRead) {
  WriteType("Own", Sound("Own", tagged));
  WriteType("Bad", "type = 1\n");
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(Value("Own", "a.Tag"), "diffuse");
  EXPECT_EQ(TakeErrors(), Texts{});
  EXPECT_EQ(Value("Bad", "a.Tag"), "(none)");
  EXPECT_EQ(TakeErrors().size(), 3U);
}

TEST_F(VelRmaShaderTypesTest, WhatTheUserConfigures_OverridesTheFile) {
  WriteType("Own", Sound("Own", "label = { en = \"File\", de = \"Datei\" }\n" + std::string(tagged) +
                                    "label = { en = \"A\", de = \"Ah\" }\nslot = \"surface.normal\"\n"));
  const std::string configuration = folder_.Write("user.toml", "[Own]\na.Tag = \"specular\"\na.Label = \"User\"\n");
  ::setenv("VEL_CONFIGURATION_PATH", configuration.c_str(), 1);
  ASSERT_EQ(Start(), S_OK);
  ASSERT_EQ(VelMsgCatalog::LoadFile(folder_.Write("Own.de.toml", "Label = \"Nachricht\"\n")), S_OK);
  VelMsgCatalog::SetLanguage("de");
  const VelIRshShader_var hShader = Create("Own");
  EXPECT_EQ(HasTag(hShader, Tag::Diffuse), E_FAIL);
  EXPECT_EQ(HasTag(hShader, Tag::Specular), S_OK);
  EXPECT_EQ(Value("Own", "a.SlotIdentifier"), "surface.normal");
  EXPECT_EQ(LabelOf(Find(hShader, "a").Get()), "User");
  EXPECT_EQ(LabelOf(hShader.Get()), "Nachricht");
  EXPECT_EQ(DisplayName("Own"), "Nachricht");
  EXPECT_EQ(VelRbaConfiguration::SetValue("Own", "a.Tag", "emissive"), S_OK);
  EXPECT_EQ(HasTag(hShader, Tag::Emissive), S_OK);
}

TEST_F(VelRmaShaderTypesTest, TheEndOfTheSession_TakesEverythingAway) {
  WriteType("Own", Sound("Own", "label = \"Own label\"\n" + std::string(tagged)));
  const std::string option = folder_.Write("Option.toml", Sound("Option", tagged));
  ASSERT_EQ(Start({.shaderTypes = {option}}), S_OK);
  EXPECT_EQ(Value("Own", "a.Tag"), "diffuse");
  EXPECT_EQ(Value("Option", "a.Tag"), "diffuse");
  EXPECT_EQ(Message("Own", "Label"), "Own label");
  const std::uint64_t before = VelRbaConfiguration::Generation();
  End();
  EXPECT_EQ(Value("Own", "a.Tag"), "(none)");
  EXPECT_EQ(Message("Own", "Label"), "");
  EXPECT_EQ(VelRbaConfiguration::Generation(), before + 1);
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(Value("Own", "a.Tag"), "diffuse");
  EXPECT_EQ(Value("Option", "a.Tag"), "(none)");
  EXPECT_EQ(OwnTypes(), Texts{"Own"});
}

TEST_F(VelRmaShaderTypesTest, ARescan_PicksUpNewFilesAtTheEnd) {
  WriteType("B", Sound("B"));
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(OwnTypes(), Texts{"B"});
  EXPECT_EQ(Value("A", "a.Tag"), "(none)");
  WriteType("A", Sound("A", tagged));
  VelIRshShader_var hShader;
  EXPECT_EQ(Manager().CreateShader(hContainer_, "A", hShader.Receive(), 0), E_FAIL) << "not before a rescan";
  EXPECT_EQ(OwnTypes(), (Texts{"B", "A"}));
  EXPECT_EQ(ScalarOf(Create("A"), "a"), 2.0F);
  EXPECT_EQ(Value("A", "a.Tag"), "diffuse");
}

TEST_F(VelRmaShaderTypesTest, AFileThatIsEdited_CountsAfterTheNextRescan) {
  WriteType("Own", Sound("Own", "label = \"Before\"\n" + std::string(tagged)));
  ASSERT_EQ(Start(), S_OK);
  const VelIRshShader_var hShader = Create("Own");
  EXPECT_EQ(HasTag(hShader, Tag::Diffuse), S_OK);
  std::string text = Sound("Own", "label = \"After!\"\n" + std::string(tagged));
  text.replace(text.find("diffuse"), 7, "opacity");
  WriteType("Own", text);
  EXPECT_EQ(HasTag(hShader, Tag::Diffuse), S_OK);
  EXPECT_EQ(DisplayName("Own"), "After!");
  EXPECT_EQ(HasTag(hShader, Tag::Diffuse), E_FAIL);
  EXPECT_EQ(HasTag(hShader, Tag::Opacity), S_OK);
  EXPECT_EQ(TakeErrors(), Texts{});
}

TEST_F(VelRmaShaderTypesTest, AFileThatBecomesFaulty_StaysAsItWas) {
  WriteType("Own", Sound("Own", tagged));
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(OwnTypes(), Texts{"Own"});
  WriteType("Own", "type = \"Own\"\n");
  EXPECT_EQ(OwnTypes(), Texts{"Own"});
  EXPECT_EQ(TakeErrors().size(), 2U);
  EXPECT_EQ(OwnTypes(), Texts{"Own"});
  EXPECT_EQ(TakeErrors(), Texts{}) << "told once";
  EXPECT_EQ(ScalarOf(Create("Own"), "a"), 2.0F);
  EXPECT_EQ(Value("Own", "a.Tag"), "diffuse");
}

TEST_F(VelRmaShaderTypesTest, ATypeWhoseFileVanishes_GoesOnUntilTheEndOfTheSession) {
  WriteType("Own", Sound("Own", tagged));
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(OwnTypes(), Texts{"Own"});
  std::filesystem::remove(folder_.Path("types/Own.toml"));
  EXPECT_EQ(OwnTypes(), Texts{"Own"}) << "the manager forgets no type";
  EXPECT_EQ(ScalarOf(Create("Own"), "a"), 2.0F);
  EXPECT_EQ(Value("Own", "a.Tag"), "diffuse");
  End();
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(OwnTypes(), Texts{});
}

TEST_F(VelRmaShaderTypesTest, AnotherVersion_BringsTheNewParametersWithTheOldValues) {
  WriteType("Own", Sound("Own", tagged));
  ASSERT_EQ(Start(), S_OK);
  const VelIRshShader_var hShader = Create("Own");
  const float edited = 0.75F;
  EXPECT_EQ(Find(hShader, "a")->SetValue(&edited), S_OK);
  EXPECT_EQ(Manager().UpgradeShader(hShader.Get()), S_OK);
  std::string text =
      Sound("Own", "[[parameter]]\nname = \"b\"\ntype = \"VelRmaScalar\"\ndefault = 5\n" + std::string(tagged));
  text.replace(text.find("version = 1"), 11, "version = 2");
  WriteType("Own", text);
  EXPECT_EQ(OwnTypes(), Texts{"Own"});
  EXPECT_EQ(Manager().UpgradeShader(hShader.Get()), S_OK);
  EXPECT_EQ(ParametersOf(hShader), (Texts{"b: VelRmaScalar", "a: VelRmaScalar"}));
  EXPECT_EQ(ScalarOf(hShader, "a"), 0.75F);
  EXPECT_EQ(ScalarOf(hShader, "b"), 5.0F);
  std::uint32_t version = 0;
  EXPECT_EQ(hShader->GetVersion(version), S_OK);
  EXPECT_EQ(version, 2U);
}

TEST_F(VelRmaShaderTypesTest, UnknownTypes_AreFailuresThatTouchNothing) {
  ASSERT_EQ(Start(), S_OK);
  const VelIRmaShaderFactory_var hFactory(&Manager());
  ASSERT_TRUE(hFactory);
  VelString output("before");
  VelUnicodeString name("before");
  std::uint32_t number = 7;
  EXPECT_EQ(hFactory->GetOutputType("No such", output), E_FAIL);
  EXPECT_EQ(hFactory->GetDisplayName("No such", name), E_FAIL);
  EXPECT_EQ(hFactory->GetUsageFlags("No such", number), E_FAIL);
  EXPECT_EQ(hFactory->GetVersion("../types", number), E_FAIL);
  EXPECT_EQ(output, "before");
  EXPECT_EQ(name, VelUnicodeString("before"));
  EXPECT_EQ(number, 7U);
  EXPECT_EQ(hFactory->InitializeShader(MakeWithoutManager("No such").Get(), 0), E_FAIL);
}

TEST_F(VelRmaShaderTypesTest, ClearedConfigurations_StayClearedUntilARescanFindsAChange) {
  WriteType("Own", Sound("Own", tagged));
  ASSERT_EQ(Start(), S_OK);
  EXPECT_EQ(Value("Own", "a.Tag"), "diffuse");
  EXPECT_EQ(VelRbaConfiguration::RemoveConfiguration("Own"), S_OK);
  EXPECT_EQ(VelRbaConfiguration::RemoveConfiguration("Own"), S_FALSE);
  EXPECT_EQ(Value("Own", "a.Tag"), "(none)");
  VelRbaConfiguration::Clear();
  EXPECT_EQ(Value("CustomShader", "dpi.Tag"), "(none)");
  VelRbaConfiguration::ForgetSources();
  EXPECT_EQ(Value("Own", "a.Tag"), "diffuse");
  EXPECT_EQ(Value("CustomShader", "dpi.Tag"), "dpi");
}

using VelRmaShaderTypesDeathTest = VelRmaShaderTypesTest;

TEST_F(VelRmaShaderTypesDeathTest, TheReaderOfFiles_IsOpenedByTheFirstTypeThatIsLookedInto) {
  EXPECT_EXIT(
      {
        WriteType("Own", Sound("Own", tagged));
        EXPECT_EQ(Start(), S_OK);
        EXPECT_EQ(Value("Nobody", "a.Tag"), "(none)");
        EXPECT_EQ(VelModuleRegistration::Find("VelPlatformFiles"), nullptr) << "no type was looked into";
        EXPECT_EQ(Value("Own", "a.Tag"), "diffuse");
        EXPECT_NE(VelModuleRegistration::Find("VelPlatformFiles"), nullptr);
        End();
        std::exit(HasFailure() ? 1 : 0);
      },
      ::testing::ExitedWithCode(0), "");
}

}  // namespace
