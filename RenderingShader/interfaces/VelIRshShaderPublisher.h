// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshShaderPublisher.h The publisher side of a shader.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHSHADERPUBLISHER_H
#define RENDERINGSHADER_INTERFACES_VELIRSHSHADERPUBLISHER_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

class VelCallbackManager;

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshShaderPublisher;

/// Hands out the callback manager on which a shader publishes the events of VelRshShaderPublisherEvents.
///
/// Implemented by: VelRshShaderFeature, for start-up VelRmaShader.
/// Thread: the application thread. Re-entrancy: none.
class VEL_RSH_INTERFACES_API VelIRshShaderPublisher : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshShaderPublisher);

  /// @return the shader's own, which lives until the shader is closed; null when it is closed
  virtual VelCallbackManager* GetCallbackManager() = 0;

 protected:
  ~VelIRshShaderPublisher() = default;
};

using VelIRshShaderPublisher_var = VelVar<VelIRshShaderPublisher>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHSHADERPUBLISHER_H
