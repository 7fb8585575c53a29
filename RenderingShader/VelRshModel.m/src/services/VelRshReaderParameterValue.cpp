// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshReaderParameterValue.cpp Reads into a buffer of the conversion's own type.
#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterValue.h"

#include "RenderingShader/VelRshModel.m/include/VelRshReaderParameterType.h"

namespace {

using Float4 = VelRshReaderParameterValue::float4_t;

bool IsOfType(const VelIRshParameter& iParameter, VelRshReaderParameterType::Type iType) {
  return VelRshReaderParameterType()(iParameter) == iType;
}

/// @return what is read; the neutral value when that fails, also where the failure comes with a default
template <class Value>
Value Read(const VelIRshParameter& iParameter, const Value& iNeutral) {
  Value value = iNeutral;
  return SUCCEEDED(const_cast<VelIRshParameter&>(iParameter).GetValue(&value)) ? value : iNeutral;
}

/// Reads three or four floats; the fourth of three is 1.
/// @return false when that fails
bool ReadPacked(const VelIRshParameter& iParameter, Float4& oValues) {
  oValues = {0.0F, 0.0F, 0.0F, 1.0F};
  return SUCCEEDED(const_cast<VelIRshParameter&>(iParameter).GetValue({oValues.data(), oValues.size()}));
}

}  // namespace

bool VelRshReaderParameterValue::asBoolean(const VelIRshParameter& iParameter) const { return Read(iParameter, false); }

std::int32_t VelRshReaderParameterValue::asIntegral(const VelIRshParameter& iParameter) const {
  return Read(iParameter, std::int32_t{0});
}

float VelRshReaderParameterValue::asScalar(const VelIRshParameter& iParameter) const {
  if (!IsOfType(iParameter, VelRshReaderParameterType::Color)) return Read(iParameter, 0.0F);
  const auto [red, green, blue, alpha] = asPackedScalar4(iParameter);
  // Summed in this order and precision, so that every user gets the same last bit.
  const float sum = (green + red) + blue;
  return static_cast<float>(static_cast<double>(sum) / 3.0);
}

VelRshReaderParameterValue::float3_t VelRshReaderParameterValue::asPackedScalar3(
    const VelIRshParameter& iParameter) const {
  if (IsOfType(iParameter, VelRshReaderParameterType::Scalar)) {
    const float scalar = asScalar(iParameter);
    return {scalar, scalar, scalar};
  }
  Float4 values{};
  if (!ReadPacked(iParameter, values)) return {};
  return {values[0], values[1], values[2]};
}

VelRshReaderParameterValue::float4_t VelRshReaderParameterValue::asPackedScalar4(
    const VelIRshParameter& iParameter) const {
  if (IsOfType(iParameter, VelRshReaderParameterType::Scalar)) {
    const float scalar = asScalar(iParameter);
    return {scalar, scalar, scalar, scalar};
  }
  Float4 values{};
  return ReadPacked(iParameter, values) ? values : Float4{};
}

VelUnicodeString VelRshReaderParameterValue::asUnicodeText(const VelIRshParameter& iParameter) const {
  return Read(iParameter, VelUnicodeString());
}
