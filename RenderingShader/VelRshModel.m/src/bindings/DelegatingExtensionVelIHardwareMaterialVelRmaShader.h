// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file DelegatingExtensionVelIHardwareMaterialVelRmaShader.h How a shader answers VelIHardwareMaterial: through its
/// delegate.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIHARDWAREMATERIALVELRMASHADER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIHARDWAREMATERIALVELRMASHADER_H

#include "RenderingShader/VelRshModel.m/src/bindings/VelRshDelegatingExtension.h"
#include "platform/viewer/VelIHardwareMaterial.h"

/// Gives the material of the graphics hardware, as the delegate of the shader's type knows it.
class DelegatingExtensionVelIHardwareMaterialVelRmaShader final
    : public VelRshDelegatingExtension<VelIHardwareMaterial> {
 public:
  using VelRshDelegatingExtension::VelRshDelegatingExtension;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return null when the delegate does not answer
  static VelBaseUnknown* Create(VelComponent& ioShader) {
    return MakeAround<DelegatingExtensionVelIHardwareMaterialVelRmaShader>(ioShader);
  }
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIHARDWAREMATERIALVELRMASHADER_H
