// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIExCoatingFactory.h The interface by which the shader manager finds this module.
#ifndef EXAMPLES_PLUGIN_FACTORY_MODULE_VELIEXCOATINGFACTORY_H
#define EXAMPLES_PLUGIN_FACTORY_MODULE_VELIEXCOATINGFACTORY_H

#include "RenderingShader/interfaces/VelIRshShaderFactory.h"

extern const VelInterfaceId IID_VelIExCoatingFactory;

/// Adds nothing to its base but a name, since one class answers an interface of the manager. Nobody outside of the
/// module uses it, so it is not exported.
///
/// Implemented by: VelExCoatingFactory, for late type "VelRshShaderManager".
/// Thread: the application thread. Re-entrancy: none.
class VelIExCoatingFactory : public VelIRshShaderFactory {
 public:
  VEL_INTERFACE(VelIExCoatingFactory);

 protected:
  ~VelIExCoatingFactory() = default;
};

#endif  // EXAMPLES_PLUGIN_FACTORY_MODULE_VELIEXCOATINGFACTORY_H
