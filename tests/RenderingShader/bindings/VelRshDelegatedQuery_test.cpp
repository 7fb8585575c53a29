// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshDelegatedQuery_test.cpp The query by which a shader's extension finds what answers in its place, and
/// what its misuse raises.
#include "RenderingShader/VelRshModel.m/src/bindings/VelRshDelegatedQuery.h"

#include <gtest/gtest.h>

#include "RenderingShader/VelRshModel.m/src/bindings/VelRshDelegatingExtension.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/viewer/VelIHardwareMaterial.h"
#include "tests/RenderingShader/bindings/FatalErrorRecorder.h"
#include "tests/RenderingShader/model/fixtures/VelTestDelegation.h"
#include "tests/RenderingShader/model/fixtures/VelTestShaderDelegate.h"

namespace {

constexpr const char* source = "RenderingShader/VelRshModel.m/src/VelRshShaderFeature";

/// An object on the stack that says of itself what a test wants.
class Stand final : public VelBaseUnknown {
 public:
  Stand(VelComponent* iComponent, VelBaseUnknown* iImpl) noexcept : component_(iComponent), impl_(iImpl) {}

  HRESULT QueryInterface(const VelInterfaceId&, VelBaseUnknown** oInterface) noexcept override {
    *oInterface = nullptr;
    return E_NOINTERFACE;
  }
  std::uint32_t AddRef() noexcept override { return 1; }
  std::uint32_t Release() noexcept override { return 1; }
  VelComponent* GetComponent() noexcept override { return component_; }
  VelBaseUnknown* GetImpl() noexcept override { return impl_; }
  const VelMetaClass& GetMetaObject() const noexcept override { return VelObject::MetaObject(); }

 private:
  VelComponent* component_;
  VelBaseUnknown* impl_;
};

class VelRshDelegatedQueryTest : public ::testing::Test {
 protected:
  /// Makes the delegate that answers all there is that of the object.
  void Delegate(const char* iLateType = "VelTestType_ext") {
    ASSERT_EQ(VelIDelegation_var(hObject_)->SetDelegate(VelObject::Create(iLateType, nullptr).Get()), S_OK);
  }

  /// Queries, with a fatal error that returns.
  HRESULT Query(VelBaseUnknown* iExtension, const VelInterfaceId* iInterface, VelBaseUnknown** oInterface) {
    const FatalErrorRecorder recorder;
    const HRESULT result = VelRshDelegatedQuery(iExtension, iInterface, oInterface);
    raised_ = recorder.Raised();
    return result;
  }

  /// Queries the object for a hardware material and lets go of it again.
  HRESULT QueryObject() {
    VelBaseUnknown_var hAnswer;
    return Query(hObject_->GetComponent(), &hardware_, hAnswer.Receive());
  }

  static std::vector<std::string> Raised(int iLine, const char* iMessage) {
    return {std::string(source) + ":" + std::to_string(iLine) + " " + iMessage};
  }

