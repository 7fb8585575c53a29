// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshParameterSubscriber.h The forwarder of VelIRshParameterSubscriber.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERSUBSCRIBER_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERSUBSCRIBER_H

#include "RenderingShader/interfaces/VelIRshParameterSubscriber.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshParameterSubscriber final : public VelTie<VelIRshParameterSubscriber> {
 public:
  using VelTie::VelTie;

  void OnParameterValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) override {
    Forward<Implementation>(
        [&](Implementation& ioShader) { ioShader.OnParameterValue(iEvent, iPublisher, ioNotification); });
  }
  void OnParameterConnection(VelEventName iEvent, VelBaseUnknown* iPublisher,
                             VelNotification* ioNotification) override {
    Forward<Implementation>(
        [&](Implementation& ioShader) { ioShader.OnParameterConnection(iEvent, iPublisher, ioNotification); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERSUBSCRIBER_H
