// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelModelEntityNotification.h The base of notifications about an object of a model.
#ifndef PLATFORM_EVENTS_VELMODELENTITYNOTIFICATION_H
#define PLATFORM_EVENTS_VELMODELENTITYNOTIFICATION_H

#include <cstddef>

#include "platform/events/VelNotification.h"

/// Something happened to an object of a model. Clones of derived classes lie on the notification heap
/// (VelNotificationHeap): `new` gives null there when the memory is used up.
class VEL_PLATFORM_API VelModelEntityNotification : public VelNotification {
 public:
  VEL_NOTIFICATION(VelModelEntityNotification);

  ~VelModelEntityNotification() override;

  static void* operator new(std::size_t iSize) noexcept;
  static void operator delete(void* iMemory) noexcept;

 protected:
  VelModelEntityNotification() = default;
  VelModelEntityNotification(const VelModelEntityNotification&) = default;
};

#endif  // PLATFORM_EVENTS_VELMODELENTITYNOTIFICATION_H
