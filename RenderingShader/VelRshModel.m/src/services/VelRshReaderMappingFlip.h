// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingFlip.h Reads by how much a texture is mirrored: -1 or 1 in u and in v.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGFLIP_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGFLIP_H

#include "RenderingShader/VelRshModel.m/src/services/VelRshMappingReading.h"

/// Reads -1 for a component whose boolean parameter is true, else 1. Decisions are told on the channel
/// "VelRshReaderMappingFlip". It can be made once and called many times. Thread: the application thread.
class VelRshReaderMappingFlip {
 public:
  VelRshReaderMappingFlip() : trace_("VelRshReaderMappingFlip") {}

  /// @param[in] iFallBack what is read where the configuration says nothing
  VelRshMappingPair operator()(const VelIRshShader& iShader, const VelRshMappingPair& iFallBack) const;

 private:
  VelTraceHandle trace_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGFLIP_H
