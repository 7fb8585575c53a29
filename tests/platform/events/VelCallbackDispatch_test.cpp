// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCallbackDispatch_test.cpp The order of deliveries, and everything that may happen during one.
#include <array>
#include <memory>
#include <stdexcept>

#include "platform/events/VelCallbackManager.h"
#include "platform/events/VelModifyAttribut.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/platform/events/EventsTest.h"
#include "tests/support/VelAllocationCounter.h"
#include "tests/support/VelFailureRecorder.h"

namespace {

using VelCallbackDispatchTest = EventsTest;

const VelEventName opened = VelTestEvents::OPENED();
const VelEventName changed = VelTestEvents::CHANGED();
const VelEventName closed = VelTestEvents::CLOSED();

TEST_F(VelCallbackDispatchTest, Dispatch_HandsEventPublisherAndNotificationToTheReceiver) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  Subscribe(publisher, subscriber, {changed});
  VelModifyAttribut notification(nullptr, nullptr, nullptr, 0);
  publisher->Emit(changed, &notification);
  EXPECT_EQ(TakeNotes(), Texts{"a:changed"});
  EXPECT_EQ(subscriber->lastPublisher, publisher.implementation);
  EXPECT_EQ(subscriber->lastNotification, &notification);
}

TEST_F(VelCallbackDispatchTest, Order_PerEvent_IsThatOfSubscriptionWhateverWasMerged) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  const Subscriber c = MakeSubscriber("c");
  Subscribe(publisher, a, {opened});
  Subscribe(publisher, b, {changed, opened, closed});
  Subscribe(publisher, a, {closed, changed});
  Subscribe(publisher, c, {opened, changed});
  for (VelEventName event : {opened, changed, closed}) publisher->Emit(event);
  EXPECT_EQ(TakeNotes(),
            (Texts{"a:opened", "b:opened", "c:opened", "b:changed", "a:changed", "c:changed", "b:closed", "a:closed"}));
}

TEST_F(VelCallbackDispatchTest, Order_OfOneWhoSubscribesAnew_IsThatOfTheNewSubscription) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(publisher, a, {opened, changed});
  Subscribe(publisher, b, {changed});
  ASSERT_EQ(publisher->callbacks.RemoveCallback(changed, a.implementation), S_OK);
  Subscribe(publisher, a, {changed});
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"b:changed", "a:changed"}));
}

TEST_F(VelCallbackDispatchTest, Dispatch_OfAHundredSubscribers_ReachesEachInOrder) {
  const Publisher publisher = MakePublisher();
  std::vector<Subscriber> subscribers;
  Texts expected;
  for (int i = 0; i < 100; ++i) {
    subscribers.push_back(MakeSubscriber(std::to_string(i)));
    Subscribe(publisher, subscribers.back(), {changed});
    expected.push_back(std::to_string(i) + ":changed");
  }
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), expected);
}

TEST_F(VelCallbackDispatchTest, Dispatch_InsideADelivery_IsDeliveredAtOnce) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(publisher, a, {opened, changed});
  Subscribe(publisher, b, {opened, changed});
  a->act = [&](VelEventName iEvent) {
    if (iEvent == opened) publisher->Emit(changed);
  };
  publisher->Emit(opened);
  EXPECT_EQ(TakeNotes(), (Texts{"a:opened", "a:changed", "b:changed", "b:opened"}));
}

TEST_F(VelCallbackDispatchTest, Unsubscribing_DuringADispatch_IsHeardAtOnceByThoseWhoseTurnIsYetToCome) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  const Subscriber c = MakeSubscriber("c");
  for (const Subscriber& subscriber : {a, b, c}) Subscribe(publisher, subscriber, {changed});
  a->act = [&](VelEventName) {
    EXPECT_EQ(publisher->callbacks.RemoveCallback(changed, b.implementation), S_OK);
    EXPECT_EQ(publisher->callbacks.RemoveCallback(changed, a.implementation), S_OK);
  };
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "c:changed"}));
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), Texts{"c:changed"});
}

