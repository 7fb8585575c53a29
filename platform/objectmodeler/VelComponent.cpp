// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelComponent.cpp The query, the life and the end of a component.
#include "platform/objectmodeler/VelComponent.h"

#include "platform/base/VelCheck.h"
#include "platform/base/VelThreadBinding.h"
#include "platform/objectmodeler/VelBuilder.h"
#include "platform/objectmodeler/VelComponentAccess.h"
#include "platform/objectmodeler/VelInstanceCounter.h"
#include "platform/objectmodeler/VelLateType.h"
#include "platform/objectmodeler/VelTiePool.h"
#include "platform/objectmodeler/VelVar.h"

static_assert(sizeof(VelComponent) == 32, "A component that nobody asked for anything costs 32 bytes");
static_assert(sizeof(VelImplementation) == 32, "The base of an implementation costs 32 bytes");
static_assert(sizeof(VelLivePart) == 24, "The live part of a component costs 24 bytes");

VelComponent::VelComponent(VelLateType& iLateType) noexcept : lateType_(&iLateType) { ++velInstanceCounter.components; }

VelComponent::~VelComponent() {
  Close();
  if (live_ != nullptr) VelComponentAccess::Drop(live_);
  --velInstanceCounter.components;
}

HRESULT VelComponent::QueryInterface(const VelInterfaceId& iInterface, VelBaseUnknown** oInterface) noexcept {
  VEL_ASSERT_BOUND_THREAD();
  if (oInterface == nullptr) return E_INVALIDARG;
  *oInterface = nullptr;
  const VelBinding* row = lateType_->Answer(iInterface.Index());
  if (row == nullptr) {
    if (!(iInterface == IID_VelBaseUnknown)) return E_NOINTERFACE;
    ++count_;
    *oInterface = this;
    return S_OK;
  }
  VelImplementation* built = VelComponentAccess::Find(*this, row->record);
  if (built == nullptr) return BuildAndQuery(*row, oInterface);
  ++count_;
  *oInterface = row->createTie(VelTiePool::Take(), *built, *this, false);
  return S_OK;
}

/// The part of a query that builds; a closed component builds nothing. The component is held meanwhile, since what is
/// built may release it.
HRESULT VelComponent::BuildAndQuery(const VelBinding& iRow, VelBaseUnknown** oInterface) noexcept {
  if (state_ == VelComponentState::Closed) return E_NOINTERFACE;
  const VelBinding row = iRow;  // Building may unload the dictionary file that the row stands in.
  const VelBaseUnknown_var keeper(static_cast<VelBaseUnknown*>(this));
  if (row.mechanism == VelMechanism::BOA) {
    try {
      *oInterface = row.createBoa(*this);
    } catch (...) {
      VelCheck::Failed(VEL_HERE("platform/objectmodeler/VelComponent"), "CreateBOA",
                       "The construction of an extension threw an exception", row.record->name);
    }
    return *oInterface != nullptr ? S_OK : E_NOINTERFACE;
  }
  const bool ownedByForwarder = row.lifetime == VelLifetime::Reference;
  VelImplementation* built =
      ownedByForwarder ? VelBuilder::BuildForOneForwarder(*this, row) : VelBuilder::Build(*this, row);
  if (built == nullptr) return E_NOINTERFACE;
  ++count_;
  *oInterface = row.createTie(VelTiePool::Take(), *built, *this, ownedByForwarder);
  return S_OK;
}

std::uint32_t VelComponent::AddRef() noexcept {
  VEL_ASSERT_BOUND_THREAD();
  return ++count_;
}

std::uint32_t VelComponent::Release() noexcept {
  VEL_ASSERT_BOUND_THREAD();
  const std::uint32_t left = --count_;
  if (left == 0) OnUnreferenced();
  return left;
}

bool VelComponent::OffersInterface(const VelInterfaceId& iInterface) const noexcept {
  return iInterface == IID_VelBaseUnknown || lateType_->Declared(iInterface.Index()) != nullptr;
}

void VelComponent::Open() noexcept {
  if (state_ == VelComponentState::BeingCreated) Announce(VelComponentState::InSession);
}

void VelComponent::Close() noexcept {
  if (state_ == VelComponentState::Closed) return;
  ++count_;  // What is destroyed here may take and drop references on its component.
  Announce(VelComponentState::Closed);
  if (live_ != nullptr && live_->pins == 0) VelComponentAccess::DestroyImplementations(*live_);
  --count_;
}

bool VelComponent::CloseUnreferenced() noexcept {
  ++count_;
  Close();
  return --count_ == 0;
}

void VelComponent::Announce(VelComponentState iState) noexcept {
  const VelComponentState before = state_;
  state_ = iState;
  if (live_ == nullptr) return;
  if (iState == VelComponentState::Closed) live_->component = nullptr;
  for (VelImplementation* built = live_->first; built != nullptr; built = VelComponentAccess::Older(*built)) {
    try {
      built->OnComponentStateChange(before, iState);
    } catch (...) {
      VelCheck::Failed(VEL_HERE("platform/objectmodeler/VelComponent"), "OnComponentStateChange()",
                       "An implementation threw an exception when its component's state changed", built->ClassName());
    }
  }
}
