// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelComponent.cpp The query, the life and the end of a component.
#include "platform/objectmodeler/VelComponent.h"

#include "platform/base/VelCheck.h"
#include "platform/base/VelExceptionText.h"
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
  if (oInterface == nullptr) return E_INVALIDARG;
  *oInterface = nullptr;
  if (!VEL_IS_BOUND_THREAD()) return E_UNEXPECTED;
  const VelBinding* row = lateType_->Answer(iInterface.Index());
  if (row == nullptr) {
    if (!(iInterface == IID_VelBaseUnknown)) return E_NOINTERFACE;
    ++count_;
    *oInterface = this;
    return S_OK;
  }
  if (row->lifetime == VelLifetime::Always && row->createBoa != nullptr) {
    // It holds nothing and asks nobody: no father is built for it, and nothing can end this component meanwhile.
    *oInterface = row->createBoa(*this);
    return *oInterface != nullptr ? S_OK : E_NOINTERFACE;
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
  if (state_ == VelComponentState::Closed && iRow.lifetime != VelLifetime::Always) return E_NOINTERFACE;
  const VelBaseUnknown_var keeper(static_cast<VelBaseUnknown*>(this));
  if (iRow.mechanism == VelMechanism::BOA) {
    *oInterface = VelBuilder::BuildDelegatingExtension(*this, iRow);
    return *oInterface != nullptr ? S_OK : E_NOINTERFACE;
  }
  // Building may unload the dictionary file that the row stands in.
  const VelCreateTie createTie = iRow.createTie;
  const bool ownedByForwarder = iRow.lifetime == VelLifetime::Reference;
  VelImplementation* built =
      ownedByForwarder ? VelBuilder::BuildForOneForwarder(*this, iRow) : VelBuilder::Build(*this, iRow);
  if (built == nullptr) return E_NOINTERFACE;
  ++count_;
  *oInterface = createTie(VelTiePool::Take(), *built, *this, ownedByForwarder);
  return S_OK;
}

std::uint32_t VelComponent::AddRef() noexcept {
  if (!VEL_IS_BOUND_THREAD()) return count_;
  return ++count_;
}

std::uint32_t VelComponent::Release() noexcept {
  if (!VEL_IS_BOUND_THREAD()) return count_;
  const std::uint32_t left = --count_;
  if (left == 0) OnUnreferenced();
  return left;
}

const std::string& VelComponent::LateTypeName() const noexcept { return lateType_->Name(); }

bool VelComponent::OffersInterface(const VelInterfaceId& iInterface) const noexcept {
  return iInterface == IID_VelBaseUnknown || lateType_->Declared(iInterface.Index()) != nullptr;
}

void VelComponent::Open() noexcept {
  if (state_ == VelComponentState::BeingCreated) Announce(VelComponentState::InSession);
}

bool VelComponent::AnnounceClosed() noexcept {
  if (state_ == VelComponentState::Closed) return false;
  ++count_;  // What is told here may take and drop references on its component.
  Announce(VelComponentState::Closed);
  --count_;
  return true;
}

void VelComponent::Close() noexcept {
  ++count_;  // Likewise what is destroyed.
  if (AnnounceClosed() && (live_ == nullptr || live_->pins == 0)) {
    if (live_ != nullptr) VelComponentAccess::DestroyImplementations(*live_);
    OnEnded();
  }
  --count_;
}

bool VelComponent::CloseUnreferenced() noexcept {
  ++count_;
  Close();
  // The last reference stays counted when the block goes, so that a destructor may take and drop further ones.
  if (count_ == 1) return true;
  --count_;
  return false;
}

void VelComponent::Announce(VelComponentState iState) noexcept {
  const VelComponentState before = state_;
  state_ = iState;
  if (live_ == nullptr) return;
  if (iState == VelComponentState::Closed) live_->component = nullptr;
  ++live_->pins;  // Whatever is done on hearing of it, nothing is destroyed while the list is walked.
  for (VelImplementation* built = live_->first; built != nullptr; built = VelComponentAccess::Older(*built)) {
    try {
      built->OnComponentStateChange(before, iState);
    } catch (...) {
      VelCheck::Failed(VEL_HERE("platform/objectmodeler/VelComponent"), "OnComponentStateChange()",
                       "An implementation threw an exception when its component's state changed",
                       VelExceptionText(built->ClassName()));
    }
  }
  --live_->pins;
}
