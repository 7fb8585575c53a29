// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshValueElements.h How a parameter's value lies in memory, as views see it.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHVALUEELEMENTS_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHVALUEELEMENTS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "RenderingShader/interfaces/VelRshValueSource.h"
#include "RenderingShader/interfaces/VelRshValueTarget.h"

/// The elements of a value: itself, or those of an array.
template <class Value>
struct VelRshValueElements {
  using Element = Value;
  static constexpr std::uint32_t count = 1;
  static Element* Of(Value& iValue) noexcept { return &iValue; }
};

template <class ArrayElement, std::size_t Count>
struct VelRshValueElements<std::array<ArrayElement, Count>> {
  using Element = ArrayElement;
  static constexpr std::uint32_t count = Count;
  static Element* Of(std::array<ArrayElement, Count>& iValue) noexcept { return iValue.data(); }
};

/// Copies a caller's value.
/// @return false, with nothing copied, when the view is of another kind or too small
template <class Value>
bool VelRshTake(VelRshValueSource iSource, Value& oValue) {
  using Elements = VelRshValueElements<Value>;
  const auto* from = iSource.As<typename Elements::Element>(Elements::count);
  if (from == nullptr) return false;
  for (std::uint32_t i = 0; i < Elements::count; ++i) Elements::Of(oValue)[i] = from[i];
  return true;
}

/// Copies a value to where a caller wants it; what the view has beyond it stays.
/// @return false, with nothing copied, when the view is of another kind or too small
template <class Value>
bool VelRshGive(Value iValue, VelRshValueTarget iTarget) {
  using Elements = VelRshValueElements<Value>;
  auto* to = iTarget.As<typename Elements::Element>(Elements::count);
  if (to == nullptr) return false;
  for (std::uint32_t i = 0; i < Elements::count; ++i) to[i] = std::move(Elements::Of(iValue)[i]);
  return true;
}

/// @return true when a view can take a value of the type
template <class Value>
bool VelRshFits(VelRshValueTarget iTarget) noexcept {
  using Elements = VelRshValueElements<Value>;
  return iTarget.As<typename Elements::Element>(Elements::count) != nullptr;
}

/// @return a view of a whole value
template <class Value>
VelRshValueTarget VelRshTargetOf(Value& oValue) noexcept {
  using Elements = VelRshValueElements<Value>;
  return VelRshValueTarget(Elements::Of(oValue), Elements::count);
}

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHVALUEELEMENTS_H
