// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemChannel.h One end of a line to another process, which carries messages and open files.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMCHANNEL_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMCHANNEL_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/system/VelSystemDescriptor.h"

/// A sequenced-packet Unix socket: messages arrive whole, in order, or not at all. No operation raises SIGPIPE, none
/// waits longer than it was told to, and none trusts the other end. The destructor closes.
///
/// Where an operation fails, oCause is the reason in English, made to follow the other end's name ("has closed the
/// channel"); where it succeeds, oCause stays untouched. Thread: one at a time.
class VEL_PLATFORM_API VelSystemChannel {
 public:
  static constexpr std::size_t largestMessage = std::size_t{160} * 1024;  ///< Bytes that Receive takes.

  /// Makes two connected ends, which no started program inherits.
  /// @return S_OK; E_FAIL, and both ends stay as they were
  static HRESULT CreatePair(VelSystemChannel& oOne, VelSystemChannel& oOther, std::string& oCause);

  /// Takes over an end that was handed to this process, and keeps it from the programs that it starts. An end that was
  /// open is closed first.
  /// @param[in] iDescriptor is closed also when it is refused
  /// @return S_OK; E_FAIL when it is no such socket: nothing is open then
  HRESULT Adopt(int iDescriptor, std::string& oCause);

  void Close() noexcept { descriptor_ = VelSystemDescriptor(); }

  bool IsOpen() const noexcept { return descriptor_.IsOpen(); }

  /// @return the descriptor, which stays this object's; negative when nothing is open
  int GetDescriptor() const noexcept { return descriptor_.Get(); }

  /// Sends one message, of the head with the text behind it.
  /// @param[in] iDescriptor goes along and stays the caller's; negative for none
  /// @param[in] iTimeoutMilliseconds how long to wait for room; negative for no limit
  /// @return
  /// - S_OK: the message is on its way
  /// - E_UNEXPECTED: the other end is closed, or this one is
  /// - E_FAIL: there was no room in time, or the system refuses the message or the descriptor
  HRESULT Send(std::span<const std::byte> iHead, std::string_view iText, int iDescriptor, int iTimeoutMilliseconds,
               std::string& oCause);

  /// Receives one message. A message that is refused is gone, and every descriptor that it brought is closed.
  /// @param[out] oMessage replaced on S_OK, untouched otherwise
  /// @param[out] oDescriptor what the message brought; without one, and whenever the result is not S_OK, it is closed
  /// @param[in] iTimeoutMilliseconds how long to wait for a message; negative for no limit
  /// @return
  /// - S_OK: there is a message
  /// - S_FALSE: none came in time
  /// - E_UNEXPECTED: the other end is closed, or this one is
  /// - E_FAIL: the message is empty, longer than largestMessage or brings more than one descriptor, or the system fails
  HRESULT Receive(std::string& oMessage, VelSystemDescriptor& oDescriptor, int iTimeoutMilliseconds,
                  std::string& oCause);

  /// @return true when the other end turned out to be closed before it had read all that was sent to it
  bool HasLostMessages() const noexcept { return hasLostMessages_; }

 private:
  HRESULT Fail(int iErrno, std::string& oCause);

  VelSystemDescriptor descriptor_;
  bool hasLostMessages_ = false;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMCHANNEL_H
