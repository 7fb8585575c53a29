// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterCollection.h Reads the parameters of a shader, and picks among them.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERCOLLECTION_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERCOLLECTION_H

#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "RenderingShader/interfaces/VelIRshShader.h"

/// Without state. Thread: the application thread.
class VEL_RSH_MODEL_API VelRshReaderParameterCollection {
 public:
  using Parameters = std::vector<VelIRshParameter_var>;

  /// @return the parameters of a shader in order, without the features of its list that are none; empty when they
  ///         cannot be listed
  Parameters operator()(const VelIRshShader& iShader) const;

  /// @return in order, the parameters whose private interface confirms the tag
  Parameters operator()(const Parameters& iParameters, VelIRshParameterPrivate::Tag iTag) const;

  /// @param[in] iName compared byte for byte; null finds nothing
  /// @return the first parameter of that name; empty handles and unreadable names are passed over
  VelIRshParameter_var operator()(const Parameters& iParameters, const char* iName) const;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERCOLLECTION_H
