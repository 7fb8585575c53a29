// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelComponent_test.cpp What a query answers, by every mechanism, and what happens at the end of a component.
#include "platform/objectmodeler/VelComponent.h"

#include <thread>

#include "platform/base/VelFatalErrorService.h"
#include "platform/base/VelThreadBinding.h"
#include "platform/objectmodeler/VelBaseUnknown_WR.h"
#include "platform/objectmodeler/VelIDelegation.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "platform/objectmodeler/VelMetaClass.h"
#include "platform/objectmodeler/VelPin.h"
#include "tests/platform/objectmodeler/ObjectModelerTest.h"
#include "tests/support/VelAllocationCounter.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

using VelComponentTest = ObjectModelerTest;
using Texts = std::vector<std::string>;

TEST_F(VelComponentTest, Query_ForATieInterface_AnswersAForwarderOfTheImplementation) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestIValue* value = nullptr;
  ASSERT_EQ(hThing->Query(&value), S_OK);
  int held = 0;
  EXPECT_EQ(value->SetValue(12), S_OK);
  EXPECT_EQ(value->SetValue(12), S_FALSE);
  EXPECT_EQ(value->GetValue(held), S_OK);
  EXPECT_EQ(held, 12);
  EXPECT_EQ(value->Count(), 7);
  EXPECT_EQ(value->Size(), 2.5);
  EXPECT_TRUE(value->IsReady());
  EXPECT_STREQ(value->Label(), "label");
  EXPECT_EQ(value->Text(), VelString("text"));
  EXPECT_STREQ(value->GetImpl()->ClassName(), "VelTestValue");
  value->Release();
}

TEST_F(VelComponentTest, Query_Twice_MeetsTheSameImplementation) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelTestIValue_var hFirst(hThing);
  const VelTestIValue_var hSecond(hThing);
  ASSERT_EQ(hFirst->SetValue(3), S_OK);
  EXPECT_EQ(hSecond->SetValue(3), S_FALSE);
  EXPECT_EQ(hFirst->GetImpl(), hSecond->GetImpl());
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 1);
}

TEST_F(VelComponentTest, Query_ForABoaInterface_AnswersTheExtensionItself) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelTestIView_var hView(hThing);
  ASSERT_TRUE(hView);
  EXPECT_EQ(hView->Answer(), 1);
  EXPECT_EQ(hView->GetImpl(), hView.Get());
  EXPECT_TRUE(hView->IsEqual(hThing.Get()));
}

TEST_F(VelComponentTest, Query_OfABoaExtension_LivesWhileItIsReferenced) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestIView_var hView(hThing);
  EXPECT_EQ(VelInstanceCounts::Now().delegatingExtensions, 1);
  hView = nullptr;
  EXPECT_EQ(VelInstanceCounts::Now().delegatingExtensions, 0);
}

TEST_F(VelComponentTest, Query_ForAnExtensionOfSeveralLateTypes_AnswersOnEachOfThem) {
  for (const char* lateType : {"VelTestThing", "VelTestNodeType", "VelTestLonelyType"}) {
    SCOPED_TRACE(lateType);
    const VelBaseUnknown_var hObject = VelObject::Create(lateType, "VelTestObject");
    const VelTestIShared_var hShared(hObject);
    ASSERT_TRUE(hShared);
    EXPECT_EQ(hShared->Answer(), 3);
  }
}

TEST_F(VelComponentTest, Query_ForWhatNobodyBinds_IsNoInterfaceAndNull) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelBaseUnknown* answer = hThing.Get();
  EXPECT_EQ(hThing->QueryInterface(IID_VelTestINever, &answer), E_NOINTERFACE);
  EXPECT_EQ(answer, nullptr);
  const VelBaseUnknown_var hLonely = VelObject::Create("VelTestLonelyType", "VelTestObject");
  EXPECT_FALSE(VelTestIValue_var(hLonely));
  EXPECT_FALSE(VelTestIView_var(hLonely));
  EXPECT_FALSE(VelTestIMood_var(hLonely));
}

TEST_F(VelComponentTest, Query_OfALateTypeThatNobodyDeclared_AnswersOnlyWhatEveryComponentDoes) {
  const VelBaseUnknown_var hObject = VelObject::Create("VelTestUndeclaredType", "VelTestObject");
  EXPECT_FALSE(VelTestIValue_var(hObject));
  EXPECT_TRUE(VelIDelegation_var(hObject));
  VelBaseUnknown* self = nullptr;
  EXPECT_EQ(hObject->QueryInterface(IID_VelBaseUnknown, &self), S_OK);
  EXPECT_EQ(self, hObject.Get());
  self->Release();
}

