// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTiffFile.h An open TIFF file.
#ifndef PLATFORM_IMAGES_DECODERS_VELTIFFFILE_H
#define PLATFORM_IMAGES_DECODERS_VELTIFFFILE_H

#include <array>
#include <string>

#include "platform/base/HResult.h"
#include "platform/images/decoders/VelImageSourceCursor.h"

struct tiff;

/// A TIFF file as its library reads it from a source, which outlives it. The first page is the current one. What the
/// library tells goes nowhere but into the causes of failures.
class VelTiffFile {
 public:
  explicit VelTiffFile(VelImageSource& ioSource) : state_{VelImageSourceCursor(ioSource), {}, false} {}
  ~VelTiffFile();
  VelTiffFile(const VelTiffFile&) = delete;
  VelTiffFile& operator=(const VelTiffFile&) = delete;

  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK, and the file is one; E_FAIL when there is no first page that can be read
  HRESULT Open(std::string& oCause);

  /// @return the library's handle, which the file keeps; null before Open
  tiff* Get() const noexcept { return file_; }

  /// From here on a warning counts as much as an error: so little as a short strip is only warned of.
  void ReadStrictly() noexcept;

  /// @return true when nothing was told since ReadStrictly
  bool IsSound() const noexcept { return state_.fault[0] == '\0'; }

  /// Tells what went wrong.
  /// @param[out] oCause made to follow the path in a message
  /// @return E_FAIL
  HRESULT Fail(std::string& oCause) const;

 private:
  struct State {
    VelImageSourceCursor cursor;
    std::array<char, 200> fault;  ///< The first one.
    bool isStrict;
  };
  struct Handlers;

  State state_;
  tiff* file_ = nullptr;
};

#endif  // PLATFORM_IMAGES_DECODERS_VELTIFFFILE_H
