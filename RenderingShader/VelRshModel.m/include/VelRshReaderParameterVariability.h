// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterVariability.h Tells whether a parameter varies over the surface.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERVARIABILITY_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERVARIABILITY_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"

/// Without state. Thread: the application thread.
class VEL_RSH_MODEL_API VelRshReaderParameterVariability {
 public:
  enum Type : int {
    Uniform = 1,  ///< No image drives the parameter.
    Varying = 2,  ///< The parameter answers VelIRmaVisuResourceImage, with an image.
  };

  Type operator()(const VelIRshParameter& iParameter) const;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERVARIABILITY_H
