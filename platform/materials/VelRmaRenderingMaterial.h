// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaRenderingMaterial.h The rendering material: a feature that carries a shader and keeps its textures.
#ifndef PLATFORM_MATERIALS_VELRMARENDERINGMATERIAL_H
#define PLATFORM_MATERIALS_VELRMARENDERINGMATERIAL_H

#include <array>
#include <cstdint>

#include "platform/base/HResult.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/featuremodeler/VelISpecAttrKey.h"
#include "platform/materials/VelRmaImageEntry.h"
#include "platform/materials/VelUnit.h"
#include "platform/objectmodeler/VelImplementation.h"

/// Implements a feature of start-up VelRmaRenderingMaterial (catalogs/VelRmaMaterialCatalog.feat). The shader and the
/// figures persist in its attributes; the entries of the appearance cache live as long as this object. The operations
/// are those of the interfaces, where they are described. Not exported.
class VelRmaRenderingMaterial final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  ~VelRmaRenderingMaterial() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  // VelIRenderingMaterial
  HRESULT GetShader(VelBaseUnknown** oShader);
  HRESULT SetShader(VelBaseUnknown* iShader);
  HRESULT GetScaleFactor(double& oFactor);

  // VelIRmaAppearanceCache
  HRESULT SetEntry(std::uint32_t iSlot, const VelUnicodeString& iPath, VelPixelImage* iImage);
  HRESULT ResetEntry(std::uint32_t iSlot);
  HRESULT GetPath(std::uint32_t iSlot, VelUnicodeString& oPath);
  HRESULT GetImage(std::uint32_t iSlot, VelPixelImage** oImage);

  // VelIRmaMaterialFigures
  HRESULT SetVersion(std::uint32_t iVersion);
  HRESULT SetPlasticScale(double iScale);
  HRESULT SetSize(const VelUnit& iUnit, double iWidth, double iHeight);
  HRESULT SetScaleFactor(double iFactor);

 private:
  static constexpr std::uint32_t slotCount = 11;

  /// @return the entry of a slot; null for a slot outside 1 to 11, and for one without an entry
  VelRmaImageEntry* Find(std::uint32_t iSlot) noexcept;
  static void Clear(VelRmaImageEntry& ioEntry) noexcept;
  HRESULT SetReal(const VelISpecAttrKey* iKey, double iValue);

  std::array<VelRmaImageEntry, slotCount> entries_;
};

#endif  // PLATFORM_MATERIALS_VELRMARENDERINGMATERIAL_H
