// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemInputFile.h A file that is read in pieces, and what tells it from others.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMINPUTFILE_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMINPUTFILE_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"

/// What the system tells of a file. Two equal ones are of one file with one content, unless it was written within the
/// same tick of the file system's clock.
struct VelSystemFileStatus {
  std::uint64_t device = 0;
  std::uint64_t number = 0;          ///< The inode.
  std::uint64_t size = 0;            ///< Bytes.
  std::int64_t modifiedAt = 0;       ///< Nanoseconds since 1970: the content.
  std::int64_t statusChangedAt = 0;  ///< Nanoseconds since 1970: also the owner, the mode, the names.

  friend bool operator==(const VelSystemFileStatus&, const VelSystemFileStatus&) = default;
};

/// An open regular file. The destructor closes.
class VEL_PLATFORM_API VelSystemInputFile {
 public:
  VelSystemInputFile() = default;
  ~VelSystemInputFile();

  VelSystemInputFile(const VelSystemInputFile&) = delete;
  VelSystemInputFile& operator=(const VelSystemInputFile&) = delete;

  /// Opens a regular file, through symbolic links. Anything else is refused without waiting for it. A file that was
  /// open is closed first.
  /// @param[out] oCause the reason of a failure in English, made to follow the path in a message; untouched otherwise
  /// @return S_OK; E_INVALIDARG when the path holds a NUL; E_FAIL when there is no such file, it is none, or it may not
  ///         be read. After a failure nothing is open.
  HRESULT Open(const std::string& iPath, std::string& oCause);

  /// Takes over an open descriptor, such as one that another process sent. A file that was open is closed first.
  /// @param[in] iDescriptor is closed also when it is refused
  /// @return as Open
  HRESULT Adopt(int iDescriptor, std::string& oCause);

  bool IsOpen() const noexcept { return descriptor_ >= 0; }

  /// @return what the file was when it was opened; all zero when nothing is open
  const VelSystemFileStatus& GetStatus() const noexcept { return status_; }

  /// @return the descriptor, which stays this object's; negative when nothing is open
  int GetDescriptor() const noexcept { return descriptor_; }

  /// @param[in] iOffset bytes from the beginning
  /// @param[out] oBytes its first bytes are overwritten, as many as are returned
  /// @return how many bytes were read: fewer than there is room for only at the end of the file or after a failure
  std::size_t ReadAt(std::uint64_t iOffset, std::span<std::byte> oBytes) const noexcept;

 private:
  int descriptor_ = -1;
  VelSystemFileStatus status_;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMINPUTFILE_H
