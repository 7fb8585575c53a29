// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshShaderLink.h How a shader's delegate learns which shader it works for.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHSHADERLINK_H
#define RENDERINGSHADER_INTERFACES_VELIRSHSHADERLINK_H

#include "RenderingShader/interfaces/VelIRshShader.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshShaderLink;

/// Offered by extensions of a delegate's late type that want to read the shader.
///
/// Implemented by: other modules, for late types such as "BasicMaterial_ext".
/// Thread: the application thread. Re-entrancy: called while the shader makes its delegate.
class VEL_RSH_INTERFACES_API VelIRshShaderLink : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshShaderLink);

  /// @param[in] iShader the shader that owns the delegate: to be kept weakly, since the shader keeps the delegate
  /// @return S_OK; failures are ignored
  virtual HRESULT SetShader(VelIRshShader* iShader) = 0;

 protected:
  ~VelIRshShaderLink() = default;
};

using VelIRshShaderLink_var = VelVar<VelIRshShaderLink>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHSHADERLINK_H
