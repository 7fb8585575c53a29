// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterPublisherEvents.cpp The texts of a parameter's events.
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"

#include "platform/events/VelCallbackManager.h"

namespace {

/// One place in the process each, whatever other literals read the same.
constexpr char valueUpdated[] = "VALUE_UPDATED";
constexpr char connectionUpdated[] = "CONNECTION_UPDATED";
constexpr char forwardParameterValueUpdated[] = "FORWARD_PARAMETER_VALUE_UPDATED";
constexpr char forwardParameterConnectionUpdated[] = "FORWARD_PARAMETER_CONNECTION_UPDATED";
constexpr char connectionParameterValueUpdated[] = "CONNECTION_PARAMETER_VALUE_UPDATED";
constexpr char connectionParameterConnectionUpdated[] = "CONNECTION_PARAMETER_CONNECTION_UPDATED";

constexpr VelEventName allEvents[] = {valueUpdated,
                                      connectionUpdated,
                                      forwardParameterValueUpdated,
                                      forwardParameterConnectionUpdated,
                                      connectionParameterValueUpdated,
                                      connectionParameterConnectionUpdated};

}  // namespace

VelEventName VelRshParameterPublisherEvents::VALUE_UPDATED() noexcept { return valueUpdated; }

VelEventName VelRshParameterPublisherEvents::CONNECTION_UPDATED() noexcept { return connectionUpdated; }

VelEventName VelRshParameterPublisherEvents::FORWARD_PARAMETER_VALUE_UPDATED() noexcept {
  return forwardParameterValueUpdated;
}

VelEventName VelRshParameterPublisherEvents::FORWARD_PARAMETER_CONNECTION_UPDATED() noexcept {
  return forwardParameterConnectionUpdated;
}

VelEventName VelRshParameterPublisherEvents::CONNECTION_PARAMETER_VALUE_UPDATED() noexcept {
  return connectionParameterValueUpdated;
}

VelEventName VelRshParameterPublisherEvents::CONNECTION_PARAMETER_CONNECTION_UPDATED() noexcept {
  return connectionParameterConnectionUpdated;
}

HRESULT VelRshParameterPublisherEvents::UNBIND_CALLBACK(VelCallbackManager& ioManager,
                                                        VelBaseUnknown* iSubscriber) noexcept {
  return ioManager.RemoveCallbacksOf(iSubscriber, allEvents);
}
