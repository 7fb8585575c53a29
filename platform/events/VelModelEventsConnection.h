// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModelEventsConnection.h One connection between an object that dispatches and one that receives.
#ifndef PLATFORM_EVENTS_VELMODELEVENTSCONNECTION_H
#define PLATFORM_EVENTS_VELMODELEVENTSCONNECTION_H

#include <cstdint>

class VelExtIModelEvents;
class VelModelEventsListener;
class VelNotification;

/// An element of the set of connections, and at once a link of two chains: the listeners of its source, in the order of
/// connecting, and the sources of its listener. Exactly one of the two kinds of listener is set. Not exported.
struct VelModelEventsConnection {
  VelExtIModelEvents* source;
  VelExtIModelEvents* extension;
  VelModelEventsListener* listener;

  // The set knows an element by its ends alone; the rest changes while it is in there.
  mutable std::uint64_t serial = 0;  ///< Counts up over the process.
  mutable const VelModelEventsConnection* previousListener = nullptr;
  mutable const VelModelEventsConnection* nextListener = nullptr;
  mutable const VelModelEventsConnection** sourceLink = nullptr;  ///< What points to this one in the other chain.
  mutable const VelModelEventsConnection* nextSource = nullptr;
};

/// The ends of the chains of one extension. Not exported.
struct VelModelEventsEnds {
  const VelModelEventsConnection* firstListener = nullptr;
  const VelModelEventsConnection* lastListener = nullptr;
  const VelModelEventsConnection* firstSource = nullptr;
};

/// A notification on its way through one extension; lives on the stack of the call. Not exported.
struct VelModelEventsRun {
  VelModelEventsRun(VelExtIModelEvents& ioExtension, const VelNotification& iNotification) noexcept;
  ~VelModelEventsRun();
  VelModelEventsRun(const VelModelEventsRun&) = delete;
  VelModelEventsRun& operator=(const VelModelEventsRun&) = delete;

  /// @return the run of a notification through an extension, null when it is not there
  static VelModelEventsRun* Find(const VelExtIModelEvents& iExtension, const VelNotification& iNotification) noexcept;

  VelExtIModelEvents& extension;
  const VelNotification& notification;
  VelModelEventsRun* outer;
  const VelModelEventsConnection* next = nullptr;  ///< Whose turn it is; moved on when that connection goes.
  bool handingOn = false;                          ///< False between Receive and what it hands to the base's Dispatch.
};

#endif  // PLATFORM_EVENTS_VELMODELEVENTSCONNECTION_H
