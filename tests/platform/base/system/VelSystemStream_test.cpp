// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemStream_test.cpp The behaviour of writing to the standard error stream.
#include "platform/base/system/VelSystemStream.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/time.h>
#include <unistd.h>

#include <string>
#include <thread>

namespace {

constexpr int standardError = STDERR_FILENO;

/// Puts a pipe in the place of the standard error stream and reads from it slowly on a thread of its own.
class PipedStandardError {
 public:
  explicit PipedStandardError(int iFlags) {
    saved_ = ::dup(standardError);
    EXPECT_EQ(::pipe(pipe_), 0);
    EXPECT_EQ(::fcntl(pipe_[1], F_SETFL, iFlags), 0);
    ::dup2(pipe_[1], standardError);
    ::close(pipe_[1]);
    reader_ = std::thread([this] { ReadAll(); });
  }

  /// Puts the stream back and answers what was written meanwhile.
  std::string Finish() {
    ::dup2(saved_, standardError);
    ::close(saved_);
    reader_.join();
    ::close(pipe_[0]);
    return text_;
  }

 private:
  void ReadAll() {
    char buffer[4096];
    for (ssize_t count = 1; count != 0;) {
      count = ::read(pipe_[0], buffer, sizeof buffer);
      if (count > 0) text_.append(buffer, static_cast<std::size_t>(count));
    }
  }

  int saved_ = -1;
  int pipe_[2] = {-1, -1};
  std::thread reader_;
  std::string text_;
};

/// Interrupts system calls of the process every millisecond.
class Interruptions {
 public:
  Interruptions() {
    struct sigaction action {};
    action.sa_handler = [](int) {};
    ::sigaction(SIGALRM, &action, &before_);
    SetInterval(1000);
  }
  ~Interruptions() {
    SetInterval(0);
    ::sigaction(SIGALRM, &before_, nullptr);
  }

 private:
  static void SetInterval(int iMicroseconds) {
    const itimerval interval{{0, iMicroseconds}, {0, iMicroseconds}};
    ::setitimer(ITIMER_REAL, &interval, nullptr);
  }

  struct sigaction before_ {};
};

std::string NumberedLines() {
  std::string lines;
  for (int line = 0; line < 100'000; ++line) lines += std::to_string(line) + "\n";
  return lines;
}

TEST(VelSystemStream, WithMoreTextThanAPipeHolds_WritesItWhole) {
  struct Case {
    const char* name;
    int flags;
  };
  const Case cases[] = {{"blocking", 0}, {"non-blocking", O_NONBLOCK}};
  const std::string text = NumberedLines();
  for (const Case& test : cases) {
    SCOPED_TRACE(test.name);
    PipedStandardError pipe(test.flags);
    bool written = false;
    {
      const Interruptions interruptions;
      written = VelSystemStream::WriteToStandardError(text);
    }
    EXPECT_TRUE(pipe.Finish() == text);
    EXPECT_TRUE(written);
  }
}

TEST(VelSystemStream, WithShortText_AddsNothing) {
  ::testing::internal::CaptureStderr();
  EXPECT_TRUE(VelSystemStream::WriteToStandardError(std::string_view("a\0b", 3)));
  EXPECT_TRUE(VelSystemStream::WriteToStandardError(""));
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), std::string("a\0b", 3));
}

TEST(VelSystemStream, WhileTheStreamIsClosed_TellsThatItFailed) {
  const int saved = ::dup(standardError);
  ::close(standardError);
  const bool written = VelSystemStream::WriteToStandardError("lost");
  ::dup2(saved, standardError);
  ::close(saved);
  EXPECT_FALSE(written);
}

}  // namespace
