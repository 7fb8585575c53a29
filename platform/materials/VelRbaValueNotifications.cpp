// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRbaValueNotifications.cpp What the notifications of modified values define, from one table of them.
#include "platform/materials/VelRbaBooleanShaderModifyNotification.h"
#include "platform/materials/VelRbaColorShaderModifyNotification.h"
#include "platform/materials/VelRbaFloatShaderModifyNotification.h"
#include "platform/materials/VelRbaIntegralShaderModifyNotification.h"
#include "platform/materials/VelRbaStringShaderModifyNotification.h"

// A row per class. They differ only in the type that their headers name.
#define VEL_VALUE_NOTIFICATION(Class)                                                                                  \
  Class::~Class() = default;                                                                                           \
  const VelMetaClass& Class::MetaObject() noexcept {                                                                   \
    static const VelMetaClass& metaClass =                                                                             \
        fct_RetrieveMetaObject(#Class, &VelRbaShaderModifyNotification::MetaObject(), VelTypeOfClass::Implementation); \
    return metaClass;                                                                                                  \
  }                                                                                                                    \
  VelNotification* Class::Clone() const noexcept { return new Class(*this); }

VEL_VALUE_NOTIFICATION(VelRbaBooleanShaderModifyNotification)
VEL_VALUE_NOTIFICATION(VelRbaIntegralShaderModifyNotification)
VEL_VALUE_NOTIFICATION(VelRbaFloatShaderModifyNotification)
VEL_VALUE_NOTIFICATION(VelRbaColorShaderModifyNotification)
VEL_VALUE_NOTIFICATION(VelRbaStringShaderModifyNotification)
