// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRmaShaderFactory.h The forwarder of VelIRmaShaderFactory.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRMASHADERFACTORY_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRMASHADERFACTORY_H

#include "RenderingShader/interfaces/VelIRmaShaderFactory.h"
#include "RenderingShader/interfaces/VelRshShaderFactoryTie.h"

template <class Implementation>
class TIEVelIRmaShaderFactory final : public VelRshShaderFactoryTie<VelIRmaShaderFactory, Implementation> {
 public:
  using VelRshShaderFactoryTie<VelIRmaShaderFactory, Implementation>::VelRshShaderFactoryTie;
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRMASHADERFACTORY_H
