// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshModelFactoryFeature.cpp Instantiates from the catalog, then names what it made.
#include "RenderingShader/VelRshModel.m/include/VelRshModelFactoryFeature.h"

#include "platform/featuremodeler/VelISpecObject.h"
#include "platform/featuremodeler/VelOsmSUHandler.h"

namespace {

constexpr const char* shaderStartUp = "VelRmaShader";
constexpr const char* sourceText = "RenderingShader/VelRshModel.m/src/VelRshModelFactoryFeature";
constexpr VelSourcePosition shaderNotMade{sourceText, 64};
constexpr VelSourcePosition parameterNotNamed{sourceText, 102};
constexpr VelSourcePosition parameterNotMade{sourceText, 107};

/// An empty handle when the start-up cannot be instantiated; the catalog is loaded into the container where needed.
VelISpecObject_var Instantiate(const VelString& iStartUp, VelIContainer& ioContainer) {
  const VelOsmSUHandler handler(iStartUp, "", "VelRmaCatalog.feat");
  VelBaseUnknown_var hFeature;
  const HRESULT made = handler.Instanciate(ioContainer, "", VelISpecObject::InterfaceId(), hFeature.Receive());
  return SUCCEEDED(made) ? VelISpecObject_var(hFeature) : VelISpecObject_var();
}

}  // namespace

VelRshModelFactoryFeature::VelRshModelFactoryFeature(VelIContainer& ioContainer)
    : trace_("VelRshModelFactoryFeature"), container_(ioContainer) {}

VelIRshShader_var VelRshModelFactoryFeature::CreateShader(const VelUnicodeString& iType) const {
  const VelISpecObject_var hFeature = Instantiate(shaderStartUp, container_);
  if (hFeature) {
    trace_.Info("Feature %s instantiation", shaderStartUp);
  } else {
    trace_.Error(shaderNotMade, "Feature %s instantiation", shaderStartUp);
  }
  VelIRshShader_var hShader(hFeature);
  // Nothing may be asked of a new shader before SetType: any other operation makes a delegate, and the type is then
  // refused. Deliberately no look at the result: a shader whose type could not be written is still one.
  if (hShader) static_cast<void>(hShader->SetType(iType.ToVelString()));
  return hShader;
}

VelIRshParameter_var VelRshModelFactoryFeature::CreateShaderParameter(const VelUnicodeString& iName,
                                                                      const VelUnicodeString& iStartUp) const {
  constexpr const char* message = "Feature %s instantiation { name = %s }";
  VelIRshParameter_var hParameter(Instantiate(iStartUp.ToVelString(), container_));
  if (!hParameter) {
    trace_.Error(parameterNotMade, message, iStartUp, iName);
    return nullptr;
  }
  if (FAILED(hParameter->SetName(iName.ToVelString()))) {
    trace_.Error(parameterNotNamed, message, iStartUp, iName);
    return nullptr;
  }
  trace_.Info(message, iStartUp, iName);
  return hParameter;
}
