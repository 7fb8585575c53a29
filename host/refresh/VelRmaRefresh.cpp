// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaRefresh.cpp Collects while edits go on, and runs when they have ended.
#include "host/refresh/VelRmaRefresh.h"

#include <utility>

#include "RenderingShader/VelRshModel.m/include/VelRshParameterServices.h"
#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "RenderingShader/interfaces/VelIRshShaderPublisher.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "host/refresh/VelRmaGraphWalk.h"
#include "platform/events/VelCallbackManager.h"
#include "platform/events/VelIModelEvents.h"
#include "platform/events/VelReceiverTable.h"
#include "platform/featuremodeler/VelSpecChanges.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelRbaNotificationTopologyModification.h"

namespace {

/// @return null for a shader that publishes nothing
VelCallbackManager* ManagerOf(const VelIRshShader_var& iShader) {
  const VelIRshShaderPublisher_var hPublisher(iShader);
  return hPublisher ? hPublisher->GetCallbackManager() : nullptr;
}

}  // namespace

VelRmaRefresh::VelRmaRefresh(VelComponent& iComponent) : VelImplementation(iComponent) {
  VelEditScope::AddListener(*this);
}

VelRmaRefresh::~VelRmaRefresh() { VelEditScope::RemoveListener(*this); }

HRESULT VelRmaRefresh::Attach(VelBaseUnknown* iMaterial) {
  if (iMaterial == nullptr) return E_INVALIDARG;
  if (!VelIRenderingMaterial_var(iMaterial)) return E_NOINTERFACE;
  if (Find(iMaterial) != nullptr) return S_FALSE;
  VEL_RETURN_IF_FAILED(ConnectTo(iMaterial));
  const VelRmaGraphWalk walk = VelRmaGraphWalk::Of(*iMaterial);
  Followed followed{++attached_, VelBaseUnknown_WR(iMaterial), {}};
  for (const VelIRshParameter_var& hParameter : walk.parameters) {
    followed.parameters.emplace(hParameter->GetComponent(), VelBaseUnknown_WR(hParameter.Get()));
  }
  Listen(walk);
  followed_[iMaterial->GetComponent()] = std::move(followed);
  return S_OK;
}

HRESULT VelRmaRefresh::Detach(VelBaseUnknown* iMaterial) {
  if (iMaterial == nullptr) return E_INVALIDARG;
  const Followed* const followed = Find(iMaterial);
  if (followed == nullptr) return S_FALSE;
  static_cast<void>(DeconnectFrom(iMaterial));
  for (const auto& [component, parameter] : followed->parameters) pending_.Forget(parameter);
  followed_.erase(iMaterial->GetComponent());
  StopListening(VelRmaGraphWalk::Of(*iMaterial));
  return S_OK;
}

HRESULT VelRmaRefresh::Flush() {
  if (isRunning_) return E_UNEXPECTED;
  LookAgain();
  return Run() ? S_OK : S_FALSE;
}

const VelReceiverTable& VelRmaRefresh::Receivers() noexcept {
  using Events = VelRshShaderPublisherEvents;
  static const VelReceiverRow rows[] = {
      {Events::PARAMETER_VALUE_UPDATED(), &VelReceive<&VelRmaRefresh::OnParameterValue>},
      {Events::PARAMETER_CONNECTION_UPDATED(), &VelReceive<&VelRmaRefresh::OnParameterConnection>}};
  static const VelReceiverTable table(rows);
  return table;
}

void VelRmaRefresh::OnParameterValue(VelEventName, VelBaseUnknown*, VelNotification* ioNotification) {
  Note(ioNotification, VelRmaChange::Value);
}

void VelRmaRefresh::OnParameterConnection(VelEventName, VelBaseUnknown*, VelNotification* ioNotification) {
  Note(ioNotification, VelRmaChange::Connection);
}

void VelRmaRefresh::Note(VelNotification* iNotification, VelRmaChange iChange) {
  const auto* changed = VelNotificationCast<VelRshModelNotificationShaderParameterChanged>(iNotification);
  if (changed != nullptr) pending_.Note(&changed->GetPublisher(), iChange);
}

void VelRmaRefresh::Receive(VelNotification& ioNotification) {
  const auto* topology = VelNotificationCast<VelRbaNotificationTopologyModification>(&ioNotification);
  if (topology == nullptr) return;
  const bool isConnection = topology->GetSubComponentsIID() == VelIRshShader::InterfaceId();
  pending_.Note(topology->GetObject(), isConnection ? VelRmaChange::Connection : VelRmaChange::Value);
}

