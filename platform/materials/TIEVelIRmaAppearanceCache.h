// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRmaAppearanceCache.h The forwarder of VelIRmaAppearanceCache.
#ifndef PLATFORM_MATERIALS_TIEVELIRMAAPPEARANCECACHE_H
#define PLATFORM_MATERIALS_TIEVELIRMAAPPEARANCECACHE_H

#include "platform/materials/VelIRmaAppearanceCache.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRmaAppearanceCache final : public VelTie<VelIRmaAppearanceCache> {
 public:
  using VelTie::VelTie;

  HRESULT SetEntry(std::uint32_t iSlot, const VelUnicodeString& iPath, VelPixelImage* iImage) override {
    return Forward<Implementation>([&](Implementation& ioCache) { return ioCache.SetEntry(iSlot, iPath, iImage); });
  }
  HRESULT ResetEntry(std::uint32_t iSlot) override {
    return Forward<Implementation>([&](Implementation& ioCache) { return ioCache.ResetEntry(iSlot); });
  }
  HRESULT GetPath(std::uint32_t iSlot, VelUnicodeString& oPath) override {
    return Forward<Implementation>([&](Implementation& ioCache) { return ioCache.GetPath(iSlot, oPath); });
  }
  HRESULT GetImage(std::uint32_t iSlot, VelPixelImage** oImage) override {
    return Forward<Implementation>([&](Implementation& ioCache) { return ioCache.GetImage(iSlot, oImage); });
  }
};

#endif  // PLATFORM_MATERIALS_TIEVELIRMAAPPEARANCECACHE_H
