// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshShaderFactory.h The forwarder of VelIRshShaderFactory.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERFACTORY_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERFACTORY_H

#include "RenderingShader/interfaces/VelIRshShaderFactory.h"
#include "RenderingShader/interfaces/VelRshShaderFactoryTie.h"

template <class Implementation>
class TIEVelIRshShaderFactory final : public VelRshShaderFactoryTie<VelIRshShaderFactory, Implementation> {
 public:
  using VelRshShaderFactoryTie<VelIRshShaderFactory, Implementation>::VelRshShaderFactoryTie;
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADERFACTORY_H
