// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradePlan.cpp The text of a plan.
#include "RenderingShader/VelRshModel.m/include/VelRshUpgradePlan.h"

#include "RenderingShader/VelRshModel.m/src/management/VelRshValueText.h"
#include "platform/base/VelFormat.h"

VelUnicodeString VelRshUpgradePlan::Heading() const {
  if (type.IsEmpty() && SUCCEEDED(result)) return "No shader has been planned";
  const std::string name = type.IsEmpty() ? "The shader" : VelRshValueText::Escape(type.View());
  if (changesShader) return VelUnicodeString(VelFormat::ToText("%s from version %u to %u", name, from, to));
  if (SUCCEEDED(result)) return VelUnicodeString(VelFormat::ToText("%s is of version %u already", name, to));
  return VelUnicodeString(VelFormat::ToText("%s cannot be upgraded: %s", name, VelRshValueText::Of(result)));
}

VelUnicodeString VelRshUpgradePlan::Text() const {
  VelUnicodeString text = Heading() + "\n";
  for (const VelRshUpgradePlanRow& row : rows) text += "  " + row.Text() + "\n";
  return text;
}
