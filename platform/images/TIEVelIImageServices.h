// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIImageServices.h The forwarder of VelIImageServices.
#ifndef PLATFORM_IMAGES_TIEVELIIMAGESERVICES_H
#define PLATFORM_IMAGES_TIEVELIIMAGESERVICES_H

#include "platform/images/VelIImageServices.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIImageServices final : public VelTie<VelIImageServices> {
 public:
  using VelTie::VelTie;

  HRESULT GetProjectionPath(VelBaseUnknown* iDocument, VelUnicodeString& oPath) override {
    return Forward<Implementation>(
        [&](Implementation& ioServices) { return ioServices.GetProjectionPath(iDocument, oPath); });
  }
  VelPixelImage* CreatePixelImageFromFullPath(const VelUnicodeString& iPath, const VelListValVelUnicodeString& iGroups,
                                              int iDpi) override {
    return Forward<Implementation>(
        [&](Implementation& ioServices) { return ioServices.CreatePixelImageFromFullPath(iPath, iGroups, iDpi); });
  }
  HRESULT ConvertUnsupportedTexture(VelUnicodeString& ioPath, const VelListValVelUnicodeString& iGroups,
                                    int iDpi) override {
    return Forward<Implementation>(
        [&](Implementation& ioServices) { return ioServices.ConvertUnsupportedTexture(ioPath, iGroups, iDpi); });
  }
  VelPixelImage* CreatePixelImageFromFile(const VelUnicodeString& iPath) override {
    return Forward<Implementation>(
        [&](Implementation& ioServices) { return ioServices.CreatePixelImageFromFile(iPath); });
  }
  HRESULT ResolvePath(const VelUnicodeString& iPath, VelUnicodeString& oPath) override {
    return Forward<Implementation>([&](Implementation& ioServices) { return ioServices.ResolvePath(iPath, oPath); });
  }
};

#endif  // PLATFORM_IMAGES_TIEVELIIMAGESERVICES_H
