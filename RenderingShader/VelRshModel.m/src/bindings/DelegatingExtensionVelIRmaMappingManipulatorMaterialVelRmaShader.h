// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file DelegatingExtensionVelIRmaMappingManipulatorMaterialVelRmaShader.h How a shader answers
/// VelIRmaMappingManipulatorMaterial: through its delegate.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIRMAMAPPINGMANIPULATORMATERIALVELRMASHADER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIRMAMAPPINGMANIPULATORMATERIALVELRMASHADER_H

#include "RenderingShader/VelRshModel.m/src/bindings/VelRshDelegatingExtension.h"
#include "platform/viewer/VelIRmaMappingManipulatorMaterial.h"

/// Gives the manipulation of the material's mapping, as the delegate of the shader's type knows it.
class DelegatingExtensionVelIRmaMappingManipulatorMaterialVelRmaShader final
    : public VelRshDelegatingExtension<VelIRmaMappingManipulatorMaterial> {
 public:
  using VelRshDelegatingExtension::VelRshDelegatingExtension;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return null when the delegate does not answer
  static VelBaseUnknown* Create(VelComponent& ioShader) {
    return MakeAround<DelegatingExtensionVelIRmaMappingManipulatorMaterialVelRmaShader>(ioShader);
  }
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIRMAMAPPINGMANIPULATORMATERIALVELRMASHADER_H
