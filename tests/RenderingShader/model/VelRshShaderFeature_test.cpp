// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature_test.cpp The attributes of a shader, its label, the shader above, and its end.
#include <limits>

#include "RenderingShader/interfaces/VelIAlias.h"
#include "RenderingShader/interfaces/VelIRshParameterSubscriber.h"
#include "RenderingShader/interfaces/VelIRshShaderPrivate.h"
#include "platform/configuration/VelMsgCatalog.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/model/ShaderFeatureTest.h"

namespace {

/// An attribute that is read and written through an operation each; what is read stands as a text.
struct Attribute {
  const char* name;
  VelSpecAttrKind kind;
  HRESULT (*set)(VelIRshShader&, std::uint32_t);
  HRESULT (*get)(VelIRshShader&, std::string&);
};

constexpr const char* untouched = "77";

template <auto Get>
HRESULT GetNumber(VelIRshShader& ioShader, std::string& oValue) {
  std::uint32_t value = 77;
  const HRESULT result = (ioShader.*Get)(value);
  oValue = std::to_string(value);
  return result;
}

template <auto Get>
HRESULT GetWord(VelIRshShader& ioShader, std::string& oValue) {
  VelString value(untouched);
  const HRESULT result = (ioShader.*Get)(value);
  oValue = std::string(value.View());
  return result;
}

constexpr Attribute attributes[] = {
    {"OutputType", VelSpecAttrKind::Text,
     [](VelIRshShader& ioShader, std::uint32_t iValue) {
       return ioShader.SetOutputType(std::to_string(iValue).c_str());
     },
     &GetWord<&VelIRshShader::GetOutputType>},
    {"Usage", VelSpecAttrKind::Unsigned,
     [](VelIRshShader& ioShader, std::uint32_t iValue) { return ioShader.SetUsage(iValue); },
     &GetNumber<&VelIRshShader::GetUsage>},
    {"Version", VelSpecAttrKind::Unsigned,
     [](VelIRshShader& ioShader, std::uint32_t iValue) { return ioShader.SetVersion(iValue); },
     &GetNumber<&VelIRshShader::GetVersion>},
};

using VelRshShaderFeatureTest = ShaderFeatureTest;

TEST_F(VelRshShaderFeatureTest, Attribute_WithoutValue_FailsAndLeavesTheArgument) {
  const VelIRshShader_var hShader = MakeShader();
  for (const Attribute& attribute : attributes) {
    std::string value;
    EXPECT_EQ(attribute.get(*hShader, value), E_FAIL) << attribute.name;
    EXPECT_EQ(value, untouched) << attribute.name;
  }
}

TEST_F(VelRshShaderFeatureTest, Attribute_IsReadAsItWasWrittenLast) {
  const VelIRshShader_var hShader = MakeShader();
  for (const std::uint32_t written : {42U, 0U, std::numeric_limits<std::uint32_t>::max()}) {
    for (const Attribute& attribute : attributes) {
      EXPECT_EQ(attribute.set(*hShader, written), S_OK) << attribute.name;
      std::string value;
      EXPECT_EQ(attribute.get(*hShader, value), S_OK) << attribute.name;
      EXPECT_EQ(value, std::to_string(written)) << attribute.name;
    }
  }
}

TEST_F(VelRshShaderFeatureTest, Attribute_StandsInTheFeature) {
  const VelISpecObject_var hFeature = Make("VelRmaShader");
  const VelIRshShader_var hShader(hFeature);
  for (const Attribute& attribute : attributes) {
    const VelISpecAttrKey* key = Key(attribute.name, attribute.kind);
    EXPECT_FALSE(Access(hFeature)->IsValuated(key)) << attribute.name;
    EXPECT_EQ(attribute.set(*hShader, 5), S_OK);
    EXPECT_TRUE(Access(hFeature)->IsValuated(key)) << attribute.name;
  }
}

TEST_F(VelRshShaderFeatureTest, Attribute_ThatTheFeatureDoesNotHave_FailsAndLeavesTheArgument) {
  const VelIRshShader_var bare[] = {MakeRaw("VelTestBareShader"), MakeFeatureless()};
  for (const VelIRshShader_var& hShader : bare) {
    for (const Attribute& attribute : attributes) {
      EXPECT_EQ(attribute.set(*hShader, 5), E_FAIL) << attribute.name;
      std::string value;
      EXPECT_EQ(attribute.get(*hShader, value), E_FAIL) << attribute.name;
      EXPECT_EQ(value, untouched) << attribute.name;
    }
  }
}

struct TypeCase {
  const char* startUp;
  const char* valuated;  ///< Null for a type that was never written.
  const char* expected;
};

TEST_F(VelRshShaderFeatureTest, GetType_IsTheAttributeOrElseTheStartUp) {
  const TypeCase cases[] = {{"VelRmaShader", "BasicMaterial", "BasicMaterial"},
                            {"VelRmaShader", "", ""},
                            {"VelRmaShader", nullptr, "VelRmaShader"},
                            {"VelTestBareShader", nullptr, "VelTestBareShader"}};
  for (const TypeCase& row : cases) {
    const VelISpecObject_var hFeature = MakeOdd(row.startUp);
    if (row.valuated != nullptr) {
      ASSERT_EQ(Access(hFeature)->SetText(type_, row.valuated), S_OK);
    }
    VelString type("untouched");
    EXPECT_EQ(VelIRshShader_var(hFeature)->GetType(type), S_OK) << row.expected;
    EXPECT_EQ(type, row.expected);
    EXPECT_EQ(VelIRshShaderPrivate_var(hFeature)->GetTypeName(), row.expected);
  }
}

TEST_F(VelRshShaderFeatureTest, GetType_OfWhatIsNoFeature_FailsAndLeavesTheArgument) {
  const VelIRshShader_var hShader = MakeFeatureless();
  VelString type("untouched");
  EXPECT_EQ(hShader->GetType(type), E_FAIL);
  EXPECT_EQ(type, "untouched");
  EXPECT_EQ(VelIRshShaderPrivate_var(hShader)->GetTypeName(), "");
}

TEST_F(VelRshShaderFeatureTest, GetAlias_IsTheMessageOfTheType_AndTheMessageIsReadOnce) {
  const VelIRshShader_var hShader = MakeShader("BasicMaterial");
  const VelIAlias_var hAlias(hShader);
  ASSERT_EQ(VelMsgCatalog::SetMessage("en", "BasicMaterial", "Label", "Basic material"), S_OK);
  EXPECT_EQ(hAlias->GetAlias(), "Basic material");
  ASSERT_EQ(VelMsgCatalog::SetMessage("en", "BasicMaterial", "Label", "Another"), S_OK);
  EXPECT_EQ(hAlias->GetAlias(), "Basic material");
}

TEST_F(VelRshShaderFeatureTest, GetAlias_WithoutOrWithAnEmptyMessage_IsTheType) {
  ASSERT_EQ(VelMsgCatalog::SetMessage("en", "Empty", "Label", ""), S_OK);
  ASSERT_EQ(VelMsgCatalog::SetMessage("en", "Other", "label", "case counts"), S_OK);
  for (const char* type : {"BasicMaterial", "Empty", "Other"}) {
    const VelIRshShader_var hShader = MakeShader(type);
    EXPECT_EQ(VelIAlias_var(hShader)->GetAlias(), type);
    // The type stays the label: nothing asks the messages again.
    ASSERT_EQ(VelMsgCatalog::SetMessage("en", type, "Label", "too late"), S_OK);
    EXPECT_EQ(VelIAlias_var(hShader)->GetAlias(), type);
  }
}

TEST_F(VelRshShaderFeatureTest, GetAlias_WithoutAType_IsEmptyUntilThereIsOne) {
  EXPECT_EQ(VelIAlias_var(MakeFeatureless())->GetAlias(), "");
}

TEST_F(VelRshShaderFeatureTest, SetAlias_IsTheLabel_AndAnEmptyOneIsComputedAgain) {
  const VelIRshShader_var hShader = MakeShader("BasicMaterial");
  const VelIAlias_var hAlias(hShader);
  ASSERT_EQ(VelMsgCatalog::SetMessage("en", "BasicMaterial", "Label", "Basic material"), S_OK);
  EXPECT_EQ(hAlias->SetAlias("Mine"), S_OK);
  EXPECT_EQ(hAlias->GetAlias(), "Mine");
  EXPECT_EQ(hAlias->SetAlias(""), S_OK);
  EXPECT_EQ(hAlias->GetAlias(), "Basic material");
}

TEST_F(VelRshShaderFeatureTest, NoteConnectionFrom_IsAlwaysOne) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshShaderPrivate_var hPrivate(hShader);
  EXPECT_EQ(hPrivate->NoteConnectionFrom(nullptr), 1);
  EXPECT_EQ(hPrivate->NoteConnectionFrom(hShader.Get()), 1);
}

