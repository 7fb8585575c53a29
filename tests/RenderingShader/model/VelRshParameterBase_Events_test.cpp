// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Events_test.cpp What a parameter hands on of its shader and of the shader connected to it.
#include "RenderingShader/interfaces/VelIRshShaderSubscriber.h"
#include "RenderingShader/interfaces/VelRshModelNotificationConnectedParameterChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterConnectionChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterShaderChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/model/fixtures/VelTestEventRecorder.h"

namespace {

using ParameterEvents = VelRshParameterPublisherEvents;
using ShaderEvents = VelRshShaderPublisherEvents;
using Changed = VelRshModelNotificationShaderParameterChanged;
using Forwarded = VelRshModelNotificationParameterShaderChanged;
using Connected = VelRshModelNotificationConnectedParameterChanged;

/// A receiver of a parameter's shader, its event, and what it hands on.
struct OwnReceiver {
  const char* name;
  void (VelIRshShaderSubscriber::*receive)(VelEventName, VelBaseUnknown*, VelNotification*);
  VelEventName event;
  VelEventName other;  ///< Received by the other operation.
  VelEventName forwarded;
};

const OwnReceiver ownReceivers[] = {
    {"value", &VelIRshShaderSubscriber::OnShaderValue, ShaderEvents::PARAMETER_VALUE_UPDATED(),
     ShaderEvents::PARAMETER_CONNECTION_UPDATED(), ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED()},
    {"connection", &VelIRshShaderSubscriber::OnShaderConnection, ShaderEvents::PARAMETER_CONNECTION_UPDATED(),
     ShaderEvents::PARAMETER_VALUE_UPDATED(), ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED()}};

/// An event of the connected shader and what the parameter makes of it.
struct ConnectionReceiver {
  VelEventName event;
  VelEventName told;
};

const ConnectionReceiver connectionReceivers[] = {
    {ShaderEvents::PARAMETER_VALUE_UPDATED(), ParameterEvents::CONNECTION_PARAMETER_VALUE_UPDATED()},
    {ShaderEvents::PARAMETER_CONNECTION_UPDATED(), ParameterEvents::CONNECTION_PARAMETER_CONNECTION_UPDATED()}};

constexpr const char* subscribingTypes[] = {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor",
                                            "VelRmaVector",  "VelRmaString",  "VelRmaTexture"};

class VelRshParameterBaseEventsTest : public RshModelTest {
 protected:
  void SetUp() override {
    RshModelTest::SetUp();
    hShader_ = MakeShader();
    hSibling_ = Add(hShader_, "sibling", "VelRmaScalar");
    hNode_ = AddNode(hShader_);
  }
  void TearDown() override {
    for (VelIRshShader_var* handle : {&hShader_, &hNode_}) *handle = nullptr;
    hSibling_ = nullptr;
    RshModelTest::TearDown();
  }

  /// Hears every event that a parameter hands on.
  static void HearAll(VelTestRecorder& ioRecorder, const VelIRshParameter_var& iParameter) {
    for (const VelEventName event :
         {ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED(), ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED(),
          ParameterEvents::CONNECTION_PARAMETER_VALUE_UPDATED(),
          ParameterEvents::CONNECTION_PARAMETER_CONNECTION_UPDATED()}) {
      ioRecorder.Hear(ManagerOf(iParameter), event);
    }
  }

  static void Call(const OwnReceiver& iReceiver, const VelIRshParameter_var& iParameter, VelEventName iEvent,
                   VelBaseUnknown* iPublisher, VelNotification* ioNotification) {
    const VelIRshShaderSubscriber_var hSubscriber(iParameter);
    (hSubscriber.Get()->*iReceiver.receive)(iEvent, iPublisher, ioNotification);
  }

