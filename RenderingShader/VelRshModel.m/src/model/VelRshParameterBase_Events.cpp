// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Events.cpp What a parameter hears of its shader and of the shader connected to it, and
/// what it tells of that.
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"
#include "RenderingShader/interfaces/VelRshModelNotificationConnectedParameterChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterShaderChanged.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"

namespace {

using Changed = VelRshModelNotificationShaderParameterChanged;
using ParameterEvents = VelRshParameterPublisherEvents;
using ShaderEvents = VelRshShaderPublisherEvents;

/// Whether two parameters have the same shader above them, told by their fathers alone.
bool HaveSameShader(VelBaseUnknown& iLeft, VelBaseUnknown& iRight) {
  VelComponent* left = iLeft.GetComponent();
  VelComponent* right = iRight.GetComponent();
  if (left == nullptr || right == nullptr) return false;
  const VelComponent* father = left->GetFather();
  return father != nullptr && father == right->GetFather() && father->OffersInterface(VelIRshShader::InterfaceId());
}

}  // namespace

const VelReceiverTable& VelRshParameterBase::ShaderReceivers() noexcept {
  static const VelReceiverRow rows[] = {
      {ShaderEvents::PARAMETER_VALUE_UPDATED(), &VelReceive<&VelRshParameterBase::OnShaderValue>},
      {ShaderEvents::PARAMETER_CONNECTION_UPDATED(), &VelReceive<&VelRshParameterBase::OnShaderConnection>},
      {ShaderEvents::FORWARDED_PARAMETER_VALUE_UPDATED(), &VelReceive<&VelRshParameterBase::OnShaderValue>},
      {ShaderEvents::FORWARDED_PARAMETER_CONNECTION_UPDATED(), &VelReceive<&VelRshParameterBase::OnShaderConnection>}};
  static const VelReceiverTable table(rows);
  return table;
}

const VelReceiverTable& VelRshParameterBase::ConnectionReceivers() noexcept {
  static const VelReceiverRow rows[] = {
      {ShaderEvents::PARAMETER_VALUE_UPDATED(), &VelReceive<&VelRshParameterBase::OnConnectedShaderValue>},
      {ShaderEvents::PARAMETER_CONNECTION_UPDATED(), &VelReceive<&VelRshParameterBase::OnConnectedShaderConnection>}};
  static const VelReceiverTable table(rows);
  return table;
}

void VelRshParameterBase::OnShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                        VelNotification* ioNotification) {
  if (iEvent != ShaderEvents::PARAMETER_VALUE_UPDATED()) return;
  ForwardFromShader(iEvent, ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED(), iPublisher, ioNotification);
}

void VelRshParameterBase::OnShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                             VelNotification* ioNotification) {
  if (iEvent != ShaderEvents::PARAMETER_CONNECTION_UPDATED()) return;
  ForwardFromShader(iEvent, ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED(), iPublisher, ioNotification);
}

void VelRshParameterBase::ForwardFromShader(VelEventName iEvent, VelEventName iForwarded, VelBaseUnknown* iPublisher,
                                            const VelNotification* iNotification) {
  if (iPublisher == nullptr || !callbacks_.HasSubscriber(iForwarded)) return;
  const auto* changed = VelNotificationCast<Changed>(iNotification);
  if (changed == nullptr || IsEqual(&changed->GetPublisher())) return;
  if (!HaveSameShader(*this, changed->GetPublisher())) return;
  // Also a connection goes on as this class, which no shader takes for a connection: deliberately, see
  // VelRshShaderFeature::OnParameterConnection.
  VelRshModelNotificationParameterShaderChanged forwarded(iEvent, *iPublisher, *changed);
  callbacks_.Dispatch(iForwarded, &forwarded, this);
}

void VelRshParameterBase::OnConnectedShaderValue(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                                 VelNotification* ioNotification) {
  if (iEvent != ShaderEvents::PARAMETER_VALUE_UPDATED()) return;
  TellFromConnection(ParameterEvents::CONNECTION_PARAMETER_VALUE_UPDATED(), iPublisher, ioNotification);
}

void VelRshParameterBase::OnConnectedShaderConnection(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                                      VelNotification* ioNotification) {
  if (iEvent != ShaderEvents::PARAMETER_CONNECTION_UPDATED()) return;
  TellFromConnection(ParameterEvents::CONNECTION_PARAMETER_CONNECTION_UPDATED(), iPublisher, ioNotification);
}

void VelRshParameterBase::TellFromConnection(VelEventName iEvent, VelBaseUnknown* iPublisher,
                                             const VelNotification* iNotification) {
  if (iPublisher == nullptr || !callbacks_.HasSubscriber(iEvent)) return;
  const auto* changed = VelNotificationCast<Changed>(iNotification);
  if (changed == nullptr) return;
  VelRshModelNotificationConnectedParameterChanged connected(*iPublisher, *changed);
  callbacks_.Dispatch(iEvent, &connected, this);
}
