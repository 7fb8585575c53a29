// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgSize.h How large an SVG picture is, in its own units and in pixels.
#ifndef PLATFORM_IMAGES_WORKER_VELSVGSIZE_H
#define PLATFORM_IMAGES_WORKER_VELSVGSIZE_H

#include <optional>
#include <string>

#include "platform/base/HResult.h"

/// What the root of an SVG text tells of its size, in units of 1/96 inch. A share of a space that is not known, such as
/// 100 %, tells nothing.
struct VelSvgRootSize {
  std::optional<double> width;
  std::optional<double> height;
  double boxWidth = 0;   ///< Of the viewBox; 0 where there is none.
  double boxHeight = 0;  ///< As boxWidth.
};

/// A size in units of 1/96 inch.
struct VelSvgSize {
  static constexpr double unitsPerInch = 96;

  double width = 0;
  double height = 0;

  /// The size that a root tells: its width and height; one of them and the proportions of the viewBox; the viewBox's.
  /// @return none when the root tells too little
  static std::optional<VelSvgSize> Of(const VelSvgRootSize& iRoot) noexcept;

  /// Counts pixels, to the nearest, at least one.
  /// @param[in] iDpi pixels to the inch, at least 1
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; E_FAIL when there is no such picture or it has too many pixels; the counts are untouched then
  HRESULT CountPixels(int iDpi, int& oWidth, int& oHeight, std::string& oCause) const;
};

#endif  // PLATFORM_IMAGES_WORKER_VELSVGSIZE_H
