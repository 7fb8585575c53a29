// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshDelegatingExtension_test.cpp The five interfaces that a shader answers through its delegate.
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/RenderingShader/bindings/FatalErrorRecorder.h"
#include "tests/RenderingShader/model/ShaderFeatureTest.h"
#include "tests/RenderingShader/model/fixtures/VelTestDelegation.h"
#include "tests/RenderingShader/model/fixtures/VelTestShaderDelegate.h"

namespace {

/// An interface that is delegated, and the class that does it.
struct Delegated {
  const VelInterfaceId& interfaceId;
  const char* extension;
};

const Delegated delegatedInterfaces[] = {
    {IID_VelIHardwareMaterial, "DelegatingExtensionVelIHardwareMaterialVelRmaShader"},
    {IID_VelIOpenGLShaderMaterial, "DelegatingExtensionVelIOpenGLShaderMaterialVelRmaShader"},
    {IID_VelIRmaMappingManipulator, "DelegatingExtensionVelIRmaMappingManipulatorVelRmaShader"},
    {IID_VelIRmaMappingManipulatorMaterial, "DelegatingExtensionVelIRmaMappingManipulatorMaterialVelRmaShader"},
    {IID_VelIRshShaderResources, "DelegatingExtensionVelIRshShaderResourcesVelRmaShader"},
};

class VelRshDelegatingExtensionTest : public ShaderFeatureTest {
 protected:
  void SetUp() override {
    ShaderFeatureTest::SetUp();
    delegates_.emplace();
  }
  void TearDown() override {
    CloseContainer();
    delegates_.reset();
    ShaderFeatureTest::TearDown();
    EXPECT_EQ(fatals_.Messages(), Texts{}) << "an absent answer is no misuse";
  }

  /// Expects that a shader answers none of them.
  static void ExpectNone(const VelIRshShader_var& iShader, const char* iWhy) {
    for (const Delegated& row : delegatedInterfaces) {
      VelBaseUnknown_var hAnswer;
      EXPECT_EQ(iShader->QueryInterface(row.interfaceId, hAnswer.Receive()), E_NOINTERFACE) << row.extension << iWhy;
      EXPECT_FALSE(hAnswer);
    }
  }

  std::optional<VelTestShaderDelegateBindings> delegates_;
  FatalErrorRecorder fatals_;
};

TEST_F(VelRshDelegatingExtensionTest, Shader_AnswersWhatItsDelegateAnswers_AsItself) {
  const VelIRshShader_var hShader = MakeShader("VelTestType");
  for (const Delegated& row : delegatedInterfaces) {
    VelBaseUnknown_var hAnswer;
    EXPECT_EQ(hShader->QueryInterface(row.interfaceId, hAnswer.Receive()), S_OK) << row.extension;
    ASSERT_TRUE(hAnswer) << row.extension;
    EXPECT_STREQ(hAnswer->ClassName(), row.extension);
    EXPECT_TRUE(IsSameObject(hAnswer.Get(), hShader.Get())) << row.extension;
    EXPECT_FALSE(IsSameObject(hAnswer.Get(), DelegateOf(hShader.Get()).Get())) << row.extension;
    EXPECT_TRUE(VelIRshShader_var(hAnswer)) << "asked on, the shader answers";
    EXPECT_EQ(VelInstanceCounts::Now().delegatingExtensions, 1);
  }
  EXPECT_EQ(VelInstanceCounts::Now().delegatingExtensions, 0) << "each lives while it is referenced";
}

TEST_F(VelRshDelegatingExtensionTest, ShaderWhoseDelegateIsNotMadeYet_AnswersNone) {
  const VelISpecObject_var hFeature = Make("VelRmaShader");
  ASSERT_EQ(Access(hFeature)->SetText(type_, "VelTestType"), S_OK);
  const VelIRshShader_var hShader(hFeature);
  ExpectNone(hShader, ": deliberately, a query makes no delegate");
  EXPECT_EQ(TypeOfShader(hShader.Get()), "VelTestType");
  EXPECT_TRUE(VelIHardwareMaterial_var(hShader));
}

TEST_F(VelRshDelegatingExtensionTest, ShaderWhoseDelegateDoesNotAnswer_AnswersNone) {
  ExpectNone(MakeShader("VelTestLink"), ": another late type");
  ExpectNone(MakeShader("BasicMaterial"), ": a late type that nothing is bound to");
}

TEST_F(VelRshDelegatingExtensionTest, ClosedShader_AnswersNone_NotEvenWhatIsHeld) {
  const VelIRshShader_var hShader = MakeShader("VelTestType");
  const VelIRshShaderResources_var hHeld(hShader);
  VelUnicodeString text("untouched");
  ASSERT_EQ(Remove(hShader.Get()), S_OK);
  ExpectNone(hShader, ": closed");
  EXPECT_EQ(hHeld->GetText("label", "known", text), E_FAIL);
  EXPECT_EQ(text, "untouched");
}

TEST_F(VelRshDelegatingExtensionTest, ClosingShader_AnswersNone) {
  bool isAsked = false;
  VelIRshShader_var hShader = MakeShader("VelTestType");
  delegates_->onEnd = [&] {
    isAsked = true;
    ExpectNone(hShader, ": its delegate is ending");
  };
  ASSERT_EQ(Remove(hShader.Get()), S_OK);
  EXPECT_TRUE(isAsked);
}

TEST_F(VelRshDelegatingExtensionTest, Resources_AreTheDelegates) {
  const VelIRshShader_var hShader = MakeShader("VelTestType");
  const VelIRshShaderResources_var hResources(hShader);
  ASSERT_TRUE(hResources);
  VelUnicodeString text("untouched");
  EXPECT_EQ(hResources->GetText("label", "unknown", text), E_FAIL);
  EXPECT_EQ(text, "untouched");
  EXPECT_EQ(hResources->GetText("label", "known", text), S_OK);
  EXPECT_EQ(text, "label of the type");
}

TEST_F(VelRshDelegatingExtensionTest, Delegation_IsTheOneThatTheShaderIsBoundTo) {
  VelTestDelegationBindings delegation;
  {
    const VelIRshShader_var hShader = MakeShader("VelTestType");
    EXPECT_TRUE(VelIHardwareMaterial_var(hShader));
    for (const HRESULT code : {E_FAIL, S_OK}) {
      delegation.getCode = code;
      ExpectNone(hShader, ": no delegate is told");
    }
  }
  CloseContainer();
}

}  // namespace
