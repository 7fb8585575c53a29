// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature_CreateCopy.cpp The copy of a shader, which is the shader manager's work.
#include "RenderingShader/VelRshModel.m/src/model/VelRshShaderFeature.h"

/// The code deliberately tells nothing: callers look at the out argument. Without a manager nobody makes a copy.
HRESULT VelRshShaderFeature::CreateCopy(VelIContainer*, VelIRshShader** oCopy) {
  if (oCopy != nullptr) *oCopy = nullptr;
  return E_FAIL;
}
