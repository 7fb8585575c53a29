// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices.cpp Climbs from parameters and shaders to the shaders above.
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"

#include "RenderingShader/VelRshModel.m/src/services/VelRshFather.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "RenderingShader/interfaces/VelIRshShaderPrivate.h"

namespace {

/// The private interface has the last word, also when it says "none".
template <class Private>
VelIRshShader_var FindParent(VelBaseUnknown& iObject) {
  const VelVar<Private> hPrivate(&iObject);
  if (!hPrivate) return VelIRshShader_var(VelRshFather(iObject));
  VelIRshShader_var hParent;
  hPrivate->GetParentShader(hParent);
  return hParent;
}

}  // namespace

VelIRshShader_var VelRshParameterServices::FindShaderParent(const VelIRshParameter& iParameter) {
  return FindParent<VelIRshParameterPrivate>(const_cast<VelIRshParameter&>(iParameter));
}

VelIRshShader_var VelRshParameterServices::FindShaderParent(const VelIRshShader& iShader) {
  return FindParent<VelIRshShaderPrivate>(const_cast<VelIRshShader&>(iShader));
}
