// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file DelegatingExtensionVelIOpenGLShaderMaterialVelRmaShader.h How a shader answers VelIOpenGLShaderMaterial:
/// through its delegate.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIOPENGLSHADERMATERIALVELRMASHADER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIOPENGLSHADERMATERIALVELRMASHADER_H

#include "RenderingShader/VelRshModel.m/src/bindings/VelRshDelegatingExtension.h"
#include "platform/viewer/VelIOpenGLShaderMaterial.h"

/// Gives the material of the OpenGL renderer, as the delegate of the shader's type knows it.
class DelegatingExtensionVelIOpenGLShaderMaterialVelRmaShader final
    : public VelRshDelegatingExtension<VelIOpenGLShaderMaterial> {
 public:
  using VelRshDelegatingExtension::VelRshDelegatingExtension;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return null when the delegate does not answer
  static VelBaseUnknown* Create(VelComponent& ioShader) {
    return MakeAround<DelegatingExtensionVelIOpenGLShaderMaterialVelRmaShader>(ioShader);
  }
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIOPENGLSHADERMATERIALVELRMASHADER_H
