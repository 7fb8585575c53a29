// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCallOnExit.cpp Keeps the exit hooks and runs them.
#include "platform/base/VelCallOnExit.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "platform/base/VelCheck.h"
#include "platform/base/VelExceptionText.h"

namespace {

struct RegisteredHook {
  VelExitHook hook;
  int priority;
};

/// The hooks, oldest first. Never destroyed: hooks may be registered while the process exits.
std::vector<RegisteredHook>& Hooks() {
  static auto& hooks = *new std::vector<RegisteredHook>;
  return hooks;
}

/// Takes out the hook that is next in turn: the lowest priority number, among equals the youngest.
VelExitHook TakeNext(std::vector<RegisteredHook>& ioHooks) {
  const auto next = std::min_element(ioHooks.rbegin(), ioHooks.rend(), [](const auto& iLeft, const auto& iRight) {
    return iLeft.priority < iRight.priority;
  });
  const VelExitHook hook = next->hook;
  ioHooks.erase(std::next(next).base());
  return hook;
}

void RunAtProcessExit() { VelPlatformTerminate(); }

}  // namespace

void VelCallOnExit(VelExitHook iHook, int iPriority) {
  if (iHook == nullptr) return;
  static const int registered = std::atexit(&RunAtProcessExit);
  static_cast<void>(registered);
  Hooks().push_back({iHook, iPriority});
}

void VelPlatformTerminate() noexcept {
  while (!Hooks().empty()) {
    const VelExitHook hook = TakeNext(Hooks());
    try {
      hook(0);
    } catch (...) {
      VelCheck::Failed(VEL_HERE("platform/base/VelCallOnExit"), "hook(0)", "An exit hook threw an exception",
                       VelExceptionText("hook"));
    }
  }
}
