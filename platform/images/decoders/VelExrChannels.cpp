// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExrChannels.cpp Chooses by name.
#include "platform/images/decoders/VelExrChannels.h"

#include <algorithm>
#include <string_view>

namespace {

bool Has(std::span<const std::string> iNames, std::string_view iName) {
  return std::find(iNames.begin(), iNames.end(), iName) != iNames.end();
}

}  // namespace

HRESULT VelExrChannels::Choose(std::span<const std::string> iNames, std::string& oCause) {
  constexpr std::array colors{"R", "G", "B"};
  names = {};
  isGrey = std::none_of(colors.begin(), colors.end(), [&](const char* iName) { return Has(iNames, iName); });
  if (Has(iNames, "A")) names[3] = "A";
  if (isGrey) return ChooseGrey(iNames, oCause);
  for (std::size_t i = 0; i < colors.size(); ++i) {
    if (Has(iNames, colors[i])) names[i] = colors[i];
  }
  return S_OK;
}

HRESULT VelExrChannels::ChooseGrey(std::span<const std::string> iNames, std::string& oCause) {
  if (Has(iNames, "RY") || Has(iNames, "BY")) {
    oCause = "is an OpenEXR file of luminance and chroma; expected channels R, G, B and A, or Y";
    return E_FAIL;
  }
  if (Has(iNames, "Y")) {
    names[0] = "Y";
    return S_OK;
  }
  if (iNames.size() == 1) {
    // A channel of alpha alone is a picture of it.
    names = {iNames[0]};
    return S_OK;
  }
  if (iNames.size() == 2 && HasAlpha()) {
    names[0] = iNames[0] == "A" ? iNames[1] : iNames[0];
    return S_OK;
  }
  oCause = "is an OpenEXR file of " + std::to_string(iNames.size()) +
           " channels, none of them R, G, B or Y; expected one of these, or a single channel";
  return E_FAIL;
}
