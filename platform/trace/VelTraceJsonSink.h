// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceJsonSink.h Appends traces to a file, in lines that programs read.
#ifndef PLATFORM_TRACE_VELTRACEJSONSINK_H
#define PLATFORM_TRACE_VELTRACEJSONSINK_H

#include <string>

#include "platform/base/HResult.h"
#include "platform/trace/VelTraceFile.h"
#include "platform/trace/VelTraceSink.h"

/// One JSON object per line, appended to a file: sequence, ticks (100 ns), kind (info, warning, error, class), channel
/// and text; level for a class trace; source and line where a source is known. Ill-formed UTF-8 is replaced by U+FFFD.
/// Without an open file it swallows what it gets. The destructor writes out what is left.
class VEL_PLATFORM_API VelTraceJsonSink final : public VelTraceSink {
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

#endif  // PLATFORM_TRACE_VELTRACEJSONSINK_H
