// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshShaderSupport.h The forwarder of VelIRshShaderSupport.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERSUPPORT_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERSUPPORT_H

#include "RenderingShader/interfaces/VelIRshShaderSupport.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshShaderSupport final : public VelTie<VelIRshShaderSupport> {
 public:
  using VelTie::VelTie;
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERSUPPORT_H
