// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file EventsTest.h The fixture of the tests of events: the grid declared, nothing noted, nothing left behind.
#ifndef TESTS_PLATFORM_EVENTS_EVENTSTEST_H
#define TESTS_PLATFORM_EVENTS_EVENTSTEST_H

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/events/VelCallbackProbe.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "tests/platform/events/fixtures/VelTestEventObjects.h"

/// A component with its handle and the implementation that the tests reach into.
template <class Implementation>
struct Built {
  VelBaseUnknown_var handle;
  Implementation* implementation = nullptr;

  Implementation* operator->() const { return implementation; }
  VelBaseUnknown* Get() const { return handle.Get(); }

  /// Closes the component; the handle stays.
  void End() const { VelObject::From(handle.Get())->EndLife(); }
};

using Publisher = Built<VelTestPublisher>;
using Subscriber = Built<VelTestSubscriber>;
using Model = Built<VelTestModel>;

class EventsTest : public ::testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  void SetUp() override {
    VelTestNotes().clear();
    ASSERT_EQ(VelDictionary::Declare(VelTestEventObjectsTable()), S_OK);
  }
  void TearDown() override {
    EXPECT_EQ(VelDictionary::Undeclare(VelTestEventObjectsTable()), S_OK);
    EXPECT_EQ(VelExtIModelEvents::CountConnections(), 0);
    VelTestNotes().clear();
  }

  static Publisher MakePublisher() { return Make<VelTestIPublisher, VelTestPublisher>("VelTestPublisherType"); }
  static Subscriber MakeSubscriber(const std::string& iName) {
    Subscriber made = Make<VelTestISubscriber, VelTestSubscriber>("VelTestSubscriberType");
    made->name = iName;
    return made;
  }
  static Model MakeModel(const std::string& iName) {
    Model made = Make<VelIModelEvents, VelTestModel>("VelTestModelType");
    made->name = iName;
    return made;
  }

  /// Subscribes to events through the table of all events.
  static void Subscribe(const Publisher& iPublisher, const Subscriber& iSubscriber,
                        const std::vector<VelEventName>& iEvents) {
    for (VelEventName event : iEvents) {
      EXPECT_EQ(iPublisher->callbacks.AddCallback(event, iSubscriber.implementation, VelTestSubscriber::Receivers()),
                S_OK);
    }
  }

  /// @return what was noted since the last call
  static Texts TakeNotes() { return std::exchange(VelTestNotes(), {}); }

 private:
  template <class Interface, class Implementation>
  static Built<Implementation> Make(const char* iLateType) {
    Built<Implementation> made{VelObject::Create(iLateType, "VelTestEventObject"), nullptr};
    const VelVar<Interface> hInterface(made.handle);
    made.implementation = static_cast<Implementation*>(hInterface->GetImpl());
    return made;
  }
};

/// Records every delivery while it lives.
class RecordingProbe final : public VelCallbackProbe {
 public:
  RecordingProbe() : before_(VelCallbackManager::SetProbe(this)) {}
  ~RecordingProbe() { VelCallbackManager::SetProbe(before_); }
  RecordingProbe(const RecordingProbe&) = delete;
  RecordingProbe& operator=(const RecordingProbe&) = delete;

  void OnDelivery(const VelCallbackDelivery& iDelivery) noexcept override { deliveries.push_back(iDelivery); }

  std::vector<VelCallbackDelivery> deliveries;

 private:
  VelCallbackProbe* before_;
};

#endif  // TESTS_PLATFORM_EVENTS_EVENTSTEST_H
