// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceHandle.h Holds a trace channel open for as long as it lives.
#ifndef PLATFORM_TRACE_VELTRACEHANDLE_H
#define PLATFORM_TRACE_VELTRACEHANDLE_H

#include <utility>

#include "platform/base/VelSourcePosition.h"
#include "platform/trace/QrnSysTrace.h"
#include "platform/trace/VelTraceKind.h"

/// One create of a channel with its one destroy. A handle without a channel takes every message and does nothing with
/// it, so that its users need no test for null. A message on a channel whose switch is off costs what it costs on the
/// channel itself. Thread: the application thread.
class VelTraceHandle {
 public:
  /// Holds no channel.
  constexpr VelTraceHandle() noexcept = default;

  /// Opens a channel.
  /// @param[in] iName case counts; null, the empty name, and any name while the trace service is out of service, give a
  /// handle without a channel
  explicit VelTraceHandle(const char* iName) noexcept : trace_(QrnSysTraceCreate(iName)) {}

  ~VelTraceHandle() { QrnSysTraceDestroy(trace_); }

  VelTraceHandle(const VelTraceHandle&) = delete;
  VelTraceHandle& operator=(const VelTraceHandle&) = delete;

  /// Takes the channel over and leaves the other handle without one.
  VelTraceHandle(VelTraceHandle&& ioOther) noexcept : trace_(std::exchange(ioOther.trace_, nullptr)) {}

  /// Takes the channel over, leaves the other handle without one and gives back the channel that was held before. A
  /// handle that is assigned to itself stays as it is.
  VelTraceHandle& operator=(VelTraceHandle&& ioOther) noexcept {
    VelTraceHandle taken(std::move(ioOther));
    std::swap(trace_, taken.trace_);
    return *this;
  }

  /// @return true when a channel is held
  [[nodiscard]] explicit operator bool() const noexcept { return trace_ != nullptr; }

  /// @return the channel, which stays the handle's; null when none is held
  [[nodiscard]] QrnSysTrace* Get() const noexcept { return trace_; }

  /// @return true when a message of that kind would be emitted; always false without a channel
  [[nodiscard]] bool IsOn(VelTraceKind iKind) const noexcept { return trace_ != nullptr && trace_->IsOn(iKind); }

  /// Emits an information.
  /// @param[in] iFormat a template of VelFormat; null counts as the empty text
  template <class... Arguments>
  void Info(const char* iFormat, const Arguments&... iArguments) const {
    if (trace_ != nullptr) trace_->Info(iFormat, iArguments...);
  }

  /// Emits a warning.
  /// @param[in] iFormat a template of VelFormat; null counts as the empty text
  template <class... Arguments>
  void Warning(const char* iFormat, const Arguments&... iArguments) const {
    if (trace_ != nullptr) trace_->Warning(iFormat, iArguments...);
  }

  /// Emits an error.
  /// @param[in] iPosition the source text and line that the message carries
  /// @param[in] iFormat a template of VelFormat; null counts as the empty text
  template <class... Arguments>
  void Error(VelSourcePosition iPosition, const char* iFormat, const Arguments&... iArguments) const {
    if (trace_ != nullptr) trace_->Error(iPosition, iFormat, iArguments...);
  }

 private:
  QrnSysTrace* trace_ = nullptr;
};

// Every object of the system holds one, which is 8 bytes of what an untouched object may cost.
static_assert(sizeof(VelTraceHandle) == sizeof(void*));

#endif  // PLATFORM_TRACE_VELTRACEHANDLE_H
