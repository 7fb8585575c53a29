// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingOperator.h Reads how a texture is projected.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGOPERATOR_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGOPERATOR_H

#include <cstdint>

#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/trace/VelTraceHandle.h"

/// Reads the operator that a shader's parameter tagged "projector-function" holds. It can be made once and called many
/// times. Thread: the application thread.
class VelRshReaderMappingOperator {
 public:
  VelRshReaderMappingOperator() : trace_("VelRshReaderMappingOperator") {}

  /// @return the operator; 6 where no such parameter has a value
  std::int32_t operator()(const VelIRshShader& iShader) const;

 private:
  VelTraceHandle trace_;  ///< It has nothing to tell yet; its channel can be switched all the same.
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGOPERATOR_H
