// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorDerived.cpp Finds the name under which a value is carried over.
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorDerived.h"

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorWalk.h"

bool VelRshTranslatorDerived::Propagate(VelIRshParameter& iParameter) {
  VelString name;
  if (FAILED(iParameter.GetName(name))) return false;
  const VelIRshShader_var hRoot = VelRshParameterServices::FindShaderRoot(iParameter);
  const VelIRshShader_var hParent = VelRshParameterServices::FindShaderParent(iParameter);
  if (!hRoot) return false;
  if (name == "default_sp_bump") name = "bump";
  return VelRshTranslatorWalk::CopyToConnected(iParameter, *hRoot, hParent.Get(), name);
}
