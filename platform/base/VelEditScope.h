// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelEditScope.h Brackets a group of edits, so that services can act once when the outermost group ends.
#ifndef PLATFORM_BASE_VELEDITSCOPE_H
#define PLATFORM_BASE_VELEDITSCOPE_H

#include "platform/base/VelPlatformApi.h"

/// Hears that the outermost edit scope ends.
class VEL_PLATFORM_API VelEditScopeListener {
 public:
  /// Called once per outermost scope, while that scope still counts as open: scopes that the listener opens nest in it
  /// and end without a further call.
  virtual void OnEditsEnded() = 0;

 protected:
  ~VelEditScopeListener() = default;
};

/// A scope of edits: it begins with its construction and ends with its destruction. Scopes nest; only the end of the
/// outermost one is announced, to the listeners in the order in which they were added.
class VEL_PLATFORM_API VelEditScope {
 public:
  VelEditScope() noexcept;
  ~VelEditScope();
  VelEditScope(const VelEditScope&) = delete;
  VelEditScope& operator=(const VelEditScope&) = delete;

  /// @return how many scopes are open, 0 for none
  static int Depth() noexcept;

  /// Adds a listener, which is not owned and must be removed before it dies. Adding one twice changes nothing. One that
  /// is added while the end is being announced hears the next end.
  static void AddListener(VelEditScopeListener& iListener);

  /// Takes a listener out, also while the end is being announced: it is not called any more.
  static void RemoveListener(VelEditScopeListener& iListener) noexcept;
};

#endif  // PLATFORM_BASE_VELEDITSCOPE_H