  VelIRshShader_var hShader_;
  VelIRshParameter_var hSibling_;
  VelIRshShader_var hNode_;
};

TEST_F(VelRshParameterBaseEventsTest, ChangeOfASibling_IsForwardedWithEventShaderAndNotification) {
  for (const char* startUp : subscribingTypes) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", startUp);
    for (const OwnReceiver& receiver : ownReceivers) {
      SCOPED_TRACE(std::string(startUp) + " " + receiver.name);
      VelTestRecorder recorder;
      HearAll(recorder, hParameter);
      Changed changed(*hSibling_, nullptr);
      recorder.Do([&](VelEventName, VelBaseUnknown* iPublisher, VelNotification* ioNotification) {
        const auto* forwarded = VelNotificationCast<Forwarded>(ioNotification);
        ASSERT_NE(forwarded, nullptr);
        EXPECT_EQ(forwarded->GetEvent(), receiver.event);
        EXPECT_TRUE(IsSameObject(&forwarded->GetPublisher(), hShader_.Get()));
        EXPECT_EQ(&forwarded->GetInner(), &changed);
        EXPECT_TRUE(IsSameObject(iPublisher, hParameter.Get()));
        EXPECT_TRUE(VelIRshParameter_var(iPublisher));
      });
      Call(receiver, hParameter, receiver.event, hShader_.Get(), &changed);
      EXPECT_EQ(recorder.Notes(),
                Texts{std::string(receiver.forwarded) + ": VelRshModelNotificationParameterShaderChanged"});
    }
  }
}

TEST_F(VelRshParameterBaseEventsTest, WhatIsNotForwarded) {
  const VelIRshParameter_var hParameter = Add(hShader_, "p", "VelRmaColor");
  const VelIRshParameter_var hOfNode = Add(hNode_, "q", "VelRmaColor");
  const VelIRshParameter_var hFree(Make("VelRmaColor"));
  VelRshModelNotificationParameterConnectionChanged wrongClass{nullptr, nullptr};
  Changed ofSibling(*hSibling_, nullptr);
  Changed ofItself(*hParameter, nullptr);
  Changed ofNode(*hOfNode, nullptr);
  Changed ofFree(*hFree, nullptr);
  for (const OwnReceiver& receiver : ownReceivers) {
    const struct {
      const char* name;
      VelEventName event;
      VelBaseUnknown* publisher;
      VelNotification* notification;
    } cases[] = {
        {"no publisher", receiver.event, nullptr, &ofSibling},
        {"no notification", receiver.event, hShader_.Get(), nullptr},
        {"another class", receiver.event, hShader_.Get(), &wrongClass},
        {"its own change", receiver.event, hShader_.Get(), &ofItself},
        {"a parameter of another shader", receiver.event, hShader_.Get(), &ofNode},
        {"a parameter without a shader", receiver.event, hShader_.Get(), &ofFree},
        {"the event of the other receiver", receiver.other, hShader_.Get(), &ofSibling},
        {"a forwarded value", ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED(), hShader_.Get(), &ofSibling},
        {"a forwarded connection", ShaderEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED(), hShader_.Get(), &ofSibling},
        {"no event", nullptr, hShader_.Get(), &ofSibling},
    };
    for (const auto& test : cases) {
      VelTestRecorder recorder;
      HearAll(recorder, hParameter);
      Call(receiver, hParameter, test.event, test.publisher, test.notification);
      EXPECT_EQ(recorder.Notes(), Texts{}) << receiver.name << ": " << test.name;
    }
  }
}

TEST_F(VelRshParameterBaseEventsTest, SiblingsWithoutAShaderAbove_AreNoSiblings) {
  // Two parameters below a feature that is no shader.
  const VelISpecObject_var hMaterial = FakeRenderingMaterial::Create(*hContainer_);
  const VelISpecAttrKey* list = Key("Shader", VelSpecAttrKind::Components);
  const VelISpecObject_var hFirst = Make("VelRmaColor");
  const VelISpecObject_var hSecond = Make("VelRmaColor");
  EXPECT_EQ(Access(hMaterial)->AppendComponent(list, hFirst.Get()), S_OK);
  EXPECT_EQ(Access(hMaterial)->AppendComponent(list, hSecond.Get()), S_OK);
  const VelIRshParameter_var hParameter(hFirst);
  VelTestRecorder recorder;
  HearAll(recorder, hParameter);
  Changed changed(*hSecond, nullptr);
  for (const OwnReceiver& receiver : ownReceivers)
    Call(receiver, hParameter, receiver.event, hMaterial.Get(), &changed);
  EXPECT_EQ(recorder.Notes(), Texts{});
}

