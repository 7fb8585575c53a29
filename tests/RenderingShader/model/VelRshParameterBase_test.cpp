// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_test.cpp A parameter's name, type, shader and layout flag, and the traces of its end.
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/trace/VelTraceService.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/parameters/fixtures/FakeParameterLayout.h"

namespace {

constexpr const char* startUps[] = {"VelRmaParameter", "VelRmaBoolean", "VelRmaInteger",     "VelRmaScalar",
                                    "VelRmaColor",     "VelRmaVector",  "VelRmaMatrix",      "VelRmaString",
                                    "VelRmaTexture",   "VelRmaVoid",    "VelRmaLightProfile"};

constexpr const char* privateStartUps[] = {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor",
                                           "VelRmaVector",  "VelRmaMatrix",  "VelRmaString", "VelRmaTexture"};

using VelRshParameterBaseTest = RshModelTest;

TEST_F(VelRshParameterBaseTest, Name_StandsInTheDocument) {
  for (const char* startUp : startUps) {
    const VelISpecObject_var hFeature = Make(startUp);
    const VelIRshParameter_var hParameter(hFeature);
    VelString name("before");
    EXPECT_EQ(hParameter->GetName(name), E_FAIL) << startUp;
    EXPECT_EQ(name, "before") << startUp;
    EXPECT_EQ(hParameter->SetName("base \xC3\xA9"), S_OK) << startUp;
    EXPECT_EQ(hParameter->GetName(name), S_OK) << startUp;
    EXPECT_EQ(name, "base \xC3\xA9") << startUp;
    VelUnicodeString stored;
    EXPECT_EQ(Access(hFeature)->GetText(Key("Name", VelSpecAttrKind::Text), stored), S_OK) << startUp;
    EXPECT_EQ(stored, "base \xC3\xA9") << startUp;
    EXPECT_EQ(hParameter->SetName(""), S_OK) << startUp;
    EXPECT_EQ(hParameter->GetName(name), S_OK) << startUp;
    EXPECT_EQ(name, "") << startUp;
  }
}

TEST_F(VelRshParameterBaseTest, Type_IsTheStartUp) {
  for (const char* startUp : startUps) {
    VelString type;
    EXPECT_EQ(VelIRshParameter_var(Make(startUp))->GetType(type), S_OK) << startUp;
    EXPECT_EQ(type, startUp);
  }
}

TEST_F(VelRshParameterBaseTest, ClosedParameter_AnswersEFailAndTouchesNothing) {
  for (const char* startUp : startUps) {
    const VelIRshParameter_var hParameter = Add(MakeShader(), "p", startUp);
    EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK) << startUp;
    VelString text("before");
    EXPECT_EQ(hParameter->SetName("q"), E_FAIL) << startUp;
    EXPECT_EQ(hParameter->GetName(text), E_FAIL) << startUp;
    EXPECT_EQ(hParameter->GetType(text), E_FAIL) << startUp;
    EXPECT_EQ(text, "before") << startUp;
  }
}

TEST_F(VelRshParameterBaseTest, PrivateSide_AnswersByType) {
  for (const char* startUp : privateStartUps) {
    const VelIRshShader_var hShader = MakeShader();
    const VelIRshParameter_var hParameter = Add(hShader, "p", startUp);
    const VelIRshParameterPrivate_var hPrivate(hParameter);
    EXPECT_EQ(hPrivate->IsTexture(), std::string(startUp) == "VelRmaTexture" ? S_OK : E_FAIL) << startUp;
    EXPECT_EQ(hPrivate->AttachToShader(hShader.Get()), S_FALSE) << startUp;
    EXPECT_EQ(hPrivate->AttachToShader(nullptr), S_FALSE) << startUp;
    VelIRshShader_var hParent;
    hPrivate->GetParentShader(hParent);
    EXPECT_TRUE(IsSameObject(hParent.Get(), hShader.Get())) << startUp;
    EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK) << startUp;
    EXPECT_EQ(hPrivate->IsTexture(), E_FAIL) << startUp;
    EXPECT_EQ(hPrivate->AttachToShader(nullptr), E_FAIL) << startUp;
    hPrivate->GetParentShader(hParent);
    EXPECT_TRUE(IsSameObject(hParent.Get(), hShader.Get())) << "untouched " << startUp;
  }
}

TEST_F(VelRshParameterBaseTest, ParameterWithoutAShaderAbove_SaysSo) {
  const VelISpecObject_var hFeature = Make("VelRmaScalar");
  VelIRshShader_var hParent = MakeShader();
  VelIRshParameterPrivate_var(hFeature)->GetParentShader(hParent);
  EXPECT_FALSE(hParent);
}

TEST_F(VelRshParameterBaseTest, ParameterBelowAParameter_HasNoShaderAbove) {
  // No catalog aggregates parameters below parameters; a shader that is removed is as good as none.
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hParameter = Add(hShader, "p", "VelRmaScalar");
  EXPECT_EQ(VelISpecAttrAccess_var(hShader)->RemoveComponent(parameters_, hParameter.Get()), S_OK);
  VelIRshShader_var hParent = hShader;
  VelIRshParameterPrivate_var(hParameter)->GetParentShader(hParent);
  EXPECT_FALSE(hParent);
}

