// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Subscriptions_test.cpp Who hears whom while a shader is connected to a parameter.
#include "RenderingShader/interfaces/VelIRshParameterSubscriber.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "tests/RenderingShader/RshModelTest.h"
#include "tests/RenderingShader/fixtures/FakeRenderingMaterial.h"
#include "tests/RenderingShader/model/fixtures/VelTestConnectedShader.h"
#include "tests/RenderingShader/model/fixtures/VelTestEventRecorder.h"

namespace {

using ParameterEvents = VelRshParameterPublisherEvents;
using ShaderEvents = VelRshShaderPublisherEvents;

class VelRshParameterBaseSubscriptionsTest : public RshModelTest {
 protected:
  /// @return the events of a parameter that a shader hears, in the order of the vocabulary
  static Texts HeardByShader(const VelIRshParameter_var& iParameter, const VelIRshShader_var& iShader) {
    Texts heard;
    for (const VelEventName event :
         {ParameterEvents::VALUE_UPDATED(), ParameterEvents::CONNECTION_UPDATED(),
          ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED(), ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED(),
          ParameterEvents::CONNECTION_PARAMETER_VALUE_UPDATED(),
          ParameterEvents::CONNECTION_PARAMETER_CONNECTION_UPDATED()}) {
      if (Hears(ManagerOf(iParameter), event, iShader.Get())) heard.emplace_back(event);
    }
    return heard;
  }

  /// @return the events of a shader that a parameter hears, in the order of the vocabulary
  static Texts HeardByParameter(const VelIRshShader_var& iShader, const VelIRshParameter_var& iParameter) {
    Texts heard;
    for (const VelEventName event :
         {ShaderEvents::PARAMETER_VALUE_UPDATED(), ShaderEvents::PARAMETER_CONNECTION_UPDATED(),
          ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED(), ShaderEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED()}) {
      if (Hears(ManagerOf(iShader), event, iParameter.Get())) heard.emplace_back(event);
    }
    return heard;
  }

  /// The events of a parameter to which a connection in session subscribes the shader.
  const Texts connected_ = {"VALUE_UPDATED", "CONNECTION_UPDATED", "FORWARD_PARAMETER_VALUE_UPDATED",
                            "FORWARD_PARAMETER_CONNECTION_UPDATED"};
  /// Those to which construction subscribes it.
  const Texts loaded_ = {"FORWARD_PARAMETER_VALUE_UPDATED", "FORWARD_PARAMETER_CONNECTION_UPDATED"};
  /// Those of the connected shader that the parameter hears either way.
  const Texts ofConnection_ = {"PARAMETER_VALUE_UPDATED", "PARAMETER_CONNECTION_UPDATED"};
};

TEST_F(VelRshParameterBaseSubscriptionsTest, Connection_SubscribesBothWaysAndMovesWithTheConnection) {
  for (const char* startUp : {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor", "VelRmaVector",
                              "VelRmaString", "VelRmaTexture"}) {
    SCOPED_TRACE(startUp);
    const VelIRshShader_var hShader = MakeShader();
    const VelIRshParameter_var hParameter = Add(hShader, "p", startUp);
    const VelIRshShader_var hNode = AddNode(hShader);
    const VelIRshShader_var hOther = AddNode(hShader);
    EXPECT_EQ(hParameter->SetConnection(hNode.Get()), S_OK);
    EXPECT_EQ(HeardByShader(hParameter, hNode), connected_);
    EXPECT_EQ(HeardByParameter(hNode, hParameter), ofConnection_);
    EXPECT_EQ(hParameter->SetConnection(hOther.Get()), S_OK);
    EXPECT_EQ(HeardByShader(hParameter, hNode), Texts{});
    EXPECT_EQ(HeardByParameter(hNode, hParameter), Texts{});
    EXPECT_EQ(HeardByShader(hParameter, hOther), connected_);
    EXPECT_EQ(HeardByParameter(hOther, hParameter), ofConnection_);
    EXPECT_EQ(hParameter->SetConnection(nullptr), S_OK);
    EXPECT_EQ(HeardByShader(hParameter, hOther), Texts{});
    EXPECT_EQ(HeardByParameter(hOther, hParameter), Texts{});
    // What parameter and owner hear of each other stays.
    EXPECT_EQ(HeardByShader(hParameter, hShader), (Texts{"VALUE_UPDATED", "CONNECTION_UPDATED"}));
    EXPECT_EQ(HeardByParameter(hShader, hParameter).size(), 4U);
  }
}

TEST_F(VelRshParameterBaseSubscriptionsTest, Reconnection_SubscribesOnce) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hParameter = Add(hShader, "p", "VelRmaScalar");
  const VelIRshShader_var hNode = AddNode(hShader);
  const VelIRshShader_var hOther = AddNode(hShader);
  const VelIRshParameter_var hInner = Add(hNode, "q", "VelRmaScalar");
  // Others stay connected, so that neither shader is let go.
  EXPECT_EQ(Add(hShader, "keeps node", "VelRmaVoid")->SetConnection(hNode.Get()), S_OK);
  EXPECT_EQ(Add(hShader, "keeps other", "VelRmaVoid")->SetConnection(hOther.Get()), S_OK);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(hParameter->SetConnection(hOther.Get()), S_OK);
    EXPECT_EQ(hParameter->SetConnection(hNode.Get()), S_OK);
  }
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hParameter), ParameterEvents::CONNECTION_PARAMETER_VALUE_UPDATED());
  const float value = 1.0F;
  EXPECT_EQ(hInner->SetValue(&value), S_OK);
  EXPECT_EQ(recorder.Notes().size(), 1U);
}

