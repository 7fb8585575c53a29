// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature_Events_test.cpp What a shader hears of parameters and tells its own subscribers, and what
/// an edit in a graph of shaders makes each of them hear.
#include "RenderingShader/interfaces/VelIRshParameterSubscriber.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterConnectionChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterShaderChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationValueChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "platform/events/VelCallbackProbe.h"
#include "tests/RenderingShader/model/ShaderFeatureTest.h"

namespace {

using Changed = VelRshModelNotificationShaderParameterChanged;
using ParameterEvents = VelRshParameterPublisherEvents;
using ShaderEvents = VelRshShaderPublisherEvents;

/// Notes each delivery, the depth before it, and checks what a shader's event carries.
class DeliveryRecorder final : public VelCallbackProbe {
 public:
  DeliveryRecorder() : before_(VelCallbackManager::SetProbe(this)) {}
  ~DeliveryRecorder() { VelCallbackManager::SetProbe(before_); }
  DeliveryRecorder(const DeliveryRecorder&) = delete;
  DeliveryRecorder& operator=(const DeliveryRecorder&) = delete;

  void OnDelivery(const VelCallbackDelivery& iDelivery) noexcept override {
    deliveries.push_back(std::to_string(iDelivery.depth) + " " + iDelivery.event + " " + NameOf(iDelivery.publisher) +
                         " > " + NameOf(iDelivery.subscriber));
    if (!VelIRshShaderPublisher_var(iDelivery.publisher)) return;
    const auto* changed = VelNotificationCast<Changed>(iDelivery.notification);
    if (changed == nullptr) return;
    parameter = NameOf(changed->GetParameter().Get());
    EXPECT_TRUE(IsSameObject(&changed->GetPublisher(), changed->GetParameter().Get()));
    inner = changed->GetInner();
    ++carried;
  }

  /// @return the deliveries since the last call
  Texts Take() { return std::exchange(deliveries, {}); }

  /// The name of a parameter, the type of a shader.
  static std::string NameOf(VelBaseUnknown* iObject) {
    VelString name("null");
    const VelIRshParameter_var hParameter(iObject);
    if (hParameter) {
      static_cast<void>(hParameter->GetName(name));
    } else if (const VelIRshShader_var hShader(iObject); hShader) {
      static_cast<void>(hShader->GetType(name));
    }
    return std::string(name.View());
  }

  Texts deliveries;
  std::string parameter;                   ///< The parameter that the last event of a shader told of.
  const VelNotification* inner = nullptr;  ///< What that event carried.
  int carried = 0;                         ///< How many events of shaders carried what they have to.

 private:
  VelCallbackProbe* before_;
};

class VelRshShaderFeatureEventsTest : public ShaderFeatureTest {
 protected:
  /// @return who hears an event, in the order of delivery
  static Texts Subscribers(const VelCallbackManager& iManager, VelEventName iEvent) {
    VelListPtrVelBaseUnknown subscribers;
    iManager.ListSubscribers(iEvent, subscribers);
    Texts names;
    for (VelBaseUnknown* subscriber : subscribers) {
      names.push_back(DeliveryRecorder::NameOf(subscriber));
      subscriber->Release();
    }
    return names;
  }

  /// Expects that a shader hears its parameter's own events, and no other.
  static void ExpectHeard(const VelIRshParameter_var& iParameter, const Texts& iShaders) {
    const VelCallbackManager& manager = ManagerOf(iParameter);
    EXPECT_EQ(Subscribers(manager, ParameterEvents::VALUE_UPDATED()), iShaders);
    EXPECT_EQ(Subscribers(manager, ParameterEvents::CONNECTION_UPDATED()), iShaders);
    EXPECT_EQ(Subscribers(manager, ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED()), Texts{});
    EXPECT_EQ(Subscribers(manager, ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED()), Texts{});
  }

  /// Expects that parameters hear all events of a shader.
  static void ExpectHearers(const VelIRshShader_var& iShader, const Texts& iParameters) {
    for (VelEventName event : ShaderEventNames()) {
      EXPECT_EQ(Subscribers(ManagerOf(iShader), event), iParameters) << event;
    }
  }

  static std::vector<VelEventName> ShaderEventNames() {
    return {ShaderEvents::PARAMETER_VALUE_UPDATED(), ShaderEvents::PARAMETER_CONNECTION_UPDATED(),
            ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED(), ShaderEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED()};
  }

