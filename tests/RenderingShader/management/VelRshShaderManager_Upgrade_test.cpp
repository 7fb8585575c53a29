// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Upgrade_test.cpp Gives a shader the parameters of its type's version of today, with the
/// values and connections of before.
#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <functional>

#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/RenderingShader/fixtures/FakeDocument.h"
#include "tests/RenderingShader/management/fixtures/ManagementTest.h"
#include "tests/RenderingShader/management/fixtures/VelTestOddities.h"

namespace {

class VelRshShaderManagerUpgradeTest : public ManagementTest {
 protected:
  void SetUp() override {
    ManagementTest::SetUp();
    First().Add("mine").version.value = 2;
    First().onInitialize = [this](VelIRshShader& ioShader, unsigned char iOption) {
      EXPECT_EQ(iOption, 0);
      const VelIRshShader_var hShader(&ioShader);
      EXPECT_EQ(ParameterNames(hShader), Texts{}) << "what was there is gone";
      EXPECT_EQ(ioShader.SetVersion(First().types[0].version.value), S_OK);
      if (today_) today_(hShader);
      return initializeCode_;
    };
    hShader_ = MakeShader("mine");
    EXPECT_EQ(hShader_->SetVersion(1), S_OK);
  }
  void TearDown() override {
    hShader_ = nullptr;
    CloseContainer();
    odd_.reset();
    ManagementTest::TearDown();
  }

  HRESULT Upgrade() { return Manager().UpgradeShader(hShader_.Get()); }

  std::uint32_t Version() {
    std::uint32_t version = 0;
    EXPECT_EQ(hShader_->GetVersion(version), S_OK);
    return version;
  }

  /// @return the values of the scalars of the shader, in order
  std::vector<float> Scalars() {
    std::vector<float> values;
    for (const VelIRshParameter_var& hParameter : ParametersOf(hShader_)) values.push_back(ScalarOf(hParameter));
    return values;
  }

  static VelUnicodeString TextOf(const VelIRshParameter_var& iParameter) {
    VelUnicodeString text;
    EXPECT_EQ(iParameter->GetValue(&text), S_OK);
    return text;
  }

  static int CountSubscribers(const VelIRshShader_var& iShader) {
    VelListPtrVelBaseUnknown list;
    ManagerOf(iShader).ListSubscribers(VelRshShaderPublisherEvents::PARAMETER_VALUE_UPDATED(), list);
    for (VelBaseUnknown* subscriber : list) subscriber->Release();
    return list.Size();
  }

  std::function<void(const VelIRshShader_var&)> today_;  ///< Adds the parameters of today's version.
  HRESULT initializeCode_ = S_OK;
  VelIRshShader_var hShader_;
  std::optional<VelTestOddities> odd_;
};

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

TEST_F(VelRshShaderManagerUpgradeTest, ParametersAreThoseOfToday_WithTheValuesOfBeforeByNameAndStartUp) {
  AddScalar(hShader_, "kept", 1.0F);
  AddScalar(hShader_, "dropped", 2.0F);
  AddScalar(hShader_, "retyped", 3.0F);
  AddScalar(hShader_, "moved", 4.0F);
  today_ = [](const VelIRshShader_var& iShader) {
    AddScalar(iShader, "added", 10.0F);
    AddScalar(iShader, "moved", 40.0F);
    const std::int32_t number = 30;
    EXPECT_EQ(Add(iShader, "retyped", "VelRmaInteger")->SetValue(&number), S_OK);
    AddScalar(iShader, "kept", 10.0F);
  };
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(ParameterNames(hShader_), (Texts{"added", "moved", "retyped", "kept"}));
  EXPECT_EQ(Scalars(), (std::vector<float>{10.0F, 4.0F, -1.0F, 1.0F}));
  std::int32_t number = 0;
  EXPECT_EQ(Find(hShader_, "retyped")->GetValue(&number), S_OK);
  EXPECT_EQ(number, 30);
  EXPECT_EQ(hContainer_->CountFeatures(), 5) << "the copy of before is gone";
}

TEST_F(VelRshShaderManagerUpgradeTest, ParametersOfOneName_TakeTheirValuesInOrder) {
  for (const float value : {1.0F, 2.0F, 3.0F}) AddScalar(hShader_, "a", value);
  today_ = [](const VelIRshShader_var& iShader) {
    AddText(iShader, "a", "no scalar");
    for (const float value : {10.0F, 20.0F}) AddScalar(iShader, "a", value);
  };
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Scalars(), (std::vector<float>{-1.0F, 1.0F, 2.0F}));
  today_ = [](const VelIRshShader_var& iShader) {
    for (const float value : {10.0F, 20.0F, 30.0F}) AddScalar(iShader, "a", value);
  };
  EXPECT_EQ(hShader_->SetVersion(1), S_OK);
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Scalars(), (std::vector<float>{1.0F, 2.0F, 30.0F})) << "the third has its default";
}

