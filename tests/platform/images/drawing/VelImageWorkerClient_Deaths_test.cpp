// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelImageWorkerClient_Deaths_test.cpp Programs that die, hang or never begin, and hosts of all habits.
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/platform/images/drawing/VelImageWorkerTest.h"

namespace {

class VelImageWorkerClientDeathsTest : public VelImageWorkerTest {
 protected:
  void ExpectFailure(const std::string& iWord, const std::string& iCause) {
    EXPECT_EQ(Draw(iWord), E_FAIL);
    EXPECT_EQ(cause_, "the helper program velrsh-image-worker " + iCause);
    EXPECT_EQ(client_->GetProcess(), 0);
    EXPECT_TRUE(image_.IsEmpty());
    ExpectNoChild();
  }
};

TEST_F(VelImageWorkerClientDeathsTest, AProgramThatDiesWhileDrawing_FailsThisRequestAlone) {
  struct Case {
    const char* word;
    const char* cause;
  };
  const Case cases[] = {
      {"die", "was ended by signal 9"},
      {"exit", "ended with code 7"},
      {"close", "has closed the channel"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.word);
    ExpectPicture();
    ExpectFailure(each.word, each.cause);
    EXPECT_LT(taken_.count(), patient);
    ExpectPicture();
  }
}

TEST_F(VelImageWorkerClientDeathsTest, AProgramThatDoesNotAnswerInTime_IsKilled) {
  for (const char* word : {"stop", "silence"}) {
    SCOPED_TRACE(word);
    UseProgram(VEL_TEST_IMAGE_WORKER, brief);
    ExpectFailure(word, "did not answer within 300 ms");
    EXPECT_GE(taken_.count(), brief);
    EXPECT_LT(taken_.count(), brief + 1000);
    client_->Stop();
    UseProgram(VEL_TEST_IMAGE_WORKER);
    ExpectPicture();
  }
}

TEST_F(VelImageWorkerClientDeathsTest, AProgramThatWasStoppedBetweenRequests_IsKilledToo) {
  UseProgram(VEL_TEST_IMAGE_WORKER, brief);
  static_cast<void>(Draw("process"));
  ASSERT_EQ(::kill(client_->GetProcess(), SIGSTOP), 0);
  ExpectFailure("draw", "did not answer within 300 ms");
}

TEST_F(VelImageWorkerClientDeathsTest, AProgramKilledBetweenRequests_CostsNothing) {
  for (int i = 0; i < 50; ++i) {
    ExpectPicture();
    const int process = client_->GetProcess();
    ASSERT_GT(process, 0);
    ASSERT_EQ(::kill(process, SIGKILL), 0);
    ExpectPicture();
    EXPECT_NE(client_->GetProcess(), process);
  }
}

TEST_F(VelImageWorkerClientDeathsTest, AProgramThatDiesWithoutHavingReadTheRequest_IsReplacedByAnother) {
  ExpectPicture();
  const int process = client_->GetProcess();
  // Stopped it still runs when the request is sent; killed then, it has not read it.
  ASSERT_EQ(::kill(process, SIGSTOP), 0);
  siginfo_t stopped{};
  ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(process), &stopped, WSTOPPED | WNOWAIT), 0);
  const pid_t killer = ::fork();
  ASSERT_GE(killer, 0);
  if (killer == 0) {
    ::usleep(100'000);
    ::kill(process, SIGKILL);
    ::_exit(0);
  }
  ExpectPicture();
  EXPECT_NE(client_->GetProcess(), process);
  EXPECT_EQ(::waitpid(killer, nullptr, 0), killer);
}

TEST_F(VelImageWorkerClientDeathsTest, AProgramThatEndsAfterItsAnswer_IsReplacedSilently) {
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(Draw("draw-and-exit"), S_OK) << cause_;
    image_ = VelPixelBuffer();
  }
}

