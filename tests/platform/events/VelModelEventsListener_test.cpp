// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModelEventsListener_test.cpp Plain objects that listen to the events of models.
#include "platform/events/VelModelEventsListener.h"

#include <memory>
#include <stdexcept>

#include "platform/events/VelModifyAttribut.h"
#include "tests/platform/events/EventsTest.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

/// Notes its name, and does what its test wants.
class NotingListener final : public VelModelEventsListener {
 public:
  explicit NotingListener(const std::string& iName) : name_(iName) {}

  void Receive(VelNotification& ioNotification) override {
    VelTestNotes().push_back(name_);
    if (const auto doing = act) doing(ioNotification);
  }

  std::function<void(VelNotification&)> act;

 private:
  std::string name_;
};

class VelModelEventsListenerTest : public EventsTest {
 protected:
  HRESULT Dispatch(const Model& iModel) { return VelIModelEvents_var(iModel.handle)->Dispatch(notification_); }

  VelModifyAttribut notification_{nullptr, nullptr, nullptr, 5};
};

TEST_F(VelModelEventsListenerTest, Listener_StandsInLineWithTheObjects) {
  const Model source = MakeModel("source");
  const Model model = MakeModel("model");
  NotingListener first("first");
  NotingListener last("last");
  EXPECT_EQ(first.ConnectTo(source.Get()), S_OK);
  EXPECT_EQ(VelIModelEvents_var(model.handle)->ConnectTo(source.Get()), S_OK);
  EXPECT_EQ(last.ConnectTo(source.Get()), S_OK);
  int kind = 0;
  last.act = [&](VelNotification& ioNotification) {
    const auto* modify = VelNotificationCast<VelModifyAttribut>(&ioNotification);
    kind = modify != nullptr ? modify->GetAttributeKind() : -1;
  };
  EXPECT_EQ(Dispatch(source), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"first", "model", "last"}));
  EXPECT_EQ(kind, 5);
}

TEST_F(VelModelEventsListenerTest, ConnectTo_Twice_IsOneConnection) {
  const Model source = MakeModel("source");
  NotingListener listener("listener");
  EXPECT_EQ(listener.ConnectTo(source.Get()), S_OK);
  EXPECT_EQ(listener.ConnectTo(source.implementation), S_FALSE);
  EXPECT_EQ(Dispatch(source), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{"listener"});
  EXPECT_EQ(listener.DeconnectFrom(source.Get()), S_OK);
  EXPECT_EQ(listener.DeconnectFrom(source.Get()), S_FALSE);
  EXPECT_EQ(Dispatch(source), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{});
}

TEST_F(VelModelEventsListenerTest, Connection_OfRefusedObjects_SaysWhy) {
  const Model ended = MakeModel("ended");
  ended.End();
  const VelBaseUnknown_var hPlain = VelObject::Create("VelTestPlainType", "VelTestEventObject");
  NotingListener listener("listener");
  EXPECT_EQ(listener.ConnectTo(nullptr), E_INVALIDARG);
  EXPECT_EQ(listener.DeconnectFrom(nullptr), E_INVALIDARG);
  EXPECT_EQ(listener.ConnectTo(hPlain.Get()), E_NOINTERFACE);
  EXPECT_EQ(listener.DeconnectFrom(hPlain.Get()), E_NOINTERFACE);
  EXPECT_EQ(listener.ConnectTo(ended.Get()), E_NOINTERFACE);
  EXPECT_EQ(listener.DeconnectFrom(ended.Get()), S_FALSE);
}

TEST_F(VelModelEventsListenerTest, ConnectTo_AClosedObjectThatACallStillKeeps_FindsNoInterface) {
  const Model source = MakeModel("source");
  NotingListener first("first");
  NotingListener late("late");
  EXPECT_EQ(first.ConnectTo(source.Get()), S_OK);
  first.act = [&](VelNotification&) {
    source.End();
    EXPECT_EQ(late.ConnectTo(source.Get()), E_NOINTERFACE);
    EXPECT_EQ(late.DeconnectFrom(source.Get()), S_FALSE);
    EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
  };
  EXPECT_EQ(Dispatch(source), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{"first"});
}

TEST_F(VelModelEventsListenerTest, Connections_EndWithTheListener) {
  const Model a = MakeModel("a");
  const Model b = MakeModel("b");
  {
    NotingListener listener("listener");
    EXPECT_EQ(listener.ConnectTo(a.Get()), S_OK);
    EXPECT_EQ(listener.ConnectTo(b.Get()), S_OK);
    EXPECT_EQ(VelExtIModelEvents::CountConnections(), 2);
  }
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
  EXPECT_EQ(Dispatch(a), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{});
}

TEST_F(VelModelEventsListenerTest, Connections_EndWithTheObject) {
  Model a = MakeModel("a");
  const Model b = MakeModel("b");
  NotingListener listener("listener");
  EXPECT_EQ(listener.ConnectTo(a.Get()), S_OK);
  EXPECT_EQ(listener.ConnectTo(b.Get()), S_OK);
  a.handle = nullptr;
  b.End();
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
}

TEST_F(VelModelEventsListenerTest, Listener_ThatDiesWhileItReceives_LeavesTheOthersTheirTurn) {
  const Model source = MakeModel("source");
  auto mortal = std::make_unique<NotingListener>("mortal");
  auto doomed = std::make_unique<NotingListener>("doomed");
  NotingListener last("last");
  for (NotingListener* listener : {mortal.get(), doomed.get(), &last}) {
    EXPECT_EQ(listener->ConnectTo(source.Get()), S_OK);
  }
  mortal->act = [&](VelNotification&) {
    doomed.reset();
    mortal.reset();
  };
  EXPECT_EQ(Dispatch(source), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"mortal", "last"}));
}

TEST_F(VelModelEventsListenerTest, Listener_ThatThrows_IsACheckAndTheNextOneGoesOn) {
  const Model source = MakeModel("source");
  NotingListener first("first");
  NotingListener last("last");
  EXPECT_EQ(first.ConnectTo(source.Get()), S_OK);
  EXPECT_EQ(last.ConnectTo(source.Get()), S_OK);
  first.act = [](VelNotification&) { throw std::runtime_error("reception"); };
  const RecordingFailureObserver failures;
  EXPECT_EQ(Dispatch(source), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"first", "last"}));
  ASSERT_EQ(failures.Failures().size(), 1U);
  EXPECT_EQ(failures.Failures()[0].detail, "VelModelEventsListener: reception");
}

}  // namespace
