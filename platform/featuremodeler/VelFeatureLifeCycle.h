// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFeatureLifeCycle.h Answers LifeCycleObject for features whose class has no binding of its own.
#ifndef PLATFORM_FEATUREMODELER_VELFEATURELIFECYCLE_H
#define PLATFORM_FEATUREMODELER_VELFEATURELIFECYCLE_H

#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/featuremodeler/VelFeature.h"
#include "platform/objectmodeler/VelPooledExtension.h"

class VelFeatureLifeCycle final : public VelPooledExtension<LifeCycleObject> {
 public:
  explicit VelFeatureLifeCycle(VelComponent& iFeature) noexcept : VelPooledExtension(iFeature) {}
  static VelBaseUnknown* Create(VelComponent& ioFeature) {
    return VelFeature::Is(ioFeature) ? Make<VelFeatureLifeCycle>(ioFeature) : nullptr;
  }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT remove() override { return static_cast<VelFeature&>(*GetComponent()).Remove(); }
};

#endif  // PLATFORM_FEATUREMODELER_VELFEATURELIFECYCLE_H