TEST_F(VelRshParameterBaseSubscriptionsTest, Construction_SubscribesTheShaderToTwoEventsOnly) {
  // As after a load: nobody has asked for an interface yet.
  const VelISpecObject_var hOwner = Make("VelRmaShader");
  const VelISpecObject_var hFeature = Make("VelRmaScalar");
  const VelISpecObject_var hNodeFeature = Make("VelRmaShader");
  EXPECT_EQ(Access(hOwner)->AppendComponent(parameters_, hFeature.Get()), S_OK);
  EXPECT_EQ(Access(hOwner)->AppendComponent(nodes_, hNodeFeature.Get()), S_OK);
  EXPECT_EQ(Access(hFeature)->SetReference(node_, hNodeFeature.Get()), S_OK);
  const VelIRshParameter_var hParameter(hFeature);
  const VelIRshShader_var hNode(hNodeFeature);
  EXPECT_EQ(HeardByShader(hParameter, hNode), loaded_);
  EXPECT_EQ(HeardByParameter(hNode, hParameter), ofConnection_);
  // Disconnecting ends these as well.
  EXPECT_EQ(hParameter->SetName("p"), S_OK);
  EXPECT_EQ(hParameter->SetConnection(nullptr), S_OK);
  EXPECT_EQ(HeardByShader(hParameter, hNode), Texts{});
  EXPECT_EQ(HeardByParameter(hNode, hParameter), Texts{});
}

TEST_F(VelRshParameterBaseSubscriptionsTest, Construction_OfAParameterThatIsAskedThroughItsNode_IsTheSame) {
  const VelISpecObject_var hFeature = Make("VelRmaScalar");
  const VelISpecObject_var hNodeFeature = Make("VelRmaShader");
  EXPECT_EQ(Access(hFeature)->SetReference(node_, hNodeFeature.Get()), S_OK);
  const VelIRshShader_var hNode(hNodeFeature);
  const VelIRshParameterPublisher_var hFirst(hFeature);
  EXPECT_EQ(HeardByShader(VelIRshParameter_var(hFeature), hNode), loaded_);
}

TEST_F(VelRshParameterBaseSubscriptionsTest, ParameterWithoutPublisher_PublishesToItsConnectionAllTheSame) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshShader_var hNode = AddNode(hShader);
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hNode), ShaderEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED());
  for (const char* startUp : {"VelRmaMatrix", "VelRmaLightProfile", "VelRmaVoid", "VelRmaParameter"}) {
    recorder.Notes().clear();
    const VelIRshParameter_var hParameter = Add(hShader, "p", startUp);
    EXPECT_EQ(hParameter->SetConnection(hNode.Get()), S_OK) << startUp;
    EXPECT_EQ(recorder.Notes().size(), 1U) << startUp;
    EXPECT_EQ(HeardByParameter(hNode, hParameter), ofConnection_) << startUp;
  }
}

