// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterServices.cpp Climbs from parameters and shaders to what is above them, and finds what is
/// connected.
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"

#include "RenderingShader/VelRshModel.m/include/VelRshReaderConfiguration.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshComponentList.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshFather.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "RenderingShader/interfaces/VelIRshShaderPrivate.h"
#include "platform/configuration/VelRbaConfiguration.h"

namespace {

struct Slot {
  const char* text;
  unsigned int number;
};

constexpr Slot slots[] = {
#define VEL_RSH_SLOT(Text, Number) {Text, Number},
#include "RenderingShader/VelRshModel.m/src/services/VelRshSlots.def"
#undef VEL_RSH_SLOT
};

/// The private interface has the last word, also when it says "none".
template <class Private>
VelIRshShader_var FindParent(VelBaseUnknown& iObject) {
  const VelVar<Private> hPrivate(&iObject);
  if (!hPrivate) return VelIRshShader_var(VelRshFather(iObject));
  VelIRshShader_var hParent;
  hPrivate->GetParentShader(hParent);
  return hParent;
}

/// Climbs from a shader, which may itself be a material. A shader at the top says that nothing is above it although it
/// stands below a material: there the father is asked.
VelIRenderingMaterial_var FindMaterialFrom(VelIRshShader_var iShader) {
  while (iShader) {
    VelIRenderingMaterial_var hMaterial(iShader);
    if (hMaterial) return hMaterial;
    VelIRshShader_var hParent = VelRshParameterServices::FindShaderParent(*iShader);
    if (!hParent) return VelIRenderingMaterial_var(VelRshFather(*iShader));
    iShader = std::move(hParent);
  }
  return nullptr;
}

VelIRshShader_var FindTopmost(VelIRshShader_var iShader) {
  VelIRshShader_var hTop = std::move(iShader);
  while (hTop) {
    VelIRshShader_var hParent = VelRshParameterServices::FindShaderParent(*hTop);
    if (!hParent) break;
    hTop = std::move(hParent);
  }
  return hTop;
}

/// The climb goes on above a material, which it only does not take for a shader.
VelIRshShader_var FindHighestShaderAbove(VelBaseUnknown& iObject) {
  VelIRshShader_var hHighest;
  for (VelISpecObject_var hFather = VelRshFather(iObject); hFather; hFather = VelRshFather(*hFather)) {
    VelIRshShader_var hShader(hFather);
    if (hShader && !VelIRenderingMaterial_var(hFather)) hHighest = std::move(hShader);
  }
  return hHighest;
}

}  // namespace

unsigned int VelRshParameterServices::ComputeParameterSlot(const VelIRshParameter& iParameter) {
  const VelString configuration = VelRshReaderConfiguration()(iParameter);
  const VelString key = VelRshReaderParameterName()(iParameter) + ".SlotIdentifier";
  VelString text;
  if (FAILED(VelRbaConfiguration::GetHierarchicalValue(configuration, key, text))) return 0;
  for (const Slot& slot : slots) {
    if (text == slot.text) return slot.number;
  }
  return 0;
}

VelIRshShader_var VelRshParameterServices::FindShaderParent(const VelIRshParameter& iParameter) {
  return FindParent<VelIRshParameterPrivate>(const_cast<VelIRshParameter&>(iParameter));
}

VelIRshShader_var VelRshParameterServices::FindShaderParent(const VelIRshShader& iShader) {
  return FindParent<VelIRshShaderPrivate>(const_cast<VelIRshShader&>(iShader));
}

VelIRshShader_var VelRshParameterServices::FindShaderRoot(const VelIRshParameter& iParameter) {
  auto& parameter = const_cast<VelIRshParameter&>(iParameter);
  const VelIRenderingMaterial_var hMaterial = FindRenderingMaterial(iParameter);
  if (hMaterial) {
    VelBaseUnknown_var hCarried;
    static_cast<void>(hMaterial->GetShader(hCarried.Receive()));
    return VelIRshShader_var(hCarried);
  }
  const VelIRshParameterPrivate_var hPrivate(&parameter);
  if (!hPrivate) return FindHighestShaderAbove(parameter);
  VelIRshShader_var hParent;
  hPrivate->GetParentShader(hParent);
  return FindTopmost(std::move(hParent));
}

VelIRenderingMaterial_var VelRshParameterServices::FindRenderingMaterial(const VelIRshParameter& iParameter) {
  return FindMaterialFrom(FindShaderParent(iParameter));
}

VelIRenderingMaterial_var VelRshParameterServices::FindRenderingMaterial(const VelIRshShader& iShader) {
  VelIRshShader_var hParent = FindShaderParent(iShader);
  if (hParent) return FindMaterialFrom(std::move(hParent));
  return VelIRenderingMaterial_var(VelRshFather(const_cast<VelIRshShader&>(iShader)));
}

VelListPtrVelBaseUnknown VelRshParameterServices::FindConnectedParameters(VelIRshShader& iShader) {
  VelListPtrVelBaseUnknown parameters;
  const VelISpecObject_var hFeature(&iShader);
  if (!hFeature) return parameters;
  VelListPtrVelBaseUnknown owners;
  static_cast<void>(hFeature->ListPointingOwners(VelIRshParameter::InterfaceId(), owners));
  for (VelBaseUnknown* owner : owners) {
    VelIRshParameter_var hParameter(owner);
    if (hParameter) parameters.Append(hParameter.Detach());
  }
  VelRshComponentList::Release(owners);
  return parameters;
}

VelListPtrVelBaseUnknown VelRshParameterServices::FindConnectedParameters(const VelIRshShader& iShader) {
  return FindConnectedParameters(const_cast<VelIRshShader&>(iShader));
}
