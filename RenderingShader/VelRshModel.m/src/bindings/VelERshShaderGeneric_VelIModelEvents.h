// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelERshShaderGeneric_VelIModelEvents.h The model events of a shader.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELERSHSHADERGENERIC_VELIMODELEVENTS_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELERSHSHADERGENERIC_VELIMODELEVENTS_H

#include "platform/events/VelExtIModelEvents.h"

/// Answers VelIModelEvents for shaders, with the platform's own behaviour: every notification goes on unchanged.
class VelERshShaderGeneric_VelIModelEvents final : public VelExtIModelEvents {
 public:
  using VelExtIModelEvents::VelExtIModelEvents;
  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELERSHSHADERGENERIC_VELIMODELEVENTS_H