TEST_F(VelComponentTest, Query_WithoutAnOutPointer_IsAnInvalidArgument) {
  const VelBaseUnknown_var hThing = MakeThing();
  EXPECT_EQ(hThing->QueryInterface(IID_VelTestIValue, nullptr), E_INVALIDARG);
  EXPECT_EQ(hThing->QueryInterfaceByName("VelTestIValue", nullptr), E_INVALIDARG);
  EXPECT_EQ(hThing->Query(static_cast<VelTestIValue**>(nullptr)), E_INVALIDARG);
}

TEST_F(VelComponentTest, Query_ByName_AnswersAsByIdentifier) {
  const VelBaseUnknown_var hThing = MakeThing();
  struct Case {
    const char* name;
    HRESULT expected;
  };
  for (const Case& test : {Case{"VelTestIValue", S_OK}, Case{"VelTestIView", S_OK}, Case{"VelBaseUnknown", S_OK},
                           Case{"VelTestINever", E_NOINTERFACE}, Case{"VelTestINobodyEverNamedThis", E_NOINTERFACE},
                           Case{"", E_NOINTERFACE}, Case{nullptr, E_NOINTERFACE}}) {
    SCOPED_TRACE(test.name == nullptr ? "null" : test.name);
    VelBaseUnknown* answer = hThing.Get();
    EXPECT_EQ(hThing->QueryInterfaceByName(test.name, &answer), test.expected);
    EXPECT_EQ(answer != nullptr, test.expected == S_OK);
    if (answer != nullptr) answer->Release();
  }
}

TEST_F(VelComponentTest, Query_ByANameThatNobodyDeclared_LeavesNoMemoryOfTheName) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelBaseUnknown_var hAnswer;
  EXPECT_EQ(hThing->QueryInterfaceByName("VelTestIForgotten", hAnswer.Receive()), E_NOINTERFACE);
  EXPECT_EQ(VelInterfaceId::FindIndex("VelTestIForgotten"), VelInterfaceId::noNumber);
}

TEST_F(VelComponentTest, Query_FromAForwarderAnImplementationOrAnExtension_ReachesTheWholeComponent) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelTestIValue_var hValue(hThing);
  const VelTestIView_var hView(hValue);
  ASSERT_TRUE(hView);
  const VelTestIShared_var hShared(hView);
  ASSERT_TRUE(hShared);
  EXPECT_TRUE(VelTestIValue_var(hShared->GetImpl()));
}

TEST_F(VelComponentTest, Query_OnADerivedLateType_PrefersItsOwnRowsToThoseOfItsBase) {
  const VelBaseUnknown_var hSpecial = VelObject::Create("VelTestSpecialThing", "VelTestObject");
  const VelTestIValue_var hValue(hSpecial);
  ASSERT_TRUE(hValue);
  EXPECT_EQ(hValue->Count(), 70);
  EXPECT_STREQ(hValue->GetImpl()->ClassName(), "VelTestSpecialValue");
  const VelTestIShared_var hShared(hSpecial);
  ASSERT_TRUE(hShared) << "what only the base binds is answered too";
  EXPECT_EQ(hShared->Answer(), 3);
}

TEST_F(VelComponentTest, Query_OfAConditionalExtension_FollowsItsMind) {
  const VelBaseUnknown_var hThing = MakeThing();
  for (const bool good : {true, false, true, false}) {
    SCOPED_TRACE(good);
    VelTestScript::Current().moodIsGood = good;
    EXPECT_EQ(static_cast<bool>(VelTestIMood_var(hThing)), good);
    EXPECT_EQ(static_cast<bool>(VelTestIView_var(hThing)), good);
  }
  VelBaseUnknown* answer = hThing.Get();
  EXPECT_EQ(hThing->QueryInterface(IID_VelTestIMood, &answer), E_NOINTERFACE);
  EXPECT_EQ(answer, nullptr);
}

TEST_F(VelComponentTest, Query_OfAnImplementationThatLivesByReference_MakesOnePerForwarder) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestIMood_var hFirst(hThing);
  const VelTestIMood_var hSecond(hThing);
  EXPECT_NE(hFirst->GetImpl(), hSecond->GetImpl());
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 2);
  hFirst = nullptr;
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 1);
  EXPECT_EQ(Notes(), (Texts{"mood attached", "mood attached", "mood destroyed"}));
}

