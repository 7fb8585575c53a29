// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemChild.h A program that this process starts and ends.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMCHILD_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMCHILD_H

#include <cstdint>
#include <string>
#include <vector>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/system/VelSystemDescriptor.h"

class VelSystemChannel;

/// One run of a program. It gets a channel as its descriptor 3 and nothing else that is open here, an empty standard
/// input, and signals as if nobody had touched them. The destructor kills it and leaves no zombie behind, also where
/// this process ignores SIGCHLD or waits for all its children elsewhere. A copy of this process that fork made owns no
/// program: there the object does nothing.
/// Thread: one at a time.
class VEL_PLATFORM_API VelSystemChild {
 public:
  /// Where the program's standard output and standard error go.
  enum class Output : std::uint8_t { Nowhere, WhereOurs };

  VelSystemChild() = default;
  ~VelSystemChild();

  VelSystemChild(const VelSystemChild&) = delete;
  VelSystemChild& operator=(const VelSystemChild&) = delete;

  /// Starts a program. One that was started before is killed first.
  /// @param[in] iPath taken as it is, not looked up in PATH
  /// @param[in] iArguments what follows the program's name
  /// @param[in] iChannel the program's end, open. The caller closes it after the start, or will not notice its end.
  /// @param[out] oCause the reason of a failure in English, made to follow the path; untouched otherwise
  /// @return S_OK: it runs; E_INVALIDARG: the path holds a NUL; E_FAIL: it cannot be run
  HRESULT Start(const std::string& iPath, const std::vector<std::string>& iArguments, const VelSystemChannel& iChannel,
                Output iOutput, std::string& oCause);

  /// Ends the program by SIGKILL and waits until it is gone, half a second at the most. Idempotent.
  void Kill() noexcept;

  /// Waits for the program to end by itself, and takes it out of the system's table then.
  /// @param[in] iTimeoutMilliseconds negative for no limit
  /// @return true when no program runs
  bool AwaitEnd(int iTimeoutMilliseconds) noexcept;

  /// Looks whether somebody has killed the program, which the system may not have carried out yet: a program is able to
  /// take in a message after its own death sentence.
  /// @return true when the program is about to end; true also when none runs
  bool IsDoomed();

  /// @return true from Start until the end was noticed by Kill or AwaitEnd, in the process that started it alone
  bool IsRunning() const noexcept;

  /// @return the program's number in the system; 0 when none runs
  int GetIdentifier() const noexcept { return IsRunning() ? identifier_ : 0; }

  /// @return how the last run ended, made to follow the program's name: "was ended by signal 9", "ended with code 1";
  ///         "ended" where somebody else in this process asked first; empty when none did
  const std::string& GetEnd() const noexcept { return end_; }

 private:
  HRESULT Watch(std::string& oCause);

  int identifier_ = 0;
  int owner_ = 0;               ///< The process that started the program.
  VelSystemDescriptor handle_;  ///< Stands for the program also after its number went to another.
  std::string end_;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMCHILD_H
