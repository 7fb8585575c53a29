// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModelEventsNetwork.cpp The set of connections and the two chains that go through each of them.
#include "platform/events/VelModelEventsNetwork.h"

#include <cstddef>
#include <functional>
#include <unordered_set>

#include "platform/events/VelExtIModelEvents.h"
#include "platform/events/VelIModelEvents.h"
#include "platform/events/VelModelEventsListener.h"

namespace {

struct HashOfEnds {
  std::size_t operator()(const VelModelEventsConnection& iConnection) const noexcept {
    const std::hash<const void*> hash;
    const std::size_t source = hash(iConnection.source);
    // One of the two listeners is null. Pooled objects lie at equal distances: a small factor would let the sums of
    // many pairs be the same, the more the more objects are connected crosswise.
    constexpr std::size_t spread = 0x9E3779B97F4A7C15U;
    return source * spread + (hash(iConnection.extension) ^ hash(iConnection.listener));
  }
};

struct EqualEnds {
  bool operator()(const VelModelEventsConnection& iLeft, const VelModelEventsConnection& iRight) const noexcept {
    return iLeft.source == iRight.source && iLeft.extension == iRight.extension && iLeft.listener == iRight.listener;
  }
};

using ConnectionSet = std::unordered_set<VelModelEventsConnection, HashOfEnds, EqualEnds>;

ConnectionSet& Connections() {
  static auto& connections = *new ConnectionSet;
  return connections;
}

constinit std::uint64_t youngestSerial = 0;

/// The extension that answers an object's VelIModelEvents, with a reference that keeps it.
struct Source {
  VelIModelEvents_var keeper;
  VelExtIModelEvents* extension;  ///< Null when the answer is not of the platform's making.
};

Source SourceOf(VelBaseUnknown& iObject) {
  Source source{VelIModelEvents_var(&iObject), nullptr};
  VelBaseUnknown* const implementation = source.keeper ? source.keeper->GetImpl() : nullptr;
  if (implementation != nullptr && VelDerivesFrom(implementation->GetMetaObject(), VelExtIModelEvents::MetaObject())) {
    source.extension = static_cast<VelExtIModelEvents*>(implementation);
  }
  return source;
}

/// Makes the wanted connection of an object's extension, when it has one.
/// @param[in] iAct what to do with it
template <class Act>
HRESULT WithSource(VelBaseUnknown* iObject, const Act& iAct) {
  if (iObject == nullptr) return E_INVALIDARG;
  const Source source = SourceOf(*iObject);
  return source.extension != nullptr ? iAct(*source.extension) : E_NOINTERFACE;
}

bool IsClosed(VelBaseUnknown* iObject) noexcept {
  return iObject != nullptr && iObject->GetComponentState() == VelComponentState::Closed;
}

}  // namespace

HRESULT VelModelEventsNetwork::Connect(VelBaseUnknown* iObject, VelExtIModelEvents& ioListener) {
  return WithSource(iObject, [&](VelExtIModelEvents& ioSource) {
    return Enter({&ioSource, &ioListener, nullptr}, EndsOf(ioListener).firstSource);
  });
}

HRESULT VelModelEventsNetwork::Connect(VelBaseUnknown* iObject, VelModelEventsListener& ioListener) {
  return WithSource(iObject, [&](VelExtIModelEvents& ioSource) {
    return Enter({&ioSource, nullptr, &ioListener}, ioListener.firstSource_);
  });
}

HRESULT VelModelEventsNetwork::Disconnect(VelBaseUnknown* iObject, VelExtIModelEvents& ioListener) {
  if (IsClosed(iObject)) return S_FALSE;
  return WithSource(iObject, [&](VelExtIModelEvents& ioSource) { return Drop({&ioSource, &ioListener, nullptr}); });
}

HRESULT VelModelEventsNetwork::Disconnect(VelBaseUnknown* iObject, VelModelEventsListener& ioListener) {
  if (IsClosed(iObject)) return S_FALSE;
  return WithSource(iObject, [&](VelExtIModelEvents& ioSource) { return Drop({&ioSource, nullptr, &ioListener}); });
}

VelModelEventsEnds& VelModelEventsNetwork::EndsOf(VelExtIModelEvents& ioExtension) {
  if (ioExtension.ends_ == nullptr) ioExtension.ends_ = new VelModelEventsEnds;
  return *ioExtension.ends_;
}

HRESULT VelModelEventsNetwork::Enter(const VelModelEventsConnection& iWanted,
                                     const VelModelEventsConnection*& ioFirstSource) {
  const auto [place, isNew] = Connections().insert(iWanted);
  if (!isNew) return S_FALSE;
  const VelModelEventsConnection& entered = *place;
  entered.serial = ++youngestSerial;

  VelModelEventsEnds& ends = EndsOf(*entered.source);
  entered.previousListener = ends.lastListener;
  (ends.lastListener != nullptr ? ends.lastListener->nextListener : ends.firstListener) = &entered;
  ends.lastListener = &entered;

  entered.sourceLink = &ioFirstSource;
  entered.nextSource = ioFirstSource;
  if (ioFirstSource != nullptr) ioFirstSource->sourceLink = &entered.nextSource;
  ioFirstSource = &entered;
  return S_OK;
}

HRESULT VelModelEventsNetwork::Drop(const VelModelEventsConnection& iWanted) noexcept {
  const auto place = Connections().find(iWanted);
  if (place == Connections().end()) return S_FALSE;
  Unlink(*place);
  return S_OK;
}

void VelModelEventsNetwork::Unlink(const VelModelEventsConnection& iConnection) noexcept {
  for (VelModelEventsRun* run = iConnection.source->running_; run != nullptr; run = run->outer) {
    if (run->next == &iConnection) run->next = iConnection.nextListener;
  }
  const VelModelEventsConnection* const previous = iConnection.previousListener;
  const VelModelEventsConnection* const next = iConnection.nextListener;
  VelModelEventsEnds& ends = *iConnection.source->ends_;
  (previous != nullptr ? previous->nextListener : ends.firstListener) = next;
  (next != nullptr ? next->previousListener : ends.lastListener) = previous;

  *iConnection.sourceLink = iConnection.nextSource;
  if (iConnection.nextSource != nullptr) iConnection.nextSource->sourceLink = iConnection.sourceLink;
  Connections().erase(Connections().find(iConnection));
}

void VelModelEventsNetwork::DisconnectAll(VelExtIModelEvents& ioExtension) noexcept {
  VelModelEventsEnds* const ends = ioExtension.ends_;
  if (ends == nullptr) return;
  while (ends->firstListener != nullptr) Unlink(*ends->firstListener);
  while (ends->firstSource != nullptr) Unlink(*ends->firstSource);
  delete ends;
  ioExtension.ends_ = nullptr;
}

void VelModelEventsNetwork::DisconnectAll(VelModelEventsListener& ioListener) noexcept {
  while (ioListener.firstSource_ != nullptr) Unlink(*ioListener.firstSource_);
}

std::uint64_t VelModelEventsNetwork::YoungestSerial() noexcept { return youngestSerial; }

int VelModelEventsNetwork::Count() noexcept { return static_cast<int>(Connections().size()); }
