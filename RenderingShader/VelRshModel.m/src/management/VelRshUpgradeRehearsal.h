// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradeRehearsal.h A shader of a plan's own, in a container of its own, to which an upgrade is tried.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADEREHEARSAL_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADEREHEARSAL_H

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradeStage.h"
#include "platform/featuremodeler/VelIContainer.h"

/// The shaders connected to the one to be upgraded are stood in for, with whatever of them a value can follow, so that
/// the component's own events decide what follows. Nothing is written to the real ones, and none of the shader's
/// documents is linked. Traces are muted by whoever makes it.
class VelRshUpgradeRehearsal final : public VelRshUpgradeStage {
 public:
  /// A parameter that may follow, and the one that stands in for it.
  struct Follower {
    VelIRshParameter_var hReal;
    VelIRshParameter_var hStandIn;
    int position;  ///< Of the real one in its shader, from 1.
  };
  struct StandIn {
    VelIRshShader_var hReal;
    VelIRshShader_var hStandIn;
    std::vector<Follower> followers;
  };

  /// @param[in] iShader the shader to be upgraded
  /// @param[in] iType its type
  VelRshUpgradeRehearsal(VelIRshShader& iShader, const VelString& iType);
  ~VelRshUpgradeRehearsal() override;

  /// @return the shader to try on, which has the type and what else the real one says of itself, but no parameters;
  ///         empty where it cannot be made
  const VelIRshShader_var& Shader() const noexcept { return hShader_; }

  /// @return true for a shader that was made for the rehearsal, false for one that somebody else has
  bool Holds(VelIRshShader& iShader) const;

  /// A document is read only.
  HRESULT Carry(const VelString& iStartUp, VelIRshParameter& iOld, VelIRshParameter& ioNew) override;

  VelIRshShader_var StandInFor(const VelIRshShader_var& iConnected) override;

  /// @return the shaders stood in for, in the order in which they were needed, each before those behind it
  const std::vector<StandIn>& StandIns() const noexcept { return standIns_; }

 private:
  /// @return the stand-in of a shader, one without parameters where it is not known yet
  VelIRshShader_var FindOrMake(const VelIRshShader_var& iReal);

  /// Gives a stand-in what can follow, with the values and connections of now.
  void Furnish(std::size_t iStandIn);

  VelIRshShader& real_;
  VelIContainer_var hContainer_;
  std::optional<VelRshModelFactoryFeature> factory_;
  VelIRshShader_var hShader_;
  std::vector<StandIn> standIns_;
  std::unordered_map<const VelComponent*, std::size_t> places_;  ///< Of the real shaders, in standIns_.
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADEREHEARSAL_H
