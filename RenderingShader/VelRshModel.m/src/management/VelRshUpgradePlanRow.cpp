// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshUpgradePlanRow.cpp The sentences of a plan.
#include "RenderingShader/VelRshModel.m/include/VelRshUpgradePlanRow.h"

#include "RenderingShader/VelRshModel.m/src/management/VelRshValueText.h"
#include "platform/base/VelFormat.h"

namespace {

using Row = VelRshUpgradePlanRow;

/// @return the name in quotes, the place where there is none
std::string NameOf(const Row& iRow) {
  if (!iRow.parameter.IsEmpty()) return "'" + VelRshValueText::Escape(iRow.parameter.View()) + "'";
  return VelFormat::ToText("parameter %d", iRow.formerPosition != 0 ? iRow.formerPosition : iRow.position);
}

std::string TypeOf(const Row& iRow) { return VelRshValueText::Escape(iRow.shaderType.View()); }

/// A value after what leads up to it; nothing where there is none.
std::string With(const char* iLead, const VelUnicodeString& iValue) {
  return iValue.IsEmpty() ? std::string() : iLead + std::string(iValue.View());
}

std::string StopOf(const Row& iRow) {
  constexpr const char* rest = "no value is carried over from there on, and no connection";
  const std::string code = VelRshValueText::Of(iRow.code);
  if (iRow.formerPosition == 0) {
    return VelFormat::ToText(
        "The factory fails with %s: no value and no connection is carried over, and a copy of the shader as it was "
        "stays in its container",
        code);
  }
  // What can be read has a type.
  if (iRow.formerStartUp.IsEmpty()) {
    return VelFormat::ToText("The upgrade stops with %s at %s, whose name or type cannot be read: %s", code,
                             NameOf(iRow), rest);
  }
  return VelFormat::ToText("The upgrade stops with %s at %s, whose value cannot be carried over: %s", code,
                           NameOf(iRow), rest);
}

std::string ReplacementOf(const Row& iRow) {
  if (iRow.before.IsEmpty() && iRow.after.IsEmpty()) return " is not carried over";
  if (iRow.before.IsEmpty()) return With(" had no value and takes ", iRow.after);
  return With(" loses ", iRow.before) + With(" and takes ", iRow.after);
}

std::string SentenceOf(const Row& iRow) {
  switch (iRow.kind) {
    case Row::Kind::Stops:
      return StopOf(iRow);
    case Row::Kind::Kept:
      return NameOf(iRow) + (iRow.after.IsEmpty() ? " stays" : With(" keeps ", iRow.after));
    case Row::Kind::KeptOverDefault:
      return NameOf(iRow) + With(" keeps ", iRow.after) +
             (iRow.standard.IsEmpty() ? "; it has no default" : With("; its default is ", iRow.standard));
    case Row::Kind::Replaced:
      return NameOf(iRow) + ReplacementOf(iRow);
    case Row::Kind::Added:
      return NameOf(iRow) + " is new" + With(", with ", iRow.after);
    case Row::Kind::Retyped:
      return NameOf(iRow) + " was " + std::string(iRow.formerStartUp.View()) + With(" ", iRow.before) + " and is " +
             std::string(iRow.startUp.View()) + With(" ", iRow.after);
    case Row::Kind::Dropped:
      return NameOf(iRow) + " goes" + With(", and with it ", iRow.before);
    case Row::Kind::ConnectionKept:
      return NameOf(iRow) + " stays connected to " + TypeOf(iRow);
    case Row::Kind::ConnectionLost:
      return NameOf(iRow) + " loses its connection to " + TypeOf(iRow);
    case Row::Kind::ConnectionMade:
      return NameOf(iRow) + " is connected to a" + (iRow.shader ? " " : " new ") + TypeOf(iRow);
    case Row::Kind::MappingTaken:
      return NameOf(iRow) + " of " + TypeOf(iRow) + With(" takes ", iRow.after) + With(" instead of ", iRow.before);
  }
  return {};
}

}  // namespace

VelUnicodeString VelRshUpgradePlanRow::Text() const { return VelUnicodeString(SentenceOf(*this)); }
