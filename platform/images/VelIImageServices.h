// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIImageServices.h Works on images and their files, for VelRbaImageServices.
#ifndef PLATFORM_IMAGES_VELIIMAGESERVICES_H
#define PLATFORM_IMAGES_VELIIMAGESERVICES_H

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIImageServices;

/// What VelRbaImageServices forwards to. The provider is declared in the dictionary for the late type
/// "VelPlatformImages", as a row of a module's grid:
///
///     VEL_GRID_CELL(<class>, VelPlatformImages, Component, VelIImageServices, TIE)
///
/// An object of that late type is made for each call and ends with it: what is kept lies outside the provider.
///
/// Implemented by: the image library; tests bring their own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIImageServices : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIImageServices);

  /// As VelRbaImageServices::GetProjectionPath.
  /// @param[in] iDocument not null
  virtual HRESULT GetProjectionPath(VelBaseUnknown* iDocument, VelUnicodeString& oPath) = 0;

 protected:
  ~VelIImageServices() = default;
};

using VelIImageServices_var = VelVar<VelIImageServices>;

#endif  // PLATFORM_IMAGES_VELIIMAGESERVICES_H
