// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgDrawing.h Draws SVG files.
#ifndef PLATFORM_IMAGES_WORKER_VELSVGDRAWING_H
#define PLATFORM_IMAGES_WORKER_VELSVGDRAWING_H

#include <string>
#include <vector>

#include "platform/base/HResult.h"

class VelImageSource;
class VelWorkerPicture;

/// One SVG file as pixels. The picture depends on this one file and the machine's fonts: what it refers to outside of
/// itself is not drawn.
class VelSvgDrawing {
 public:
  static constexpr int mostDpi = 4800;

  /// @param[in] iDpi pixels to the inch, 1 to mostDpi; 96 is the picture's own size
  /// @param[in] iGroups the names of the groups to draw, in any order; empty draws all. See VelSvgGroups.
  /// @param[out] oPicture replaced by the picture: transparent, of the same size, when no name is known
  /// @param[out] oUnknown replaced by all names, sorted, when none is known; cleared otherwise
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_INVALIDARG for another dpi; E_FAIL when the file is not drawn
  static HRESULT Draw(VelImageSource& ioSource, int iDpi, std::vector<std::string> iGroups, VelWorkerPicture& oPicture,
                      std::vector<std::string>& oUnknown, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_WORKER_VELSVGDRAWING_H
