// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemInputFile.cpp Opens without waiting and reads by position.
#include "platform/base/system/VelSystemInputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/base/system/VelSystemDescriptor.h"
#include "platform/base/system/VelSystemError.h"

namespace {

std::int64_t Nanoseconds(const timespec& iTime) noexcept {
  constexpr std::int64_t perSecond = 1'000'000'000;
  return iTime.tv_sec * perSecond + iTime.tv_nsec;
}

}  // namespace

VelSystemInputFile::~VelSystemInputFile() { const VelSystemDescriptor closing(descriptor_); }

HRESULT VelSystemInputFile::Open(const std::string& iPath, std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelSystemError::CheckPath(iPath, oCause));
  // Without O_NONBLOCK the call would wait for somebody to open the other end of a fifo.
  const int descriptor = ::open(iPath.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  return descriptor < 0 ? VelSystemError::Fail(errno, oCause) : Adopt(descriptor, oCause);
}

HRESULT VelSystemInputFile::Adopt(int iDescriptor, std::string& oCause) {
  VelSystemDescriptor file(iDescriptor);
  { const VelSystemDescriptor closing(descriptor_); }
  descriptor_ = -1;
  status_ = {};
  struct stat status {};
  if (::fstat(file.Get(), &status) != 0) return VelSystemError::Fail(errno, oCause);
  if (!S_ISREG(status.st_mode)) {
    oCause = S_ISDIR(status.st_mode) ? "is a folder" : "is not a regular file";
    return E_FAIL;
  }
  descriptor_ = file.Release();
  status_ = {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size), Nanoseconds(status.st_mtim),
             Nanoseconds(status.st_ctim)};
  return S_OK;
}

std::size_t VelSystemInputFile::ReadAt(std::uint64_t iOffset, std::span<std::byte> oBytes) const noexcept {
  std::size_t length = 0;
  while (length < oBytes.size()) {
    const ssize_t count =
        ::pread(descriptor_, oBytes.data() + length, oBytes.size() - length, static_cast<off_t>(iOffset + length));
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) break;
    length += static_cast<std::size_t>(count);
  }
  return length;
}
