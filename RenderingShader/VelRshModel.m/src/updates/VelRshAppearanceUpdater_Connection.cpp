// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshAppearanceUpdater_Connection.cpp What follows from a changed connection.
#include "RenderingShader/VelRshModel.m/include/ScopedPerformanceTimer.h"
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshTextureDocument.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshTextureEntry.h"
#include "RenderingShader/VelRshModel.m/src/updates/VelRshAppearanceUpdater.h"
#include "RenderingShader/VelRshModel.m/src/updates/VelRshParameterValueCopier.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelIRmaEventPropagationControl.h"

namespace {

constexpr const char* sourceText = "RenderingShader/VelRshModel.m/src/VelRshAppearanceUpdater";
constexpr const char* bumpShaderType = "vel_phen_bump";
constexpr const char* bumpTypeName = "bump_type";

/// Whether the top shader gives the values of a parameter on to what is connected below it.
bool IsInjected(VelIRshParameterPrivate& iParameter) {
  using Tag = VelIRshParameterPrivate::Tag;
  return SUCCEEDED(iParameter.HasTag(Tag::Mapping)) || SUCCEEDED(iParameter.HasTag(Tag::Dpi));
}

}  // namespace

void VelRshAppearanceUpdater::OnConnectionUpdate() {
  const ScopedPerformanceTimer timer("OnConnectionUpdate", performance_.Get());
  if (!IsAllowed()) return;
  const VelIRshParameter_var hParameter = ResolveParameter();
  if (!hParameter) return;
  Setting setting;
  if (!FindSettingOfConnection(hParameter, setting)) return;
  bool needsReset = true;
  VelIRshShader_var hConnected;
  if (SUCCEEDED(hParameter->GetConnection(hConnected.Receive())) && hConnected) {
    const Parameters connected = VelRshReaderParameterCollection()(*hConnected);
    InjectValues(connected, setting.rootParameters);
    if (slot_ != 0) needsReset = !LoadTexture(connected, *setting.hCache);
    AlignBump(hConnected, connected, setting.rootParameters);
  }
  if (!needsReset) return;
  const ScopedPerformanceTimer resetTimer("appearance cache slot reset overhead", performance_.Get());
  trace_.Info("Appearance cache entry reset for '%s'", name_);
  static_cast<void>(setting.hCache->ResetEntry(slot_));
}

bool VelRshAppearanceUpdater::FindSettingOfConnection(const VelIRshParameter_var& iParameter, Setting& oSetting) const {
  const VelIRenderingMaterial_var hMaterial = VelRshParameterServices::FindRenderingMaterial(*iParameter);
  oSetting.hCache = VelIRmaAppearanceCache_var(hMaterial);
  const VelIRmaEventPropagationControl_var hControl(oSetting.hCache);
  if (oSetting.hCache && hControl) return FindRoot(hMaterial, oSetting);
  // Deliberately the words of the other update.
  trace_.Warning("OnValueUpdate - Parameter cannot be processed { rendering material = %x, appearance = %x }",
                 oSetting.hCache.Get(), hControl.Get());
  return false;
}

void VelRshAppearanceUpdater::InjectValues(const Parameters& iConnected, const Parameters& iRootParameters) const {
  const ScopedPerformanceTimer timer("2D transformation & DPI update overhead", performance_.Get());
  const VelRshReaderParameterName readName;
  for (const VelIRshParameter_var& listed : iRootParameters) {
    const VelIRshParameterPrivate_var hPrivate(listed);
    if (!hPrivate) {
      trace_.Error(VEL_HERE(sourceText), "E_NOINTERFACE VelIRshParameterPrivate");
      continue;
    }
    if (!IsInjected(*hPrivate)) continue;
    const VelIRshParameter_var hRoot(hPrivate);
    if (!hRoot) {
      trace_.Error(VEL_HERE(sourceText), "E_NOINTERFACE VelIRshParameter");
      continue;
    }
    const VelIRshParameter_var hTarget = VelRshReaderParameterCollection()(iConnected, readName(*hRoot).CString());
    if (!hTarget) continue;
    const VelString targetName = readName(*hTarget);
    trace_.Info("Updating %s connected shader mapping data %s", name_, targetName);
    if (VelRshParameterValueCopier()(*hRoot, *hTarget)) continue;
    trace_.Error(VEL_HERE(sourceText), "2D transformation input injection failed for '%s' on '%s' update failed", name_,
                 targetName);
  }
}

/// @return true when there is a texture, whatever becomes of it
bool VelRshAppearanceUpdater::LoadTexture(const Parameters& iConnected, VelIRmaAppearanceCache& ioCache) const {
  const VelBaseUnknown_var hDocument = VelRshTextureDocument::Of(VelRshReaderParameterCollection()(iConnected, "tex"));
  if (!hDocument) {
    trace_.Info("No texture linked to '%s'", name_);
    return false;
  }
  trace_.Info("Update required for '%s'", name_);
  if (VelRshTextureDocument::IsSvg(*hDocument)) {
    LoadSvgTexture(*hDocument, iConnected, ioCache);
  } else {
    LoadPlainTexture(*hDocument, ioCache);
  }
  return true;
}

void VelRshAppearanceUpdater::LoadPlainTexture(VelBaseUnknown& iDocument, VelIRmaAppearanceCache& ioCache) const {
  VelUnicodeString path;
  if (!VelRshTextureDocument::FindPath(iDocument, path)) return;
  trace_.Info("'%s' is attached to a non-SVG texture located %s", name_, path);
  if (!VelRshTextureEntry::Fill(ioCache, slot_, path, {}, VelRshTextureEntry::plainResolution)) return;
  trace_.Info("'%s' cache entry updated { path: %s }", name_, path);
}

void VelRshAppearanceUpdater::LoadSvgTexture(VelBaseUnknown& iDocument, const Parameters& iConnected,
                                             VelIRmaAppearanceCache& ioCache) const {
  VelUnicodeString path;
  if (!VelRshTextureDocument::FindPath(iDocument, path)) return;
  trace_.Info("'%s' is attached to a SVG texture located %s", name_, path);
  const VelRshReaderParameterCollection collection;
  const VelIRshParameter_var hDpi = collection(iConnected, "dpi");
  const VelIRshParameter_var hGroups = collection(iConnected, "group_names");
  if (!hDpi || !hGroups) return;
  const VelRshReaderParameterValue read;
  const int dpi = read.asIntegral(*hDpi);
  Rasterise(name_, slot_, path, read.asUnicodeText(*hGroups), dpi, ioCache);
}

void VelRshAppearanceUpdater::AlignBump(const VelIRshShader_var& iShader, const Parameters& iConnected,
                                        const Parameters& iRootParameters) const {
  const ScopedPerformanceTimer timer("bump update overhead", performance_.Get());
  const VelRshReaderParameterCollection collection;
  VelString type;
  if (FAILED(iShader->GetType(type)) || type != bumpShaderType || !collection(iConnected, bumpTypeName)) return;
  trace_.Info("Detected connection to %s with a %s parameter, bump value update required", bumpShaderType,
              bumpTypeName);
  const VelIRshParameter_var hDefault = collection(iRootParameters, "default_sp_bump");
  const VelIRshParameter_var hBump = collection(iConnected, "bump");
  if (!hDefault || !hBump) return;
  WriteBump(*hBump, VelRshReaderParameterValue().asScalar(*hDefault));
}
