// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelContainer.cpp Containers of features.
#include "platform/featuremodeler/VelContainer.h"

#include <algorithm>

#include "platform/featuremodeler/VelCatalog.h"
#include "platform/featuremodeler/VelIContainer.h"
#include "platform/objectmodeler/VelMetaClass.h"

VelIContainer_var VelIContainer::Create() { return VelIContainer_var(VelContainer::Make()); }

VelIContainer_var VelIContainer::CreateLike(VelIContainer& iOther) {
  const VelContainer* other = VelContainer::From(&iOther);
  const bool isOpen = other != nullptr && other->State() != VelComponentState::Closed;
  return isOpen ? VelIContainer_var(other->MakeLike()) : VelIContainer_var();
}

VelBaseUnknown_var VelContainer::MakeLike() const {
  auto* made = new VelContainer;
  made->catalogs_ = catalogs_;
  return VelBaseUnknown_var::Adopt(made);
}

VelBaseUnknown_var VelContainer::Make() { return VelBaseUnknown_var::Adopt(new VelContainer); }

VelContainer* VelContainer::From(VelBaseUnknown* iObject) noexcept {
  VelObject* object = VelObject::From(iObject);
  return object != nullptr && &object->GetMetaObject() == &MetaObject() ? static_cast<VelContainer*>(object) : nullptr;
}

const VelMetaClass& VelContainer::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelContainer", &VelObject::MetaObject(), VelTypeOfClass::Implementation);
  return metaClass;
}

VelContainer::VelContainer() : VelObject("VelContainer", MetaObject()) {}

VelContainer::~VelContainer() {
  EndLife();
  for (auto& [bytes, sizeClass] : sizes_) {
    for (VelFeatureSlab* slab : sizeClass.slabs) slab->Abandon();
  }
}

void VelContainer::OnEnded() noexcept {
  std::vector<VelFeature*> fathersFirst;
  for (VelFeature* feature : Features()) {
    const VelFeature* father = feature->Father();
    if (father == nullptr || father->State() == VelComponentState::Closed) feature->ListSubtree(fathersFirst);
  }
  VelFeature::CloseAll(fathersFirst, false);
}

void* VelContainer::Take(const VelFeatureLayout& iLayout) {
  const std::size_t bytes = sizeof(VelFeature) + iLayout.SlotBytes();
  SizeClass& sizeClass = sizes_[bytes];
  if (sizeClass.withRoom.empty()) {
    sizeClass.slabs.push_back(VelFeatureSlab::Make(*this, bytes));
    Recycle(*sizeClass.slabs.back());
  }
  VelFeatureSlab* slab = sizeClass.withRoom.back();
  void* block = slab->Take();
  if (slab->IsFull()) {
    slab->SetListed(false);
    sizeClass.withRoom.pop_back();
  }
  return block;
}

void VelContainer::Recycle(VelFeatureSlab& ioSlab) {
  if (ioSlab.IsListed()) return;
  ioSlab.SetListed(true);
  sizes_[ioSlab.BlockBytes()].withRoom.push_back(&ioSlab);
}

std::vector<VelFeature*> VelContainer::Features() const {
  std::vector<void*> blocks;
  for (const auto& [bytes, sizeClass] : sizes_) {
    for (const VelFeatureSlab* slab : sizeClass.slabs) slab->ListUsed(blocks);
  }
  std::vector<VelFeature*> features;
  for (void* block : blocks) {
    auto* feature = static_cast<VelFeature*>(block);
    if (feature->State() != VelComponentState::Closed) features.push_back(feature);
  }
  return features;
}

HRESULT VelContainer::LoadCatalog(const VelString& iCatalog) {
  if (State() == VelComponentState::Closed) return E_FAIL;
  const VelCatalog* catalog = VelCatalog::Load(std::string(iCatalog.View()));
  if (catalog == nullptr) return E_FAIL;
  if (std::find(catalogs_.begin(), catalogs_.end(), catalog) != catalogs_.end()) return S_FALSE;
  catalogs_.push_back(catalog);
  return S_OK;
}

const VelFeatureLayout* VelContainer::FindStartUp(std::string_view iType) const noexcept {
  for (const VelCatalog* catalog : catalogs_) {
    if (const VelFeatureLayout* startUp = catalog->FindStartUp(iType)) return startUp;
  }
  return nullptr;
}
