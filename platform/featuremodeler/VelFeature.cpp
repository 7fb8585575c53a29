// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeature.cpp The life and the attributes of features.
#include "platform/featuremodeler/VelFeature.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

#include "platform/featuremodeler/VelContainer.h"
#include "platform/featuremodeler/VelFeatureReference.h"
#include "platform/featuremodeler/VelFeatureSlab.h"
#include "platform/featuremodeler/VelInternedText.h"
#include "platform/featuremodeler/VelSpecChanges.h"
#include "platform/featuremodeler/VelSpecDocumentLinkHooks.h"
#include "platform/objectmodeler/VelBuilder.h"
#include "platform/objectmodeler/VelComponentAccess.h"
#include "platform/objectmodeler/VelLateType.h"
#include "platform/objectmodeler/VelMetaClass.h"
#include "platform/objectmodeler/VelPin.h"

static_assert(sizeof(VelFeature) == 48, "A feature costs 48 bytes and its slots");

VelFeature::VelFeature(VelLateType& iLateType, std::string_view iName)
    : VelComponent(iLateType), name_(iName.empty() ? nullptr : VelInternedText::Hold(iName)) {}

VelFeature::~VelFeature() = default;

VelFeature& VelFeature::Make(VelContainer& ioContainer, const VelFeatureLayout& iLayout, std::string_view iName) {
  return *new (ioContainer.Take(iLayout)) VelFeature(iLayout.LateType(), iName);
}

VelFeature* VelFeature::From(VelBaseUnknown* iObject) noexcept {
  VelComponent* component = iObject != nullptr ? iObject->GetComponent() : nullptr;
  return component != nullptr && Is(*component) ? static_cast<VelFeature*>(component) : nullptr;
}

const VelMetaClass& VelFeature::MetaObject() noexcept {
  static const VelMetaClass& metaClass = fct_RetrieveMetaObject("VelFeature", nullptr, VelTypeOfClass::Implementation);
  return metaClass;
}

VelContainer* VelFeature::Container() const noexcept { return VelFeatureSlab::Of(this).Container(); }

std::string_view VelFeature::Name() const noexcept { return name_ != nullptr ? name_->View() : std::string_view(); }

void VelFeature::SetName(std::string_view iName) {
  VelInternedText* const name = iName.empty() ? nullptr : VelInternedText::Hold(iName);
  VelInternedText::Drop(std::exchange(name_, name));
}

void VelFeature::ClearValue(unsigned iAttribute) noexcept {
  if (!IsValuated(iAttribute)) return;
  ForgetValue(iAttribute);
  VelFeatureSlot& slot = Slot(iAttribute);
  switch (Layout().Attributes()[iAttribute].key->Kind()) {
    case VelSpecAttrKind::Text:
      VelInternedText::Drop(slot.text);
      break;
    case VelSpecAttrKind::Reference:
      VelFeatureReference::End(slot.reference);
      break;
    case VelSpecAttrKind::Components:
      for (VelFeature* component : *slot.components) component->father_ = nullptr;
      VelSpecChanges::NotePlace();
      delete slot.components;
      break;
    case VelSpecAttrKind::Document:
      slot.document->Release();
      break;
    case VelSpecAttrKind::Boolean:
    case VelSpecAttrKind::Integer:
    case VelSpecAttrKind::Unsigned:
    case VelSpecAttrKind::Real:
    case VelSpecAttrKind::Reals:
      break;
  }
}

HRESULT VelFeature::Append(unsigned iAttribute, VelFeature& ioComponent) {
  if (ioComponent.State() == VelComponentState::Closed || ioComponent.father_ != nullptr) return E_FAIL;
  if (ioComponent.Container() != Container()) return E_FAIL;
  for (const VelFeature* above = this; above != nullptr; above = above->father_) {
    // What comes below something that is being removed would escape its end.
    if (above == &ioComponent || above->State() == VelComponentState::Closed) return E_FAIL;
  }
  VelFeatureSlot& slot = Slot(iAttribute);
  if (!IsValuated(iAttribute)) slot.components = new std::vector<VelFeature*>;
  slot.components->push_back(&ioComponent);
  SetValuated(iAttribute);
  ioComponent.father_ = this;
  VelSpecChanges::NotePlace();
  VelBuilder::CatchUpWithFathers(ioComponent);
  return S_OK;
}

