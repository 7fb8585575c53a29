// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureAttrAccess.cpp Reads and writes the slots of a feature.
#include "platform/featuremodeler/VelFeatureAttrAccess.h"

#include <cstring>

#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/featuremodeler/VelFeatureReference.h"
#include "platform/featuremodeler/VelInternedText.h"
#include "platform/featuremodeler/VelSpecChanges.h"

namespace {

constexpr unsigned absent = VelFeatureLayout::absent;

bool IsPosition(int iPosition, std::size_t iSize) noexcept {
  return iPosition >= 1 && static_cast<std::size_t>(iPosition) <= iSize;
}

}  // namespace

bool VelFeatureAttrAccess::TestAttrKey(const VelISpecAttrKey* iKey) {
  return !Feature().IsEnded() && Feature().Layout().Find(iKey) != absent;
}

bool VelFeatureAttrAccess::IsValuated(const VelISpecAttrKey* iKey) {
  const unsigned attribute = Feature().Layout().Find(iKey);
  return attribute != absent && Feature().IsValuated(attribute);
}

unsigned VelFeatureAttrAccess::FindToRead(const VelISpecAttrKey* iKey, VelSpecAttrKind iKind) noexcept {
  if (iKey == nullptr || iKey->Kind() != iKind || Feature().IsEnded()) return absent;
  return Feature().Layout().Find(iKey);
}

unsigned VelFeatureAttrAccess::FindToWrite(const VelISpecAttrKey* iKey, VelSpecAttrKind iKind) noexcept {
  return IsClosed() ? absent : FindToRead(iKey, iKind);
}

VelFeatureSlot* VelFeatureAttrAccess::FindValue(const VelISpecAttrKey* iKey, VelSpecAttrKind iKind) noexcept {
  const unsigned attribute = FindToRead(iKey, iKind);
  return attribute != absent && Feature().IsValuated(attribute) ? &Feature().Slot(attribute) : nullptr;
}

template <class Value>
HRESULT VelFeatureAttrAccess::Get(const VelISpecAttrKey* iKey, VelSpecAttrKind iKind, Value VelFeatureSlot::*iMember,
                                  Value& oValue) {
  const VelFeatureSlot* slot = FindValue(iKey, iKind);
  if (slot == nullptr) return E_FAIL;
  oValue = slot->*iMember;
  return S_OK;
}

template <class Value>
HRESULT VelFeatureAttrAccess::Set(const VelISpecAttrKey* iKey, VelSpecAttrKind iKind, Value VelFeatureSlot::*iMember,
                                  Value iValue) {
  const unsigned attribute = FindToWrite(iKey, iKind);
  if (attribute == absent) return E_FAIL;
  Feature().Slot(attribute).*iMember = iValue;
  Feature().SetValuated(attribute);
  return S_OK;
}

HRESULT VelFeatureAttrAccess::GetBoolean(const VelISpecAttrKey* iKey, bool& oValue) {
  return Get(iKey, VelSpecAttrKind::Boolean, &VelFeatureSlot::boolean, oValue);
}

HRESULT VelFeatureAttrAccess::SetBoolean(const VelISpecAttrKey* iKey, bool iValue) {
  return Set(iKey, VelSpecAttrKind::Boolean, &VelFeatureSlot::boolean, iValue);
}

HRESULT VelFeatureAttrAccess::GetInteger(const VelISpecAttrKey* iKey, std::int32_t& oValue) {
  return Get(iKey, VelSpecAttrKind::Integer, &VelFeatureSlot::integer, oValue);
}

HRESULT VelFeatureAttrAccess::SetInteger(const VelISpecAttrKey* iKey, std::int32_t iValue) {
  return Set(iKey, VelSpecAttrKind::Integer, &VelFeatureSlot::integer, iValue);
}

HRESULT VelFeatureAttrAccess::GetUnsigned(const VelISpecAttrKey* iKey, std::uint32_t& oValue) {
  return Get(iKey, VelSpecAttrKind::Unsigned, &VelFeatureSlot::unsignedInteger, oValue);
}

HRESULT VelFeatureAttrAccess::SetUnsigned(const VelISpecAttrKey* iKey, std::uint32_t iValue) {
  return Set(iKey, VelSpecAttrKind::Unsigned, &VelFeatureSlot::unsignedInteger, iValue);
}

