// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature_Events.cpp What a shader hears of parameters, and what it tells its own subscribers.
#include "RenderingShader/VelRshModel.m/src/model/VelRshShaderFeature.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshSubscription.h"
#include "RenderingShader/interfaces/VelIRshParameterPublisher.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterConnectionChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterShaderChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"

namespace {

using ParameterEvents = VelRshParameterPublisherEvents;
using ShaderEvents = VelRshShaderPublisherEvents;

/// @return the manager of a parameter that publishes, null for one that does not and for one that is closed
VelCallbackManager* ManagerOf(VelBaseUnknown& iParameter) {
  const VelIRshParameterPublisher_var hPublisher(&iParameter);
  return hPublisher ? hPublisher->GetCallbackManager() : nullptr;
}

}  // namespace

const VelReceiverTable& VelRshShaderFeature::ParameterReceivers() noexcept {
  static const VelReceiverRow rows[] = {
      {ParameterEvents::VALUE_UPDATED(), &VelReceive<&VelRshShaderFeature::OnOwnParameterValue>},
      {ParameterEvents::CONNECTION_UPDATED(), &VelReceive<&VelRshShaderFeature::OnOwnParameterConnection>}};
  static const VelReceiverTable table(rows);
  return table;
}

const VelReceiverTable& VelRshShaderFeature::ConnectionReceivers() noexcept {
  static const VelReceiverRow rows[] = {
      {ParameterEvents::VALUE_UPDATED(), &VelReceive<&VelRshShaderFeature::OnParameterValue>},
      {ParameterEvents::CONNECTION_UPDATED(), &VelReceive<&VelRshShaderFeature::OnParameterConnection>},
      {ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED(), &VelReceive<&VelRshShaderFeature::OnParameterValue>},
      {ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED(),
       &VelReceive<&VelRshShaderFeature::OnParameterConnection>}};
  static const VelReceiverTable table(rows);
  return table;
}

void VelRshShaderFeature::BindEvents(VelBaseUnknown& ioParameter) {
  if (VelCallbackManager* manager = ManagerOf(ioParameter)) {
    const VelEventName events[] = {ParameterEvents::VALUE_UPDATED(), ParameterEvents::CONNECTION_UPDATED()};
    VelRshSubscription::Subscribe(*manager, this, ParameterReceivers(), events);
  }
  const VelIRshShaderSubscriber_var hSubscriber(&ioParameter);
  if (!hSubscriber) return;
  const VelEventName events[] = {ShaderEvents::PARAMETER_VALUE_UPDATED(), ShaderEvents::PARAMETER_CONNECTION_UPDATED(),
                                 ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED(),
                                 ShaderEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED()};
  VelRshSubscription::Subscribe(callbacks_, hSubscriber.Get(), VelRshSubscription::ReceiversOf(*hSubscriber), events);
}

void VelRshShaderFeature::Publish(VelEventName iEvent, VelBaseUnknown& iParameter, const VelNotification* iInner) {
  if (!callbacks_.HasSubscriber(iEvent)) return;
  VelRshModelNotificationShaderParameterChanged changed(iParameter, iInner);
  callbacks_.Dispatch(iEvent, &changed, this);
}

void VelRshShaderFeature::OnOwnParameterValue(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                              VelNotification* ioNotification) {
  if (iEvent != ParameterEvents::VALUE_UPDATED() || iPublisher == nullptr) return;
  Publish(ShaderEvents::PARAMETER_VALUE_UPDATED(), *iPublisher, ioNotification);
}

void VelRshShaderFeature::OnOwnParameterConnection(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                                   VelNotification* ioNotification) {
  if (iEvent != ParameterEvents::CONNECTION_UPDATED() || iPublisher == nullptr) return;
  Publish(ShaderEvents::PARAMETER_CONNECTION_UPDATED(), *iPublisher, ioNotification);
}

void VelRshShaderFeature::OnParameterValue(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                           VelNotification* ioNotification) {
  if (iEvent != ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED() || iPublisher == nullptr) return;
  if (VelNotificationCast<VelRshModelNotificationParameterShaderChanged>(ioNotification) == nullptr) return;
  Publish(ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED(), *iPublisher, ioNotification);
}

/// Registered for FORWARD_PARAMETER_CONNECTION_UPDATED as well, yet deliberately tests for CONNECTION_UPDATED: it is
/// the connection of the parameter itself that makes a newly connected shader take over the values of the shader above.
/// What a parameter forwards of the connections beside it ends here.
void VelRshShaderFeature::OnParameterConnection(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                                VelNotification* ioNotification) {
  if (iEvent != ParameterEvents::CONNECTION_UPDATED() || iPublisher == nullptr) return;
  if (VelNotificationCast<VelRshModelNotificationParameterConnectionChanged>(ioNotification) == nullptr) return;
  Publish(ShaderEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED(), *iPublisher, ioNotification);
}
