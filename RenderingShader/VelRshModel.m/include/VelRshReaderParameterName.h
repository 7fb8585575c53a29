// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterName.h Reads the name of a parameter.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERNAME_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERNAME_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/base/VelString.h"

/// Without state. Thread: the application thread.
class VEL_RSH_MODEL_API VelRshReaderParameterName {
 public:
  /// @return the name; empty when it cannot be read
  VelString operator()(const VelIRshParameter& iParameter) const;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERNAME_H
