// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCallbackManager.cpp Subscriptions in the order in which they were made, and their delivery.
#include "platform/events/VelCallbackManager.h"

#include <algorithm>
#include <memory>

#include "platform/base/VelCheck.h"
#include "platform/base/VelExceptionText.h"
#include "platform/events/VelCallbackProbe.h"
#include "platform/events/VelReceiverBinding.h"
#include "platform/objectmodeler/VelComponentAccess.h"
#include "platform/objectmodeler/VelPin.h"

static_assert(sizeof(VelCallbackManager) == 16, "A publisher that nobody listens to pays 16 bytes");

namespace {

constinit VelCallbackProbe* probe = nullptr;
constinit int deliveryDepth = 0;  ///< The deliveries that are running, of any manager.

/// @return the row of an event as a bit, 0 when the table has none
std::uint64_t RowBit(const VelReceiverTable& iTable, VelEventName iEvent) noexcept {
  const int row = iTable.RowOf(iEvent);
  return row < 0 ? 0 : std::uint64_t{1} << row;
}

/// The row of one event in the tables of one entry after the other, which mostly is the same table.
class RowSearch {
 public:
  explicit RowSearch(VelEventName iEvent) noexcept : event_(iEvent) {}

  /// @return the row that a subscription of some rows of a table has for the event, -1 when it has none
  int In(const VelReceiverTable& iTable, std::uint64_t iRows) noexcept {
    if (&iTable != table_) {
      table_ = &iTable;
      row_ = iTable.RowOf(event_);
    }
    return row_ >= 0 && (iRows >> row_ & 1) != 0 ? row_ : -1;
  }

 private:
  VelEventName event_;
  const VelReceiverTable* table_ = nullptr;
  int row_ = -1;
};

/// @return the implementation behind a pointer; null unless it is built for a component that is not closed, and lives
///         with it
VelImplementation* FindImplementation(VelBaseUnknown& iSubscriber) noexcept {
  const VelComponent* component = iSubscriber.GetComponent();
  if (component == nullptr || component->State() == VelComponentState::Closed) return nullptr;
  const VelLivePart* live = VelComponentAccess::LiveOrNull(*component);
  if (live == nullptr) return nullptr;
  const VelBaseUnknown* wanted = iSubscriber.GetImpl();
  VelImplementation* built = live->first;
  while (built != nullptr && static_cast<VelBaseUnknown*>(built) != wanted) built = VelComponentAccess::Older(*built);
  return built;
}

}  // namespace

/// What one dispatch is about.
struct VelCallbackManager::Occasion {
  VelEventName event;
  VelNotification* notification;
  VelBaseUnknown* publisher;
  const VelComponent* component;  ///< The publisher's; null where it has none.

  bool IsOver() const noexcept { return component != nullptr && component->State() == VelComponentState::Closed; }
};

VelCallbackManager::~VelCallbackManager() {
  for (std::uint32_t i = 0; i < count_; ++i) {
    if (entries_[i].live != nullptr) VelComponentAccess::Drop(entries_[i].live);
  }
  FreeEntries();
}

VelImplementation* VelCallbackManager::SubscriberOf(const Entry& iEntry) noexcept {
  if (iEntry.live == nullptr || iEntry.live->component == nullptr) return nullptr;
  return VelComponentAccess::Find(*iEntry.live->component, iEntry.binding->record);
}

HRESULT VelCallbackManager::AddCallback(VelEventName iEvent, VelBaseUnknown* iSubscriber,
                                        const VelReceiverTable& iReceivers) noexcept {
  if (iEvent == nullptr || iSubscriber == nullptr) return E_INVALIDARG;
  const int row = iReceivers.RowOf(iEvent);
  if (row < 0) return E_INVALIDARG;
  VelImplementation* implementation = FindImplementation(*iSubscriber);
  return implementation != nullptr ? Subscribe(*implementation, iReceivers, row) : E_FAIL;
}

