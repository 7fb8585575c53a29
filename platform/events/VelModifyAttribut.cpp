// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModifyAttribut.cpp The notification that an attribute of an object was modified.
#include "platform/events/VelModifyAttribut.h"

VelModifyAttribut::VelModifyAttribut(VelBaseUnknown* iModifiedObject, VelISpecAttrKey* iAttribute,
                                     const VelInterfaceId* iInterface, int iAttributeKind,
                                     const VelUnicodeString& iPathElement)
    : modifiedObject_(iModifiedObject),
      attribute_(iAttribute),
      interface_(iInterface),
      attributeKind_(iAttributeKind),
      pathElement_(iPathElement) {}

VelModifyAttribut::~VelModifyAttribut() = default;

const VelMetaClass& VelModifyAttribut::MetaObject() noexcept {
  static const VelMetaClass& metaClass = fct_RetrieveMetaObject(
      "VelModifyAttribut", &VelModelEntityNotification::MetaObject(), VelTypeOfClass::Implementation);
  return metaClass;
}

VelNotification* VelModifyAttribut::Clone() const noexcept { return new VelModifyAttribut(*this); }