void VelRmaRefresh::OnEditsEnded() {
  if (isRunning_) return;
  LookAgain();
  static_cast<void>(Run());
}

VelRmaRefresh::Followed* VelRmaRefresh::Find(VelBaseUnknown* iMaterial) {
  const VelComponent* const component = iMaterial != nullptr ? iMaterial->GetComponent() : nullptr;
  const auto followed = followed_.find(component);
  // Another material may have been made where one that is gone was before.
  const bool isFollowed = followed != followed_.end() && followed->second.material.Get() == component;
  return isFollowed ? &followed->second : nullptr;
}

VelRmaRefresh::Followed* VelRmaRefresh::FindAbove(const VelBaseUnknown_WR& iParameter) {
  VelIRshParameter_var hParameter;
  if (FAILED(iParameter.Query(hParameter.Receive()))) return nullptr;
  return Find(VelRshParameterServices::FindRenderingMaterial(*hParameter).Get());
}

void VelRmaRefresh::Listen(const VelRmaGraphWalk& iWalk) {
  for (const VelIRshShader_var& hShader : iWalk.shaders) {
    VelCallbackManager* const manager = ManagerOf(hShader);
    if (manager == nullptr) continue;
    using Events = VelRshShaderPublisherEvents;
    static_cast<void>(manager->AddCallback(Events::PARAMETER_VALUE_UPDATED(), this, Receivers()));
    static_cast<void>(manager->AddCallback(Events::PARAMETER_CONNECTION_UPDATED(), this, Receivers()));
  }
}

void VelRmaRefresh::StopListening(const VelRmaGraphWalk& iWalk) {
  for (const VelIRshShader_var& hShader : iWalk.shaders) {
    // A shader that is connected here may stand below another material.
    if (Find(VelRshParameterServices::FindRenderingMaterial(*hShader).Get()) != nullptr) continue;
    VelCallbackManager* const manager = ManagerOf(hShader);
    if (manager != nullptr) static_cast<void>(VelRshShaderPublisherEvents::UNBIND_CALLBACK(*manager, this));
  }
}

void VelRmaRefresh::LookAgain() {
  std::map<std::uint64_t, Followed*> concerned;
  const std::uint64_t places = VelSpecChanges::CountOfPlaces();
  if (places != placesAtLastLook_) {
    std::erase_if(followed_, [](const auto& iFollowed) { return iFollowed.second.material.Get() == nullptr; });
    for (auto& [component, followed] : followed_) concerned.emplace(followed.number, &followed);
    placesAtLastLook_ = places;
  } else {
    pending_.Visit([&](const VelBaseUnknown_WR& iParameter) {
      Followed* const followed = FindAbove(iParameter);
      if (followed != nullptr) concerned.emplace(followed->number, followed);
    });
  }
  for (const auto& [number, followed] : concerned) LookAgainAt(*followed);
}

void VelRmaRefresh::LookAgainAt(Followed& ioFollowed) {
  VelBaseUnknown* const material = ioFollowed.material.Get();
  if (material == nullptr) return;
  const VelRmaGraphWalk walk = VelRmaGraphWalk::Of(*material);
  Listen(walk);
  std::map<const VelComponent*, VelBaseUnknown_WR> parameters;
  for (const VelIRshParameter_var& hParameter : walk.parameters) {
    const VelComponent* const component = hParameter->GetComponent();
    const auto known = ioFollowed.parameters.find(component);
    const bool isKnown = known != ioFollowed.parameters.end() && known->second.Get() == component;
    parameters.emplace(component, isKnown ? std::move(known->second) : VelBaseUnknown_WR(hParameter.Get()));
    if (isKnown) continue;
    pending_.Note(hParameter.Get(), VelRmaChange::Value);
    pending_.Note(hParameter.Get(), VelRmaChange::Connection);
  }
  ioFollowed.parameters = std::move(parameters);
}

bool VelRmaRefresh::Run() {
  isRunning_ = true;
  bool hasUpdated = false;
  while (pending_.HasNext()) {
    const VelRmaPendingUpdates::Update update = pending_.Take();
    VelIRshParameterPrivate_var hParameter;
    if (FindAbove(update.parameter) == nullptr || FAILED(update.parameter.Query(hParameter.Receive()))) continue;
    hasUpdated = true;
    static_cast<void>(update.change == VelRmaChange::Value ? hParameter->UpdateValue()
                                                           : hParameter->UpdateConnection());
  }
  pending_.Clear();
  isRunning_ = false;
  return hasUpdated;
}
