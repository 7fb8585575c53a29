// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemChild_test.cpp Programs that are started and ended, in whatever state this process is.
#include "platform/base/system/VelSystemChild.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <optional>
#include <utility>

#include <gtest/gtest.h>

#include "platform/base/system/VelSystemChannel.h"
#include "tests/platform/base/system/VelOpenDescriptors.h"
#include "tests/platform/base/system/VelTemporaryFolder.h"

namespace {

constexpr const char* shell = "/bin/sh";
constexpr int patient = 10'000;

/// Sets how a signal is handled, for as long as it lives.
class Handling {
 public:
  Handling(int iSignal, void (*iHandler)(int)) : signal_(iSignal) {
    struct sigaction handling {};
    handling.sa_handler = iHandler;
    if (::sigaction(iSignal, &handling, &before_) != 0) ADD_FAILURE() << "signal " << iSignal;
  }
  ~Handling() { ::sigaction(signal_, &before_, nullptr); }

  Handling(const Handling&) = delete;
  Handling& operator=(const Handling&) = delete;

 private:
  int signal_;
  struct sigaction before_ {};
};

class VelSystemChildTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(VelSystemChannel::CreatePair(ours_, theirs_, cause_), S_OK); }

  void TearDown() override {
    child_.Kill();
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
    EXPECT_EQ(errno, ECHILD);
  }

  /// Starts the shell, and closes its end of the channel here.
  HRESULT Run(const std::string& iCommand) {
    const HRESULT result = child_.Start(shell, {"-c", iCommand}, theirs_, VelSystemChild::Output::Nowhere, cause_);
    theirs_.Close();
    return result;
  }

  /// @return what a command writes that the shell starts; the shell's own descriptors stay as it got them
  std::string OutputOf(const std::string& iCommand) {
    EXPECT_EQ(Run("(" + iCommand + ") >" + folder_.Path("output") + "; exit 0"), S_OK) << cause_;
    EXPECT_TRUE(child_.AwaitEnd(patient));
    EXPECT_EQ(child_.GetEnd(), "ended with code 0");
    return folder_.Read("output");
  }

  VelTemporaryFolder folder_;
  VelSystemChannel ours_;
  VelSystemChannel theirs_;
  VelSystemChild child_;
  std::string cause_ = "untouched";
};

TEST_F(VelSystemChildTest, AProgram_IsWatchedToItsEnd) {
  EXPECT_EQ(child_.GetIdentifier(), 0);
  EXPECT_TRUE(child_.AwaitEnd(0));
  EXPECT_EQ(Run("exit 3"), S_OK);
  EXPECT_EQ(cause_, "untouched");
  EXPECT_TRUE(child_.AwaitEnd(patient));
  EXPECT_FALSE(child_.IsRunning());
  EXPECT_EQ(child_.GetIdentifier(), 0);
  EXPECT_EQ(child_.GetEnd(), "ended with code 3");
}

TEST_F(VelSystemChildTest, Kill_EndsAProgramThatIsStopped) {
  EXPECT_EQ(Run("kill -STOP $$; sleep 100"), S_OK);
  EXPECT_FALSE(child_.AwaitEnd(50));
  EXPECT_TRUE(child_.IsRunning());
  EXPECT_GT(child_.GetIdentifier(), 0);
  child_.Kill();
  EXPECT_FALSE(child_.IsRunning());
  EXPECT_EQ(child_.GetEnd(), "was ended by signal 9");
  child_.Kill();
  EXPECT_EQ(child_.GetEnd(), "was ended by signal 9");
}

TEST_F(VelSystemChildTest, IsDoomed_OnceSomebodyHasKilledIt) {
  EXPECT_TRUE(child_.IsDoomed()) << "nothing runs";
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(child_.Start(shell, {"-c", "exec sleep 100"}, theirs_, VelSystemChild::Output::Nowhere, cause_), S_OK);
    EXPECT_FALSE(child_.IsDoomed());
    ASSERT_EQ(::kill(child_.GetIdentifier(), SIGKILL), 0);
    // The system forgets the sentence while it carries it out, and then the end is near.
    EXPECT_TRUE(child_.IsDoomed() || child_.AwaitEnd(patient));
  }
}