HRESULT VelFeature::TakeOut(unsigned iAttribute, VelFeature& ioComponent) {
  if (!IsValuated(iAttribute)) return E_FAIL;
  auto& components = *Slot(iAttribute).components;
  const auto place = std::find(components.begin(), components.end(), &ioComponent);
  if (place == components.end()) return E_FAIL;
  components.erase(place);
  ioComponent.father_ = nullptr;
  VelSpecChanges::NotePlace();
  // A list is valuated while it has elements.
  if (components.empty()) ClearValue(iAttribute);
  return S_OK;
}

void VelFeature::CopyValuesTo(VelFeature& ioCopy) const {
  auto& self = const_cast<VelFeature&>(*this);
  const auto& attributes = Layout().Attributes();
  for (unsigned i = 0; i < attributes.size(); ++i) {
    const VelSpecAttrKind kind = attributes[i].key->Kind();
    if (!IsValuated(i) || kind == VelSpecAttrKind::Components) continue;
    VelFeatureSlot* const from = &self.Slot(i);
    VelFeatureSlot* const to = &ioCopy.Slot(i);
    std::memcpy(static_cast<void*>(to), from, sizeof(VelFeatureSlot) * (1 + attributes[i].capacity));
    ioCopy.SetValuated(i);
    if (kind == VelSpecAttrKind::Text) VelInternedText::HoldAgain(to->text);
    if (kind == VelSpecAttrKind::Reference) {
      to->reference = VelFeatureReference::Make(ioCopy, i, from->reference->Target());
    }
    if (kind != VelSpecAttrKind::Document) continue;
    to->document->AddRef();
    if (VelSpecDocumentLinkHooks* hooks = VelSpecDocumentLinkHooks::Installed()) hooks->OnCopied(*to->document);
  }
}

VelFeature* VelFeature::CopyInto(VelContainer& ioContainer, std::string_view iName) const {
  if (ioContainer.State() == VelComponentState::Closed) return nullptr;
  struct Pair {
    const VelFeature* original;
    VelFeature* copy;
  };
  std::vector<Pair> pairs{{this, &Make(ioContainer, Layout(), iName)}};
  for (std::size_t next = 0; next < pairs.size(); ++next) {
    const auto [original, copy] = pairs[next];
    original->CopyValuesTo(*copy);
    const auto& attributes = original->Layout().Attributes();
    for (unsigned i = 0; i < attributes.size(); ++i) {
      if (attributes[i].key->Kind() != VelSpecAttrKind::Components || !original->IsValuated(i)) continue;
      copy->Slot(i).components = new std::vector<VelFeature*>;
      copy->SetValuated(i);
      for (const VelFeature* component : *const_cast<VelFeature*>(original)->Slot(i).components) {
        VelFeature& made = Make(ioContainer, component->Layout(), component->Name());
        made.father_ = copy;
        copy->Slot(i).components->push_back(&made);
        pairs.push_back({component, &made});
      }
    }
  }
  for (const Pair& pair : pairs) pair.copy->SetOpen();
  return pairs.front().copy;
}

void VelFeature::ListSubtree(std::vector<VelFeature*>& ioFeatures) {
  std::size_t next = ioFeatures.size();
  ioFeatures.push_back(this);
  for (; next < ioFeatures.size(); ++next) {
    VelFeature& feature = *ioFeatures[next];
    const auto& attributes = feature.Layout().Attributes();
    for (unsigned i = 0; i < attributes.size(); ++i) {
      if (attributes[i].key->Kind() != VelSpecAttrKind::Components || !feature.IsValuated(i)) continue;
      const auto& components = *feature.Slot(i).components;
      ioFeatures.insert(ioFeatures.end(), components.begin(), components.end());
    }
  }
}

