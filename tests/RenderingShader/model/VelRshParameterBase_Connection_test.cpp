// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Connection_test.cpp Connecting shaders: codes, the trace, the nodes and who is told.
#include <cinttypes>
#include <cstdio>

#include "RenderingShader/interfaces/VelRshModelNotificationParameterConnectionChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "platform/events/VelExtIModelEvents.h"
#include "platform/events/VelIModelEvents.h"
#include "platform/materials/VelRbaNotificationTopologyModification.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/trace/VelTraceService.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/model/fixtures/VelTestConnectedShader.h"
#include "tests/RenderingShader/model/fixtures/VelTestEventRecorder.h"
#include "tests/RenderingShader/model/fixtures/VelTestHostListener.h"

namespace {

using Changed = VelRshModelNotificationParameterConnectionChanged;
using Events = VelRshParameterPublisherEvents;

std::string Address(const void* iPointer) {
  char text[32];
  std::snprintf(text, sizeof text, "%" PRIxPTR, reinterpret_cast<std::uintptr_t>(iPointer));
  return text;
}

class VelRshParameterBaseConnectionTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hShader_ = MakeShader();
    hParameter_ = Add(hShader_, "normal", "VelRmaColor");
    hNode_ = AddNode(hShader_);
    hOther_ = AddNode(hShader_);
  }
  void TearDown() override {
    for (VelIRshShader_var* handle : {&hShader_, &hNode_, &hOther_}) *handle = nullptr;
    hParameter_ = nullptr;
    RshModelTest::TearDown();
  }

  static bool IsConnected(const VelIRshParameter_var& iParameter, VelBaseUnknown* iShader) {
    return IsSameObject(ConnectionOf(iParameter).Get(), iShader);
  }
  static void Remove(VelBaseUnknown* iObject) {
    const VelISpecObject_var hFeature(iObject);
    EXPECT_EQ(LifeCycleObject_var(hFeature)->remove(), S_OK);
  }
  bool IsNode(const VelIRshShader_var& iShader) const {
    const VelISpecObject_var hFeature(iShader);
    VelISpecObject_var hFather;
    return SUCCEEDED(hFeature->GetFather(hFather.Receive())) && IsSameObject(hFather.Get(), hShader_.Get());
  }

  VelIRshShader_var hShader_;
  VelIRshParameter_var hParameter_;
  VelIRshShader_var hNode_;
  VelIRshShader_var hOther_;
};

TEST_F(VelRshParameterBaseConnectionTest, ConnectReplaceDisconnect_StandInTheDocument) {
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_TRUE(IsConnected(hParameter_, hNode_.Get()));
  EXPECT_EQ(hParameter_->SetConnection(hOther_.Get()), S_OK);
  EXPECT_TRUE(IsConnected(hParameter_, hOther_.Get()));
  const VelISpecAttrAccess_var hAccess(hParameter_);
  VelBaseUnknown_var hStored;
  EXPECT_EQ(hAccess->GetReference(node_, hStored.Receive()), S_OK);
  EXPECT_TRUE(IsSameObject(hStored.Get(), hOther_.Get()));
  EXPECT_EQ(hParameter_->SetConnection(nullptr), S_OK);
  EXPECT_FALSE(hAccess->IsValuated(node_));
}

TEST_F(VelRshParameterBaseConnectionTest, EveryParameter_CanBeConnected) {
  for (const char* startUp :
       {"VelRmaParameter", "VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor", "VelRmaVector",
        "VelRmaMatrix", "VelRmaString", "VelRmaTexture", "VelRmaLightProfile", "VelRmaVoid"}) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", startUp);
    const VelIRshShader_var hNode = AddNode(hShader_);
    EXPECT_EQ(hParameter->SetConnection(hNode.Get()), S_OK) << startUp;
    EXPECT_TRUE(IsConnected(hParameter, hNode.Get())) << startUp;
    EXPECT_EQ(hParameter->SetConnection(nullptr), S_OK) << startUp;
    EXPECT_FALSE(IsNode(hNode)) << startUp;
  }
}

