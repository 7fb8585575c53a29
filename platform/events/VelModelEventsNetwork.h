// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModelEventsNetwork.h All connections between objects that dispatch and those that receive.
#ifndef PLATFORM_EVENTS_VELMODELEVENTSNETWORK_H
#define PLATFORM_EVENTS_VELMODELEVENTSNETWORK_H

#include <cstdint>

#include "platform/base/HResult.h"
#include "platform/events/VelModelEventsConnection.h"

class VelBaseUnknown;

/// The connections of the process, in one set: whether two ends are connected is told in constant time however many
/// either has, and an object that is not connected pays for none of it. Not exported.
class VelModelEventsNetwork {
 public:
  /// Connects a listener to an object, asking the object for its VelIModelEvents.
  /// @return as VelModelEventsListener::ConnectTo
  static HRESULT Connect(VelBaseUnknown* iObject, VelExtIModelEvents& ioListener);
  static HRESULT Connect(VelBaseUnknown* iObject, VelModelEventsListener& ioListener);

  /// @return as VelModelEventsListener::DeconnectFrom
  static HRESULT Disconnect(VelBaseUnknown* iObject, VelExtIModelEvents& ioListener);
  static HRESULT Disconnect(VelBaseUnknown* iObject, VelModelEventsListener& ioListener);

  /// Ends all connections of an end, in both directions.
  static void DisconnectAll(VelExtIModelEvents& ioExtension) noexcept;
  static void DisconnectAll(VelModelEventsListener& ioListener) noexcept;

  /// @return the serial of the youngest connection
  static std::uint64_t YoungestSerial() noexcept;

  /// @return the number of connections
  static int Count() noexcept;

 private:
  static VelModelEventsEnds& EndsOf(VelExtIModelEvents& ioExtension);
  static HRESULT Enter(const VelModelEventsConnection& iWanted, const VelModelEventsConnection*& ioFirstSource);
  static HRESULT Drop(const VelModelEventsConnection& iWanted) noexcept;
  static void Unlink(const VelModelEventsConnection& iConnection) noexcept;
};

#endif  // PLATFORM_EVENTS_VELMODELEVENTSNETWORK_H