void VelFeature::LeaveFather() noexcept {
  if (father_ == nullptr) return;
  VelFeature& father = *father_;
  const auto& attributes = father.Layout().Attributes();
  for (unsigned i = 0; i < attributes.size(); ++i) {
    if (attributes[i].key->Kind() == VelSpecAttrKind::Components && father.TakeOut(i, *this) == S_OK) return;
  }
}

HRESULT VelFeature::Remove() {
  if (State() == VelComponentState::Closed) return S_FALSE;
  std::vector<VelFeature*> subtree;
  ListSubtree(subtree);
  LeaveFather();
  CloseAll(subtree, true);
  return S_OK;
}

/// Everything is announced before anything is destroyed, and everything that was built is destroyed before any
/// attribute goes, so that what is destroyed can still read. The pins hold the ends back until then; a running call may
/// hold some of them back further.
void VelFeature::CloseAll(const std::vector<VelFeature*>& iFeatures, bool iRemoved) noexcept {
  std::vector<bool> isPinned(iFeatures.size(), false);
  const auto pinWhatIsBuilt = [&](std::size_t iPosition) {
    VelFeature& feature = *iFeatures[iPosition];
    if (isPinned[iPosition] || VelComponentAccess::LiveOrNull(feature) == nullptr) return;
    VelPin::Take(feature);
    isPinned[iPosition] = true;
  };
  for (std::size_t i = 0; i < iFeatures.size(); ++i) {
    iFeatures[i]->AddRef();
    if (iRemoved) iFeatures[i]->derivedByte_ |= removedBit;
    pinWhatIsBuilt(i);
  }
  for (std::size_t i = 0; i < iFeatures.size(); ++i) {
    // Whoever was told before may have asked this one, still open, for an interface.
    pinWhatIsBuilt(i);
    iFeatures[i]->AnnounceClosed();
    VelFeatureReference::EndAllTo(*iFeatures[i]);
  }
  for (std::size_t i = 0; i < iFeatures.size(); ++i) {
    if (!isPinned[i]) continue;
    VelLivePart& live = VelComponentAccess::Live(*iFeatures[i]);
    if (live.pins == 1) VelComponentAccess::DestroyImplementations(live);
  }
  for (std::size_t i = 0; i < iFeatures.size(); ++i) {
    if (isPinned[i]) {
      VelPin::Give(*iFeatures[i]);
    } else {
      iFeatures[i]->OnEnded();
    }
    iFeatures[i]->Release();
  }
}

void VelFeature::DropDocuments() noexcept {
  VelSpecDocumentLinkHooks* hooks = VelSpecDocumentLinkHooks::Installed();
  if (hooks == nullptr) return;
  const auto& attributes = Layout().Attributes();
  for (unsigned i = 0; i < attributes.size(); ++i) {
    if (attributes[i].key->Kind() == VelSpecAttrKind::Document && IsValuated(i)) hooks->OnDropped(*Slot(i).document);
  }
}

void VelFeature::OnEnded() noexcept {
  if ((derivedByte_ & endedBit) != 0) return;
  derivedByte_ |= endedBit;
  if ((derivedByte_ & removedBit) != 0) DropDocuments();
  LeaveFather();
  for (unsigned i = 0; i < Layout().Attributes().size(); ++i) ClearValue(i);
  SetName({});
  Release();  // The container's.
}

void VelFeature::OnUnreferenced() noexcept {
  VelFeatureSlab& slab = VelFeatureSlab::Of(this);
  VelContainer* const container = slab.Container();
  this->~VelFeature();
  if (container != nullptr) container->Recycle(slab);
  slab.Give(this);
}
