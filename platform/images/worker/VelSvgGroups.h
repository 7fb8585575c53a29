// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSvgGroups.h Leaves only some groups of an SVG text to be drawn.
#ifndef PLATFORM_IMAGES_WORKER_VELSVGGROUPS_H
#define PLATFORM_IMAGES_WORKER_VELSVGGROUPS_H

#include <span>
#include <string>
#include <string_view>

#include "platform/base/HResult.h"
#include "platform/images/worker/VelSvgOutline.h"

/// Puts everything that is drawn and neither named, nor in nor around what is, into definitions. So it is still there
/// for those who use it, while transforms, styles, clips and opacities of the groups around stay in force.
class VelSvgGroups {
 public:
  /// A name is the id of a drawn element, or where there is none of that id, the label of a layer; all of them where
  /// there are several. What is named is shown, though its author switched it off.
  /// @param[in] iOutline of the text and the names
  /// @param[in] iWanted as the outline was read with
  /// @param[out] oText the text to draw; untouched unless S_OK
  /// @param[out] oCause the reason of a failure, made to follow the path; untouched otherwise
  /// @return S_OK; S_FALSE when nothing is so named; E_FAIL when elements cannot be told apart by their place
  static HRESULT Cut(std::string_view iText, const VelSvgOutline& iOutline, std::span<const std::string> iWanted,
                     std::string& oText, std::string& oCause);
};

#endif  // PLATFORM_IMAGES_WORKER_VELSVGGROUPS_H
