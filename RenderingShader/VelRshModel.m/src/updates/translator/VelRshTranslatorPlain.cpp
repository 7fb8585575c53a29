// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorPlain.cpp Looks whether the parameter sits on the root.
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorPlain.h"

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorWalk.h"

bool VelRshTranslatorPlain::Propagate(VelIRshParameter& iParameter) {
  VelString name;
  if (FAILED(iParameter.GetName(name))) return false;
  const VelIRshShader_var hRoot = VelRshParameterServices::FindShaderRoot(iParameter);
  const VelIRshShader_var hParent = VelRshParameterServices::FindShaderParent(iParameter);
  if (!hRoot) return false;
  if (!hRoot->IsEqual(hParent.Get())) return true;
  return VelRshTranslatorWalk::CopyToConnected(iParameter, *hRoot, hParent.Get(), name);
}
