// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshShaderSupport.h Marks a feature that carries shaders.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHSHADERSUPPORT_H
#define RENDERINGSHADER_INTERFACES_VELIRSHSHADERSUPPORT_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshShaderSupport;

/// A feature above shaders that supports them. Without operations: a parameter keeps the nearest one above it.
///
/// Implemented by: hosts.
/// Thread: the application thread.
class VEL_RSH_INTERFACES_API VelIRshShaderSupport : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshShaderSupport);

 protected:
  ~VelIRshShaderSupport() = default;
};

using VelIRshShaderSupport_var = VelVar<VelIRshShaderSupport>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHSHADERSUPPORT_H
