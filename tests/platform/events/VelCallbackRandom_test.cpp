// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCallbackRandom_test.cpp A hundred thousand random operations against a model that is too simple to be
/// wrong.
#include <cstddef>
#include <random>

#include "platform/objectmodeler/VelInstanceCounts.h"
#include "tests/platform/events/EventsTest.h"

namespace {

constexpr int operationCount = 100000;
constexpr std::size_t publisherCount = 3;
constexpr std::size_t subscriberCount = 8;
constexpr int depthLimit = 4;

const std::vector<VelEventName>& Events() {
  static const auto& events =
      *new std::vector<VelEventName>{VelTestEvents::OPENED(), VelTestEvents::CHANGED(), VelTestEvents::CLOSED()};
  return events;
}

/// One subscription of one event; never taken out of its list, so that places stay.
struct Expectation {
  int subscriber;  ///< The number of the subscriber, which no other one ever gets.
  VelEventName event;
  bool ended = false;
};

/// A dispatch that is running, and how far it should have come.
struct Running {
  std::size_t publisher;
  int publisherNumber;
  VelEventName event;
  std::size_t position;
  std::size_t end;
};

class VelCallbackRandomTest : public EventsTest {
 protected:
  template <class Object>
  struct Place {
    Object object;
    int number = 0;
  };
  struct PublisherPlace : Place<Publisher> {
    std::vector<Expectation> expectations;
  };

  void SetUp() override {
    EventsTest::SetUp();
    for (std::size_t i = 0; i < publisherCount; ++i) RenewPublisher(i);
    for (std::size_t i = 0; i < subscriberCount; ++i) RenewSubscriber(i);
  }
  void TearDown() override {
    for (PublisherPlace& place : publishers_) place = {};
    for (Place<Subscriber>& place : subscribers_) place = {};
    EXPECT_EQ(VelInstanceCounts::Now(), VelInstanceCounts{});
    EventsTest::TearDown();
  }

  std::size_t Pick(std::size_t iCount) { return std::uniform_int_distribution<std::size_t>(0, iCount - 1)(random_); }
  VelEventName PickEvent() { return Events()[Pick(Events().size())]; }

  /// Ends a publisher, by closing it or by dropping the only handle, and puts a new one in its place. Where a dispatch
  /// may keep it, dropping the handle would not end it at once.
  void RenewPublisher(std::size_t iIndex) {
    PublisherPlace& place = publishers_[iIndex];
    if (place.number != 0 && (runningDepth_ > 0 || Pick(2) == 0)) place.object.End();
    place.number = ++lastNumber_;
    place.expectations.clear();
    place.object = MakePublisher();
  }

  /// As RenewPublisher.
  void RenewSubscriber(std::size_t iIndex) {
    Place<Subscriber>& place = subscribers_[iIndex];
    if (place.number != 0) {
      if (runningDepth_ > 0 || Pick(2) == 0) place.object.End();
      ForgetSubscriber(place.number);
    }
    const int number = place.number = ++lastNumber_;
    place.object = MakeSubscriber("");
    place.object->isSilent = true;
    place.object->act = [this, number](VelEventName iEvent) { OnDelivery(number, iEvent); };
  }

  void ForgetSubscriber(int iNumber) {
    for (PublisherPlace& publisher : publishers_) {
      for (Expectation& expectation : publisher.expectations) {
        if (expectation.subscriber == iNumber) expectation.ended = true;
      }
    }
  }

  Expectation* FindExpectation(PublisherPlace& ioPublisher, int iSubscriber, VelEventName iEvent) {
    for (Expectation& expectation : ioPublisher.expectations) {
      if (!expectation.ended && expectation.subscriber == iSubscriber && expectation.event == iEvent)
        return &expectation;
    }
    return nullptr;
  }

  void SubscribeOne() {
    PublisherPlace& publisher = publishers_[Pick(publisherCount)];
    const Place<Subscriber>& subscriber = subscribers_[Pick(subscriberCount)];
    const VelEventName event = PickEvent();
    const bool known = FindExpectation(publisher, subscriber.number, event) != nullptr;
    EXPECT_EQ(publisher.object->callbacks.AddCallback(event, subscriber.object.implementation,
                                                      VelTestSubscriber::Receivers()),
              known ? S_FALSE : S_OK);
    if (!known) publisher.expectations.push_back({subscriber.number, event});
  }

