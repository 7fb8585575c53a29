// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelICatalogManager.h Loads catalogs into a container.
#ifndef PLATFORM_FEATUREMODELER_VELICATALOGMANAGER_H
#define PLATFORM_FEATUREMODELER_VELICATALOGMANAGER_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelICatalogManager;

/// The catalogs that a container knows start-ups of.
///
/// Implemented by: the feature modeler, for late type "VelContainer".
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelICatalogManager : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelICatalogManager);

  /// Makes the start-ups of a catalog known to the container. The file is read once per process.
  /// @param[in] iCatalog the file's name, for instance "VelRmaCatalog.feat"
  /// @return S_OK; S_FALSE when the container knows the catalog already; E_FAIL when the file is not found, is faulty
  ///         (reported with file, line and cause on the channel "VelCatalog"), or the container is closed
  virtual HRESULT LoadCatalog(const VelString& iCatalog) = 0;

 protected:
  ~VelICatalogManager() = default;
};

using VelICatalogManager_var = VelVar<VelICatalogManager>;

#endif  // PLATFORM_FEATUREMODELER_VELICATALOGMANAGER_H
