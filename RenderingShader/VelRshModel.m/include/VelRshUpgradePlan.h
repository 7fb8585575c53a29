// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradePlan.h What the upgrade of a shader would do.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHUPGRADEPLAN_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHUPGRADEPLAN_H

#include <cstdint>
#include <vector>

#include "RenderingShader/VelRshModel.m/include/VelRshUpgradePlanRow.h"

/// Made by VelRshShaderManager::PlanUpgrade, which says for how long it holds. It refers to the shaders that it names,
/// as any handle does. Thread: the application thread.
struct VEL_RSH_MODEL_API VelRshUpgradePlan {
  VelString type;              ///< The shader's type; empty where it cannot be read.
  std::uint32_t from = 0;      ///< The version of the shader; 0 where it cannot be read.
  std::uint32_t to = 0;        ///< The version of its type; 0 where it cannot be had.
  HRESULT result = S_OK;       ///< What UpgradeShader would answer.
  bool changesShader = false;  ///< Whether UpgradeShader would touch the shader at all. Where not, there are no rows.

  /// First a stop; then what the shader will consist of, in that order, each parameter with its connection below it;
  /// then what goes, in the order of before; then the values of connected shaders, each shader before those behind it.
  std::vector<VelRshUpgradePlanRow> rows;

  /// @return what it is about, without a line end: "BasicMaterial from version 1 to 2", "BasicMaterial is of version 2
  ///         already", "BasicMaterial cannot be upgraded: E_FAIL"; "No shader has been planned" of one that was not
  ///         made
  VelUnicodeString Heading() const;

  /// @return the heading, and below it the text of each row after two blanks; each line with its end
  VelUnicodeString Text() const;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHUPGRADEPLAN_H
