// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemSandbox.h Takes rights from the process that it does not need.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMSANDBOX_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMSANDBOX_H

#include <cstdint>
#include <string>

#include "platform/base/HResult.h"

#if defined(__SANITIZE_ADDRESS__)
#define VEL_IS_SANITIZED true
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VEL_IS_SANITIZED true
#endif
#endif
#if !defined(VEL_IS_SANITIZED)
#define VEL_IS_SANITIZED false
#endif

/// For processes that handle hostile data: nothing that is taken comes back. Every operation but CloseFrom has the
/// reason of a failure in oCause, in English, which stays untouched otherwise.
class VelSystemSandbox {
 public:
  /// Whether a sanitizer watches the program, which needs more than the program does.
  static constexpr bool isSanitized = VEL_IS_SANITIZED;

  /// What the process may use up.
  struct Limits {
    std::uint64_t memory = 0;  ///< Bytes of address space; 0 for no limit.
    std::uint32_t processorSeconds = 0;
    std::uint64_t fileSize = 0;  ///< Bytes, of files in memory too.
    std::uint32_t descriptors = 0;
  };

  /// Has the process killed when its parent ends.
  /// @return S_OK; E_FAIL when the system refuses
  static HRESULT DieWithParent(std::string& oCause);

  /// Closes a descriptor and all above it.
  static void CloseFrom(int iFirst) noexcept;

  /// Sets limits; the process leaves no core file from then on.
  /// @return S_OK; E_FAIL when one of them is not to be set
  static HRESULT Limit(const Limits& iLimits, std::string& oCause);

  /// Leaves the process the use of its memory, its threads and its open files, and the sending of messages. It opens no
  /// file, makes no socket, starts no process, touches no other one, and gets no right that it does not have. What is
  /// forbidden fails; nobody is killed for it.
  /// @param[in] iChannel a descriptor that is written to and never read
  /// @return S_OK; E_FAIL when the system cannot filter its calls: then the process is as free as before
  static HRESULT Enter(int iChannel, std::string& oCause);
};

#undef VEL_IS_SANITIZED

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMSANDBOX_H
