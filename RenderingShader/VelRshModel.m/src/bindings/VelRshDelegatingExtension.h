// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshDelegatingExtension.h The base of the extensions by which a shader answers through its delegate.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELRSHDELEGATINGEXTENSION_H
#define RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELRSHDELEGATINGEXTENSION_H

#include "RenderingShader/VelRshModel.m/src/bindings/VelRshDelegatedQuery.h"
#include "platform/base/VelFatalErrorService.h"
#include "platform/objectmodeler/VelBoa.h"
#include "platform/objectmodeler/VelVar.h"

/// An extension around the interface of the shader's delegate: calls go there, while the identity is the shader's. A
/// shader whose delegate does not answer has no such extension.
template <class Interface>
class VelRshDelegatingExtension : public VelBoa<Interface> {
 public:
  VelRshDelegatingExtension(VelComponent& iShader, VelVar<Interface> iTheInterface)
      : VelBoa<Interface>(iShader), realInterface_(std::move(iTheInterface)) {
    if (!realInterface_) Misused("TheInterface!=NULL");
  }

  /// Makes an extension of a derived class.
  /// @return null when the delegate does not answer
  template <class Extension>
  static VelBaseUnknown* MakeAround(VelComponent& ioShader) {
    VelBaseUnknown* answer = nullptr;
    if (FAILED(VelRshDelegatedQuery(&ioShader, &Interface::InterfaceId(), &answer))) return nullptr;
    return new Extension(ioShader, VelVar<Interface>::Adopt(static_cast<Interface*>(answer)));
  }

 protected:
  ~VelRshDelegatingExtension() override {
    if (!realInterface_) Misused("m_RealInterface");
  }

  /// @return what answers, null when the shader is closed
  Interface* RealInterface() noexcept { return this->IsClosed() ? nullptr : realInterface_.Get(); }

 private:
  static void Misused(const char* iExpression) {
    VelFatalErrorService::AssertionFailed(VEL_HERE("RenderingShader/VelRshModel.m/src/VelRshShaderFeature"),
                                          iExpression);
  }

  VelVar<Interface> realInterface_;
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_SRC_BINDINGS_VELRSHDELEGATINGEXTENSION_H
