// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelBaseUnknown_WR.cpp Weak references hold the live part of a component, which forgets the component when it
/// is closed.
#include "platform/objectmodeler/VelBaseUnknown_WR.h"

#include <utility>

#include "platform/objectmodeler/VelComponentAccess.h"

VelBaseUnknown_WR::VelBaseUnknown_WR(VelBaseUnknown* iObject) {
  VelComponent* component = iObject != nullptr ? iObject->GetComponent() : nullptr;
  if (component == nullptr || component->State() == VelComponentState::Closed) return;
  live_ = &VelComponentAccess::Live(*component);
  ++live_->holders;
}

VelBaseUnknown_WR::VelBaseUnknown_WR(const VelBaseUnknown_WR& iOther) noexcept : live_(iOther.live_) {
  if (live_ != nullptr) ++live_->holders;
}

VelBaseUnknown_WR::VelBaseUnknown_WR(VelBaseUnknown_WR&& ioOther) noexcept
    : live_(std::exchange(ioOther.live_, nullptr)) {}

VelBaseUnknown_WR& VelBaseUnknown_WR::operator=(const VelBaseUnknown_WR& iOther) noexcept {
  VelBaseUnknown_WR copy(iOther);
  std::swap(live_, copy.live_);
  return *this;
}

VelBaseUnknown_WR& VelBaseUnknown_WR::operator=(VelBaseUnknown_WR&& ioOther) noexcept {
  VelBaseUnknown_WR moved(std::move(ioOther));
  std::swap(live_, moved.live_);
  return *this;
}

VelBaseUnknown_WR::~VelBaseUnknown_WR() {
  if (live_ != nullptr) VelComponentAccess::Drop(live_);
}

VelComponent* VelBaseUnknown_WR::Get() const noexcept { return live_ != nullptr ? live_->component : nullptr; }

HRESULT VelBaseUnknown_WR::QueryInterface(const VelInterfaceId& iInterface,
                                          VelBaseUnknown** oInterface) const noexcept {
  if (oInterface == nullptr) return E_INVALIDARG;
  *oInterface = nullptr;
  VelComponent* component = Get();
  return component != nullptr ? component->QueryInterface(iInterface, oInterface) : E_FAIL;
}
