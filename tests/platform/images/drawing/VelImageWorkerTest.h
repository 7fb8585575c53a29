// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerTest.h What the tests of the helper program's client share.
#ifndef TESTS_PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERTEST_H
#define TESTS_PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERTEST_H

#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/base/system/VelSystemInputFile.h"
#include "platform/images/drawing/VelImageWorkerClient.h"
#include "tests/platform/base/system/VelOpenDescriptors.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

/// A client of the fake helper program, which does what the file says that it is sent. After each test nothing of it is
/// left: no descriptor, no process, no zombie.
class VelImageWorkerTest : public ::testing::Test {
 protected:
  static constexpr int patient = 8000;  ///< Milliseconds that a sound answer never takes.
  static constexpr int brief = 300;     ///< Milliseconds for an answer that never comes.

  void SetUp() override { UseProgram(FakeProgram()); }

  void TearDown() override {
    client_.reset();
    ExpectNoChild();
    EXPECT_EQ(CountOpenDescriptors(), openBefore_) << "a descriptor is left open";
    ::unsetenv("VEL_FAKE_IMAGE_WORKER");
  }

  /// @return the path of the fake helper program
  static const char* FakeProgram() noexcept;

  static void ExpectNoChild() {
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
    EXPECT_EQ(errno, ECHILD);
  }

  /// Has the program behave in some way from its start on; the client starts it anew.
  void UseMode(const char* iMode) {
    ::setenv("VEL_FAKE_IMAGE_WORKER", iMode, 1);
    client_->Stop();
  }

  void UseProgram(const std::string& iPath, int iMilliseconds = patient) {
    client_ = std::make_unique<VelImageWorkerClient>(VelImageWorkerClient::Settings{iPath, iMilliseconds});
  }

  /// Sends a file of one word, and measures the time.
  HRESULT Draw(const std::string& iWord, const std::vector<std::string>& iGroups = {},
               VelImageKind iKind = VelImageKind::Svg, int iDpi = 96) {
    VelSystemInputFile file;
    cause_ = "untouched";
    unknown_ = {"untouched"};
    if (FAILED(file.Open(folder_.Write("file", iWord), cause_))) return E_UNEXPECTED;
    const auto begin = std::chrono::steady_clock::now();
    const HRESULT result = client_->Draw(iKind, file, iGroups, iDpi, image_, unknown_, cause_);
    taken_ = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin);
    return result;
  }

  /// The picture of the fake program: 3 x 2, with bytes that count up.
  void ExpectPicture() {
    EXPECT_EQ(Draw("draw"), S_OK) << cause_;
    EXPECT_EQ(cause_, "untouched");
    EXPECT_EQ(image_.GetWidth(), 3);
    EXPECT_EQ(image_.GetHeight(), 2);
    EXPECT_EQ(image_.GetFormat(), VelPixelImage::Format::Rgba8);
    EXPECT_EQ(image_.GetColorSpace(), VelPixelImage::ColorSpace::Srgb);
    ASSERT_EQ(image_.Bytes().size(), 24U);
    for (unsigned i = 0; i < 24; ++i) EXPECT_EQ(image_.Bytes()[i], static_cast<std::byte>(i));
    EXPECT_TRUE(unknown_.empty());
    image_ = VelPixelBuffer();
  }

  std::size_t openBefore_ = CountOpenDescriptors();
  VelTemporaryFolder folder_;
  std::unique_ptr<VelImageWorkerClient> client_;
  VelPixelBuffer image_;
  std::vector<std::string> unknown_;
  std::string cause_;
  std::chrono::milliseconds taken_{};
};

#endif  // TESTS_PLATFORM_IMAGES_DRAWING_VELIMAGEWORKERTEST_H
