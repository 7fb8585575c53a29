// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTextureEntry.cpp Asks the image services for picture and path.
#include "RenderingShader/VelRshModel.m/src/services/VelRshTextureEntry.h"

#include "platform/images/VelPixelImage.h"
#include "platform/images/VelRbaImageServices.h"

bool VelRshTextureEntry::Fill(VelIRmaAppearanceCache& ioCache, std::uint32_t iSlot, VelUnicodeString& ioPath,
                              const VelListValVelUnicodeString& iGroups, int iDpi) {
  const auto hImage =
      VelBaseUnknown_var::Adopt(VelRbaImageServices::CreatePixelImageFromFullPath(ioPath, iGroups, iDpi));
  if (!hImage) return false;
  // A file that cannot be converted keeps its path: the picture is there all the same.
  static_cast<void>(VelRbaImageServices::ConvertUnsupportedTexture(ioPath, iGroups, iDpi));
  static_cast<void>(ioCache.SetEntry(iSlot, ioPath, VelPixelImage::From(hImage.Get())));
  return true;
}
