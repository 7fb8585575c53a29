// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TraceTest.cpp What the tests of the traces share: defaults before and after, a recorder.
#include "tests/platform/trace/TraceTest.h"

TraceTest::TraceTest() {
  VelTraceService::Reset();
  VelTraceService::RemoveSink(VelTraceService::StandardErrorSink());
  VelTraceService::AddSink(recorder_);
}

TraceTest::~TraceTest() {
  VelTraceService::Reset();
  EXPECT_EQ(VelTraceService::OpenChannelCount(), 0);
}

std::string PrintedBy(const std::function<void()>& iAction) {
  ::testing::internal::CaptureStderr();
  iAction();
  return ::testing::internal::GetCapturedStderr();
}
