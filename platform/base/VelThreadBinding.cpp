// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelThreadBinding.cpp Remembers the application thread.
#include "platform/base/VelThreadBinding.h"

#include <atomic>
#include <thread>

#include "platform/base/VelFatalErrorService.h"

namespace {

/// The bound thread; the identity of no thread while nobody is bound. Atomic because the very call that must be refused
/// comes from another thread.
std::atomic<std::thread::id> boundThread{};

}  // namespace

void VelThreadBinding::Bind() noexcept { boundThread = std::this_thread::get_id(); }

void VelThreadBinding::Unbind() noexcept { boundThread = std::thread::id{}; }

bool VelThreadBinding::IsBoundThread() noexcept {
  const std::thread::id bound = boundThread.load(std::memory_order_relaxed);
  return bound == std::thread::id{} || bound == std::this_thread::get_id();
}

bool VelThreadBinding::AssertBoundThread() noexcept {
  if (IsBoundThread()) return true;
  VelFatalErrorService::AssertionFailed(VEL_HERE("platform/base/VelThreadBinding"),
                                        "VelThreadBinding::IsBoundThread()");
  return false;
}
