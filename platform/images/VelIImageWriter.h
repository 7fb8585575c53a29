// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIImageWriter.h Writes images into files, for VelRbaImageFiles.
#ifndef PLATFORM_IMAGES_VELIIMAGEWRITER_H
#define PLATFORM_IMAGES_VELIIMAGEWRITER_H

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

class VelPixelImage;

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIImageWriter;

/// What VelRbaImageFiles forwards to. The provider is declared in the dictionary for the late type "VelPlatformImages",
/// beside VelIImageServices:
///
///     VEL_GRID_CELL(<class>, VelPlatformImages, Component, VelIImageWriter, TIE)
///
/// Implemented by: the image library; tests bring their own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIImageWriter : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIImageWriter);

  /// As VelRbaImageFiles::Write. What fails is an error that names the path and the cause.
  /// @param[in] iImage not null
  virtual HRESULT Write(VelPixelImage* iImage, const VelUnicodeString& iPath) = 0;

 protected:
  ~VelIImageWriter() = default;
};

using VelIImageWriter_var = VelVar<VelIImageWriter>;

#endif  // PLATFORM_IMAGES_VELIIMAGEWRITER_H
