// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterLightProfile.h A parameter that holds a light profile.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERLIGHTPROFILE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERLIGHTPROFILE_H

#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"

/// Implements a feature of start-up VelRmaLightProfile. It tells nobody of a new value, and brings the
/// appearance up to date itself.
class VelRshParameterLightProfile final : public VelRshParameterBase {
 public:
  using VelRshParameterBase::GetValue;
  using VelRshParameterBase::SetValue;
  using VelRshParameterBase::VelRshParameterBase;
  ~VelRshParameterLightProfile() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT SetValue(VelBaseUnknown* iDocument);
  HRESULT GetValue(VelBaseUnknown** oDocument);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERLIGHTPROFILE_H
