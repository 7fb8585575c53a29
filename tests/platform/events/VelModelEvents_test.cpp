// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModelEvents_test.cpp How notifications go from object to object, and what ends a connection.
#include <stdexcept>

#include "platform/events/VelModifyAttribut.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/platform/events/EventsTest.h"
#include "tests/support/VelAllocationCounter.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

static_assert(sizeof(VelExtIModelEvents) == 48);

class VelModelEventsTest : public EventsTest {
 protected:
  static VelIModelEvents_var EventsOf(const Model& iModel) { return VelIModelEvents_var(iModel.handle); }

  /// Connects and expects that to be new.
  static void Connect(const Model& iListener, const Model& iSource) {
    EXPECT_EQ(EventsOf(iListener)->ConnectTo(iSource.Get()), S_OK);
  }

  VelModifyAttribut notification_{nullptr, nullptr, nullptr, 0};
};

TEST_F(VelModelEventsTest, Dispatch_ReachesThoseWhoConnectedInTheirOrder) {
  const Model source = MakeModel("source");
  const Model a = MakeModel("a");
  const Model b = MakeModel("b");
  const Model c = MakeModel("c");
  for (const Model& listener : {b, a, c}) Connect(listener, source);
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"b", "a", "c"}));
}

TEST_F(VelModelEventsTest, Dispatch_WithoutListeners_IsDone) {
  const Model source = MakeModel("source");
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  const Model other = MakeModel("other");
  Connect(source, other);
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{}) << "who only listens is heard by nobody";
}

TEST_F(VelModelEventsTest, Receive_HandsOnAlongAChain) {
  const Model first = MakeModel("first");
  const Model second = MakeModel("second");
  const Model third = MakeModel("third");
  Connect(third, second);
  Connect(second, first);
  EXPECT_EQ(EventsOf(first)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"second", "third"}));
  EXPECT_EQ(EventsOf(second)->Receive(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"second", "third"})) << "receiving is the beginning of handing on";
}

TEST_F(VelModelEventsTest, ConnectTo_Twice_IsOneConnection) {
  const Model source = MakeModel("source");
  const Model listener = MakeModel("listener");
  Connect(listener, source);
  EXPECT_EQ(EventsOf(listener)->ConnectTo(source.Get()), S_FALSE);
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 1);
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{"listener"});
  EXPECT_EQ(EventsOf(listener)->DeconnectFrom(source.Get()), S_OK);
  EXPECT_EQ(EventsOf(listener)->DeconnectFrom(source.Get()), S_FALSE);
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
}

TEST_F(VelModelEventsTest, ConnectTo_AHundredThousandTimes_AddsNothingAfterTheFirst) {
  const Model source = MakeModel("source");
  const Model listener = MakeModel("listener");
  std::vector<Model> others;
  for (int i = 0; i < 1000; ++i) {
    others.push_back(MakeModel("other"));
    Connect(others.back(), source);
    Connect(listener, others.back());
  }
  Connect(listener, source);
  const VelIModelEvents_var hListener = EventsOf(listener);
  const VelIModelEvents_var hSource = EventsOf(source);
  const VelAllocationCounter allocations;
  int unchanged = 0;
  for (int i = 0; i < 100000; ++i) {
    if (hListener->ConnectTo(hSource.Get()) == S_FALSE) ++unchanged;
  }
  EXPECT_EQ(unchanged, 100000);
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 2001);
  if (VelAllocationCounter::CountsForwarders()) {
    EXPECT_EQ(allocations.Count(), 0);
  }
}