TEST_F(VelComponentTest, Query_AfterTheFirst_AllocatesNothing) {
  if (!VelAllocationCounter::CountsForwarders()) GTEST_SKIP() << "the sanitizer allocates each forwarder by itself";
  const VelBaseUnknown_var hThing = MakeThing();
  const VelTestIValue_var hHeld(hThing);
  EXPECT_FALSE(VelVar<VelTestINever>(hThing));
  const VelAllocationCounter counter;
  for (int i = 0; i < 1000; ++i) {
    const VelTestIValue_var hAgain(hThing);
    const VelTestIValue_var hCopy = hAgain;
    VelBaseUnknown* absent = nullptr;
    EXPECT_EQ(hThing->QueryInterface(IID_VelTestINever, &absent), E_NOINTERFACE);
    EXPECT_EQ(hThing->QueryInterfaceByName("VelTestINever", &absent), E_NOINTERFACE);
  }
  EXPECT_EQ(counter.Count(), 0);
}

TEST_F(VelComponentTest, OffersInterface_IsAnsweredByTheDictionaryAndBuildsNothing) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelComponent& thing = *hThing->GetComponent();
  VelTestScript::Current().moodIsGood = false;
  EXPECT_TRUE(thing.OffersInterface(IID_VelTestIValue));
  EXPECT_TRUE(thing.OffersInterface(IID_VelTestIMood)) << "whether it would decline is not asked";
  EXPECT_TRUE(thing.OffersInterface(IID_VelBaseUnknown));
  EXPECT_FALSE(thing.OffersInterface(IID_VelTestINode));
  EXPECT_EQ(VelInstanceCounts::Now(), (VelInstanceCounts{.components = 1}));
}

TEST_F(VelComponentTest, IsEqual_ComparesComponentsAndNotPointers) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelBaseUnknown_var hOther = MakeThing();
  const VelTestIValue_var hValue(hThing);
  const VelTestIView_var hView(hThing);
  EXPECT_TRUE(hValue->IsEqual(hView.Get()));
  EXPECT_TRUE(hView->IsEqual(hThing.Get()));
  EXPECT_TRUE(hValue->GetImpl()->IsEqual(hThing.Get()));
  EXPECT_FALSE(hValue->IsEqual(hOther.Get()));
  EXPECT_FALSE(hValue->IsEqual(nullptr));
}

TEST_F(VelComponentTest, IsAKindOf_OfAForwarder_FollowsTheInterfaceAndOfAnImplementationTheClass) {
  const VelBaseUnknown_var hSpecial = VelObject::Create("VelTestSpecialThing", "VelTestObject");
  const VelTestIValue_var hValue(hSpecial);
  EXPECT_STREQ(hValue->IsA(), "VelTestIValue");
  EXPECT_TRUE(hValue->IsAKindOf("VelBaseUnknown"));
  EXPECT_FALSE(hValue->IsAKindOf("VelTestValue"));
  EXPECT_TRUE(hValue->GetImpl()->IsAKindOf("VelTestSpecialValue"));
  EXPECT_TRUE(hValue->GetImpl()->IsAKindOf("VelTestValue"));
  EXPECT_TRUE(hValue->GetImpl()->IsAKindOf("VelImplementation"));
  EXPECT_FALSE(hValue->GetImpl()->IsAKindOf("VelTestIValue"));
  EXPECT_TRUE(IID_VelTestISpecialValue.MetaObject().IsAKindOf("VelTestIValue"));
  EXPECT_TRUE(hSpecial->IsAKindOf("VelObject"));
}

TEST_F(VelComponentTest, Operation_ThatThrows_IsACheckAndAFailure) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelTestIValue_var hValue(hThing);
  const RecordingFailureObserver failures;
  EXPECT_EQ(hValue->Fail(), E_FAIL);
  ASSERT_EQ(failures.Failures().size(), 1U);
  EXPECT_EQ(failures.Failures()[0].message, "An operation of an interface threw an exception");
  EXPECT_EQ(failures.Failures()[0].expression, "VelTestIValue");
  EXPECT_EQ(failures.Failures()[0].detail, "VelTestValue: An empty handle of VelTestIValue was used");
}

