// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaAppearanceCache.h The textures of a rendering material, channel by channel, ready to be drawn.
#ifndef PLATFORM_MATERIALS_VELIRMAAPPEARANCECACHE_H
#define PLATFORM_MATERIALS_VELIRMAAPPEARANCECACHE_H

#include <cstdint>

#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

class VelPixelImage;

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIRmaAppearanceCache;

/// What a rendering material keeps of each of its channels ("slots", 1 to 11): the file of the texture that feeds it,
/// and its pixels. An entry is both together; it saves resolving, converting or drawing the texture again.
///
/// Implemented by: the rendering material of the host; tests bring their own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIRmaAppearanceCache : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRmaAppearanceCache);

  /// Makes or replaces the entry of a slot.
  /// @param[in] iSlot 1 to 11
  /// @param[in] iPath the absolute path of the file; may be empty, which is an entry as well
  /// @param[in] iImage the pixels, which the entry references; null for an entry of a path alone
  /// @return S_OK; E_INVALIDARG, with nothing changed, for a slot outside 1 to 11
  virtual HRESULT SetEntry(std::uint32_t iSlot, const VelUnicodeString& iPath, VelPixelImage* iImage) = 0;

  /// Takes away the entry of a slot.
  /// @param[in] iSlot 0 to 11; 0, which is what a parameter without slot has, changes nothing
  /// @return S_OK; S_FALSE when there was no entry; E_INVALIDARG, with nothing changed, for 12 and above
  virtual HRESULT ResetEntry(std::uint32_t iSlot) = 0;

  /// @param[in] iSlot any number; there is no entry outside 1 to 11
  /// @param[out] oPath the path of the entry, which may be empty; empty on failure
  /// @return S_OK; E_FAIL when there is no entry
  virtual HRESULT GetPath(std::uint32_t iSlot, VelUnicodeString& oPath) = 0;

  /// @param[in] iSlot any number; there is no entry outside 1 to 11
  /// @param[out] oImage the image of the entry, with one reference for the caller; null for an entry without image,
  ///             and on failure
  /// @return S_OK, also for an entry without image; E_INVALIDARG when oImage is null; E_FAIL when there is no entry
  virtual HRESULT GetImage(std::uint32_t iSlot, VelPixelImage** oImage) = 0;

 protected:
  ~VelIRmaAppearanceCache() = default;
};

using VelIRmaAppearanceCache_var = VelVar<VelIRmaAppearanceCache>;

#endif  // PLATFORM_MATERIALS_VELIRMAAPPEARANCECACHE_H
