// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderFeature.cpp A shader's attributes, its parameters and nodes, its label and the shader above.
#include "RenderingShader/VelRshModel.m/src/model/VelRshShaderFeature.h"

#include <memory>

#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshComponentList.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshFather.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "platform/configuration/VelMsgCatalog.h"
#include "platform/featuremodeler/FindStartUp.h"
#include "platform/featuremodeler/LifeCycleObject.h"
#include "platform/featuremodeler/VelICatalogManager.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/trace/VelClassTrace.h"

namespace {

using Keys = VelKeySetVelRmaCatalog;

constexpr int callLevel = 4;
constexpr int lifeLevel = 5;

constinit VelClassTrace classTrace{"VelRshShaderFeature"};

}  // namespace

VelRshShaderFeature::VelRshShaderFeature(VelComponent& iFeature) : VelImplementation(iFeature) {}

/// The subscriptions of both sides have ended with the component's state: nobody has to be unsubscribed.
VelRshShaderFeature::~VelRshShaderFeature() {
  classTrace.Print(lifeLevel, "(VelRshShaderFeature::~VelRshShaderFeature) Destructor\n");
  delegate_ = nullptr;
  classTrace.Print(lifeLevel, "(VelRshShaderFeature::~VelRshShaderFeature) Done\n");
}

VelRshShaderFeature* VelRshShaderFeature::From(VelBaseUnknown& iObject) noexcept {
  VelBaseUnknown* implementation = iObject.GetImpl();
  if (implementation == nullptr || &implementation->GetMetaObject() != &MetaObject()) return nullptr;
  return static_cast<VelRshShaderFeature*>(implementation);
}

void VelRshShaderFeature::OnAttached() {
  VelListPtrVelBaseUnknown parameters;
  static_cast<void>(ReadParameters(parameters));
  for (VelBaseUnknown* parameter : parameters) BindEvents(*parameter);
  VelRshComponentList::Release(parameters);
}

/// The component's delegation hears of it, too, and lets go of the delegate by itself.
void VelRshShaderFeature::OnComponentStateChange(VelComponentState iFrom, VelComponentState iTo) {
  if (iTo == VelComponentState::Closed) delegate_ = nullptr;
  VelImplementation::OnComponentStateChange(iFrom, iTo);
}

HRESULT VelRshShaderFeature::GetType(VelString& oType) {
  EnsureDelegate();
  return ReadType(oType);
}

HRESULT VelRshShaderFeature::ReadType(VelString& oType) {
  if (SUCCEEDED(GetText(&Keys::GetKeyVelRmaShaderType, oType))) return S_OK;
  const VelISpecObject_var hFeature(this);
  return hFeature ? hFeature->GetType(oType) : E_FAIL;
}

HRESULT VelRshShaderFeature::SetOutputType(const VelString& iType) {
  EnsureDelegate();
  return SetText(&Keys::GetKeyVelRmaShaderOutputType, iType);
}

HRESULT VelRshShaderFeature::GetOutputType(VelString& oType) {
  EnsureDelegate();
  return GetText(&Keys::GetKeyVelRmaShaderOutputType, oType);
}

HRESULT VelRshShaderFeature::SetUsage(std::uint32_t iUsage) {
  EnsureDelegate();
  return SetUnsigned(&Keys::GetKeyVelRmaShaderUsage, iUsage);
}

HRESULT VelRshShaderFeature::GetUsage(std::uint32_t& oUsage) {
  EnsureDelegate();
  return GetUnsigned(&Keys::GetKeyVelRmaShaderUsage, oUsage);
}

HRESULT VelRshShaderFeature::SetVersion(std::uint32_t iVersion) {
  EnsureDelegate();
  return SetUnsigned(&Keys::GetKeyVelRmaShaderVersion, iVersion);
}

HRESULT VelRshShaderFeature::GetVersion(std::uint32_t& oVersion) {
  EnsureDelegate();
  return GetUnsigned(&Keys::GetKeyVelRmaShaderVersion, oVersion);
}

HRESULT VelRshShaderFeature::SetText(VelRshAttribute::Accessor iAccessor, const VelString& iText) {
  const VelRshAttribute attribute(this, iAccessor);
  return attribute ? attribute->SetText(attribute.Key(), VelUnicodeString(iText)) : E_FAIL;
}