HRESULT VelCallbackManager::Subscribe(VelImplementation& ioSubscriber, const VelReceiverTable& iReceivers,
                                      int iRow) noexcept {
  const std::uint64_t bit = std::uint64_t{1} << iRow;
  VelLivePart& live = VelComponentAccess::Live(*ioSubscriber.GetComponent());
  const VelReceiverBinding& binding = iReceivers.BindingOf(VelComponentAccess::Record(ioSubscriber));
  const auto isSame = [&](const Entry& iEntry) { return iEntry.live == &live && iEntry.binding == &binding; };
  for (std::uint32_t i = 0; i < count_; ++i) {
    if (isSame(entries_[i]) && (entries_[i].rows & bit) != 0) return S_FALSE;
  }
  // A bit in the last entry is the youngest subscription of its event; anywhere else it would jump the queue. A running
  // dispatch would meet the bit, although whoever subscribes meanwhile waits for the next one.
  if (depth_ == 0 && count_ != 0 && isSame(entries_[count_ - 1])) {
    entries_[count_ - 1].rows |= bit;
    return S_OK;
  }
  ++live.holders;
  Append({&live, &binding, bit});
  return S_OK;
}

HRESULT VelCallbackManager::SubscribeUnlessSubscribed(VelEventName iEvent, VelBaseUnknown* iSubscriber,
                                                      const VelReceiverTable& iReceivers) noexcept {
  return IsSubscribed(iEvent, iSubscriber) ? S_FALSE : AddCallback(iEvent, iSubscriber, iReceivers);
}

void VelCallbackManager::Append(const Entry& iEntry) noexcept {
  if (count_ == Capacity() && depth_ == 0) SweepDead();
  if (count_ == Capacity()) Grow();
  std::construct_at(entries_ + count_++, iEntry);
}

void VelCallbackManager::Grow() noexcept {
  const std::uint32_t log = entries_ != nullptr ? capacityLog_ + 1U : 0U;
  Entry* const larger = std::allocator<Entry>().allocate(std::size_t{1} << log);
  std::uninitialized_copy_n(entries_, count_, larger);
  FreeEntries();
  entries_ = larger;
  capacityLog_ = log & 31U;
}

void VelCallbackManager::FreeEntries() noexcept {
  if (entries_ != nullptr) std::allocator<Entry>().deallocate(entries_, Capacity());
  entries_ = nullptr;
}

template <class Visit>
bool VelCallbackManager::VisitSubscribers(VelEventName iEvent, const Visit& iVisit) const noexcept {
  RowSearch search(iEvent);
  for (std::uint32_t i = 0; i < count_; ++i) {
    const Entry& entry = entries_[i];
    if (entry.live == nullptr || search.In(*entry.binding->table, entry.rows) < 0) continue;
    VelImplementation* const subscriber = SubscriberOf(entry);
    if (subscriber != nullptr && iVisit(*subscriber)) return true;
  }
  return false;
}

bool VelCallbackManager::FindSubscriber(VelEventName iEvent) const noexcept {
  return VisitSubscribers(iEvent, [](const VelImplementation&) { return true; });
}

bool VelCallbackManager::IsSubscribed(VelEventName iEvent, VelBaseUnknown* iSubscriber) const noexcept {
  const VelImplementation* wanted = iSubscriber != nullptr ? FindImplementation(*iSubscriber) : nullptr;
  if (wanted == nullptr) return false;
  return VisitSubscribers(iEvent, [&](const VelImplementation& iFound) { return &iFound == wanted; });
}

void VelCallbackManager::ListSubscribers(VelEventName iEvent, VelListPtrVelBaseUnknown& ioSubscribers) const noexcept {
  VisitSubscribers(iEvent, [&](VelImplementation& ioFound) {
    ioFound.AddRef();
    ioSubscribers.Append(&ioFound);
    return false;
  });
}

/// @param[in] iRowsOf gives the rows of a table that are to go
template <class RowsOf>
HRESULT VelCallbackManager::Unsubscribe(VelBaseUnknown* iSubscriber, const RowsOf& iRowsOf) noexcept {
  if (iSubscriber == nullptr) return E_INVALIDARG;
  const VelImplementation* subscriber = FindImplementation(*iSubscriber);
  if (subscriber == nullptr) return S_FALSE;
  bool removed = false;
  for (std::uint32_t i = 0; i < count_; ++i) {
    Entry& entry = entries_[i];
    if (SubscriberOf(entry) != subscriber) continue;
    const std::uint64_t rows = entry.rows & iRowsOf(*entry.binding->table);
    if (rows == 0) continue;
    removed = true;
    entry.rows &= ~rows;
    if (entry.rows == 0) Bury(entry);
  }
  CompactIfIdle();
  return removed ? S_OK : S_FALSE;
}

