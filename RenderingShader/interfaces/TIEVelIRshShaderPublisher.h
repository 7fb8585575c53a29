// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshShaderPublisher.h The forwarder of VelIRshShaderPublisher.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERPUBLISHER_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERPUBLISHER_H

#include "RenderingShader/interfaces/VelIRshShaderPublisher.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshShaderPublisher final : public VelTie<VelIRshShaderPublisher> {
 public:
  using VelTie::VelTie;

  VelCallbackManager* GetCallbackManager() override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.GetCallbackManager(); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERPUBLISHER_H