TEST_F(VelCallbackDispatchTest, Subscribing_DuringADispatch_WaitsForTheNextOne) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(publisher, a, {changed});
  a->act = [&](VelEventName) {
    a->act = nullptr;
    Subscribe(publisher, b, {changed});
    Subscribe(publisher, a, {opened});
  };
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), Texts{"a:changed"});
  publisher->Emit(changed);
  publisher->Emit(opened);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "b:changed", "a:opened"}));
}

TEST_F(VelCallbackDispatchTest, Subscribing_TheLastSubscriberToTheRunningEvent_WaitsForTheNextDispatch) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(publisher, a, {changed});
  Subscribe(publisher, b, {opened});
  a->act = [&](VelEventName) {
    a->act = nullptr;
    Subscribe(publisher, b, {changed});
  };
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), Texts{"a:changed"}) << "no merge into the last entry while a dispatch counts on it";
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "b:changed"}));
}

TEST_F(VelCallbackDispatchTest, Subscribing_DuringADispatch_IsHeardByADispatchInsideIt) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(publisher, a, {changed});
  a->act = [&](VelEventName) {
    a->act = nullptr;
    Subscribe(publisher, b, {changed});
    publisher->Emit(changed);
  };
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "a:changed", "b:changed"}));
}

TEST_F(VelCallbackDispatchTest, Leaving_AndComingBackDuringADispatch_WaitsForTheNextOne) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(publisher, a, {changed});
  Subscribe(publisher, b, {changed});
  a->act = [&](VelEventName) {
    a->act = nullptr;
    EXPECT_EQ(publisher->callbacks.RemoveSubscriber(b.implementation), S_OK);
    Subscribe(publisher, b, {changed});
  };
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), Texts{"a:changed"});
}

TEST_F(VelCallbackDispatchTest, Closing_ALaterSubscriber_SkipsIt) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  const Subscriber c = MakeSubscriber("c");
  for (const Subscriber& subscriber : {a, b, c}) Subscribe(publisher, subscriber, {changed});
  a->act = [&](VelEventName) {
    if (b.handle->GetComponentState() != VelComponentState::Closed) b.End();
  };
  publisher->Emit(changed);
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "b destroyed", "c:changed", "a:changed", "c:changed"}));
}

TEST_F(VelCallbackDispatchTest, Subscriber_ThatClosesItself_LivesUntilItsDeliveryHasUnwound) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  Subscribe(publisher, a, {changed});
  a->act = [&](VelEventName) {
    a.End();
    VelCallbackManager& callbacks = publisher->callbacks;
    EXPECT_EQ(callbacks.AddCallback(opened, a.implementation, VelTestSubscriber::Receivers()), E_FAIL);
    EXPECT_EQ(callbacks.RemoveCallback(changed, a.implementation), S_FALSE);
    VelTestNotes().emplace_back("still running");
  };
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "still running", "a destroyed"}));
}

TEST_F(VelCallbackDispatchTest, Subscriber_WhoseLastReferenceGoes_LivesUntilItsDeliveryHasUnwound) {
  const Publisher publisher = MakePublisher();
  Subscriber a = MakeSubscriber("a");
  Subscribe(publisher, a, {changed});
  a->act = [&](VelEventName) {
    a.handle = nullptr;
    VelTestNotes().emplace_back("still running");
  };
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "still running", "a destroyed"}));
}

TEST_F(VelCallbackDispatchTest, Closing_ThePublisher_SkipsTheRestOfEveryRunningDispatch) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(publisher, a, {opened, changed});
  Subscribe(publisher, b, {opened, changed});
  a->act = [&](VelEventName iEvent) {
    if (iEvent == opened) {
      publisher->Emit(changed);
    } else {
      publisher.End();
      EXPECT_TRUE(publisher->callbacks.HasSubscriber(changed)) << "the publisher stays while a dispatch runs";
      publisher->Emit(changed);
    }
  };
  publisher->Emit(opened);
  EXPECT_EQ(TakeNotes(), (Texts{"a:opened", "a:changed"}));
  EXPECT_EQ(VelInstanceCounts::Now().implementations, 2) << "the publisher went with the last dispatch";
}

