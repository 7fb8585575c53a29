// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshParameterBase_Connection.cpp The shader that is connected to a parameter.
#include "RenderingShader/VelRshModel.m/include/VelKeySetVelRmaCatalog.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshParameterBase.h"
#include "RenderingShader/VelRshModel.m/src/model/VelRshSubscription.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshComponentList.h"
#include "RenderingShader/VelRshModel.m/src/services/VelRshFather.h"
#include "RenderingShader/interfaces/VelIRshShaderPrivate.h"
#include "RenderingShader/interfaces/VelIRshShaderPublisher.h"
#include "RenderingShader/interfaces/VelRshModelNotificationParameterConnectionChanged.h"
#include "RenderingShader/interfaces/VelRshParameterPublisherEvents.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "platform/materials/VelRbaNotificationTopologyModification.h"

namespace {

using ParameterEvents = VelRshParameterPublisherEvents;
using ShaderEvents = VelRshShaderPublisherEvents;

/// @return the manager of a shader that publishes, null for one that does not
VelCallbackManager* ManagerOf(VelIRshShader& iShader) {
  const VelIRshShaderPublisher_var hPublisher(&iShader);
  return hPublisher ? hPublisher->GetCallbackManager() : nullptr;
}

bool IsSame(VelBaseUnknown* iLeft, VelBaseUnknown* iRight) {
  return iLeft == iRight || (iLeft != nullptr && iLeft->IsEqual(iRight));
}

/// Lets the next shader take note of the shader whose parameter it has been connected to.
void NoteConnection(VelRshParameterBase& ioParameter, VelIRshShader* iNext) {
  const VelIRshShaderPrivate_var hNext(iNext);
  const VelIRshParameterPrivate_var hParameter(&ioParameter);
  if (!hNext || !hParameter) return;
  VelIRshShader_var hParent;
  hParameter->GetParentShader(hParent);
  static_cast<void>(hNext->NoteConnectionFrom(hParent.Get()));
}

bool IsStillConnected(VelISpecObject& ioShader) {
  VelListPtrVelBaseUnknown owners;
  static_cast<void>(ioShader.ListPointingOwners(VelIRshParameter::InterfaceId(), owners));
  const bool isConnected = !owners.IsEmpty();
  VelRshComponentList::Release(owners);
  return isConnected;
}

/// Takes a shader that no parameter is connected to any more out of the nodes of its father.
HRESULT LetGo(const VelIRshShader_var& iShader) {
  const VelISpecObject_var hFeature(iShader);
  if (hFeature && IsStillConnected(*hFeature)) return S_OK;
  const VelIRshShader_var hFather(VelRshFather(*iShader));
  return hFather && SUCCEEDED(hFather->RemoveNode(iShader.Get())) ? S_OK : E_FAIL;
}

}  // namespace

HRESULT VelRshParameterBase::ReadConnection(VelIRshShader_var& oShader) {
  const VelRshAttribute node(this, &VelKeySetVelRmaCatalog::GetKeyVelRmaParameterNode);
  VelBaseUnknown_var hNode;
  if (!node || FAILED(node->GetReference(node.Key(), hNode.Receive()))) return E_FAIL;
  return hNode->Query(oShader.Receive());
}

HRESULT VelRshParameterBase::GetConnection(VelIRshShader** oShader) {
  if (oShader != nullptr) *oShader = nullptr;
  VelIRshShader_var hShader;
  VEL_RETURN_IF_FAILED(ReadConnection(hShader));
  if (oShader == nullptr) return S_OK;
  const VelIModelEvents_var hEvents(this);
  if (hEvents) static_cast<void>(hEvents->ConnectTo(hShader.Get()));
  *oShader = hShader.Detach();
  return S_OK;
}

