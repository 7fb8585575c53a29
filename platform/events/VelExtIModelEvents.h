// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelExtIModelEvents.h The base of every class that answers VelIModelEvents.
#ifndef PLATFORM_EVENTS_VELEXTIMODELEVENTS_H
#define PLATFORM_EVENTS_VELEXTIMODELEVENTS_H

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/objectmodeler/VelImplementation.h"

class VelModelEventsNetwork;
class VelNotification;
struct VelModelEventsEnds;
struct VelModelEventsRun;

/// Answers VelIModelEvents (there it is said what the operations do) for a class that derives from it and binds it by
/// TIE with lifetime Component. 48 bytes until it is connected.
///
/// A derived class may override Dispatch, to hand a notification elsewhere as well, and Receive, to act on what it is
/// told; both then call the base's operation where the notification is to go on. An override of OnComponentStateChange
/// calls the base's too.
class VEL_PLATFORM_API VelExtIModelEvents : public VelImplementation {
 public:
  explicit VelExtIModelEvents(VelComponent& iComponent) noexcept;
  ~VelExtIModelEvents() override;

  const VelMetaClass& GetMetaObject() const noexcept override { return MetaObject(); }
  static const VelMetaClass& MetaObject() noexcept;

  virtual HRESULT Dispatch(VelNotification& ioNotification);
  virtual HRESULT Receive(VelNotification& ioNotification);
  HRESULT GetDispatcher(VelBaseUnknown** oDispatcher);
  HRESULT ConnectTo(VelBaseUnknown* iObject);
  HRESULT DeconnectFrom(VelBaseUnknown* iObject);

  void OnComponentStateChange(VelComponentState iFrom, VelComponentState iTo) override;

  /// @return the connections of the whole process, for the tests that look for leaks
  static int CountConnections() noexcept;

 private:
  friend class VelModelEventsNetwork;
  friend struct VelModelEventsRun;

  HRESULT HandOn(VelModelEventsRun& ioRun, VelNotification& ioNotification);

  VelModelEventsRun* running_ = nullptr;  ///< The innermost notification that is being handed on.
  VelModelEventsEnds* ends_ = nullptr;    ///< Made by the first connection.
};

#endif  // PLATFORM_EVENTS_VELEXTIMODELEVENTS_H
