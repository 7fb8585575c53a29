// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Create_test.cpp Creates shaders of known types, which their factory fills.
#include "tests/RenderingShader/management/fixtures/ManagementTest.h"

namespace {

class VelRshShaderManagerCreateTest : public ManagementTest {
 protected:
  HRESULT Create(const char* iType, unsigned char iOption = 0) {
    return Manager().CreateShader(hContainer_, iType, hShader_.Receive(), iOption);
  }

  void TearDown() override {
    hShader_ = nullptr;
    ManagementTest::TearDown();
  }

  VelIRshShader_var hShader_;
};

TEST_F(VelRshShaderManagerCreateTest, AKnownType_IsCreatedAndFilledByItsFactoryWithTheOption) {
  First().Add("mine");
  Second().Add("mine");
  std::string typeInside;
  int parametersInside = -1;
  First().onInitialize = [&](VelIRshShader& ioShader, unsigned char iOption) {
    typeInside = TypeOfShader(&ioShader);
    parametersInside = static_cast<int>(ParameterNames(VelIRshShader_var(&ioShader)).size());
    AddScalar(VelIRshShader_var(&ioShader), "gain", iOption);
    return ioShader.SetVersion(3);
  };
  EXPECT_EQ(Create("mine", 200), S_OK);
  EXPECT_EQ(typeInside, "mine");
  EXPECT_EQ(parametersInside, 0);
  EXPECT_EQ(First().calls, (Texts{"ListShaderTypes", "InitializeShader 200"}));
  EXPECT_EQ(Second().calls, Texts{"ListShaderTypes"});
  EXPECT_EQ(ScalarOf(Find(hShader_, "gain")), 200.0F);
  std::uint32_t version = 0;
  EXPECT_EQ(hShader_->GetVersion(version), S_OK);
  EXPECT_EQ(version, 3U);
  EXPECT_EQ(hContainer_->CountFeatures(), 2);
}

TEST_F(VelRshShaderManagerCreateTest, TheManager_WritesNoVersionUsageOrOutputType) {
  First().Add("mine").version.value = 9;
  EXPECT_EQ(Create("mine"), S_OK);
  std::uint32_t number = 0;
  VelString output;
  EXPECT_EQ(hShader_->GetVersion(number), E_FAIL);
  EXPECT_EQ(hShader_->GetUsage(number), E_FAIL);
  EXPECT_EQ(hShader_->GetOutputType(output), E_FAIL);
}

TEST_F(VelRshShaderManagerCreateTest, AFactoryThatFails_IsNotLookedAt) {
  First().Add("mine");
  First().onInitialize = [&](VelIRshShader& ioShader, unsigned char) {
    AddScalar(VelIRshShader_var(&ioShader), "only", 1.0F);
    return E_UNEXPECTED;
  };
  EXPECT_EQ(Create("mine"), S_OK);
  EXPECT_EQ(ParameterNames(hShader_), Texts{"only"});
}

TEST_F(VelRshShaderManagerCreateTest, AnUnknownType_IsAFailureWithoutAShader) {
  First().Add("mine");
  hShader_ = MakeShader();
  for (const char* type : {"Mine", "min", "", "VelRmaShader"}) {
    VelIRshShader* shader = hShader_.Get();
    EXPECT_EQ(Manager().CreateShader(hContainer_, type, &shader, 0), E_FAIL) << type;
    EXPECT_EQ(shader, nullptr) << type;
  }
  EXPECT_EQ(hContainer_->CountFeatures(), 1);
  EXPECT_EQ(First().calls, Texts{"ListShaderTypes"});
}

TEST_F(VelRshShaderManagerCreateTest, MissingArguments_AreFailures) {
  First().Add("mine");
  EXPECT_EQ(Manager().CreateShader(hContainer_, "mine", nullptr, 0), E_FAIL);
  EXPECT_EQ(hContainer_->CountFeatures(), 0);
  hShader_ = MakeShader();
  VelIRshShader* shader = hShader_.Get();
  EXPECT_EQ(Manager().CreateShader(VelIContainer_var(), "mine", &shader, 0), E_FAIL);
  EXPECT_EQ(shader, nullptr);
  EXPECT_EQ(First().calls, Texts{}) << "the types were not needed";
}

TEST_F(VelRshShaderManagerCreateTest, AContainerThatCannotMakeAShader_IsAFailure) {
  First().Add("mine");
  const VelIContainer_var hOther = MakeBarrenContainer();
  EXPECT_EQ(Manager().CreateShader(hOther, "mine", hShader_.Receive(), 0), E_FAIL);
  EXPECT_FALSE(hShader_);
  EXPECT_EQ(First().calls, Texts{"ListShaderTypes"}) << "nothing is initialized";
}

TEST_F(VelRshShaderManagerCreateTest, EachCall_TellsTheTypeAlsoWhereItFails) {
  First().Add("mine");
  EXPECT_EQ(Create("mine"), S_OK);
  StartTraces();
  EXPECT_EQ(Create("mine"), S_OK);
  EXPECT_EQ(Create("none"), E_FAIL);
  EXPECT_EQ(Manager().CreateShader(VelIContainer_var(), "", nullptr, 0), E_FAIL);
  EXPECT_EQ(Told(), (Texts{"4 (VelRshShaderManager::CreateShader) iType='mine'\n",
                           "4 (VelRshShaderManager::CreateShader) iType='none'\n",
                           "4 (VelRshShaderManager::CreateShader) iType=''\n"}));
}

TEST_F(VelRshShaderManagerCreateTest, TheTypes_AreLoadedOnceAndNotAgain) {
  First().Add("mine");
  StartTraces();
  EXPECT_EQ(Create("mine"), S_OK);
  EXPECT_EQ(Create("mine"), S_OK);
  EXPECT_EQ(First().calls, (Texts{"ListShaderTypes", "InitializeShader 0", "InitializeShader 0"}));
  First().Add("new");
  EXPECT_EQ(Create("new"), E_FAIL) << "until a list of usage 1";
  static_cast<void>(List(1));
  EXPECT_EQ(Create("new"), S_OK);
}

TEST_F(VelRshShaderManagerCreateTest, TheShader_IsHandedOutWithOneReference) {
  First().Add("mine");
  VelIRshShader* shader = nullptr;
  ASSERT_EQ(Manager().CreateShader(hContainer_, "mine", &shader, 0), S_OK);
  EXPECT_EQ(shader->AddRef(), 2U);
  EXPECT_EQ(shader->Release(), 1U);
  shader->Release();
}

}  // namespace
