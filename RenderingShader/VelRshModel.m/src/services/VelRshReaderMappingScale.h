// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingScale.h Reads by how much a texture is enlarged, in u and in v.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGSCALE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGSCALE_H

#include "RenderingShader/VelRshModel.m/src/services/VelRshMappingReading.h"

/// Reads two scalars, and multiplies them by what the version of the material asks for. Decisions are told on the
/// channel "VelRshReaderMappingScale". It can be made once and called many times. Thread: the application thread.
class VelRshReaderMappingScale {
 public:
  VelRshReaderMappingScale() : trace_("VelRshReaderMappingScale") {}

  /// @param[in] iFallBack what is read where the configuration says nothing
  VelRshMappingPair operator()(const VelIRshShader& iShader, const VelRshMappingPair& iFallBack) const;

 private:
  VelRshMappingPair FindMultiplier(const VelIRshShader& iShader) const;
  VelRshMappingPair FindMultiplierOf417(const VelIRshShader& iShader, VelBaseUnknown& iMaterial,
                                        const VelRshMappingPair& iSize) const;
  VelRshMappingPair ReadSize(VelBaseUnknown* iMaterial) const;

  VelTraceHandle trace_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGSCALE_H
