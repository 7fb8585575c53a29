// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIRshShader.h The forwarder of VelIRshShader.
#ifndef RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADER_H
#define RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADER_H

#include "RenderingShader/interfaces/VelIRshShader.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIRshShader final : public VelTie<VelIRshShader> {
 public:
  using VelTie::VelTie;

  HRESULT SetType(const VelString& iType) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.SetType(iType); });
  }
  HRESULT GetType(VelString& oType) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.GetType(oType); });
  }
  HRESULT SetOutputType(const VelString& iType) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.SetOutputType(iType); });
  }
  HRESULT GetOutputType(VelString& oType) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.GetOutputType(oType); });
  }
  HRESULT SetUsage(std::uint32_t iUsage) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.SetUsage(iUsage); });
  }
  HRESULT GetUsage(std::uint32_t& oUsage) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.GetUsage(oUsage); });
  }
  HRESULT SetVersion(std::uint32_t iVersion) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.SetVersion(iVersion); });
  }
  HRESULT GetVersion(std::uint32_t& oVersion) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.GetVersion(oVersion); });
  }
  HRESULT AppendParameter(VelIRshParameter* iParameter) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.AppendParameter(iParameter); });
  }
  HRESULT AddParameter(const VelString& iName, const VelString& iStartUp, VelIRshParameter** oParameter) override {
    return Forward<Implementation>(
        [&](Implementation& ioShader) { return ioShader.AddParameter(iName, iStartUp, oParameter); });
  }
  HRESULT GetParameters(VelListPtrVelBaseUnknown** oParameters) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.GetParameters(oParameters); });
  }
  HRESULT AddNode(VelIRshShader* iNode) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.AddNode(iNode); });
  }
  HRESULT RemoveNode(VelIRshShader* iNode) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.RemoveNode(iNode); });
  }
  HRESULT GetNodes(VelListPtrVelBaseUnknown** oNodes) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.GetNodes(oNodes); });
  }
  HRESULT CreateCopy(VelIContainer* iContainer, VelIRshShader** oCopy) override {
    return Forward<Implementation>([&](Implementation& ioShader) { return ioShader.CreateCopy(iContainer, oCopy); });
  }
};

#endif  // RENDERINGSHADER_INTERFACES_TIEVELIRSHSHADER_H
