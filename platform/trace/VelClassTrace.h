// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelClassTrace.h The levelled trace of one class.
#ifndef PLATFORM_TRACE_VELCLASSTRACE_H
#define PLATFORM_TRACE_VELCLASSTRACE_H

#include <cstdint>
#include <initializer_list>

#include "platform/base/VelFormatArgument.h"
#include "platform/base/VelPlatformApi.h"

class QrnSysTrace;

/// Declared in a class's source as `constinit VelClassTrace trace{"VelRshShaderManager"};`: it needs neither a
/// constructor nor a destructor to run. It prints on the channel of that name, which it looks up when it is first used;
/// a message of level n is printed when the channel's class level is at least n.
class VEL_PLATFORM_API VelClassTrace {
 public:
  /// @param[in] iName lives as long as the trace
  constexpr explicit VelClassTrace(const char* iName) noexcept : name_(iName) {}

  /// One compare when off. Always false while the trace service is out of service.
  /// @param[in] iLevel 1 to 9; any other level is never on
  [[nodiscard]] bool IsOn(int iLevel) const noexcept {
    return static_cast<unsigned>(iLevel) - 1U < *level_ && IsOnWhenResolved(iLevel);
  }

  /// Prints a message, word for word: nothing is added to the text, which brings its own line end.
  /// @param[in] iLevel 1 to 9
  /// @param[in] iFormat a template of VelFormat; null counts as the empty text
  template <class... Arguments>
  void Print(int iLevel, const char* iFormat, const Arguments&... iArguments) const {
    if (IsOn(iLevel)) Emit(iLevel, iFormat, {iArguments...});
  }

 private:
  /// What level_ points to before the channel is known: high enough to have every level ask.
  static constexpr std::uint8_t unresolvedLevel = 9;

  bool IsOnWhenResolved(int iLevel) const noexcept;
  void Emit(int iLevel, const char* iFormat, std::initializer_list<VelFormatArgument> iArguments) const noexcept;

  const char* name_;
  mutable const std::uint8_t* level_ = &unresolvedLevel;
  mutable const QrnSysTrace* channel_ = nullptr;
};

#endif  // PLATFORM_TRACE_VELCLASSTRACE_H
