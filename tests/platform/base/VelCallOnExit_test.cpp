// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelCallOnExit_test.cpp The exit hooks: their order, and that each runs once.
#include "platform/base/VelCallOnExit.h"

#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/VelFailureRecorder.h"

namespace {

using Texts = std::vector<std::string>;

Texts& Ran() {
  static Texts& ran = *new Texts;
  return ran;
}

int First(int iArgument) {
  Ran().push_back("first " + std::to_string(iArgument));
  return 0;
}
int Second(int) {
  Ran().emplace_back("second");
  return 17;
}
int Third(int) {
  Ran().emplace_back("third");
  return 0;
}
int Throwing(int) { throw std::runtime_error("hook"); }
int Registering(int) {
  Ran().emplace_back("registering");
  VelCallOnExit(&Third, 1);
  return 0;
}
int Terminating(int) {
  Ran().emplace_back("terminating");
  VelPlatformTerminate();
  Ran().emplace_back("terminated");
  return 0;
}

class VelCallOnExitTest : public ::testing::Test {
 protected:
  void SetUp() override { Ran().clear(); }
};

TEST_F(VelCallOnExitTest, Hooks_RunByPriorityAndTheYoungestFirstAmongEqualOnes) {
  VelCallOnExit(&First, 5);
  VelCallOnExit(&Second, 3);
  VelCallOnExit(&Third, 3);
  VelCallOnExit(&Second, -1);
  VelPlatformTerminate();
  EXPECT_EQ(Ran(), (Texts{"second", "third", "second", "first 0"}));
}

TEST_F(VelCallOnExitTest, Hooks_RunOnceHoweverOftenThePlatformIsTerminated) {
  VelCallOnExit(&First, 1);
  VelPlatformTerminate();
  VelPlatformTerminate();
  EXPECT_EQ(Ran(), (Texts{"first 0"}));
  VelCallOnExit(&Second, 1);
  VelPlatformTerminate();
  EXPECT_EQ(Ran(), (Texts{"first 0", "second"})) << "and can be registered anew for the next end";
}

TEST_F(VelCallOnExitTest, Hook_RegisteredByAHook_RunsInTheSameRoundInItsTurn) {
  VelCallOnExit(&Registering, 0);
  VelCallOnExit(&Second, 2);
  VelPlatformTerminate();
  EXPECT_EQ(Ran(), (Texts{"registering", "third", "second"}));
}

TEST_F(VelCallOnExitTest, Hook_ThatTerminatesThePlatform_RunsTheOthersAndIsNotRunAgain) {
  VelCallOnExit(&Terminating, 0);
  VelCallOnExit(&Second, 2);
  VelPlatformTerminate();
  EXPECT_EQ(Ran(), (Texts{"terminating", "second", "terminated"}));
}

TEST_F(VelCallOnExitTest, Hook_ThatThrows_IsACheckAndTheOthersRun) {
  VelCallOnExit(&Throwing, 0);
  VelCallOnExit(&Second, 1);
  VelCallOnExit(nullptr, 0);
  const RecordingFailureObserver failures;
  VelPlatformTerminate();
  EXPECT_EQ(Ran(), (Texts{"second"}));
  EXPECT_EQ(failures.Messages(), (Texts{"An exit hook threw an exception"}));
}

TEST_F(VelCallOnExitTest, Hooks_RunAtProcessExitWhereNobodyTerminatesThePlatform) {
  EXPECT_EXIT(
      {
        VelCallOnExit([](int) { return std::fputs("hook at exit\n", stderr); }, 1);
        std::exit(0);
      },
      ::testing::ExitedWithCode(0), "hook at exit");
}

}  // namespace
