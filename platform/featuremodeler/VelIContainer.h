// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIContainer.h A container of features: the content of a document.
#ifndef PLATFORM_FEATUREMODELER_VELICONTAINER_H
#define PLATFORM_FEATUREMODELER_VELICONTAINER_H

#include "platform/base/HResult.h"
#include "platform/base/VelListPtrVelBaseUnknown.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIContainer;

class VelIContainer;
using VelIContainer_var = VelVar<VelIContainer>;

/// Holds features. It lives while it is referenced. When it is closed, with its last reference at the latest, all its
/// features are closed, fathers first, without being removed.
///
/// Implemented by: the feature modeler, for late type "VelContainer".
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIContainer : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIContainer);

  /// Lists the features of a start-up and of those derived from it.
  /// @param[in] iType the start-up's name; empty lists all features
  /// @param[in,out] ioFeatures each feature is appended with one reference for the caller, in the order of storage
  /// @return S_OK; E_FAIL when the container is closed
  virtual HRESULT ListFeatures(const VelString& iType, VelListPtrVelBaseUnknown& ioFeatures) = 0;

  /// @return the number of features, 0 when the container is closed
  virtual int CountFeatures() = 0;

  /// Makes an empty container.
  static VelIContainer_var Create();

  /// Makes an empty container that knows the catalogs of another one.
  /// @return empty when the other one is closed, or is no container of the feature modeler
  static VelIContainer_var CreateLike(VelIContainer& iOther);

 protected:
  ~VelIContainer() = default;
};

#endif  // PLATFORM_FEATUREMODELER_VELICONTAINER_H
