// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExSwatchColor.cpp Keeps the colour of a swatch.
#include "examples/first_component/module/VelExSwatchColor.h"

#include <algorithm>
#include <array>

#include "platform/trace/QrnSysTrace.h"
#include "platform/trace/VelClassTrace.h"

namespace {

constinit VelClassTrace classTrace{"VelExSwatchColor"};

std::array<float, 3> ComponentsOf(const VelExRgb& iColor) { return {iColor.red, iColor.green, iColor.blue}; }

}  // namespace

VelExSwatchColor::VelExSwatchColor(VelComponent& iSwatch) : VelImplementation(iSwatch) {
  classTrace.Print(1, "(VelExSwatchColor::VelExSwatchColor) Constructor\n");
}

VelExSwatchColor::~VelExSwatchColor() { classTrace.Print(1, "(VelExSwatchColor::~VelExSwatchColor) Done\n"); }

HRESULT VelExSwatchColor::SetColor(const VelExRgb& iColor) {
  const auto components = ComponentsOf(iColor);
  if (!std::all_of(components.begin(), components.end(), [](float iPart) { return iPart >= 0 && iPart <= 1; })) {
    return E_INVALIDARG;
  }
  if (color_ && ComponentsOf(*color_) == components) return S_FALSE;
  color_ = iColor;
  QrnSysTrace* trace = QrnSysTraceCreate("VelExSwatch");
  if (trace != nullptr) {
    trace->Info("Colour changed { red = %.3f, green = %.3f, blue = %.3f }", iColor.red, iColor.green, iColor.blue);
  }
  QrnSysTraceDestroy(trace);
  return S_OK;
}

HRESULT VelExSwatchColor::GetColor(VelExRgb& oColor) {
  if (!color_) return E_FAIL;
  oColor = *color_;
  return S_OK;
}
