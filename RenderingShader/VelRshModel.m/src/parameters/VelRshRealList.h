// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshRealList.h Reads and writes values that are lists of reals.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHREALLIST_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHREALLIST_H

#include <array>

#include "RenderingShader/VelRshModel.m/src/services/VelRshAttribute.h"
#include "platform/base/HResult.h"

class VelRshRealList {
 public:
  /// Reads the first elements of a list.
  /// @return S_OK; E_FAIL, with oValues untouched, when the list has fewer elements or no value
  template <std::size_t Count>
  static HRESULT Read(const VelRshAttribute& iAttribute, std::array<float, Count>& oValues) {
    std::array<float, Count> values{};
    for (std::size_t i = 0; i < Count; ++i) {
      double real = 0.0;
      if (FAILED(iAttribute->GetRealAt(iAttribute.Key(), static_cast<int>(i) + 1, real))) return E_FAIL;
      values[i] = static_cast<float>(real);
    }
    oValues = values;
    return S_OK;
  }

  /// Replaces a list.
  /// @return S_OK; a failure, with nothing written, when the catalog gives no room for so many elements
  template <std::size_t Count>
  static HRESULT Write(const VelRshAttribute& iAttribute, const std::array<float, Count>& iValues) {
    std::array<double, Count> reals{};
    for (std::size_t i = 0; i < Count; ++i) reals[i] = static_cast<double>(iValues[i]);
    return iAttribute->SetReals(iAttribute.Key(), reals.data(), static_cast<int>(Count));
  }
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_PARAMETERS_VELRSHREALLIST_H
