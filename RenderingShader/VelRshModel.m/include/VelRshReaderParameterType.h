// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterType.h Reads the type of a parameter's value as an enumerator.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERTYPE_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERTYPE_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"

/// Without state. Thread: the application thread.
class VEL_RSH_MODEL_API VelRshReaderParameterType {
 public:
  /// By the start-up of the parameter. The values are those that hosts store.
  enum Type : int {
    Unknown = 0,  ///< It cannot be read, or is another one: matrices and light profiles are not told apart here.
    Void = 1,     ///< A sub-shader.
    Boolean = 2,
    Color = 3,
    Scalar = 4,
    Integer = 5,
    String = 6,
    Vector = 7,
    Texture = 8,
  };

  Type operator()(const VelIRshParameter& iParameter) const;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERTYPE_H
