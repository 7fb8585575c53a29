// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshValueText.h Writes values for people, without loss.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHVALUETEXT_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHVALUETEXT_H

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/base/HResult.h"
#include "platform/base/VelUnicodeString.h"
#include "platform/objectmodeler/VelBaseUnknown.h"

/// The locale plays no part. VelRshUpgradePlanRow describes the form.
class VelRshValueText {
 public:
  static std::string Of(std::span<const bool, 1> iValue);
  static std::string Of(std::span<const std::int32_t, 1> iValue);

  /// One number stands alone, several stand in parentheses.
  static std::string Of(std::span<const float> iValues);

  static std::string Of(std::span<const VelUnicodeString, 1> iValue);

  static std::string Of(VelBaseUnknown& iDocument);

  /// @return the name of a result code, for instance "E_FAIL"; its bits where it has none
  static std::string Of(HRESULT iCode);

  /// @return the text on one line, whatever it holds
  static std::string Escape(std::string_view iText);
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MANAGEMENT_VELRSHVALUETEXT_H
