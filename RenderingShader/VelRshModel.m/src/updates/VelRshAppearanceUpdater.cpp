// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshAppearanceUpdater.cpp Seats the updater, and what both updates share.
#include "RenderingShader/VelRshModel.m/src/updates/VelRshAppearanceUpdater.h"

#include "RenderingShader/VelRshModel.m/include/ScopedPerformanceTimer.h"
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterName.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshTextureEntry.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelIRmaEditionMode.h"

VelRshAppearanceUpdater::VelRshAppearanceUpdater(VelIRshParameter& iParameter)
    : trace_("VelRshAppearanceUpdater"), performance_("VelRshAppearanceUpdaterPerformanceTime") {
  StoreParameter(iParameter);
}

void VelRshAppearanceUpdater::StoreParameter(VelIRshParameter& iParameter) {
  using Tag = VelIRshParameterPrivate::Tag;
  const ScopedPerformanceTimer timer("parameter store", performance_.Get());
  parameter_ = VelBaseUnknown_WR(&iParameter);
  name_ = VelRshReaderParameterName()(iParameter);
  slot_ = VelRshParameterServices::ComputeParameterSlot(iParameter);
  const VelIRshParameterPrivate_var hPrivate(&iParameter);
  if (!hPrivate) return;
  isTexture_ = SUCCEEDED(hPrivate->IsTexture());
  hasMapping_ = SUCCEEDED(hPrivate->HasTag(Tag::Mapping));
  hasDpi_ = SUCCEEDED(hPrivate->HasTag(Tag::Dpi));
  hasSvgGroup_ = SUCCEEDED(hPrivate->HasTag(Tag::Svggroup));
  hasBump_ = SUCCEEDED(hPrivate->HasTag(Tag::Bump));
}

bool VelRshAppearanceUpdater::IsAllowed() const {
  if (!VelIRmaEditionMode::GetActivation(VelIRmaEditionMode::Mode::SilentPropagation)) return true;
  trace_.Info("FBDI mode, derived update NOT allowed");
  return false;
}

VelIRshParameter_var VelRshAppearanceUpdater::ResolveParameter() const {
  VelIRshParameter_var hParameter;
  if (FAILED(parameter_.Query(hParameter.Receive()))) trace_.Warning("VelIRshParameter not available");
  return hParameter;
}

bool VelRshAppearanceUpdater::FindRoot(const VelIRenderingMaterial_var& iMaterial, Setting& oSetting) const {
  VelBaseUnknown_var hCarried;
  static_cast<void>(iMaterial->GetShader(hCarried.Receive()));
  oSetting.hRoot = VelIRshShader_var(hCarried);
  if (!oSetting.hRoot) {
    trace_.Warning("OnValueUpdate - Parameter cannot be processed { rendering shader = %x }", oSetting.hRoot.Get());
    return false;
  }
  oSetting.rootParameters = VelRshReaderParameterCollection()(*oSetting.hRoot);
  return true;
}

void VelRshAppearanceUpdater::Rasterise(const VelString& iName, std::uint32_t iSlot, VelUnicodeString iPath,
                                        const VelUnicodeString& iGroups, int iDpi,
                                        VelIRmaAppearanceCache& ioCache) const {
  VelListValVelUnicodeString groups;
  VelRbaImageServices::ExtractPathList(iGroups, groups);
  trace_.Info("'%s' SVG rasterizing... { dpi: %d, group count: %d }", iName, iDpi, groups.Size());
  if (!VelRshTextureEntry::Fill(ioCache, iSlot, iPath, groups, iDpi)) return;
  trace_.Info("'%s' rasterized cache entry updated { path: %s }", iName, iPath);
}

void VelRshAppearanceUpdater::WriteBump(VelIRshParameter& ioBump, float iLevel) const {
  const float current = VelRshReaderParameterValue().asScalar(ioBump);
  if (current != iLevel && SUCCEEDED(ioBump.SetValue(&iLevel))) {
    trace_.Info("MDL Bump update from %f to %f", current, iLevel);
    return;
  }
  trace_.Info("MDL Bump unchanged level-0/level-1 %f", iLevel);
}
