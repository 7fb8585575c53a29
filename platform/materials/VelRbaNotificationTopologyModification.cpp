// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaNotificationTopologyModification.cpp The notification that what a parameter of a shader refers to was
/// modified.
#include "platform/materials/VelRbaNotificationTopologyModification.h"

VelRbaNotificationTopologyModification::VelRbaNotificationTopologyModification(
    const VelString& iName, VelBaseUnknown* iObject, const VelInterfaceId& iInterface,
    const VelBaseUnknown_var& iPrevious, const VelBaseUnknown_var& iNext, const VelInterfaceId& iSubComponentsIID)
    : VelRbaTypedModifyNotification(iName, iObject, iInterface, iPrevious, iNext), subComponents_(&iSubComponentsIID) {}

VelRbaNotificationTopologyModification::~VelRbaNotificationTopologyModification() = default;

const VelMetaClass& VelRbaNotificationTopologyModification::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelRbaNotificationTopologyModification", &VelRbaShaderModifyNotification::MetaObject(),
                             VelTypeOfClass::Implementation);
  return metaClass;
}

VelNotification* VelRbaNotificationTopologyModification::Clone() const noexcept {
  return new VelRbaNotificationTopologyModification(*this);
}
