// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradeStage.cpp Writes what it is told.
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradeStage.h"

#include "RenderingShader/VelRshModel.m/src/management/VelRshCarriedValue.h"

VelRshUpgradeStage::~VelRshUpgradeStage() = default;

HRESULT VelRshUpgradeStage::Carry(const VelString& iStartUp, VelIRshParameter& iOld, VelIRshParameter& ioNew) {
  return VelRshCarryValue(iStartUp, iOld, ioNew);
}

VelIRshShader_var VelRshUpgradeStage::StandInFor(const VelIRshShader_var& iConnected) { return iConnected; }
