// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderConfiguration.cpp Reads the type of the shader concerned.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderConfiguration.h"

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/interfaces/VelIRshShaderPrivate.h"

VelString VelRshReaderConfiguration::operator()(const VelIRshParameter& iParameter) const {
  const VelIRshShader_var hShader = VelRshParameterServices::FindShaderParent(iParameter);
  return hShader ? (*this)(*hShader) : VelString();
}

VelString VelRshReaderConfiguration::operator()(const VelIRshShader& iShader) const {
  auto& shader = const_cast<VelIRshShader&>(iShader);
  const VelIRshShaderPrivate_var hPrivate(&shader);
  if (hPrivate) return hPrivate->GetTypeName();
  VelString type;
  return SUCCEEDED(shader.GetType(type)) ? type : VelString();
}
