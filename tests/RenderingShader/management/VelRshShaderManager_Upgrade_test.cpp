// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Upgrade_test.cpp When a shader is upgraded, and when not.
#include <cinttypes>
#include <cstdio>

#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"

namespace {

using VelRshShaderManagerUpgradeTest = UpgradeTest;

TEST_F(VelRshShaderManagerUpgradeTest, NoShader_IsAFailure) {
  EXPECT_EQ(Manager().UpgradeShader(nullptr), E_FAIL);
  EXPECT_EQ(First().calls, Texts{});
}

TEST_F(VelRshShaderManagerUpgradeTest, EachCall_TellsTheShader) {
  EXPECT_EQ(Upgrade(), S_OK);
  StartTraces();
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Manager().UpgradeShader(nullptr), E_FAIL);
  char address[32];
  std::snprintf(address, sizeof(address), "%" PRIxPTR, reinterpret_cast<std::uintptr_t>(hShader_.Get()));
  EXPECT_EQ(Told(), (Texts{"4 (VelRshShaderManager::UpgradeShader) iShader=" + std::string(address) + "\n",
                           "4 (VelRshShaderManager::UpgradeShader) iShader=0\n"}));
}

TEST_F(VelRshShaderManagerUpgradeTest, TheTypes_AreLoadedWhereTheyAreNotYet) {
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(First().calls, (Texts{"ListShaderTypes", "GetVersion mine", "InitializeShader 0"}));
}

TEST_F(VelRshShaderManagerUpgradeTest, EqualVersions_LeaveTheShaderAsItIs) {
  const VelIRshParameter_var hScalar = AddScalar(hShader_, "a", 1.0F);
  EXPECT_EQ(hShader_->SetVersion(2), S_OK);
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_TRUE(IsSameObject(ParametersOf(hShader_)[0].Get(), hScalar.Get()));
  EXPECT_EQ(ScalarOf(hScalar), 1.0F);
  EXPECT_EQ(First().calls, (Texts{"ListShaderTypes", "GetVersion mine"}));
  EXPECT_EQ(hContainer_->CountFeatures(), 2);
}

TEST_F(VelRshShaderManagerUpgradeTest, AnOlderVersion_IsAsGoodAsANewerOneAndZeroIsOne) {
  for (const std::uint32_t version : {0U, 7U, 0xFFFFFFFFU}) {
    AddScalar(hShader_, "old", 1.0F);
    First().types[0].version.value = version;
    EXPECT_EQ(Upgrade(), S_OK);
    EXPECT_EQ(Version(), version);
    EXPECT_EQ(ParameterNames(hShader_), Texts{});
  }
}

TEST_F(VelRshShaderManagerUpgradeTest, UpgradedTwice_TheSecondChangesNothing) {
  AddScalar(hShader_, "a", 1.0F);
  today_ = [](const VelIRshShader_var& iShader) { AddScalar(iShader, "a", 10.0F); };
  EXPECT_EQ(Upgrade(), S_OK);
  const VelIRshParameter_var hScalar = ParametersOf(hShader_)[0];
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_TRUE(IsSameObject(ParametersOf(hShader_)[0].Get(), hScalar.Get()));
  EXPECT_EQ(ScalarOf(hScalar), 1.0F);
}

TEST_F(VelRshShaderManagerUpgradeTest, AnUnknownType_IsAFailure) {
  AddScalar(hShader_, "a", 1.0F);
  First().types[0].name = "another";
  EXPECT_EQ(Upgrade(), E_FAIL);
  EXPECT_EQ(First().calls, Texts{"ListShaderTypes"});
  EXPECT_EQ(ParameterNames(hShader_), Texts{"a"});
}

TEST_F(VelRshShaderManagerUpgradeTest, ATypeOrVersionThatCannotBeRead_IsAnsweredWithItsCode) {
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  const VelIRshShader_var hOdd = VelTestOddities::CreateObject();
  odd_->shader.type = {"mine", E_NOINTERFACE};
  EXPECT_EQ(Manager().UpgradeShader(hOdd.Get()), E_NOINTERFACE);
  EXPECT_EQ(First().calls, Texts{}) << "the types were not needed";
  odd_->shader.type = {"mine", S_OK};
  odd_->shader.version.code = E_INVALIDARG;
  EXPECT_EQ(Manager().UpgradeShader(hOdd.Get()), E_INVALIDARG);
  EXPECT_EQ(First().calls, Texts{"ListShaderTypes"});
}

TEST_F(VelRshShaderManagerUpgradeTest, AFactoryThatDoesNotKnowItsVersion_IsAnsweredWithItsCode) {
  AddScalar(hShader_, "a", 1.0F);
  First().types[0].version.code = E_NOINTERFACE;
  EXPECT_EQ(Upgrade(), E_NOINTERFACE);
  EXPECT_EQ(ParameterNames(hShader_), Texts{"a"});
  EXPECT_EQ(Version(), 1U);
}

TEST_F(VelRshShaderManagerUpgradeTest, ACopy_CarriesNoVersionAndCannotBeUpgraded) {
  VelIRshShader_var hCopy;
  EXPECT_EQ(Manager().CreateShaderCopy(hContainer_, hShader_.Get(), hCopy.Receive()), S_OK);
  EXPECT_EQ(Manager().UpgradeShader(hCopy.Get()), E_FAIL);
}

}  // namespace
