// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIPlasticMaterial.h The form in which a rendering material was written.
#ifndef PLATFORM_MATERIALS_VELIPLASTICMATERIAL_H
#define PLATFORM_MATERIALS_VELIPLASTICMATERIAL_H

#include <cstdint>

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIPlasticMaterial;

/// A rendering material that remembers the form in which it was written. By its version the scale of its textures is
/// understood.
///
/// Implemented by: the rendering material of the host; tests bring their own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIPlasticMaterial : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIPlasticMaterial);

  /// @param[out] oVersion the number of the form, for instance 417; untouched on failure
  /// @return S_OK; E_FAIL when the material was given none
  virtual HRESULT GetVersion(std::uint32_t& oVersion) = 0;

  /// @param[out] oScale the factor of its textures in the older forms, without unit, 1 for their own size; untouched on
  ///             failure
  /// @return S_OK; E_FAIL when the material was given none
  virtual HRESULT GetScale(double& oScale) = 0;

 protected:
  ~VelIPlasticMaterial() = default;
};

using VelIPlasticMaterial_var = VelVar<VelIPlasticMaterial>;

#endif  // PLATFORM_MATERIALS_VELIPLASTICMATERIAL_H
