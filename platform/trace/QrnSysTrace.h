// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file QrnSysTrace.h A named trace channel.
#ifndef PLATFORM_TRACE_QRNSYSTRACE_H
#define PLATFORM_TRACE_QRNSYSTRACE_H

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/base/VelFormatArgument.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/VelSourcePosition.h"
#include "platform/trace/VelTraceKind.h"

/// A channel, shared by everybody who asks for its name. A message on a channel whose switch is off costs one load and
/// one branch: nothing is formatted or converted and no clock is read. Templates are those of VelFormat.
class VEL_PLATFORM_API QrnSysTrace {
 public:
  QrnSysTrace(const QrnSysTrace&) = delete;
  QrnSysTrace& operator=(const QrnSysTrace&) = delete;

  [[nodiscard]] std::string_view Name() const noexcept { return name_; }

  /// @return true when a message of that kind would be emitted; for ClassTrace, when some class level is on.
  [[nodiscard]] bool IsOn(VelTraceKind iKind) const noexcept { return (accepted_ & Bit(iKind)) != 0; }

  /// Emits an information.
  /// @param[in] iFormat null counts as the empty text
  template <class... Arguments>
  void Info(const char* iFormat, const Arguments&... iArguments) const {
    if (IsOn(VelTraceKind::Information)) Emit(VelTraceKind::Information, {"", 0}, iFormat, {iArguments...});
  }

  /// Emits a warning.
  /// @param[in] iFormat null counts as the empty text
  template <class... Arguments>
  void Warning(const char* iFormat, const Arguments&... iArguments) const {
    if (IsOn(VelTraceKind::Warning)) Emit(VelTraceKind::Warning, {"", 0}, iFormat, {iArguments...});
  }

  /// Emits an error.
  /// @param[in] iPosition the source text and line that the message carries
  /// @param[in] iFormat null counts as the empty text
  template <class... Arguments>
  void Error(VelSourcePosition iPosition, const char* iFormat, const Arguments&... iArguments) const {
    if (IsOn(VelTraceKind::Error)) Emit(VelTraceKind::Error, iPosition, iFormat, {iArguments...});
  }

 private:
  friend class VelTraceRegistry;

  explicit QrnSysTrace(std::string_view iName) : name_(iName) {}

  static constexpr std::uint8_t Bit(VelTraceKind iKind) noexcept {
    return static_cast<std::uint8_t>(1U << static_cast<unsigned>(iKind));
  }

  void Emit(VelTraceKind iKind, VelSourcePosition iPosition, const char* iFormat,
            std::initializer_list<VelFormatArgument> iArguments) const noexcept;

  std::uint8_t accepted_ = 0;    ///< A bit per kind: those switched on and those that a diagnostics scope asks for.
  std::uint8_t switched_ = 0;    ///< A bit per kind: those switched on, which alone reach the sinks.
  std::uint8_t classLevel_ = 0;  ///< The highest class level that is on, 0 to 9.
  int openCount_ = 0;            ///< Creates without destroy.
  std::string name_;
};

/// Opens the channel of a name. Same name, same channel; each create is balanced by one destroy.
/// @param[in] iName case counts
/// @return null for a null or empty name and while the trace service is out of service; every user copes with null
[[nodiscard]] VEL_PLATFORM_API QrnSysTrace* QrnSysTraceCreate(const char* iName) noexcept;

/// Gives a channel back. The channel and its switch stay registered after the last destroy.
/// @param[in,out] ioTrace set to null; null is allowed
VEL_PLATFORM_API void QrnSysTraceDestroy(QrnSysTrace*& ioTrace) noexcept;

#endif  // PLATFORM_TRACE_QRNSYSTRACE_H
