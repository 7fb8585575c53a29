// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshSubscription.h Subscribes shaders to parameters and parameters to shaders, whoever implements them.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHSUBSCRIPTION_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHSUBSCRIPTION_H

#include <span>

#include "RenderingShader/interfaces/VelIRshParameterSubscriber.h"
#include "RenderingShader/interfaces/VelIRshShaderSubscriber.h"
#include "platform/events/VelCallbackManager.h"

/// The subscriptions between the two kinds of objects. Those of the component's own classes are received by their
/// member functions; those of other modules through the subscriber interface, which is asked for at each delivery.
class VelRshSubscription {
 public:
  /// @return the receivers of a shader for what a parameter publishes that is connected to it
  static const VelReceiverTable& ReceiversOf(VelIRshParameterSubscriber& iShader) noexcept;

  /// @return the receivers of a parameter for what its shader publishes
  static const VelReceiverTable& ReceiversOf(VelIRshShaderSubscriber& iParameter) noexcept;

  /// Subscribes to each event that the subscriber does not hear yet.
  /// @param[in] iSubscriber any pointer behind which an implementation stands
  static void Subscribe(VelCallbackManager& ioManager, VelBaseUnknown* iSubscriber, const VelReceiverTable& iReceivers,
                        std::span<const VelEventName> iEvents) noexcept;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_MODEL_VELRSHSUBSCRIPTION_H
