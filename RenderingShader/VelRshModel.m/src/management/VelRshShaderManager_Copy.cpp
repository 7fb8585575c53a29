// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Copy.cpp The copy of a shader with its nodes.
#include <memory>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshCarriedValue.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshCopyDepth.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshComponentList.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshContainerOf.h"

namespace {

using Parameters = VelRshReaderParameterCollection::Parameters;

struct Described {
  VelString name;
  VelString type;
};

/// @return false when the parameter is none, or when its name or its type cannot be read
bool Describe(const VelIRshParameter_var& iParameter, Described& oDescribed) {
  return iParameter && SUCCEEDED(iParameter->GetName(oDescribed.name)) &&
         SUCCEEDED(iParameter->GetType(oDescribed.type));
}

HRESULT CopyValues(const Parameters& iSources, VelIRshShader& ioTarget, VelIContainer& ioContainer) {
  const VelRshModelFactoryFeature factory(ioContainer);
  for (const VelIRshParameter_var& hSource : iSources) {
    Described source;
    if (!Describe(hSource, source)) return E_UNEXPECTED;
    const VelIRshParameter_var hTarget =
        factory.CreateShaderParameter(VelUnicodeString(source.name), VelUnicodeString(source.type));
    if (!hTarget) continue;
    static_cast<void>(ioTarget.AppendParameter(hTarget.Get()));
    VEL_RETURN_IF_FAILED(VelRshCarryValue(source.type, *hSource, *hTarget));
  }
  return S_OK;
}

/// @return the shader that was made of one of the sources, null for any other
VelBaseUnknown* FindCopy(VelIRshShader& iShader, const VelListPtrVelBaseUnknown& iSources,
                         const VelListPtrVelBaseUnknown& iCopies) {
  for (int position = 1; position <= iSources.Size(); ++position) {
    if (iSources[position]->IsEqual(&iShader)) return iCopies[position];
  }
  return nullptr;
}

HRESULT CopyConnections(const Parameters& iSources, const Parameters& iTargets,
                        const VelListPtrVelBaseUnknown* iSourceSubShaders,
                        const VelListPtrVelBaseUnknown* iTargetSubShaders) {
  if (iSources.size() != iTargets.size()) return E_UNEXPECTED;
  for (std::size_t i = 0; i < iSources.size(); ++i) {
    Described source;
    Described target;
    if (!Describe(iSources[i], source) || !Describe(iTargets[i], target)) return E_UNEXPECTED;
    if (source.name != target.name || source.type != target.type) return E_UNEXPECTED;
    VelIRshShader_var hConnected;
    if (FAILED(iSources[i]->GetConnection(hConnected.Receive())) || !hConnected) continue;
    if (iSourceSubShaders == nullptr || iTargetSubShaders == nullptr) continue;
    const VelIRshShader_var hCopy(FindCopy(*hConnected, *iSourceSubShaders, *iTargetSubShaders));
    if (hCopy) static_cast<void>(iTargets[i]->SetConnection(hCopy.Get()));
  }
  return S_OK;
}

}  // namespace

HRESULT VelRshShaderManager::CreateShaderCopy(const VelIContainer_var& iContainer, VelIRshShader* iShader,
                                              VelIRshShader** oCopy) {
  if (oCopy == nullptr) return E_FAIL;
  *oCopy = nullptr;
  if (!iContainer || iShader == nullptr) return E_FAIL;
  const VelRshCopyDepth depth("RenderingShader/VelRshModel.m/src/VelRshShaderManager");
  if (!depth.MayGoOn()) return E_FAIL;
  VelString type;
  VEL_RETURN_IF_FAILED(iShader->GetType(type));
  // Deliberately the one type that a copy changes.
  if (type == "mia_material") type = "mia_phen_material";
  VelIRshShader_var hCopy = VelRshModelFactoryFeature(*iContainer).CreateShader(VelUnicodeString(type));
  if (!hCopy) return E_NOINTERFACE;
  *oCopy = VelIRshShader_var(hCopy).Detach();

  VelListPtrVelBaseUnknown* listed = nullptr;
  static_cast<void>(iShader->GetNodes(&listed));
  const std::unique_ptr<VelListPtrVelBaseUnknown> nodes(listed);
  if (nodes == nullptr || nodes->IsEmpty()) return CopyShaderParameters(iShader, hCopy.Get(), nullptr, nullptr);
  VelListPtrVelBaseUnknown copies;
  CopyNodes(iContainer, *nodes, *hCopy, copies);
  // Without a copy of each, the lists would pair the wrong ones.
  const bool isPaired = copies.Size() == nodes->Size();
  const HRESULT copied =
      CopyShaderParameters(iShader, hCopy.Get(), isPaired ? nodes.get() : nullptr, isPaired ? &copies : nullptr);
  VelRshComponentList::Release(*nodes);
  VelRshComponentList::Release(copies);
  return copied;
}

void VelRshShaderManager::CopyNodes(const VelIContainer_var& iContainer, const VelListPtrVelBaseUnknown& iNodes,
                                    VelIRshShader& ioCopy, VelListPtrVelBaseUnknown& oCopies) {
  for (VelBaseUnknown* node : iNodes) {
    const VelIRshShader_var hNode(node);
    if (!hNode) continue;
    VelIRshShader_var hNodeCopy;
    if (FAILED(CreateShaderCopy(iContainer, hNode.Get(), hNodeCopy.Receive())) || !hNodeCopy) continue;
    static_cast<void>(ioCopy.AddNode(hNodeCopy.Get()));
    oCopies.Append(hNodeCopy.Detach());
  }
}

HRESULT VelRshShaderManager::CopyShaderParameters(VelIRshShader* iSource, VelIRshShader* iTarget,
                                                  const VelListPtrVelBaseUnknown* iSourceSubShaders,
                                                  const VelListPtrVelBaseUnknown* iTargetSubShaders) {
  if (iSource == nullptr || iTarget == nullptr) return E_FAIL;
  const VelIContainer_var hContainer = VelRshContainerOf(*iTarget);
  if (!hContainer) return E_UNEXPECTED;
  const VelRshReaderParameterCollection collection;
  VEL_RETURN_IF_FAILED(CopyValues(collection(*iSource), *iTarget, *hContainer));
  return CopyConnections(collection(*iSource), collection(*iTarget), iSourceSubShaders, iTargetSubShaders);
}
