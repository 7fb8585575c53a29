// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaImageFiles.h Writes images into files.
#ifndef PLATFORM_IMAGES_VELRBAIMAGEFILES_H
#define PLATFORM_IMAGES_VELRBAIMAGEFILES_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"

class VelPixelImage;

/// For hosts and programs that put images beside their reports. The work is done by a provider that the dictionary
/// names (VelIImageWriter). Thread: the application thread.
class VEL_PLATFORM_API VelRbaImageFiles {
 public:
  /// @return the extension, without a dot, of the files in which the pixels of an image are kept without loss: "png"
  ///         for bytes, "exr" for floats
  static const char* ExtensionFor(const VelPixelImage& iImage) noexcept;

  /// Writes an image as a whole file: whoever opens it meanwhile sees what was there before. It is for whoever may
  /// read new files of the process. What fails is an error on the trace channel "VelRbaImageFiles" that names path and
  /// cause.
  /// @param[in] iImage null is refused
  /// @param[in] iPath ends in the extension that ExtensionFor tells, in letters of either case; its folder is there
  /// @return S_OK; E_INVALIDARG when the image is null or the extension another one; E_FAIL without provider, which is
  ///         a warning the first time, and when the file cannot be written
  static HRESULT Write(VelPixelImage* iImage, const VelUnicodeString& iPath);

  /// Lets the warning of the missing provider be sent once more, for tests.
  static void ResetWarning() noexcept;
};

#endif  // PLATFORM_IMAGES_VELRBAIMAGEFILES_H
