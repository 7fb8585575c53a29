// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshPropagation.h Keeps the propagation of values from running away.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPROPAGATION_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPROPAGATION_H

class VelRshParameterBase;

/// A value that a parameter is taking over from the shader above, as long as it lives. Taking over makes further
/// parameters take over; a chain of more than 256 is cut, with a check.
class VelRshPropagation {
 public:
  explicit VelRshPropagation(const VelRshParameterBase& iParameter) noexcept;
  ~VelRshPropagation();
  VelRshPropagation(const VelRshPropagation&) = delete;
  VelRshPropagation& operator=(const VelRshPropagation&) = delete;

  /// @return false when the chain is too long; reported once
  bool MayGoOn() const noexcept;

  /// @return true while a parameter is taking over a value, anywhere up the chain
  static bool IsRunningFor(const VelRshParameterBase& iParameter) noexcept;

 private:
  static const VelRshPropagation* innermost;

  const VelRshParameterBase& parameter_;
  const VelRshPropagation* outer_;
  int depth_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHPROPAGATION_H
