// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelERshParameterGeneric_VelIModelEvents.cpp Translates the notification of a graph output into one of the
/// parameter.
#include "RenderingShader/VelRshModel.m/src/bindings/VelERshParameterGeneric_VelIModelEvents.h"

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/include/VelRshVizNotificationParameterSubstanceGraphOutputChanged.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshAttribute.h"
#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/objectmodeler/VelComponent.h"
#include "platform/substance/VelAlgVizNotificationSubstanceGraphOutputChanged.h"

void VelERshParameterGeneric_VelIModelEvents::OnAttached() {
  const VelRshAttribute node(this, &VelKeySetVelRmaCatalog::GetKeyVelRmaParameterNode);
  VelBaseUnknown_var hConnected;
  if (!node || FAILED(node->GetReference(node.Key(), hConnected.Receive()))) return;
  // What is no shader is no connection: nobody would ever end what is begun here.
  if (!hConnected->GetComponent()->OffersInterface(VelIRshShader::InterfaceId())) return;
  static_cast<void>(ConnectTo(hConnected.Get()));
}

HRESULT VelERshParameterGeneric_VelIModelEvents::Dispatch(VelNotification& ioNotification) {
  const auto* changed = VelNotificationCast<VelAlgVizNotificationSubstanceGraphOutputChanged>(&ioNotification);
  const VelIRshParameter_var hParameter(changed != nullptr ? this : nullptr);
  if (!hParameter) return VelExtIModelEvents::Dispatch(ioNotification);
  VelRshVizNotificationParameterSubstanceGraphOutputChanged translated(*hParameter, changed->GetOutput());
  return VelExtIModelEvents::Dispatch(translated);
}
