// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorComposite.cpp Looks at the root's type.
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorComposite.h"

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"

bool VelRshTranslatorComposite::ReadRootType(VelIRshParameter& iParameter, bool& oDerives) {
  const VelIRshShader_var hRoot = VelRshParameterServices::FindShaderRoot(iParameter);
  VelString type;
  if (!hRoot || FAILED(hRoot->GetType(type))) return false;
  oDerives = type.View().starts_with("MPM");
  return true;
}
