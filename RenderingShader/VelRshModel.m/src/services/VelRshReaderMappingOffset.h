// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingOffset.h Reads by how much a texture is moved, in u and in v.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGOFFSET_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGOFFSET_H

#include "RenderingShader/VelRshModel.m/src/services/VelRshMappingReading.h"

/// Reads two scalars. Decisions are told on the channel
/// "VelRshReaderMappingOffset". It can be made once and called many times. Thread: the application thread.
class VelRshReaderMappingOffset {
 public:
  VelRshReaderMappingOffset() : trace_("VelRshReaderMappingOffset") {}

  /// @param[in] iFallBack what is read where the configuration says nothing
  VelRshMappingPair operator()(const VelIRshShader& iShader, const VelRshMappingPair& iFallBack) const;

 private:
  VelTraceHandle trace_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGOFFSET_H
