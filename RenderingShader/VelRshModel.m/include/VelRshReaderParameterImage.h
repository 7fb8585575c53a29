// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterImage.h Reads the image that feeds a parameter.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERIMAGE_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERIMAGE_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterFilepath.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/trace/VelTraceHandle.h"

class VelPixelImage;

/// Looks first in the appearance cache of the parameter's material, then loads the file that
/// VelRshReaderParameterFilepath finds.
///
/// What was found is told on the channel "VelRshReaderParameterImage", what it took on
/// "VelRshReaderParameterImagePerformanceTime". It can be made once and called many times.
/// Thread: the application thread. Re-entrancy: calls the host's image services.
class VEL_RSH_MODEL_API VelRshReaderParameterImage {
 public:
  VelRshReaderParameterImage();
  /// A copy opens the same channels anew; to assign changes nothing, since all readers are alike.
  VelRshReaderParameterImage(const VelRshReaderParameterImage&) : VelRshReaderParameterImage() {}
  VelRshReaderParameterImage& operator=(const VelRshReaderParameterImage&) noexcept { return *this; }
  ~VelRshReaderParameterImage() = default;

  /// @return the image with one reference, which the caller releases; null where there is none, which is a warning on
  ///         the channel
  VelPixelImage* operator()(const VelIRshParameter& iParameter) const;

 private:
  VelTraceHandle trace_;
  VelTraceHandle performance_;
  VelRshReaderParameterFilepath filepath_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERIMAGE_H
