// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshShaderPrivate.h What a shader tells the parameters and services of the component.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHSHADERPRIVATE_H
#define RENDERINGSHADER_INTERFACES_VELIRSHSHADERPRIVATE_H

#include "RenderingShader/interfaces/VelIRshShader.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshShaderPrivate;

/// The private side of a shader.
///
/// Implemented by: VelRshShaderFeature, for start-up VelRmaShader.
/// Thread: the application thread. Re-entrancy: none.
class VEL_RSH_INTERFACES_API VelIRshShaderPrivate : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshShaderPrivate);

  /// @return the shader's type, which names its configuration; empty when it cannot be read
  virtual VelString GetTypeName() = 0;

  /// Takes note of the shader whose parameter has just been connected to this one. Without effect.
  /// @param[in] iShader what the parameter's private interface gives as its parent shader; may be null
  /// @return S_FALSE, always; E_FAIL when the shader is closed
  virtual HRESULT NoteConnectionFrom(VelIRshShader* iShader) = 0;

  /// @param[out] oShader the shader above: the father, or the shader that owns the parameter which is the father. Empty
  ///             below a rendering material, without a father, and below anything else; untouched when the shader is
  ///             closed.
  virtual void GetParentShader(VelIRshShader_var& oShader) = 0;

 protected:
  ~VelIRshShaderPrivate() = default;
};

using VelIRshShaderPrivate_var = VelVar<VelIRshShaderPrivate>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHSHADERPRIVATE_H
