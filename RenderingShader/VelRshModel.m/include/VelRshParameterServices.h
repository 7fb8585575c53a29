// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices.h Finds the way in the graph of shaders and parameters.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHPARAMETERSERVICES_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHPARAMETERSERVICES_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"

/// Services over shaders and parameters. Stateless; nothing throws.
///
/// Parameters and shaders are taken as const, since asking changes nothing of them; that interfaces count references is
/// no change.
/// Thread: the application thread.
class VEL_RSH_MODEL_API VelRshParameterServices {
 public:
  /// @return the shader that owns a parameter: what its private interface says, else its father; empty where there is
  ///         none
  static VelIRshShader_var FindShaderParent(const VelIRshParameter& iParameter);

  /// @return the shader above a shader: what its private interface says, else its father; empty where there is none, as
  ///         for the root shader of a material
  static VelIRshShader_var FindShaderParent(const VelIRshShader& iShader);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHPARAMETERSERVICES_H
