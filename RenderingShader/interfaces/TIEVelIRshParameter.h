// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshParameter.h The forwarder of VelIRshParameter.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETER_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETER_H

#include "RenderingShader/interfaces/VelIRshParameter.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshParameter final : public VelTie<VelIRshParameter> {
 public:
  using VelTie::VelTie;

  HRESULT SetName(const VelString& iName) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.SetName(iName); });
  }
  HRESULT GetName(VelString& oName) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.GetName(oName); });
  }
  HRESULT GetType(VelString& oType) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.GetType(oType); });
  }
  HRESULT SetValue(VelBaseUnknown* iDocument) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.SetValue(iDocument); });
  }
  HRESULT GetValue(VelBaseUnknown** oDocument) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.GetValue(oDocument); });
  }
  HRESULT SetValue(VelRshValueSource iValue) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.SetValue(iValue); });
  }
  HRESULT GetValue(VelRshValueTarget oValue) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.GetValue(oValue); });
  }
  HRESULT SetConnection(VelIRshShader* iShader) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.SetConnection(iShader); });
  }
  HRESULT GetConnection(VelIRshShader** oShader) override {
    return Forward<Implementation>([&](Implementation& ioParameter) { return ioParameter.GetConnection(oShader); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHPARAMETER_H
