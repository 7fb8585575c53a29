// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file TraceTest.h What the tests of the traces share: defaults before and after, a recorder, channels that close.
#ifndef TESTS_PLATFORM_TRACE_TRACETEST_H
#define TESTS_PLATFORM_TRACE_TRACETEST_H

#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/trace/QrnSysTrace.h"
#include "platform/trace/VelTraceRecorder.h"
#include "platform/trace/VelTraceService.h"

using Texts = std::vector<std::string>;

/// A channel that is destroyed with its owner.
class OpenChannel {
 public:
  explicit OpenChannel(const char* iName) : trace_(QrnSysTraceCreate(iName)) {}
  ~OpenChannel() { QrnSysTraceDestroy(trace_); }
  OpenChannel(const OpenChannel&) = delete;
  OpenChannel& operator=(const OpenChannel&) = delete;

  const QrnSysTrace* operator->() const { return trace_; }
  const QrnSysTrace* Get() const { return trace_; }

 private:
  QrnSysTrace* trace_;
};

/// Every test starts and ends with the default settings and no open channel. The recorder takes the place of the
/// standard error stream.
class TraceTest : public ::testing::Test {
 protected:
  TraceTest();
  ~TraceTest() override;

  VelTraceRecorder recorder_;
};

/// @return what an action writes to the standard error stream.
std::string PrintedBy(const std::function<void()>& iAction);

#endif  // TESTS_PLATFORM_TRACE_TRACETEST_H
