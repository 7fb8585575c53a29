// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterTexture.h A parameter that holds an image document.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERTEXTURE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERTEXTURE_H

#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"

/// Implements a feature of start-up VelRmaTexture.
class VelRshParameterTexture final : public VelRshParameterBase {
 public:
  using VelRshParameterBase::GetValue;
  using VelRshParameterBase::SetValue;
  using VelRshParameterBase::VelRshParameterBase;
  ~VelRshParameterTexture() override;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT SetValue(VelBaseUnknown* iDocument);
  HRESULT GetValue(VelBaseUnknown** oDocument);
  HRESULT IsTexture() { return S_OK; }

 private:
  void Publish(const VelBaseUnknown_var& iPrevious, const VelBaseUnknown_var& iNext);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPARAMETERTEXTURE_H
