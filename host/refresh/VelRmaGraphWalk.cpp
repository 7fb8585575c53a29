// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaGraphWalk.cpp Walks with a list of what is still to be visited, so that depth costs no stack.
#include "host/refresh/VelRmaGraphWalk.h"

#include <memory>
#include <unordered_set>
#include <utility>

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "platform/base/VelListPtrVelBaseUnknown.h"
#include "platform/materials/VelIRenderingMaterial.h"

namespace {

class Walker {
 public:
  /// Remembers a shader that was not met before.
  void Meet(VelIRshShader_var iShader) {
    if (!iShader || !met_.insert(iShader->GetComponent()).second) return;
    found_.shaders.push_back(std::move(iShader));
  }

  /// Visits the shaders in the order in which they were met, which meets further ones.
  VelRmaGraphWalk VisitAll() {
    for (std::size_t i = 0; i < found_.shaders.size(); ++i) {
      const VelIRshShader_var hShader = found_.shaders[i];
      VisitParameters(*hShader);
      VisitNodes(*hShader);
    }
    return std::move(found_);
  }

 private:
  void VisitParameters(VelIRshShader& iShader) {
    for (VelIRshParameter_var& hParameter : VelRshReaderParameterCollection()(iShader)) {
      VelIRshShader_var hConnected;
      if (SUCCEEDED(hParameter->GetConnection(hConnected.Receive()))) Meet(std::move(hConnected));
      found_.parameters.push_back(std::move(hParameter));
    }
  }

  void VisitNodes(VelIRshShader& iShader) {
    VelListPtrVelBaseUnknown* nodes = nullptr;
    const HRESULT listed = iShader.GetNodes(&nodes);
    const std::unique_ptr<VelListPtrVelBaseUnknown> owner(nodes);
    if (FAILED(listed) || nodes == nullptr) return;
    for (VelBaseUnknown* node : *nodes) {
      Meet(VelIRshShader_var(node));
      node->Release();
    }
  }

  VelRmaGraphWalk found_;
  std::unordered_set<const VelComponent*> met_;
};

}  // namespace

VelRmaGraphWalk VelRmaGraphWalk::Of(VelBaseUnknown& iMaterial) {
  const VelIRenderingMaterial_var hMaterial(&iMaterial);
  VelBaseUnknown_var hShader;
  Walker walker;
  if (hMaterial && SUCCEEDED(hMaterial->GetShader(hShader.Receive()))) walker.Meet(VelIRshShader_var(hShader));
  return walker.VisitAll();
}
