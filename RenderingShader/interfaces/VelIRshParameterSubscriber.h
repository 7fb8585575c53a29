// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRshParameterSubscriber.h A shader that hears what the parameters connected to it forward.
#ifndef RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERSUBSCRIBER_H
#define RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERSUBSCRIBER_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/events/VelEventName.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

class VelNotification;

VEL_RSH_INTERFACES_API extern const VelInterfaceId IID_VelIRshParameterSubscriber;

/// The receivers of a shader for the events of VelRshParameterPublisherEvents. A parameter subscribes the shader to
/// itself when it is connected to it.
///
/// Implemented by: VelRshShaderFeature, for start-up VelRmaShader.
/// Thread: the application thread. Re-entrancy: called inside the publisher's dispatch.
class VEL_RSH_INTERFACES_API VelIRshParameterSubscriber : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIRshParameterSubscriber);

  /// A parameter's value changed, or it forwards that a value beside it did.
  /// @param[in] iPublisher the parameter
  /// @param[in] ioNotification lives until the call returns
  virtual void OnParameterValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) = 0;

  /// A parameter's connection changed, or it forwards that a connection beside it did. As OnParameterValue.
  virtual void OnParameterConnection(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                     VelNotification* ioNotification) = 0;

 protected:
  ~VelIRshParameterSubscriber() = default;
};

using VelIRshParameterSubscriber_var = VelVar<VelIRshParameterSubscriber>;

#endif  // RENDERINGSHADER_INTERFACES_VELIRSHPARAMETERSUBSCRIBER_H
