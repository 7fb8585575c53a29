// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCallbackProbe.h Watches every delivery of every callback manager, for tests.
#ifndef PLATFORM_EVENTS_VELCALLBACKPROBE_H
#define PLATFORM_EVENTS_VELCALLBACKPROBE_H

#include "platform/base/VelPlatformApi.h"
#include "platform/events/VelEventName.h"

class VelBaseUnknown;
class VelNotification;

/// One call of one receiver. Nothing is referenced.
struct VelCallbackDelivery {
  VelEventName event;
  VelBaseUnknown* publisher;      ///< What the dispatch named; may be null.
  VelBaseUnknown* subscriber;     ///< The implementation.
  VelNotification* notification;  ///< What the dispatch handed over; may be null.
  int depth;                      ///< The deliveries, of any publisher, inside which this one happens.
};

/// Hears of each delivery just before it is made, in order. VelCallbackManager::SetProbe puts one in place.
class VEL_PLATFORM_API VelCallbackProbe {
 public:
  virtual void OnDelivery(const VelCallbackDelivery& iDelivery) noexcept = 0;

 protected:
  ~VelCallbackProbe() = default;
};

#endif  // PLATFORM_EVENTS_VELCALLBACKPROBE_H
