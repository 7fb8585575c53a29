// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelInstanceCounts.cpp Holds the counters of live objects.
#include "platform/objectmodeler/VelInstanceCounts.h"

#include "platform/objectmodeler/VelInstanceCounter.h"
#include "platform/objectmodeler/VelTiePool.h"

constinit VelInstanceCounts velInstanceCounter{};

VelInstanceCounts VelInstanceCounts::Now() noexcept {
  VelInstanceCounts counts = velInstanceCounter;
  counts.forwarders = VelTiePool::CountTaken();
  return counts;
}
