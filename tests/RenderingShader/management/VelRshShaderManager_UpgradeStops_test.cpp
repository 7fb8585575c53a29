// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_UpgradeStops_test.cpp Upgrades that end before all is carried over.
#include <algorithm>

#include "tests/RenderingShader/management/fixtures/UpgradeTest.h"

namespace {

using VelRshShaderManagerUpgradeStopsTest = UpgradeTest;

TEST_F(VelRshShaderManagerUpgradeStopsTest, AValueThatNobodySet_StopsBeforeTheConnections) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  EXPECT_EQ(AddScalar(hShader_, "first", 1.0F)->SetConnection(hNode.Get()), S_OK);
  static_cast<void>(Add(hShader_, "dropped and never set", "VelRmaScalar"));
  AddScalar(hShader_, "second", 2.0F);
  static_cast<void>(Add(hShader_, "never set", "VelRmaScalar"));
  AddScalar(hShader_, "third", 3.0F);
  today_ = [](const VelIRshShader_var& iShader) {
    for (const char* name : {"third", "never set", "second", "first"}) AddScalar(iShader, name, 10.0F);
  };
  EXPECT_EQ(Upgrade(), E_FAIL);
  EXPECT_EQ(Scalars(), (std::vector<float>{10.0F, 10.0F, 2.0F, 1.0F}));
  EXPECT_FALSE(ConnectionOf(Find(hShader_, "first")));
  EXPECT_EQ(Version(), 2U);
  EXPECT_EQ(hContainer_->CountFeatures(), 6) << "the copy of before is gone all the same";
}

TEST_F(VelRshShaderManagerUpgradeStopsTest, AValueThatCannotBeReadOrWritten_StopsWithItsCode) {
  const struct {
    HRESULT name;
    HRESULT get;
    HRESULT set;
    HRESULT expected;
    Texts notes;
  } cases[] = {
      {S_OK, S_OK, S_OK, S_OK, {"get odd", "set odd", "get z", "set z"}},
      {S_OK, S_FALSE, S_FALSE, S_OK, {"get odd", "set odd", "get z", "set z"}},
      {S_OK, E_INVALIDARG, S_OK, E_INVALIDARG, {"get odd"}},
      {S_OK, S_OK, E_NOINTERFACE, E_NOINTERFACE, {"get odd", "set odd"}},
      {E_FAIL, S_OK, S_OK, E_UNEXPECTED, {}},
  };
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  today_ = [](const VelIRshShader_var& iShader) {
    for (const char* name : {"odd", "z"}) static_cast<void>(Add(iShader, name, "VelRmaScalar"));
  };
  today_(hShader_);
  for (const auto& row : cases) {
    EXPECT_EQ(hShader_->SetVersion(1), S_OK);
    odd_->notes.clear();
    odd_->parameters["odd"] = {};
    odd_->parameters["odd"].nameCode = row.name;
    odd_->parameters["odd"].getCode = row.get;
    odd_->parameters["odd"].setCode = row.set;
    EXPECT_EQ(Upgrade(), row.expected);
    EXPECT_EQ(odd_->notes, row.notes);
  }
}

TEST_F(VelRshShaderManagerUpgradeStopsTest, AParameterWithoutAName_StopsAfterTheValuesBeforeIt) {
  AddScalar(hShader_, "a", 1.0F);
  const VelISpecObject_var hNameless = Make("VelRmaScalar");
  EXPECT_EQ(hShader_->AppendParameter(VelIRshParameter_var(hNameless).Get()), S_OK);
  AddScalar(hShader_, "b", 2.0F);
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  EXPECT_EQ(Find(hShader_, "a")->SetConnection(hNode.Get()), S_OK);
  today_ = [](const VelIRshShader_var& iShader) {
    for (const char* name : {"b", "a"}) AddScalar(iShader, name, 10.0F);
  };
  EXPECT_EQ(Upgrade(), E_UNEXPECTED);
  EXPECT_EQ(Scalars(), (std::vector<float>{10.0F, 1.0F}));
  EXPECT_FALSE(ConnectionOf(Find(hShader_, "a")));
}

TEST_F(VelRshShaderManagerUpgradeStopsTest, AFactoryThatFails_LeavesTheCopyOfBeforeInTheContainer) {
  AddScalar(hShader_, "a", 1.0F);
  today_ = [](const VelIRshShader_var& iShader) { AddScalar(iShader, "a", 10.0F); };
  initializeCode_ = E_NOINTERFACE;
  EXPECT_EQ(Upgrade(), E_NOINTERFACE);
  EXPECT_EQ(Scalars(), std::vector<float>{10.0F}) << "the default stays";
  VelListPtrVelBaseUnknown list;
  EXPECT_EQ(hContainer_->ListFeatures("VelRmaShader", list), S_OK);
  std::vector<VelIRshShader_var> shaders;
  for (VelBaseUnknown* element : list) shaders.emplace_back(VelBaseUnknown_var::Adopt(element));
  ASSERT_EQ(shaders.size(), 2U);
  const auto before = std::find_if(shaders.begin(), shaders.end(), [&](const VelIRshShader_var& iShader) {
    return !IsSameObject(iShader.Get(), hShader_.Get());
  });
  EXPECT_EQ(NameOf(before->Get()), "");
  EXPECT_EQ(ScalarOf(Find(*before, "a")), 1.0F);
  VelISpecObject_var hFather;
  EXPECT_EQ(VelISpecObject_var(*before)->GetFather(hFather.Receive()), E_FAIL);
}

TEST_F(VelRshShaderManagerUpgradeStopsTest, ACopyThatIsNoShader_IsRemovedWithAFailure) {
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  odd_->shader.type.value = "mine";
  ASSERT_EQ(VelICatalogManager_var(hContainer_)->LoadCatalog(VEL_TEST_MANAGEMENT_CATALOG), S_OK);
  VelBaseUnknown_var hStartUp;
  ASSERT_EQ(FindStartUp("VelISpecObject", "", "VelTestOddShader", *hContainer_, hStartUp.Receive()), S_OK);
  VelBaseUnknown_var hOdd;
  ASSERT_EQ(
      VelISpecObject_var(hStartUp)->Instanciate("", hContainer_.Get(), VelIRshShader::InterfaceId(), hOdd.Receive()),
      S_OK);
  const int features = hContainer_->CountFeatures();
  int featuresInside = 0;
  First().onInitialize = [&](VelIRshShader&, unsigned char) {
    featuresInside = hContainer_->CountFeatures();
    odd_->shader.declines = true;
    return S_OK;
  };
  EXPECT_EQ(Manager().UpgradeShader(VelIRshShader_var(hOdd).Get()), E_FAIL);
  EXPECT_EQ(featuresInside, features + 1);
  EXPECT_EQ(hContainer_->CountFeatures(), features);
}

TEST_F(VelRshShaderManagerUpgradeStopsTest, AShaderOfWhichNoCopyCanBeMade_IsAFailure) {
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  odd_->shader.type.value = "mine";
  const VelIRshShader_var hOdd = VelTestOddities::CreateObject();
  EXPECT_EQ(Manager().UpgradeShader(hOdd.Get()), E_FAIL);
  EXPECT_EQ(First().calls, (Texts{"ListShaderTypes", "GetVersion mine"})) << "nothing is initialized";
}

}  // namespace
