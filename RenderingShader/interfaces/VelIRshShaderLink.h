// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshShaderLink.h How a shader's delegate learns which shader it works for.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHSHADERLINK_H
#define RENDERINGSHADER_INTERFACES_VELIRSHSHADERLINK_H

#include "RenderingShader/interfaces/VelIRshShader.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshShaderLink;

/// Offered by extensions of a delegate's late type that want to read the shader, or to listen to it. A late type has
/// one class that answers it. examples/shader_resources shows one.
///
/// Implemented by: other modules, for late types such as "BasicMaterial_ext".
/// Thread: the application thread. Re-entrancy: called once, while the shader makes its delegate. The shader may be
/// asked anything then, but a new one has no parameters yet.
class VEL_RSH_INTERFACES_API VelIRshShaderLink : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshShaderLink);

  /// @param[in] iShader the shader that owns the delegate, never null: to be kept weakly (VelBaseUnknown_WR), since the
  ///            shader keeps the delegate
  /// @return S_OK; failures are ignored
  virtual HRESULT SetShader(VelIRshShader* iShader) = 0;

 protected:
  ~VelIRshShaderLink() = default;
};

using VelIRshShaderLink_var = VelVar<VelIRshShaderLink>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHSHADERLINK_H
