// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file LifeCycleObject.h Removes an object from its model.
#ifndef PLATFORM_FEATUREMODELER_LIFECYCLEOBJECT_H
#define PLATFORM_FEATUREMODELER_LIFECYCLEOBJECT_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_LifeCycleObject;

/// The end of a feature.
///
/// Implemented by: the feature modeler, for every feature without a binding of its own; else by a class that derives
/// from VelSpecLifeCycleObjectExt. Such a class goes with the feature: afterwards a held interface still answers, a
/// query finds none.
///
/// Thread: the application thread. Re-entrancy: an operation of the feature may remove it; what is built for it then
/// goes when that call has unwound.
class VEL_PLATFORM_API LifeCycleObject : public VelBaseUnknown {
 public:
  VEL_INTERFACE(LifeCycleObject);

  /// Removes the feature and all that it aggregates: fathers are closed first; references to what is removed read as
  /// not valuated from then on; it leaves its father's list; the document hook "dropped" is called for each of its
  /// links.
  /// @return S_OK; S_FALSE when it is removed already
  virtual HRESULT remove() = 0;  // NOLINT(readability-identifier-naming): the name of the system

 protected:
  ~LifeCycleObject() = default;
};

using LifeCycleObject_var = VelVar<LifeCycleObject>;

#endif  // PLATFORM_FEATUREMODELER_LIFECYCLEOBJECT_H
