// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemThread_test.cpp The behaviour of telling threads apart.
#include "platform/base/system/VelSystemThread.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <thread>

namespace {

TEST(VelSystemThread, AskedTwiceOnOneThread_AnswersTheSame) {
  EXPECT_EQ(VelSystemThread::CurrentId(), VelSystemThread::CurrentId());
}

TEST(VelSystemThread, AskedOnTwoLivingThreads_AnswersDifferently) {
  std::uint64_t other = VelSystemThread::CurrentId();
  std::thread thread([&other] { other = VelSystemThread::CurrentId(); });
  thread.join();
  EXPECT_NE(other, VelSystemThread::CurrentId());
}

}  // namespace
