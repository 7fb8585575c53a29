// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceRegistry.h All channels, sinks and diagnostics scopes of the process; inside of the trace folder only.
#ifndef PLATFORM_TRACE_VELTRACEREGISTRY_H
#define PLATFORM_TRACE_VELTRACEREGISTRY_H

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/VelFormatArgument.h"
#include "platform/base/VelListenerList.h"
#include "platform/trace/QrnSysTrace.h"
#include "platform/trace/VelTraceCheckObserver.h"
#include "platform/trace/VelTraceRecord.h"
#include "platform/trace/VelTraceSink.h"
#include "platform/trace/VelTraceStreamSink.h"
#include "platform/trace/VelTraceSwitches.h"

class VelDiagnostics;

/// Made on first use and never destroyed, so that traces work until the process has ended.
class VelTraceRegistry {
 public:
  [[nodiscard]] static VelTraceRegistry& Get() noexcept;

  /// @return the channel of a non-empty name, registered if it was not.
  [[nodiscard]] QrnSysTrace& Channel(std::string_view iName);

  /// Counts a create. @return null while out of service
  [[nodiscard]] QrnSysTrace* Open(std::string_view iName);

  /// Counts a destroy.
  void Close(QrnSysTrace& ioChannel) noexcept;

  /// @return the creates without destroy; asking is no first use of the traces
  [[nodiscard]] static int OpenChannelCount() noexcept { return openChannels; }

  void SetSwitches(VelTraceSwitches iSwitches);

  void SetAvailable(bool iAvailable);
  [[nodiscard]] bool IsAvailable() const noexcept { return available_; }

  void AddScope(VelDiagnostics& ioScope);
  void RemoveScope(VelDiagnostics& ioScope) noexcept;

  /// Nothing is emitted until as many are removed.
  void AddMute() noexcept;
  void RemoveMute() noexcept;

  [[nodiscard]] VelListenerList<VelTraceSink>& Sinks() noexcept { return sinks_; }
  [[nodiscard]] VelTraceStreamSink& StandardErrorSink() noexcept { return standardErrorSink_; }

  /// @return where a channel keeps its class level, from 0 to 9; valid as long as the process.
  [[nodiscard]] static const std::uint8_t& ClassLevelOf(const QrnSysTrace& iChannel) noexcept {
    return iChannel.classLevel_;
  }

  /// Hands a message to the scopes, and to the sinks when the channel has its kind switched on. Sequence number and
  /// ticks of the record are filled in here.
  /// @return true when at least one sink took it
  bool Emit(const QrnSysTrace& iChannel, VelTraceRecord iRecord) noexcept;

  /// Formats the text of a record, then emits it.
  /// @param[in] iFormat null counts as the empty text
  void Emit(const QrnSysTrace& iChannel, VelTraceRecord iRecord, const char* iFormat,
            std::span<const VelFormatArgument> iArguments) noexcept;

  /// Hands a warning of the traces about themselves to the scopes and the sinks, whatever the switch.
  void EmitOwnWarning(std::string_view iText);

  void Flush() noexcept;

 private:
  VelTraceRegistry();

  /// @return true when at least one sink took the record
  bool Deliver(VelTraceRecord& ioRecord, bool iToSinks);
  void ApplySwitch(QrnSysTrace& ioChannel) const noexcept;
  void ApplyEverywhere() noexcept;

  static int openChannels;

  std::map<std::string, std::unique_ptr<QrnSysTrace>, std::less<>> channels_;
  VelListenerList<VelTraceSink> sinks_;
  std::vector<VelDiagnostics*> scopes_;
  VelTraceSwitches switches_;
  VelTraceStreamSink standardErrorSink_;
  VelTraceCheckObserver checkObserver_;
  std::uint64_t sequence_ = 0;
  int mutes_ = 0;
  bool available_ = true;
};

#endif  // PLATFORM_TRACE_VELTRACEREGISTRY_H
