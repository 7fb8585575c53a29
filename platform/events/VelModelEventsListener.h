// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModelEventsListener.h A plain object that listens to the events of models.
#ifndef PLATFORM_EVENTS_VELMODELEVENTSLISTENER_H
#define PLATFORM_EVENTS_VELMODELEVENTSLISTENER_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"

class VelBaseUnknown;
class VelModelEventsNetwork;
class VelNotification;
struct VelModelEventsConnection;

/// Receives what the objects dispatch that it is connected to, without being part of a component: for hosts and tests.
/// Nobody owns it; its connections end with it, and with the component of the other end. It may die while it receives.
/// Thread: the application thread.
class VEL_PLATFORM_API VelModelEventsListener {
 public:
  VelModelEventsListener(const VelModelEventsListener&) = delete;
  VelModelEventsListener& operator=(const VelModelEventsListener&) = delete;

  /// Makes this listener receive what an object dispatches, from its next dispatch on.
  /// @param[in] iObject not referenced
  /// @return S_OK; S_FALSE when they are connected already; E_INVALIDARG when iObject is null; E_NOINTERFACE when it
  ///         has no VelIModelEvents of the platform's making, or is closed
  HRESULT ConnectTo(VelBaseUnknown* iObject);

  /// Ends what ConnectTo began.
  /// @return S_OK; S_FALSE when they are not connected, as nobody is with a closed object; E_INVALIDARG when iObject is
  ///         null; E_NOINTERFACE as for ConnectTo
  HRESULT DeconnectFrom(VelBaseUnknown* iObject);

  /// Called with what an object dispatches that this listener is connected to. What it throws is reported as a check,
  /// and the next listener goes on.
  virtual void Receive(VelNotification& ioNotification) = 0;

 protected:
  VelModelEventsListener() noexcept = default;
  virtual ~VelModelEventsListener();

 private:
  friend class VelModelEventsNetwork;

  const VelModelEventsConnection* firstSource_ = nullptr;
};

#endif  // PLATFORM_EVENTS_VELMODELEVENTSLISTENER_H
