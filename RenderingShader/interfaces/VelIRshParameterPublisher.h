// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshParameterPublisher.h The publisher side of a parameter.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERPUBLISHER_H
#define RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERPUBLISHER_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

class VelCallbackManager;

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshParameterPublisher;

/// Hands out the callback manager on which a parameter publishes the events of VelRshParameterPublisherEvents.
///
/// Implemented by: the parameters that publish, which are all but those of matrices, light profiles and sub-shaders.
/// Thread: the application thread. Re-entrancy: none.
class VEL_RSH_INTERFACES_API VelIRshParameterPublisher : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshParameterPublisher);

  /// @return the parameter's own, which lives until the parameter is closed; null when it is closed
  virtual VelCallbackManager* GetCallbackManager() = 0;

 protected:
  ~VelIRshParameterPublisher() = default;
};

using VelIRshParameterPublisher_var = VelVar<VelIRshParameterPublisher>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERPUBLISHER_H