HRESULT VelRshShaderFeature::GetText(VelRshAttribute::Accessor iAccessor, VelString& oText) {
  const VelRshAttribute attribute(this, iAccessor);
  if (!attribute) return E_FAIL;
  VelUnicodeString text;
  VEL_RETURN_IF_FAILED(attribute->GetText(attribute.Key(), text));
  oText = text.ToVelString();
  return S_OK;
}

HRESULT VelRshShaderFeature::SetUnsigned(VelRshAttribute::Accessor iAccessor, std::uint32_t iValue) {
  const VelRshAttribute attribute(this, iAccessor);
  return attribute ? attribute->SetUnsigned(attribute.Key(), iValue) : E_FAIL;
}

HRESULT VelRshShaderFeature::GetUnsigned(VelRshAttribute::Accessor iAccessor, std::uint32_t& oValue) {
  const VelRshAttribute attribute(this, iAccessor);
  return attribute ? attribute->GetUnsigned(attribute.Key(), oValue) : E_FAIL;
}

HRESULT VelRshShaderFeature::AppendParameter(VelIRshParameter* iParameter) {
  EnsureDelegate();
  const VelRshAttribute parameters(this, &Keys::GetKeyVelRmaShaderParameters);
  if (!parameters || !VelISpecObject_var(iParameter)) return E_FAIL;
  if (FAILED(parameters->AppendComponent(parameters.Key(), iParameter))) return E_FAIL;
  Welcome(*iParameter);
  return S_OK;
}

HRESULT VelRshShaderFeature::AddParameter(const VelString& iName, const VelString& iStartUp,
                                          VelIRshParameter** oParameter) {
  EnsureDelegate();
  if (oParameter == nullptr) return E_FAIL;
  *oParameter = nullptr;
  VelBaseUnknown_var hFeature;
  VEL_RETURN_IF_FAILED(MakeParameter(iName, iStartUp, hFeature.Receive()));
  VelIRshParameter_var hParameter;
  HRESULT result = hFeature->Query(hParameter.Receive());
  if (hParameter) result = hParameter->SetName(iName);
  Welcome(*hFeature);
  *oParameter = hParameter.Detach();
  return result;
}

/// Makes the feature of a new parameter at the end of the list.
HRESULT VelRshShaderFeature::MakeParameter(const VelString& iName, const VelString& iStartUp,
                                           VelBaseUnknown** oFeature) {
  const VelRshAttribute parameters(this, &Keys::GetKeyVelRmaShaderParameters);
  if (!parameters) return E_FAIL;
  const VelISpecObject_var hFeature(this);
  VelIContainer_var hContainer;
  if (!hFeature || FAILED(hFeature->GetContainer(hContainer.Receive()))) return E_FAIL;
  VelBaseUnknown_var hFound;
  VEL_RETURN_IF_FAILED(FindStartUpToAdd(iStartUp, *hContainer, hFound.Receive()));
  const VelISpecObject_var hStartUp(hFound);
  VelBaseUnknown_var hMade;
  const HRESULT made =
      hStartUp->Instanciate(VelUnicodeString(iName), hContainer.Get(), VelISpecObject::InterfaceId(), hMade.Receive());
  if (FAILED(made)) return E_FAIL;
  if (FAILED(parameters->AppendComponent(parameters.Key(), hMade.Get()))) {
    // A shader that is being removed with its father takes nothing in; nobody else would ever remove the feature.
    const LifeCycleObject_var hLife(hMade);
    if (hLife) static_cast<void>(hLife->remove());
    return E_FAIL;
  }
  *oFeature = hMade.Detach();
  return S_OK;
}

HRESULT VelRshShaderFeature::FindStartUpToAdd(const VelString& iStartUp, VelIContainer& ioContainer,
                                              VelBaseUnknown** oStartUp) {
  const char* interfaceName = VelISpecObject::InterfaceId().Name();
  HRESULT found = FindStartUp(interfaceName, "", iStartUp, ioContainer, oStartUp);
  if (FAILED(found)) {
    const VelICatalogManager_var hCatalogs(&ioContainer);
    if (hCatalogs) static_cast<void>(hCatalogs->LoadCatalog("VelRmaCatalog.feat"));
    found = FindStartUp(interfaceName, "", iStartUp, ioContainer, oStartUp);
  }
  if (FAILED(found)) {
    // Deliberately names another catalog than the one that was searched: hosts look for this very text.
    classTrace.Print(
        callLevel,
        "(VelRshShaderFeature::AddParameter) ERROR: '%s' start-up not found in catalog named VelRscCatalog.feat\n",
        iStartUp);
    return E_FAIL;
  }
  if (classTrace.IsOn(callLevel)) {
    const VelISpecObject_var hStartUp(*oStartUp);
    VelUnicodeString name;
    VelString type;
    static_cast<void>(hStartUp->GetName(name));
    static_cast<void>(hStartUp->GetType(type));
    classTrace.Print(callLevel, "(VelRshShaderFeature::AddParameter) startUp='%s' featType='%s'\n", name, type);
  }
  return S_OK;
}

