// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelFileCheck.h Tells whole image files from cut ones, and how large their pictures are.
#ifndef PLATFORM_IMAGES_WORKER_VELFILECHECK_H
#define PLATFORM_IMAGES_WORKER_VELFILECHECK_H

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/base/HResult.h"
#include "platform/images/pixels/VelImageKind.h"

/// The checks that come before a decoder which takes cut files for good ones, and asks for memory before anybody knows
/// how much.
class VelFileCheck {
 public:
  /// What a file that passes is.
  struct Outcome {
    std::int64_t width = 0;   ///< Pixels, as an image may have.
    std::int64_t height = 0;  ///< As width.
    std::string bytes;   ///< What to decode instead of the file, such as its first frame; empty for the file itself.
    bool isPng = false;  ///< Whether the bytes are a PNG file, as icons may hold.
  };

  /// @param[in] iKind Bmp, Gif, Tga, Pnm or Ico
  /// @param[out] oOutcome undefined after a failure
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_INVALIDARG for another kind; E_FAIL when the file is no whole one of its kind, or too large
  static HRESULT Check(VelImageKind iKind, std::string_view iFile, Outcome& oOutcome, std::string& oCause);

  /// @return E_FAIL, and the reason that all of these files have in common
  static HRESULT RefuseCut(VelImageKind iKind, std::string& oCause);

  /// @return E_FAIL, and the reason
  static HRESULT RefuseForm(VelImageKind iKind, std::string_view iWhat, std::string& oCause);

  /// Each as Check; in files of their own.
  static HRESULT CheckBmp(std::string_view iFile, Outcome& oOutcome, std::string& oCause);
  static HRESULT CheckGif(std::string_view iFile, Outcome& oOutcome, std::string& oCause);
  static HRESULT CheckTga(std::string_view iFile, Outcome& oOutcome, std::string& oCause);
  static HRESULT CheckPnm(std::string_view iFile, Outcome& oOutcome, std::string& oCause);
  static HRESULT CheckIco(std::string_view iFile, Outcome& oOutcome, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_WORKER_VELFILECHECK_H
