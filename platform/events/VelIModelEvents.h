// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIModelEvents.h Hands what happens to an object of a model on to those that are connected to it.
#ifndef PLATFORM_EVENTS_VELIMODELEVENTS_H
#define PLATFORM_EVENTS_VELIMODELEVENTS_H

#include "platform/base/VelPlatformApi.h"
#include "platform/events/VelNotification.h"
#include "platform/objectmodeler/VelBaseUnknown.h"
#include "platform/objectmodeler/VelVar.h"

VEL_PLATFORM_API extern const VelInterfaceId IID_VelIModelEvents;

/// The events of an object. Objects are connected one to the other: what one dispatches the other receives, and by
/// default dispatches in turn. Nothing reaches a father by itself. Connections keep nobody alive and vanish with either
/// end.
///
/// Implemented by: classes that derive from VelExtIModelEvents.
/// Thread: the application thread. Re-entrancy: everything is allowed while a notification is handed round; one that
/// comes back to an object that is still handing it on is cut there, so that cycles end.
class VEL_PLATFORM_API VelIModelEvents : public VelBaseUnknown {
 public:
  VEL_INTERFACE(VelIModelEvents);

  /// Hands a notification to those that are connected to this object, in the order in which they connected.
  /// @param[in,out] ioNotification lives at least until the call returns
  /// @return S_OK, also when nobody is connected; S_FALSE when this object is handing on that very notification
  ///         already; E_FAIL when the component is closed, or when 1024 objects further up are handing something on,
  ///         which is reported as a check
  virtual HRESULT Dispatch(VelNotification& ioNotification) = 0;

  /// @param[out] oDispatcher this object's VelIModelEvents with one reference for the caller, null on failure,
  ///             untouched when the component is closed
  /// @return S_OK; E_INVALIDARG when oDispatcher is null; E_FAIL when the component is closed
  virtual HRESULT GetDispatcher(VelBaseUnknown** oDispatcher) = 0;

  /// Makes this object receive what another one dispatches, from its next dispatch on.
  /// @param[in] iObject not referenced; may be this very object
  /// @return S_OK; S_FALSE when they are connected already; E_INVALIDARG when iObject is null; E_NOINTERFACE when it
  ///         has no VelIModelEvents of the platform's making; E_FAIL when this object's component is closed
  virtual HRESULT ConnectTo(VelBaseUnknown* iObject) = 0;

  /// Ends what ConnectTo began.
  /// @return S_OK; S_FALSE when they are not connected, as nobody is with a closed object; E_INVALIDARG when iObject is
  ///         null; E_NOINTERFACE as for ConnectTo; E_FAIL when this object's component is closed
  virtual HRESULT DeconnectFrom(VelBaseUnknown* iObject) = 0;

  /// Called with what an object dispatches that this one is connected to.
  /// @return as Dispatch
  virtual HRESULT Receive(VelNotification& ioNotification) = 0;

 protected:
  ~VelIModelEvents() = default;
};

using VelIModelEvents_var = VelVar<VelIModelEvents>;

#endif  // PLATFORM_EVENTS_VELIMODELEVENTS_H
