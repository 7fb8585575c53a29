// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaMaterialFigures.h Gives a rendering material the figures by which its textures are understood.
#ifndef PLATFORM_MATERIALS_VELIRMAMATERIALFIGURES_H
#define PLATFORM_MATERIALS_VELIRMAMATERIALFIGURES_H

#include <cstdint>

#include "platform/base/VelPlatformApi.h"
#include "platform/materials/VelUnit.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIRmaMaterialFigures;

/// The figures of a material, for whoever makes or reads in a material. They persist. What is given once makes the
/// material answer the interface by which it is read.
///
/// Implemented by: the rendering material.
/// Thread: the application thread. Re-entrancy: none; nobody is told.
class VEL_PLATFORM_API VelIRmaMaterialFigures : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRmaMaterialFigures);

  /// @param[in] iVersion the number of the form, as VelIPlasticMaterial::GetVersion
  /// @return S_OK; E_FAIL when the material is closed
  virtual HRESULT SetVersion(std::uint32_t iVersion) = 0;

  /// @param[in] iScale as VelIPlasticMaterial::GetScale
  /// @return S_OK; E_FAIL when the material is closed
  virtual HRESULT SetPlasticScale(double iScale) = 0;

  /// @param[in] iUnit that of both figures; they are kept in metres
  /// @param[in] iWidth more than 0
  /// @param[in] iHeight more than 0
  /// @return S_OK; E_INVALIDARG, with nothing changed, for a figure that is no size; E_FAIL when the material is closed
  virtual HRESULT SetSize(const VelUnit& iUnit, double iWidth, double iHeight) = 0;

  /// @param[in] iFactor as VelIRenderingMaterial::GetScaleFactor
  /// @return S_OK; E_FAIL when the material is closed
  virtual HRESULT SetScaleFactor(double iFactor) = 0;

 protected:
  ~VelIRmaMaterialFigures() = default;
};

using VelIRmaMaterialFigures_var = VelVar<VelIRmaMaterialFigures>;

#endif  // PLATFORM_MATERIALS_VELIRMAMATERIALFIGURES_H