TEST_F(VelComponentTest, Operations_OfAClosedComponent_FailOrAnswerZero) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelTestIValue_var hValue(hThing);
  const VelTestIView_var hView(hThing);
  const VelTestIMood_var hMood(hThing);
  ASSERT_EQ(hValue->SetValue(9), S_OK);
  End(hThing);
  int held = 1;
  EXPECT_EQ(hValue->SetValue(4), E_FAIL);
  EXPECT_EQ(hValue->GetValue(held), E_FAIL);
  EXPECT_EQ(held, 1);
  EXPECT_EQ(hValue->Count(), 0);
  EXPECT_EQ(hValue->Size(), 0.0);
  EXPECT_FALSE(hValue->IsReady());
  EXPECT_EQ(hValue->Label(), nullptr);
  EXPECT_TRUE(hValue->Text().IsEmpty());
  Notes().clear();
  hValue->Touch();
  EXPECT_EQ(Notes(), Texts{});
  EXPECT_EQ(hValue->GetImpl(), nullptr);
  EXPECT_EQ(hView->Answer(), 0);
  EXPECT_EQ(hMood->Answer(), 0);
  EXPECT_EQ(hValue->GetComponentState(), VelComponentState::Closed);
}

TEST_F(VelComponentTest, Query_OfAClosedComponent_BuildsNothing) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelTestIValue_var hValue(hThing);
  End(hThing);
  EXPECT_FALSE(VelTestIValue_var(hThing)) << "what was built is destroyed";
  EXPECT_FALSE(VelTestIShared_var(hThing)) << "and nothing new is built";
  EXPECT_FALSE(VelTestIView_var(hThing));
  EXPECT_FALSE(VelTestIMood_var(hThing));
}

TEST_F(VelComponentTest, Query_WhileAPinKeepsWhatWasBuilt_AnswersAForwarderThatFails) {
  const VelBaseUnknown_var hThing = MakeThing();
  ASSERT_TRUE(VelTestIValue_var(hThing));
  {
    const VelPin pin(*hThing->GetComponent());
    End(hThing);
    const VelTestIValue_var hValue(hThing);
    ASSERT_TRUE(hValue);
    EXPECT_EQ(hValue->SetValue(1), E_FAIL);
    EXPECT_FALSE(VelTestIShared_var(hThing));
    EXPECT_EQ(Notes(), (Texts{"state 1 to 2"})) << "announced, but not destroyed yet";
  }
  EXPECT_EQ(Notes(), (Texts{"state 1 to 2", "value destroyed"}));
  EXPECT_FALSE(VelTestIValue_var(hThing));
}

TEST_F(VelComponentTest, Close_IsAnnouncedOnceAndThenDestroysTheYoungestFirst) {
  VelBaseUnknown_var hThing = MakeThing();
  ASSERT_TRUE(VelTestIValue_var(hThing));
  End(hThing);
  End(hThing);
  EXPECT_EQ(Notes(), (Texts{"state 1 to 2", "value destroyed"}));
  hThing = nullptr;
  EXPECT_EQ(Notes(), (Texts{"state 1 to 2", "value destroyed"}));
}

TEST_F(VelComponentTest, Close_InsideAnOperationOfItsOwn_WaitsUntilTheCallUnwinds) {
  const VelBaseUnknown_var hThing = MakeThing();
  const VelTestIValue_var hValue(hThing);
  EXPECT_EQ(hValue->EndOwnLife(), S_OK);
  EXPECT_EQ(Notes(), (Texts{"state 1 to 2", "still running", "value destroyed"}));
  EXPECT_EQ(hValue->EndOwnLife(), E_FAIL);
}

TEST_F(VelComponentTest, Operation_ThatDropsTheLastForwarderAndThrows_IsSafe) {
  VelBaseUnknown_var hThing = MakeThing();
  VelTestIValue_var hValue(hThing);
  VelTestScript::Current().inOperation = [&] {
    hThing = nullptr;
    VelTestIValue* const last = hValue.Detach();
    last->Release();
  };
  VelTestIValue* const value = hValue.Get();
  const RecordingFailureObserver failures;
  EXPECT_EQ(value->DropAndFail(), E_FAIL);
  EXPECT_EQ(failures.Failures().size(), 1U);
  EXPECT_EQ(Notes(), (Texts{"state 1 to 2", "value destroyed"})) << "after the call";
  EXPECT_EQ(VelInstanceCounts::Now(), VelInstanceCounts{});
}

TEST_F(VelComponentTest, Operation_ThatDropsItsOwnForwarder_KeepsAnImplementationThatLivesByReference) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelTestIMood_var hMood(hThing);
  VelTestIMood* const mood = hMood.Get();
  VelTestScript::Current().inOperation = [&] { hMood = nullptr; };
  EXPECT_EQ(mood->Answer(), 2);
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
}

