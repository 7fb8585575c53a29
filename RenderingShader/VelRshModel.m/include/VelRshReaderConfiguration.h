// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderConfiguration.h Reads which configuration belongs to a parameter or a shader.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERCONFIGURATION_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERCONFIGURATION_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/base/VelString.h"

/// The name of a configuration of VelRbaConfiguration, which is the type of the shader. Without state.
/// Thread: the application thread.
class VEL_RSH_MODEL_API VelRshReaderConfiguration {
 public:
  /// @return the configuration of the shader that owns the parameter; empty when there is none
  VelString operator()(const VelIRshParameter& iParameter) const;

  /// @return what the shader's private interface gives, else its type; empty when it cannot be read
  VelString operator()(const VelIRshShader& iShader) const;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERCONFIGURATION_H