TEST_F(VelRshShaderManagerUpgradeTest, TextsAndMatrices_TakeTheDefaultOfTodayAndPlainValuesDoNot) {
  float matrix[16]{1.0F};
  const bool boolean = false;
  const float color[] = {0.1F, 0.2F, 0.3F, 0.4F};
  const float vector[] = {1.0F, 2.0F, 3.0F};
  AddText(hShader_, "text", "before");
  EXPECT_EQ(Add(hShader_, "matrix", "VelRmaMatrix")->SetValue(matrix), S_OK);
  EXPECT_EQ(Add(hShader_, "boolean", "VelRmaBoolean")->SetValue(&boolean), S_OK);
  EXPECT_EQ(Add(hShader_, "color", "VelRmaColor")->SetValue(color), S_OK);
  EXPECT_EQ(Add(hShader_, "vector", "VelRmaVector")->SetValue(vector), S_OK);
  today_ = [](const VelIRshShader_var& iShader) {
    const bool other = true;
    const float others[16]{9.0F};
    EXPECT_EQ(Add(iShader, "vector", "VelRmaVector")->SetValue(VelRshValueSource(others, 3)), S_OK);
    EXPECT_EQ(Add(iShader, "color", "VelRmaColor")->SetValue(VelRshValueSource(others, 4)), S_OK);
    EXPECT_EQ(Add(iShader, "boolean", "VelRmaBoolean")->SetValue(&other), S_OK);
    EXPECT_EQ(Add(iShader, "matrix", "VelRmaMatrix")->SetValue(others), S_OK);
    AddText(iShader, "text", "today");
  };
  EXPECT_EQ(Upgrade(), S_OK);
  bool booleanRead = true;
  float read[16]{};
  EXPECT_EQ(TextOf(Find(hShader_, "text")), VelUnicodeString("today"));
  EXPECT_EQ(Find(hShader_, "matrix")->GetValue(read), S_OK);
  EXPECT_EQ(read[0], 9.0F);
  EXPECT_EQ(Find(hShader_, "boolean")->GetValue(&booleanRead), S_OK);
  EXPECT_FALSE(booleanRead);
  EXPECT_EQ(Find(hShader_, "color")->GetValue(read), S_OK);
  EXPECT_TRUE(std::equal(color, color + 4, read));
  EXPECT_EQ(Find(hShader_, "vector")->GetValue(read), S_OK);
  EXPECT_TRUE(std::equal(vector, vector + 3, read));
}

TEST_F(VelRshShaderManagerUpgradeTest, Documents_AreKeptAndWithoutOneTheDefaultStays) {
  const FakeDocumentBindings bindings;
  const VelIPLMDmtDocument_var hBefore = FakeDocument::Create("before");
  const VelIPLMDmtDocument_var hToday = FakeDocument::Create("today");
  for (const char* startUp : {"VelRmaTexture", "VelRmaLightProfile"}) {
    EXPECT_EQ(Add(hShader_, startUp, startUp)->SetValue(hBefore.Get()), S_OK);
    static_cast<void>(Add(hShader_, "none", startUp));
  }
  today_ = [&](const VelIRshShader_var& iShader) {
    for (const char* startUp : {"VelRmaTexture", "VelRmaLightProfile"}) {
      for (const char* name : {"none", startUp}) {
        EXPECT_EQ(Add(iShader, name, startUp)->SetValue(hToday.Get()), S_OK);
      }
    }
  };
  EXPECT_EQ(Upgrade(), S_OK);
  for (const VelIRshParameter_var& hParameter : ParametersOf(hShader_)) {
    const bool hadNone = NameOfParameter(hParameter.Get()) == "none";
    VelBaseUnknown_var hDocument;
    EXPECT_EQ(hParameter->GetValue(hDocument.Receive()), S_OK);
    EXPECT_TRUE(IsSameObject(hDocument.Get(), hadNone ? hToday.Get() : hBefore.Get()));
  }
  hShader_ = nullptr;
  CloseContainer();
}

