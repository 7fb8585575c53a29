// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceFile.cpp The file of a trace sink, which says once when it loses something.
#include "platform/trace/VelTraceFile.h"

#include "platform/base/VelCheck.h"

constinit bool VelTraceFile::writesThrough = false;

VelTraceFile::~VelTraceFile() { Report(file_.Close()); }

HRESULT VelTraceFile::Open(const std::string& iPath, std::string& oCause) {
  Report(file_.Close());
  lossReported_ = false;
  path_ = iPath;
  return file_.Open(iPath, oCause);
}

void VelTraceFile::Write(std::string_view iText) {
  if (!file_.IsOpen()) return;
  Report(file_.Write(iText));
  if (writesThrough) Flush();
}

void VelTraceFile::Flush() {
  if (file_.IsOpen()) Report(file_.Flush());
}

void VelTraceFile::Report(HRESULT iResult) {
  if (SUCCEEDED(iResult) || lossReported_) return;
  lossReported_ = true;
  VelCheck::Failed(VEL_HERE("platform/trace/VelTraceFile"), {}, "A trace file refused a part of the traces", path_);
}
