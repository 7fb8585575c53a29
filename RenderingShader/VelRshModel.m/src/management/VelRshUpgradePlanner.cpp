// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradePlanner.cpp Makes the rows of a plan.
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradePlanner.h"

#include <utility>

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterCollection.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshValueCopy.h"

namespace {

using Kind = VelRshUpgradePlanRow::Kind;
using ValueKind = VelRshValueCopy::Kind;

VelString TypeOf(const VelIRshShader_var& iShader) {
  VelString type;
  static_cast<void>(iShader->GetType(type));
  return type;
}

int PositionOf(const std::optional<std::size_t>& iPlace) { return iPlace ? static_cast<int>(*iPlace) + 1 : 0; }

bool HoldTheSameDocument(VelIRshParameter& iLeft, VelIRshParameter& iRight) {
  VelBaseUnknown_var hLeft;
  VelBaseUnknown_var hRight;
  static_cast<void>(iLeft.GetValue(hLeft.Receive()));
  static_cast<void>(iRight.GetValue(hRight.Receive()));
  return hLeft && hRight ? hLeft->IsEqual(hRight.Get()) : !hLeft && !hRight;
}

}  // namespace

HRESULT VelRshUpgradePlanner::Run(VelIRshShaderFactory& ioFactory) {
  const VelIRshShader_var& hTried = rehearsal_.Shader();
  if (!hTried) return E_NOINTERFACE;
  const HRESULT initialized = ioFactory.InitializeShader(hTried.Get(), 0);
  const VelRshReaderParameterCollection collection;
  VelRshUpgradeTransfer transfer(collection(shader_), collection(*hTried));
  Read(transfer);
  plan_.result = SUCCEEDED(initialized) ? transfer.Perform(rehearsal_) : initialized;
  if (FAILED(plan_.result)) AddStop(FAILED(initialized));
  for (std::size_t next = 0; next < new_.size(); ++next) {
    AddParameter(next);
    AddConnections(next);
  }
  for (std::size_t old = 0; old < old_.size(); ++old) {
    if (!old_[old].partner) AddDropped(old);
  }
  AddMapping();
  return S_OK;
}

/// Before anything is carried over: the defaults are what stands there now.
void VelRshUpgradePlanner::Read(const VelRshUpgradeTransfer& iTransfer) {
  const auto read = [](const VelRshUpgradeTransfer::Parameter& iParameter) {
    return Told{VelRshValueCopy::TextOf(iParameter.startUp, *iParameter.hParameter), std::nullopt, nullptr};
  };
  transfer_ = &iTransfer;
  for (const auto& parameter : iTransfer.Old()) old_.push_back(read(parameter));
  for (const auto& parameter : iTransfer.New()) new_.push_back(read(parameter));
  for (const Step& step : iTransfer.Steps()) {
    old_[step.old].partner = step.next;
    new_[step.next].partner = step.old;
    new_[step.next].step = &step;
  }
  PairByName();
}

/// What is left and has a name in common has changed its type.
void VelRshUpgradePlanner::PairByName() {
  for (std::size_t old = 0; old < old_.size(); ++old) {
    if (old_[old].partner || !transfer_->Old()[old].isDescribed) continue;
    for (std::size_t next = 0; next < new_.size(); ++next) {
      if (new_[next].partner || !transfer_->New()[next].isDescribed) continue;
      if (transfer_->New()[next].name != transfer_->Old()[old].name) continue;
      old_[old].partner = next;
      new_[next].partner = old;
      break;
    }
  }
}

VelRshUpgradePlanRow VelRshUpgradePlanner::MakeRow(Row::Kind iKind, std::optional<std::size_t> iOld,
                                                   std::optional<std::size_t> iNext) const {
  Row row;
  row.kind = iKind;
  row.position = PositionOf(iNext);
  row.formerPosition = PositionOf(iOld);
  if (iOld) {
    row.parameter = transfer_->Old()[*iOld].name;
    row.formerStartUp = transfer_->Old()[*iOld].startUp;
    row.before = old_[*iOld].value;
  }
  if (iNext) {
    row.parameter = transfer_->New()[*iNext].name;
    row.startUp = transfer_->New()[*iNext].startUp;
    row.standard = new_[*iNext].value;
    row.after = ValueAfter(*iNext);
  }
  return row;
}

VelUnicodeString VelRshUpgradePlanner::ValueAfter(std::size_t iNext) const {
  const VelRshUpgradeTransfer::Parameter& parameter = transfer_->New()[iNext];
  const Step* const step = new_[iNext].step;
  const bool isCarried = step != nullptr && step->isCarried;
  // The rehearsal links no document.
  if (isCarried && VelRshValueCopy::KindOf(parameter.startUp) == ValueKind::Document) {
    const VelUnicodeString& before = old_[step->old].value;
    return before.IsEmpty() ? new_[iNext].value : before;
  }
  return VelRshValueCopy::TextOf(parameter.startUp, *parameter.hParameter);
}

