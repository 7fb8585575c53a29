// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelAlgVizNotificationSubstanceGraphOutputChanged.cpp The notification that an output of a graph changed.
#include "platform/substance/VelAlgVizNotificationSubstanceGraphOutputChanged.h"

VelAlgVizNotificationSubstanceGraphOutputChanged::VelAlgVizNotificationSubstanceGraphOutputChanged(
    VelIAlgSubstanceGraphOutput& iOutput) noexcept
    : output_(&iOutput) {}

VelAlgVizNotificationSubstanceGraphOutputChanged::~VelAlgVizNotificationSubstanceGraphOutputChanged() = default;

const VelMetaClass& VelAlgVizNotificationSubstanceGraphOutputChanged::MetaObject() noexcept {
  static const VelMetaClass& metaClass = fct_RetrieveMetaObject(
      "VelAlgVizNotificationSubstanceGraphOutputChanged", &VelModelEntityNotification::MetaObject(),
      VelTypeOfClass::Implementation, "VelNull", "PlatformSubstance");
  return metaClass;
}

VelNotification* VelAlgVizNotificationSubstanceGraphOutputChanged::Clone() const noexcept {
  return new VelAlgVizNotificationSubstanceGraphOutputChanged(*this);
}