TEST_F(VelRshShaderManagerUpgradeTest, Connections_ComeBackToTheVerySameShadersAndNodesStay) {
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  const VelIRshShader_var hElsewhere = MakeShader("elsewhere");
  const VelIRshShader_var hLost = AddNode(hShader_, "lost");
  EXPECT_EQ(Add(hShader_, "void", "VelRmaVoid")->SetConnection(hNode.Get()), S_OK);
  EXPECT_EQ(AddText(hShader_, "text", "before")->SetConnection(hElsewhere.Get()), S_OK);
  EXPECT_EQ(AddScalar(hShader_, "scalar", 1.0F)->SetConnection(hNode.Get()), S_OK);
  EXPECT_EQ(AddScalar(hShader_, "retyped", 1.0F)->SetConnection(hLost.Get()), S_OK);
  const int features = hContainer_->CountFeatures();
  const int heardBy = CountSubscribers(hNode);
  today_ = [](const VelIRshShader_var& iShader) {
    AddText(iShader, "retyped", "today");
    AddScalar(iShader, "scalar", 2.0F);
    AddText(iShader, "text", "today");
    static_cast<void>(Add(iShader, "void", "VelRmaVoid"));
  };
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "void")).Get(), hNode.Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "text")).Get(), hElsewhere.Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "scalar")).Get(), hNode.Get()));
  EXPECT_FALSE(ConnectionOf(Find(hShader_, "retyped")));
  const std::vector<VelIRshShader_var> nodes = NodesOf(hShader_);
  ASSERT_EQ(nodes.size(), 2U);
  EXPECT_TRUE(IsSameObject(nodes[0].Get(), hNode.Get()));
  EXPECT_TRUE(IsSameObject(nodes[1].Get(), hLost.Get()));
  EXPECT_EQ(hContainer_->CountFeatures(), features);
  EXPECT_EQ(CountSubscribers(hNode), heardBy) << "nothing of the copy of before hears any more";
}

TEST_F(VelRshShaderManagerUpgradeTest, AConnectionThatTodaysVersionMakes_GivesWayToTheOneOfBefore) {
  const VelIRshShader_var hBefore = AddNode(hShader_, "before");
  const VelIRshShader_var hToday = AddNode(hShader_, "today");
  for (const char* name : {"connected", "free"}) static_cast<void>(Add(hShader_, name, "VelRmaVoid"));
  EXPECT_EQ(Find(hShader_, "connected")->SetConnection(hBefore.Get()), S_OK);
  today_ = [&](const VelIRshShader_var& iShader) {
    for (const char* name : {"connected", "free"}) {
      EXPECT_EQ(Add(iShader, name, "VelRmaVoid")->SetConnection(hToday.Get()), S_OK);
    }
  };
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "connected")).Get(), hBefore.Get()));
  EXPECT_TRUE(IsSameObject(ConnectionOf(Find(hShader_, "free")).Get(), hToday.Get())) << "what had none keeps it";
}

TEST_F(VelRshShaderManagerUpgradeTest, ConnectedShaders_TakeOverTheValuesOfBeforeNotTheDefaults) {
  EXPECT_TRUE(SUCCEEDED(VelRbaConfiguration::SetValue("Default", "scale.Tag", "scale_u")));
  const VelIRshShader_var hNode = AddNode(hShader_, "node");
  const VelIRshParameter_var hNodeScale = AddScalar(hNode, "scale", 8.0F);
  EXPECT_EQ(AddScalar(hShader_, "connected", 1.0F)->SetConnection(hNode.Get()), S_OK);
  AddScalar(hShader_, "scale", 2.0F);
  const float own = 5.0F;
  EXPECT_EQ(hNodeScale->SetValue(&own), S_OK) << "it had followed the shader";
  today_ = [](const VelIRshShader_var& iShader) {
    AddScalar(iShader, "connected", 1.0F);
    AddScalar(iShader, "scale", 100.0F);
  };
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(ScalarOf(Find(hShader_, "scale")), 2.0F);
  EXPECT_EQ(ScalarOf(hNodeScale), 2.0F) << "the connection has the node follow again";
}

TEST_F(VelRshShaderManagerUpgradeTest, AValueThatNobodySet_StopsBeforeTheConnections) {
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

TEST_F(VelRshShaderManagerUpgradeTest, AValueThatCannotBeReadOrWritten_StopsWithItsCode) {
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

TEST_F(VelRshShaderManagerUpgradeTest, AParameterWithoutAName_StopsAfterTheValuesBeforeIt) {
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

TEST_F(VelRshShaderManagerUpgradeTest, AFactoryThatFails_LeavesTheCopyOfBeforeInTheContainer) {
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

TEST_F(VelRshShaderManagerUpgradeTest, ACopyThatIsNoShader_IsRemovedWithAFailure) {
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

TEST_F(VelRshShaderManagerUpgradeTest, AShaderOfWhichNoCopyCanBeMade_IsAFailure) {
  odd_.emplace(VEL_TEST_LIBRARY_FOLDER);
  odd_->shader.type.value = "mine";
  const VelIRshShader_var hOdd = VelTestOddities::CreateObject();
  EXPECT_EQ(Manager().UpgradeShader(hOdd.Get()), E_FAIL);
  EXPECT_EQ(First().calls, (Texts{"ListShaderTypes", "GetVersion mine"})) << "nothing is initialized";
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

}  // namespace
