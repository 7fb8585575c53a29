// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradeTransfer.cpp Pairs parameters, and carries values and connections over.
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradeTransfer.h"

#include <algorithm>

#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"

VelRshUpgradeTransfer::VelRshUpgradeTransfer(const Parameters& iOld, const Parameters& iNew)
    : old_(Describe(iOld)), new_(Describe(iNew)) {
  std::vector<bool> isTaken(new_.size());
  for (std::size_t old = 0; old < old_.size(); ++old) {
    if (!old_[old].isDescribed) continue;
    for (std::size_t next = 0; next < new_.size(); ++next) {
      if (isTaken[next] || !new_[next].isDescribed) continue;
      if (new_[next].name != old_[old].name || new_[next].startUp != old_[old].startUp) continue;
      isTaken[next] = true;
      steps_.push_back({old, next});
      break;
    }
  }
}

std::vector<VelRshUpgradeTransfer::Parameter> VelRshUpgradeTransfer::Describe(const Parameters& iParameters) {
  std::vector<Parameter> described;
  described.reserve(iParameters.size());
  for (const VelIRshParameter_var& hParameter : iParameters) {
    Parameter& parameter = described.emplace_back();
    parameter.hParameter = hParameter;
    const HRESULT named = hParameter->GetName(parameter.name);
    const HRESULT typed = hParameter->GetType(parameter.startUp);
    parameter.isDescribed = SUCCEEDED(named) && SUCCEEDED(typed);
  }
  return described;
}

HRESULT VelRshUpgradeTransfer::Perform(VelRshUpgradeStage& ioStage) {
  VEL_RETURN_IF_FAILED(CarryValues(ioStage));
  for (const Step& step : steps_) {
    const VelIRshShader_var hConnected = ConnectionOf(*old_[step.old].hParameter);
    if (!hConnected) continue;
    const VelIRshShader_var hStandIn = ioStage.StandInFor(hConnected);
    static_cast<void>(new_[step.next].hParameter->SetConnection(hStandIn.Get()));
  }
  return S_OK;
}

HRESULT VelRshUpgradeTransfer::CarryValues(VelRshUpgradeStage& ioStage) {
  const auto fault =
      std::find_if(old_.begin(), old_.end(), [](const Parameter& iParameter) { return !iParameter.isDescribed; });
  const auto end = static_cast<std::size_t>(fault - old_.begin());
  for (Step& step : steps_) {
    if (step.old > end) break;
    stoppedAt_ = step.old;
    const Parameter& old = old_[step.old];
    VEL_RETURN_IF_FAILED(ioStage.Carry(old.startUp, *old.hParameter, *new_[step.next].hParameter));
    step.isCarried = true;
  }
  stoppedAt_ = std::nullopt;
  if (fault == old_.end()) return S_OK;
  stoppedAt_ = end;
  return E_UNEXPECTED;
}

VelIRshShader_var VelRshUpgradeTransfer::ConnectionOf(VelIRshParameter& iParameter) {
  VelIRshShader_var hShader;
  // The operation of the interface also hands the shader to the parameter's model events.
  VelRshParameterBase* const own = VelRshParameterBase::From(iParameter);
  const HRESULT read = own != nullptr ? own->ReadConnection(hShader) : iParameter.GetConnection(hShader.Receive());
  return SUCCEEDED(read) ? hShader : VelIRshShader_var();
}