/// Asks with a handle that is not empty, so that "none" has to be said.
VelIRshShader_var ParentOf(const VelIRshShader_var& iShader) {
  VelIRshShader_var hParent = iShader;
  VelIRshShaderPrivate_var(iShader)->GetParentShader(hParent);
  return hParent;
}

TEST_F(VelRshShaderFeatureTest, GetParentShader_BelowAShader_IsThatShader) {
  const VelIRshShader_var hShader = MakeShader();
  EXPECT_TRUE(IsSameObject(ParentOf(AddNode(hShader)).Get(), hShader.Get()));
  const VelISpecObject_var hForeign = MakeOdd("VelTestForeignShader");
  const VelIRshShader_var hNode = MakeShader();
  ASSERT_EQ(Aggregate(hForeign, "Nodes", hNode.Get()), S_OK);
  EXPECT_TRUE(IsSameObject(ParentOf(hNode).Get(), hForeign.Get()));
}

TEST_F(VelRshShaderFeatureTest, GetParentShader_BelowAParameter_IsTheShaderOfTheParameter) {
  const VelIRshShader_var hShader = MakeShader();
  const VelISpecObject_var hCarrier = MakeOdd("VelTestCarrier");
  const VelIRshShader_var hCarried = MakeShader();
  ASSERT_EQ(Aggregate(hCarrier, "Carried", hCarried.Get()), S_OK);
  EXPECT_FALSE(ParentOf(hCarried)) << "a parameter without a shader";
  ASSERT_EQ(hShader->AppendParameter(VelIRshParameter_var(hCarrier).Get()), S_OK);
  EXPECT_TRUE(IsSameObject(ParentOf(hCarried).Get(), hShader.Get()));
}

