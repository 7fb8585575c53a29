// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelIRmaEditionMode_test.cpp The edition modes of the process.
#include "platform/materials/VelIRmaEditionMode.h"

#include <array>

#include <gtest/gtest.h>

namespace {

using Mode = VelIRmaEditionMode::Mode;

constexpr std::array modes{Mode::SilentPropagation, Mode::BatchEdition, Mode::Preview};

class VelIRmaEditionModeTest : public ::testing::Test {
 protected:
  void TearDown() override {
    for (const Mode mode : modes) VelIRmaEditionMode::SetActivation(mode, false);
  }

  static int CountActive() {
    int count = 0;
    for (const Mode mode : modes) count += VelIRmaEditionMode::GetActivation(mode) ? 1 : 0;
    return count;
  }
};

TEST_F(VelIRmaEditionModeTest, TheFirstMode_IsTheOneThatHostsCallZero) {
  EXPECT_EQ(static_cast<int>(Mode::SilentPropagation), 0);
}

TEST_F(VelIRmaEditionModeTest, AllModes_AreOffAtStart) { EXPECT_EQ(CountActive(), 0); }

TEST_F(VelIRmaEditionModeTest, SetActivation_SwitchesThatModeAlone) {
  for (const Mode mode : modes) {
    SCOPED_TRACE(static_cast<int>(mode));
    VelIRmaEditionMode::SetActivation(mode, true);
    EXPECT_TRUE(VelIRmaEditionMode::GetActivation(mode));
    EXPECT_EQ(CountActive(), 1);
    VelIRmaEditionMode::SetActivation(mode, true);
    VelIRmaEditionMode::SetActivation(mode, false);
    EXPECT_EQ(CountActive(), 0) << "switching is not counted";
  }
}

TEST_F(VelIRmaEditionModeTest, ANumberThatNamesNoMode_IsOffAndStaysOff) {
  for (const int number : {3, 4, 255}) {
    SCOPED_TRACE(number);
    const auto mode = static_cast<Mode>(number);
    VelIRmaEditionMode::SetActivation(mode, true);
    EXPECT_FALSE(VelIRmaEditionMode::GetActivation(mode));
  }
  EXPECT_EQ(CountActive(), 0);
}

}  // namespace
