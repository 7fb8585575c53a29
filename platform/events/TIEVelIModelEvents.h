// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TIEVelIModelEvents.h The forwarder of VelIModelEvents.
#ifndef PLATFORM_EVENTS_TIEVELIMODELEVENTS_H
#define PLATFORM_EVENTS_TIEVELIMODELEVENTS_H

#include "platform/events/VelIModelEvents.h"
#include "platform/objectmodeler/VelTie.h"

template <class Implementation>
class TIEVelIModelEvents final : public VelTie<VelIModelEvents> {
 public:
  using VelTie::VelTie;

  HRESULT Dispatch(VelNotification& ioNotification) override {
    return Forward<Implementation>([&](Implementation& ioEvents) { return ioEvents.Dispatch(ioNotification); });
  }
  HRESULT GetDispatcher(VelBaseUnknown** oDispatcher) override {
    return Forward<Implementation>([&](Implementation& ioEvents) { return ioEvents.GetDispatcher(oDispatcher); });
  }
  HRESULT ConnectTo(VelBaseUnknown* iObject) override {
    return Forward<Implementation>([&](Implementation& ioEvents) { return ioEvents.ConnectTo(iObject); });
  }
  HRESULT DeconnectFrom(VelBaseUnknown* iObject) override {
    return Forward<Implementation>([&](Implementation& ioEvents) { return ioEvents.DeconnectFrom(iObject); });
  }
  HRESULT Receive(VelNotification& ioNotification) override {
    return Forward<Implementation>([&](Implementation& ioEvents) { return ioEvents.Receive(ioNotification); });
  }
};

#endif  // PLATFORM_EVENTS_TIEVELIMODELEVENTS_H