TEST_F(VelModelEventsTest, Connection_OfRefusedObjects_SaysWhy) {
  const Model listener = MakeModel("listener");
  const Model ended = MakeModel("ended");
  ended.End();
  const VelBaseUnknown_var hPlain = VelObject::Create("VelTestPlainType", "VelTestEventObject");
  const VelBaseUnknown_var hForeign = VelObject::Create("VelTestForeignType", "VelTestEventObject");
  struct Case {
    const char* name;
    VelBaseUnknown* object;
    HRESULT connected;
    HRESULT deconnected;
  };
  for (const Case& test : {Case{"null", nullptr, E_INVALIDARG, E_INVALIDARG},
                           Case{"without VelIModelEvents", hPlain.Get(), E_NOINTERFACE, E_NOINTERFACE},
                           Case{"with VelIModelEvents of its own making", hForeign.Get(), E_NOINTERFACE, E_NOINTERFACE},
                           Case{"closed", ended.Get(), E_NOINTERFACE, S_FALSE}}) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(EventsOf(listener)->ConnectTo(test.object), test.connected);
    EXPECT_EQ(EventsOf(listener)->DeconnectFrom(test.object), test.deconnected);
  }
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
}

TEST_F(VelModelEventsTest, Operations_OfAClosedObject_Fail) {
  const Model source = MakeModel("source");
  const Model ended = MakeModel("ended");
  const VelIModelEvents_var hEnded = EventsOf(ended);
  ended->act = [&](VelNotification& ioNotification) {
    ended.End();
    EXPECT_EQ(ended->Dispatch(ioNotification), E_FAIL);
    EXPECT_EQ(ended->ConnectTo(source.Get()), E_FAIL);
    EXPECT_EQ(ended->DeconnectFrom(source.Get()), E_FAIL);
    VelBaseUnknown* dispatcher = ended.Get();
    EXPECT_EQ(ended->GetDispatcher(&dispatcher), E_FAIL);
    EXPECT_EQ(dispatcher, nullptr);
  };
  EXPECT_EQ(hEnded->Receive(notification_), E_FAIL);
  EXPECT_EQ(hEnded->Dispatch(notification_), E_FAIL);
  EXPECT_EQ(hEnded->ConnectTo(source.Get()), E_FAIL);
  EXPECT_EQ(hEnded->DeconnectFrom(source.Get()), E_FAIL);
}

/// What is built of a closed object still answers queries while a call keeps it.
TEST_F(VelModelEventsTest, ConnectTo_AClosedObjectThatACallStillKeeps_FindsNoInterface) {
  const Model source = MakeModel("source");
  const Model running = MakeModel("running");
  const Model listener = MakeModel("listener");
  Connect(running, source);
  running->act = [&](VelNotification&) {
    source.End();
    running.End();
    for (const Model& closed : {source, running}) {
      EXPECT_EQ(EventsOf(listener)->ConnectTo(closed.Get()), E_NOINTERFACE);
      EXPECT_EQ(EventsOf(listener)->ConnectTo(closed.implementation), E_NOINTERFACE);
      EXPECT_EQ(EventsOf(listener)->DeconnectFrom(closed.Get()), S_FALSE);
    }
    EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
  };
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{"running"});
}

TEST_F(VelModelEventsTest, GetDispatcher_IsTheObjectItself) {
  const Model model = MakeModel("model");
  VelBaseUnknown_var hDispatcher;
  ASSERT_EQ(EventsOf(model)->GetDispatcher(hDispatcher.Receive()), S_OK);
  EXPECT_TRUE(hDispatcher->IsEqual(model.Get()));
  EXPECT_STREQ(hDispatcher->ClassName(), "VelIModelEvents");
  EXPECT_EQ(EventsOf(model)->GetDispatcher(nullptr), E_INVALIDARG);
}

TEST_F(VelModelEventsTest, Cycle_OfAnyLength_ReachesEachOnce) {
  for (std::size_t length = 1; length <= 4; ++length) {
    SCOPED_TRACE(length);
    std::vector<Model> ring;
    Texts expected;
    for (std::size_t i = 0; i < length; ++i) {
      ring.push_back(MakeModel(std::to_string(i)));
      if (i > 0) expected.push_back(std::to_string(i));
    }
    for (std::size_t i = 0; i < length; ++i) Connect(ring[(i + 1) % length], ring[i]);
    EXPECT_EQ(EventsOf(ring[0])->Dispatch(notification_), S_OK);
    EXPECT_EQ(TakeNotes(), expected);
    // Once more: what was cut is not cut for ever.
    EXPECT_EQ(EventsOf(ring[0])->Dispatch(notification_), S_OK);
    EXPECT_EQ(TakeNotes(), expected);
  }
}