HRESULT VelFeatureAttrAccess::GetReal(const VelISpecAttrKey* iKey, double& oValue) {
  return Get(iKey, VelSpecAttrKind::Real, &VelFeatureSlot::real, oValue);
}

HRESULT VelFeatureAttrAccess::SetReal(const VelISpecAttrKey* iKey, double iValue) {
  return Set(iKey, VelSpecAttrKind::Real, &VelFeatureSlot::real, iValue);
}

HRESULT VelFeatureAttrAccess::GetText(const VelISpecAttrKey* iKey, VelUnicodeString& oValue) {
  const VelFeatureSlot* slot = FindValue(iKey, VelSpecAttrKind::Text);
  if (slot == nullptr) return E_FAIL;
  oValue = VelUnicodeString(slot->text->View());
  return S_OK;
}

HRESULT VelFeatureAttrAccess::SetText(const VelISpecAttrKey* iKey, const VelUnicodeString& iValue) {
  const unsigned attribute = FindToWrite(iKey, VelSpecAttrKind::Text);
  if (attribute == absent) return E_FAIL;
  VelInternedText* const text = VelInternedText::Hold(iValue.View());
  Feature().ClearValue(attribute);
  Feature().Slot(attribute).text = text;
  Feature().SetValuated(attribute);
  VelSpecChanges::NoteText();
  return S_OK;
}

HRESULT VelFeatureAttrAccess::GetSize(const VelISpecAttrKey* iKey, int& oSize) {
  const bool isReals = iKey != nullptr && iKey->Kind() == VelSpecAttrKind::Reals;
  const VelSpecAttrKind kind = isReals ? VelSpecAttrKind::Reals : VelSpecAttrKind::Components;
  if (FindToRead(iKey, kind) == absent) return E_FAIL;
  const VelFeatureSlot* slot = FindValue(iKey, kind);
  if (slot == nullptr) {
    oSize = 0;
    return S_OK;
  }
  oSize = static_cast<int>(isReals ? slot->size : slot->components->size());
  return S_OK;
}

HRESULT VelFeatureAttrAccess::GetRealAt(const VelISpecAttrKey* iKey, int iPosition, double& oValue) {
  const VelFeatureSlot* slot = FindValue(iKey, VelSpecAttrKind::Reals);
  if (slot == nullptr) return E_FAIL;
  if (!IsPosition(iPosition, slot->size)) return E_INVALIDARG;
  oValue = slot[iPosition].real;
  return S_OK;
}

HRESULT VelFeatureAttrAccess::SetReals(const VelISpecAttrKey* iKey, const double* iValues, int iCount) {
  const unsigned attribute = FindToWrite(iKey, VelSpecAttrKind::Reals);
  if (attribute == absent) return E_FAIL;
  const unsigned capacity = Feature().Layout().Attributes()[attribute].capacity;
  if (iCount < 0 || static_cast<unsigned>(iCount) > capacity || (iCount > 0 && iValues == nullptr)) return E_INVALIDARG;
  VelFeatureSlot* slot = &Feature().Slot(attribute);
  slot->size = static_cast<std::uint64_t>(iCount);
  for (int i = 0; i < iCount; ++i) slot[1 + i].real = iValues[i];
  if (iCount > 0) {
    Feature().SetValuated(attribute);
  } else {
    Feature().ForgetValue(attribute);
  }
  return S_OK;
}

HRESULT VelFeatureAttrAccess::GetReference(const VelISpecAttrKey* iKey, VelBaseUnknown** oFeature) {
  if (oFeature == nullptr) return E_INVALIDARG;
  const VelFeatureSlot* slot = FindValue(iKey, VelSpecAttrKind::Reference);
  if (slot == nullptr) return E_FAIL;
  *oFeature = &slot->reference->Target();
  (*oFeature)->AddRef();
  return S_OK;
}

HRESULT VelFeatureAttrAccess::SetReference(const VelISpecAttrKey* iKey, VelBaseUnknown* iFeature) {
  const unsigned attribute = FindToWrite(iKey, VelSpecAttrKind::Reference);
  if (attribute == absent) return E_FAIL;
  VelFeature* target = VelFeature::From(iFeature);
  if (target == nullptr || target->State() == VelComponentState::Closed) return E_INVALIDARG;
  Feature().ClearValue(attribute);
  Feature().Slot(attribute).reference = VelFeatureReference::Make(Feature(), attribute, *target);
  Feature().SetValuated(attribute);
  return S_OK;
}

