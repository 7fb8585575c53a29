// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelNotificationParameterConnectionChanged.h The connection of a parameter changed.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONPARAMETERCONNECTIONCHANGED_H
#define RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONPARAMETERCONNECTIONCHANGED_H

#include <utility>

#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/events/VelNotification.h"

/// The shaders that were and are connected.
class VEL_RSH_INTERFACES_API VelRshModelNotificationParameterConnectionChanged final : public VelNotification {
 public:
  VEL_NOTIFICATION(VelRshModelNotificationParameterConnectionChanged);

  VelRshModelNotificationParameterConnectionChanged(VelIRshShader_var iPrevious, VelIRshShader_var iNext) noexcept
      : previous_(std::move(iPrevious)), next_(std::move(iNext)) {}

  /// @return the shader that was connected, empty for none
  const VelIRshShader_var& GetPrevious() const noexcept { return previous_; }

  /// @return the shader that is connected, empty for none
  const VelIRshShader_var& GetNext() const noexcept { return next_; }

 private:
  VelIRshShader_var previous_;
  VelIRshShader_var next_;
};

#endif  // RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONPARAMETERCONNECTIONCHANGED_H
