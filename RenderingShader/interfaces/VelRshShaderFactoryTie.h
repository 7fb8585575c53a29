// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFactoryTie.h The forwarder that all interfaces of shader factories share.
#ifndef RENDERINGSHADER_INTERFACES_VELRSHSHADERFACTORYTIE_H
#define RENDERINGSHADER_INTERFACES_VELRSHSHADERFACTORYTIE_H

#include "RenderingShader/interfaces/VelIRshShaderFactory.h"
#include "platform/objectmodeler/VelTie.h"

/// An interface that derives from VelIRshShaderFactory gets its forwarder by
///
///     template <class Implementation>
///     class TIEVelIMyShaderFactory final : public VelRshShaderFactoryTie<VelIMyShaderFactory, Implementation> {
///       using VelRshShaderFactoryTie<VelIMyShaderFactory, Implementation>::VelRshShaderFactoryTie;
///     };
template <class Interface, class Implementation>
class VelRshShaderFactoryTie : public VelTie<Interface> {
 public:
  using VelTie<Interface>::VelTie;

  HRESULT ListShaderTypes(VelListValVelString& oTypes) final {
    return Call([&](Implementation& ioFactory) { return ioFactory.ListShaderTypes(oTypes); });
  }
  HRESULT GetOutputType(const VelString& iType, VelString& oOutputType) final {
    return Call([&](Implementation& ioFactory) { return ioFactory.GetOutputType(iType, oOutputType); });
  }
  HRESULT GetDisplayName(const VelString& iType, VelUnicodeString& oName) final {
    return Call([&](Implementation& ioFactory) { return ioFactory.GetDisplayName(iType, oName); });
  }
  HRESULT GetUsageFlags(const VelString& iType, std::uint32_t& oFlags) final {
    return Call([&](Implementation& ioFactory) { return ioFactory.GetUsageFlags(iType, oFlags); });
  }
  HRESULT GetVersion(const VelString& iType, std::uint32_t& oVersion) final {
    return Call([&](Implementation& ioFactory) { return ioFactory.GetVersion(iType, oVersion); });
  }
  HRESULT InitializeShader(VelIRshShader* ioShader, unsigned char iOption) final {
    return Call([&](Implementation& ioFactory) { return ioFactory.InitializeShader(ioShader, iOption); });
  }

 protected:
  ~VelRshShaderFactoryTie() = default;

 private:
  template <class Operation>
  HRESULT Call(const Operation& iOperation) {
    return this->template Forward<Implementation>(iOperation);
  }
};

#endif  // RENDERINGSHADER_INTERFACES_VELRSHSHADERFACTORYTIE_H
