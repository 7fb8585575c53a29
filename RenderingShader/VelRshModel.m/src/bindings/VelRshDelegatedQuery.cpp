// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshDelegatedQuery.cpp Follows the delegation of a component to its delegate.
#include "RenderingShader/VelRshModel.m/src/bindings/VelRshDelegatedQuery.h"

#include "platform/base/VelFatalErrorService.h"
#include "platform/objectmodeler/VelComponent.h"
#include "platform/objectmodeler/VelIDelegation.h"

namespace {

constexpr const char* sourceText = "RenderingShader/VelRshModel.m/src/VelRshShaderFeature";

HRESULT Misused(unsigned iLine, const char* iExpression) {
  VelFatalErrorService::AssertionFailed(VelSourcePosition{sourceText, iLine}, iExpression);
  return E_FAIL;
}

/// Neither the component nor an object behind which the component itself stands.
bool IsAnotherObject(VelBaseUnknown& iExtension, VelBaseUnknown& iComponent) {
  return &iExtension != &iComponent && iExtension.GetImpl() != &iComponent;
}

}  // namespace

HRESULT VelRshDelegatedQuery(VelBaseUnknown* iExtension, const VelInterfaceId* iInterface,
                             VelBaseUnknown** oInterface) {
  if (iExtension == nullptr || iInterface == nullptr || oInterface == nullptr || *oInterface != nullptr) {
    return Misused(85, "0");
  }
  VelBaseUnknown* component = iExtension->GetComponent();
  if (component == nullptr) return Misused(92, "0");
  if (IsAnotherObject(*iExtension, *component)) return E_FAIL;
  VelIDelegation_var ptVelIDelegation;
  const HRESULT hr = component->Query(ptVelIDelegation.Receive());
  if (hr != S_OK) return Misused(118, "hr==S_OK");
  if (!ptVelIDelegation) return Misused(119, "ptVelIDelegation");
  VelBaseUnknown_var hDelegate;
  if (FAILED(ptVelIDelegation->GetDelegate(hDelegate.Receive())) || !hDelegate) return E_FAIL;
  const HRESULT answered = hDelegate->QueryInterface(*iInterface, oInterface);
  return SUCCEEDED(answered) && *oInterface != nullptr ? S_OK : E_FAIL;
}