  void UnsubscribeOne() {
    PublisherPlace& publisher = publishers_[Pick(publisherCount)];
    const Place<Subscriber>& subscriber = subscribers_[Pick(subscriberCount)];
    const VelEventName event = PickEvent();
    Expectation* const known = FindExpectation(publisher, subscriber.number, event);
    EXPECT_EQ(publisher.object->callbacks.IsSubscribed(event, subscriber.object.implementation), known != nullptr);
    EXPECT_EQ(publisher.object->callbacks.RemoveCallback(event, subscriber.object.implementation),
              known != nullptr ? S_OK : S_FALSE);
    if (known != nullptr) known->ended = true;
  }

  void UnsubscribeAll() {
    PublisherPlace& publisher = publishers_[Pick(publisherCount)];
    const Place<Subscriber>& subscriber = subscribers_[Pick(subscriberCount)];
    bool any = false;
    for (Expectation& expectation : publisher.expectations) {
      if (expectation.ended || expectation.subscriber != subscriber.number) continue;
      expectation.ended = any = true;
    }
    EXPECT_EQ(publisher.object->callbacks.RemoveSubscriber(subscriber.object.implementation), any ? S_OK : S_FALSE);
  }

  bool IsOver(const Running& iRunning) const {
    return publishers_[iRunning.publisher].number != iRunning.publisherNumber;
  }

  /// @return the subscriber whose turn it is, 0 when nobody's is
  int TakeTurn(Running& ioRunning) const {
    if (IsOver(ioRunning)) return 0;
    const std::vector<Expectation>& expectations = publishers_[ioRunning.publisher].expectations;
    while (ioRunning.position < ioRunning.end) {
      const Expectation& expectation = expectations[ioRunning.position++];
      if (!expectation.ended && expectation.event == ioRunning.event) return expectation.subscriber;
    }
    return 0;
  }

  void DispatchOne() {
    if (runningDepth_ == depthLimit) return;
    const std::size_t index = Pick(publisherCount);
    const VelEventName event = PickEvent();
    const PublisherPlace& place = publishers_[index];
    Running running{index, place.number, event, 0, place.expectations.size()};
    Running* const outer = std::exchange(running_, &running);
    ++runningDepth_;
    place.object->Emit(event);
    --runningDepth_;
    running_ = outer;
    EXPECT_EQ(TakeTurn(running), 0) << "everybody whose turn came was told";
  }

  void OnDelivery(int iSubscriber, VelEventName iEvent) {
    ++deliveries_;
    EXPECT_EQ(iEvent, running_->event);
    EXPECT_EQ(iSubscriber, TakeTurn(*running_));
    for (std::size_t i = Pick(3); i > 0; --i) ActOnce();
  }

  void ActOnce() {
    if (operations_ >= operationCount) return;
    ++operations_;
    const std::size_t dice = Pick(100);
    if (dice < 40) return SubscribeOne();
    if (dice < 55) return UnsubscribeOne();
    if (dice < 59) return UnsubscribeAll();
    if (dice < 63) return RenewSubscriber(Pick(subscriberCount));
    if (dice < 65) return RenewPublisher(Pick(publisherCount));
    DispatchOne();
  }

  /// Drops what has ended, where no dispatch counts on the places.
  void Compact() {
    for (PublisherPlace& publisher : publishers_) {
      std::erase_if(publisher.expectations, [](const Expectation& iExpectation) { return iExpectation.ended; });
    }
  }

  std::mt19937 random_{20260101};
  std::vector<PublisherPlace> publishers_{publisherCount};
  std::vector<Place<Subscriber>> subscribers_{subscriberCount};
  Running* running_ = nullptr;
  int runningDepth_ = 0;
  int lastNumber_ = 0;
  int operations_ = 0;
  int deliveries_ = 0;
};

TEST_F(VelCallbackRandomTest, Operations_OfAnyKindAtAnyTime_DeliverWhatTheSimpleModelExpects) {
  while (operations_ < operationCount && !HasFailure()) {
    ActOnce();
    Compact();
  }
  EXPECT_GT(deliveries_, operationCount / 4) << "a run that delivers little proves little";
}

}  // namespace
