// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCallbackManager.h The publisher's side of callbacks: who hears which event, and the delivery.
#ifndef PLATFORM_EVENTS_VELCALLBACKMANAGER_H
#define PLATFORM_EVENTS_VELCALLBACKMANAGER_H

#include <cstdint>
#include <span>

#include "platform/base/HResult.h"
#include "platform/base/VelListPtrVelBaseUnknown.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/events/VelEventName.h"
#include "platform/events/VelReceiverTable.h"

class VelCallbackProbe;
class VelNotification;
struct VelLivePart;
struct VelReceiverBinding;

/// The subscriptions of one publisher, and the delivery of its events. 16 bytes until somebody subscribes.
///
/// Subscribers are implementations that live with their component. Any interface pointer behind which one stands names
/// it. They are held weakly: the subscriptions of a closed component count for nothing and are swept. An implementation
/// is part of its component from its second phase of construction on (OnAttached), so it cannot subscribe earlier.
///
/// Delivery is synchronous, per event in the order of subscription. During a dispatch everything is allowed: who is
/// unsubscribed hears nothing any more, who subscribes waits for the next dispatch, dispatches nest, and subscribers
/// and the publisher may die.
///
/// Thread: the application thread. Subscribing, unsubscribing and asking are linear in the subscriptions.
class VEL_PLATFORM_API VelCallbackManager {
 public:
  VelCallbackManager() noexcept = default;
  ~VelCallbackManager();
  VelCallbackManager(const VelCallbackManager&) = delete;
  VelCallbackManager& operator=(const VelCallbackManager&) = delete;

  /// Subscribes.
  /// @param[in] iSubscriber any pointer behind which the implementation stands; not referenced
  /// @param[in] iReceivers the table of the subscriber's class, kept by address
  /// @return S_OK; S_FALSE when the subscriber hears the event through that table already; E_INVALIDARG when the event
  ///         or the subscriber is null or the table does not know the event; E_FAIL when the subscriber is no
  ///         implementation that lives with a component, or the component is closed
  HRESULT AddCallback(VelEventName iEvent, VelBaseUnknown* iSubscriber, const VelReceiverTable& iReceivers) noexcept;

  /// As AddCallback, but S_FALSE also when the subscriber hears the event through another table.
  HRESULT SubscribeUnlessSubscribed(VelEventName iEvent, VelBaseUnknown* iSubscriber,
                                    const VelReceiverTable& iReceivers) noexcept;

  /// @return true when somebody who is alive hears the event: so that a notification is built only when it is heard
  bool HasSubscriber(VelEventName iEvent) const noexcept { return count_ != 0 && FindSubscriber(iEvent); }

  /// @return true when the subscriber hears the event, through whichever table; false for null
  bool IsSubscribed(VelEventName iEvent, VelBaseUnknown* iSubscriber) const noexcept;

  /// Lists who hears an event, in the order of delivery; who hears it through two tables stands there twice.
  /// @param[in,out] ioSubscribers the implementations are appended, each with one reference that the caller releases
  void ListSubscribers(VelEventName iEvent, VelListPtrVelBaseUnknown& ioSubscribers) const noexcept;

  /// Unsubscribes from one event, through whichever table.
  /// @return S_OK; S_FALSE when the subscriber does not hear the event, as nobody does whose component is closed;
  ///         E_INVALIDARG when the event or the subscriber is null
  HRESULT RemoveCallback(VelEventName iEvent, VelBaseUnknown* iSubscriber) noexcept;

  /// Unsubscribes from everything.
  /// @return S_OK; S_FALSE when the subscriber hears nothing; E_INVALIDARG when the subscriber is null
  HRESULT RemoveSubscriber(VelBaseUnknown* iSubscriber) noexcept;

  /// Unsubscribes from a set of events.
  /// @return S_OK; S_FALSE when the subscriber hears none of them; E_INVALIDARG when the subscriber is null
  HRESULT RemoveCallbacksOf(VelBaseUnknown* iSubscriber, std::span<const VelEventName> iEvents) noexcept;

  /// Delivers an event to everybody who hears it now. The publisher's component is kept until the end; once it is
  /// closed the rest is skipped. What a receiver throws is reported as a check, and the next one goes on.
  /// @param[in] ioNotification handed to the receivers; may be null
  /// @param[in] iPublisher handed to the receivers. The manager is to live with its component; without one (null, or an
  ///            object that is no part of a component) the caller keeps the manager until the dispatch has ended.
  void Dispatch(VelEventName iEvent, VelNotification* ioNotification, VelBaseUnknown* iPublisher) noexcept {
    if (count_ != 0) DispatchToSubscribers(iEvent, ioNotification, iPublisher);
  }

  /// Puts a probe in place that hears of every delivery of every manager.
  /// @param[in] iProbe not owned, to be taken out before it dies; null for none
  /// @return the one that was in place before, null for none
  static VelCallbackProbe* SetProbe(VelCallbackProbe* iProbe) noexcept;

  /// @return the deliveries, of any manager, that are running now: how deep inside the events a trace is told
  static int DeliveryDepth() noexcept;

 private:
  /// A subscription. A tombstone has no live part; it stays until no dispatch counts on the places.
  struct Entry {
    VelLivePart* live;
    const VelReceiverBinding* binding;
    std::uint64_t rows;  ///< A bit per row of the table that is subscribed.
  };
  static_assert(sizeof(Entry) == 24, "A subscription costs 24 bytes");

  struct Occasion;

  bool FindSubscriber(VelEventName iEvent) const noexcept;

  /// Calls for each subscriber that is alive and hears an event, in the order of delivery, until a call says true.
  /// @return whether one did
  template <class Visit>
  bool VisitSubscribers(VelEventName iEvent, const Visit& iVisit) const noexcept;

  static VelImplementation* SubscriberOf(const Entry& iEntry) noexcept;

  void DispatchToSubscribers(VelEventName iEvent, VelNotification* ioNotification, VelBaseUnknown* iPublisher) noexcept;
  void DeliverToAll(const Occasion& iOccasion) noexcept;
  static void Deliver(const Occasion& iOccasion, VelImplementation& ioSubscriber, VelReceiver iReceiver) noexcept;

  HRESULT Subscribe(VelImplementation& ioSubscriber, const VelReceiverTable& iReceivers, int iRow) noexcept;
  template <class RowsOf>
  HRESULT Unsubscribe(VelBaseUnknown* iSubscriber, const RowsOf& iRowsOf) noexcept;
  void Append(const Entry& iEntry) noexcept;
  void Grow() noexcept;
  void FreeEntries() noexcept;
  void Bury(Entry& ioEntry) noexcept;
  void SweepDead() noexcept;
  void CompactIfIdle() noexcept;

  std::uint32_t Capacity() const noexcept { return entries_ != nullptr ? 1U << capacityLog_ : 0; }

  Entry* entries_ = nullptr;
  std::uint32_t count_ = 0;            ///< The entries, tombstones included.
  std::uint32_t depth_ : 26 = 0;       ///< The dispatches that are running.
  std::uint32_t capacityLog_ : 5 = 0;  ///< Places are powers of two, so that one subscription costs one entry.
  std::uint32_t hasTombstones_ : 1 = 0;
};

#endif  // PLATFORM_EVENTS_VELCALLBACKMANAGER_H
