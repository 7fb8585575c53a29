// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCheck.cpp Hands reports to the observers and prints those that nobody hears.
#include "platform/base/VelCheck.h"

#include "platform/base/VelFailureText.h"
#include "platform/base/VelListenerList.h"
#include "platform/base/system/VelSystemStream.h"

namespace {

/// Never destroyed, so that a check raised while the process ends still finds its observers.
VelListenerList<VelFailureObserver>& Observers() {
  static auto& observers = *new VelListenerList<VelFailureObserver>;
  return observers;
}

}  // namespace

void VelCheck::Failed(VelSourcePosition iPosition, std::string_view iExpression, std::string_view iMessage,
                      std::string_view iDetail) noexcept {
  Publish({VelFailureKind::Check, iPosition, iExpression, iMessage, iDetail});
}

void VelCheck::AddObserver(VelFailureObserver& iObserver) { Observers().Add(iObserver); }

void VelCheck::RemoveObserver(VelFailureObserver& iObserver) noexcept { Observers().Remove(iObserver); }

void VelCheck::Publish(const VelFailureReport& iReport) noexcept {
  const bool heard = Observers().ForEach([&](VelFailureObserver& ioObserver) { ioObserver.OnFailure(iReport); });
  if (!heard) VelSystemStream::WriteToStandardError(VelFailureText::ToLine(iReport));
}