  static std::vector<VelEventName> ParameterEventNames() {
    return {ParameterEvents::VALUE_UPDATED(),
            ParameterEvents::CONNECTION_UPDATED(),
            ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED(),
            ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED(),
            ParameterEvents::CONNECTION_PARAMETER_VALUE_UPDATED(),
            ParameterEvents::CONNECTION_PARAMETER_CONNECTION_UPDATED()};
  }

  /// Makes a feature as a document does that is loaded: nobody asks it for an interface of the component.
  VelISpecObject_var Load(const char* iStartUp, const char* iAttribute, const char* iText) {
    const VelISpecObject_var hFeature = Make(iStartUp);
    EXPECT_EQ(Access(hFeature)->SetText(Key(iAttribute, VelSpecAttrKind::Text), iText), S_OK);
    return hFeature;
  }

  static void Write(const VelIRshParameter_var& iScalar, float iValue) { EXPECT_EQ(iScalar->SetValue(&iValue), S_OK); }
};

TEST_F(VelRshShaderFeatureEventsTest, AddedParameters_AndTheirShader_HearEachOther_OnceAndInOrder) {
  const VelIRshShader_var hShader = MakeShader("S");
  for (const char* startUp : {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor", "VelRmaVector",
                              "VelRmaString", "VelRmaTexture"}) {
    ExpectHeard(Add(hShader, startUp, startUp), {"S"});
  }
  ExpectHearers(hShader, {"VelRmaBoolean", "VelRmaInteger", "VelRmaScalar", "VelRmaColor", "VelRmaVector",
                          "VelRmaString", "VelRmaTexture"});
}

TEST_F(VelRshShaderFeatureEventsTest, ParametersThatPublishNothing_AreAddedQuietly) {
  const VelIRshShader_var hShader = MakeShader("S");
  for (const char* startUp : {"VelRmaMatrix", "VelRmaLightProfile", "VelRmaVoid", "VelRmaParameter"}) {
    EXPECT_FALSE(VelIRshParameterPublisher_var(Add(hShader, startUp, startUp))) << startUp;
  }
  ExpectHearers(hShader, {});
}

TEST_F(VelRshShaderFeatureEventsTest, AppendedParameter_HearsAndIsHeard_AndNeverTwice) {
  const VelIRshShader_var hShader = MakeShader("S");
  const VelIRshParameter_var hFirst(Load("VelRmaScalar", "Name", "first"));
  const VelIRshParameter_var hSecond(Load("VelRmaScalar", "Name", "second"));
  ASSERT_EQ(hShader->AppendParameter(hFirst.Get()), S_OK);
  ASSERT_EQ(hShader->AppendParameter(hSecond.Get()), S_OK);
  // Taken out past the shader, which goes on hearing it, and appended once more.
  ASSERT_EQ(VelISpecAttrAccess_var(hShader)->RemoveComponent(parameters_, hFirst.Get()), S_OK);
  ASSERT_EQ(hShader->AppendParameter(hFirst.Get()), S_OK);
  ExpectHeard(hFirst, {"S"});
  ExpectHeard(hSecond, {"S"});
  ExpectHearers(hShader, {"first", "second"});
  EXPECT_EQ(ParameterNames(hShader), (Texts{"second", "first"}));
}

TEST_F(VelRshShaderFeatureEventsTest, LoadedShader_HearsItsParameters_OnceItIsAskedForAnything) {
  const VelISpecObject_var hFeature = Load("VelRmaShader", "Type", "S");
  for (const char* name : {"a", "b", "c"}) {
    ASSERT_EQ(Aggregate(hFeature, "Parameters", Load("VelRmaScalar", "Name", name).Get()), S_OK);
  }
  ASSERT_EQ(Aggregate(hFeature, "Parameters", Load("VelRmaMatrix", "Name", "matrix").Get()), S_OK);
  const VelIRshShader_var hShader(hFeature);
  ExpectHearers(hShader, {"a", "b", "c"});
  VelListPtrVelBaseUnknown* list = nullptr;
  ASSERT_EQ(hShader->GetParameters(&list), S_OK);
  for (int position = 1; position <= 3; ++position) ExpectHeard(VelIRshParameter_var((*list)[position]), {"S"});
  for (VelBaseUnknown* element : *list) element->Release();
  delete list;
}

/// The root S carries Q, which is connected to the node N with its parameters x and y.
TEST_F(VelRshShaderFeatureEventsTest, LoadedGraph_OfWhichAClientTakesOneParameter_TellsEverything) {
  const VelISpecObject_var hRoot = Load("VelRmaShader", "Type", "S");
  const VelISpecObject_var hConnected = Load("VelRmaColor", "Name", "Q");
  const VelISpecObject_var hNode = Load("VelRmaShader", "Type", "N");
  const VelISpecObject_var hTaken = Load("VelRmaScalar", "Name", "x");
  ASSERT_EQ(Aggregate(hRoot, "Parameters", hConnected.Get()), S_OK);
  ASSERT_EQ(Aggregate(hRoot, "Nodes", hNode.Get()), S_OK);
  ASSERT_EQ(Aggregate(hNode, "Parameters", hTaken.Get()), S_OK);
  ASSERT_EQ(Aggregate(hNode, "Parameters", Load("VelRmaScalar", "Name", "y").Get()), S_OK);
  ASSERT_EQ(Access(hConnected)->SetReference(node_, hNode.Get()), S_OK);
  const VelIRshParameter_var hParameter(hTaken);
  DeliveryRecorder recorder;
  Write(hParameter, 0.25F);
  EXPECT_EQ(recorder.Take(), (Texts{"0 VALUE_UPDATED x > N", "1 PARAMETER_VALUE_UPDATED N > x",
                                    "1 PARAMETER_VALUE_UPDATED N > y", "1 PARAMETER_VALUE_UPDATED N > Q"}));
}

TEST_F(VelRshShaderFeatureEventsTest, OwnParameter_IsToldOn_WithWhatItTold) {
  const VelIRshShader_var hShader = MakeShader("S");
  const VelIRshParameter_var hParameter = Add(hShader, "a", "VelRmaScalar");
  VelRshModelNotificationParameterConnectionChanged notification(nullptr, nullptr);
  for (VelNotification* told : {static_cast<VelNotification*>(&notification), static_cast<VelNotification*>(nullptr)}) {
    for (VelEventName event : ParameterEventNames()) {
      DeliveryRecorder recorder;
      ManagerOf(hParameter).Dispatch(event, told, hParameter.Get());
      Texts expected;
      if (event == ParameterEvents::VALUE_UPDATED()) {
        expected = {"0 VALUE_UPDATED a > S", "1 PARAMETER_VALUE_UPDATED S > a"};
      } else if (event == ParameterEvents::CONNECTION_UPDATED()) {
        expected = {"0 CONNECTION_UPDATED a > S", "1 PARAMETER_CONNECTION_UPDATED S > a"};
      }
      EXPECT_EQ(recorder.Take(), expected) << event;
      EXPECT_EQ(recorder.carried, expected.empty() ? 0 : 1) << event;
      EXPECT_EQ(recorder.parameter, expected.empty() ? "" : "a");
      EXPECT_EQ(recorder.inner, expected.empty() ? nullptr : told) << event;
    }
  }
}

TEST_F(VelRshShaderFeatureEventsTest, OwnParameter_ThatNamesNobody_IsDropped) {
  const VelIRshShader_var hShader = MakeShader("S");
  const VelIRshParameter_var hParameter = Add(hShader, "a", "VelRmaScalar");
  DeliveryRecorder recorder;
  for (VelEventName event : {ParameterEvents::VALUE_UPDATED(), ParameterEvents::CONNECTION_UPDATED()}) {
    ManagerOf(hParameter).Dispatch(event, nullptr, nullptr);
  }
  EXPECT_EQ(recorder.Take(), (Texts{"0 VALUE_UPDATED null > S", "0 CONNECTION_UPDATED null > S"}));
}

/// A receiver of VelIRshParameterSubscriber, and the one occasion on which it tells something.
struct Receiver {
  void (VelIRshParameterSubscriber::*receive)(VelEventName, VelBaseUnknown*, VelNotification*);
  VelEventName event;
  const VelNotification* notification;
  const char* told;
};

TEST_F(VelRshShaderFeatureEventsTest, ConnectedParameter_IsToldOn_OnOneOccasionPerReceiver) {
  const VelIRshShader_var hShader = MakeShader("S");
  const VelIRshParameter_var hEar = Add(hShader, "ear", "VelRmaScalar");
  const VelIRshParameter_var hParameter(Load("VelRmaScalar", "Name", "P"));
  const VelIRshParameterSubscriber_var hSubscriber(hShader);
  VelRshModelNotificationParameterConnectionChanged connection(nullptr, nullptr);
  VelRshModelNotificationParameterShaderChanged forwarded(ShaderEvents::PARAMETER_VALUE_UPDATED(), *hShader,
                                                          connection);
  Changed other(*hParameter, nullptr);
  const Receiver receivers[] = {
      {&VelIRshParameterSubscriber::OnParameterValue, ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED(), &forwarded,
       "0 FORWARDED_PARAMETER_VALUE_UPDATED S > ear"},
      // Not the event by whose name the second receiver is meant: a new connection is what it tells on.
      {&VelIRshParameterSubscriber::OnParameterConnection, ParameterEvents::CONNECTION_UPDATED(), &connection,
       "0 FORWARDED_PARAMETER_CONNECTION_UPDATED S > ear"}};
  // The same text in another place is another event.
  const std::string copies[] = {ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED(),
                                ParameterEvents::CONNECTION_UPDATED()};
  std::vector<VelEventName> events = ParameterEventNames();
  events.insert(events.end(), {copies[0].c_str(), copies[1].c_str(), nullptr});
  for (const Receiver& receiver : receivers) {
    for (VelEventName event : events) {
      for (VelNotification* told :
           {static_cast<VelNotification*>(&forwarded), static_cast<VelNotification*>(&connection),
            static_cast<VelNotification*>(&other), static_cast<VelNotification*>(nullptr)}) {
        DeliveryRecorder recorder;
        (hSubscriber.Get()->*receiver.receive)(event, nullptr, told);
        EXPECT_EQ(recorder.Take(), Texts{}) << "no publisher";
        (hSubscriber.Get()->*receiver.receive)(event, hParameter.Get(), told);
        const bool isOccasion = event == receiver.event && told == receiver.notification;
        EXPECT_EQ(recorder.Take(), isOccasion ? Texts{receiver.told} : Texts{});
        EXPECT_EQ(recorder.parameter, isOccasion ? "P" : "");
        EXPECT_EQ(recorder.inner, isOccasion ? told : nullptr);
      }
    }
  }
}

/// The shader S carries Q, which is connected to N with its parameter x, and R.
class VelRshShaderFeatureGraphTest : public VelRshShaderFeatureEventsTest {
 protected:
  void SetUp() override {
    VelRshShaderFeatureEventsTest::SetUp();
    hShader_ = MakeShader("S");
    hNode_ = AddNode(hShader_, "N");
    Add(hNode_, "x", "VelRmaScalar");
    hQ_ = Add(hShader_, "Q", "VelRmaColor");
    hR_ = Add(hShader_, "R", "VelRmaScalar");
  }
  void TearDown() override {
    for (VelIRshShader_var* shader : {&hShader_, &hNode_}) *shader = nullptr;
    for (VelIRshParameter_var* parameter : {&hQ_, &hR_}) *parameter = nullptr;
    VelRshShaderFeatureEventsTest::TearDown();
  }