TEST_F(VelRshParameterBaseEventsTest, ClosedParameter_ForwardsNothing) {
  const VelIRshParameter_var hParameter = Add(hShader_, "p", "VelRmaColor");
  const VelIRshShaderSubscriber_var hSubscriber(hParameter);
  EXPECT_EQ(LifeCycleObject_var(hParameter)->remove(), S_OK);
  Changed changed(*hSibling_, nullptr);
  hSubscriber->OnShaderValue(ShaderEvents::PARAMETER_VALUE_UPDATED(), hShader_.Get(), &changed);
  hSubscriber->OnShaderConnection(ShaderEvents::PARAMETER_CONNECTION_UPDATED(), hShader_.Get(), &changed);
}

TEST_F(VelRshParameterBaseEventsTest, ChangeOfTheConnectedShader_IsToldWithShaderAndNotification) {
  const VelIRshParameter_var hInner = Add(hNode_, "inner", "VelRmaScalar");
  for (const char* startUp : subscribingTypes) {
    const VelIRshParameter_var hParameter = Add(hShader_, "p", startUp);
    EXPECT_EQ(hParameter->SetConnection(hNode_.Get()), S_OK);
    for (const ConnectionReceiver& receiver : connectionReceivers) {
      SCOPED_TRACE(std::string(startUp) + " " + receiver.event);
      VelTestRecorder recorder;
      HearAll(recorder, hParameter);
      Changed changed(*hInner, nullptr);
      recorder.Do([&](VelEventName, VelBaseUnknown* iPublisher, VelNotification* ioNotification) {
        const auto* connected = VelNotificationCast<Connected>(ioNotification);
        ASSERT_NE(connected, nullptr);
        EXPECT_TRUE(IsSameObject(&connected->GetPublisher(), hNode_.Get()));
        EXPECT_EQ(&connected->GetInner(), &changed);
        EXPECT_TRUE(IsSameObject(iPublisher, hParameter.Get()));
      });
      ManagerOf(hNode_).Dispatch(receiver.event, &changed, hNode_.Get());
      EXPECT_EQ(recorder.Notes(),
                Texts{std::string(receiver.told) + ": VelRshModelNotificationConnectedParameterChanged"});
    }
  }
}

TEST_F(VelRshParameterBaseEventsTest, WhatIsNotToldOfTheConnectedShader) {
  const VelIRshParameter_var hInner = Add(hNode_, "inner", "VelRmaScalar");
  const VelIRshParameter_var hParameter = Add(hShader_, "p", "VelRmaColor");
  EXPECT_EQ(hParameter->SetConnection(hNode_.Get()), S_OK);
  VelTestRecorder recorder;
  HearAll(recorder, hParameter);
  Changed changed(*hInner, nullptr);
  VelRshModelNotificationParameterConnectionChanged wrongClass{nullptr, nullptr};
  for (const ConnectionReceiver& receiver : connectionReceivers) {
    ManagerOf(hNode_).Dispatch(receiver.event, &changed, nullptr);
    ManagerOf(hNode_).Dispatch(receiver.event, nullptr, hNode_.Get());
    ManagerOf(hNode_).Dispatch(receiver.event, &wrongClass, hNode_.Get());
  }
  for (const VelEventName event :
       {ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED(), ShaderEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED()}) {
    ManagerOf(hNode_).Dispatch(event, &changed, hNode_.Get());
  }
  EXPECT_EQ(recorder.Notes(), Texts{});
}

}  // namespace
