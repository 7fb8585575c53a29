// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRenderingMaterial.h A rendering material: what carries the root shader of a graph.
#ifndef PLATFORM_MATERIALS_VELIRENDERINGMATERIAL_H
#define PLATFORM_MATERIALS_VELIRENDERINGMATERIAL_H

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIRenderingMaterial;

/// A rendering material. Shaders belong to a higher floor and pass through as VelBaseUnknown.
///
/// Implemented by: the rendering material of the host; tests bring their own.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIRenderingMaterial : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRenderingMaterial);

  /// @param[out] oShader the shader that the material carries, with one reference for the caller; null on failure
  /// @return S_OK; E_INVALIDARG when oShader is null; E_FAIL when the material carries no shader
  virtual HRESULT GetShader(VelBaseUnknown** oShader) = 0;

  /// Makes the material the father of a shader. The shader carried before has no father any more and stays in the
  /// container.
  /// @param[in] iShader any interface of the shader's feature; null when the material shall carry none
  /// @return S_OK; S_FALSE when the material carries it already; E_FAIL, with nothing changed, when iShader is no
  ///         feature of the material's container or has another father
  virtual HRESULT SetShader(VelBaseUnknown* iShader) = 0;

  /// @param[out] oFactor the factor by which textures are enlarged, without unit, 1 for their own size; untouched on
  ///             failure
  /// @return S_OK; E_FAIL when the material was given none
  virtual HRESULT GetScaleFactor(double& oFactor) = 0;

 protected:
  ~VelIRenderingMaterial() = default;
};

using VelIRenderingMaterial_var = VelVar<VelIRenderingMaterial>;

#endif  // PLATFORM_MATERIALS_VELIRENDERINGMATERIAL_H
