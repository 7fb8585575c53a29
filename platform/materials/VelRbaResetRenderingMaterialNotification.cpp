// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaResetRenderingMaterialNotification.cpp The notification that a parameter shall go back to its default
/// value.
#include "platform/materials/VelRbaResetRenderingMaterialNotification.h"

VelRbaResetRenderingMaterialNotification::VelRbaResetRenderingMaterialNotification(VelBaseUnknown* iObject) noexcept
    : object_(iObject) {}

VelRbaResetRenderingMaterialNotification::~VelRbaResetRenderingMaterialNotification() = default;

const VelMetaClass& VelRbaResetRenderingMaterialNotification::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelRbaResetRenderingMaterialNotification", &VelModelEntityNotification::MetaObject(),
                             VelTypeOfClass::Implementation);
  return metaClass;
}

VelNotification* VelRbaResetRenderingMaterialNotification::Clone() const noexcept {
  return new VelRbaResetRenderingMaterialNotification(*this);
}
