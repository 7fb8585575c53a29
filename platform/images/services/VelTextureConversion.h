// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTextureConversion.h Makes files that the renderer can read of those that it cannot.
#ifndef PLATFORM_IMAGES_SERVICES_VELTEXTURECONVERSION_H
#define PLATFORM_IMAGES_SERVICES_VELTEXTURECONVERSION_H

#include <string>
#include <vector>

#include "platform/base/HResult.h"

struct VelDrawingOptions;

/// The renderer reads PNG, JPEG, BMP, TGA, TIFF, HDR and EXR files that bear an extension of their format. Others
/// become PNG files, or EXR files where their pixels are floats, among the user's VelConvertedFiles.
class VelTextureConversion {
 public:
  /// @param[out] oPath the path of the file for the renderer; untouched unless S_OK
  /// @param[out] oUnknownGroups as for VelImageLoader::Load
  /// @param[out] oCause the reason of a failure in English, made to follow the path in a message; untouched otherwise
  /// @return S_OK; S_FALSE when the renderer can read the file as it is, of which only the beginning was looked at;
  ///         E_FAIL when no such file can be made
  static HRESULT Convert(const std::string& iPath, const VelDrawingOptions& iOptions, std::string& oPath,
                         std::vector<std::string>& oUnknownGroups, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_SERVICES_VELTEXTURECONVERSION_H
