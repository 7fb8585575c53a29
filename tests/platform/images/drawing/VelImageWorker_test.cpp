// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorker_test.cpp The one client of the process, and its end with the platform.
#include "platform/images/drawing/VelImageWorker.h"

#include <sys/wait.h>

#include <cerrno>
#include <cstdlib>

#include <gtest/gtest.h>

#include "platform/base/VelCallOnExit.h"
#include "platform/base/system/VelSystemInputFile.h"
#include "platform/images/drawing/VelImageWorkerProgram.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

class VelImageWorkerStaticTest : public ::testing::Test {
 protected:
  void SetUp() override { ::setenv(VelImageWorkerProgram::variable, VEL_TEST_IMAGE_WORKER, 1); }

  void TearDown() override {
    VelImageWorker::Stop();
    ExpectNoChild();
    ::unsetenv(VelImageWorkerProgram::variable);
  }

  static void ExpectNoChild() {
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
    EXPECT_EQ(errno, ECHILD);
  }

  HRESULT Draw(const char* iWord) {
    VelSystemInputFile file;
    if (FAILED(file.Open(folder_.Write("file", iWord), cause_))) return E_UNEXPECTED;
    return VelImageWorker::Draw(VelImageKind::Svg, file, {}, 96, image_, unknown_, cause_);
  }

  VelTemporaryFolder folder_;
  VelPixelBuffer image_;
  std::vector<std::string> unknown_;
  std::string cause_;
};

TEST_F(VelImageWorkerStaticTest, Draw_KeepsOneProgramForAll) {
  EXPECT_EQ(Draw("draw"), S_OK) << cause_;
  EXPECT_EQ(image_.GetWidth(), 3);
  EXPECT_EQ(Draw("process"), E_FAIL);
  const std::string process = cause_;
  EXPECT_EQ(Draw("process"), E_FAIL);
  EXPECT_EQ(cause_, process);
}

TEST_F(VelImageWorkerStaticTest, TheEndOfThePlatform_IsTheEndOfTheProgram_EachTime) {
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Draw("draw"), S_OK) << cause_;
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), 0) << "the program runs";
    VelPlatformTerminate();
    ExpectNoChild();
  }
}

TEST_F(VelImageWorkerStaticTest, WithoutTheProgram_SaysWhereItWasLookedFor) {
  const std::string gone = folder_.Path("gone");
  ::setenv(VelImageWorkerProgram::variable, gone.c_str(), 1);
  EXPECT_EQ(Draw("draw"), E_FAIL);
  EXPECT_EQ(cause_, "the helper program velrsh-image-worker is missing: looked in '" + gone + "'");
}

}  // namespace
