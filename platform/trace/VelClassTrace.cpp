// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelClassTrace.cpp Finds the channel of a class and emits on it.
#include "platform/trace/VelClassTrace.h"

#include "platform/trace/VelTraceRegistry.h"

bool VelClassTrace::IsOnWhenResolved(int iLevel) const noexcept {
  if (channel_ == nullptr) {
    channel_ = &VelTraceRegistry::Get().Channel(name_);
    level_ = &VelTraceRegistry::ClassLevelOf(*channel_);
  }
  return iLevel <= *level_;
}

void VelClassTrace::Emit(int iLevel, const char* iFormat,
                         std::initializer_list<VelFormatArgument> iArguments) const noexcept {
  VelTraceRecord record;
  record.kind = VelTraceKind::ClassTrace;
  record.classLevel = iLevel;
  VelTraceRegistry::Get().Emit(*channel_, record, iFormat, {iArguments.begin(), iArguments.size()});
}
