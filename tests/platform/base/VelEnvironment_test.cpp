// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelEnvironment_test.cpp The behaviour of the environment variables.
#include "platform/base/VelEnvironment.h"

#include <gtest/gtest.h>
#include <stdlib.h>

namespace {

constexpr const char* variable = "VEL_ENVIRONMENT_TEST";

class VelEnvironmentTest : public ::testing::Test {
 protected:
  VelEnvironmentTest() { ::unsetenv(variable); }
  ~VelEnvironmentTest() override { ::unsetenv(variable); }
};

TEST_F(VelEnvironmentTest, WithAVariableThatIsNotSet_LeavesTheValue) {
  VelString value("before");
  EXPECT_FALSE(VelEnvironment::Get(variable, value));
  EXPECT_EQ(value, "before");
  EXPECT_FALSE(VelEnvironment::IsSet(variable));
}

TEST_F(VelEnvironmentTest, WithAVariableSetToNothing_AnswersAnEmptyValue) {
  ASSERT_EQ(::setenv(variable, "", 1), 0);
  VelString value("before");
  EXPECT_TRUE(VelEnvironment::Get(variable, value));
  EXPECT_TRUE(value.IsEmpty());
  EXPECT_TRUE(VelEnvironment::IsSet(variable));
}

TEST_F(VelEnvironmentTest, WithAVariableThatChanges_AnswersItsPresentBytes) {
  VelString value;
  ASSERT_EQ(::setenv(variable, "first", 1), 0);
  EXPECT_TRUE(VelEnvironment::Get(variable, value));
  EXPECT_EQ(value, "first");
  ASSERT_EQ(::setenv(variable, "\xFF second", 1), 0);
  EXPECT_TRUE(VelEnvironment::Get(variable, value));
  EXPECT_EQ(value, "\xFF second");
}

TEST_F(VelEnvironmentTest, WithNoName_IsNotSet) {
  VelString value("before");
  EXPECT_FALSE(VelEnvironment::Get(nullptr, value));
  EXPECT_FALSE(VelEnvironment::Get("", value));
  EXPECT_FALSE(VelEnvironment::IsSet(nullptr));
  EXPECT_EQ(value, "before");
}

TEST_F(VelEnvironmentTest, Paths_AreSeparatedByColonsAndEmptyItemsLeftOut) {
  EXPECT_EQ(VelEnvironment::GetPaths(variable), std::vector<std::string>{});
  ASSERT_EQ(::setenv(variable, ":/a b::c:", 1), 0);
  EXPECT_EQ(VelEnvironment::GetPaths(variable), (std::vector<std::string>{"/a b", "c"}));
}

}  // namespace