TEST_F(VelImageWorkerClientDeathsTest, AProgramThatExitsAtOnce_FailsInTime) {
  UseMode("exits-at-once");
  ExpectFailure("draw", "ended with code 5");
  EXPECT_LT(taken_.count(), patient);
  UseMode("");
  ExpectPicture();
}

TEST_F(VelImageWorkerClientDeathsTest, AProgramThatNeverReads_FailsInTime) {
  UseProgram(VEL_TEST_IMAGE_WORKER, brief);
  UseMode("never-reads");
  ExpectFailure("draw", "did not answer within 300 ms");
  EXPECT_LT(taken_.count(), brief + 1000);
  UseProgram(VEL_TEST_IMAGE_WORKER);
  UseMode("");
  ExpectPicture();
}

TEST_F(VelImageWorkerClientDeathsTest, AProgramThatCannotBeStarted_SaysWhy) {
  const std::string closed = folder_.Write("closed", "#!/bin/sh\n");
  const std::string text = folder_.Write("text", "no program");
  ASSERT_EQ(::chmod(text.c_str(), 0700), 0);
  struct Case {
    std::string path;
    const char* cause;
  };
  const Case cases[] = {
      {folder_.Path("missing"), "no such file"},
      {folder_.Path(), "is a folder"},
      {closed, "may not be executed"},
      {text, "is not a program"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.path);
    UseProgram(each.path);
    ExpectFailure("draw", "cannot be started from '" + each.path + "': " + each.cause);
  }
}

TEST_F(VelImageWorkerClientDeathsTest, AHostThatIgnoresTheEndOfChildren_NoticesAllTheSame) {
  struct sigaction ignoring {};
  struct sigaction before {};
  ignoring.sa_handler = SIG_IGN;
  ASSERT_EQ(::sigaction(SIGCHLD, &ignoring, &before), 0);
  ExpectPicture();
  ASSERT_EQ(::kill(client_->GetProcess(), SIGKILL), 0);
  ExpectPicture();
  ExpectFailure("die", "ended");
  ExpectFailure("wrong-version", "speaks version 2 where 1 is spoken here");
  ExpectPicture();
  client_->Stop();
  ASSERT_EQ(::sigaction(SIGCHLD, &before, nullptr), 0);
}

TEST_F(VelImageWorkerClientDeathsTest, AHostThatWaitsForAllItsChildren_NoticesAllTheSame) {
  ExpectPicture();
  const int process = client_->GetProcess();
  ASSERT_EQ(::kill(process, SIGKILL), 0);
  ASSERT_EQ(::waitpid(-1, nullptr, 0), process);
  ExpectPicture();
}

TEST_F(VelImageWorkerClientDeathsTest, ACopyOfTheHost_HasAProgramOfItsOwn) {
  ExpectPicture();
  const int process = client_->GetProcess();
  const pid_t copy = ::fork();
  ASSERT_GE(copy, 0);
  if (copy == 0) {
    const bool isDrawn = Draw("draw") == S_OK;
    const bool isOwn = client_->GetProcess() != process && client_->GetProcess() != 0;
    client_.reset();
    ::_exit(isDrawn && isOwn && ::waitpid(-1, nullptr, WNOHANG) == -1 ? 0 : 1);
  }
  int status = -1;
  EXPECT_EQ(::waitpid(copy, &status, 0), copy);
  EXPECT_EQ(status, 0);
  ExpectPicture();
  EXPECT_EQ(client_->GetProcess(), process) << "the copy has left it alone";
}

TEST_F(VelImageWorkerClientDeathsTest, Stop_EndsTheProgram_AndTheNextRequestStartsIt) {
  client_->Stop();
  ExpectPicture();
  const int process = client_->GetProcess();
  client_->Stop();
  client_->Stop();
  EXPECT_EQ(::kill(process, 0), -1);
  ExpectNoChild();
  ExpectPicture();
}

}  // namespace
