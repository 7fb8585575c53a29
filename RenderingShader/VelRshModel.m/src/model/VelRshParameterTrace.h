// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterTrace.h Tells which parameter is concerned.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHPARAMETERTRACE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHPARAMETERTRACE_H

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/trace/VelTraceHandle.h"

/// The line that names a parameter, its type and the type of its shader, as an information.
class VelRshParameterTrace {
 public:
  /// On a channel of the caller's, such as a parameter's own.
  /// @param[in] iPrefix stands in front of the line; null for none
  /// @param[in] iParameter null is told as well, without names
  static void Print(const VelTraceHandle& iTrace, const char* iPrefix, VelIRshParameter* iParameter);

  /// On the channel "VelRshParameter", which is opened for this line.
  static void Print(const char* iPrefix, VelIRshParameter* iParameter);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHPARAMETERTRACE_H