TEST_F(VelCallbackDispatchTest, Publisher_WhoseLastReferenceGoes_LivesUntilItsDispatchHasUnwound) {
  Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(publisher, a, {changed});
  Subscribe(publisher, b, {changed});
  a->act = [&](VelEventName) { publisher.handle = nullptr; };
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "b:changed"})) << "nobody closed it before the end";
  EXPECT_EQ(VelInstanceCounts::Now().components, 2);
}

TEST_F(VelCallbackDispatchTest, Dispatch_OfAClosedPublisher_ReachesNobody) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  VelCallbackManager callbacks;
  ASSERT_EQ(callbacks.AddCallback(changed, a.implementation, VelTestSubscriber::Receivers()), S_OK);
  publisher.End();
  callbacks.Dispatch(changed, nullptr, publisher.Get());
  EXPECT_EQ(TakeNotes(), Texts{});
}

TEST_F(VelCallbackDispatchTest, Dispatch_WithoutAPublisher_ReachesEverybody) {
  VelCallbackManager callbacks;
  const Subscriber a = MakeSubscriber("a");
  ASSERT_EQ(callbacks.AddCallback(changed, a.implementation, VelTestSubscriber::Receivers()), S_OK);
  callbacks.Dispatch(changed, nullptr, nullptr);
  EXPECT_EQ(TakeNotes(), Texts{"a:changed"});
}

TEST_F(VelCallbackDispatchTest, Publisher_ThatHearsItself_IsASubscriberLikeAnyOther) {
  const Subscriber a = MakeSubscriber("a");
  VelCallbackManager callbacks;
  ASSERT_EQ(callbacks.AddCallback(changed, a.implementation, VelTestSubscriber::Receivers()), S_OK);
  a->act = [&](VelEventName) { a.End(); };
  callbacks.Dispatch(changed, nullptr, a.implementation);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "a destroyed"}));
}

TEST_F(VelCallbackDispatchTest, Receiver_ThatThrows_IsACheckAndTheNextOneGoesOn) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(publisher, a, {changed});
  Subscribe(publisher, b, {changed});
  a->act = [](VelEventName) { throw std::runtime_error("reception"); };
  const RecordingFailureObserver failures;
  const RecordingProbe probe;
  publisher->Emit(changed);
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "b:changed", "a:changed", "b:changed"}));
  ASSERT_EQ(failures.Failures().size(), 2U);
  EXPECT_EQ(failures.Failures()[0].message, "The receiver of an event threw an exception");
  EXPECT_EQ(failures.Failures()[0].expression, "changed");
  EXPECT_EQ(failures.Failures()[0].detail, "VelTestSubscriber: reception");
  for (const VelCallbackDelivery& delivery : probe.deliveries) EXPECT_EQ(delivery.depth, 0);
}

TEST_F(VelCallbackDispatchTest, Tombstones_AreGoneAfterTheOutermostDispatch) {
  const Publisher publisher = MakePublisher();
  std::vector<Subscriber> subscribers;
  for (int i = 0; i < 8; ++i) {
    subscribers.push_back(MakeSubscriber(std::to_string(i)));
    Subscribe(publisher, subscribers.back(), {changed});
  }
  subscribers[0]->act = [&](VelEventName) {
    subscribers[0]->act = nullptr;
    for (std::size_t i = 1; i < 8; ++i) {
      EXPECT_EQ(publisher->callbacks.RemoveSubscriber(subscribers[i].implementation), S_OK);
    }
    publisher->Emit(changed);
  };
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"0:changed", "0:changed"}));
  // Eight places are there; seven are free only when the tombstones are gone.
  const VelAllocationCounter allocations;
  HRESULT code = S_OK;
  for (std::size_t i = 1; i < 8 && code == S_OK; ++i) {
    code = publisher->callbacks.AddCallback(changed, subscribers[i].implementation, VelTestSubscriber::Receivers());
  }
  EXPECT_EQ(allocations.Count(), 0);
  EXPECT_EQ(code, S_OK);
}

