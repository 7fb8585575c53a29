// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaVisuTextureCoordinateTransformation.h How a shader places textures on geometry.
#ifndef PLATFORM_VIEWER_VELIRMAVISUTEXTURECOORDINATETRANSFORMATION_H
#define PLATFORM_VIEWER_VELIRMAVISUTEXTURECOORDINATETRANSFORMATION_H

#include <cstdint>

#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"
#include "platform/viewer/Vel3x3Matrix.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIRmaVisuTextureCoordinateTransformation;

/// The texture mapping of a shader, for a viewer that does not know the shader's type. Every value is read afresh with
/// each call.
///
/// Implemented by: an extension of the shaders' features.
/// Thread: the application thread. Re-entrancy: none.
class VEL_PLATFORM_API VelIRmaVisuTextureCoordinateTransformation : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRmaVisuTextureCoordinateTransformation);

  /// @param[out] oBehavior the number of the mapping behaviour; 0 when no parameter of the shader tells it, 1 when the
  ///             one that does holds no value; untouched on failure
  /// @return S_OK; E_NOINTERFACE when the object is no shader, or the parameter no feature with attributes;
  ///         E_UNEXPECTED when the parameter is of no integer kind
  virtual HRESULT GetMappingBehavior(std::uint32_t& oBehavior) = 0;

  /// @param[out] oFunction the number of the function that projects the texture, 1 to 5; 0 when no parameter of the
  ///             shader tells it, or it holds no value or one that the viewer does not know; untouched on failure
  /// @return S_OK; E_NOINTERFACE when the object is no shader, or the parameter no feature with attributes;
  ///         E_UNEXPECTED when the parameter is of no integer kind
  virtual HRESULT GetProjectorFunction(std::uint32_t& oFunction) = 0;

  /// @param[out] oTransformation what texture coordinates are multiplied with; has infinite figures for a scale or a
  ///             ratio of 0; untouched on failure
  /// @return S_OK; E_NOINTERFACE when the object is no shader
  virtual HRESULT GetTransformation(Vel3x3Matrix& oTransformation) = 0;

  /// @param[out] oHasImage true when a parameter of the shader answers VelIRmaVisuResourceImage; untouched on failure
  /// @return S_OK; E_NOINTERFACE when the object is no shader
  virtual HRESULT HasResourceImage(bool& oHasImage) = 0;

 protected:
  ~VelIRmaVisuTextureCoordinateTransformation() = default;
};

using VelIRmaVisuTextureCoordinateTransformation_var = VelVar<VelIRmaVisuTextureCoordinateTransformation>;

#endif  // PLATFORM_VIEWER_VELIRMAVISUTEXTURECOORDINATETRANSFORMATION_H