TEST_F(VelRshShaderFeatureTest, GetParentShader_BelowAParameterOfAnotherModule_IsWhatThatSays) {
  const VelIRshShader_var hShader = MakeShader();
  const VelISpecObject_var hParameter = MakeOdd("VelTestForeignParameter");
  const VelIRshShader_var hCarried = MakeShader();
  ASSERT_EQ(Aggregate(hParameter, "Carried", hCarried.Get()), S_OK);
  EXPECT_FALSE(ParentOf(hCarried));
  VelTestForeign::Instance().parent = hShader.Get();
  EXPECT_TRUE(IsSameObject(ParentOf(hCarried).Get(), hShader.Get()));
}

TEST_F(VelRshShaderFeatureTest, GetParentShader_BelowAnythingElse_IsEmpty) {
  const FakeRenderingMaterialBindings bindings;
  const VelISpecObject_var hMaterial = FakeRenderingMaterial::Create(*hContainer_);
  const VelIRshShader_var hRoot = MakeShader();
  ASSERT_EQ(FakeRenderingMaterial::Of(*hMaterial).SetShader(hRoot.Get()), S_OK);
  ASSERT_TRUE(VelIRshShader_var(hMaterial)) << "a shader as well, for whom that counts nothing";
  EXPECT_FALSE(ParentOf(hRoot)) << "a rendering material";
  const VelIRshShader_var hBoxed = MakeShader();
  ASSERT_EQ(Aggregate(MakeOdd("VelTestBox"), "Content", hBoxed.Get()), S_OK);
  EXPECT_FALSE(ParentOf(hBoxed)) << "neither a shader nor a parameter";
  EXPECT_FALSE(ParentOf(MakeShader())) << "no father";
  EXPECT_FALSE(ParentOf(MakeFeatureless())) << "no feature";
  CloseContainer();
}

/// An operation of VelIRshShader on a closed shader, and whether it left its out arguments.
struct ClosedCase {
  const char* name;
  HRESULT (*call)(VelIRshShader&, bool& oIsUntouched);
};

template <auto Get>
HRESULT CallGetList(VelIRshShader& ioShader, bool& oIsUntouched) {
  VelListPtrVelBaseUnknown list;
  VelListPtrVelBaseUnknown* out = &list;
  const HRESULT result = (ioShader.*Get)(&out);
  oIsUntouched = out == &list;
  return result;
}

