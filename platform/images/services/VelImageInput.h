// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageInput.h An image file that is open and of an accepted format.
#ifndef PLATFORM_IMAGES_SERVICES_VELIMAGEINPUT_H
#define PLATFORM_IMAGES_SERVICES_VELIMAGEINPUT_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/base/system/VelSystemInputFile.h"
#include "platform/images/pixels/VelImageKind.h"

/// How a vector image is drawn. Without meaning for other images.
struct VelDrawingOptions {
  std::vector<std::string> groups;  ///< Sorted, each once: order and repetition mean nothing. Empty draws all.
  int dpi = 96;                     ///< 1 to 4800.
};

/// The file is opened once, and all that is told of it is told of what was opened, whatever becomes of the path.
class VelImageInput {
 public:
  static constexpr std::uint64_t mostSvgBytes = std::uint64_t{32} << 20U;

  /// @param[out] oCause the reason of a failure in English, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when the file cannot be opened, is no regular file, is empty, of no accepted format or an SVG
  ///         file of more than mostSvgBytes
  HRESULT Open(const std::string& iPath, std::string& oCause);

  const VelSystemInputFile& GetFile() const noexcept { return file_; }
  VelImageKind GetKind() const noexcept { return kind_; }

  /// @return the part of the path behind the last dot of its name, in lower case
  const std::string& GetExtension() const noexcept { return extension_; }

  /// Names what an operation makes of the file, by what the system tells of it and, for a young one, by its content
  /// (VelYoungFiles).
  /// @param[in] iOperation what is made
  /// @param[in] iOptions count for SVG files alone
  /// @return 40 hexadecimal digits
  std::string KeyOf(std::string_view iOperation, const VelDrawingOptions& iOptions) const;

 private:
  VelSystemInputFile file_;
  VelImageKind kind_ = VelImageKind::Unknown;
  std::string extension_;
};

#endif  // PLATFORM_IMAGES_SERVICES_VELIMAGEINPUT_H
