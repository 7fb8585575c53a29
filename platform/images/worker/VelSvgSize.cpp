// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgSize.cpp Counts as floating-point numbers until the count is known to be small.
#include "platform/images/worker/VelSvgSize.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "platform/images/VelPixelImage.h"

namespace {

double RoundPixels(double iUnits, int iDpi) {
  return std::max(1.0, std::round(iUnits * iDpi / VelSvgSize::unitsPerInch));
}

std::string TextOf(double iNumber) {
  constexpr double shown = 1e15;
  return std::abs(iNumber) < shown ? std::to_string(static_cast<std::int64_t>(iNumber)) : "too many";
}

}  // namespace

std::optional<VelSvgSize> VelSvgSize::Of(const VelSvgRootSize& iRoot) noexcept {
  if (iRoot.width && iRoot.height) return VelSvgSize{*iRoot.width, *iRoot.height};
  if (!(iRoot.boxWidth > 0) || !(iRoot.boxHeight > 0)) return std::nullopt;
  if (iRoot.width) return VelSvgSize{*iRoot.width, *iRoot.width * iRoot.boxHeight / iRoot.boxWidth};
  if (iRoot.height) return VelSvgSize{*iRoot.height * iRoot.boxWidth / iRoot.boxHeight, *iRoot.height};
  return VelSvgSize{iRoot.boxWidth, iRoot.boxHeight};
}

HRESULT VelSvgSize::CountPixels(int iDpi, int& oWidth, int& oHeight, std::string& oCause) const {
  // Written so that what is no number is refused too.
  if (!(width > 0) || !(height > 0)) {
    oCause = "has nothing to be drawn: its width or its height is 0";
    return E_FAIL;
  }
  const double columns = RoundPixels(width, iDpi);
  const double rows = RoundPixels(height, iDpi);
  const bool isSmall = columns <= VelPixelImage::largestSide && rows <= VelPixelImage::largestSide &&
                       columns * rows <= static_cast<double>(VelPixelImage::mostPixels);
  if (!isSmall) {
    oCause = "has " + TextOf(columns) + " x " + TextOf(rows) + " pixels at " + std::to_string(iDpi) +
             " dpi; expected at most " + std::to_string(VelPixelImage::largestSide) + " a side and " +
             std::to_string(VelPixelImage::mostPixels) + " in all";
    return E_FAIL;
  }
  oWidth = static_cast<int>(columns);
  oHeight = static_cast<int>(rows);
  return S_OK;
}
