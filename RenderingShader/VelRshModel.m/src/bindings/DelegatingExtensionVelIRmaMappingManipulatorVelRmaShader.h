// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file DelegatingExtensionVelIRmaMappingManipulatorVelRmaShader.h How a shader answers VelIRmaMappingManipulator:
/// through its delegate.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIRMAMAPPINGMANIPULATORVELRMASHADER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIRMAMAPPINGMANIPULATORVELRMASHADER_H

#include "RenderingShader/VelRshModel.m/src/bindings/VelRshDelegatingExtension.h"
#include "platform/viewer/VelIRmaMappingManipulator.h"

/// Gives the manipulation of the mapping, as the delegate of the shader's type knows it.
class DelegatingExtensionVelIRmaMappingManipulatorVelRmaShader final
    : public VelRshDelegatingExtension<VelIRmaMappingManipulator> {
 public:
  using VelRshDelegatingExtension::VelRshDelegatingExtension;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// @return null when the delegate does not answer
  static VelBaseUnknown* Create(VelComponent& ioShader) {
    return MakeAround<DelegatingExtensionVelIRmaMappingManipulatorVelRmaShader>(ioShader);
  }
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_DELEGATINGEXTENSIONVELIRMAMAPPINGMANIPULATORVELRMASHADER_H
