// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelNotifications.cpp The meta-classes of the component's notifications.
#include "RenderingShader/interfaces/VelRshModelNotificationConnectedParameterChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterConnectionChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterShaderChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationValueChanged.h"

#define VEL_RSH_VALUE_NOTIFICATION(Name, ...)                                                                 \
  const VelMetaClass& Name::MetaObject() noexcept {                                                           \
    static const VelMetaClass& metaClass = fct_RetrieveMetaObject(                                            \
        #Name, &VelNotification::MetaObject(), VelTypeOfClass::Implementation, "VelNull", "RenderingShader"); \
    return metaClass;                                                                                         \
  }
VEL_RSH_VALUE_NOTIFICATION(VelRshModelNotificationConnectedParameterChanged)
VEL_RSH_VALUE_NOTIFICATION(VelRshModelNotificationParameterConnectionChanged)
VEL_RSH_VALUE_NOTIFICATION(VelRshModelNotificationParameterShaderChanged)
VEL_RSH_VALUE_NOTIFICATION(VelRshModelNotificationShaderParameterChanged)
#include "RenderingShader/interfaces/VelRshValueNotifications.def"
#undef VEL_RSH_VALUE_NOTIFICATION
