// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterMatrix.h A parameter that holds a matrix.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERMATRIX_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERMATRIX_H

#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"

/// Implements a feature of start-up VelRmaMatrix: 16 floats, in the order in which they are stored. It tells nobody of
/// a new value, and brings the appearance up to date itself.
class VelRshParameterMatrix final : public VelRshParameterBase {
 public:
  using VelRshParameterBase::GetValue;
  using VelRshParameterBase::SetValue;
  using VelRshParameterBase::VelRshParameterBase;
  ~VelRshParameterMatrix() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT SetValue(VelRshValueSource iValue);
  HRESULT GetValue(VelRshValueTarget oValue);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERMATRIX_H
