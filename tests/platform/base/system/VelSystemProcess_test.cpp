// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemProcess_test.cpp The behaviour of the end of the process.
#include "platform/base/system/VelSystemProcess.h"

#include <gtest/gtest.h>
#include <signal.h>

namespace {

TEST(VelSystemProcessDeathTest, Aborted_EndsBySignal) {
  EXPECT_EXIT(VelSystemProcess::Abort(), ::testing::KilledBySignal(SIGABRT), "");
}

}  // namespace
