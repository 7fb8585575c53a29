// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceFileSink.h Appends traces to a file, in the lines that people read.
#ifndef PLATFORM_TRACE_VELTRACEFILESINK_H
#define PLATFORM_TRACE_VELTRACEFILESINK_H

#include <string>

#include "platform/base/HResult.h"
#include "platform/trace/VelTraceFile.h"
#include "platform/trace/VelTraceSink.h"

/// The lines of VelTraceStreamSink, appended to a file.
/// Without an open file it swallows what it gets. The destructor writes out what is left.
class VEL_PLATFORM_API VelTraceFileSink final : public VelTraceSink {
 public:
  /// Opens the file; one that was open is closed first.
  /// @param[out] oCause the reason of a failure, made to follow the path in a message; untouched otherwise
  /// @return
  /// - S_OK: the file is open, made where there was none
  /// - E_INVALIDARG: the path holds a NUL; nothing is open
  /// - E_FAIL: the file could not be opened; nothing is open
  HRESULT Open(const std::string& iPath, std::string& oCause) { return file_.Open(iPath, oCause); }

  void Write(const VelTraceRecord& iRecord) override;
  void Flush() override { file_.Flush(); }

 private:
  VelTraceFile file_;
};

#endif  // PLATFORM_TRACE_VELTRACEFILESINK_H
