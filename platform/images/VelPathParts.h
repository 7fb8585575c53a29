// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPathParts.h A path taken apart: folder, name, extension.
#ifndef PLATFORM_IMAGES_VELPATHPARTS_H
#define PLATFORM_IMAGES_VELPATHPARTS_H

#include "platform/base/VelUnicodeString.h"

/// The parts of a path, in their order. Nothing is lost: the folder, the name, and a dot with the extension where there
/// is one, written one after another, are the path again.
struct VelPathParts {
  VelUnicodeString folder;     ///< Up to and with the last separator; empty for a path of a name alone.
  VelUnicodeString name;       ///< Without the dot and the extension; empty for a path that ends in a separator.
  VelUnicodeString extension;  ///< What follows the last dot of the last part, without the dot, letters as they are.

  friend bool operator==(const VelPathParts&, const VelPathParts&) = default;
};

#endif  // PLATFORM_IMAGES_VELPATHPARTS_H
