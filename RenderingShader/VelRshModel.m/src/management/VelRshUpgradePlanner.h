// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradePlanner.h Tells what the transfer of an upgrade does to a shader of its own.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADEPLANNER_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADEPLANNER_H

#include <cstddef>
#include <optional>
#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshUpgradePlan.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradeRehearsal.h"
#include "RenderingShader/VelRshModel.m/src/management/VelRshUpgradeTransfer.h"
#include "RenderingShader/interfaces/VelIRshShaderFactory.h"

/// Made for one plan, whose type is known, and run once.
class VelRshUpgradePlanner {
 public:
  VelRshUpgradePlanner(VelIRshShader& iShader, VelRshUpgradePlan& ioPlan)
      : shader_(iShader), plan_(ioPlan), rehearsal_(iShader, ioPlan.type) {}

  /// Fills in rows and result.
  /// @return S_OK; E_NOINTERFACE when there is no shader to try on
  HRESULT Run(VelIRshShaderFactory& ioFactory);

 private:
  using Row = VelRshUpgradePlanRow;
  using Step = VelRshUpgradeTransfer::Step;

  /// What is told of one parameter of before, or of today.
  struct Told {
    VelUnicodeString value;  ///< Of before; of today, the default.
    std::optional<std::size_t> partner;
    const Step* step = nullptr;  ///< Null where the partner has nothing but the name in common, and without one.
  };

  void Read(const VelRshUpgradeTransfer& iTransfer);
  void PairByName();
  void AddStop(bool iIsFactory);
  void AddParameter(std::size_t iNext);
  void AddConnections(std::size_t iNext);
  void AddDropped(std::size_t iOld);
  void AddMapping();
  bool IsConnectionKept(std::size_t iNext) const;

  /// @return a row about a parameter of today, one of before or both
  Row MakeRow(Row::Kind iKind, std::optional<std::size_t> iOld, std::optional<std::size_t> iNext) const;

  /// @return what becomes of the value of a parameter that takes over from one of before
  Row::Kind KindOfSuccession(const Row& iRow, std::size_t iNext) const;

  /// @return the value that a parameter of today will have
  VelUnicodeString ValueAfter(std::size_t iNext) const;

  VelIRshShader& shader_;
  VelRshUpgradePlan& plan_;
  VelRshUpgradeRehearsal rehearsal_;
  const VelRshUpgradeTransfer* transfer_ = nullptr;
  std::vector<Told> old_;
  std::vector<Told> new_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHUPGRADEPLANNER_H