TEST_F(VelRshParameterBaseConnectionTest, ToTheShaderAlreadyConnected_ReturnsUnchangedAndStaysSilent) {
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hParameter_), Events::CONNECTION_UPDATED());
  VelTestHostListener host;
  EXPECT_EQ(host.ConnectTo(hParameter_.Get()), S_OK);
  VelTraceService::SetSwitches("VelRshParameter=info");
  EXPECT_EQ(hParameter_->SetConnection(nullptr), S_FALSE);
  EXPECT_EQ(recorder.Notes(), Texts{});
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_FALSE);
  EXPECT_EQ(recorder.Notes().size(), 1U);
  EXPECT_EQ(host.notes.size(), 1U);
  EXPECT_EQ(traces_.Texts("VelRshParameter").size(), 1U);
}

TEST_F(VelRshParameterBaseConnectionTest, ToWhatIsNoFeature_IsInvalidAndChangesNothing) {
  const VelTestConnectedShaderBindings bindings;
  const VelIRshShader_var hNoFeature(VelObject::Create("VelTestShaderOfNoFeature", nullptr));
  ASSERT_TRUE(hNoFeature);
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hParameter_), Events::CONNECTION_UPDATED());
  EXPECT_EQ(hParameter_->SetConnection(hNoFeature.Get()), E_INVALIDARG);
  EXPECT_TRUE(IsConnected(hParameter_, hNode_.Get()));
  EXPECT_EQ(recorder.Notes(), Texts{});
  EXPECT_EQ(VelTestConnectedShader::Of(*hNoFeature).notes, Texts{});
}

TEST_F(VelRshParameterBaseConnectionTest, ToAShaderThatIsRemoved_IsInvalid) {
  Remove(hNode_.Get());
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), E_INVALIDARG);
}

TEST_F(VelRshParameterBaseConnectionTest, ClosedParameter_AnswersEFail) {
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  Remove(hParameter_.Get());
  EXPECT_EQ(hParameter_->SetConnection(hOther_.Get()), E_FAIL);
  EXPECT_EQ(hParameter_->SetConnection(nullptr), E_FAIL);
  VelIRshShader* read = hOther_.Get();
  EXPECT_EQ(hParameter_->GetConnection(&read), E_FAIL);
  EXPECT_EQ(hParameter_->GetConnection(nullptr), E_FAIL);
}

TEST_F(VelRshParameterBaseConnectionTest, GetConnection_TellsByItsCodeWhatThereIs) {
  VelIRshShader* read = hOther_.Get();
  EXPECT_EQ(hParameter_->GetConnection(&read), E_FAIL);
  EXPECT_EQ(read, nullptr);
  EXPECT_EQ(hParameter_->GetConnection(nullptr), E_FAIL);
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(hParameter_->GetConnection(nullptr), S_OK);
  // A reference to what is no shader.
  const VelIRshParameter_var hNoShader = Add(hShader_, "p", "VelRmaScalar");
  EXPECT_EQ(VelISpecAttrAccess_var(hParameter_)->SetReference(node_, hNoShader.Get()), S_OK);
  read = hOther_.Get();
  EXPECT_EQ(hParameter_->GetConnection(&read), E_NOINTERFACE);
  EXPECT_EQ(read, nullptr);
  EXPECT_EQ(hParameter_->GetConnection(nullptr), E_NOINTERFACE);
}

