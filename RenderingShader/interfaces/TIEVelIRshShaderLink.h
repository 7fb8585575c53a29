// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshShaderLink.h The forwarder of VelIRshShaderLink.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERLINK_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERLINK_H

#include "RenderingShader/interfaces/VelIRshShaderLink.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshShaderLink final : public VelTie<VelIRshShaderLink> {
 public:
  using VelTie::VelTie;

  HRESULT SetShader(VelIRshShader* iShader) override {
    return Forward<Implementation>([&](Implementation& ioDelegate) { return ioDelegate.SetShader(iShader); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERLINK_H