TEST_F(VelRshParameterBaseTest, LayoutFlag_ReadsItsTextAsYesOrNo) {
  FakeParameterLayouts layouts;
  const VelIRshParameter_var hParameter = Add(MakeShader(), "p", "VelRmaScalar");
  const VelIRshParameterPrivate_var hPrivate(hParameter);
  const struct {
    const char* text;
    HRESULT expected;
  } cases[] = {{"yes", S_OK}, {"Yes", S_OK},  {"YES", S_OK},     {"true", S_OK},   {"True", S_OK},    {"tRUE", S_OK},
               {"1", S_OK},   {"no", E_FAIL}, {"false", E_FAIL}, {"0", E_FAIL},    {"", E_FAIL},      {" yes", E_FAIL},
               {"y", E_FAIL}, {"on", E_FAIL}, {"11", E_FAIL},    {"yes ", E_FAIL}, {"truee", E_FAIL}, {"1.0", E_FAIL}};
  for (const auto& test : cases) {
    layouts.textValue = {test.text, S_OK};
    EXPECT_EQ(hPrivate->GetLayoutFlag(), test.expected) << "'" << test.text << "'";
  }
  layouts.textValue = {"yes", E_UNEXPECTED};
  EXPECT_EQ(hPrivate->GetLayoutFlag(), E_FAIL) << "a read that fails";
  EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
  EXPECT_EQ(hPrivate->GetLayoutFlag(), E_FAIL);
}

TEST_F(VelRshParameterBaseTest, LayoutFlagWithoutALayout_IsENoInterface) {
  for (const char* startUp : privateStartUps) {
    EXPECT_EQ(VelIRshParameterPrivate_var(Make(startUp))->GetLayoutFlag(), E_NOINTERFACE) << startUp;
  }
}

TEST_F(VelRshParameterBaseTest, Remove_IsHandedOn) {
  for (const char* startUp : startUps) {
    const VelISpecObject_var hFeature = Make(startUp);
    const VelIRshParameter_var hParameter(hFeature);
    const LifeCycleObject_var hLife(hFeature);
    EXPECT_EQ(hLife->remove(), S_OK) << startUp;
    EXPECT_EQ(hParameter->GetComponentState(), VelComponentState::Closed) << startUp;
    EXPECT_EQ(hLife->remove(), S_FALSE) << startUp;
  }
}

TEST_F(VelRshParameterBaseTest, End_IsTracedByEachClassOnTheChannelOfItsName) {
  const struct {
    const char* startUp;
    const char* className;  ///< Null for a plain parameter.
    bool tellsDone;
  } cases[] = {{"VelRmaParameter", nullptr, false},
               {"VelRmaBoolean", "VelRshParameterBoolean", true},
               {"VelRmaInteger", "VelRshParameterInteger", true},
               {"VelRmaScalar", "VelRshParameterScalar", true},
               {"VelRmaColor", "VelRshParameterColor", true},
               {"VelRmaVector", "VelRshParameterVector", true},
               {"VelRmaMatrix", "VelRshParameterMatrix", true},
               {"VelRmaString", "VelRshParameterString", false},
               {"VelRmaTexture", "VelRshParameterTexture", true},
               {"VelRmaLightProfile", "VelRshParameterLightProfile", true},
               {"VelRmaVoid", "VelRshParameterShader", true}};
  VelTraceService::SetSwitches("VelRshParameter*=5");
  for (const auto& test : cases) {
    VelISpecObject_var hFeature = Make(test.startUp);
    VelIRshParameter_var hParameter(hFeature);
    traces_.Clear();
    EXPECT_EQ(LifeCycleObject_var(hFeature)->remove(), S_OK);
    Texts expected;
    if (test.className != nullptr) {
      const std::string name = test.className;
      expected.push_back("(" + name + "::~" + name + ") Destructor\n");
      if (test.tellsDone) expected.push_back("(" + name + "::~" + name + ") Done\n");
      EXPECT_EQ(traces_.Texts(name), expected) << test.startUp;
    }
    const Texts ofBase = {"(VelRshParameterBase::~VelRshParameterBase) Destructor\n",
                          "(VelRshParameterBase::~VelRshParameterBase) Done\n"};
    EXPECT_EQ(traces_.Texts("VelRshParameterBase"), ofBase) << test.startUp;
    expected.insert(expected.end(), ofBase.begin(), ofBase.end());
    EXPECT_EQ(traces_.Texts(), expected) << test.startUp;
  }
}

TEST_F(VelRshParameterBaseTest, EndBelowItsTraceLevel_IsSilent) {
  VelTraceService::SetSwitches("VelRshParameter*=4");
  const VelISpecObject_var hFeature = Make("VelRmaScalar");
  const VelIRshParameter_var hParameter(hFeature);
  EXPECT_EQ(LifeCycleObject_var(hFeature)->remove(), S_OK);
  EXPECT_EQ(traces_.Texts(), Texts{});
}

TEST_F(VelRshParameterBaseTest, Trace_IsHeldAsLongAsTheParameterLives) {
  const int before = VelTraceService::OpenChannelCount();
  const VelISpecObject_var hFeature = Make("VelRmaScalar");
  const VelIRshParameter_var hParameter(hFeature);
  EXPECT_EQ(VelTraceService::OpenChannelCount(), before + 1);
  EXPECT_EQ(LifeCycleObject_var(hFeature)->remove(), S_OK);
  EXPECT_EQ(VelTraceService::OpenChannelCount(), before);
}

TEST_F(VelRshParameterBaseTest, ParameterWithoutATrace_WorksAllTheSame) {
  VelTraceService::SetAvailable(false);
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hParameter = Add(hShader, "p", "VelRmaScalar");
  EXPECT_EQ(hParameter->SetConnection(AddNode(hShader).Get()), S_OK);
  VelTraceService::SetAvailable(true);
}

}  // namespace
