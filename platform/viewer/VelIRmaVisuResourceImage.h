// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaVisuResourceImage.h The image that drives a parameter.
#ifndef PLATFORM_VIEWER_VELIRMAVISURESOURCEIMAGE_H
#define PLATFORM_VIEWER_VELIRMAVISURESOURCEIMAGE_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIRmaVisuResourceImage;

/// A parameter whose value varies over the surface, since an image drives it. A parameter without image does not
/// answer.
///
/// Implemented by: a conditional extension of the parameters' features.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIRmaVisuResourceImage : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRmaVisuResourceImage);

  /// @param[out] oResource what the image is made from, with one reference for the caller; null on failure
  /// @return S_OK; E_INVALIDARG when oResource is null; E_FAIL when the parameter has lost its image
  virtual HRESULT GetResourceImage(VelBaseUnknown** oResource) = 0;

 protected:
  ~VelIRmaVisuResourceImage() = default;
};

using VelIRmaVisuResourceImage_var = VelVar<VelIRmaVisuResourceImage>;

#endif  // PLATFORM_VIEWER_VELIRMAVISURESOURCEIMAGE_H
