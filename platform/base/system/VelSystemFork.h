// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemFork.h Runs a part of the program in a process of its own.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMFORK_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMFORK_H

#include <cstdint>
#include <functional>
#include <string>

#include "platform/base/HResult.h"

/// For programs of one thread: of several, only the one that forks would go on in the child.
class VelSystemFork {
 public:
  /// How the child ended.
  enum class End : std::uint8_t { Done, Failed, Signal, TimeIsOver, MemoryIsOver };

  struct Outcome {
    End end = End::Failed;
    int number = 0;  ///< The exit code of Failed, the number of the signal.
  };

  /// Runs a function in a copy of this process, and waits until the copy is gone. The copy dies with this process; what
  /// it writes to the standard error stream is read here, for signs of want of memory, and thrown away.
  /// @param[in] iFunction returns the exit code, 0 for success. It may throw.
  /// @param[in] iTimeoutMilliseconds how long it may take; it is killed then
  /// @param[out] oOutcome how it ended; untouched after a failure
  /// @param[out] oCause the reason of a failure in English; untouched otherwise
  /// @return S_OK; E_FAIL when there is no copy to be had
  static HRESULT Run(const std::function<int()>& iFunction, int iTimeoutMilliseconds, Outcome& oOutcome,
                     std::string& oCause);
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMFORK_H
