// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderPublisherEvents.cpp The texts of a shader's events.
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"

#include "platform/events/VelCallbackManager.h"

namespace {

/// One place in the process each, whatever other literals read the same.
constexpr char parameterValueUpdated[] = "PARAMETER_VALUE_UPDATED";
constexpr char parameterConnectionUpdated[] = "PARAMETER_CONNECTION_UPDATED";
constexpr char forwardedParameterValueUpdated[] = "FORWARDED_PARAMETER_VALUE_UPDATED";
constexpr char forwardedParameterConnectionUpdated[] = "FORWARDED_PARAMETER_CONNECTION_UPDATED";

constexpr VelEventName allEvents[] = {parameterValueUpdated, parameterConnectionUpdated, forwardedParameterValueUpdated,
                                      forwardedParameterConnectionUpdated};

}  // namespace

VelEventName VelRshShaderPublisherEvents::PARAMETER_VALUE_UPDATED() noexcept { return parameterValueUpdated; }

VelEventName VelRshShaderPublisherEvents::PARAMETER_CONNECTION_UPDATED() noexcept { return parameterConnectionUpdated; }

VelEventName VelRshShaderPublisherEvents::FORWARDED_PARAMETER_VALUE_UPDATED() noexcept {
  return forwardedParameterValueUpdated;
}

VelEventName VelRshShaderPublisherEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED() noexcept {
  return forwardedParameterConnectionUpdated;
}

HRESULT VelRshShaderPublisherEvents::UNBIND_CALLBACK(VelCallbackManager& ioManager,
                                                     VelBaseUnknown* iSubscriber) noexcept {
  return ioManager.RemoveCallbacksOf(iSubscriber, allEvents);
}
