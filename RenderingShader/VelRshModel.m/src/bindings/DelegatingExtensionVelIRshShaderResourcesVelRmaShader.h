// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file DelegatingExtensionVelIRshShaderResourcesVelRmaShader.h How a shader answers VelIRshShaderResources: through
/// its delegate.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIRSHSHADERRESOURCESVELRMASHADER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIRSHSHADERRESOURCESVELRMASHADER_H

#include "RenderingShader/VelRshModel.m/src/bindings/VelRshDelegatingExtension.h"
#include "RenderingShader/interfaces/VelIRshShaderResources.h"

/// Gives the texts of its type, as the delegate of the shader's type knows it.
class DelegatingExtensionVelIRshShaderResourcesVelRmaShader final
    : public VelRshDelegatingExtension<VelIRshShaderResources> {
 public:
  using VelRshDelegatingExtension::VelRshDelegatingExtension;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return null when the delegate does not answer
  static VelBaseUnknown* Create(VelComponent& ioShader) {
    return MakeAround<DelegatingExtensionVelIRshShaderResourcesVelRmaShader>(ioShader);
  }

  HRESULT GetText(const VelString& iCategory, const VelString& iName, VelUnicodeString& oText) override {
    VelIRshShaderResources* real = RealInterface();
    return real != nullptr ? real->GetText(iCategory, iName, oText) : E_FAIL;
  }
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIRSHSHADERRESOURCESVELRMASHADER_H