TEST_F(VelRshParameterBaseConnectionTest, ReferenceToWhatIsNoShader_IsNoConnection) {
  const VelIRshParameter_var hNoShader = Add(hShader_, "p", "VelRmaScalar");
  const VelISpecAttrAccess_var hAccess(hParameter_);
  EXPECT_EQ(hAccess->SetReference(node_, hNoShader.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(nullptr), S_FALSE);
  EXPECT_TRUE(hAccess->IsValuated(node_));
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_TRUE(IsConnected(hParameter_, hNode_.Get()));
}

TEST_F(VelRshParameterBaseConnectionTest, GetConnection_ConnectsModelEventsOnlyWhenItHandsTheShaderOut) {
  const VelIModelEvents_var hEvents(hParameter_);
  EXPECT_EQ(VelISpecAttrAccess_var(hParameter_)->SetReference(node_, hNode_.Get()), S_OK);
  EXPECT_EQ(hParameter_->GetConnection(nullptr), S_OK);
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
  EXPECT_TRUE(IsConnected(hParameter_, hNode_.Get()));
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 1);
  EXPECT_EQ(hEvents->ConnectTo(hNode_.Get()), S_FALSE);
}

TEST_F(VelRshParameterBaseConnectionTest, ModelEvents_FollowTheConnection) {
  const VelIModelEvents_var hEvents(hParameter_);
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(hEvents->ConnectTo(hNode_.Get()), S_FALSE);
  EXPECT_EQ(hParameter_->SetConnection(hOther_.Get()), S_OK);
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 1);
  EXPECT_EQ(hEvents->ConnectTo(hOther_.Get()), S_FALSE);
  EXPECT_EQ(hParameter_->SetConnection(nullptr), S_OK);
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
}

TEST_F(VelRshParameterBaseConnectionTest, Trace_NamesBothPointers) {
  VelTraceService::SetSwitches("VelRshParameter=info");
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(nullptr), S_OK);
  const std::string node = Address(hNode_.Get());
  const Texts texts = traces_.Texts("VelRshParameter", VelTraceKind::Information);
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts[0], "Changed connection { previous pointer = 0, next pointer = " + node + " }");
  const std::string start = "Changed connection { previous pointer = ";
  EXPECT_EQ(texts[1].substr(0, start.size()), start);
  EXPECT_EQ(texts[1].substr(texts[1].find(',')), ", next pointer = 0 }");
}

TEST_F(VelRshParameterBaseConnectionTest, TraceThatIsOff_SaysNothing) {
  VelTraceService::SetSwitches("VelRshParameter=warning");
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(traces_.Texts("VelRshParameter", VelTraceKind::Information), Texts{});
}

TEST_F(VelRshParameterBaseConnectionTest, Subscribers_HearPreviousAndNext) {
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hParameter_), Events::CONNECTION_UPDATED());
  std::vector<VelIRshShader_var> shaders;
  bool isPublisher = true;
  recorder.Do([&](VelEventName, VelBaseUnknown* iPublisher, VelNotification* ioNotification) {
    const auto* changed = VelNotificationCast<Changed>(ioNotification);
    ASSERT_NE(changed, nullptr);
    shaders.push_back(changed->GetPrevious());
    shaders.push_back(changed->GetNext());
    isPublisher = isPublisher && IsSameObject(iPublisher, hParameter_.Get());
  });
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(hOther_.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(nullptr), S_OK);
  ASSERT_EQ(shaders.size(), 6U);
  VelBaseUnknown* const expected[] = {nullptr, hNode_.Get(), hNode_.Get(), hOther_.Get(), hOther_.Get(), nullptr};
  for (std::size_t i = 0; i < 6; ++i) EXPECT_TRUE(IsSameObject(shaders[i].Get(), expected[i])) << i;
  EXPECT_TRUE(isPublisher);
}

