// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshTranslatorWalk.cpp Lists, picks and copies.
#include "RenderingShader/VelRshModel.m/src/updates/translator/VelRshTranslatorWalk.h"

#include <memory>

#include "RenderingShader/VelRshModel.m/src/services/VelRshComponentList.h"
#include "RenderingShader/VelRshModel.m/src/updates/VelRshParameterValueCopier.h"
#include "platform/base/VelFatalErrorService.h"

VelRshReaderParameterCollection::Parameters VelRshTranslatorWalk::ListParameters(VelIRshShader& iRoot) {
  VelRshReaderParameterCollection::Parameters parameters;
  VelListPtrVelBaseUnknown* list = nullptr;
  const HRESULT listed = iRoot.GetParameters(&list);
  const std::unique_ptr<VelListPtrVelBaseUnknown> owner(list);
  if (FAILED(listed) || list == nullptr) return parameters;
  for (VelBaseUnknown* element : *list) {
    VelIRshParameter_var hParameter(element);
    if (!hParameter) {
      VelFatalErrorService::FatalLog(VEL_HERE("RenderingShader/VelRshModel.m/src/VelRshTranslatorParameter"),
                                     "parameter is not a VelIRshParameter");
      continue;
    }
    parameters.push_back(std::move(hParameter));
  }
  VelRshComponentList::Release(*list);
  return parameters;
}

bool VelRshTranslatorWalk::CopyToConnected(VelIRshParameter& iParameter, VelIRshShader& iRoot, VelIRshShader* iParent,
                                           const VelString& iName) {
  const VelRshReaderParameterCollection collection;
  for (const VelIRshParameter_var& hRootParameter : ListParameters(iRoot)) {
    VelIRshShader_var hConnected;
    if (FAILED(hRootParameter->GetConnection(hConnected.Receive())) || !hConnected) continue;
    if (hConnected->IsEqual(iParent)) continue;
    const VelIRshParameter_var hTarget = collection(collection(*hConnected), iName.CString());
    if (hTarget && !VelRshParameterValueCopier()(iParameter, *hTarget)) return false;
  }
  return true;
}
