// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshValueTarget.h Where a caller wants a value: a view into which elements are written.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHVALUETARGET_H
#define RENDERINGSHADER_INTERFACES_VELRSHVALUETARGET_H

#include "RenderingShader/interfaces/VelRshValueView.h"

/// Where a caller gets a value. Implicit, so that a call reads `GetValue(&scale)` or `GetValue(color)`.
class VelRshValueTarget : public VelRshValueView<void> {
 public:
  /// One element; null is the null argument of the operation.
  template <class Element>
  VelRshValueTarget(Element* const& oValue) noexcept  // NOLINT(google-explicit-constructor)
      : VelRshValueView(oValue, VelRshKindOf<Element>(), 1) {}

  /// All elements of an array.
  template <class Element, std::size_t Count>
  VelRshValueTarget(Element (&oValues)[Count]) noexcept  // NOLINT(google-explicit-constructor)
      : VelRshValueView(oValues, VelRshKindOf<Element>(), Count) {}

  /// @param[out] oValues room for iCount elements, or null
  template <class Element>
  VelRshValueTarget(Element* oValues, std::size_t iCount) noexcept
      : VelRshValueView(oValues, VelRshKindOf<Element>(), iCount) {}
};

#endif  // RENDERINGSHADER_INTERFACES_VELRSHVALUETARGET_H