TEST_F(VelSystemChildTest, TheDestructor_KillsAndLeavesNothingOpen) {
  const std::size_t before = CountOpenDescriptors();
  pid_t identifier = 0;
  {
    VelSystemChild child;
    ASSERT_EQ(child.Start(shell, {"-c", "exec sleep 100"}, theirs_, VelSystemChild::Output::Nowhere, cause_), S_OK);
    identifier = child.GetIdentifier();
  }
  EXPECT_EQ(::kill(identifier, 0), -1);
  EXPECT_EQ(CountOpenDescriptors(), before);
}

TEST_F(VelSystemChildTest, Start_KillsTheRunBefore) {
  EXPECT_EQ(child_.Start(shell, {"-c", "exec sleep 100"}, theirs_, VelSystemChild::Output::Nowhere, cause_), S_OK);
  const pid_t first = child_.GetIdentifier();
  EXPECT_EQ(Run("exit 0"), S_OK);
  EXPECT_EQ(::kill(first, 0), -1);
  EXPECT_TRUE(child_.AwaitEnd(patient));
  EXPECT_EQ(child_.GetEnd(), "ended with code 0");
}

TEST_F(VelSystemChildTest, TheProgramInheritsTheChannel_AndNothingElse) {
  const VelSystemDescriptor leaking(::open("/dev/null", O_RDONLY));
  const VelSystemDescriptor leakingFarUp(::fcntl(leaking.Get(), F_DUPFD, 200));
  ASSERT_TRUE(leakingFarUp.IsOpen());
  EXPECT_EQ(OutputOf("ls -C -w 0 /proc/$$/fd"), "0  1  2  3\n");
}

TEST_F(VelSystemChildTest, TheStandardStreams_LeadNowhere) {
  EXPECT_EQ(OutputOf("for i in 0 1 2; do readlink /proc/$$/fd/$i; done"), "/dev/null\n/dev/null\n/dev/null\n");
}

TEST_F(VelSystemChildTest, TheOutput_GoesWhereOursGoesWhenAsked) {
  const std::string path = folder_.Path("output");
  const VelSystemDescriptor kept(::dup(STDERR_FILENO));
  {
    const VelSystemDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT, 0600));
    ASSERT_EQ(::dup2(file.Get(), STDERR_FILENO), STDERR_FILENO);
  }
  const HRESULT started =
      child_.Start(shell, {"-c", "echo seen >&2"}, theirs_, VelSystemChild::Output::WhereOurs, cause_);
  ASSERT_EQ(::dup2(kept.Get(), STDERR_FILENO), STDERR_FILENO);
  EXPECT_EQ(started, S_OK);
  EXPECT_TRUE(child_.AwaitEnd(patient));
  EXPECT_EQ(folder_.Read("output"), "seen\n");
}

TEST_F(VelSystemChildTest, TheChannel_WorksFromDescriptorThreeWhereverItWasHere) {
  for (const int place : {STDIN_FILENO, 3, 77}) {
    SCOPED_TRACE(place);
    VelSystemChannel ours;
    VelSystemChannel theirs;
    ASSERT_EQ(VelSystemChannel::CreatePair(ours, theirs, cause_), S_OK);
    // What stands in that place comes back afterwards.
    const VelSystemDescriptor kept(::fcntl(place, F_DUPFD_CLOEXEC, 100));
    ASSERT_EQ(::dup2(theirs.GetDescriptor(), place), place);
    VelSystemChannel placed;
    ASSERT_EQ(placed.Adopt(place, cause_), S_OK);
    EXPECT_EQ(child_.Start(shell, {"-c", "echo hello >&3"}, placed, VelSystemChild::Output::Nowhere, cause_), S_OK);
    placed.Close();
    theirs.Close();
    if (kept.IsOpen()) {
      ASSERT_EQ(::dup2(kept.Get(), place), place);
    }
    std::string message;
    VelSystemDescriptor none;
    EXPECT_EQ(ours.Receive(message, none, patient, cause_), S_OK);
    EXPECT_EQ(message, "hello\n");
    EXPECT_EQ(ours.Receive(message, none, patient, cause_), E_UNEXPECTED) << "the end is noticed";
    EXPECT_TRUE(child_.AwaitEnd(patient));
  }
}