TEST_F(VelModelEventsTest, Connection_InBothDirections_ReachesTheOtherOnce) {
  const Model a = MakeModel("a");
  const Model b = MakeModel("b");
  Connect(a, b);
  Connect(b, a);
  EXPECT_EQ(EventsOf(a)->Dispatch(notification_), S_OK);
  EXPECT_EQ(EventsOf(b)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"b", "a"}));
  EXPECT_EQ(EventsOf(a)->DeconnectFrom(b.Get()), S_OK);
  EXPECT_EQ(EventsOf(b)->Dispatch(notification_), S_OK);
  EXPECT_EQ(EventsOf(a)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{"b"}) << "the other direction stays";
}

TEST_F(VelModelEventsTest, Diamond_DeliversTwiceToWhereTwoWaysMeet) {
  const Model top = MakeModel("top");
  const Model left = MakeModel("left");
  const Model right = MakeModel("right");
  const Model bottom = MakeModel("bottom");
  Connect(left, top);
  Connect(right, top);
  Connect(bottom, left);
  Connect(bottom, right);
  EXPECT_EQ(EventsOf(top)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"left", "bottom", "right", "bottom"}));
}

TEST_F(VelModelEventsTest, Dispatch_OfTheRunningNotification_IsCutAndOfAnotherIsNot) {
  const Model source = MakeModel("source");
  const Model listener = MakeModel("listener");
  Connect(listener, source);
  VelModifyAttribut other(nullptr, nullptr, nullptr, 1);
  listener->act = [&](VelNotification& ioNotification) {
    EXPECT_EQ(EventsOf(source)->Dispatch(ioNotification), S_FALSE);
    EXPECT_EQ(EventsOf(source)->Receive(ioNotification), S_FALSE);
    if (&ioNotification == &notification_) {
      EXPECT_EQ(EventsOf(source)->Dispatch(other), S_OK);
    }
  };
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"listener", "source", "listener", "source"}))
      << "the source's override sees what others hand it by Receive; the base cuts";
}

TEST_F(VelModelEventsTest, Dispatch_ThatIsOverridden_IsCalledForWhatIsReceived) {
  const Model source = MakeModel("source");
  const Model middle = MakeModel("middle");
  const Model listener = MakeModel("listener");
  Connect(middle, source);
  Connect(listener, middle);
  middle->inDispatch = [](VelNotification&) { VelTestNotes().emplace_back("override"); };
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"middle", "override", "listener"}));
  middle->dispatchesToBase = 0;
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"middle", "override"}));
  middle->dispatchesToBase = 2;
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"middle", "override", "listener", "listener"})) << "one after the other is no re-entry";
}

TEST_F(VelModelEventsTest, Override_ThatHandsARound_IsCutWhenItIsReachedAgain) {
  const Model a = MakeModel("a");
  const Model b = MakeModel("b");
  Connect(a, b);
  a->dispatchesToBase = 0;
  a->inDispatch = [&](VelNotification& ioNotification) { EXPECT_EQ(EventsOf(b)->Dispatch(ioNotification), S_OK); };
  EXPECT_EQ(EventsOf(a)->Receive(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{"a"});
}

TEST_F(VelModelEventsTest, Disconnecting_DuringADispatch_IsHeardAtOnce) {
  const Model source = MakeModel("source");
  const Model a = MakeModel("a");
  const Model b = MakeModel("b");
  const Model c = MakeModel("c");
  for (const Model& listener : {a, b, c}) Connect(listener, source);
  a->act = [&](VelNotification&) {
    EXPECT_EQ(EventsOf(a)->DeconnectFrom(source.Get()), S_OK);
    EXPECT_EQ(EventsOf(b)->DeconnectFrom(source.Get()), S_OK);
  };
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"a", "c"}));
}

