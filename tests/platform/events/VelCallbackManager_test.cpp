// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCallbackManager_test.cpp Subscribing, unsubscribing and asking who hears what.
#include "platform/events/VelCallbackManager.h"

#include <array>

#include "platform/objectmodeler/VelIDelegation.h"
#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/platform/events/EventsTest.h"
#include "tests/support/VelAllocationCounter.h"

namespace {

using VelCallbackManagerTest = EventsTest;

const VelEventName opened = VelTestEvents::OPENED();
const VelEventName changed = VelTestEvents::CHANGED();
const VelEventName closed = VelTestEvents::CLOSED();
const VelEventName unreceived = VelTestEvents::UNRECEIVED();

static_assert(sizeof(VelCallbackManager) == 16);

TEST_F(VelCallbackManagerTest, Construction_OfAPublisherThatNobodyHears_AllocatesNothing) {
  const VelAllocationCounter allocations;
  VelCallbackManager callbacks;
  EXPECT_FALSE(callbacks.HasSubscriber(changed));
  callbacks.Dispatch(changed, nullptr, nullptr);
  EXPECT_EQ(allocations.Count(), 0);
}

TEST_F(VelCallbackManagerTest, AddCallback_OfTheEventsOfOneSubscriberInARow_TakesOneAllocation) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  Subscribe(publisher, subscriber, {opened});
  EXPECT_EQ(publisher->callbacks.RemoveCallback(opened, subscriber.Get()), S_FALSE) << "a component is no subscriber";
  EXPECT_EQ(publisher->callbacks.RemoveCallback(opened, subscriber.implementation), S_OK);
  const VelAllocationCounter allocations;
  HRESULT codes[] = {S_FALSE, S_FALSE, S_FALSE};
  codes[0] = publisher->callbacks.AddCallback(opened, subscriber.implementation, VelTestSubscriber::Receivers());
  codes[1] = publisher->callbacks.AddCallback(changed, subscriber.implementation, VelTestSubscriber::Receivers());
  codes[2] = publisher->callbacks.AddCallback(closed, subscriber.implementation, VelTestSubscriber::Receivers());
  EXPECT_EQ(allocations.Count(), 1) << "three events of one subscriber are one entry";
  for (HRESULT code : codes) EXPECT_EQ(code, S_OK);
}

TEST_F(VelCallbackManagerTest, AddCallback_FromAnyPointerOfTheSubscriber_FindsTheImplementation) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  const VelTestISubscriber_var hForwarder(subscriber.handle);
  EXPECT_EQ(publisher->callbacks.AddCallback(changed, hForwarder.Get(), VelTestSubscriber::Receivers()), S_OK);
  EXPECT_EQ(publisher->callbacks.AddCallback(changed, subscriber.implementation, VelTestSubscriber::Receivers()),
            S_FALSE);
  EXPECT_TRUE(publisher->callbacks.IsSubscribed(changed, hForwarder.Get()));
  EXPECT_TRUE(publisher->callbacks.IsSubscribed(changed, subscriber.implementation));
}

TEST_F(VelCallbackManagerTest, AddCallback_Refused_SaysWhyAndSubscribesNobody) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  const Subscriber ended = MakeSubscriber("b");
  const VelTestISubscriber_var hEnded(ended.handle);
  ended.End();
  const VelTestIPassing_var hPassing(subscriber.handle);
  struct Case {
    const char* name;
    VelEventName event;
    VelBaseUnknown* subscriber;
    HRESULT expected;
  };
  for (const Case& test : {Case{"null subscriber", changed, nullptr, E_INVALIDARG},
                           Case{"null event", nullptr, subscriber.implementation, E_INVALIDARG},
                           Case{"event that the table lacks", unreceived, subscriber.implementation, E_INVALIDARG},
                           Case{"component", changed, subscriber.Get(), E_FAIL},
                           Case{"implementation of one forwarder", changed, hPassing.Get(), E_FAIL},
                           Case{"forwarder of a closed component", changed, hEnded.Get(), E_FAIL},
                           Case{"closed component", changed, ended.Get(), E_FAIL}}) {
    SCOPED_TRACE(test.name);
    EXPECT_EQ(publisher->callbacks.AddCallback(test.event, test.subscriber, VelTestSubscriber::Receivers()),
              test.expected);
    EXPECT_EQ(
        publisher->callbacks.SubscribeUnlessSubscribed(test.event, test.subscriber, VelTestSubscriber::Receivers()),
        test.expected);
  }
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), Texts{"b destroyed"});
}