TEST_F(VelRshParameterBaseSubscriptionsTest, ShaderOfAnotherModule_HearsThroughItsInterface) {
  const VelTestConnectedShaderBindings bindings;
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hParameter = Add(hShader, "p", "VelRmaScalar");
  const VelIRshParameter_var hSibling = Add(hShader, "q", "VelRmaScalar");
  const VelIRshShader_var hNext(FakeRenderingMaterial::Create(*hContainer_));
  EXPECT_EQ(hParameter->SetConnection(hNext.Get()), S_OK);
  EXPECT_EQ(HeardByShader(hParameter, hNext), connected_);
  VelTestConnectedShader& next = VelTestConnectedShader::Of(*hNext);
  next.notes.clear();
  const float value = 1.0F;
  EXPECT_EQ(hParameter->SetValue(&value), S_OK);
  EXPECT_EQ(hSibling->SetValue(&value), S_OK);
  EXPECT_EQ(next.notes, (Texts{"OnParameterValue VALUE_UPDATED", "OnParameterValue FORWARD_PARAMETER_VALUE_UPDATED"}));
  next.noted = nullptr;
}

TEST_F(VelRshParameterBaseSubscriptionsTest, ConnectionToTheOwner_EndsAndIsHeardOnce) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshParameter_var hParameter = Add(hShader, "p", "VelRmaScalar");
  const VelIRshParameter_var hSibling = Add(hShader, "q", "VelRmaScalar");
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hShader), ShaderEvents::PARAMETER_VALUE_UPDATED());
  recorder.Hear(ManagerOf(hShader), ShaderEvents::PARAMETER_CONNECTION_UPDATED());
  recorder.Hear(ManagerOf(hShader), ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED());
  EXPECT_EQ(hParameter->SetConnection(hShader.Get()), S_OK);
  const float value = 1.0F;
  EXPECT_EQ(hParameter->SetValue(&value), S_OK);
  EXPECT_EQ(hSibling->SetValue(&value), S_OK);
  Texts events;
  for (const std::string& note : recorder.Notes()) events.push_back(note.substr(0, note.find(':')));
  // What the parameter forwards of its sibling comes back while the sibling is still told of.
  EXPECT_EQ(events, (Texts{"PARAMETER_CONNECTION_UPDATED", "PARAMETER_VALUE_UPDATED",
                           "FORWARDED_PARAMETER_VALUE_UPDATED", "PARAMETER_VALUE_UPDATED"}));
  // Unbinding takes every subscription of the parameter, deliberately also those to its owner.
  EXPECT_EQ(hParameter->SetConnection(nullptr), E_FAIL) << "the owner has no father to be taken from";
  EXPECT_EQ(HeardByParameter(hShader, hParameter), Texts{});
  EXPECT_EQ(HeardByShader(hParameter, hShader), Texts{});
}

TEST_F(VelRshParameterBaseSubscriptionsTest, ConnectionsInACycle_End) {
  const VelIRshShader_var hShader = MakeShader();
  const VelIRshShader_var hNode = AddNode(hShader);
  const VelIRshParameter_var hDown = Add(hShader, "down", "VelRmaScalar");
  const VelIRshParameter_var hBesideDown = Add(hShader, "a", "VelRmaScalar");
  const VelIRshParameter_var hUp = Add(hNode, "up", "VelRmaScalar");
  const VelIRshParameter_var hBesideUp = Add(hNode, "b", "VelRmaScalar");
  EXPECT_EQ(hDown->SetConnection(hNode.Get()), S_OK);
  EXPECT_EQ(hUp->SetConnection(hShader.Get()), S_OK);
  VelTestRecorder recorder;
  recorder.Hear(ManagerOf(hShader), ShaderEvents::PARAMETER_VALUE_UPDATED());
  recorder.Hear(ManagerOf(hShader), ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED());
  recorder.Hear(ManagerOf(hNode), ShaderEvents::PARAMETER_VALUE_UPDATED());
  recorder.Hear(ManagerOf(hNode), ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED());
  const float value = 1.0F;
  for (const VelIRshParameter_var* hParameter : {&hDown, &hBesideDown, &hUp, &hBesideUp}) {
    recorder.Notes().clear();
    EXPECT_EQ((*hParameter)->SetValue(&value), S_OK);
    EXPECT_EQ(recorder.Notes().size(), hParameter == &hDown || hParameter == &hUp ? 1U : 2U);
  }
}

}  // namespace