TEST_F(VelModelEventsTest, Connecting_DuringADispatch_WaitsForTheNextOne) {
  const Model source = MakeModel("source");
  const Model a = MakeModel("a");
  const Model b = MakeModel("b");
  const Model c = MakeModel("c");
  Connect(a, source);
  Connect(c, source);
  a->act = [&](VelNotification&) {
    a->act = nullptr;
    Connect(b, source);
    EXPECT_EQ(EventsOf(a)->DeconnectFrom(source.Get()), S_OK);
    Connect(a, source);
  };
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"a", "c"}));
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"c", "b", "a"})) << "who connects anew stands last";
}

TEST_F(VelModelEventsTest, Connection_KeepsNobodyAliveAndEndsWithEitherEnd) {
  Model source = MakeModel("source");
  Model listener = MakeModel("listener");
  const Model other = MakeModel("other");
  Connect(listener, source);
  Connect(other, source);
  listener.handle = nullptr;
  EXPECT_EQ(VelInstanceCounts::Now().components, 2);
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 1);
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{"other"});
  source.handle = nullptr;
  EXPECT_EQ(VelInstanceCounts::Now().components, 1);
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
}

TEST_F(VelModelEventsTest, Closing_AListenerDuringADispatch_SkipsIt) {
  const Model source = MakeModel("source");
  const Model a = MakeModel("a");
  const Model b = MakeModel("b");
  const Model c = MakeModel("c");
  for (const Model& listener : {a, b, c}) Connect(listener, source);
  a->act = [&](VelNotification&) {
    b.End();
    a.End();
    EXPECT_EQ(VelExtIModelEvents::CountConnections(), 1) << "closed is enough, although a call still keeps it";
    VelTestNotes().emplace_back("still running");
  };
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"a", "still running", "c"}));
}

TEST_F(VelModelEventsTest, Closing_TheSourceDuringADispatch_SkipsTheRest) {
  Model source = MakeModel("source");
  const Model a = MakeModel("a");
  const Model b = MakeModel("b");
  Connect(a, source);
  Connect(b, source);
  a->act = [&](VelNotification&) {
    source.End();
    source.handle = nullptr;
  };
  EXPECT_EQ(source->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{"a"});
  EXPECT_EQ(VelInstanceCounts::Now().components, 2);
}

TEST_F(VelModelEventsTest, Listener_ThatIsBeingClosed_ReceivesNothingWhileItIsStillConnected) {
  const Model source = MakeModel("source");
  const Model listener = MakeModel("listener");
  Connect(listener, source);
  listener->onClosing = [&] {
    EXPECT_EQ(VelExtIModelEvents::CountConnections(), 1);
    EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  };
  listener.End();
  EXPECT_EQ(TakeNotes(), Texts{});
}

TEST_F(VelModelEventsTest, Source_ThatIsClosedAndStaysConnected_HandsNothingOn) {
  const Model source = MakeModel("source");
  const Model a = MakeModel("a");
  const Model b = MakeModel("b");
  Connect(a, source);
  Connect(b, source);
  source->staysConnected = true;
  a->act = [&](VelNotification&) {
    source.End();
    EXPECT_EQ(VelExtIModelEvents::CountConnections(), 2);
  };
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), Texts{"a"});
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0) << "at the latest they end with the object";
}

TEST_F(VelModelEventsTest, Object_ThatClosesItselfOnReceiving_IsNotAskedToDispatch) {
  const Model model = MakeModel("model");
  model->act = [&](VelNotification&) { model.End(); };
  model->inDispatch = [](VelNotification&) { VelTestNotes().emplace_back("dispatched"); };
  EXPECT_EQ(EventsOf(model)->Receive(notification_), E_FAIL);
  EXPECT_EQ(TakeNotes(), Texts{"model"});
}

