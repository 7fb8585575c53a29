// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterValue.h Reads the value of a parameter as a plain number, a text or packed floats.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERVALUE_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERVALUE_H

#include <array>
#include <cstdint>

#include "RenderingShader/VelRshModel.m/include/VelRshModelApi.h"
#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/base/VelUnicodeString.h"

/// Conversions for those who render. A value of another type than the operation's, and one that cannot be read, gives
/// the neutral value that the operation names. Without state. Thread: the application thread.
class VEL_RSH_MODEL_API VelRshReaderParameterValue {
 public:
  using float3_t = std::array<float, 3>;
  using float4_t = std::array<float, 4>;

  /// @return the boolean; false when it cannot be read
  bool asBoolean(const VelIRshParameter& iParameter) const;

  /// @return the integer; 0 when it cannot be read
  std::int32_t asIntegral(const VelIRshParameter& iParameter) const;

  /// @return the scalar; the mean of red, green and blue of a colour; 0 when it cannot be read
  float asScalar(const VelIRshParameter& iParameter) const;

  /// @return the first three components of a vector or a colour; a scalar three times; zeros when it cannot be read
  float3_t asPackedScalar3(const VelIRshParameter& iParameter) const;

  /// @return the components of a colour; those of a vector and 1; a scalar four times; zeros when it cannot be read
  float4_t asPackedScalar4(const VelIRshParameter& iParameter) const;

  /// @return the text; an empty one when it cannot be read
  VelUnicodeString asUnicodeText(const VelIRshParameter& iParameter) const;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_VELRSHREADERPARAMETERVALUE_H