TEST_F(VelComponentTest, StateChange_WhoseHandlerPinsItsComponent_DestroysNothingUnderTheAnnouncement) {
  const VelBaseUnknown_var hThing = MakeThing();
  ASSERT_TRUE(VelTestIShared_var(hThing));
  ASSERT_TRUE(VelTestIValue_var(hThing));
  VelTestScript::Current().inStateChange = [](VelComponent& ioComponent) {
    const VelPin pin(ioComponent);
    EXPECT_FALSE(VelTestIMood_var(&ioComponent));
    VelTestIShared_var hShared(&ioComponent);
    ASSERT_TRUE(hShared) << "what is built still answers";
    EXPECT_EQ(hShared->Answer(), 0);
  };
  End(hThing);
  EXPECT_EQ(Notes(), (Texts{"state 1 to 2", "value destroyed"}));
}

TEST_F(VelComponentTest, Destructor_ThatPinsItsComponent_StartsNoOtherRoundOfDestruction) {
  const VelBaseUnknown_var hThing = MakeThing();
  ASSERT_TRUE(VelTestIShared_var(hThing));
  ASSERT_TRUE(VelTestIValue_var(hThing));
  VelTestScript::Current().inDestructor = [](VelComponent& ioComponent) {
    const int before = VelInstanceCounts::Now().implementations;
    { const VelPin pin(ioComponent); }
    EXPECT_EQ(VelInstanceCounts::Now().implementations, before) << "the older ones wait for their turn";
  };
  End(hThing);
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 0);
}

#if !defined(NDEBUG)
TEST_F(VelComponentTest, Query_FromAnotherThreadThanTheBoundOne_IsUnexpectedAndAnAssertion) {
  class Handler final : public VelFatalErrorHandler {
   public:
    void OnFatalError(const VelFailureReport& iReport) override { message = iReport.message; }
    std::string message;
  } handler;
  const VelBaseUnknown_var hThing = MakeThing();
  VelFatalErrorService::SetHandler(&handler);
  VelThreadBinding::Bind();
  HRESULT result = S_OK;
  VelBaseUnknown* answer = hThing.Get();
  std::thread([&] { result = hThing->QueryInterface(IID_VelTestIValue, &answer); }).join();
  VelThreadBinding::Unbind();
  VelFatalErrorService::SetHandler(nullptr);
  EXPECT_EQ(result, E_UNEXPECTED);
  EXPECT_EQ(answer, nullptr);
  EXPECT_EQ(handler.message, "AssertionFailed:VelThreadBinding::IsBoundThread()");
}
#endif

TEST_F(VelComponentTest, LastRelease_WithoutAnExplicitEnd_ClosesAndDestroys) {
  VelBaseUnknown_var hThing = MakeThing();
  VelTestIValue_var hValue(hThing);
  hThing = nullptr;
  EXPECT_EQ(Notes(), Texts{}) << "a forwarder keeps its component";
  EXPECT_EQ(hValue->SetValue(1), S_OK);
  hValue = nullptr;
  EXPECT_EQ(Notes(), (Texts{"state 1 to 2", "value destroyed"}));
  EXPECT_EQ(VelInstanceCounts::Now(), VelInstanceCounts{});
}

TEST_F(VelComponentTest, Delegation_HoldsItsDelegateUntilTheComponentIsClosed) {
  const VelBaseUnknown_var hThing = MakeThing();
  VelBaseUnknown_var hDelegate = MakeThing();
  const VelIDelegation_var hDelegation(hThing);
  VelBaseUnknown_var hAnswer;
  EXPECT_EQ(hDelegation->GetDelegate(nullptr), E_INVALIDARG);
  EXPECT_EQ(hDelegation->GetDelegate(hAnswer.Receive()), E_FAIL);
  EXPECT_FALSE(hAnswer);
  EXPECT_EQ(hDelegation->SetDelegate(nullptr), S_FALSE);
  EXPECT_EQ(hDelegation->SetDelegate(hDelegate.Get()), S_OK);
  EXPECT_EQ(hDelegation->SetDelegate(hDelegate.Get()), S_FALSE);
  EXPECT_EQ(hDelegation->GetDelegate(hAnswer.Receive()), S_OK);
  EXPECT_TRUE(hAnswer->IsEqual(hDelegate.Get()));
  hAnswer = nullptr;
  const VelBaseUnknown_WR delegate(hDelegate.Get());
  hDelegate = nullptr;
  EXPECT_NE(delegate.Get(), nullptr) << "the delegation keeps it";
  End(hThing);
  EXPECT_EQ(delegate.Get(), nullptr) << "and lets it go with the component";
  EXPECT_EQ(hDelegation->SetDelegate(hThing.Get()), E_FAIL);
}

}  // namespace
