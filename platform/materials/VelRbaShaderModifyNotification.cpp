// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaShaderModifyNotification.cpp The base of notifications that a parameter of a shader was modified.
#include "platform/materials/VelRbaShaderModifyNotification.h"

VelRbaShaderModifyNotification::VelRbaShaderModifyNotification(const VelString& iName, VelBaseUnknown* iObject,
                                                               const VelInterfaceId& iInterface)
    : name_(iName), object_(iObject), interface_(&iInterface) {}

VelRbaShaderModifyNotification::~VelRbaShaderModifyNotification() = default;

const VelMetaClass& VelRbaShaderModifyNotification::MetaObject() noexcept {
  static const VelMetaClass& metaClass = fct_RetrieveMetaObject(
      "VelRbaShaderModifyNotification", &VelModelEntityNotification::MetaObject(), VelTypeOfClass::Implementation);
  return metaClass;
}