TEST_F(VelRshParameterBaseConnectionTest, Host_HearsTheTopologyModification) {
  VelTestHostListener host;
  EXPECT_EQ(host.ConnectTo(hParameter_.Get()), S_OK);
  std::vector<VelBaseUnknown_var> shaders;
  host.look = [&](VelNotification& ioNotification) {
    const auto* changed = VelNotificationCast<VelRbaNotificationTopologyModification>(&ioNotification);
    ASSERT_NE(changed, nullptr) << ioNotification.ClassName();
    EXPECT_EQ(changed->GetName(), "normal");
    EXPECT_TRUE(IsSameObject(changed->GetObject(), hParameter_.Get()));
    EXPECT_EQ(&changed->GetInterface(), &VelIRshParameter::InterfaceId());
    EXPECT_EQ(&changed->GetSubComponentsIID(), &VelIRshShader::InterfaceId());
    shaders.push_back(changed->GetPrevious());
    shaders.push_back(changed->GetNext());
  };
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(nullptr), S_OK);
  ASSERT_EQ(shaders.size(), 4U);
  VelBaseUnknown* const expected[] = {nullptr, hNode_.Get(), hNode_.Get(), nullptr};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_TRUE(IsSameObject(shaders[i].Get(), expected[i])) << i;
}

TEST_F(VelRshParameterBaseConnectionTest, Order_IsModelEventsThenSubscribersThenHost) {
  VelTestHostListener host;
  EXPECT_EQ(host.ConnectTo(hParameter_.Get()), S_OK);
  const int before = VelExtIModelEvents::CountConnections();
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hParameter_), Events::CONNECTION_UPDATED());
  int connections = 0;
  Texts hostBySubscriber{"not called"};
  recorder.Do([&](VelEventName, VelBaseUnknown*, VelNotification*) {
    connections = VelExtIModelEvents::CountConnections();
    hostBySubscriber = host.notes;
  });
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(connections, before + 1);
  EXPECT_EQ(hostBySubscriber, Texts{});
  EXPECT_EQ(host.notes, Texts{"VelRbaNotificationTopologyModification"});
}

TEST_F(VelRshParameterBaseConnectionTest, WithoutAName_IsEFailAlthoughConnected) {
  const VelIRshParameter_var hNameless(Make("VelRmaScalar"));
  EXPECT_EQ(hShader_->AppendParameter(hNameless.Get()), S_OK);
  VelTestHostListener host;
  EXPECT_EQ(host.ConnectTo(hNameless.Get()), S_OK);
  EXPECT_EQ(hNameless->SetConnection(hNode_.Get()), E_FAIL);
  EXPECT_TRUE(IsConnected(hNameless, hNode_.Get()));
  EXPECT_EQ(hNameless->SetConnection(nullptr), E_FAIL);
  EXPECT_FALSE(ConnectionOf(hNameless));
  EXPECT_TRUE(IsNode(hNode_)) << "the steps after the failure do not run";
  EXPECT_EQ(host.notes, Texts{});
  // Where there are no model events, no name is needed.
  const VelIRshParameter_var hVoid(Make("VelRmaVoid"));
  EXPECT_EQ(hShader_->AppendParameter(hVoid.Get()), S_OK);
  EXPECT_EQ(hVoid->SetConnection(hNode_.Get()), S_OK);
}

TEST_F(VelRshParameterBaseConnectionTest, LastUser_TakesTheShaderOutOfTheNodes) {
  const VelIRshParameter_var hSecond = Add(hShader_, "second", "VelRmaScalar");
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(hSecond->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(hOther_.Get()), S_OK);
  EXPECT_TRUE(IsNode(hNode_)) << "the second parameter is still connected";
  EXPECT_EQ(hSecond->SetConnection(nullptr), S_OK);
  EXPECT_FALSE(IsNode(hNode_));
  EXPECT_TRUE(IsNode(hOther_));
}

