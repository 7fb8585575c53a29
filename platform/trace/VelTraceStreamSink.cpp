// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceStreamSink.cpp Prints traces on the standard error stream.
#include "platform/trace/VelTraceStreamSink.h"

#include "platform/base/system/VelSystemStream.h"
#include "platform/trace/VelTraceLine.h"

void VelTraceStreamSink::Write(const VelTraceRecord& iRecord) {
  VelSystemStream::WriteToStandardError(VelTraceLine::ToText(iRecord));
}
