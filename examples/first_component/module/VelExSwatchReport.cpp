// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExSwatchReport.cpp Puts a swatch into words.
#include "examples/first_component/module/VelExSwatchReport.h"

#include "examples/first_component/interfaces/VelIExColor.h"
#include "platform/base/VelFormat.h"

HRESULT VelExSwatchReport::Describe(VelString& oText) {
  const VelIExColor_var hColor(GetComponent());
  VelExRgb color{};
  if (!hColor) return E_FAIL;
  VEL_RETURN_IF_FAILED(hColor->GetColor(color));
  oText = VelString(
      VelFormat::ToText("a swatch of red %.3f, green %.3f and blue %.3f", color.red, color.green, color.blue));
  return S_OK;
}