TEST_F(VelCallbackManagerTest, SubscribeUnlessSubscribed_WhenHeardThroughAnotherTable_ChangesNothing) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  VelCallbackManager& callbacks = publisher->callbacks;
  EXPECT_EQ(callbacks.SubscribeUnlessSubscribed(changed, subscriber.implementation, VelTestSubscriber::Receivers()),
            S_OK);
  EXPECT_EQ(
      callbacks.SubscribeUnlessSubscribed(changed, subscriber.implementation, VelTestSubscriber::OtherReceivers()),
      S_FALSE);
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), Texts{"a:changed"});
  EXPECT_EQ(callbacks.AddCallback(changed, subscriber.implementation, VelTestSubscriber::OtherReceivers()), S_OK);
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"a:changed", "a:changed again"}));
}

TEST_F(VelCallbackManagerTest, AddCallback_OfTwoImplementationsOfOneComponentWithOneTable_TellsThemApart) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("base");
  const VelTestISpecialSubscriber_var hSpecial(subscriber.handle);
  auto* const special = static_cast<VelTestSpecialSubscriber*>(hSpecial->GetImpl());
  special->name = "special";
  Subscribe(publisher, subscriber, {changed});
  EXPECT_FALSE(publisher->callbacks.IsSubscribed(changed, hSpecial.Get()));
  EXPECT_EQ(publisher->callbacks.AddCallback(changed, hSpecial.Get(), VelTestSubscriber::Receivers()), S_OK);
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), (Texts{"base:changed", "special:changed"}));
  EXPECT_EQ(publisher->callbacks.RemoveSubscriber(subscriber.implementation), S_OK);
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), Texts{"special:changed"});
}

TEST_F(VelCallbackManagerTest, HasSubscriber_IsTrueOnlyForEventsThatSomebodyAliveHears) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  Subscribe(publisher, subscriber, {changed});
  EXPECT_TRUE(publisher->callbacks.HasSubscriber(changed));
  EXPECT_FALSE(publisher->callbacks.HasSubscriber(opened));
  EXPECT_FALSE(publisher->callbacks.HasSubscriber(unreceived));
  EXPECT_FALSE(publisher->callbacks.HasSubscriber("an event that merely")) << "is no event of anybody";
  const VelTestISubscriber_var hForwarder(subscriber.handle);
  subscriber.End();
  EXPECT_FALSE(publisher->callbacks.HasSubscriber(changed));
  EXPECT_FALSE(publisher->callbacks.IsSubscribed(changed, hForwarder.Get()));
  EXPECT_EQ(publisher->callbacks.RemoveCallback(changed, hForwarder.Get()), S_FALSE);
}

TEST_F(VelCallbackManagerTest, Events_OfTheSameTextButAnotherAddress_AreOthers) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  Subscribe(publisher, subscriber, {changed});
  const std::array<char, 8> text{'c', 'h', 'a', 'n', 'g', 'e', 'd', '\0'};
  ASSERT_STREQ(text.data(), changed);
  EXPECT_FALSE(publisher->callbacks.HasSubscriber(text.data()));
  EXPECT_EQ(publisher->callbacks.RemoveCallback(text.data(), subscriber.implementation), S_FALSE);
}

TEST_F(VelCallbackManagerTest, ListSubscribers_GivesThemInOrderOfDeliveryWithAReferenceEach) {
  const Publisher publisher = MakePublisher();
  std::array<Subscriber, 3> subscribers{MakeSubscriber("a"), MakeSubscriber("b"), MakeSubscriber("c")};
  Subscribe(publisher, subscribers[2], {changed});
  Subscribe(publisher, subscribers[0], {opened, changed});
  Subscribe(publisher, subscribers[1], {opened});
  VelListPtrVelBaseUnknown list;
  publisher->callbacks.ListSubscribers(changed, list);
  ASSERT_EQ(list.Size(), 2);
  EXPECT_EQ(list[1], subscribers[2].implementation);
  EXPECT_EQ(list[2], subscribers[0].implementation);
  subscribers = {};
  EXPECT_EQ(TakeNotes(), Texts{"b destroyed"}) << "the list keeps the others";
  for (VelBaseUnknown* subscriber : list) subscriber->Release();
  EXPECT_EQ(TakeNotes().size(), 2U);
  list.RemoveAll();
  publisher->callbacks.ListSubscribers(changed, list);
  EXPECT_TRUE(list.IsEmpty());
}

