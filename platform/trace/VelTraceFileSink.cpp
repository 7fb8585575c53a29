// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelTraceFileSink.cpp Appends traces to a file, in the lines that people read.
#include "platform/trace/VelTraceFileSink.h"

#include "platform/trace/VelTraceLine.h"

void VelTraceFileSink::Write(const VelTraceRecord& iRecord) { file_.Write(VelTraceLine::ToText(iRecord)); }