HRESULT VelRshParameterBase::SetConnection(VelIRshShader* iShader) {
  if (!VelRshAttribute(this, &VelKeySetVelRmaCatalog::GetKeyVelRmaParameterNode)) return E_FAIL;
  const VelIRshShader_var hNext(iShader);
  VelIRshShader_var hPrevious;
  static_cast<void>(ReadConnection(hPrevious));
  if (IsSame(hPrevious.Get(), iShader)) return S_FALSE;
  VEL_RETURN_IF_FAILED(WriteConnection(iShader));
  trace_.Info("Changed connection { previous pointer = %x, next pointer = %x }", hPrevious.Get(), iShader);
  NoteConnection(*this, iShader);
  if (hPrevious) Unbind(*hPrevious);
  if (hNext) {
    const VelEventName events[] = {ParameterEvents::VALUE_UPDATED(), ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED(),
                                   ParameterEvents::CONNECTION_UPDATED(),
                                   ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED()};
    Bind(*hNext, events);
  }
  ConnectModelEvents(hPrevious, hNext);
  if (callbacks_.HasSubscriber(ParameterEvents::CONNECTION_UPDATED())) {
    VelRshModelNotificationParameterConnectionChanged changed(hPrevious, hNext);
    callbacks_.Dispatch(ParameterEvents::CONNECTION_UPDATED(), &changed, this);
  }
  if (IsClosed()) return S_OK;
  VEL_RETURN_IF_FAILED(TellHostOfConnection(hPrevious, hNext));
  if (IsClosed()) return S_OK;
  return hPrevious ? LetGo(hPrevious) : S_OK;
}

HRESULT VelRshParameterBase::WriteConnection(VelIRshShader* iShader) {
  const VelRshAttribute node(this, &VelKeySetVelRmaCatalog::GetKeyVelRmaParameterNode);
  if (iShader == nullptr) return node->ResetReference(node.Key());
  if (!VelISpecObject_var(iShader)) return E_INVALIDARG;
  return node->SetReference(node.Key(), iShader);
}

void VelRshParameterBase::Unbind(VelIRshShader& ioShader) {
  if (VelCallbackManager* manager = ManagerOf(ioShader)) {
    static_cast<void>(ShaderEvents::UNBIND_CALLBACK(*manager, this));
  }
  static_cast<void>(ParameterEvents::UNBIND_CALLBACK(callbacks_, &ioShader));
}

/// @param[in] iOwnEvents what the shader is to hear of this parameter
void VelRshParameterBase::Bind(VelIRshShader& ioShader, std::span<const VelEventName> iOwnEvents) {
  if (VelCallbackManager* manager = ManagerOf(ioShader)) {
    const VelEventName events[] = {ShaderEvents::PARAMETER_VALUE_UPDATED(),
                                   ShaderEvents::PARAMETER_CONNECTION_UPDATED()};
    VelRshSubscription::Subscribe(*manager, this, ConnectionReceivers(), events);
  }
  const VelIRshParameterSubscriber_var hSubscriber(&ioShader);
  if (!hSubscriber) return;
  VelRshSubscription::Subscribe(callbacks_, hSubscriber.Get(), VelRshSubscription::ReceiversOf(*hSubscriber),
                                iOwnEvents);
}

/// After a load: the connected shader hears what is forwarded to it, but deliberately not the parameter's own changes,
/// to which only a connection that is made in session subscribes it.
void VelRshParameterBase::OnAttached() {
  VelIRshShader_var hShader;
  if (FAILED(ReadConnection(hShader))) return;
  const VelEventName events[] = {ParameterEvents::FORWARD_PARAMETER_VALUE_UPDATED(),
                                 ParameterEvents::FORWARD_PARAMETER_CONNECTION_UPDATED()};
  Bind(*hShader, events);
}

void VelRshParameterBase::ConnectModelEvents(const VelIRshShader_var& iPrevious, const VelIRshShader_var& iNext) {
  const VelIModelEvents_var hEvents(this);
  if (!hEvents) return;
  if (iPrevious) static_cast<void>(hEvents->DeconnectFrom(iPrevious.Get()));
  if (iNext) static_cast<void>(hEvents->ConnectTo(iNext.Get()));
}

HRESULT VelRshParameterBase::TellHostOfConnection(const VelIRshShader_var& iPrevious, const VelIRshShader_var& iNext) {
  const VelIModelEvents_var hEvents(this);
  if (!hEvents) return S_OK;
  VelString name;
  if (FAILED(GetName(name))) return E_FAIL;
  VelRbaNotificationTopologyModification modification(name, this, VelIRshParameter::InterfaceId(),
                                                      VelBaseUnknown_var(iPrevious), VelBaseUnknown_var(iNext),
                                                      VelIRshShader::InterfaceId());
  static_cast<void>(hEvents->Dispatch(modification));
  return S_OK;
}

VelIModelEvents_var VelRshParameterBase::FindHostEvents(VelString& oName) {
  const VelComponent* father = GetComponent()->GetFather();
  if (father == nullptr || !father->OffersInterface(VelIRshShader::InterfaceId())) return nullptr;
  VelIModelEvents_var hEvents(this);
  if (!hEvents || FAILED(GetName(oName))) return nullptr;
  return hEvents;
}
