// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceRecorder.h A sink that keeps what it gets, for tests and for hosts that show a protocol.
#ifndef PLATFORM_TRACE_VELTRACERECORDER_H
#define PLATFORM_TRACE_VELTRACERECORDER_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/trace/VelTraceSink.h"

/// Has to be added to the trace service, and removed before it dies.
class VEL_PLATFORM_API VelTraceRecorder final : public VelTraceSink {
 public:
  /// A record with texts of its own.
  struct Entry {
    VelTraceKind kind;
    int classLevel;  ///< 1 to 9 for a class trace, else 0.
    std::string channel;
    std::string text;
    std::string source;  ///< Of an error; else empty.
    unsigned line;
    std::int64_t ticks;  ///< In 100 ns.
    std::uint64_t sequence;
  };

  void Write(const VelTraceRecord& iRecord) override;
  void Flush() override { ++flushCount_; }

  /// @return the records in the order in which they came.
  [[nodiscard]] const std::vector<Entry>& Entries() const noexcept { return entries_; }

  /// @return the texts of all records, of those of one channel, of one kind, or of both.
  [[nodiscard]] std::vector<std::string> Texts() const;
  [[nodiscard]] std::vector<std::string> Texts(std::string_view iChannel) const;
  [[nodiscard]] std::vector<std::string> Texts(VelTraceKind iKind) const;
  [[nodiscard]] std::vector<std::string> Texts(std::string_view iChannel, VelTraceKind iKind) const;

  /// @return how often it was asked to flush.
  [[nodiscard]] int FlushCount() const noexcept { return flushCount_; }

  /// Forgets the records and the flushes.
  void Clear() noexcept;

 private:
  std::vector<Entry> entries_;
  int flushCount_ = 0;
};

#endif  // PLATFORM_TRACE_VELTRACERECORDER_H
