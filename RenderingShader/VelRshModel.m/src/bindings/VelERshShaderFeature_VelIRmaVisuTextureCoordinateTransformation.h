// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation.h What a viewer learns of a shader's texture
/// mapping.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELERSHSHADERFEATURE_VELIRMAVISUTEXTURECOORDINATETRANSFORMATION_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELERSHSHADERFEATURE_VELIRMAVISUTEXTURECOORDINATETRANSFORMATION_H

#include <cstdint>

#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "platform/base/HResult.h"
#include "platform/objectmodeler/VelImplementation.h"
#include "platform/viewer/Vel3x3Matrix.h"

/// Answers VelIRmaVisuTextureCoordinateTransformation for shaders, from their own parameters and the configuration of
/// their type. Without state: every call reads afresh.
class VelERshShaderFeature_VelIRmaVisuTextureCoordinateTransformation final : public VelImplementation {
 public:
  using VelImplementation::VelImplementation;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  HRESULT GetMappingBehavior(std::uint32_t& oBehavior);
  HRESULT GetProjectorFunction(std::uint32_t& oFunction);
  HRESULT GetTransformation(Vel3x3Matrix& oTransformation);
  HRESULT HasResourceImage(bool& oHasImage);

 private:
  /// What the first parameter with a tag holds.
  struct Tagged {
    bool isThere = false;
    bool isValuated = false;
    std::int32_t value = 0;
  };

  /// @return S_OK, also when there is none; E_NOINTERFACE when this is no shader or the parameter has no attributes;
  ///         E_UNEXPECTED when its value is no integer
  HRESULT ReadTagged(VelIRshParameterPrivate::Tag iTag, Tagged& oTagged);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELERSHSHADERFEATURE_VELIRMAVISUTEXTURECOORDINATETRANSFORMATION_H
