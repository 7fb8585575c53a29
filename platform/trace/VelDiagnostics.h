// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelDiagnostics.h A scope that collects the warnings and errors which are emitted while it lives.
#ifndef PLATFORM_TRACE_VELDIAGNOSTICS_H
#define PLATFORM_TRACE_VELDIAGNOSTICS_H

#include <cstddef>
#include <vector>

#include "platform/base/VelPlatformApi.h"
#include "platform/trace/VelDiagnosticEntry.h"
#include "platform/trace/VelTraceRecord.h"

/// While a scope is active every channel accepts warnings and errors, whatever the switches say, and so do the checks;
/// the sinks still get only what is switched on. Scopes nest, and every active one collects. Thread: the application
/// thread.
class VEL_PLATFORM_API VelDiagnostics {
 public:
  VelDiagnostics();
  ~VelDiagnostics();
  VelDiagnostics(const VelDiagnostics&) = delete;
  VelDiagnostics& operator=(const VelDiagnostics&) = delete;

  /// @return what was collected, in the order of emission.
  [[nodiscard]] const std::vector<VelDiagnosticEntry>& Entries() const noexcept { return entries_; }

  [[nodiscard]] bool HasErrors() const noexcept { return ErrorCount() > 0; }
  [[nodiscard]] std::size_t ErrorCount() const noexcept;
  [[nodiscard]] std::size_t WarningCount() const noexcept;

  /// Forgets what was collected; the scope goes on collecting.
  void Clear() noexcept { entries_.clear(); }

 private:
  friend class VelTraceRegistry;

  void Collect(const VelTraceRecord& iRecord);

  std::vector<VelDiagnosticEntry> entries_;
};

#endif  // PLATFORM_TRACE_VELDIAGNOSTICS_H
