// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelEditScope.cpp Counts the open edit scopes and announces the end of the outermost one.
#include "platform/base/VelEditScope.h"

#include "platform/base/VelCheck.h"
#include "platform/base/VelExceptionText.h"
#include "platform/base/VelListenerList.h"

namespace {

int depth = 0;
bool announcing = false;

VelListenerList<VelEditScopeListener>& Listeners() {
  static auto& listeners = *new VelListenerList<VelEditScopeListener>;
  return listeners;
}

void Announce(VelEditScopeListener& iListener) {
  try {
    iListener.OnEditsEnded();
  } catch (...) {
    VelCheck::Failed(VEL_HERE("platform/base/VelEditScope"), "OnEditsEnded()",
                     "A listener of the end of edits threw an exception", VelExceptionText("listener"));
  }
}

void AnnounceToAll() {
  announcing = true;
  Listeners().ForEach(Announce);
  announcing = false;
}

}  // namespace

VelEditScope::VelEditScope() noexcept { ++depth; }

VelEditScope::~VelEditScope() {
  if (depth == 1 && !announcing) AnnounceToAll();
  --depth;
}

int VelEditScope::Depth() noexcept { return depth; }

void VelEditScope::AddListener(VelEditScopeListener& iListener) { Listeners().Add(iListener); }

void VelEditScope::RemoveListener(VelEditScopeListener& iListener) noexcept { Listeners().Remove(iListener); }
