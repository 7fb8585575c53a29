// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterFilepath.h Reads the path of the image file that feeds a parameter.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERFILEPATH_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERFILEPATH_H

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/trace/VelTraceHandle.h"

/// Looks first in the appearance cache of the parameter's material, then at its value: a text is a path, a texture is
/// projected to a file, which is converted where the renderer cannot read it and rasterised where it is an SVG file.
///
/// What was found is told on the channel "VelRshReaderParameterFilepath", what it took on
/// "VelRshReaderParameterFilepathPerformanceTime". It can be made once and called many times.
/// Thread: the application thread. Re-entrancy: calls the host's image services.
class VEL_RSH_MODEL_API VelRshReaderParameterFilepath {
 public:
  VelRshReaderParameterFilepath();
  /// A copy opens the same channels anew; to assign changes nothing, since all readers are alike.
  VelRshReaderParameterFilepath(const VelRshReaderParameterFilepath&) : VelRshReaderParameterFilepath() {}
  VelRshReaderParameterFilepath& operator=(const VelRshReaderParameterFilepath&) noexcept { return *this; }
  ~VelRshReaderParameterFilepath() = default;

  /// @return the path; empty where there is none, which is a warning on the channel
  VelUnicodeString operator()(const VelIRshParameter& iParameter) const;

 private:
  VelUnicodeString ReadFromCache(const VelIRshParameter& iParameter, const VelString& iName) const;
  VelUnicodeString ReadFromValue(const VelIRshParameter& iParameter, const VelString& iName) const;
  VelUnicodeString ReadFromText(const VelIRshParameter& iParameter, const VelString& iName) const;
  VelUnicodeString ReadFromTexture(const VelIRshParameter& iParameter, const VelString& iName) const;
  VelUnicodeString Rasterise(const VelIRshParameter& iParameter, const VelString& iName, VelUnicodeString iPath) const;

  /// Tells where a path was found; an empty one is an error of whoever claimed to have it.
  void Report(const char* iMessage, unsigned iLine, const VelUnicodeString& iPath, const VelString& iName) const;

  VelTraceHandle trace_;
  VelTraceHandle performance_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERFILEPATH_H
