// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemError.h Puts the error numbers of system calls into words.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMERROR_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMERROR_H

#include <string>

#include "platform/base/HResult.h"

/// Private to this folder.
class VelSystemError {
 public:
  /// @param[in] iErrno the error number that a system call on a file left behind
  /// @return the reason in English, in whatever locale, made to follow the file's name ("no such file")
  static std::string CauseOf(int iErrno);

  /// @param[out] oCause the reason
  /// @return E_FAIL
  static HRESULT Fail(int iErrno, std::string& oCause);

  /// @param[out] oCause the reason; untouched on success
  /// @return S_OK; E_INVALIDARG for a path that holds a NUL, which the system would cut there
  static HRESULT CheckPath(const std::string& iPath, std::string& oCause);
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMERROR_H
