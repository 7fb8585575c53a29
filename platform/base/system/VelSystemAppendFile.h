// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemAppendFile.h A file that text is added to, such as a trace file.
#ifndef PLATFORM_BASE_SYSTEM_VELSYSTEMAPPENDFILE_H
#define PLATFORM_BASE_SYSTEM_VELSYSTEMAPPENDFILE_H

#include <string>
#include <string_view>

#include "platform/base/HResult.h"
#include "platform/base/VelPlatformApi.h"

/// Adds text at the end of a file, through a buffer of 64 KiB. What is still in the buffer when the process is aborted
/// is lost, so whoever announces an abort flushes first. The destructor closes.
class VelSystemAppendFile {
 public:
  VelSystemAppendFile() = default;
  VEL_PLATFORM_API ~VelSystemAppendFile();

  VelSystemAppendFile(const VelSystemAppendFile&) = delete;
  VelSystemAppendFile& operator=(const VelSystemAppendFile&) = delete;

  /// Opens a regular file, made where there is none, or a character device such as /dev/null. Anything else is refused
  /// without waiting for it. A file that was open is closed first.
  /// @param[out] oCause the reason of a failure in English, made to follow the path in a message; untouched otherwise
  /// @return
  /// - S_OK: the file is open
  /// - E_INVALIDARG: the path holds a NUL; nothing is open
  /// - E_FAIL: the file could not be opened; nothing is open
  VEL_PLATFORM_API HRESULT Open(const std::string& iPath, std::string& oCause);

  bool IsOpen() const noexcept { return descriptor_ >= 0; }

  /// Adds text to the buffer, and writes the buffer out when it is full.
  /// @return
  /// - S_OK: the text is in the buffer or in the file
  /// - E_UNEXPECTED: no file is open
  /// - E_FAIL: the file refused what was in the buffer, which is dropped
  VEL_PLATFORM_API HRESULT Write(std::string_view iText);

  /// Writes out what is in the buffer.
  /// @return as Write
  VEL_PLATFORM_API HRESULT Flush();

  /// Flushes and closes.
  /// @return
  /// - S_OK: everything is in the file
  /// - S_FALSE: no file was open
  /// - E_FAIL: the file refused a part of it; it is closed all the same
  VEL_PLATFORM_API HRESULT Close();

 private:
  int descriptor_ = -1;
  std::string buffer_;
};

#endif  // PLATFORM_BASE_SYSTEM_VELSYSTEMAPPENDFILE_H
