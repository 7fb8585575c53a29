// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPathResolution_test.cpp What becomes of the paths that people write.
#include "platform/images/services/VelPathResolution.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "platform/configuration/VelRbaConfiguration.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

class VelPathResolutionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    VelRbaConfiguration::Clear();
    ::setenv("VELTEST_TEXTURES", "/from/environment", 1);
  }
  void TearDown() override {
    VelRbaConfiguration::Clear();
    ::unsetenv("VELTEST_TEXTURES");
  }

  static void Configure(const char* iKey, const std::string& iValue) {
    ASSERT_EQ(VelRbaConfiguration::SetValue("Paths", iKey, VelString(iValue)), S_OK);
  }

  VelTemporaryFolder folder_;
};

TEST_F(VelPathResolutionTest, FullPaths_StayAsTheyAre) {
  for (const char* path : {"/a/../b.png", "/", "/a/${VELTEST_TEXTURES}/b.png", "C:\\a\\b.png", "z:/a.png",
                           "\\\\server\\share\\a.png", "\\\\?\\C:\\a.png"}) {
    EXPECT_EQ(VelPathResolution::Resolve(path), path);
  }
}

TEST_F(VelPathResolutionTest, Symbols_AreConfiguredOrOfTheEnvironment) {
  EXPECT_EQ(VelPathResolution::Resolve("${VELTEST_TEXTURES}/a.png"), "/from/environment/a.png");
  Configure("VELTEST_TEXTURES", "/configured");
  Configure("SUB", "x y");
  EXPECT_EQ(VelPathResolution::Resolve("${VELTEST_TEXTURES}/${SUB}/a.png"), "/configured/x y/a.png");
  Configure("ROOT", "/root/${SUB}");
  EXPECT_EQ(VelPathResolution::Resolve("${ROOT}/a.png"), "/root/x y/a.png");
  ASSERT_EQ(VelRbaConfiguration::SetValue("Default", "ANYWHERE", "/default"), S_OK);
  EXPECT_EQ(VelPathResolution::Resolve("${ANYWHERE}"), "/default");
}

TEST_F(VelPathResolutionTest, WhatHasNoMeaning_StaysAsItIsWritten) {
  Configure("SELF", "/a/${SELF}");
  Configure("ONE", "${OTHER}");
  Configure("OTHER", "${ONE}");
  Configure("EMPTY", "");
  for (const char* path : {"", "a.png", "./a.png", "${VELTEST_UNKNOWN}/a.png", "${SELF}", "${ONE}/a", "${EMPTY}", "${",
                           "${VELTEST_TEXTURES", "$VELTEST_TEXTURES/a", "${}", "C:a.png", "1:/a.png"}) {
    EXPECT_EQ(VelPathResolution::Resolve(path), path);
  }
}

TEST_F(VelPathResolutionTest, RelativePaths_AreLookedForAlongTheSearchFolders) {
  std::filesystem::create_directories(folder_.Path("one/sub"));
  std::filesystem::create_directories(folder_.Path("two/sub"));
  folder_.Write("two/a.png", "2");
  folder_.Write("one/sub/b.png", "1");
  folder_.Write("two/sub/b.png", "2");
  folder_.Write("one/odd\\name.png", "1");
  Configure("HERE", folder_.Path());
  Configure("SearchFolders", ";${HERE}/one;/nowhere;${VELTEST_UNKNOWN};${HERE}/two");
  struct Case {
    const char* path;
    std::string expected;
  };
  const Case cases[] = {{"a.png", folder_.Path("two/a.png")},
                        {"sub/b.png", folder_.Path("one/sub/b.png")},
                        {"sub\\b.png", folder_.Path("one/sub/b.png")},
                        {"odd\\name.png", folder_.Path("one/odd\\name.png")},
                        {"./sub/../a.png", folder_.Path("two/a.png")},
                        {"sub", folder_.Path("one/sub")},
                        {"gone.png", "gone.png"},
                        {"sub\\gone.png", "sub\\gone.png"}};
  for (const Case& test : cases) EXPECT_EQ(VelPathResolution::Resolve(test.path), test.expected) << test.path;
}

}  // namespace
