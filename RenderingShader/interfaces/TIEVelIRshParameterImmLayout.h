// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshParameterImmLayout.h The forwarder of VelIRshParameterImmLayout.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERIMMLAYOUT_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERIMMLAYOUT_H

#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshParameterImmLayout final : public VelTie<VelIRshParameterImmLayout> {
 public:
  using VelTie::VelTie;

  HRESULT GetDefaultValue(VelRshValueTarget oValue) override {
    return Forward<Implementation>([&](Implementation& ioLayout) { return ioLayout.GetDefaultValue(oValue); });
  }
  HRESULT GetKind(VelString& oKind) override {
    return Forward<Implementation>([&](Implementation& ioLayout) { return ioLayout.GetKind(oKind); });
  }
  HRESULT GetShown(VelString& oShown) override {
    return Forward<Implementation>([&](Implementation& ioLayout) { return ioLayout.GetShown(oShown); });
  }
  HRESULT GetTextValue(VelString& oText) override {
    return Forward<Implementation>([&](Implementation& ioLayout) { return ioLayout.GetTextValue(oText); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERIMMLAYOUT_H
