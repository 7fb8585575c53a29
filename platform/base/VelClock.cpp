// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelClock.cpp The time that the system measures durations with.
#include "platform/base/VelClock.h"

#include <atomic>

#include "platform/base/system/VelSystemClock.h"

namespace {

constinit std::atomic<VelClockSource*> theSource{nullptr};

}  // namespace

std::int64_t VelClock::Now() noexcept {
  VelClockSource* source = theSource.load(std::memory_order_acquire);
  return source != nullptr ? source->Now() : VelSystemClock::Now();
}

VelClockSource* VelClock::SetSource(VelClockSource* iSource) noexcept { return theSource.exchange(iSource); }
