// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemDescriptor.h Owns one file descriptor of the process.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMDESCRIPTOR_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMDESCRIPTOR_H

#include <string_view>
#include <utility>

#include "platform/base/VelPlatformApi.h"

/// Closes its descriptor when it dies.
class VEL_PLATFORM_API VelSystemDescriptor {
 public:
  /// @param[in] iDescriptor taken over; negative for none
  explicit VelSystemDescriptor(int iDescriptor = -1) noexcept : descriptor_(iDescriptor) {}
  ~VelSystemDescriptor();

  VelSystemDescriptor(const VelSystemDescriptor&) = delete;
  VelSystemDescriptor& operator=(const VelSystemDescriptor&) = delete;

  /// Takes the descriptor over and leaves the other one without.
  VelSystemDescriptor(VelSystemDescriptor&& ioOther) noexcept : descriptor_(ioOther.Release()) {}

  /// As the constructor; closes what was open here before.
  VelSystemDescriptor& operator=(VelSystemDescriptor&& ioOther) noexcept {
    VelSystemDescriptor taken(std::move(ioOther));
    std::swap(descriptor_, taken.descriptor_);
    return *this;
  }

  bool IsOpen() const noexcept { return descriptor_ >= 0; }
  int Get() const noexcept { return descriptor_; }

  /// Hands the descriptor over to the caller and is closed from then on.
  int Release() noexcept;

  /// Writes every byte to a descriptor that stays its owner's: goes on after an interruption and after a partial write,
  /// and waits where a descriptor that does not block is full.
  /// @return 0, or the error number of the write that failed; an unknown part of the bytes is written then
  static int WriteWhole(int iDescriptor, std::string_view iBytes) noexcept;

 private:
  int descriptor_;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMDESCRIPTOR_H
