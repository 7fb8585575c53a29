// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerProgram_test.cpp Where the helper program is looked for.
#include "platform/images/drawing/VelImageWorkerProgram.h"

#include <cstdlib>
#include <filesystem>
#include <memory>

#include <gtest/gtest.h>

#include <stdio.h>

#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

class VelImageWorkerProgramTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ::unsetenv(VelImageWorkerProgram::variable);
    for (const char* name : {"lib", "bin", "libexec", "libexec/velrsh"}) {
      std::filesystem::create_directory(folder_.Path(name));
    }
    std::filesystem::copy_file(VEL_TEST_FIND_IMAGE_WORKER, folder_.Path("lib/find"));
  }

  void TearDown() override { ::unsetenv(VelImageWorkerProgram::variable); }

  /// @return the line of a program in the folder lib, which has the code to find in it as a library there would
  std::string FindFromLib() const {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(folder_.Path("lib/find").c_str(), "r"), &::pclose);
    char line[4096]{};
    if (pipe == nullptr || std::fgets(line, sizeof(line), pipe.get()) == nullptr) return "nothing";
    std::string text(line);
    text.erase(text.find('\n'));
    return text;
  }

  VelTemporaryFolder folder_;
};

TEST_F(VelImageWorkerProgramTest, WithoutAProgram_TellsBothPlaces) {
  EXPECT_EQ(FindFromLib(), "the helper program velrsh-image-worker is missing: looked in '" +
                               folder_.Path("lib/../libexec/velrsh/velrsh-image-worker") + "' and '" +
                               folder_.Path("lib/../bin/velrsh-image-worker") + "'");
}

TEST_F(VelImageWorkerProgramTest, AnInstallation_ComesBeforeABuildTree) {
  folder_.Write("bin/velrsh-image-worker", "");
  EXPECT_EQ(FindFromLib(), folder_.Path("lib/../bin/velrsh-image-worker"));
  folder_.Write("libexec/velrsh/velrsh-image-worker", "");
  EXPECT_EQ(FindFromLib(), folder_.Path("lib/../libexec/velrsh/velrsh-image-worker"));
}

TEST_F(VelImageWorkerProgramTest, TheVariable_ComesBeforeAll_UnlessItIsEmpty) {
  folder_.Write("bin/velrsh-image-worker", "");
  ::setenv(VelImageWorkerProgram::variable, folder_.Write("own", "").c_str(), 1);
  EXPECT_EQ(FindFromLib(), folder_.Path("own"));
  ::setenv(VelImageWorkerProgram::variable, "", 1);
  EXPECT_EQ(FindFromLib(), folder_.Path("lib/../bin/velrsh-image-worker"));
}

TEST_F(VelImageWorkerProgramTest, TheVariableThatLeadsNowhere_IsTheOnlyPlace) {
  folder_.Write("bin/velrsh-image-worker", "");
  ::setenv(VelImageWorkerProgram::variable, folder_.Path("gone").c_str(), 1);
  std::string path = "untouched";
  std::string cause;
  EXPECT_EQ(VelImageWorkerProgram::Find(path, cause), E_FAIL);
  EXPECT_EQ(path, "untouched");
  EXPECT_EQ(cause, "the helper program velrsh-image-worker is missing: looked in '" + folder_.Path("gone") + "'");
}

}  // namespace
