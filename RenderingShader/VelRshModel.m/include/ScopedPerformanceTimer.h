// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file ScopedPerformanceTimer.h Times a step and reports it when its scope ends.
#ifndef RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_SCOPEDPERFORMANCETIMER_H
#define RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_SCOPEDPERFORMANCETIMER_H

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/base/VelClock.h"
#include "platform/trace/QrnSysTrace.h"

/// Made at the start of a step on the performance channel of a class, which is named after the class with
/// "PerformanceTime" behind. Timers nest: the line of a step comes before the line of the operation around it.
/// Thread: the application thread.
class ScopedPerformanceTimer {
 public:
  /// Reads the clock.
  /// @param[in] iLabel what is timed; copied
  /// @param[in] iChannel lives as long as the timer; null reports nothing. For a channel that is off no label is copied
  ///            and no clock read, and nothing is reported even if it is switched on meanwhile.
  ScopedPerformanceTimer(std::string_view iLabel, const QrnSysTrace* iChannel)
      : label_(IsHeard(iChannel) ? iLabel : std::string_view()),
        channel_(IsHeard(iChannel) ? iChannel : nullptr),
        start_(channel_ != nullptr ? VelClock::Now() : 0) {}

  /// Reports the time that has passed, cut down to microseconds.
  ~ScopedPerformanceTimer() {
    if (channel_ == nullptr) return;
    const std::int64_t microseconds = (VelClock::Now() - start_) / ticksPerMicrosecond;
    channel_->Info("%s finished in %.3f ms", label_, static_cast<double>(microseconds) / 1000.0);
  }

  ScopedPerformanceTimer(const ScopedPerformanceTimer&) = delete;
  ScopedPerformanceTimer& operator=(const ScopedPerformanceTimer&) = delete;

 private:
  static constexpr std::int64_t ticksPerMicrosecond = 10;

  static bool IsHeard(const QrnSysTrace* iChannel) noexcept {
    return iChannel != nullptr && iChannel->IsOn(VelTraceKind::Information);
  }

  std::string label_;
  const QrnSysTrace* channel_;
  std::int64_t start_;  ///< In ticks of 100 ns.
};

#endif  // RENDERINGSHADER_VELRSHMODEL_M_INCLUDE_SCOPEDPERFORMANCETIMER_H