  const VelInterfaceId& hardware_ = VelIHardwareMaterial::InterfaceId();
  VelTestShaderDelegateBindings delegates_;
  VelTestDelegationBindings delegation_;
  VelBaseUnknown_var hObject_ = VelObject::Create("VelTestDelegating", nullptr);
  std::vector<std::string> raised_;
};

TEST_F(VelRshDelegatedQueryTest, AnsweringDelegate_AnswersWithAReference) {
  Delegate();
  VelBaseUnknown_var hAnswer;
  EXPECT_EQ(Query(hObject_->GetComponent(), &hardware_, hAnswer.Receive()), S_OK);
  ASSERT_TRUE(hAnswer);
  EXPECT_EQ(hAnswer->GetComponent()->LateTypeName(), "VelTestType_ext") << "the delegate's own answer";
  EXPECT_EQ(raised_, std::vector<std::string>{});
}

TEST_F(VelRshDelegatedQueryTest, ObjectThatStandsForTheComponent_IsAnswered) {
  Delegate();
  Stand stand(hObject_->GetComponent(), hObject_->GetComponent());
  VelBaseUnknown_var hAnswer;
  EXPECT_EQ(Query(&stand, &hardware_, hAnswer.Receive()), S_OK);
  EXPECT_TRUE(hAnswer);
}

TEST_F(VelRshDelegatedQueryTest, AnotherObjectOfTheComponent_IsNotAnswered) {
  Delegate();
  const VelIDelegation_var hForwarder(hObject_);
  Stand alone(hObject_->GetComponent(), nullptr);
  for (VelBaseUnknown* extension :
       {static_cast<VelBaseUnknown*>(hForwarder.Get()), hForwarder->GetImpl(), static_cast<VelBaseUnknown*>(&alone)}) {
    VelBaseUnknown* answer = nullptr;
    EXPECT_EQ(Query(extension, &hardware_, &answer), E_FAIL);
    EXPECT_EQ(answer, nullptr);
    EXPECT_EQ(raised_, std::vector<std::string>{});
  }
}

TEST_F(VelRshDelegatedQueryTest, MissingDelegate_IsNoAnswer) {
  EXPECT_EQ(QueryObject(), E_FAIL);
  for (const HRESULT code : {E_FAIL, E_NOINTERFACE, S_OK}) {
    delegation_.getCode = code;
    EXPECT_EQ(QueryObject(), E_FAIL) << code;
    EXPECT_EQ(raised_, std::vector<std::string>{});
  }
}

TEST_F(VelRshDelegatedQueryTest, DelegateThatDoesNotAnswer_IsNoAnswer) {
  Delegate("VelTestLink_ext");
  EXPECT_EQ(QueryObject(), E_FAIL);
  EXPECT_EQ(raised_, std::vector<std::string>{});
}

TEST_F(VelRshDelegatedQueryTest, MissingArgument_IsRaised) {
  Delegate();
  VelComponent* component = hObject_->GetComponent();
  VelBaseUnknown* answer = nullptr;
  VelBaseUnknown* full = component;
  struct Case {
    const char* name;
    VelBaseUnknown* extension;
    const VelInterfaceId* interfaceId;
    VelBaseUnknown** out;
  };
  const Case cases[] = {{"no extension", nullptr, &hardware_, &answer},
                        {"no identifier", component, nullptr, &answer},
                        {"no out pointer", component, &hardware_, nullptr},
                        {"an out pointer that is set", component, &hardware_, &full}};
  for (const Case& row : cases) {
    EXPECT_EQ(Query(row.extension, row.interfaceId, row.out), E_FAIL) << row.name;
    EXPECT_EQ(raised_, Raised(85, "AssertionFailed:0")) << row.name;
  }
  EXPECT_EQ(answer, nullptr);
  EXPECT_EQ(full, component);
}

TEST_F(VelRshDelegatedQueryTest, ExtensionWithoutAComponent_IsRaised) {
  Stand lost(nullptr, nullptr);
  VelBaseUnknown* answer = nullptr;
  EXPECT_EQ(Query(&lost, &hardware_, &answer), E_FAIL);
  EXPECT_EQ(raised_, Raised(92, "AssertionFailed:0"));
}

TEST_F(VelRshDelegatedQueryTest, ComponentWithoutADelegation_IsRaised) {
  delegation_.declines = true;
  EXPECT_EQ(QueryObject(), E_FAIL);
  EXPECT_EQ(raised_, Raised(118, "AssertionFailed:hr==S_OK"));
}

TEST_F(VelRshDelegatedQueryTest, DelegationThatIsEmpty_IsRaised) {
  const VelTestEmptyDelegation empty;
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestEmptilyDelegating", nullptr);
  VelBaseUnknown* answer = nullptr;
  EXPECT_EQ(Query(hObject->GetComponent(), &hardware_, &answer), E_FAIL);
  EXPECT_EQ(raised_, Raised(119, "AssertionFailed:ptVelIDelegation"));
}

/// Stops the process through the service's default way.
TEST(VelRshDelegatedQueryDeathTest, Misuse_StopsTheProcess) {
  VelBaseUnknown* answer = nullptr;
  Stand lost(nullptr, nullptr);
  const VelInterfaceId& hardware = VelIHardwareMaterial::InterfaceId();
  EXPECT_DEATH(static_cast<void>(VelRshDelegatedQuery(nullptr, &hardware, &answer)),
               "AssertionFailed:0 \\[RenderingShader/VelRshModel.m/src/VelRshShaderFeature:85\\]");
  EXPECT_DEATH(static_cast<void>(VelRshDelegatedQuery(&lost, &hardware, &answer)),
               "AssertionFailed:0 \\[RenderingShader/VelRshModel.m/src/VelRshShaderFeature:92\\]");
  EXPECT_DEATH(
      {
        VelTestDelegationBindings delegation;
        delegation.declines = true;
        const VelBaseUnknown_var hObject = VelObject::Create("VelTestDelegating", nullptr);
        static_cast<void>(VelRshDelegatedQuery(hObject->GetComponent(), &hardware, &answer));
      },
      "AssertionFailed:hr==S_OK \\[RenderingShader/VelRshModel.m/src/VelRshShaderFeature:118\\]");
  EXPECT_DEATH(
      {
        const VelTestEmptyDelegation empty;
        const VelBaseUnknown_var hObject = VelObject::Create("VelTestEmptilyDelegating", nullptr);
        static_cast<void>(VelRshDelegatedQuery(hObject->GetComponent(), &hardware, &answer));
      },
      "AssertionFailed:ptVelIDelegation \\[RenderingShader/VelRshModel.m/src/VelRshShaderFeature:119\\]");
}

/// An extension of the tests' own, which need not be made around anything.
class TestExtension final : public VelRshDelegatingExtension<VelIHardwareMaterial> {
 public:
  using VelRshDelegatingExtension::VelRshDelegatingExtension;
  const VelMetaClass& GetMetaObject() const noexcept override { return VelObject::MetaObject(); }
};

TEST_F(VelRshDelegatedQueryTest, ExtensionAroundNothing_IsRaisedWhenItIsMadeAndWhenItGoes) {
  const FatalErrorRecorder recorder;
  auto* extension = new TestExtension(*hObject_->GetComponent(), nullptr);
  EXPECT_EQ(recorder.Messages(), std::vector<std::string>{"AssertionFailed:TheInterface!=NULL"});
  extension->Release();
  EXPECT_EQ(recorder.Messages(),
            (std::vector<std::string>{"AssertionFailed:TheInterface!=NULL", "AssertionFailed:m_RealInterface"}));
}

TEST_F(VelRshDelegatedQueryTest, ExtensionAroundAnInterface_RaisesNothing) {
  const FatalErrorRecorder recorder;
  const VelIHardwareMaterial_var hReal(VelObject::Create("VelTestType_ext", nullptr));
  ASSERT_TRUE(hReal);
  auto* extension = new TestExtension(*hObject_->GetComponent(), hReal);
  extension->Release();
  EXPECT_EQ(recorder.Messages(), std::vector<std::string>{});
}

TEST(VelRshDelegatedQueryDeathTest, ExtensionAroundNothing_StopsTheProcess) {
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestDelegating", nullptr);
  EXPECT_DEATH(TestExtension(*hObject->GetComponent(), nullptr), "AssertionFailed:TheInterface!=NULL");
}

}  // namespace
