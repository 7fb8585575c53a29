// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshAppearanceUpdater_Value.cpp What follows from a changed value.
#include "RenderingShader/VelRshModel.m/include/ScopedPerformanceTimer.h"
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshComponentList.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshTextureDocument.h"
#include "RenderingShader/VelRshModel.m/src/updates/VelRshAppearanceUpdater.h"
#include "RenderingShader/VelRshModel.m/src/updates/VelRshParameterValueCopier.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelIRmaEventPropagationControl.h"

namespace {

constexpr const char* sourceText = "RenderingShader/VelRshModel.m/src/VelRshAppearanceUpdater";

/// @return a root parameter once more as a parameter; empty when it was removed since it was listed
VelIRshParameter_var AsParameter(const VelIRshParameter_var& iListed) {
  VelBaseUnknown* const object = iListed.Get();
  return VelIRshParameter_var(object);
}

VelIRshShader_var ConnectionOf(const VelIRshParameter_var& iParameter) {
  VelIRshShader_var hShader;
  if (FAILED(iParameter->GetConnection(hShader.Receive()))) return nullptr;
  return hShader;
}

}  // namespace

void VelRshAppearanceUpdater::OnValueUpdate() {
  const ScopedPerformanceTimer timer("OnValueUpdate", performance_.Get());
  if (!IsAllowed()) return;
  const VelIRshParameter_var hParameter = ResolveParameter();
  if (!hParameter) return;
  Setting setting;
  VelIRshShader_var hParent;
  if (!FindSettingOfValue(hParameter, hParent, setting)) return;
  const bool isOnRoot = setting.hRoot->IsEqual(hParent.Get());
  if (hasMapping_ && isOnRoot) CopyMapping(hParameter, hParent, setting);
  if (hasSvgGroup_ || (hasDpi_ && isOnRoot)) DrawConnectedTextures(hParameter, setting);
  if (hasBump_ && isOnRoot) ConvertBump(hParameter, hParent, setting);
  if (isTexture_) FollowTexture(hParent);
}

bool VelRshAppearanceUpdater::FindSettingOfValue(const VelIRshParameter_var& iParameter, VelIRshShader_var& oParent,
                                                 Setting& oSetting) const {
  oParent = VelRshParameterServices::FindShaderParent(*iParameter);
  const VelIRenderingMaterial_var hMaterial = VelRshParameterServices::FindRenderingMaterial(*iParameter);
  oSetting.hCache = VelIRmaAppearanceCache_var(hMaterial);
  const VelIRmaEventPropagationControl_var hControl(hMaterial);
  if (oParent && oSetting.hCache && hControl) return FindRoot(hMaterial, oSetting);
  trace_.Warning(
      "OnValueUpdate - Parameter cannot be processed { parent shader = %x, rendering material = %x, appearance = %x }",
      oParent.Get(), oSetting.hCache.Get(), hControl.Get());
  return false;
}

void VelRshAppearanceUpdater::CopyMapping(const VelIRshParameter_var& iParameter, const VelIRshShader_var& iParent,
                                          const Setting& iSetting) const {
  const ScopedPerformanceTimer timer("2D transformation copy overhead", performance_.Get());
  const VelRshReaderParameterCollection collection;
  for (const VelIRshParameter_var& listed : iSetting.rootParameters) {
    const VelIRshParameter_var hRoot = AsParameter(listed);
    // Deliberately no way around: the null handle that follows is reported by whoever called.
    if (!hRoot) trace_.Error(VEL_HERE(sourceText), "E_NOINTERFACE VelIRshParameter");
    const VelIRshShader_var hConnected = ConnectionOf(hRoot);
    if (!hConnected || hConnected->IsEqual(iParent.Get())) continue;
    const VelIRshParameter_var hTarget = collection(collection(*hConnected), name_.CString());
    if (!hTarget) continue;
    trace_.Info("Updating %s connected shader mapping data %s", VelRshReaderParameterName()(*hRoot), name_);
    if (VelRshParameterValueCopier()(*iParameter, *hTarget)) continue;
    trace_.Error(VEL_HERE(sourceText), "Parameter '%s' update failed", name_);
  }
}

