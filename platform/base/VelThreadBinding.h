// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelThreadBinding.h The application thread: which one it is, and the assertion that a call comes from it.
#ifndef PLATFORM_BASE_VELTHREADBINDING_H
#define PLATFORM_BASE_VELTHREADBINDING_H

#include "platform/base/VelPlatformApi.h"

/// Everything above the traces runs on one thread, since reference counts are plain integers. The thread is the one
/// that starts the platform session; before a session nobody is bound and every thread passes.
class VEL_PLATFORM_API VelThreadBinding {
 public:
  /// Binds the calling thread.
  static void Bind() noexcept;

  /// Forgets the bound thread.
  static void Unbind() noexcept;

  /// @return true when no thread is bound or the calling one is
  static bool IsBoundThread() noexcept;

  /// Raises the assertion "VelThreadBinding::IsBoundThread()" when the call comes from another thread than the bound
  /// one.
  /// @return true when the thread is right
  static bool AssertBoundThread() noexcept;
};

/// The test of builds without NDEBUG; in release builds it is always true and costs nothing.
#if defined(NDEBUG)
#define VEL_IS_BOUND_THREAD() true
#else
#define VEL_IS_BOUND_THREAD() VelThreadBinding::AssertBoundThread()
#endif

#endif  // PLATFORM_BASE_VELTHREADBINDING_H
