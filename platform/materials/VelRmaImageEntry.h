// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaImageEntry.h The path and the image of one slot, and its place among all images that are held.
#ifndef PLATFORM_MATERIALS_VELRMAIMAGEENTRY_H
#define PLATFORM_MATERIALS_VELRMAIMAGEENTRY_H

#include <cstddef>

#include "platform/base/VelUnicodeString.h"
#include "platform/images/VelPixelImage.h"
#include "platform/objectmodeler/VelVar.h"

/// One entry of an appearance cache. Stays where it is while it is linked. Not exported.
struct VelRmaImageEntry {
  bool isSet = false;
  VelUnicodeString path;
  VelBaseUnknown_var image;  ///< A VelPixelImage; empty for an entry without one, and for one that was dropped.
  bool wasDropped = false;   ///< Whether the image can be had again from the path.
  std::size_t bytes = 0;     ///< Of the image while it is counted.
  VelRmaImageEntry* older = nullptr;    ///< The one that was used before this one.
  VelRmaImageEntry* younger = nullptr;  ///< The one that was used after this one.
};

#endif  // PLATFORM_MATERIALS_VELRMAIMAGEENTRY_H
