// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageLoader.h Makes images of files.
#ifndef PLATFORM_IMAGES_SERVICES_VELIMAGELOADER_H
#define PLATFORM_IMAGES_SERVICES_VELIMAGELOADER_H

#include <string>
#include <vector>

class VelImageInput;
class VelPixelImage;
struct VelDrawingOptions;

/// Formats whose libraries can be trusted with hostile files are decoded in this process, the others by the helper
/// program. What was made of a file lately is taken from VelPixelCache.
class VelImageLoader {
 public:
  /// @param[out] oUnknownGroups the groups that were asked for, when the file has none of them, and the picture is
  ///             therefore empty; untouched otherwise, and for an image that was made before
  /// @param[out] oCause the reason of a failure in English, made to follow the path in a message; untouched otherwise
  /// @return the image with one reference for the caller; null when there is none to be had
  [[nodiscard]] static VelPixelImage* Load(const VelImageInput& iInput, const VelDrawingOptions& iOptions,
                                           std::vector<std::string>& oUnknownGroups, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_SERVICES_VELIMAGELOADER_H