constexpr ClosedCase closedCases[] = {
    {"SetType", [](VelIRshShader& ioShader, bool&) { return ioShader.SetType("BasicMaterial"); }},
    {"GetType",
     [](VelIRshShader& ioShader, bool& oIsUntouched) {
       std::string value;
       const HRESULT result = GetWord<&VelIRshShader::GetType>(ioShader, value);
       oIsUntouched = value == untouched;
       return result;
     }},
    {"AppendParameter", [](VelIRshShader& ioShader, bool&) { return ioShader.AppendParameter(nullptr); }},
    {"AddParameter",
     [](VelIRshShader& ioShader, bool& oIsUntouched) {
       auto* const before = reinterpret_cast<VelIRshParameter*>(&ioShader);
       VelIRshParameter* out = before;
       const HRESULT result = ioShader.AddParameter("x", "VelRmaScalar", &out);
       oIsUntouched = out == before;
       return result;
     }},
    {"GetParameters", &CallGetList<&VelIRshShader::GetParameters>},
    {"AddNode", [](VelIRshShader& ioShader, bool&) { return ioShader.AddNode(nullptr); }},
    {"RemoveNode", [](VelIRshShader& ioShader, bool&) { return ioShader.RemoveNode(nullptr); }},
    {"GetNodes", &CallGetList<&VelIRshShader::GetNodes>},
    {"CreateCopy",
     [](VelIRshShader& ioShader, bool& oIsUntouched) {
       VelIRshShader* out = &ioShader;
       const HRESULT result = ioShader.CreateCopy(nullptr, &out);
       oIsUntouched = out == &ioShader;
       return result;
     }},
};

TEST_F(VelRshShaderFeatureTest, ClosedShader_FailsAndLeavesEveryArgument) {
  const VelIRshShader_var hShader = MakeShader();
  for (const Attribute& attribute : attributes) ASSERT_EQ(attribute.set(*hShader, 5), S_OK);
  CloseContainer();
  for (const ClosedCase& row : closedCases) {
    bool isUntouched = true;
    EXPECT_EQ(row.call(*hShader, isUntouched), E_FAIL) << row.name;
    EXPECT_TRUE(isUntouched) << row.name;
  }
  for (const Attribute& attribute : attributes) {
    std::string value;
    EXPECT_EQ(attribute.set(*hShader, 6), E_FAIL) << attribute.name;
    EXPECT_EQ(attribute.get(*hShader, value), E_FAIL) << attribute.name;
    EXPECT_EQ(value, untouched) << attribute.name;
  }
}

TEST_F(VelRshShaderFeatureTest, ClosedShader_AnswersNothingThroughItsOtherInterfaces) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshShaderPrivate_var hPrivate(hShader);
  const VelIRshShaderPublisher_var hPublisher(hShader);
  const VelIRshParameterSubscriber_var hSubscriber(hShader);
  const VelIAlias_var hAlias(hShader);
  ASSERT_NE(hPublisher->GetCallbackManager(), nullptr);
  ASSERT_EQ(hAlias->SetAlias("Mine"), S_OK);
  ASSERT_EQ(Remove(hShader.Get()), S_OK);
  EXPECT_EQ(hPrivate->GetTypeName(), "");
  EXPECT_EQ(hPrivate->NoteConnectionFrom(nullptr), E_FAIL);
  VelIRshShader_var hParent = hShader;
  hPrivate->GetParentShader(hParent);
  EXPECT_TRUE(hParent) << "untouched";
  EXPECT_EQ(hPublisher->GetCallbackManager(), nullptr);
  hSubscriber->OnParameterValue(nullptr, nullptr, nullptr);
  hSubscriber->OnParameterConnection(nullptr, nullptr, nullptr);
  EXPECT_EQ(hAlias->SetAlias("Other"), E_FAIL);
  EXPECT_EQ(hAlias->GetAlias(), "");
}

TEST_F(VelRshShaderFeatureTest, End_IsToldInTwoLines_AtItsLevelAlone) {
  const Texts lines = {"5 (VelRshShaderFeature::~VelRshShaderFeature) Destructor\n",
                       "5 (VelRshShaderFeature::~VelRshShaderFeature) Done\n"};
  for (const char* level : {"4", "5"}) {
    VelTraceService::SetSwitches(std::string(channel) + "=" + level);
    traces_.Clear();
    const VelIRshShader_var hShader = MakeShader();
    ASSERT_EQ(Remove(hShader.Get()), S_OK);
    EXPECT_EQ(Told(), level[0] == '5' ? lines : Texts{});
  }
}

}  // namespace
