// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCompressionBound.h Finds files that claim more than they can hold.
#ifndef PLATFORM_IMAGES_DECODERS_VELCOMPRESSIONBOUND_H
#define PLATFORM_IMAGES_DECODERS_VELCOMPRESSIONBOUND_H

#include <cstdint>
#include <string>

#include "platform/base/HResult.h"

/// What a file claims to unpack to, against its own length: a header costs its author nothing, but no compression packs
/// without limit. A claim that passes may still be false; it then costs its author bytes.
class VelCompressionBound {
 public:
  /// The most that deflate packs into a byte.
  static constexpr std::uint64_t deflate = 1032;

  /// @param[in] iUnpacked bytes, all rows as the file stores them
  /// @param[in] iFileSize bytes
  /// @param[in] iRatio the most bytes that the compression packs into one
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when the file is too short for what it claims
  static HRESULT Check(std::uint64_t iUnpacked, std::uint64_t iFileSize, std::uint64_t iRatio, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELCOMPRESSIONBOUND_H
