// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceFile.h The file of a trace sink, which says once when it loses something.
#ifndef PLATFORM_TRACE_VELTRACEFILE_H
#define PLATFORM_TRACE_VELTRACEFILE_H

#include <string>
#include <string_view>

#include "platform/base/HResult.h"
#include "platform/base/system/VelSystemAppendFile.h"

/// A file that lines are appended to. Lines are lost where no file is open; where the file refuses them, one check says
/// so. The destructor writes out what is left.
class VEL_PLATFORM_API VelTraceFile {
 public:
  VelTraceFile() = default;
  ~VelTraceFile();
  VelTraceFile(const VelTraceFile&) = delete;
  VelTraceFile& operator=(const VelTraceFile&) = delete;

  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return
  /// - S_OK: the file is open, made where there was none
  /// - E_INVALIDARG: the path holds a NUL; nothing is open
  /// - E_FAIL: the file could not be opened; nothing is open
  HRESULT Open(const std::string& iPath, std::string& oCause);

  void Write(std::string_view iText);
  void Flush();

  /// From now on every file of the process writes each line out at once: nobody is left to flush what is kept back.
  static void WriteThrough() noexcept { writesThrough = true; }

 private:
  /// Reports the first failure after the file was opened.
  void Report(HRESULT iResult);

  static bool writesThrough;

  VelSystemAppendFile file_;
  std::string path_;
  bool lossReported_ = false;
};

#endif  // PLATFORM_TRACE_VELTRACEFILE_H
