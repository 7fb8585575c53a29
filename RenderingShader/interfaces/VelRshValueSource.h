// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshValueSource.h A value that a caller hands over: a view from which elements are read.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHVALUESOURCE_H
#define RENDERINGSHADER_INTERFACES_VELRSHVALUESOURCE_H

#include "RenderingShader/interfaces/VelRshValueView.h"

/// What a caller sets. Implicit, so that a call reads `SetValue(&scale)` or `SetValue(color)`.
class VelRshValueSource : public VelRshValueView<const void> {
 public:
  /// One element; null is the null argument of the operation.
  template <class Element>
  VelRshValueSource(Element* const& iValue) noexcept  // NOLINT(google-explicit-constructor)
      : VelRshValueView(iValue, VelRshKindOf<std::remove_const_t<Element>>(), 1) {}

  /// All elements of an array.
  template <class Element, std::size_t Count>
  VelRshValueSource(const Element (&iValues)[Count]) noexcept  // NOLINT(google-explicit-constructor)
      : VelRshValueView(iValues, VelRshKindOf<Element>(), Count) {}

  /// @param[in] iValues iCount elements, or null
  template <class Element>
  VelRshValueSource(const Element* iValues, std::size_t iCount) noexcept
      : VelRshValueView(iValues, VelRshKindOf<Element>(), iCount) {}
};

#endif  // RENDERINGSHADER_INTERFACES_VELRSHVALUESOURCE_H
