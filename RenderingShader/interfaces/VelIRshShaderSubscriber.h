// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshShaderSubscriber.h A parameter that hears what its shader publishes.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHSHADERSUBSCRIBER_H
#define RENDERINGSHADER_INTERFACES_VELIRSHSHADERSUBSCRIBER_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/events/VelEventName.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

class VelNotification;

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshShaderSubscriber;

/// The receivers of a parameter for the events of VelRshShaderPublisherEvents. A shader subscribes its parameters to
/// itself.
///
/// Implemented by: the parameters of booleans, colours, integers, scalars, texts, textures and vectors.
/// Thread: the application thread. Re-entrancy: called inside the publisher's dispatch.
class VEL_RSH_INTERFACES_API VelIRshShaderSubscriber : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshShaderSubscriber);

  /// The value of a parameter of the shader changed, or of one beside a parameter to which the shader is connected.
  /// @param[in] iPublisher the shader
  /// @param[in] ioNotification lives until the call returns
  virtual void OnShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) = 0;

  /// The same of a connection. As OnShaderValue.
  virtual void OnShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) = 0;

 protected:
  ~VelIRshShaderSubscriber() = default;
};

using VelIRshShaderSubscriber_var = VelVar<VelIRshShaderSubscriber>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHSHADERSUBSCRIBER_H
