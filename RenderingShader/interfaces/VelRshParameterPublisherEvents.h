// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterPublisherEvents.h The events that a parameter publishes.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHPARAMETERPUBLISHEREVENTS_H
#define RENDERINGSHADER_INTERFACES_VELRSHPARAMETERPUBLISHEREVENTS_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/base/HResult.h"
#include "platform/events/VelEventName.h"

class VelBaseUnknown;
class VelCallbackManager;

/// The names are one shared text each, compared by address.
class VEL_RSH_INTERFACES_API VelRshParameterPublisherEvents {
 public:
  /// The value changed: a VelRshModelNotificationParameter...Changed of the value's type.
  static VelEventName VALUE_UPDATED() noexcept;

  /// The connection changed: a VelRshModelNotificationParameterConnectionChanged.
  static VelEventName CONNECTION_UPDATED() noexcept;

  /// The value of another parameter of the same shader changed: a VelRshModelNotificationParameterShaderChanged.
  static VelEventName FORWARD_PARAMETER_VALUE_UPDATED() noexcept;

  /// The connection of another parameter of the same shader changed: a VelRshModelNotificationParameterShaderChanged.
  static VelEventName FORWARD_PARAMETER_CONNECTION_UPDATED() noexcept;

  /// A value of the connected shader changed: a VelRshModelNotificationConnectedParameterChanged.
  static VelEventName CONNECTION_PARAMETER_VALUE_UPDATED() noexcept;

  /// A connection of the connected shader changed: a VelRshModelNotificationConnectedParameterChanged.
  static VelEventName CONNECTION_PARAMETER_CONNECTION_UPDATED() noexcept;

  /// Takes a subscriber out of every event of this set.
  /// @param[in] iSubscriber null does nothing
  /// @return S_OK; S_FALSE when it heard none of them; E_INVALIDARG when iSubscriber is null
  static HRESULT UNBIND_CALLBACK(VelCallbackManager& ioManager, VelBaseUnknown* iSubscriber) noexcept;
};

#endif  // RENDERINGSHADER_INTERFACES_VELRSHPARAMETERPUBLISHEREVENTS_H
