// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature_CreateCopy.cpp The copy of a shader, which is the shader manager's work.
#include "RenderingShader/VelRshModel.m/include/VelRshShaderManager.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshShaderFeature.h"

/// The code deliberately tells nothing: callers look at the out argument.
HRESULT VelRshShaderFeature::CreateCopy(VelIContainer* iContainer, VelIRshShader** oCopy) {
  if (oCopy == nullptr) return E_FAIL;
  *oCopy = nullptr;
  if (iContainer == nullptr) return E_FAIL;
  const VelIRshShader_var hShader(this);
  static_cast<void>(
      VelRshShaderManager::GetManager()->CreateShaderCopy(VelIContainer_var(iContainer), hShader.Get(), oCopy));
  return E_FAIL;
}
