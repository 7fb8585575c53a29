// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Upgrade.cpp Gives a shader the parameters of today with the values of before.
#include <utility>
#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshCarriedValue.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshShaderManagerTrace.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshAttribute.h"
#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/featuremodeler/VelISpecObject.h"

namespace {

using Parameters = VelRshReaderParameterCollection::Parameters;

/// A parameter of before and the one that takes over from it.
struct Successor {
  VelIRshParameter_var hOld;
  VelIRshParameter_var hNew;
  VelString startUp;
};

bool IsNamedAndTyped(const VelIRshParameter_var& iParameter, const VelString& iName, const VelString& iStartUp) {
  VelString name;
  VelString startUp;
  return iParameter && SUCCEEDED(iParameter->GetName(name)) && SUCCEEDED(iParameter->GetType(startUp)) &&
         name == iName && startUp == iStartUp;
}

/// Pairs each old parameter, in order, with the first new one of its name and start-up that is still free. What has no
/// partner is left out.
/// @param[in] iNew is used up
/// @param[out] oSuccessors on failure those before the one at fault
/// @return S_OK; E_UNEXPECTED when name or start-up of an old one cannot be read
HRESULT FindSuccessors(const Parameters& iOld, Parameters iNew, std::vector<Successor>& oSuccessors) {
  for (const VelIRshParameter_var& hOld : iOld) {
    VelString name;
    VelString startUp;
    if (FAILED(hOld->GetName(name)) || FAILED(hOld->GetType(startUp))) return E_UNEXPECTED;
    for (VelIRshParameter_var& hNew : iNew) {
      if (!IsNamedAndTyped(hNew, name, startUp)) continue;
      oSuccessors.push_back({hOld, std::exchange(hNew, nullptr), startUp});
      break;
    }
  }
  return S_OK;
}

/// Values first: a connection makes the connected shader take over values, which have to be the right ones by then.
HRESULT TakeOver(const Parameters& iOld, const Parameters& iNew) {
  std::vector<Successor> successors;
  const HRESULT found = FindSuccessors(iOld, iNew, successors);
  for (const Successor& successor : successors) {
    VEL_RETURN_IF_FAILED(VelRshCarryValue(successor.startUp, *successor.hOld, *successor.hNew));
  }
  VEL_RETURN_IF_FAILED(found);
  for (const Successor& successor : successors) {
    VelIRshShader_var hConnected;
    if (FAILED(successor.hOld->GetConnection(hConnected.Receive())) || !hConnected) continue;
    static_cast<void>(successor.hNew->SetConnection(hConnected.Get()));
  }
  return S_OK;
}

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

HRESULT VelRshShaderManager::UpgradeShader(VelIRshShader* iShader) {
  velRshShaderManagerTrace.Print(4, "(VelRshShaderManager::UpgradeShader) iShader=%x\n", iShader);
  if (iShader == nullptr) return E_FAIL;
  VelString type;
  VEL_RETURN_IF_FAILED(iShader->GetType(type));
  EnsureTypeList();
  bool isKnown = false;
  VelIRshShaderFactory* const factory = FindFactory(type, isKnown);
  if (factory == nullptr) return E_FAIL;
  std::uint32_t version = 0;
  std::uint32_t current = 0;
  VEL_RETURN_IF_FAILED(iShader->GetVersion(version));
  VEL_RETURN_IF_FAILED(factory->GetVersion(type, current));
  if (version == current) return S_OK;

  const VelBaseUnknown_var hBefore = CopyFeature(*iShader);
  if (!hBefore) return E_FAIL;
  EmptyParameters(*iShader);
  VEL_RETURN_IF_FAILED(factory->InitializeShader(iShader, 0));
  const VelIRshShader_var hOld(hBefore);
  const VelRshReaderParameterCollection collection;
  const HRESULT result = hOld ? TakeOver(collection(*hOld), collection(*iShader)) : E_FAIL;
  Remove(hBefore);
  return result;
}
