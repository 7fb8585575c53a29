// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradeStage.h What an upgrade writes to.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADESTAGE_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADESTAGE_H

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "RenderingShader/interfaces/VelIRshShader.h"

/// The real thing. A rehearsal differs in that the shaders around are not to notice.
class VelRshUpgradeStage {
 public:
  VelRshUpgradeStage() = default;
  virtual ~VelRshUpgradeStage();
  VelRshUpgradeStage(const VelRshUpgradeStage&) = delete;
  VelRshUpgradeStage& operator=(const VelRshUpgradeStage&) = delete;

  /// Carries a value over.
  /// @return as VelRshCarryValue
  virtual HRESULT Carry(const VelString& iStartUp, VelIRshParameter& iOld, VelIRshParameter& ioNew);

  /// @return the shader to connect to, for one that the parameter of before is connected to
  virtual VelIRshShader_var StandInFor(const VelIRshShader_var& iConnected);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADESTAGE_H
