// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDiagnostics.cpp Enters the registry's list of scopes and keeps copies of what is emitted.
#include "platform/trace/VelDiagnostics.h"

#include <algorithm>

#include "platform/trace/VelTraceRegistry.h"

namespace {

std::size_t CountOf(const std::vector<VelDiagnosticEntry>& iEntries, VelTraceKind iKind) noexcept {
  return static_cast<std::size_t>(std::count_if(
      iEntries.begin(), iEntries.end(), [&](const VelDiagnosticEntry& iEntry) { return iEntry.kind == iKind; }));
}

}  // namespace

VelDiagnostics::VelDiagnostics() { VelTraceRegistry::Get().AddScope(*this); }

VelDiagnostics::~VelDiagnostics() { VelTraceRegistry::Get().RemoveScope(*this); }

std::size_t VelDiagnostics::ErrorCount() const noexcept { return CountOf(entries_, VelTraceKind::Error); }

std::size_t VelDiagnostics::WarningCount() const noexcept { return CountOf(entries_, VelTraceKind::Warning); }

void VelDiagnostics::Collect(const VelTraceRecord& iRecord) {
  entries_.push_back({iRecord.kind, std::string(iRecord.channel), std::string(iRecord.text),
                      std::string(iRecord.position.source), iRecord.position.line});
}