HRESULT VelCallbackManager::RemoveCallback(VelEventName iEvent, VelBaseUnknown* iSubscriber) noexcept {
  if (iEvent == nullptr) return E_INVALIDARG;
  return Unsubscribe(iSubscriber, [&](const VelReceiverTable& iTable) { return RowBit(iTable, iEvent); });
}

HRESULT VelCallbackManager::RemoveSubscriber(VelBaseUnknown* iSubscriber) noexcept {
  return Unsubscribe(iSubscriber, [](const VelReceiverTable&) { return ~std::uint64_t{0}; });
}

HRESULT VelCallbackManager::RemoveCallbacksOf(VelBaseUnknown* iSubscriber,
                                              std::span<const VelEventName> iEvents) noexcept {
  return Unsubscribe(iSubscriber, [&](const VelReceiverTable& iTable) {
    std::uint64_t rows = 0;
    for (VelEventName event : iEvents) rows |= RowBit(iTable, event);
    return rows;
  });
}

void VelCallbackManager::DispatchToSubscribers(VelEventName iEvent, VelNotification* ioNotification,
                                               VelBaseUnknown* iPublisher) noexcept {
  VelComponent* const component = iPublisher != nullptr ? iPublisher->GetComponent() : nullptr;
  const Occasion occasion{iEvent, ioNotification, iPublisher, component};
  if (component == nullptr) return DeliverToAll(occasion);
  if (occasion.IsOver()) return;  // A pin on a closed component would end it once more.
  const VelPin pin(*component);   // When it goes, the manager may go with what was built: nothing may follow.
  DeliverToAll(occasion);
}

void VelCallbackManager::DeliverToAll(const Occasion& iOccasion) noexcept {
  ++depth_;
  const std::uint32_t countAtEntry = count_;
  RowSearch search(iOccasion.event);
  for (std::uint32_t i = 0; i < countAtEntry && !iOccasion.IsOver(); ++i) {
    Entry& entry = entries_[i];
    if (entry.live == nullptr) continue;
    const VelReceiverTable& table = *entry.binding->table;
    const int row = search.In(table, entry.rows);
    if (row < 0) continue;
    if (VelImplementation* subscriber = SubscriberOf(entry)) {
      Deliver(iOccasion, *subscriber, table.Receiver(row));
    } else {
      Bury(entry);
    }
  }
  --depth_;
  CompactIfIdle();
}

void VelCallbackManager::Deliver(const Occasion& iOccasion, VelImplementation& ioSubscriber,
                                 VelReceiver iReceiver) noexcept {
  const VelPin pin(*ioSubscriber.GetComponent());
  if (probe != nullptr) {
    probe->OnDelivery({iOccasion.event, iOccasion.publisher, &ioSubscriber, iOccasion.notification, deliveryDepth});
  }
  ++deliveryDepth;
  try {
    iReceiver(ioSubscriber, iOccasion.event, iOccasion.publisher, iOccasion.notification);
  } catch (...) {
    VelCheck::Failed(VEL_HERE("platform/events/VelCallbackManager"), iOccasion.event,
                     "The receiver of an event threw an exception", VelExceptionText(ioSubscriber.ClassName()));
  }
  --deliveryDepth;
}

void VelCallbackManager::Bury(Entry& ioEntry) noexcept {
  VelComponentAccess::Drop(ioEntry.live);
  ioEntry.live = nullptr;
  hasTombstones_ = 1;
}

void VelCallbackManager::SweepDead() noexcept {
  for (std::uint32_t i = 0; i < count_; ++i) {
    if (entries_[i].live != nullptr && SubscriberOf(entries_[i]) == nullptr) Bury(entries_[i]);
  }
  CompactIfIdle();
}

void VelCallbackManager::CompactIfIdle() noexcept {
  if (depth_ != 0 || hasTombstones_ == 0) return;
  hasTombstones_ = 0;
  Entry* const end =
      std::remove_if(entries_, entries_ + count_, [](const Entry& iEntry) { return iEntry.live == nullptr; });
  count_ = static_cast<std::uint32_t>(end - entries_);
  if (count_ == 0) FreeEntries();
}

VelCallbackProbe* VelCallbackManager::SetProbe(VelCallbackProbe* iProbe) noexcept {
  VelCallbackProbe* const before = probe;
  probe = iProbe;
  return before;
}

int VelCallbackManager::DeliveryDepth() noexcept { return deliveryDepth; }
