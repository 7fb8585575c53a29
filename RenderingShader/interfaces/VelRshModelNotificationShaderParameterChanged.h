// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelNotificationShaderParameterChanged.h A shader tells that one of its parameters told something.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONSHADERPARAMETERCHANGED_H
#define RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONSHADERPARAMETERCHANGED_H

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/events/VelNotification.h"

/// What the events of VelRshShaderPublisherEvents carry: the parameter that published, and what it published.
class VEL_RSH_INTERFACES_API VelRshModelNotificationShaderParameterChanged final : public VelNotification {
 public:
  VEL_NOTIFICATION(VelRshModelNotificationShaderParameterChanged);

  /// @param[in] iPublisher any pointer that stands for the parameter; not referenced
  /// @param[in] iInner what the parameter published; null where it published nothing; lives as long as this
  VelRshModelNotificationShaderParameterChanged(VelBaseUnknown& iPublisher, const VelNotification* iInner) noexcept
      : publisher_(iPublisher), inner_(iInner) {}

  /// @return what stands for the parameter, for tests of identity
  VelBaseUnknown& GetPublisher() const noexcept { return publisher_; }

  /// @return the parameter; empty when it is closed or no parameter
  VelIRshParameter_var GetParameter() const noexcept { return VelIRshParameter_var(&publisher_); }

  /// @return what the parameter published, null for nothing
  const VelNotification* GetInner() const noexcept { return inner_; }

 private:
  VelBaseUnknown& publisher_;
  const VelNotification* inner_;
};

#endif  // RENDERINGSHADER_INTERFACES_VELRSHMODELNOTIFICATIONSHADERPARAMETERCHANGED_H
