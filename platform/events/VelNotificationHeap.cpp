// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelNotificationHeap.cpp The memory of cloned notifications.
#include "platform/events/VelNotificationHeap.h"

#include <cstdlib>

namespace {

constinit bool failing = false;
constinit int taken = 0;

}  // namespace

void* VelNotificationHeap::Allocate(std::size_t iSize) noexcept {
  if (failing) return nullptr;
  void* const memory = std::malloc(iSize);
  if (memory != nullptr) ++taken;
  return memory;
}

void VelNotificationHeap::Free(void* iMemory) noexcept {
  if (iMemory == nullptr) return;
  --taken;
  std::free(iMemory);
}

void VelNotificationHeap::SetFailing(bool iFailing) noexcept { failing = iFailing; }

int VelNotificationHeap::CountTaken() noexcept { return taken; }
