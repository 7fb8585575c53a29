// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelRshShaderManager_Environment_test.cpp The variable "VelRdgAllShaders", which a process reads once: each
/// test runs in a process of its own.
#include <cstdlib>
#include <functional>

#include <stdlib.h>

#include "platform/base/VelCallOnExit.h"
#include "tests/RenderingShader/management/fixtures/ManagementTest.h"

namespace {

constexpr const char* variable = "VelRdgAllShaders";

class VelRshShaderManagerEnvironmentTest : public ManagementTest {
 protected:
  void SetUp() override {
    ManagementTest::SetUp();
    First().Add("color").output.value = "VelRmaColor";
    First().Add("scalar").output.value = "VelRmaScalar";
    First().Add("other usage").usage.value = 2;
  }

  /// @param[in] iValue null leaves the variable unset
  // The macro is most of what the function is.
  void RunWith(const char* iValue, const std::function<void()>& iBody) {  // NOLINT(readability-function-size)
    EXPECT_EXIT(
        {
          ::unsetenv(variable);
          if (iValue != nullptr) ::setenv(variable, iValue, 1);
          iBody();
          VelPlatformTerminate();
          std::exit(HasFailure() ? 1 : 0);
        },
        ::testing::ExitedWithCode(0), "");
  }
};

TEST_F(VelRshShaderManagerEnvironmentTest, Unset_TheOutputTypeHasToSuit) {
  RunWith(nullptr, [] { EXPECT_EQ(List(4, "VelRmaColor").types, Texts{"color"}); });
}

TEST_F(VelRshShaderManagerEnvironmentTest, Set_AnyOutputTypeSuitsButNotAnyUsage) {
  RunWith("1", [] {
    EXPECT_EQ(List(4, "VelRmaColor").types, (Texts{"color", "scalar"}));
    EXPECT_EQ(List(2, "VelRmaVoid").types, (Texts{"color", "scalar", "other usage"}));
  });
}

TEST_F(VelRshShaderManagerEnvironmentTest, SetToNothing_CountsAsSet) {
  RunWith("", [] { EXPECT_EQ(List(4, "VelRmaColor").types, (Texts{"color", "scalar"})); });
}

TEST_F(VelRshShaderManagerEnvironmentTest, SetToZero_CountsAsSet) {
  RunWith("0", [] { EXPECT_EQ(List(4, "VelRmaColor").types, (Texts{"color", "scalar"})); });
}

TEST_F(VelRshShaderManagerEnvironmentTest, SetAfterTheFirstList_IsNotSeen) {
  RunWith(nullptr, [] {
    EXPECT_EQ(List(4, "VelRmaColor").types, Texts{"color"});
    ::setenv(variable, "1", 1);
    EXPECT_EQ(List(4, "VelRmaColor").types, Texts{"color"});
    VelPlatformTerminate();
    EXPECT_EQ(List(4, "VelRmaColor").types, Texts{"color"}) << "nor by the next manager";
  });
}

TEST_F(VelRshShaderManagerEnvironmentTest, UnsetAfterTheFirstList_IsNotSeen) {
  RunWith("1", [] {
    EXPECT_EQ(List(4, "VelRmaColor").types, (Texts{"color", "scalar"}));
    ::unsetenv(variable);
    EXPECT_EQ(List(4, "VelRmaColor").types, (Texts{"color", "scalar"}));
  });
}

TEST_F(VelRshShaderManagerEnvironmentTest, AFirstListWithoutAnyType_HasReadIt) {
  First().listCode = E_FAIL;
  RunWith("1", [this] {
    EXPECT_EQ(List().code, E_FAIL);
    ::unsetenv(variable);
    First().listCode = S_OK;
    EXPECT_EQ(List(1, "VelRmaColor").types, (Texts{"color", "scalar"}));
  });
}

TEST_F(VelRshShaderManagerEnvironmentTest, WhatIsDoneBeforeTheFirstList_DoesNotReadIt) {
  RunWith(nullptr, [this] {
    VelIRshShader_var hShader;
    EXPECT_EQ(Manager().CreateShader(hContainer_, "color", hShader.Receive(), 0), S_OK);
    ::setenv(variable, "1", 1);
    EXPECT_EQ(List(4, "VelRmaColor").types, (Texts{"color", "scalar"}));
  });
}

}  // namespace