TEST_F(VelCallbackDispatchTest, Entries_GoWhenTheLastSubscriptionEndsDuringADispatch) {
  const Publisher publisher = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  Subscribe(publisher, a, {changed});
  a->act = [&](VelEventName) {
    EXPECT_EQ(publisher->callbacks.RemoveSubscriber(a.implementation), S_OK);
    EXPECT_FALSE(publisher->callbacks.HasSubscriber(changed));
    VelListPtrVelBaseUnknown list;
    publisher->callbacks.ListSubscribers(changed, list);
    EXPECT_TRUE(list.IsEmpty());
  };
  publisher->Emit(changed);
  a->act = nullptr;
  Subscribe(publisher, a, {opened});
  publisher->Emit(opened);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "a:opened"}));
}

TEST_F(VelCallbackDispatchTest, Dispatch_AllocatesNothing) {
  const Publisher publisher = MakePublisher();
  std::vector<Subscriber> subscribers;
  for (int i = 0; i < 20; ++i) {
    subscribers.push_back(MakeSubscriber(std::to_string(i)));
    subscribers.back()->isSilent = true;
    Subscribe(publisher, subscribers.back(), {changed});
  }
  int heard = 0;
  subscribers[19]->act = [&](VelEventName) { ++heard; };
  const VelAllocationCounter allocations;
  for (int i = 0; i < 10; ++i) {
    VelModifyAttribut notification(publisher.implementation, nullptr, nullptr, 0);
    if (publisher->callbacks.HasSubscriber(changed)) publisher->Emit(changed, &notification);
  }
  EXPECT_EQ(allocations.Count(), 0);
  EXPECT_EQ(heard, 10);
}

TEST_F(VelCallbackDispatchTest, Probe_RecordsEveryDeliveryInOrderWithItsDepth) {
  const Publisher first = MakePublisher();
  const Publisher second = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(first, a, {opened});
  Subscribe(first, b, {opened});
  Subscribe(second, b, {closed});
  a->act = [&](VelEventName) { second->Emit(closed); };
  VelModifyAttribut notification(nullptr, nullptr, nullptr, 0);
  {
    const RecordingProbe probe;
    first->Emit(opened, &notification);
    ASSERT_EQ(probe.deliveries.size(), 3U);
    struct Case {
      const char* name;
      VelEventName event;
      VelBaseUnknown* publisher;
      VelBaseUnknown* subscriber;
      VelNotification* notification;
      int depth;
    };
    std::size_t index = 0;
    for (const Case& expected :
         {Case{"outer", opened, first.implementation, a.implementation, &notification, 0},
          Case{"inner", closed, second.implementation, b.implementation, nullptr, 1},
          Case{"outer again", opened, first.implementation, b.implementation, &notification, 0}}) {
      SCOPED_TRACE(expected.name);
      const VelCallbackDelivery& delivery = probe.deliveries[index++];
      EXPECT_EQ(delivery.event, expected.event);
      EXPECT_EQ(delivery.publisher, expected.publisher);
      EXPECT_EQ(delivery.subscriber, expected.subscriber);
      EXPECT_EQ(delivery.notification, expected.notification);
      EXPECT_EQ(delivery.depth, expected.depth);
    }
  }
  EXPECT_EQ(VelCallbackManager::SetProbe(nullptr), nullptr) << "the probe that was there before is back";
}

TEST_F(VelCallbackDispatchTest, DeliveryDepth_CountsTheDeliveriesThatRun) {
  const Publisher first = MakePublisher();
  const Publisher second = MakePublisher();
  const Subscriber a = MakeSubscriber("a");
  const Subscriber b = MakeSubscriber("b");
  Subscribe(first, a, {opened});
  Subscribe(second, b, {closed});
  std::vector<int> depths;
  const auto note = [&] { depths.push_back(VelCallbackManager::DeliveryDepth()); };
  a->act = [&](VelEventName) {
    note();
    second->Emit(closed);
    note();
  };
  b->act = [&](VelEventName) { note(); };
  note();
  first->Emit(opened);
  note();
  EXPECT_EQ(depths, (std::vector<int>{0, 1, 2, 1, 0}));
}

}  // namespace
