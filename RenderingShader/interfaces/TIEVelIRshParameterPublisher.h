// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshParameterPublisher.h The forwarder of VelIRshParameterPublisher.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERPUBLISHER_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERPUBLISHER_H

#include "RenderingShader/interfaces/VelIRshParameterPublisher.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshParameterPublisher final : public VelTie<VelIRshParameterPublisher> {
 public:
  using VelTie::VelTie;

  VelCallbackManager* GetCallbackManager() override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.GetCallbackManager(); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERPUBLISHER_H
