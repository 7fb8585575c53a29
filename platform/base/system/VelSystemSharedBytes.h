// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemSharedBytes.h Memory that one process fills, seals and hands to another.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMSHAREDBYTES_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMSHAREDBYTES_H

#include <cstddef>
#include <span>
#include <string>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"
#include "platform/base/system/VelSystemDescriptor.h"

/// Memory behind a descriptor. Sealed memory never changes again, neither its bytes nor its size, so that whoever reads
/// it needs to trust nobody. The destructor unmaps and closes.
///
/// Where an operation fails, oCause is the reason in English, made to follow "the shared memory"; where it succeeds,
/// oCause stays untouched.
class VEL_PLATFORM_API VelSystemSharedBytes {
 public:
  VelSystemSharedBytes() = default;
  ~VelSystemSharedBytes();

  VelSystemSharedBytes(const VelSystemSharedBytes&) = delete;
  VelSystemSharedBytes& operator=(const VelSystemSharedBytes&) = delete;

  /// Makes new memory, all zero, to be filled and then sealed. What was held is let go first.
  /// @param[in] iSize bytes, at least 1
  /// @return S_OK; E_INVALIDARG for no bytes; E_FAIL when it is not to be had. After a failure nothing is held.
  HRESULT Create(std::size_t iSize, std::string& oCause);

  /// @return the bytes between Create and Seal; empty otherwise
  std::span<std::byte> WritableBytes() noexcept;

  /// Makes the memory what it is for good. The bytes are out of reach of this object afterwards; the descriptor stays.
  /// @return S_OK; E_UNEXPECTED when there is nothing to seal; E_FAIL when the system refuses, such as while another
  ///         process has the memory mapped to write
  HRESULT Seal(std::string& oCause);

  /// @return the descriptor, which stays this object's; negative when there is none
  int GetDescriptor() const noexcept { return descriptor_.Get(); }

  /// Maps memory that another process sent, to be read. It has to be sealed against writing, growing and shrinking, and
  /// to be of the expected size.
  /// @param[in] iDescriptor taken over, and closed also when it is refused
  /// @param[in] iExpectedSize bytes, at least 1
  /// @param[out] oBytes what it held is let go first; holds nothing after a failure
  /// @return S_OK; E_INVALIDARG for no bytes; E_FAIL when it is no such memory, or when it cannot be mapped
  static HRESULT Map(int iDescriptor, std::size_t iExpectedSize, VelSystemSharedBytes& oBytes, std::string& oCause);

  /// @return what is mapped, whether to be read or to be written; empty when nothing is
  std::span<const std::byte> Bytes() const noexcept { return {bytes_, size_}; }

 private:
  void Unmap() noexcept;
  HRESULT MapAs(std::size_t iSize, bool iIsToBeWritten, std::string& oCause);

  VelSystemDescriptor descriptor_;
  std::byte* bytes_ = nullptr;
  std::size_t size_ = 0;
  bool isWritable_ = false;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMSHAREDBYTES_H