void VelRshShaderFeature::Welcome(VelBaseUnknown& ioParameter) {
  const VelIRshParameterPrivate_var hPrivate(&ioParameter);
  if (hPrivate) {
    static_cast<void>(hPrivate->UpdateValueAndConnection());
    const VelIRshShader_var hThis(this);
    if (hThis) static_cast<void>(hPrivate->AttachToShader(hThis.Get()));
  }
  BindEvents(ioParameter);
}

HRESULT VelRshShaderFeature::ReadParameters(VelListPtrVelBaseUnknown& oParameters) {
  oParameters.RemoveAll();
  const VelRshAttribute parameters(this, &Keys::GetKeyVelRmaShaderParameters);
  return parameters ? VelRshComponentList::Read(parameters, oParameters) : E_FAIL;
}

HRESULT VelRshShaderFeature::GetParameters(VelListPtrVelBaseUnknown** oParameters) {
  EnsureDelegate();
  if (oParameters == nullptr) return E_FAIL;
  *oParameters = nullptr;
  auto parameters = std::make_unique<VelListPtrVelBaseUnknown>();
  if (FAILED(ReadParameters(*parameters))) return E_FAIL;
  *oParameters = parameters.release();
  return S_OK;
}

HRESULT VelRshShaderFeature::AddNode(VelIRshShader* iNode) {
  EnsureDelegate();
  const VelRshAttribute nodes(this, &Keys::GetKeyVelRmaShaderNodes);
  return nodes && SUCCEEDED(nodes->AppendComponent(nodes.Key(), iNode)) ? S_OK : E_FAIL;
}

HRESULT VelRshShaderFeature::RemoveNode(VelIRshShader* iNode) {
  EnsureDelegate();
  const VelRshAttribute nodes(this, &Keys::GetKeyVelRmaShaderNodes);
  return nodes && SUCCEEDED(nodes->RemoveComponent(nodes.Key(), iNode)) ? S_OK : E_FAIL;
}

HRESULT VelRshShaderFeature::GetNodes(VelListPtrVelBaseUnknown** oNodes) {
  EnsureDelegate();
  if (oNodes == nullptr) return E_FAIL;
  *oNodes = nullptr;
  const VelRshAttribute nodes(this, &Keys::GetKeyVelRmaShaderNodes);
  if (!nodes) return E_FAIL;
  if (!nodes.IsValuated()) return S_OK;
  auto list = std::make_unique<VelListPtrVelBaseUnknown>();
  if (FAILED(VelRshComponentList::Read(nodes, *list))) return E_FAIL;
  *oNodes = list.release();
  return S_OK;
}

VelString VelRshShaderFeature::GetTypeName() {
  VelString type;
  return SUCCEEDED(GetType(type)) ? type : VelString();
}

HRESULT VelRshShaderFeature::NoteConnectionFrom(VelIRshShader*) { return S_FALSE; }

void VelRshShaderFeature::GetParentShader(VelIRshShader_var& oShader) {
  oShader = nullptr;
  const VelISpecObject_var hFather = VelRshFather(*this);
  if (!hFather) return;
  const VelIRshParameter_var hParameter(hFather);
  if (hParameter) {
    oShader = VelRshParameterServices::FindShaderParent(*hParameter);
    return;
  }
  if (VelIRenderingMaterial_var(hFather)) return;
  oShader = VelIRshShader_var(hFather);
}

HRESULT VelRshShaderFeature::SetAlias(const VelUnicodeString& iAlias) {
  alias_ = iAlias;
  return S_OK;
}

VelUnicodeString VelRshShaderFeature::GetAlias() {
  if (!alias_.IsEmpty()) return alias_;
  VelString type;
  if (FAILED(GetType(type))) return alias_;
  alias_ = VelMsgCatalog::BuildMessage(type, "Label");
  if (alias_.IsEmpty()) alias_ = VelUnicodeString(type);
  return alias_;
}
