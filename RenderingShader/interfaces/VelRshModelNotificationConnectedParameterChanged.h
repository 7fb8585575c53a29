// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelNotificationConnectedParameterChanged.h A parameter tells that something changed in the shader that
/// is connected to it.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONCONNECTEDPARAMETERCHANGED_H
#define RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONCONNECTEDPARAMETERCHANGED_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/events/VelNotification.h"
#include "platform/objectmodeler/VelBaseUnknown.h"

/// What a parameter's events about its connected shader carry: the shader, and what it told.
class VEL_RSH_INTERFACES_API VelRshModelNotificationConnectedParameterChanged final : public VelNotification {
 public:
  VEL_NOTIFICATION(VelRshModelNotificationConnectedParameterChanged);

  /// @param[in] iPublisher any pointer that stands for the connected shader; not referenced
  /// @param[in] iInner what the shader told; lives as long as this
  VelRshModelNotificationConnectedParameterChanged(VelBaseUnknown& iPublisher, const VelNotification& iInner) noexcept
      : publisher_(iPublisher), inner_(iInner) {}

  VelBaseUnknown& GetPublisher() const noexcept { return publisher_; }
  const VelNotification& GetInner() const noexcept { return inner_; }

 private:
  VelBaseUnknown& publisher_;
  const VelNotification& inner_;
};

#endif  // RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONCONNECTEDPARAMETERCHANGED_H
