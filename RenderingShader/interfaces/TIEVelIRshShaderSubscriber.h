// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshShaderSubscriber.h The forwarder of VelIRshShaderSubscriber.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERSUBSCRIBER_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERSUBSCRIBER_H

#include "RenderingShader/interfaces/VelIRshShaderSubscriber.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshShaderSubscriber final : public VelTie<VelIRshShaderSubscriber> {
 public:
  using VelTie::VelTie;

  void OnShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) override {
    Forward<Implementation>(
        [&](Implementation& ioParameter) { ioParameter.OnShaderValue(iEvent, iPublisher, ioNotification); });
  }
  void OnShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher, VelNotification* ioNotification) override {
    Forward<Implementation>(
        [&](Implementation& ioParameter) { ioParameter.OnShaderConnection(iEvent, iPublisher, ioNotification); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERSUBSCRIBER_H
