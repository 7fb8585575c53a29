// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrChannels.h Which channels of an OpenEXR file make a picture.
#ifndef PLATFORM_IMAGES_DECODERS_VELEXRCHANNELS_H
#define PLATFORM_IMAGES_DECODERS_VELEXRCHANNELS_H

#include <array>
#include <span>
#include <string>

#include "platform/base/HResult.h"

/// The names of the channels that are shown as red, green, blue and alpha; empty where there is none.
struct VelExrChannels {
  std::array<std::string, 4> names;
  bool isGrey = false;  ///< The first is shown as green and blue too.

  bool HasAlpha() const noexcept { return !names[3].empty(); }

  /// @param[in] iNames of all channels of the part
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_FAIL when nothing tells which channels are to be shown
  HRESULT Choose(std::span<const std::string> iNames, std::string& oCause);

 private:
  HRESULT ChooseGrey(std::span<const std::string> iNames, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_DECODERS_VELEXRCHANNELS_H