  VelIRshShader_var hShader_;
  VelIRshShader_var hNode_;
  VelIRshParameter_var hQ_;
  VelIRshParameter_var hR_;
};

TEST_F(VelRshShaderFeatureGraphTest, NewConnection_IsToldOnByTheConnectedShader) {
  DeliveryRecorder recorder;
  ASSERT_EQ(hQ_->SetConnection(hNode_.Get()), S_OK);
  EXPECT_EQ(recorder.Take(), (Texts{"0 CONNECTION_UPDATED Q > S", "1 PARAMETER_CONNECTION_UPDATED S > Q",
                                    "1 PARAMETER_CONNECTION_UPDATED S > R", "0 CONNECTION_UPDATED Q > N",
                                    "1 FORWARDED_PARAMETER_CONNECTION_UPDATED N > x"}));
}

TEST_F(VelRshShaderFeatureGraphTest, ValueBesideTheConnection_ReachesTheConnectedShadersParameters) {
  ASSERT_EQ(hQ_->SetConnection(hNode_.Get()), S_OK);
  DeliveryRecorder recorder;
  Write(hR_, 0.25F);
  EXPECT_EQ(recorder.Take(), (Texts{"0 VALUE_UPDATED R > S", "1 PARAMETER_VALUE_UPDATED S > Q",
                                    "2 FORWARD_PARAMETER_VALUE_UPDATED Q > N",
                                    "3 FORWARDED_PARAMETER_VALUE_UPDATED N > x", "1 PARAMETER_VALUE_UPDATED S > R"}));
}

TEST_F(VelRshShaderFeatureGraphTest, ConnectionBesideTheConnection_EndsAtTheConnectedShader) {
  ASSERT_EQ(hQ_->SetConnection(hNode_.Get()), S_OK);
  const VelIRshShader_var hOther = AddNode(hShader_, "M");
  Add(hOther, "m", "VelRmaScalar");
  DeliveryRecorder recorder;
  ASSERT_EQ(hR_->SetConnection(hOther.Get()), S_OK);
  EXPECT_EQ(recorder.Take(),
            (Texts{"0 CONNECTION_UPDATED R > S", "1 PARAMETER_CONNECTION_UPDATED S > Q",
                   "2 FORWARD_PARAMETER_CONNECTION_UPDATED Q > N", "1 PARAMETER_CONNECTION_UPDATED S > R",
                   "0 CONNECTION_UPDATED R > M", "1 FORWARDED_PARAMETER_CONNECTION_UPDATED M > m"}));
}

TEST_F(VelRshShaderFeatureGraphTest, ShaderConnectedToItsOwnParameter_HearsItOnce) {
  ASSERT_EQ(hQ_->SetConnection(hShader_.Get()), S_OK);
  for (VelEventName event : {ParameterEvents::VALUE_UPDATED(), ParameterEvents::CONNECTION_UPDATED()}) {
    EXPECT_EQ(Subscribers(ManagerOf(hQ_), event), Texts{"S"}) << event;
  }
  ExpectHearers(hShader_, {"Q", "R"});
}

TEST_F(VelRshShaderFeatureGraphTest, RemovedShader_HearsNothingOfAParameterThatStays) {
  ASSERT_EQ(VelISpecAttrAccess_var(hShader_)->RemoveComponent(parameters_, hR_.Get()), S_OK);
  ASSERT_EQ(Remove(hShader_.Get()), S_OK);
  DeliveryRecorder recorder;
  Write(hR_, 0.25F);
  EXPECT_EQ(recorder.Take(), Texts{});
  ExpectHeard(hR_, {});
}

TEST_F(VelRshShaderFeatureGraphTest, RemovedParameter_HearsNothingOfItsShader) {
  ASSERT_EQ(Remove(hQ_.Get()), S_OK);
  ExpectHearers(hShader_, {"R"});
  DeliveryRecorder recorder;
  Write(hR_, 0.25F);
  EXPECT_EQ(recorder.Take(), (Texts{"0 VALUE_UPDATED R > S", "1 PARAMETER_VALUE_UPDATED S > R"}));
}

TEST_F(VelRshShaderFeatureEventsTest, ParameterOfAnotherModule_HearsItsShader_ThroughItsInterface) {
  const VelIRshShader_var hShader = MakeShader("S");
  const VelIRshParameter_var hForeign(MakeOdd("VelTestForeignParameter"));
  ASSERT_EQ(hShader->AppendParameter(hForeign.Get()), S_OK);
  ExpectHeard(hForeign, {"S"});
  ExpectHearers(hShader, {"foreign"});
  VelTestForeign::Instance().calls.clear();
  ManagerOf(hForeign).Dispatch(ParameterEvents::VALUE_UPDATED(), nullptr, hForeign.Get());
  EXPECT_EQ(VelTestForeign::Instance().calls,
            Texts{"OnShaderValue PARAMETER_VALUE_UPDATED VelRshModelNotificationShaderParameterChanged"});
  VelTestForeign::Instance().calls.clear();
  for (VelEventName event : ShaderEventNames()) ManagerOf(hShader).Dispatch(event, nullptr, hShader.Get());
  EXPECT_EQ(VelTestForeign::Instance().calls,
            (Texts{"OnShaderValue PARAMETER_VALUE_UPDATED null", "OnShaderConnection PARAMETER_CONNECTION_UPDATED null",
                   "OnShaderValue FORWARDED_PARAMETER_VALUE_UPDATED null",
                   "OnShaderConnection FORWARDED_PARAMETER_CONNECTION_UPDATED null"}));
}

TEST_F(VelRshShaderFeatureEventsTest, ShaderOfAnotherModule_HearsTheParameterConnectedToIt_ThroughItsInterface) {
  const VelIRshParameter_var hParameter(Load("VelRmaScalar", "Name", "P"));
  const VelIRshShader_var hForeign(MakeOdd("VelTestForeignShader"));
  ASSERT_EQ(hParameter->SetConnection(hForeign.Get()), S_OK);
  VelTestForeign::Instance().calls.clear();
  for (VelEventName event : ParameterEventNames()) ManagerOf(hParameter).Dispatch(event, nullptr, hParameter.Get());
  EXPECT_EQ(VelTestForeign::Instance().calls,
            (Texts{"OnParameterValue VALUE_UPDATED null", "OnParameterConnection CONNECTION_UPDATED null",
                   "OnParameterValue FORWARD_PARAMETER_VALUE_UPDATED null",
                   "OnParameterConnection FORWARD_PARAMETER_CONNECTION_UPDATED null"}));
}

}  // namespace
