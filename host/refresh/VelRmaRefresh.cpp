// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRmaRefresh.cpp Collects while edits go on, and runs when they have ended.
#include "host/refresh/VelRmaRefresh.h"

#include <algorithm>
#include <utility>

#include "RenderingShader/interfaces/VelIRshParameterPrivate.h"
#include "RenderingShader/interfaces/VelIRshShaderPublisher.h"
#include "RenderingShader/interfaces/VelRshModelNotificationShaderParameterChanged.h"
#include "RenderingShader/interfaces/VelRshShaderPublisherEvents.h"
#include "host/refresh/VelRmaGraphWalk.h"
#include "platform/events/VelCallbackManager.h"
#include "platform/events/VelIModelEvents.h"
#include "platform/events/VelReceiverTable.h"
#include "platform/materials/VelIRenderingMaterial.h"
#include "platform/materials/VelRbaNotificationTopologyModification.h"

VelRmaRefresh::VelRmaRefresh(VelComponent& iComponent) : VelImplementation(iComponent) {
  VelEditScope::AddListener(*this);
}

VelRmaRefresh::~VelRmaRefresh() { VelEditScope::RemoveListener(*this); }

HRESULT VelRmaRefresh::Attach(VelBaseUnknown* iMaterial) {
  if (iMaterial == nullptr) return E_INVALIDARG;
  if (!VelIRenderingMaterial_var(iMaterial)) return E_NOINTERFACE;
  if (Find(*iMaterial) != followed_.end()) return S_FALSE;
  VEL_RETURN_IF_FAILED(ConnectTo(iMaterial));
  const VelRmaGraphWalk walk = VelRmaGraphWalk::Of(*iMaterial);
  Followed followed{VelBaseUnknown_WR(iMaterial), {}};
  for (const VelIRshParameter_var& hParameter : walk.parameters) {
    followed.parameters.emplace(hParameter->GetComponent(), VelBaseUnknown_WR(hParameter.Get()));
  }
  Listen(walk);
  followed_.push_back(std::move(followed));
  return S_OK;
}

HRESULT VelRmaRefresh::Detach(VelBaseUnknown* iMaterial) {
  if (iMaterial == nullptr) return E_INVALIDARG;
  const auto followed = Find(*iMaterial);
  if (followed == followed_.end()) return S_FALSE;
  static_cast<void>(DeconnectFrom(iMaterial));
  for (const auto& [component, parameter] : followed->parameters) pending_.Forget(parameter);
  followed_.erase(followed);
  StopListening(VelRmaGraphWalk::Of(*iMaterial));
  // A shader may stand below several materials.
  for (const Followed& left : followed_) {
    if (VelBaseUnknown* const material = left.material.Get()) Listen(VelRmaGraphWalk::Of(*material));
  }
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

std::vector<VelRmaRefresh::Followed>::iterator VelRmaRefresh::Find(VelBaseUnknown& iMaterial) {
  const VelComponent* const component = iMaterial.GetComponent();
  return std::find_if(followed_.begin(), followed_.end(),
                      [&](const Followed& iFollowed) { return iFollowed.material.Get() == component; });
}

void VelRmaRefresh::Listen(const VelRmaGraphWalk& iWalk) {
  for (const VelIRshShader_var& hShader : iWalk.shaders) {
    const VelIRshShaderPublisher_var hPublisher(hShader);
    VelCallbackManager* const manager = hPublisher ? hPublisher->GetCallbackManager() : nullptr;
    if (manager == nullptr) continue;
    using Events = VelRshShaderPublisherEvents;
    static_cast<void>(manager->AddCallback(Events::PARAMETER_VALUE_UPDATED(), this, Receivers()));
    static_cast<void>(manager->AddCallback(Events::PARAMETER_CONNECTION_UPDATED(), this, Receivers()));
  }
}

void VelRmaRefresh::StopListening(const VelRmaGraphWalk& iWalk) {
  for (const VelIRshShader_var& hShader : iWalk.shaders) {
    const VelIRshShaderPublisher_var hPublisher(hShader);
    VelCallbackManager* const manager = hPublisher ? hPublisher->GetCallbackManager() : nullptr;
    if (manager != nullptr) static_cast<void>(VelRshShaderPublisherEvents::UNBIND_CALLBACK(*manager, this));
  }
}

void VelRmaRefresh::LookAgain() {
  std::erase_if(followed_, [](const Followed& iFollowed) { return iFollowed.material.Get() == nullptr; });
  for (Followed& followed : followed_) {
    const VelRmaGraphWalk walk = VelRmaGraphWalk::Of(*followed.material.Get());
    Listen(walk);
    LookAgainAt(followed, walk);
  }
}

void VelRmaRefresh::LookAgainAt(Followed& ioFollowed, const VelRmaGraphWalk& iWalk) {
  std::map<const VelComponent*, VelBaseUnknown_WR> parameters;
  for (const VelIRshParameter_var& hParameter : iWalk.parameters) {
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

bool VelRmaRefresh::IsFollowed(const VelBaseUnknown_WR& iParameter) const {
  const VelComponent* const component = iParameter.Get();
  return std::any_of(followed_.begin(), followed_.end(),
                     [&](const Followed& iFollowed) { return iFollowed.parameters.contains(component); });
}

bool VelRmaRefresh::Run() {
  isRunning_ = true;
  bool hasUpdated = false;
  while (pending_.HasNext()) {
    const VelRmaPendingUpdates::Update update = pending_.Take();
    VelIRshParameterPrivate_var hParameter;
    if (!IsFollowed(update.parameter) || FAILED(update.parameter.Query(hParameter.Receive()))) continue;
    hasUpdated = true;
    static_cast<void>(update.change == VelRmaChange::Value ? hParameter->UpdateValue()
                                                           : hParameter->UpdateConnection());
  }
  pending_.Clear();
  isRunning_ = false;
  return hasUpdated;
}
