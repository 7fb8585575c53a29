// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature_Delegate_test.cpp The delegate of a shader: when it is made, of which late type, whom it
/// is told, and when it goes.
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/RenderingShader/model/ShaderFeatureTest.h"
#include "tests/RenderingShader/model/fixtures/VelTestDelegation.h"
#include "tests/RenderingShader/model/fixtures/VelTestShaderDelegate.h"

namespace {

class VelRshShaderFeatureDelegateTest : public ShaderFeatureTest {
 protected:
  void SetUp() override {
    ShaderFeatureTest::SetUp();
    delegates_.emplace();
  }
  void TearDown() override {
    CloseContainer();
    delegates_.reset();
    ShaderFeatureTest::TearDown();
  }

  /// @return a shader without a delegate, with a type as after a document was loaded; null for none
  VelIRshShader_var MakeLoaded(const char* iType) {
    const VelISpecObject_var hFeature = Make("VelRmaShader");
    if (iType != nullptr) {
      EXPECT_EQ(Access(hFeature)->SetText(type_, iType), S_OK);
    }
    return VelIRshShader_var(hFeature);
  }

  std::optional<VelTestShaderDelegateBindings> delegates_;
};

struct NameCase {
  const char* type;
  const char* bySetType;
  const char* byAnyOther;
};

constexpr NameCase nameCases[] = {
    {"BasicMaterial", "BasicMaterial_ext", "BasicMaterial_ext"},
    {"substance_wood", "substance_ext", "substance_wood_ext"},
    {"substance_", "substance_ext", "substance__ext"},
    {"substance", "substance_ext", "substance_ext"},
    {"Substance_wood", "Substance_wood_ext", "Substance_wood_ext"},
    {"my_substance_wood", "my_substance_wood_ext", "my_substance_wood_ext"},
    {"substance-wood", "substance-wood_ext", "substance-wood_ext"},
    {"", "_ext", "_ext"},
};

TEST_F(VelRshShaderFeatureDelegateTest, SetType_MakesTheDelegate_OneForAllTypesOfTheSubstanceEngine) {
  for (const NameCase& row : nameCases) {
    const VelIRshShader_var hShader = MakeLoaded(nullptr);
    EXPECT_EQ(DelegateTypeOf(hShader.Get()), "none");
    EXPECT_EQ(hShader->SetType(row.type), S_OK) << row.type;
    EXPECT_EQ(DelegateTypeOf(hShader.Get()), row.bySetType) << row.type;
    EXPECT_EQ(TypeOfShader(hShader.Get()), row.type);
    EXPECT_EQ(DelegateTypeOf(hShader.Get()), row.bySetType) << row.type << ", asked for its type";
  }
}

TEST_F(VelRshShaderFeatureDelegateTest, AnyOtherOperation_MakesTheDelegateOfTheWholeTypeName) {
  for (const NameCase& row : nameCases) {
    const VelIRshShader_var hShader = MakeLoaded(row.type);
    EXPECT_EQ(TypeOfShader(hShader.Get()), row.type);
    EXPECT_EQ(DelegateTypeOf(hShader.Get()), row.byAnyOther) << row.type;
  }
}

TEST_F(VelRshShaderFeatureDelegateTest, AnyOtherOperation_OfAShaderWithoutAType_MakesTheDelegateOfTheStartUp) {
  const VelIRshShader_var hShader = MakeLoaded(nullptr);
  EXPECT_EQ(TypeOfShader(hShader.Get()), "VelRmaShader");
  EXPECT_EQ(DelegateTypeOf(hShader.Get()), "VelRmaShader_ext");
  const VelIRshShader_var hBare = MakeRaw("VelTestBareShader");
  EXPECT_EQ(hBare->SetUsage(1), E_FAIL);
  EXPECT_EQ(DelegateTypeOf(hBare.Get()), "VelTestBareShader_ext");
}

struct Operation {
  const char* name;
  void (*call)(VelIRshShader&);
};

/// Also with arguments that make the operation fail.
constexpr Operation lazyOperations[] = {
    {"GetType",
     [](VelIRshShader& ioShader) {
       VelString type;
       EXPECT_EQ(ioShader.GetType(type), S_OK);
     }},
    {"GetOutputType",
     [](VelIRshShader& ioShader) {
       VelString type;
       EXPECT_EQ(ioShader.GetOutputType(type), E_FAIL);
     }},
    {"SetOutputType", [](VelIRshShader& ioShader) { EXPECT_EQ(ioShader.SetOutputType("VelRmaColor"), S_OK); }},
    {"GetUsage",
     [](VelIRshShader& ioShader) {
       std::uint32_t usage = 0;
       EXPECT_EQ(ioShader.GetUsage(usage), E_FAIL);
     }},
    {"SetUsage", [](VelIRshShader& ioShader) { EXPECT_EQ(ioShader.SetUsage(1), S_OK); }},
    {"GetVersion",
     [](VelIRshShader& ioShader) {
       std::uint32_t version = 0;
       EXPECT_EQ(ioShader.GetVersion(version), E_FAIL);
     }},
    {"SetVersion", [](VelIRshShader& ioShader) { EXPECT_EQ(ioShader.SetVersion(1), S_OK); }},
    {"AppendParameter", [](VelIRshShader& ioShader) { EXPECT_EQ(ioShader.AppendParameter(nullptr), E_FAIL); }},
    {"AddParameter",
     [](VelIRshShader& ioShader) { EXPECT_EQ(ioShader.AddParameter("x", "VelRmaScalar", nullptr), E_FAIL); }},
    {"GetParameters", [](VelIRshShader& ioShader) { EXPECT_EQ(ioShader.GetParameters(nullptr), E_FAIL); }},
    {"AddNode", [](VelIRshShader& ioShader) { EXPECT_EQ(ioShader.AddNode(nullptr), E_FAIL); }},
    {"RemoveNode", [](VelIRshShader& ioShader) { EXPECT_EQ(ioShader.RemoveNode(nullptr), E_FAIL); }},
    {"GetNodes", [](VelIRshShader& ioShader) { EXPECT_EQ(ioShader.GetNodes(nullptr), E_FAIL); }},
};

TEST_F(VelRshShaderFeatureDelegateTest, EachOperation_MakesTheDelegate) {
  for (const Operation& operation : lazyOperations) {
    const VelIRshShader_var hShader = MakeLoaded("BasicMaterial");
    operation.call(*hShader);
    EXPECT_EQ(DelegateTypeOf(hShader.Get()), "BasicMaterial_ext") << operation.name;
  }
}

TEST_F(VelRshShaderFeatureDelegateTest, CreateCopy_MakesNoDelegate) {
  const VelIRshShader_var hShader = MakeLoaded("BasicMaterial");
  EXPECT_EQ(hShader->CreateCopy(hContainer_.Get(), nullptr), E_FAIL);
  EXPECT_EQ(DelegateTypeOf(hShader.Get()), "none");
  EXPECT_EQ(hShader->SetType("Other"), S_OK);
}

TEST_F(VelRshShaderFeatureDelegateTest, SetType_OfAShaderWithADelegate_FailsAndChangesNothing) {
  const VelIRshShader_var hSet = MakeLoaded(nullptr);
  ASSERT_EQ(hSet->SetType("First"), S_OK);
  EXPECT_EQ(hSet->SetType("Second"), E_FAIL);
  EXPECT_EQ(TypeOfShader(hSet.Get()), "First");
  EXPECT_EQ(DelegateTypeOf(hSet.Get()), "First_ext");
  const VelIRshShader_var hAsked = MakeLoaded(nullptr);
  ASSERT_EQ(TypeOfShader(hAsked.Get()), "VelRmaShader");
  EXPECT_EQ(hAsked->SetType("Second"), E_FAIL);
  EXPECT_EQ(TypeOfShader(hAsked.Get()), "VelRmaShader");
  EXPECT_FALSE(VelISpecAttrAccess_var(hAsked)->IsValuated(type_));
}

TEST_F(VelRshShaderFeatureDelegateTest, SetType_OfAShaderThatHasAType_KeepsIt_YetMakesTheDelegateOfTheNewOne) {
  for (const char* type : {"BasicMaterial", ""}) {
    const VelIRshShader_var hShader = MakeLoaded(type);
    EXPECT_EQ(hShader->SetType("CustomShader"), S_OK);
    EXPECT_EQ(TypeOfShader(hShader.Get()), type);
    EXPECT_EQ(DelegateTypeOf(hShader.Get()), "CustomShader_ext");
  }
}

TEST_F(VelRshShaderFeatureDelegateTest, SetType_OfAShaderWithoutAList_MakesTheDelegate_ThoughItFails) {
  for (const VelIRshShader_var& hShader : {MakeRaw("VelTestBareShader"), MakeFeatureless()}) {
    EXPECT_EQ(hShader->SetType("Odd"), E_FAIL);
    EXPECT_EQ(DelegateTypeOf(hShader.Get()), "Odd_ext");
  }
}

TEST_F(VelRshShaderFeatureDelegateTest, SetType_OfAShaderWithoutTheAttribute_Succeeds) {
  const VelIRshShader_var hShader = MakeRaw("VelTestListShader");
  EXPECT_EQ(hShader->SetType("Odd"), S_OK);
  EXPECT_EQ(DelegateTypeOf(hShader.Get()), "Odd_ext");
  EXPECT_EQ(TypeOfShader(hShader.Get()), "VelTestListShader");
}

TEST_F(VelRshShaderFeatureDelegateTest, AnyOtherOperation_WhereNoTypeCanBeRead_MakesNone_AndIsNoObstacleToSetType) {
  const VelIRshShader_var hShader = MakeFeatureless();
  VelString type;
  EXPECT_EQ(hShader->GetType(type), E_FAIL);
  EXPECT_EQ(DelegateTypeOf(hShader.Get()), "none");
  static_cast<void>(hShader->SetType("Odd"));
  EXPECT_EQ(DelegateTypeOf(hShader.Get()), "Odd_ext");
}

TEST_F(VelRshShaderFeatureDelegateTest, Delegate_IsAnObjectOfItsOwnClass_MadeOnce) {
  const VelIRshShader_var hShader = MakeShader("BasicMaterial");
  const VelBaseUnknown_var hDelegate = DelegateOf(hShader.Get());
  ASSERT_TRUE(hDelegate);
  EXPECT_STREQ(hDelegate->GetComponent()->ClassName(), "VelRshShaderDelegate");
  EXPECT_TRUE(hDelegate->GetComponent()->IsAKindOf("VelObject"));
  for (const Operation& operation : lazyOperations) operation.call(*hShader);
  EXPECT_EQ(VelInstanceCounts::Now().components, 3) << "the container, the shader and its delegate";
  EXPECT_TRUE(IsSameObject(DelegateOf(hShader.Get()).Get(), hDelegate.Get()));
  EXPECT_FALSE(IsSameObject(DelegateOf(MakeShader("BasicMaterial").Get()).Get(), hDelegate.Get()));
}

TEST_F(VelRshShaderFeatureDelegateTest, Link_IsHandedTheShaderOnce_WhateverItAnswers) {
  for (const HRESULT code : {S_OK, E_FAIL}) {
    delegates_->linkCode = code;
    delegates_->linked.clear();
    const VelIRshShader_var hShader = MakeLoaded(nullptr);
    EXPECT_EQ(hShader->SetType("VelTestLink"), S_OK);
    static_cast<void>(TypeOfShader(hShader.Get()));
    EXPECT_EQ(delegates_->linked, std::vector<VelComponent*>{hShader->GetComponent()});
    const VelIRshShader_var hLoaded = MakeLoaded("VelTestLink");
    static_cast<void>(TypeOfShader(hLoaded.Get()));
    EXPECT_EQ(delegates_->linked, (std::vector<VelComponent*>{hShader->GetComponent(), hLoaded->GetComponent()}));
    EXPECT_EQ(DelegateTypeOf(hLoaded.Get()), "VelTestLink_ext");
  }
}

TEST_F(VelRshShaderFeatureDelegateTest, Link_ThatUsesTheShader_FindsItsDelegateMadeAlready) {
  int calls = 0;
  delegates_->onLink = [&](VelIRshShader& ioShader) {
    ++calls;
    EXPECT_EQ(TypeOfShader(&ioShader), "VelTestLink");
    EXPECT_EQ(ioShader.SetType("Other"), E_FAIL);
    EXPECT_TRUE(Add(VelIRshShader_var(&ioShader), "roughness", "VelRmaScalar"));
  };
  const VelIRshShader_var hShader = MakeLoaded(nullptr);
  EXPECT_EQ(hShader->SetType("VelTestLink"), S_OK);
  const VelIRshShader_var hLoaded = MakeLoaded("VelTestLink");
  EXPECT_EQ(ParameterNames(hLoaded), Texts{"roughness"});
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(DelegateTypeOf(hLoaded.Get()), "VelTestLink_ext");
}

TEST_F(VelRshShaderFeatureDelegateTest, Link_ThatRemovesTheShader_LeavesNoDelegate) {
  delegates_->onLink = [](VelIRshShader& ioShader) { EXPECT_EQ(Remove(&ioShader), S_OK); };
  const VelIRshShader_var hShader = MakeLoaded(nullptr);
  EXPECT_EQ(hShader->SetType("VelTestType"), S_OK) << "what was begun is ended";
  EXPECT_EQ(hShader->GetComponentState(), VelComponentState::Closed);
  EXPECT_EQ(VelInstanceCounts::Now().components, 2) << "the container and the shader that is held";
}

TEST_F(VelRshShaderFeatureDelegateTest, Delegate_IsSetInTheDelegation_BeforeTheOperationReturns_AndOnce) {
  VelTestDelegationBindings delegation;
  {
    const VelIRshShader_var hShader = MakeLoaded(nullptr);
    EXPECT_EQ(hShader->SetType("BasicMaterial"), S_OK);
    static_cast<void>(TypeOfShader(hShader.Get()));
    EXPECT_EQ(delegation.set, Texts{"BasicMaterial_ext"});
    EXPECT_EQ(hShader->SetType("BasicMaterial"), E_FAIL);
    EXPECT_EQ(delegation.set, Texts{"BasicMaterial_ext"});
  }
  CloseContainer();
}

TEST_F(VelRshShaderFeatureDelegateTest, Delegate_GoesWhenTheShaderIsClosed) {
  int ended = 0;
  delegates_->onEnd = [&] { ++ended; };
  for (const bool isDelegationFirst : {false, true}) {
    const VelISpecObject_var hFeature = Make("VelRmaShader");
    const VelIDelegation_var hEarly(isDelegationFirst ? hFeature : nullptr);
    const VelIRshShader_var hShader(hFeature);
    ASSERT_EQ(hShader->SetType("VelTestType"), S_OK);
    const VelIDelegation_var hDelegation(hShader);
    ASSERT_EQ(DelegateTypeOf(hShader.Get()), "VelTestType_ext");
    ended = 0;
    EXPECT_EQ(Remove(hShader.Get()), S_OK);
    EXPECT_EQ(ended, 1);
    VelBaseUnknown_var hDelegate;
    EXPECT_EQ(hDelegation->GetDelegate(hDelegate.Receive()), E_FAIL);
    EXPECT_FALSE(hDelegate);
  }
}

TEST_F(VelRshShaderFeatureDelegateTest, Delegate_GoesThoughTheEndComesInsideOfAnOperation) {
  int ended = 0;
  delegates_->onEnd = [&] { ++ended; };
  const VelIRshShader_var hShader = MakeShader("VelTestType");
  VelTestForeign::Instance().onUpdate = [&](VelImplementation&) {
    EXPECT_EQ(Remove(hShader.Get()), S_OK);
    EXPECT_EQ(ended, 1) << "with the state, not with the implementation";
  };
  VelIRshParameter_var hParameter;
  EXPECT_EQ(hShader->AddParameter("x", "VelTestForeignParameter", hParameter.Receive()), S_OK);
  VelTestForeign::Instance().onUpdate = nullptr;
  EXPECT_EQ(ended, 1);
}

}  // namespace
