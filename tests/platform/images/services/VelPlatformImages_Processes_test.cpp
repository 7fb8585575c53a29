// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelPlatformImages_Processes_test.cpp Several processes convert the same file at once, and some are killed.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <vector>

#include "platform/base/VelCallOnExit.h"
#include "platform/images/VelPixelImage.h"
#include "platform/images/VelRbaImageServices.h"
#include "platform/objectmodeler/VelDictionary.h"
#include "platform/objectmodeler/VelVar.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* dictionary = VEL_TEST_LIBRARY_FOLDER "/dictionaries/VelPlatformImages.dictionary";
constexpr int side = 1500;  ///< Pixels: so many that a file takes a while to be written.

class VelPlatformImagesProcessesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(VelDictionary::LoadFile(dictionary), S_OK);
    ::setenv("XDG_CACHE_HOME", folder_.Path("cache").c_str(), 1);
    const std::string length = std::to_string(side);
    source_ =
        folder_.Write("a.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='" + length + "' height='" + length +
                                   "'><linearGradient id='g'><stop stop-color='red'/><stop offset='1' "
                                   "stop-color='blue'/></linearGradient><rect width='100%' height='100%' "
                                   "fill='url(#g)'/></svg>");
  }
  void TearDown() override {
    VelPlatformTerminate();
    EXPECT_EQ(VelDictionary::Unload(dictionary), S_OK);
    ::unsetenv("XDG_CACHE_HOME");
  }

  HRESULT Convert(std::string& oPath) const {
    VelUnicodeString path(source_);
    const HRESULT code = VelRbaImageServices::ConvertUnsupportedTexture(path, {}, 96);
    oPath = path.View();
    return code;
  }

  /// Starts a process that converts the file and ends, with 0 when that went well.
  pid_t StartConversion() const {
    const pid_t process = ::fork();
    if (process != 0) return process;
    std::string path;
    const bool isDone = Convert(path) == S_OK && LooksWhole(path);
    ::_exit(isDone ? 0 : 1);
  }

  static bool LooksWhole(const std::string& iPath) {
    const auto hImage =
        VelBaseUnknown_var::Adopt(VelRbaImageServices::CreatePixelImageFromFullPath(VelUnicodeString(iPath), {}, 96));
    return hImage && VelPixelImage::From(hImage.Get())->GetWidth() == side;
  }

  /// @return true when every finished file in the cache is whole
  bool AreAllWhole() const {
    std::error_code error;
    for (const auto& file : fs::recursive_directory_iterator(folder_.Path("cache"), error)) {
      if (file.path().extension() == ".png" && !LooksWhole(file.path().string())) return false;
    }
    return true;
  }

  VelTemporaryFolder folder_;
  std::string source_;
};

TEST_F(VelPlatformImagesProcessesTest, ProcessesThatRace_NeverSeeHalfAFile) {
  for (int round = 0; round < 4; ++round) {
    fs::remove_all(folder_.Path("cache"));
    std::vector<pid_t> processes;
    for (int i = 0; i < 3; ++i) processes.push_back(StartConversion());
    for (const pid_t process : processes) {
      int status = -1;
      ASSERT_EQ(::waitpid(process, &status, 0), process);
      EXPECT_EQ(status, 0);
    }
    EXPECT_TRUE(AreAllWhole());
  }
}

TEST_F(VelPlatformImagesProcessesTest, AProcessThatIsKilledInTheMiddle_LeavesNoHalfFile) {
  for (int round = 0; round < 8; ++round) {
    fs::remove_all(folder_.Path("cache"));
    const pid_t killed = StartConversion();
    const pid_t other = StartConversion();
    std::this_thread::sleep_for(std::chrono::milliseconds(20 + 25 * round));
    ::kill(killed, SIGKILL);
    int status = -1;
    ASSERT_EQ(::waitpid(killed, &status, 0), killed);
    ASSERT_EQ(::waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(AreAllWhole());
    std::string path;
    EXPECT_EQ(Convert(path), S_OK);
    EXPECT_TRUE(LooksWhole(path));
  }
}

}  // namespace
