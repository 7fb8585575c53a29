// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshVizNotificationParameterSubstanceGraphOutputChanged.cpp The notification that the graph output changed
/// that feeds a parameter.
#include "RenderingShader/VelRshModel.m/include/VelRshVizNotificationParameterSubstanceGraphOutputChanged.h"

namespace {

constexpr int attributeKind = 2;  ///< The host's code of an attribute that is modified as a whole.

}  // namespace

VelRshVizNotificationParameterSubstanceGraphOutputChanged::VelRshVizNotificationParameterSubstanceGraphOutputChanged(
    VelIRshParameter& iParameter, VelIAlgSubstanceGraphOutput& iOutput)
    : VelModifyAttribut(iParameter.GetImpl(), nullptr, &VelIRshParameter::InterfaceId(), attributeKind),
      parameter_(iParameter),
      output_(iOutput) {}

VelRshVizNotificationParameterSubstanceGraphOutputChanged::
    ~VelRshVizNotificationParameterSubstanceGraphOutputChanged() = default;

const VelMetaClass& VelRshVizNotificationParameterSubstanceGraphOutputChanged::MetaObject() noexcept {
  static const VelMetaClass& metaClass = fct_RetrieveMetaObject(
      "VelRshVizNotificationParameterSubstanceGraphOutputChanged", &VelModifyAttribut::MetaObject(),
      VelTypeOfClass::Implementation, "VelNull", "RenderingShader");
  return metaClass;
}

VelNotification* VelRshVizNotificationParameterSubstanceGraphOutputChanged::Clone() const noexcept {
  return new VelRshVizNotificationParameterSubstanceGraphOutputChanged(parameter_, output_);
}

const char* VelRshVizNotificationParameterSubstanceGraphOutputChanged::ClassId() noexcept {
  return MetaObject().IdentifierName();
}
