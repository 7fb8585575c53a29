// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPixbufDecoding.h Decodes BMP, GIF, TGA, PNM and ICO files.
#ifndef PLATFORM_IMAGES_WORKER_VELPIXBUFDECODING_H
#define PLATFORM_IMAGES_WORKER_VELPIXBUFDECODING_H

#include <string>
#include <string_view>

#include "platform/base/HResult.h"
#include "platform/images/pixels/VelImageKind.h"

class VelWorkerPicture;

/// The first frame of an animation, the largest picture of an icon.
class VelPixbufDecoding {
 public:
  /// @param[in] iKind Bmp, Gif, Tga, Pnm or Ico
  /// @param[out] oPicture replaced by the picture, of bytes; undefined after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_INVALIDARG for another kind; E_FAIL when the file is damaged or too large
  static HRESULT Decode(VelImageKind iKind, std::string_view iFile, VelWorkerPicture& oPicture, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_WORKER_VELPIXBUFDECODING_H
