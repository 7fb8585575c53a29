// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshParameterPrivate.h The forwarder of VelIRshParameterPrivate.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERPRIVATE_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERPRIVATE_H

#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshParameterPrivate final : public VelTie<VelIRshParameterPrivate> {
 public:
  using VelTie::VelTie;

  HRESULT UpdateValueAndConnection() override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.UpdateValueAndConnection(); });
  }
  HRESULT UpdateValue() override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.UpdateValue(); });
  }
  HRESULT UpdateConnection() override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.UpdateConnection(); });
  }
  HRESULT HasTag(Tag iTag) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.HasTag(iTag); });
  }
  HRESULT GetTags(VelListVal<int>& oTags) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.GetTags(oTags); });
  }
  HRESULT GetLayoutFlag() override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.GetLayoutFlag(); });
  }
  HRESULT IsTexture() override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.IsTexture(); });
  }
  HRESULT AttachToShader(VelIRshShader* iShader) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.AttachToShader(iShader); });
  }
  void GetParentShader(VelIRshShader_var& oShader) override {
    Forward<Implementation>([&](Implementation& ioParameter) { ioParameter.GetParentShader(oShader); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETERPRIVATE_H