HRESULT VelFeatureAttrAccess::ResetReference(const VelISpecAttrKey* iKey) {
  const unsigned attribute = FindToWrite(iKey, VelSpecAttrKind::Reference);
  if (attribute == absent) return E_FAIL;
  if (!Feature().IsValuated(attribute)) return S_FALSE;
  Feature().ClearValue(attribute);
  return S_OK;
}

HRESULT VelFeatureAttrAccess::AppendComponent(const VelISpecAttrKey* iKey, VelBaseUnknown* iFeature) {
  const unsigned attribute = FindToWrite(iKey, VelSpecAttrKind::Components);
  if (attribute == absent) return E_FAIL;
  VelFeature* component = VelFeature::From(iFeature);
  return component != nullptr ? Feature().Append(attribute, *component) : E_INVALIDARG;
}

HRESULT VelFeatureAttrAccess::RemoveComponent(const VelISpecAttrKey* iKey, VelBaseUnknown* iFeature) {
  const unsigned attribute = FindToWrite(iKey, VelSpecAttrKind::Components);
  if (attribute == absent) return E_FAIL;
  VelFeature* component = VelFeature::From(iFeature);
  return component != nullptr ? Feature().TakeOut(attribute, *component) : E_INVALIDARG;
}

HRESULT VelFeatureAttrAccess::GetComponentAt(const VelISpecAttrKey* iKey, int iPosition, VelBaseUnknown** oFeature) {
  if (oFeature == nullptr) return E_INVALIDARG;
  const VelFeatureSlot* slot = FindValue(iKey, VelSpecAttrKind::Components);
  if (slot == nullptr) return E_FAIL;
  if (!IsPosition(iPosition, slot->components->size())) return E_INVALIDARG;
  *oFeature = (*slot->components)[static_cast<std::size_t>(iPosition) - 1];
  (*oFeature)->AddRef();
  return S_OK;
}

HRESULT VelFeatureAttrAccess::EmptyComponents(const VelISpecAttrKey* iKey) {
  if (FindToWrite(iKey, VelSpecAttrKind::Components) == absent) return E_FAIL;
  if (FindValue(iKey, VelSpecAttrKind::Components) == nullptr) return S_FALSE;
  // The end of an element may change the list, and may end this very feature: each is looked up anew.
  while (const VelFeatureSlot* slot = IsClosed() ? nullptr : FindValue(iKey, VelSpecAttrKind::Components)) {
    VelFeature& element = *slot->components->front();
    const VelBaseUnknown_var hElement(static_cast<VelBaseUnknown*>(&element));
    const LifeCycleObject_var hLife(hElement);
    static_cast<void>(hLife ? hLife->remove() : element.Remove());
    // An element whose own life cycle keeps it, whatever it answers, stays in the container, but not in the list.
    if (element.Father() == &Feature()) {
      static_cast<void>(Feature().TakeOut(Feature().Layout().Find(iKey), element));
    }
  }
  return S_OK;
}

HRESULT VelFeatureAttrAccess::GetDocument(const VelISpecAttrKey* iKey, VelBaseUnknown** oDocument) {
  if (oDocument == nullptr) return E_INVALIDARG;
  const VelFeatureSlot* slot = FindValue(iKey, VelSpecAttrKind::Document);
  if (slot == nullptr) return E_FAIL;
  *oDocument = slot->document;
  (*oDocument)->AddRef();
  return S_OK;
}

HRESULT VelFeatureAttrAccess::SetDocument(const VelISpecAttrKey* iKey, VelBaseUnknown* iDocument) {
  const unsigned attribute = FindToWrite(iKey, VelSpecAttrKind::Document);
  if (attribute == absent) return E_FAIL;
  // The end of the former document may end this feature too, so it comes last.
  const VelFeatureSlot* former = FindValue(iKey, VelSpecAttrKind::Document);
  const VelBaseUnknown_var hFormer(former != nullptr ? former->document : nullptr);
  if (iDocument != nullptr) iDocument->AddRef();
  Feature().ClearValue(attribute);
  if (iDocument == nullptr) return S_OK;
  Feature().Slot(attribute).document = iDocument;
  Feature().SetValuated(attribute);
  return S_OK;
}