void VelRshAppearanceUpdater::DrawConnectedTextures(const VelIRshParameter_var& iParameter,
                                                    const Setting& iSetting) const {
  const ScopedPerformanceTimer timer("DPI raster overhead", performance_.Get());
  Drawing own;
  if (hasDpi_) {
    own.dpi = VelRshReaderParameterValue().asIntegral(*iParameter);
  } else if (hasSvgGroup_) {
    own.groups = VelRshReaderParameterValue().asUnicodeText(*iParameter);
  }
  for (const VelIRshParameter_var& listed : iSetting.rootParameters) {
    const VelIRshParameter_var hRoot = AsParameter(listed);
    // Deliberately no way around, as for mapping values.
    if (!hRoot) trace_.Error(VEL_HERE(sourceText), "E_NOINTERFACE VelIRshParameter");
    DrawConnectedTexture(hRoot, own, iSetting);
  }
}

void VelRshAppearanceUpdater::DrawConnectedTexture(const VelIRshParameter_var& iRootParameter, const Drawing& iOwn,
                                                   const Setting& iSetting) const {
  const VelRshReaderParameterCollection collection;
  const std::uint32_t slot = VelRshParameterServices::ComputeParameterSlot(*iRootParameter);
  if (slot == 0) return;
  const VelIRshShader_var hConnected = ConnectionOf(iRootParameter);
  if (!hConnected) return;
  const Parameters parameters = collection(*hConnected);
  const VelBaseUnknown_var hDocument = VelRshTextureDocument::Of(collection(parameters, "tex"));
  VelUnicodeString path;
  if (!hDocument || !VelRshTextureDocument::IsSvg(*hDocument)) return;
  if (!VelRshTextureDocument::FindPath(*hDocument, path)) return;
  const VelString name = VelRshReaderParameterName()(*iRootParameter);
  trace_.Info("'%s' detected as connected to an SVG texture located %s", name, path);
  const VelIRshParameter_var hDpi = collection(parameters, "dpi");
  const VelIRshParameter_var hGroups = collection(parameters, "group_names");
  if (!hGroups || (!iOwn.dpi && !hDpi)) return;
  const VelRshReaderParameterValue read;
  const int dpi = iOwn.dpi ? *iOwn.dpi : read.asIntegral(*hDpi);
  Rasterise(name, slot, path, iOwn.groups ? *iOwn.groups : read.asUnicodeText(*hGroups), dpi, *iSetting.hCache);
}

void VelRshAppearanceUpdater::ConvertBump(const VelIRshParameter_var& iParameter, const VelIRshShader_var& iParent,
                                          const Setting& iSetting) const {
  const ScopedPerformanceTimer timer("Bump update overhead", performance_.Get());
  trace_.Info("Updating derived bump parameter...");
  const float level = VelRshReaderParameterValue().asScalar(*iParameter);
  for (const VelIRshParameter_var& listed : iSetting.rootParameters) {
    const VelIRshParameter_var hRoot = AsParameter(listed);
    if (!hRoot) {
      trace_.Error(VEL_HERE(sourceText), "E_NOINTERFACE VelIRshParameter");
      continue;
    }
    const VelIRshShader_var hConnected = ConnectionOf(hRoot);
    if (!hConnected || hConnected->IsEqual(iParent.Get())) continue;
    WriteConvertedBump(VelRshReaderParameterCollection()(*hConnected), level);
  }
}

void VelRshAppearanceUpdater::WriteConvertedBump(const Parameters& iConnected, float iLevel) const {
  const VelRshReaderParameterCollection collection;
  const VelIRshParameter_var hBump = collection(iConnected, "bump");
  if (!hBump) return;
  const bool hasType = static_cast<bool>(collection(iConnected, "bump_type"));
  trace_.Info("Found connected shader %s parameter { is bump type present = %s }", "bump", hasType ? "yes" : "no");
  float converted = iLevel;
  if (!hasType) {
    // Two roundings, one after each factor.
    converted *= 10.0F;
    converted *= 100.0F;
  }
  trace_.Info("MDL Bump translation %f -> %f", iLevel, converted);
  WriteBump(*hBump, converted);
}

void VelRshAppearanceUpdater::FollowTexture(const VelIRshShader_var& iParent) {
  const ScopedPerformanceTimer timer("texture update overhead", performance_.Get());
  VelListPtrVelBaseUnknown connected = VelRshParameterServices::FindConnectedParameters(*iParent);
  for (VelBaseUnknown* object : connected) {
    const VelIRshParameter_var hConnected(object);
    if (!hConnected) continue;
    StoreParameter(*hConnected);
    OnConnectionUpdate();
  }
  VelRshComponentList::Release(connected);
}