TEST_F(VelRshParameterBaseConnectionTest, ShaderThatCannotBeLetGo_IsEFailAlthoughDisconnected) {
  // Without a father.
  const VelIRshShader_var hFree = MakeShader();
  EXPECT_EQ(hParameter_->SetConnection(hFree.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(nullptr), E_FAIL);
  EXPECT_FALSE(ConnectionOf(hParameter_));
  // With a father that is no shader.
  const VelISpecObject_var hMaterial = FakeRenderingMaterial::Create(*hContainer_);
  EXPECT_EQ(Access(hMaterial)->AppendComponent(Key("Shader", VelSpecAttrKind::Components), hFree.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(hFree.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(nullptr), E_FAIL);
  EXPECT_FALSE(ConnectionOf(hParameter_));
  // With a father of which it is no node.
  const VelIRshShader_var hStray = MakeShader();
  EXPECT_EQ(VelISpecAttrAccess_var(hShader_)->AppendComponent(parameters_, hStray.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(hStray.Get()), S_OK);
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), E_FAIL);
  EXPECT_TRUE(IsConnected(hParameter_, hNode_.Get()));
}

TEST_F(VelRshParameterBaseConnectionTest, ParameterClosedByASubscriber_IsSOkAndTheRestIsSkipped) {
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  VelTestHostListener host;
  EXPECT_EQ(host.ConnectTo(hParameter_.Get()), S_OK);
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hParameter_), Events::CONNECTION_UPDATED());
  recorder.Do([&](VelEventName, VelBaseUnknown* iPublisher, VelNotification*) { Remove(iPublisher); });
  EXPECT_EQ(hParameter_->SetConnection(nullptr), S_OK);
  EXPECT_EQ(host.notes, Texts{});
  EXPECT_TRUE(IsNode(hNode_));
}

TEST_F(VelRshParameterBaseConnectionTest, ParameterClosedByTheHost_IsSOkAndTheNodesStay) {
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  VelTestHostListener host;
  EXPECT_EQ(host.ConnectTo(hParameter_.Get()), S_OK);
  host.look = [&](VelNotification&) { Remove(hParameter_.Get()); };
  EXPECT_EQ(hParameter_->SetConnection(nullptr), S_OK);
  EXPECT_TRUE(IsNode(hNode_));
}

TEST_F(VelRshParameterBaseConnectionTest, PreviousShaderRemovedByASubscriber_IsEFail) {
  EXPECT_EQ(hParameter_->SetConnection(hNode_.Get()), S_OK);
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hParameter_), Events::CONNECTION_UPDATED());
  recorder.Do([&](VelEventName, VelBaseUnknown*, VelNotification*) { Remove(hNode_.Get()); });
  EXPECT_EQ(hParameter_->SetConnection(hOther_.Get()), E_FAIL);
  EXPECT_TRUE(IsConnected(hParameter_, hOther_.Get()));
}

TEST_F(VelRshParameterBaseConnectionTest, NextShader_TakesNoteOfTheShaderAbove) {
  const VelTestConnectedShaderBindings bindings;
  const VelIRshShader_var hNext(FakeRenderingMaterial::Create(*hContainer_));
  VelTestConnectedShader& next = VelTestConnectedShader::Of(*hNext);
  EXPECT_EQ(hParameter_->SetConnection(hNext.Get()), S_OK) << "what the note answers is of no account";
  EXPECT_EQ(next.notes, (Texts{"NoteConnectionFrom", "OnParameterConnection CONNECTION_UPDATED"}));
  EXPECT_TRUE(IsSameObject(next.noted.Get(), hShader_.Get()));
  next.noted = nullptr;
  // A parameter without a shader above hands out none, one without a private side makes no note.
  next.notes.clear();
  const VelIRshParameter_var hFree(Make("VelRmaVector"));
  EXPECT_EQ(hFree->SetName("free"), S_OK);
  EXPECT_EQ(hFree->SetConnection(hNext.Get()), S_OK);
  EXPECT_EQ(next.notes, (Texts{"NoteConnectionFrom", "OnParameterConnection CONNECTION_UPDATED"}));
  EXPECT_FALSE(next.noted);
  next.notes.clear();
  const VelIRshParameter_var hVoid = Add(hShader_, "void", "VelRmaVoid");
  EXPECT_EQ(hVoid->SetConnection(hNext.Get()), S_OK);
  EXPECT_EQ(next.notes, Texts{"OnParameterConnection CONNECTION_UPDATED"});
}

}  // namespace
