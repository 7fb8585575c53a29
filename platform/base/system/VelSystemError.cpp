// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemError.cpp Puts the error numbers of system calls into words.
#include "platform/base/system/VelSystemError.h"

#include <cerrno>

namespace {

struct Cause {
  int error;
  const char* text;
};

constexpr Cause causes[] = {
    {ENOENT, "no such file"},
    {ENOTDIR, "a part of the path is not a folder"},
    {EACCES, "permission denied"},
    {EPERM, "permission denied"},
    {EROFS, "is on a read-only file system"},
    {EISDIR, "is a folder"},
    {ENXIO, "is not a regular file"},
    {ELOOP, "too many symbolic links"},
    {ENAMETOOLONG, "the path is too long"},
    {EMFILE, "too many open files"},
    {ENFILE, "too many open files"},
    {ENOSPC, "no space left"},
    {EDQUOT, "no space left"},
    {EFBIG, "the file would be too large"},
    {EIO, "input or output error"},
};

}  // namespace

std::string VelSystemError::CauseOf(int iErrno) {
  for (const Cause& cause : causes) {
    if (cause.error == iErrno) return cause.text;
  }
  return "system error " + std::to_string(iErrno);
}

HRESULT VelSystemError::Fail(int iErrno, std::string& oCause) {
  oCause = CauseOf(iErrno);
  return E_FAIL;
}

HRESULT VelSystemError::CheckPath(const std::string& iPath, std::string& oCause) {
  if (iPath.find('\0') == std::string::npos) return S_OK;
  oCause = "the path holds a NUL byte";
  return E_INVALIDARG;
}
