// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelThreadBinding_test.cpp The application thread and the assertion that guards it.
#include "platform/base/VelThreadBinding.h"

#include <thread>

#include <gtest/gtest.h>

#include "platform/base/VelFatalErrorService.h"

namespace {

/// Records instead of stopping the process.
class RecordingHandler final : public VelFatalErrorHandler {
 public:
  RecordingHandler() { VelFatalErrorService::SetHandler(this); }
  ~RecordingHandler() { VelFatalErrorService::SetHandler(nullptr); }
  RecordingHandler(const RecordingHandler&) = delete;
  RecordingHandler& operator=(const RecordingHandler&) = delete;

  void OnFatalError(const VelFailureReport& iReport) override { message = iReport.message; }

  std::string message;
};

bool AssertOnAnotherThread() {
  bool passed = true;
  std::thread([&] { passed = VelThreadBinding::AssertBoundThread(); }).join();
  return passed;
}

TEST(VelThreadBinding, WithoutABoundThread_EveryThreadPasses) {
  RecordingHandler handler;
  EXPECT_TRUE(VelThreadBinding::AssertBoundThread());
  EXPECT_TRUE(AssertOnAnotherThread());
  EXPECT_EQ(handler.message, "");
}

TEST(VelThreadBinding, AnotherThreadThanTheBoundOne_IsAFatalAssertion) {
  RecordingHandler handler;
  VelThreadBinding::Bind();
  EXPECT_TRUE(VelThreadBinding::AssertBoundThread());
  EXPECT_FALSE(AssertOnAnotherThread());
  EXPECT_EQ(handler.message, "AssertionFailed:VelThreadBinding::IsBoundThread()");
  VelThreadBinding::Unbind();
  EXPECT_TRUE(AssertOnAnotherThread());
}

}  // namespace
