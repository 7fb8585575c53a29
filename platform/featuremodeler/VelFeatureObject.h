// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureObject.h Answers VelISpecObject for features.
#ifndef PLATFORM_FEATUREMODELER_VELFEATUREOBJECT_H
#define PLATFORM_FEATUREMODELER_VELFEATUREOBJECT_H

#include "platform/featuremodeler/VelFeature.h"
#include "platform/featuremodeler/VelISpecObject.h"
#include "platform/objectmodeler/VelPooledExtension.h"

class VelFeatureObject final : public VelPooledExtension<VelISpecObject> {
 public:
  explicit VelFeatureObject(VelComponent& iFeature) noexcept : VelPooledExtension(iFeature) {}
  static VelBaseUnknown* Create(VelComponent& ioFeature) {
    return VelFeature::Is(ioFeature) ? Make<VelFeatureObject>(ioFeature) : nullptr;
  }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT GetFather(VelISpecObject** oFather) override;
  HRESULT GetType(VelString& oType) override;
  HRESULT GetName(VelUnicodeString& oName) override;
  HRESULT SetName(const VelUnicodeString& iName) override;
  HRESULT GetContainer(VelIContainer** oContainer) override;
  HRESULT Instanciate(const VelUnicodeString& iName, VelIContainer* iContainer, const VelInterfaceId& iInterface,
                      VelBaseUnknown** oFeature) override;
  HRESULT InstanciateForCopy(const VelUnicodeString& iName, VelIContainer* iContainer, const VelInterfaceId& iInterface,
                             VelBaseUnknown** oFeature) override;
  HRESULT ListPointingOwners(const VelInterfaceId& iOwnerInterface, VelListPtrVelBaseUnknown& ioOwners) override;

 private:
  VelFeature& Feature() noexcept { return static_cast<VelFeature&>(*GetComponent()); }
};

#endif  // PLATFORM_FEATUREMODELER_VELFEATUREOBJECT_H
