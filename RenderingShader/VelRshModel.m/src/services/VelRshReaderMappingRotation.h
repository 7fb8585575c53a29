// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderMappingRotation.h Reads by how much a texture is turned.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGROTATION_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGROTATION_H

#include "RenderingShader/VelRshModel.m/src/services/VelRshMappingReading.h"

/// Reads one scalar, the angle. Decisions are told on the channel "VelRshReaderMappingRotation". It can be made once
/// and called many times. Thread: the application thread.
class VelRshReaderMappingRotation {
 public:
  VelRshReaderMappingRotation() : trace_("VelRshReaderMappingRotation") {}

  /// @param[in] iFallBack what is read where the configuration says nothing
  /// @return the angle as the parameter or the configuration gives it, in radians
  double operator()(const VelIRshShader& iShader, double iFallBack) const;

 private:
  double ReadParameter(const VelIRshShader& iShader, const VelRshMappingSettings& iSettings, double iFallBack) const;
  double ReadDefault(const VelString& iText) const;

  VelTraceHandle trace_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_SERVICES_VELRSHREADERMAPPINGROTATION_H
