// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaGraphWalk.h Finds every shader and every parameter below a material.
#ifndef HOST_REFRESH_VELRMAGRAPHWALK_H
#define HOST_REFRESH_VELRMAGRAPHWALK_H

#include <vector>

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"

/// What stands below a material: its shader, the nodes of a shader and what its parameters are connected to, each once,
/// however deep or cyclic the graph is.
struct VelRmaGraphWalk {
  std::vector<VelIRshShader_var> shaders;
  std::vector<VelIRshParameter_var> parameters;  ///< Shader by shader, in their order.

  /// @param[in] iMaterial a rendering material; without a shader nothing stands below it
  static VelRmaGraphWalk Of(VelBaseUnknown& iMaterial);
};

#endif  // HOST_REFRESH_VELRMAGRAPHWALK_H
