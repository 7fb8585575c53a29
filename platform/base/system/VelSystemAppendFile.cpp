// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemAppendFile.cpp A file that text is added to, such as a trace file.
#include "platform/base/system/VelSystemAppendFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

#include "platform/base/system/VelSystemDescriptor.h"
#include "platform/base/system/VelSystemError.h"

namespace {

constexpr std::size_t bufferSize = 64 * 1024;
/// Less what the umask takes away.
constexpr mode_t fileMode = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;

/// Says whether text can be added to an open file, and makes writing to it wait as usual.
bool Prepare(int iDescriptor, std::string& oCause) {
  struct stat status {};
  if (::fstat(iDescriptor, &status) != 0) {
    oCause = VelSystemError::CauseOf(errno);
    return false;
  }
  if (!S_ISREG(status.st_mode) && !S_ISCHR(status.st_mode)) {
    oCause = "is not a regular file";
    return false;
  }
  const int flags = ::fcntl(iDescriptor, F_GETFL);
  if (flags >= 0 && ::fcntl(iDescriptor, F_SETFL, flags & ~O_NONBLOCK) == 0) return true;
  oCause = VelSystemError::CauseOf(errno);
  return false;
}

}  // namespace

VelSystemAppendFile::~VelSystemAppendFile() { static_cast<void>(Close()); }

HRESULT VelSystemAppendFile::Open(const std::string& iPath, std::string& oCause) {
  static_cast<void>(Close());
  if (iPath.find('\0') != std::string::npos) {
    oCause = "the path holds a NUL byte";
    return E_INVALIDARG;
  }
  // Without O_NONBLOCK the call would wait for somebody to open the other end of a fifo.
  constexpr int openFlags = O_WRONLY | O_CREAT | O_APPEND | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
  VelSystemDescriptor file(::open(iPath.c_str(), openFlags, fileMode));
  if (!file.IsOpen()) {
    oCause = VelSystemError::CauseOf(errno);
    return E_FAIL;
  }
  if (!Prepare(file.Get(), oCause)) return E_FAIL;
  descriptor_ = file.Release();
  return S_OK;
}

HRESULT VelSystemAppendFile::Write(std::string_view iText) {
  if (!IsOpen()) return E_UNEXPECTED;
  buffer_.append(iText);
  return buffer_.size() < bufferSize ? S_OK : Flush();
}

HRESULT VelSystemAppendFile::Flush() {
  if (!IsOpen()) return E_UNEXPECTED;
  const int error = VelSystemDescriptor::WriteWhole(descriptor_, buffer_);
  buffer_.clear();
  return error == 0 ? S_OK : E_FAIL;
}

HRESULT VelSystemAppendFile::Close() {
  if (!IsOpen()) return S_FALSE;
  const HRESULT flushed = Flush();
  // A file system may tell only now that it had no room.
  const bool closed = ::close(std::exchange(descriptor_, -1)) == 0;
  return closed ? flushed : E_FAIL;
}
