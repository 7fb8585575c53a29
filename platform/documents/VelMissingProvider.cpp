// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelMissingProvider.cpp Says once per process that a service has nobody behind it.
#include "platform/documents/VelMissingProvider.h"

#include <utility>

#include "platform/trace/VelTraceHandle.h"

void VelMissingProvider::Warn() noexcept {
  if (std::exchange(isSaid_, true)) return;
  VelTraceHandle(channel_).Warning("The service is not available: the library %s is missing, or no dictionary names it",
                                   library_);
}