TEST_F(VelModelEventsTest, Receiver_ThatThrows_IsACheckAndTheNextOneGoesOn) {
  const Model source = MakeModel("source");
  const Model a = MakeModel("a");
  const Model b = MakeModel("b");
  Connect(a, source);
  Connect(b, source);
  a->act = [](VelNotification&) { throw std::runtime_error("reception"); };
  const RecordingFailureObserver failures;
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"a", "b", "a", "b"}));
  ASSERT_EQ(failures.Failures().size(), 2U);
  EXPECT_EQ(failures.Failures()[0].message, "The receiver of a model event threw an exception");
  EXPECT_EQ(failures.Failures()[0].detail, "VelTestModel: reception");
}

TEST_F(VelModelEventsTest, Override_ThatThrowsWhileItHandsOn_LeavesNoNotificationRunning) {
  const Model source = MakeModel("source");
  const Model middle = MakeModel("middle");
  const Model listener = MakeModel("listener");
  Connect(middle, source);
  Connect(listener, middle);
  middle->inDispatch = [](VelNotification&) { throw std::runtime_error("dispatch"); };
  const RecordingFailureObserver failures;
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  middle->inDispatch = nullptr;
  EXPECT_EQ(EventsOf(source)->Dispatch(notification_), S_OK);
  EXPECT_EQ(TakeNotes(), (Texts{"middle", "middle", "listener"}));
}

TEST_F(VelModelEventsTest, Chain_OfMoreObjectsThanTheLimit_EndsThereWithACheck) {
  constexpr std::size_t count = 1100;
  std::vector<Model> chain;
  for (std::size_t i = 0; i < count; ++i) {
    chain.push_back(MakeModel(std::to_string(i)));
    if (i > 0) Connect(chain[i], chain[i - 1]);
  }
  const RecordingFailureObserver failures;
  EXPECT_EQ(EventsOf(chain[0])->Dispatch(notification_), S_OK);
  ASSERT_EQ(failures.Failures().size(), 1U);
  EXPECT_EQ(failures.Failures()[0].message, "Model events are handed on through too many objects");
  EXPECT_EQ(VelTestNotes().back(), "1024") << "it still receives, but hands on no more";
  VelTestNotes().clear();
  EXPECT_EQ(EventsOf(chain[1000])->Dispatch(notification_), S_OK);
  EXPECT_EQ(VelTestNotes().back(), "1099") << "the depth has unwound";
}

TEST_F(VelModelEventsTest, Dispatch_AllocatesNothing) {
  const Model source = MakeModel("source");
  const Model middle = MakeModel("middle");
  Connect(middle, source);
  VelTestNotes().reserve(100);
  const VelAllocationCounter allocations;
  static_cast<void>(source->Dispatch(notification_));
  static_cast<void>(source->Dispatch(notification_));
  EXPECT_EQ(allocations.Count(), 0);
  EXPECT_EQ(TakeNotes(), (Texts{"middle", "middle"}));
}

TEST_F(VelModelEventsTest, Teardown_OfManyConnectionsInAnyOrder_LeavesNone) {
  std::vector<Model> models;
  for (int i = 0; i < 40; ++i) models.push_back(MakeModel(std::to_string(i)));
  for (const Model& listener : models) {
    for (const Model& source : models) Connect(listener, source);
  }
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 1600);
  for (std::size_t i = 0; i < models.size(); i += 2) models[i].End();
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 400);
  EXPECT_EQ(EventsOf(models[1])->DeconnectFrom(models[3].Get()), S_OK);
  EXPECT_EQ(EventsOf(models[3])->DeconnectFrom(models[1].Get()), S_OK);
  EXPECT_EQ(VelExtIModelEvents::CountConnections(), 398);
}

}  // namespace
