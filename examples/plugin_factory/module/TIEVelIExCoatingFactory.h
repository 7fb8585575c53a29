// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIExCoatingFactory.h The forwarder of VelIExCoatingFactory.
#ifndef EXAMPLES_PLUGIN_FACTORY_MODULE_TIEVELIEXCOATINGFACTORY_H
#define EXAMPLES_PLUGIN_FACTORY_MODULE_TIEVELIEXCOATINGFACTORY_H

#include "RenderingShader/interfaces/VelRshShaderFactoryTie.h"
#include "VelIExCoatingFactory.h"

template <class Implementation>
class TIEVelIExCoatingFactory final : public VelRshShaderFactoryTie<VelIExCoatingFactory, Implementation> {
 public:
  using VelRshShaderFactoryTie<VelIExCoatingFactory, Implementation>::VelRshShaderFactoryTie;
};

#endif  // EXAMPLES_PLUGIN_FACTORY_MODULE_TIEVELIEXCOATINGFACTORY_H
