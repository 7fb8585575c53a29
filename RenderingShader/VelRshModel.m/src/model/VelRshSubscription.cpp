// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshSubscription.cpp Chooses between the receivers of the component's classes and those that go through an
/// interface.
#include "RenderingShader/VelRshModel.m/src/model/VelRshSubscription.h"

#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshShaderFeature.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"

namespace {

using ParameterEvents = VelRshParameterPublisherEvents;
using ShaderEvents = VelRshShaderPublisherEvents;

/// The receiver that asks the subscriber for its interface.
template <auto Operation, class Interface>
void ReceiveThrough(VelImplementation& ioSubscriber, VelEventName iEvent, VelBaseUnknown* iPublisher,
                    VelNotification* ioNotification) {
  const VelVar<Interface> hSubscriber(&ioSubscriber);
  if (hSubscriber) (hSubscriber.Get()->*Operation)(iEvent, iPublisher, ioNotification);
}

constexpr VelReceiver receiveParameterValue =
    &ReceiveThrough<&VelIRshParameterSubscriber::OnParameterValue, VelIRshParameterSubscriber>;
constexpr VelReceiver receiveParameterConnection =
    &ReceiveThrough<&VelIRshParameterSubscriber::OnParameterConnection, VelIRshParameterSubscriber>;
constexpr VelReceiver receiveShaderValue =
    &ReceiveThrough<&VelIRshShaderSubscriber::OnShaderValue, VelIRshShaderSubscriber>;
constexpr VelReceiver receiveShaderConnection =
    &ReceiveThrough<&VelIRshShaderSubscriber::OnShaderConnection, VelIRshShaderSubscriber>;

}  // namespace

const VelReceiverTable& VelRshSubscription::ReceiversOf(VelIRshParameterSubscriber& iShader) noexcept {
  if (VelRshShaderFeature::From(iShader) != nullptr) return VelRshShaderFeature::ConnectionReceivers();
  static const VelReceiverRow rows[] = {
      {ParameterEvents::VALUE_UPDATED(), receiveParameterValue},
      {ParameterEvents::CONNECTION_UPDATED(), receiveParameterConnection},
      {ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED(), receiveParameterValue},
      {ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED(), receiveParameterConnection}};
  static const VelReceiverTable table(rows);
  return table;
}

const VelReceiverTable& VelRshSubscription::ReceiversOf(VelIRshShaderSubscriber& iParameter) noexcept {
  if (VelRshParameterBase::From(iParameter) != nullptr) return VelRshParameterBase::ShaderReceivers();
  static const VelReceiverRow rows[] = {
      {ShaderEvents::PARAMETER_VALUE_UPDATED(), receiveShaderValue},
      {ShaderEvents::PARAMETER_CONNECTION_UPDATED(), receiveShaderConnection},
      {ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED(), receiveShaderValue},
      {ShaderEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED(), receiveShaderConnection}};
  static const VelReceiverTable table(rows);
  return table;
}

void VelRshSubscription::Subscribe(VelCallbackManager& ioManager, VelBaseUnknown* iSubscriber,
                                   const VelReceiverTable& iReceivers, std::span<const VelEventName> iEvents) noexcept {
  // A subscriber that is closing hears nothing any more; that is no failure of whoever publishes.
  for (VelEventName event : iEvents) {
    static_cast<void>(ioManager.SubscribeUnlessSubscribed(event, iSubscriber, iReceivers));
  }
}
