// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemError.h Puts the error numbers of system calls into words.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMERROR_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMERROR_H

#include <string>

/// Private to this folder.
class VelSystemError {
 public:
  /// @param[in] iErrno the error number that a system call on a file left behind
  /// @return the reason in English, in whatever locale, made to follow the file's name ("no such file")
  static std::string CauseOf(int iErrno);
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMERROR_H
