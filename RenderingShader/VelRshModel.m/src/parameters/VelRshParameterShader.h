// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterShader.h A parameter whose value is a sub-shader.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERSHADER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERSHADER_H

#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"

/// Implements a feature of start-up VelRmaVoid: it has no value but the shader that is connected to it.
class VelRshParameterShader final : public VelRshParameterBase {
 public:
  using VelRshParameterBase::VelRshParameterBase;
  ~VelRshParameterShader() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERSHADER_H
