// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTextureEntry.h Fills an entry of the appearance cache from a file.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHTEXTUREENTRY_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHTEXTUREENTRY_H

#include <cstdint>

#include "platform/base/VelListValVelUnicodeString.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/materials/VelIRmaAppearanceCache.h"

class VelRshTextureEntry {
 public:
  static constexpr int plainResolution = 72;  ///< Dots per inch of what is no SVG file.

  /// Draws or decodes a file, has it converted where the renderer cannot read it, and makes both the entry of a
  /// channel.
  /// @param[in] iSlot 1 to 11
  /// @param[in,out] ioPath the file; the converted one where there is one
  /// @param[in] iGroups as for VelRbaImageServices::CreatePixelImageFromFullPath
  /// @param[in] iDpi as there
  /// @return false when there is no picture of the file: path and entry are as they were
  static bool Fill(VelIRmaAppearanceCache& ioCache, std::uint32_t iSlot, VelUnicodeString& ioPath,
                   const VelListValVelUnicodeString& iGroups, int iDpi);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHTEXTUREENTRY_H
