// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelStartUp.h A start-up as an object, from which features are instantiated.
#ifndef PLATFORM_FEATUREMODELER_VELSTARTUP_H
#define PLATFORM_FEATUREMODELER_VELSTARTUP_H

#include "platform/featuremodeler/VelFeatureLayout.h"
#include "platform/featuremodeler/VelISpecObject.h"
#include "platform/objectmodeler/VelObject.h"
#include "platform/objectmodeler/VelPooledExtension.h"

/// The component; it lives while it is referenced. Not exported.
class VelStartUp final : public VelObject {
 public:
  static VelBaseUnknown_var Make(const VelFeatureLayout& iLayout);
  static const VelMetaClass& MetaObject() noexcept;

  const VelFeatureLayout& Layout() const noexcept { return *layout_; }

 private:
  explicit VelStartUp(const VelFeatureLayout& iLayout);

  const VelFeatureLayout* layout_;
};

/// Answers VelISpecObject for start-ups.
class VelStartUpObject final : public VelPooledExtension<VelISpecObject> {
 public:
  explicit VelStartUpObject(VelComponent& iStartUp) noexcept : VelPooledExtension(iStartUp) {}
  static VelBaseUnknown* Create(VelComponent& ioStartUp) {
    return &ioStartUp.GetMetaObject() == &VelStartUp::MetaObject() ? Make<VelStartUpObject>(ioStartUp) : nullptr;
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
  const VelFeatureLayout& Layout() noexcept { return static_cast<VelStartUp&>(*GetComponent()).Layout(); }
};

#endif  // PLATFORM_FEATUREMODELER_VELSTARTUP_H
