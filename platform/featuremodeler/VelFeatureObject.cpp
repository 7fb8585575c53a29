// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureObject.cpp What a feature tells of itself.
#include "platform/featuremodeler/VelFeatureObject.h"

#include "platform/featuremodeler/VelContainer.h"
#include "platform/featuremodeler/VelFeatureReference.h"

HRESULT VelFeatureObject::GetFather(VelISpecObject** oFather) {
  if (oFather == nullptr) return E_INVALIDARG;
  *oFather = nullptr;
  if (Feature().IsEnded() || Feature().Father() == nullptr) return E_FAIL;
  return Feature().Father()->Query(oFather);
}

HRESULT VelFeatureObject::GetType(VelString& oType) {
  if (Feature().IsEnded()) return E_FAIL;
  oType = VelString(std::string_view(Feature().Layout().Name()));
  return S_OK;
}

HRESULT VelFeatureObject::GetName(VelUnicodeString& oName) {
  if (Feature().IsEnded()) return E_FAIL;
  oName = VelUnicodeString(Feature().Name());
  return S_OK;
}

HRESULT VelFeatureObject::SetName(const VelUnicodeString& iName) {
  if (IsClosed()) return E_FAIL;
  Feature().SetName(iName.View());
  return S_OK;
}

HRESULT VelFeatureObject::GetContainer(VelIContainer** oContainer) {
  if (oContainer == nullptr) return E_INVALIDARG;
  *oContainer = nullptr;
  VelContainer* container = Feature().IsEnded() ? nullptr : Feature().Container();
  if (container == nullptr || FAILED(container->Query(oContainer))) return E_FAIL;
  return S_OK;
}

HRESULT VelFeatureObject::Instanciate(const VelUnicodeString& /*iName*/, VelIContainer* /*iContainer*/,
                                      const VelInterfaceId& /*iInterface*/, VelBaseUnknown** oFeature) {
  if (oFeature == nullptr) return E_INVALIDARG;
  *oFeature = nullptr;
  return E_FAIL;  // A feature is no start-up.
}

HRESULT VelFeatureObject::InstanciateForCopy(const VelUnicodeString& iName, VelIContainer* iContainer,
                                             const VelInterfaceId& iInterface, VelBaseUnknown** oFeature) {
  if (oFeature == nullptr) return E_INVALIDARG;
  *oFeature = nullptr;
  if (IsClosed()) return E_FAIL;
  VelContainer* container = iContainer != nullptr ? VelContainer::From(iContainer) : Feature().Container();
  if (container == nullptr) return iContainer != nullptr ? E_INVALIDARG : E_FAIL;
  VelFeature* copy = Feature().CopyInto(*container, iName.View());
  return copy != nullptr ? copy->QueryInterface(iInterface, oFeature) : E_FAIL;
}

HRESULT VelFeatureObject::ListPointingOwners(const VelInterfaceId& iOwnerInterface,
                                             VelListPtrVelBaseUnknown& ioOwners) {
  if (Feature().IsEnded()) return E_FAIL;
  for (VelFeature* owner : VelFeatureReference::OwnersOf(Feature())) {
    if (owner->State() == VelComponentState::Closed || !owner->OffersInterface(iOwnerInterface)) continue;
    owner->AddRef();
    ioOwners.Append(owner);
  }
  return S_OK;
}
