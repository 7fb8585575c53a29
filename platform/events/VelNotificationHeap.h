// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelNotificationHeap.h Where the clones of model notifications are kept.
#ifndef PLATFORM_EVENTS_VELNOTIFICATIONHEAP_H
#define PLATFORM_EVENTS_VELNOTIFICATIONHEAP_H

#include <cstddef>

#include "platform/base/VelPlatformApi.h"

/// The memory of cloned notifications. Unlike all other memory it may run out without ending the process: a clone is a
/// convenience, and who asks for one copes with null.
class VEL_PLATFORM_API VelNotificationHeap {
 public:
  /// @param[in] iSize bytes
  /// @return memory aligned for any type, for Free; null when there is none
  static void* Allocate(std::size_t iSize) noexcept;

  /// Gives memory back; null changes nothing.
  static void Free(void* iMemory) noexcept;

  /// Makes every further Allocate fail, or work again, so that tests see what happens when memory is used up.
  static void SetFailing(bool iFailing) noexcept;

  /// @return the blocks that were allocated and not yet freed
  static int CountTaken() noexcept;
};

#endif  // PLATFORM_EVENTS_VELNOTIFICATIONHEAP_H
