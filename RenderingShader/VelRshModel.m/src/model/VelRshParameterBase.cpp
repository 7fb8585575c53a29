// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase.cpp A parameter's name, type and label, and its life.
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshFather.h"
#include "RenderingShader/interfaces/VelIRshParameterImmLayout.h"
#include "RenderingShader/interfaces/VelIRshShaderResources.h"
#include "platform/configuration/VelRbaConfiguration.h"
#include "platform/events/VelNotification.h"
#include "platform/trace/VelClassTrace.h"

static_assert(sizeof(VelRshParameterBase) == 96, "What is built for each parameter that is touched costs 96 bytes");

namespace {

using Keys = VelKeySetVelRmaCatalog;

constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshParameterBase"};

}  // namespace

VelRshParameterBase::VelRshParameterBase(VelComponent& iFeature)
    : VelSpecLifeCycleObjectExt(iFeature), trace_("VelRshParameter") {}

/// The subscriptions of both sides have ended with the component's state: nobody has to be unsubscribed.
VelRshParameterBase::~VelRshParameterBase() {
  trace_ = VelTraceHandle();
  classTrace.Print(lifeLevel, "(VelRshParameterBase::~VelRshParameterBase) Destructor\n");
  support_ = nullptr;
  classTrace.Print(lifeLevel, "(VelRshParameterBase::~VelRshParameterBase) Done\n");
}

VelRshParameterBase* VelRshParameterBase::From(VelBaseUnknown& iObject) noexcept {
  VelBaseUnknown* implementation = iObject.GetImpl();
  if (implementation == nullptr || !VelDerivesFrom(implementation->GetMetaObject(), MetaObject())) return nullptr;
  return static_cast<VelRshParameterBase*>(implementation);
}

void VelRshParameterBase::OnComponentStateChange(VelComponentState iFrom, VelComponentState iTo) {
  if (iFrom < VelComponentState::Closed && iTo == VelComponentState::Closed) support_ = nullptr;
  VelSpecLifeCycleObjectExt::OnComponentStateChange(iFrom, iTo);
}

HRESULT VelRshParameterBase::remove() {
  support_ = nullptr;
  return VelSpecLifeCycleObjectExt::remove();
}

HRESULT VelRshParameterBase::SetName(const VelString& iName) {
  const VelRshAttribute name(this, &Keys::GetKeyVelRmaParameterName);
  return name ? name->SetText(name.Key(), VelUnicodeString(iName)) : E_FAIL;
}

HRESULT VelRshParameterBase::GetName(VelString& oName) {
  const VelRshAttribute name(this, &Keys::GetKeyVelRmaParameterName);
  if (!name) return E_FAIL;
  VelUnicodeString text;
  VEL_RETURN_IF_FAILED(name->GetText(name.Key(), text));
  oName = text.ToVelString();
  return S_OK;
}

HRESULT VelRshParameterBase::GetType(VelString& oType) {
  const VelISpecObject_var hFeature(this);
  return hFeature ? hFeature->GetType(oType) : E_FAIL;
}

void VelRshParameterBase::GetParentShader(VelIRshShader_var& oShader) {
  oShader = VelIRshShader_var(VelRshFather(*this));
}

HRESULT VelRshParameterBase::GetLayoutFlag() {
  const VelIRshParameterImmLayout_var hLayout(this);
  if (!hLayout) return E_NOINTERFACE;
  VelString text;
  if (FAILED(hLayout->GetTextValue(text))) return E_FAIL;
  const VelString lower = text.ToLower();
  return lower == "yes" || lower == "true" || lower == "1" ? S_OK : E_FAIL;
}

HRESULT VelRshParameterBase::SetAlias(const VelUnicodeString& iAlias) {
  label_ = iAlias.IsEmpty() ? nullptr : std::make_unique<VelUnicodeString>(iAlias);
  return S_OK;
}

VelUnicodeString VelRshParameterBase::GetAlias() {
  if (!labelResolved_) ComputeLabel();
  return label_ != nullptr ? *label_ : VelUnicodeString();
}

/// Runs until it has found the support of the shaders above, or has learnt that there is none.
void VelRshParameterBase::ComputeLabel() {
  if (support_) return;
  VelISpecObject_var hFather = VelRshFather(*this);
  if (!hFather) {
    labelResolved_ = true;
    return;
  }
  const VelIRshShader_var hShader(hFather);
  if (label_ == nullptr && hShader) {
    VelString type;
    VelString name;
    if (FAILED(hShader->GetType(type)) || FAILED(GetName(name))) return;
    static_cast<void>(SetAlias(ReadLabel(hShader, type, name)));
  }
  while (hFather && !support_) {
    support_ = VelIRshShaderSupport_var(hFather);
    hFather = VelRshFather(*hFather);
  }
  if (!support_) labelResolved_ = true;
}

/// The shader's resources come first, then its configuration, then the name.
VelUnicodeString VelRshParameterBase::ReadLabel(const VelIRshShader_var& iShader, const VelString& iType,
                                                const VelString& iName) {
  VelUnicodeString label;
  const VelIRshShaderResources_var hResources(iShader);
  if (hResources) static_cast<void>(hResources->GetText("label", iName, label));
  if (!label.IsEmpty()) return label;
  VelString text;
  static_cast<void>(VelRbaConfiguration::GetHierarchicalValue(iType, iName + ".Label", text));
  return VelUnicodeString(text.IsEmpty() ? iName : text);
}
