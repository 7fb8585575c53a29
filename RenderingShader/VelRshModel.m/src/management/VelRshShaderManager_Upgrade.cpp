// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Upgrade.cpp Gives a shader the parameters of today with the values of before, and tells
/// beforehand what that would do.
#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshShaderManagerTrace.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradePlanner.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradeTransfer.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshAttribute.h"
#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/featuremodeler/VelISpecObject.h"
#include "platform/trace/VelTraceMute.h"

namespace {

VelBaseUnknown_var CopyFeature(VelIRshShader& iShader) {
  const VelISpecObject_var hFeature(&iShader);
  VelBaseUnknown_var hCopy;
  if (!hFeature) return nullptr;
  if (FAILED(hFeature->InstanciateForCopy("", nullptr, VelISpecObject::InterfaceId(), hCopy.Receive()))) return nullptr;
  return hCopy;
}

void Remove(const VelBaseUnknown_var& iFeature) {
  const LifeCycleObject_var hLife(iFeature);
  if (hLife) static_cast<void>(hLife->remove());
}

void EmptyParameters(VelIRshShader& ioShader) {
  const VelRshAttribute parameters(&ioShader, &VelKeySetVelRmaCatalog::GetKeyVelRmaShaderParameters);
  if (parameters) static_cast<void>(parameters->EmptyComponents(parameters.Key()));
}

}  // namespace

HRESULT VelRshShaderManager::FindUpgrade(VelIRshShader* iShader, VelRshUpgradePlan& oPlan,
                                         VelIRshShaderFactory** oFactory) {
  if (iShader == nullptr) return E_FAIL;
  VEL_RETURN_IF_FAILED(iShader->GetType(oPlan.type));
  EnsureTypeList();
  bool isKnown = false;
  *oFactory = FindFactory(oPlan.type, isKnown);
  if (*oFactory == nullptr) return E_FAIL;
  VEL_RETURN_IF_FAILED(iShader->GetVersion(oPlan.from));
  VEL_RETURN_IF_FAILED((*oFactory)->GetVersion(oPlan.type, oPlan.to));
  return S_OK;
}

HRESULT VelRshShaderManager::UpgradeShader(VelIRshShader* iShader) {
  velRshShaderManagerTrace.Print(4, "(VelRshShaderManager::UpgradeShader) iShader=%x\n", iShader);
  VelRshUpgradePlan plan;
  VelIRshShaderFactory* factory = nullptr;
  VEL_RETURN_IF_FAILED(FindUpgrade(iShader, plan, &factory));
  if (plan.from == plan.to) return S_OK;

  const VelBaseUnknown_var hBefore = CopyFeature(*iShader);
  if (!hBefore) return E_FAIL;
  EmptyParameters(*iShader);
  VEL_RETURN_IF_FAILED(factory->InitializeShader(iShader, 0));
  const VelIRshShader_var hOld(hBefore);
  const VelRshReaderParameterCollection collection;
  VelRshUpgradeStage stage;
  const HRESULT result = hOld ? VelRshUpgradeTransfer(collection(*hOld), collection(*iShader)).Perform(stage) : E_FAIL;
  Remove(hBefore);
  return result;
}

HRESULT VelRshShaderManager::PlanUpgrade(VelIRshShader* iShader, VelRshUpgradePlan& oPlan) {
  velRshShaderManagerTrace.Print(4, "(VelRshShaderManager::PlanUpgrade) iShader=%x\n", iShader);
  // The shader may be one that only the plan of before still keeps.
  const VelIRshShader_var hShader(iShader);
  oPlan = {};
  VelIRshShaderFactory* factory = nullptr;
  oPlan.result = FindUpgrade(iShader, oPlan, &factory);
  if (iShader == nullptr) return E_FAIL;
  if (FAILED(oPlan.result) || oPlan.from == oPlan.to) return S_OK;
  if (!VelISpecObject_var(iShader)) {
    oPlan.result = E_FAIL;
    return S_OK;
  }
  // A warning about the shaders of a rehearsal would be taken for one about the real ones.
  const VelTraceMute mute;
  oPlan.changesShader = true;
  return VelRshUpgradePlanner(*iShader, oPlan).Run(*factory);
}
