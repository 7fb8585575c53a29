// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Refresh.cpp How a parameter brings the appearance of its material up to date.
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"
#include "platform/base/VelCheck.h"

namespace {

constexpr const char* sourceText = "RenderingShader/VelRshModel.m/src/VelRshParameterBase";
constexpr VelSourcePosition updateValueAndConnection{sourceText, 788};
constexpr VelSourcePosition updateValue{sourceText, 798};
constexpr VelSourcePosition updateConnection{sourceText, 807};

/// @return S_OK when there is a parameter to update
HRESULT FindParameter(VelRshParameterBase& iImplementation, VelSourcePosition iPosition) {
  if (VelIRshParameter_var(&iImplementation)) return S_OK;
  VelCheck::Failed(iPosition, "parameter", "VelIRshParameter not available");
  return E_NOINTERFACE;
}

}  // namespace

HRESULT VelRshParameterBase::UpdateValueAndConnection() { return FindParameter(*this, updateValueAndConnection); }

HRESULT VelRshParameterBase::UpdateValue() { return FindParameter(*this, updateValue); }

HRESULT VelRshParameterBase::UpdateConnection() { return FindParameter(*this, updateConnection); }
