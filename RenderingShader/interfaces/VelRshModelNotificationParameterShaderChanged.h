// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelNotificationParameterShaderChanged.h A parameter hands on what its shader told, to the shader that
/// is connected to it.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONPARAMETERSHADERCHANGED_H
#define RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONPARAMETERSHADERCHANGED_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/events/VelEventName.h"
#include "platform/events/VelNotification.h"
#include "platform/objectmodeler/VelBaseUnknown.h"

/// What a parameter's forwarding events carry: the event of its shader, the shader, and what the shader told.
class VEL_RSH_INTERFACES_API VelRshModelNotificationParameterShaderChanged final : public VelNotification {
 public:
  VEL_NOTIFICATION(VelRshModelNotificationParameterShaderChanged);

  /// @param[in] iEvent the event that the shader published
  /// @param[in] iPublisher any pointer that stands for the shader; not referenced
  /// @param[in] iInner what the shader told; lives as long as this
  VelRshModelNotificationParameterShaderChanged(VelEventName iEvent, VelBaseUnknown& iPublisher,
                                                const VelNotification& iInner) noexcept
      : event_(iEvent), publisher_(iPublisher), inner_(iInner) {}

  VelEventName GetEvent() const noexcept { return event_; }
  VelBaseUnknown& GetPublisher() const noexcept { return publisher_; }
  const VelNotification& GetInner() const noexcept { return inner_; }

 private:
  VelEventName event_;
  VelBaseUnknown& publisher_;
  const VelNotification& inner_;
};

#endif  // RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONPARAMETERSHADERCHANGED_H
