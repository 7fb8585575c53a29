// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelContainerAnswers.h Answers VelIContainer and VelICatalogManager for containers.
#ifndef PLATFORM_FEATUREMODELER_VELCONTAINERANSWERS_H
#define PLATFORM_FEATUREMODELER_VELCONTAINERANSWERS_H

#include "platform/featuremodeler/VelContainer.h"
#include "platform/featuremodeler/VelICatalogManager.h"
#include "platform/featuremodeler/VelIContainer.h"
#include "platform/objectmodeler/VelPooledExtension.h"

class VelContainerFeatures final : public VelPooledExtension<VelIContainer> {
 public:
  explicit VelContainerFeatures(VelComponent& iContainer) noexcept : VelPooledExtension(iContainer) {}
  static VelBaseUnknown* Create(VelComponent& ioContainer) {
    return VelContainer::From(&ioContainer) != nullptr ? Make<VelContainerFeatures>(ioContainer) : nullptr;
  }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT ListFeatures(const VelString& iType, VelListPtrVelBaseUnknown& ioFeatures) override;
  int CountFeatures() override;

 private:
  VelContainer& Container() noexcept { return static_cast<VelContainer&>(*GetComponent()); }
};

class VelContainerCatalogs final : public VelPooledExtension<VelICatalogManager> {
 public:
  explicit VelContainerCatalogs(VelComponent& iContainer) noexcept : VelPooledExtension(iContainer) {}
  static VelBaseUnknown* Create(VelComponent& ioContainer) {
    return VelContainer::From(&ioContainer) != nullptr ? Make<VelContainerCatalogs>(ioContainer) : nullptr;
  }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT LoadCatalog(const VelString& iCatalog) override {
    return static_cast<VelContainer&>(*GetComponent()).LoadCatalog(iCatalog);
  }
};

#endif  // PLATFORM_FEATUREMODELER_VELCONTAINERANSWERS_H