void VelRshUpgradePlanner::AddStop(bool iIsFactory) {
  Row row;
  row.kind = Kind::Stops;
  row.code = plan_.result;
  if (const std::optional<std::size_t> place = transfer_->StoppedAt(); place && !iIsFactory) {
    const VelRshUpgradeTransfer::Parameter& old = transfer_->Old()[*place];
    row.parameter = old.name;
    if (old.isDescribed) row.formerStartUp = old.startUp;
    row.formerPosition = PositionOf(place);
  }
  plan_.rows.push_back(std::move(row));
}

void VelRshUpgradePlanner::AddParameter(std::size_t iNext) {
  const std::optional<std::size_t> old = new_[iNext].partner;
  Row row = MakeRow(old ? Kind::Retyped : Kind::Added, old, iNext);
  if (new_[iNext].step != nullptr) row.kind = KindOfSuccession(row, iNext);
  plan_.rows.push_back(std::move(row));
}

VelRshUpgradePlanRow::Kind VelRshUpgradePlanner::KindOfSuccession(const Row& iRow, std::size_t iNext) const {
  const ValueKind kind = VelRshValueCopy::KindOf(iRow.startUp);
  // Of a value of an unknown kind nobody can tell whether it is the same.
  if (kind == ValueKind::Unknown || iRow.after != iRow.before) return Kind::Replaced;
  if (iRow.after != iRow.standard) return Kind::KeptOverDefault;
  if (kind != ValueKind::Document) return Kind::Kept;
  // Two documents may have one name. The rehearsal links none, so today's parameter still holds its default.
  const Step& step = *new_[iNext].step;
  const bool isDefault =
      HoldTheSameDocument(*transfer_->Old()[step.old].hParameter, *transfer_->New()[iNext].hParameter);
  if (isDefault) return Kind::Kept;
  return step.isCarried ? Kind::KeptOverDefault : Kind::Replaced;
}

bool VelRshUpgradePlanner::IsConnectionKept(std::size_t iNext) const {
  return SUCCEEDED(plan_.result) && new_[iNext].step != nullptr;
}

void VelRshUpgradePlanner::AddConnections(std::size_t iNext) {
  const std::optional<std::size_t> old = new_[iNext].partner;
  const VelIRshShader_var hBefore =
      old ? VelRshUpgradeTransfer::ConnectionOf(*transfer_->Old()[*old].hParameter) : VelIRshShader_var();
  if (hBefore) {
    Row row = MakeRow(IsConnectionKept(iNext) ? Kind::ConnectionKept : Kind::ConnectionLost, old, iNext);
    row.shader = hBefore;
    row.shaderType = TypeOf(hBefore);
    plan_.rows.push_back(std::move(row));
    if (IsConnectionKept(iNext)) return;
  }
  const VelIRshShader_var hMade = VelRshUpgradeTransfer::ConnectionOf(*transfer_->New()[iNext].hParameter);
  if (!hMade) return;
  Row row = MakeRow(Kind::ConnectionMade, old, iNext);
  row.shaderType = TypeOf(hMade);
  if (!rehearsal_.Holds(*hMade)) row.shader = hMade;
  plan_.rows.push_back(std::move(row));
}

void VelRshUpgradePlanner::AddDropped(std::size_t iOld) {
  plan_.rows.push_back(MakeRow(Kind::Dropped, iOld, std::nullopt));
  const VelIRshShader_var hBefore = VelRshUpgradeTransfer::ConnectionOf(*transfer_->Old()[iOld].hParameter);
  if (!hBefore) return;
  Row row = MakeRow(Kind::ConnectionLost, iOld, std::nullopt);
  row.shader = hBefore;
  row.shaderType = TypeOf(hBefore);
  plan_.rows.push_back(std::move(row));
}

void VelRshUpgradePlanner::AddMapping() {
  for (const VelRshUpgradeRehearsal::StandIn& standIn : rehearsal_.StandIns()) {
    for (const VelRshUpgradeRehearsal::Follower& follower : standIn.followers) {
      Row row;
      row.kind = Kind::MappingTaken;
      static_cast<void>(follower.hReal->GetType(row.startUp));
      row.before = VelRshValueCopy::TextOf(row.startUp, *follower.hReal);
      row.after = VelRshValueCopy::TextOf(row.startUp, *follower.hStandIn);
      if (row.after == row.before) continue;
      static_cast<void>(follower.hReal->GetName(row.parameter));
      row.formerStartUp = row.startUp;
      row.position = follower.position;
      row.formerPosition = follower.position;
      row.shader = standIn.hReal;
      row.shaderType = TypeOf(standIn.hReal);
      plan_.rows.push_back(std::move(row));
    }
  }
}
