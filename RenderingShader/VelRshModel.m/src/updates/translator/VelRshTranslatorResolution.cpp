// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorResolution.cpp Goes from the root's parameters to the textures that feed them.
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorResolution.h"

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshTextureDocument.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshTextureEntry.h"
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorWalk.h"
#include "platform/images/VelRbaImageServices.h"

bool VelRshTranslatorResolution::Translate(const VelRbaIntegralShaderModifyNotification& iNotification,
                                           VelIRshParameter& iParameter) const {
  if (VelRshTellsNoChange(iNotification) || VelRshReaderParameterName()(iParameter) != "dpi") return true;
  const VelIRshShader_var hRoot = VelRshParameterServices::FindShaderRoot(iParameter);
  const VelIRmaAppearanceCache_var hCache(VelRshParameterServices::FindRenderingMaterial(iParameter));
  if (!hRoot || !hCache) return false;
  for (const VelIRshParameter_var& hRootParameter : VelRshTranslatorWalk::ListParameters(*hRoot)) {
    FillEntry(*hRootParameter, iNotification.GetNext(), *hCache);
  }
  return true;
}

void VelRshTranslatorResolution::FillEntry(VelIRshParameter& iRootParameter, int iDpi,
                                           VelIRmaAppearanceCache& ioCache) {
  const VelRshReaderParameterCollection collection;
  const unsigned int slot = VelRshParameterServices::ComputeParameterSlot(iRootParameter);
  VelIRshShader_var hConnected;
  if (slot == 0 || FAILED(iRootParameter.GetConnection(hConnected.Receive())) || !hConnected) return;
  const VelRshReaderParameterCollection::Parameters parameters = collection(*hConnected);
  const VelBaseUnknown_var hDocument = VelRshTextureDocument::Of(collection(parameters, "tex"));
  VelUnicodeString path;
  if (!hDocument || !VelRshTextureDocument::FindPath(*hDocument, path)) return;
  if (!VelRshTextureDocument::IsSvg(*hDocument)) {
    static_cast<void>(VelRshTextureEntry::Fill(ioCache, slot, path, {}, VelRshTextureEntry::plainResolution));
    return;
  }
  const VelIRshParameter_var hGroups = collection(parameters, "group_names");
  if (!hGroups) return;
  VelListValVelUnicodeString groups;
  VelRbaImageServices::ExtractPathList(VelRshReaderParameterValue().asUnicodeText(*hGroups), groups);
  static_cast<void>(VelRshTextureEntry::Fill(ioCache, slot, path, groups, iDpi));
}