TEST_F(VelCallbackManagerTest, RemoveCallback_TakesOneEventThroughEveryTable) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  VelCallbackManager& callbacks = publisher->callbacks;
  Subscribe(publisher, subscriber, {opened, changed});
  ASSERT_EQ(callbacks.AddCallback(changed, subscriber.implementation, VelTestSubscriber::OtherReceivers()), S_OK);
  EXPECT_EQ(callbacks.RemoveCallback(changed, subscriber.implementation), S_OK);
  EXPECT_EQ(callbacks.RemoveCallback(changed, subscriber.implementation), S_FALSE);
  EXPECT_FALSE(callbacks.HasSubscriber(changed));
  EXPECT_TRUE(callbacks.IsSubscribed(opened, subscriber.implementation));
}

TEST_F(VelCallbackManagerTest, RemoveCallbacksOf_TakesTheEventsOfTheSetAlone) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  const Subscriber other = MakeSubscriber("b");
  Subscribe(publisher, subscriber, {opened, changed, closed});
  Subscribe(publisher, other, {opened});
  const std::array<VelEventName, 3> set{closed, unreceived, opened};
  EXPECT_EQ(publisher->callbacks.RemoveCallbacksOf(subscriber.implementation, set), S_OK);
  EXPECT_EQ(publisher->callbacks.RemoveCallbacksOf(subscriber.implementation, set), S_FALSE);
  EXPECT_EQ(publisher->callbacks.RemoveCallbacksOf(subscriber.implementation, {}), S_FALSE);
  for (VelEventName event : {opened, changed, closed}) publisher->Emit(event);
  EXPECT_EQ(TakeNotes(), (Texts{"b:opened", "a:changed"}));
}

TEST_F(VelCallbackManagerTest, RemoveSubscriber_TakesEverythingOfOne) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  const Subscriber other = MakeSubscriber("b");
  Subscribe(publisher, subscriber, {opened});
  Subscribe(publisher, other, {opened});
  Subscribe(publisher, subscriber, {changed});
  EXPECT_EQ(publisher->callbacks.RemoveSubscriber(subscriber.implementation), S_OK);
  EXPECT_EQ(publisher->callbacks.RemoveSubscriber(subscriber.implementation), S_FALSE);
  for (VelEventName event : {opened, changed}) publisher->Emit(event);
  EXPECT_EQ(TakeNotes(), Texts{"b:opened"});
}

TEST_F(VelCallbackManagerTest, Removal_OfNothing_IsAnInvalidArgument) {
  const Publisher publisher = MakePublisher();
  const Subscriber subscriber = MakeSubscriber("a");
  VelCallbackManager& callbacks = publisher->callbacks;
  const std::array<VelEventName, 1> set{changed};
  EXPECT_EQ(callbacks.RemoveCallback(changed, nullptr), E_INVALIDARG);
  EXPECT_EQ(callbacks.RemoveCallback(nullptr, subscriber.implementation), E_INVALIDARG);
  EXPECT_EQ(callbacks.RemoveSubscriber(nullptr), E_INVALIDARG);
  EXPECT_EQ(callbacks.RemoveCallbacksOf(nullptr, set), E_INVALIDARG);
  EXPECT_FALSE(callbacks.IsSubscribed(changed, nullptr));
}

TEST_F(VelCallbackManagerTest, Subscription_KeepsNobodyAlive) {
  const Publisher publisher = MakePublisher();
  Subscriber subscriber = MakeSubscriber("a");
  Subscribe(publisher, subscriber, {changed});
  subscriber.handle = nullptr;
  EXPECT_EQ(TakeNotes(), Texts{"a destroyed"});
  EXPECT_FALSE(publisher->callbacks.HasSubscriber(changed));
  publisher->Emit(changed);
  EXPECT_EQ(TakeNotes(), Texts{});
  EXPECT_EQ(VelInstanceCounts::Now().liveParts, 1) << "the entry was swept";
}

TEST_F(VelCallbackManagerTest, Subscriptions_OfSubscribersThatComeAndGo_DoNotPileUp) {
  const Publisher publisher = MakePublisher();
  for (int i = 0; i < 1000; ++i) {
    const Subscriber subscriber = MakeSubscriber("a");
    Subscribe(publisher, subscriber, {changed});
  }
  EXPECT_LE(VelInstanceCounts::Now().liveParts, 2) << "the dead are swept where the entries would grow";
}

TEST_F(VelCallbackManagerTest, Subscriber_ThatIsTheFirstOfAClosedComponentsAddress_IsNotTakenForTheOldOne) {
  const Publisher publisher = MakePublisher();
  for (int i = 0; i < 100; ++i) {
    const Subscriber subscriber = MakeSubscriber("a");
    EXPECT_FALSE(publisher->callbacks.IsSubscribed(changed, subscriber.implementation));
    Subscribe(publisher, subscriber, {changed});
  }
}

}  // namespace
