// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceService.h Switches the trace channels and says where their messages go.
#ifndef PLATFORM_TRACE_VELTRACESERVICE_H
#define PLATFORM_TRACE_VELTRACESERVICE_H

#include <string_view>

#include "platform/base/VelPlatformApi.h"

class VelTraceSink;

/// The process-wide settings of the traces. By default every channel lets warnings and errors through, to the standard
/// error stream. From the first use of any trace on, every check (VelCheck) is an error on the channel "VelCheck";
/// before that it is a line on the standard error stream. An assertion or a fatal log that no sink takes, because its
/// channel is off, no sink is there or the traces are out of service, is such a line, too. Thread: the application
/// thread.
class VEL_PLATFORM_API VelTraceService {
 public:
  /// Adds a sink at the end of the list. Not owned; remove it before it dies. Adding one twice changes nothing.
  static void AddSink(VelTraceSink& ioSink);

  /// Takes a sink out. One that is not in the list changes nothing.
  static void RemoveSink(VelTraceSink& ioSink) noexcept;

  /// @return the sink that is in the list by default; a host that has its own output removes it.
  [[nodiscard]] static VelTraceSink& StandardErrorSink() noexcept;

  /// Replaces the switches of all channels, also of those that are created later.
  ///
  ///     switches = item { "," item }
  ///     item     = pattern [ "=" level ]
  ///     pattern  = channel name | "*" | prefix "*"
  ///     level    = "off" | "error" | "warning" | "info" | "1" ... "9"
  ///
  /// Each level includes those before it; a digit is info and the class traces up to that level; an item without level
  /// means info. Of several items that fit a channel the last one counts, and a channel that none fits is at warning.
  /// Blanks around patterns and levels are ignored, and so are empty items. A bad item is left out and yields one
  /// warning on the channel "VelTrace", which names it and is printed whatever that channel's switch.
  static void SetSwitches(std::string_view iSwitches);

  /// Takes over the environment: VEL_TRACE holds switches, VEL_TRACE_FILE the path of a file to which the lines are
  /// appended, VEL_TRACE_JSON that of a file to which one JSON object per trace is appended. A variable that is not set
  /// changes nothing, an empty path stands for no file, and a file that cannot be opened is a warning on the channel
  /// "VelTrace". Calling it again reopens the files. They also hold what exit hooks emit, whenever those were
  /// registered.
  static void ApplyEnvironment();

  /// Flushes every sink.
  static void Flush() noexcept;

  /// Back to the defaults: the switches, the standard error sink alone, in service. Channels stay open and diagnostics
  /// scopes stay active.
  static void Reset();

  /// Takes the traces out of service or puts them back, for a host that has none. While out of service no channel can
  /// be opened and the open ones stay silent. Checks then go to a diagnostics scope, or to the standard error stream
  /// while there is none.
  static void SetAvailable(bool iAvailable);

  [[nodiscard]] static bool IsAvailable() noexcept;

  /// @return how many creates of channels are not balanced by a destroy yet.
  [[nodiscard]] static int OpenChannelCount() noexcept;
};

#endif  // PLATFORM_TRACE_VELTRACESERVICE_H
