// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExtIModelEvents.cpp How a notification goes through an object and on to its listeners.
#include "platform/events/VelExtIModelEvents.h"

#include <string_view>

#include "platform/base/VelCheck.h"
#include "platform/base/VelExceptionText.h"
#include "platform/events/VelIModelEvents.h"
#include "platform/events/VelModelEventsListener.h"
#include "platform/events/VelModelEventsNetwork.h"
#include "platform/objectmodeler/VelPin.h"

static_assert(sizeof(VelExtIModelEvents) == 48, "The events of an object that is not connected cost 48 bytes");

namespace {

constexpr const char* sourceText = "platform/events/VelExtIModelEvents";

/// Far above what models need, far below what the stack holds.
constexpr int depthLimit = 1024;

constinit int depth = 0;  ///< The objects that are handing something on.

bool IsClosed(VelImplementation& iImplementation) noexcept {
  return iImplementation.GetComponent()->State() == VelComponentState::Closed;
}

void ReportException(std::string_view iThrower) noexcept {
  VelCheck::Failed(VEL_HERE(sourceText), "Receive()", "The receiver of a model event threw an exception",
                   VelExceptionText(iThrower));
}

void HandToListener(VelModelEventsListener& ioListener, VelNotification& ioNotification) noexcept {
  try {
    ioListener.Receive(ioNotification);
  } catch (...) {
    ReportException("VelModelEventsListener");
  }
}

/// The listener stays until its Receive has returned. One through which the notification runs already is not called at
/// all, so that overrides of Receive see each notification once per way.
void HandToExtension(VelExtIModelEvents& ioListener, VelNotification& ioNotification) noexcept {
  if (IsClosed(ioListener) || VelModelEventsRun::Find(ioListener, ioNotification) != nullptr) return;
  const VelPin pin(*ioListener.GetComponent());
  try {
    static_cast<void>(ioListener.Receive(ioNotification));  // What one listener answers is nothing to the others.
  } catch (...) {
    ReportException(ioListener.ClassName());
  }
}

}  // namespace

VelModelEventsRun::VelModelEventsRun(VelExtIModelEvents& ioExtension, const VelNotification& iNotification) noexcept
    : extension(ioExtension), notification(iNotification), outer(ioExtension.running_) {
  extension.running_ = this;
}

VelModelEventsRun::~VelModelEventsRun() { extension.running_ = outer; }

VelModelEventsRun* VelModelEventsRun::Find(const VelExtIModelEvents& iExtension,
                                           const VelNotification& iNotification) noexcept {
  VelModelEventsRun* run = iExtension.running_;
  while (run != nullptr && &run->notification != &iNotification) run = run->outer;
  return run;
}

VelExtIModelEvents::VelExtIModelEvents(VelComponent& iComponent) noexcept : VelImplementation(iComponent) {}

VelExtIModelEvents::~VelExtIModelEvents() { VelModelEventsNetwork::DisconnectAll(*this); }

const VelMetaClass& VelExtIModelEvents::MetaObject() noexcept {
  static const VelMetaClass& metaClass =
      fct_RetrieveMetaObject("VelExtIModelEvents", &VelImplementation::MetaObject(), VelTypeOfClass::Extension);
  return metaClass;
}

HRESULT VelExtIModelEvents::Receive(VelNotification& ioNotification) {
  if (IsClosed(*this)) return E_FAIL;
  if (VelModelEventsRun::Find(*this, ioNotification) != nullptr) return S_FALSE;
  const VelPin pin(*GetComponent());
  const VelModelEventsRun run(*this, ioNotification);
  return Dispatch(ioNotification);
}

HRESULT VelExtIModelEvents::Dispatch(VelNotification& ioNotification) {
  if (IsClosed(*this)) return E_FAIL;
  if (VelModelEventsRun* received = VelModelEventsRun::Find(*this, ioNotification)) {
    return received->handingOn ? S_FALSE : HandOn(*received, ioNotification);
  }
  const VelPin pin(*GetComponent());
  VelModelEventsRun run(*this, ioNotification);
  return HandOn(run, ioNotification);
}

HRESULT VelExtIModelEvents::HandOn(VelModelEventsRun& ioRun, VelNotification& ioNotification) {
  if (depth == depthLimit) {
    VelCheck::Failed(VEL_HERE(sourceText), "depth == depthLimit", "Model events are handed on through too many objects",
                     ClassName());
    return E_FAIL;
  }
  ++depth;
  ioRun.handingOn = true;
  const std::uint64_t youngestAtEntry = VelModelEventsNetwork::YoungestSerial();
  ioRun.next = ends_ != nullptr ? ends_->firstListener : nullptr;
  while (ioRun.next != nullptr && ioRun.next->serial <= youngestAtEntry && !IsClosed(*this)) {
    const VelModelEventsConnection& connection = *ioRun.next;
    ioRun.next = connection.nextListener;
    if (connection.extension != nullptr) {
      HandToExtension(*connection.extension, ioNotification);
    } else {
      HandToListener(*connection.listener, ioNotification);
    }
  }
  ioRun.next = nullptr;
  ioRun.handingOn = false;
  --depth;
  return S_OK;
}

HRESULT VelExtIModelEvents::GetDispatcher(VelBaseUnknown** oDispatcher) {
  if (oDispatcher == nullptr) return E_INVALIDARG;
  *oDispatcher = nullptr;
  return IsClosed(*this) ? E_FAIL : QueryInterface(IID_VelIModelEvents, oDispatcher);
}

HRESULT VelExtIModelEvents::ConnectTo(VelBaseUnknown* iObject) {
  return IsClosed(*this) ? E_FAIL : VelModelEventsNetwork::Connect(iObject, *this);
}

HRESULT VelExtIModelEvents::DeconnectFrom(VelBaseUnknown* iObject) {
  return IsClosed(*this) ? E_FAIL : VelModelEventsNetwork::Disconnect(iObject, *this);
}

void VelExtIModelEvents::OnComponentStateChange(VelComponentState iFrom, VelComponentState iTo) {
  if (iTo == VelComponentState::Closed) VelModelEventsNetwork::DisconnectAll(*this);
  VelImplementation::OnComponentStateChange(iFrom, iTo);
}

int VelExtIModelEvents::CountConnections() noexcept { return VelModelEventsNetwork::Count(); }
