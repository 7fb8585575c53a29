// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelERshParameterGeneric_VelIModelEvents.h The model events of a parameter.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELERSHPARAMETERGENERIC_VELIMODELEVENTS_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELERSHPARAMETERGENERIC_VELIMODELEVENTS_H

#include "platform/events/VelExtIModelEvents.h"

/// Answers VelIModelEvents for the parameters that can be fed by a graph of the Substance engine. The engine's
/// notification that an output changed goes on as one that names the parameter; everything else unchanged.
class VelERshParameterGeneric_VelIModelEvents final : public VelExtIModelEvents {
 public:
  using VelExtIModelEvents::VelExtIModelEvents;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  /// Connects to the shader that the parameter is connected to, so that a change is heard of a parameter that nobody
  /// has touched since it was loaded.
  void OnAttached() override;

  HRESULT Dispatch(VelNotification& ioNotification) override;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELERSHPARAMETERGENERIC_VELIMODELEVENTS_H
