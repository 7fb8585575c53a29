// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingRatio.h Reads the proportions of a texture, in u and in v.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGRATIO_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGRATIO_H

#include "RenderingShader/VelRshModel.m/src/services/VelRshMappingReading.h"

/// Reads two scalars. Decisions are told on the channel
/// "VelRshReaderMappingRatio". It can be made once and called many times. Thread: the application thread.
class VelRshReaderMappingRatio {
 public:
  VelRshReaderMappingRatio() : trace_("VelRshReaderMappingRatio") {}

  /// @param[in] iFallBack what is read where the configuration says nothing
  VelRshMappingPair operator()(const VelIRshShader& iShader, const VelRshMappingPair& iFallBack) const;

 private:
  VelTraceHandle trace_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGRATIO_H
