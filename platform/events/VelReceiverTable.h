// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelReceiverTable.h Which function of a subscriber's class receives which event.
#ifndef PLATFORM_EVENTS_VELRECEIVERTABLE_H
#define PLATFORM_EVENTS_VELRECEIVERTABLE_H

#include <cstddef>

#include "platform/base/VelPlatformApi.h"
#include "platform/events/VelEventName.h"
#include "platform/objectmodeler/VelImplementation.h"

class VelNotification;
struct VelClassRecord;
struct VelReceiverBinding;

/// Receives one event.
/// @param[in] ioSubscriber the subscriber, of the class whose table names the function
/// @param[in] iPublisher what the dispatch named; may be null
/// @param[in] ioNotification what the dispatch handed over; may be null
using VelReceiver = void (*)(VelImplementation& ioSubscriber, VelEventName iEvent, VelBaseUnknown* iPublisher,
                             VelNotification* ioNotification);

struct VelReceiverRow {
  VelEventName event;
  VelReceiver receive;
};

/// @return the class of a member function; only for its type
template <class Function, class Class>
Class& VelClassOfMember(Function Class::*);

/// The receiver that calls a member function
/// `void (VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification)` of the subscriber. The
/// class that declares the function derives from VelImplementation.
template <auto Operation>
void VelReceive(VelImplementation& ioSubscriber, VelEventName iEvent, VelBaseUnknown* iPublisher,
                VelNotification* ioNotification) {
  using ClassReference = decltype(VelClassOfMember(Operation));
  (static_cast<ClassReference>(ioSubscriber).*Operation)(iEvent, iPublisher, ioNotification);
}

/// The events that a class of subscribers can receive, each with its function. One per class, made on first use and
/// kept to the end of the process, like its rows:
///
///     const VelReceiverTable& VelThing::Receivers() noexcept {
///       static const VelReceiverRow rows[] = {{VelThingEvents::VALUE_UPDATED(), &VelReceive<&VelThing::OnUpdate>}};
///       static const VelReceiverTable table(rows);
///       return table;
///     }
class VEL_PLATFORM_API VelReceiverTable {
 public:
  /// A subscription keeps one bit per row.
  static constexpr std::size_t maxRows = 64;

  /// @param[in] iRows not copied; one row per event
  template <std::size_t Count>
  explicit constexpr VelReceiverTable(const VelReceiverRow (&iRows)[Count]) noexcept : rows_(iRows), count_(Count) {
    static_assert(Count <= maxRows, "A receiver table has at most 64 rows");
  }
  VelReceiverTable(const VelReceiverTable&) = delete;
  VelReceiverTable& operator=(const VelReceiverTable&) = delete;

  /// @return the row of an event, -1 when the table has none
  int RowOf(VelEventName iEvent) const noexcept {
    for (std::size_t row = 0; row < count_; ++row) {
      if (rows_[row].event == iEvent) return static_cast<int>(row);
    }
    return -1;
  }

  /// @param[in] iRow a row that RowOf gave
  VelReceiver Receiver(int iRow) const noexcept { return rows_[iRow].receive; }

 private:
  friend class VelCallbackManager;

  /// @return the binding of this table to a class, made on first use
  const VelReceiverBinding& BindingOf(const VelClassRecord* iRecord) const;

  const VelReceiverRow* rows_;
  std::size_t count_;
  mutable const VelReceiverBinding* bindings_ = nullptr;  ///< Kept for ever, like the table.
};

#endif  // PLATFORM_EVENTS_VELRECEIVERTABLE_H
