// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelStartUp.cpp Instantiates features.
#include "platform/featuremodeler/VelStartUp.h"

#include "platform/featuremodeler/VelContainer.h"
#include "platform/objectmodeler/VelMetaClass.h"

VelBaseUnknown_var VelStartUp::Make(const VelFeatureLayout& iLayout) {
  return VelBaseUnknown_var::Adopt(new VelStartUp(iLayout));
}

VelStartUp::VelStartUp(const VelFeatureLayout& iLayout) : VelObject("VelStartUp", MetaObject()), layout_(&iLayout) {}

const VelMetaClass& VelStartUp::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelStartUp", &VelObject::MetaObject(), VelTypeOfClass::Implementation);
  return metaClass;
}

HRESULT VelStartUpObject::GetFather(VelISpecObject** oFather) {
  if (oFather == nullptr) return E_INVALIDARG;
  *oFather = nullptr;
  return E_FAIL;
}

HRESULT VelStartUpObject::GetType(VelString& oType) {
  oType = VelString(std::string_view(Layout().Name()));
  return S_OK;
}

HRESULT VelStartUpObject::GetName(VelUnicodeString& oName) {
  oName = VelUnicodeString(std::string_view(Layout().Name()));
  return S_OK;
}

HRESULT VelStartUpObject::SetName(const VelUnicodeString& /*iName*/) { return E_FAIL; }

HRESULT VelStartUpObject::GetContainer(VelIContainer** oContainer) {
  if (oContainer == nullptr) return E_INVALIDARG;
  *oContainer = nullptr;
  return E_FAIL;
}

HRESULT VelStartUpObject::Instanciate(const VelUnicodeString& iName, VelIContainer* iContainer,
                                      const VelInterfaceId& iInterface, VelBaseUnknown** oFeature) {
  if (oFeature == nullptr) return E_INVALIDARG;
  *oFeature = nullptr;
  VelContainer* container = VelContainer::From(iContainer);
  if (container == nullptr) return E_INVALIDARG;
  if (container->State() == VelComponentState::Closed) return E_FAIL;
  VelFeature& feature = VelFeature::Make(*container, Layout(), iName.View());
  feature.SetOpen();
  return feature.QueryInterface(iInterface, oFeature);
}

HRESULT VelStartUpObject::InstanciateForCopy(const VelUnicodeString& /*iName*/, VelIContainer* /*iContainer*/,
                                             const VelInterfaceId& /*iInterface*/, VelBaseUnknown** oFeature) {
  if (oFeature == nullptr) return E_INVALIDARG;
  *oFeature = nullptr;
  return E_FAIL;
}

HRESULT VelStartUpObject::ListPointingOwners(const VelInterfaceId& /*iOwnerInterface*/,
                                             VelListPtrVelBaseUnknown& /*ioOwners*/) {
  return E_FAIL;
}
