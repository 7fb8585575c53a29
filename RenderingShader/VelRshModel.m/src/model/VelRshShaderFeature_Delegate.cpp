// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature_Delegate.cpp The delegate to which a shader leaves what goes by its type.
#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshShaderFeature.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshComponentList.h"
#include "RenderingShader/interfaces/VelIRshShaderLink.h"
#include "platform/objectmodeler/VelIDelegation.h"
#include "platform/objectmodeler/VelObject.h"

namespace {

constexpr const char* lateTypeSuffix = "_ext";
constexpr const char* substancePrefix = "substance_";
constexpr const char* substanceLateType = "substance_ext";

}  // namespace

HRESULT VelRshShaderFeature::SetType(const VelString& iType) {
  if (delegate_) return E_FAIL;
  const VelRshAttribute type(this, &VelKeySetVelRmaCatalog::GetKeyVelRmaShaderType);
  if (type && !type.IsValuated()) static_cast<void>(type->SetText(type.Key(), VelUnicodeString(iType)));
  // The types of the Substance engine are many and share one delegate.
  if (iType.StartsWith(substancePrefix)) return CreateDelegate(substanceLateType);
  return CreateDelegate(iType + lateTypeSuffix);
}

/// Deliberately without SetType's rule for the types of the Substance engine: a shader of such a type that is asked for
/// something before its type is set has a delegate of its own.
void VelRshShaderFeature::EnsureDelegate() {
  if (delegateInitialised_) return;
  VelString type;
  if (SUCCEEDED(ReadType(type))) static_cast<void>(CreateDelegate(type + lateTypeSuffix));
  delegateInitialised_ = true;
}

HRESULT VelRshShaderFeature::CreateDelegate(const VelString& iLateType) {
  if (delegate_) return E_FAIL;
  // Held before anything is asked of it: what it asks of this shader then finds a delegate and makes no other.
  delegate_ = VelObject::Create(iLateType.View(), "VelRshShaderDelegate");
  const VelBaseUnknown_var hDelegate = delegate_;
  const VelIRshShaderLink_var hLink(hDelegate);
  const VelIRshShader_var hThis(this);
  if (hLink && hThis) static_cast<void>(hLink->SetShader(hThis.Get()));
  const VelIDelegation_var hDelegation(this);
  if (hDelegation) static_cast<void>(hDelegation->SetDelegate(hDelegate.Get()));
  VelListPtrVelBaseUnknown parameters;
  const HRESULT listed = ReadParameters(parameters);
  VelRshComponentList::Release(parameters);
  return listed;
}
