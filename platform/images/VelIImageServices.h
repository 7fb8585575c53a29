// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIImageServices.h Works on images and their files, for VelRbaImageServices.
#ifndef PLATFORM_IMAGES_VELIIMAGESERVICES_H
#define PLATFORM_IMAGES_VELIIMAGESERVICES_H

#include "platform/base/VelListValVelUnicodeString.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

class VelPixelImage;

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIImageServices;

/// What VelRbaImageServices, VelRbaPathResolver and VelPixelImage forward to. The provider is declared in the
/// dictionary for the late type "VelPlatformImages", as a row of a module's grid:
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

  /// As VelRbaImageServices::CreatePixelImageFromFullPath. What is refused, damaged or past a limit is null with one
  /// warning that names the path and the cause.
  /// @return the image with one reference for the caller; null when there is none to be had
  [[nodiscard]] virtual VelPixelImage* CreatePixelImageFromFullPath(const VelUnicodeString& iPath,
                                                                    const VelListValVelUnicodeString& iGroups,
                                                                    int iDpi) = 0;

  /// As VelRbaImageServices::ConvertUnsupportedTexture.
  /// @param[in,out] ioPath what is written there counts on S_OK only
  virtual HRESULT ConvertUnsupportedTexture(VelUnicodeString& ioPath, const VelListValVelUnicodeString& iGroups,
                                            int iDpi) = 0;

  /// As VelPixelImage::CreateFromFile, and null as for CreatePixelImageFromFullPath.
  [[nodiscard]] virtual VelPixelImage* CreatePixelImageFromFile(const VelUnicodeString& iPath) = 0;

  /// As VelRbaPathResolver::Resolve.
  /// @param[out] oPath never iPath itself; what is written there does not count on failure
  virtual HRESULT ResolvePath(const VelUnicodeString& iPath, VelUnicodeString& oPath) = 0;

 protected:
  ~VelIImageServices() = default;
};

using VelIImageServices_var = VelVar<VelIImageServices>;

#endif  // PLATFORM_IMAGES_VELIIMAGESERVICES_H
