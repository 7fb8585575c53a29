// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Refresh.cpp How a parameter brings the appearance of its material up to date.
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"
#include "RenderingShader/VelRshModel.m/src/updates/VelRshAppearanceUpdater.h"
#include "platform/base/VelCheck.h"

namespace {

constexpr const char* sourceText = "RenderingShader/VelRshModel.m/src/VelRshParameterBase";
constexpr VelSourcePosition updateValueAndConnection{sourceText, 788};
constexpr VelSourcePosition updateValue{sourceText, 798};
constexpr VelSourcePosition updateConnection{sourceText, 807};

/// Runs updates on the parameter that an implementation stands for.
/// @return S_OK, whatever they found; E_NOINTERFACE, after a report, when there is no parameter
template <class... Updates>
HRESULT Run(VelRshParameterBase& iImplementation, VelSourcePosition iPosition, Updates... iUpdates) {
  const VelIRshParameter_var hParameter(&iImplementation);
  if (!hParameter) {
    VelCheck::Failed(iPosition, "parameter", "VelIRshParameter not available");
    return E_NOINTERFACE;
  }
  VelRshAppearanceUpdater updater(*hParameter);
  (..., (updater.*iUpdates)());
  return S_OK;
}

}  // namespace

HRESULT VelRshParameterBase::UpdateValueAndConnection() {
  return Run(*this, updateValueAndConnection, &VelRshAppearanceUpdater::OnValueUpdate,
             &VelRshAppearanceUpdater::OnConnectionUpdate);
}

HRESULT VelRshParameterBase::UpdateValue() { return Run(*this, updateValue, &VelRshAppearanceUpdater::OnValueUpdate); }

HRESULT VelRshParameterBase::UpdateConnection() {
  return Run(*this, updateConnection, &VelRshAppearanceUpdater::OnConnectionUpdate);
}
