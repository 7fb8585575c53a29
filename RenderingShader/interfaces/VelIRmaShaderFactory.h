// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaShaderFactory.h Contributes the shader types of the host itself.
#ifndef RENDERINGSHADER_INTERFACES_VELIRMASHADERFACTORY_H
#define RENDERINGSHADER_INTERFACES_VELIRMASHADERFACTORY_H

#include "RenderingShader/interfaces/VelIRshShaderFactory.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRmaShaderFactory;

/// The factory of the host: the manager asks it before all others, so that it owns every type that it lists.
///
/// Implemented by: the host, for late type "VelRshShaderManager".
/// Thread: the application thread. Re-entrancy: must not call the manager.
class VEL_RSH_INTERFACES_API VelIRmaShaderFactory : public VelIRshShaderFactory {
 public:
  VEL_INTERFACE(VelIRmaShaderFactory);

 protected:
  ~VelIRmaShaderFactory() = default;
};

using VelIRmaShaderFactory_var = VelVar<VelIRmaShaderFactory>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRMASHADERFACTORY_H