TEST_F(VelSystemChildTest, Signals_AreAsIfNobodyHadTouchedThem) {
  const Handling ignoring(SIGPIPE, SIG_IGN);
  sigset_t blocked;
  sigset_t before;
  ::sigemptyset(&blocked);
  ::sigaddset(&blocked, SIGUSR1);
  ASSERT_EQ(::sigprocmask(SIG_BLOCK, &blocked, &before), 0);
  const auto signalsOf = [this](const std::string& iLine) {
    // The C library keeps a few signals above these for itself.
    constexpr unsigned long ordinary = 0x7FFFFFFF;
    return std::stoul(OutputOf("sed -n 's/^" + iLine + ":.//p' /proc/$$/status"), nullptr, 16) & ordinary;
  };
  EXPECT_EQ(signalsOf("SigIgn"), 0U);
  ASSERT_EQ(VelSystemChannel::CreatePair(ours_, theirs_, cause_), S_OK);
  EXPECT_EQ(signalsOf("SigBlk"), 0U);
  ASSERT_EQ(::sigprocmask(SIG_SETMASK, &before, nullptr), 0);
}

TEST_F(VelSystemChildTest, WhatCannotBeRun_SaysWhy) {
  const std::string text = folder_.Write("text", "this is no program");
  const std::string notExecutable = folder_.Write("closed", "#!/bin/sh\n");
  ASSERT_EQ(::chmod(text.c_str(), 0700), 0);
  struct Case {
    std::string path;
    HRESULT result;
    const char* cause;
  };
  const Case cases[] = {
      {folder_.Path("missing"), E_FAIL, "no such file"},
      {"", E_FAIL, "no such file"},
      {folder_.Path(), E_FAIL, "is a folder"},
      {text, E_FAIL, "is not a program"},
      {notExecutable, E_FAIL, "may not be executed"},
      {text + "/below", E_FAIL, "a part of the path is not a folder"},
      {std::string("/bin/sh\0x", 9), E_INVALIDARG, "the path holds a NUL byte"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.path);
    EXPECT_EQ(child_.Start(each.path, {}, theirs_, VelSystemChild::Output::Nowhere, cause_), each.result);
    EXPECT_EQ(cause_, each.cause);
    EXPECT_FALSE(child_.IsRunning());
  }
}

TEST_F(VelSystemChildTest, AHostThatIgnoresTheEndOfChildren_KillsAsWell) {
  const Handling ignoring(SIGCHLD, SIG_IGN);
  EXPECT_EQ(Run("exec sleep 100"), S_OK) << cause_;
  const pid_t identifier = child_.GetIdentifier();
  const auto begin = std::chrono::steady_clock::now();
  child_.Kill();
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
  EXPECT_FALSE(child_.IsRunning());
  EXPECT_EQ(child_.GetEnd(), "ended");
  EXPECT_EQ(::kill(identifier, 0), -1);
}

TEST_F(VelSystemChildTest, AHostThatWaitsForAllItsChildren_IsNotWaitedForItself) {
  EXPECT_EQ(Run("exit 0"), S_OK);
  const pid_t identifier = child_.GetIdentifier();
  EXPECT_EQ(::waitpid(-1, nullptr, 0), identifier);
  EXPECT_TRUE(child_.AwaitEnd(patient));
  EXPECT_EQ(child_.GetEnd(), "ended");
}

TEST_F(VelSystemChildTest, ACopyOfThisProcess_LeavesTheProgramAlone) {
  EXPECT_EQ(Run("exec sleep 100"), S_OK);
  const pid_t copy = ::fork();
  ASSERT_GE(copy, 0);
  if (copy == 0) {
    const bool isOurs = child_.IsRunning() || child_.GetIdentifier() != 0;
    child_.Kill();
    ::_exit(isOurs ? 1 : 0);
  }
  int status = -1;
  EXPECT_EQ(::waitpid(copy, &status, 0), copy);
  EXPECT_EQ(status, 0);
  EXPECT_FALSE(child_.AwaitEnd(100)) << "it was killed";
  EXPECT_TRUE(child_.IsRunning());
}

}  // namespace
