// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderPublisherEvents.h The events that a shader publishes.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHSHADERPUBLISHEREVENTS_H
#define RENDERINGSHADER_INTERFACES_VELRSHSHADERPUBLISHEREVENTS_H

#include "RenderingShader/interfaces/VelRshInterfacesApi.h"
#include "platform/base/HResult.h"
#include "platform/events/VelEventName.h"

class VelBaseUnknown;
class VelCallbackManager;

/// The names are one shared text each, compared by address. Every one of these events carries a
/// VelRshModelNotificationShaderParameterChanged.
class VEL_RSH_INTERFACES_API VelRshShaderPublisherEvents {
 public:
  /// The value of a parameter of the shader changed.
  static VelEventName PARAMETER_VALUE_UPDATED() noexcept;

  /// The connection of a parameter of the shader changed.
  static VelEventName PARAMETER_CONNECTION_UPDATED() noexcept;

  /// A value changed beside a parameter to which the shader is connected.
  static VelEventName FORWARDED_PARAMETER_VALUE_UPDATED() noexcept;

  /// The connection of a parameter changed to which the shader is connected.
  static VelEventName FORWARDED_PARAMETER_CONNECTION_UPDATED() noexcept;

  /// Takes a subscriber out of every event of this set.
  /// @param[in] iSubscriber null does nothing
  /// @return S_OK; S_FALSE when it heard none of them; E_INVALIDARG when iSubscriber is null
  static HRESULT UNBIND_CALLBACK(VelCallbackManager& ioManager, VelBaseUnknown* iSubscriber) noexcept;
};

#endif  // RENDERINGSHADER_INTERFACES_VELRSHSHADERPUBLISHEREVENTS_H
