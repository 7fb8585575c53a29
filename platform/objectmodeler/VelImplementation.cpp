// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImplementation.cpp The base of implementations, and how components hold them.
#include "platform/objectmodeler/VelImplementation.h"

#include "platform/objectmodeler/VelComponentAccess.h"
#include "platform/objectmodeler/VelInstanceCounter.h"
#include "platform/objectmodeler/VelMetaClass.h"

VelImplementation::VelImplementation(VelComponent& iComponent) noexcept : component_(&iComponent) {
  ++velInstanceCounter.implementations;
}

VelImplementation::~VelImplementation() { --velInstanceCounter.implementations; }

HRESULT VelImplementation::QueryInterface(const VelInterfaceId& iInterface, VelBaseUnknown** oInterface) noexcept {
  return component_->QueryInterface(iInterface, oInterface);
}

std::uint32_t VelImplementation::AddRef() noexcept { return component_->AddRef(); }

std::uint32_t VelImplementation::Release() noexcept { return component_->Release(); }

const VelMetaClass& VelImplementation::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelImplementation", nullptr, VelTypeOfClass::Implementation);
  return metaClass;
}

void VelImplementation::OnComponentStateChange(VelComponentState /*iFrom*/, VelComponentState /*iTo*/) {}

VelLivePart& VelComponentAccess::Live(VelComponent& ioComponent) {
  if (ioComponent.live_ == nullptr) {
    const bool closed = ioComponent.state_ == VelComponentState::Closed;
    ioComponent.live_ = new VelLivePart{closed ? nullptr : &ioComponent};
    ++velInstanceCounter.liveParts;
  }
  return *ioComponent.live_;
}

void VelComponentAccess::Drop(VelLivePart* ioLive) noexcept {
  if (--ioLive->holders != 0) return;
  --velInstanceCounter.liveParts;
  delete ioLive;
}

void VelComponentAccess::Attach(VelImplementation& ioImplementation, const VelClassRecord* iRecord) {
  VelLivePart& live = Live(*ioImplementation.component_);
  ioImplementation.record_ = iRecord;
  ioImplementation.next_ = live.first;
  live.first = &ioImplementation;
}

void VelComponentAccess::DestroyImplementations(VelLivePart& ioLive) noexcept {
  ++ioLive.pins;  // A destructor that pins its component does not start another round of destruction.
  while (ioLive.first != nullptr) {
    VelImplementation* const youngest = ioLive.first;
    ioLive.first = youngest->next_;
    delete youngest;
  }
  --ioLive.pins;
}
