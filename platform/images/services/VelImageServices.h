// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageServices.h The provider of the image services.
#ifndef PLATFORM_IMAGES_SERVICES_VELIMAGESERVICES_H
#define PLATFORM_IMAGES_SERVICES_VELIMAGESERVICES_H

#include "platform/base/VelListValVelUnicodeString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelImplementation.h"

class VelPixelImage;

/// Answers VelIImageServices. It has no state; failures are warnings on the trace channel "VelRbaImageServices".
class VelImageServices final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  static HRESULT GetProjectionPath(VelBaseUnknown* iDocument, VelUnicodeString& oPath);
  static VelPixelImage* CreatePixelImageFromFullPath(const VelUnicodeString& iPath,
                                                     const VelListValVelUnicodeString& iGroups, int iDpi);
  static HRESULT ConvertUnsupportedTexture(VelUnicodeString& ioPath, const VelListValVelUnicodeString& iGroups,
                                           int iDpi);
  static VelPixelImage* CreatePixelImageFromFile(const VelUnicodeString& iPath);
  static HRESULT ResolvePath(const VelUnicodeString& iPath, VelUnicodeString& oPath);
};

#endif  // PLATFORM_IMAGES_SERVICES_VELIMAGESERVICES_H
