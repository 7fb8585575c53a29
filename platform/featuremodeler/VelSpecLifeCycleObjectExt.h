// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSpecLifeCycleObjectExt.h The base of implementations that take part in the end of their feature.
#ifndef PLATFORM_FEATUREMODELER_VELSPECLIFECYCLEOBJECTEXT_H
#define PLATFORM_FEATUREMODELER_VELSPECLIFECYCLEOBJECTEXT_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelImplementation.h"

/// An implementation bound to features that answers LifeCycleObject itself: it hides remove(), does what has to be done
/// before, and hands on to this one.
class VEL_PLATFORM_API VelSpecLifeCycleObjectExt : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// Removes the feature, as LifeCycleObject::remove. The implementation stays until the running call has unwound.
  /// @return S_OK; S_FALSE when it is removed already; E_FAIL when the component is no feature
  HRESULT remove();  // NOLINT(readability-identifier-naming): the name of the system
};

#endif  // PLATFORM_FEATUREMODELER_VELSPECLIFECYCLEOBJECTEXT_H
