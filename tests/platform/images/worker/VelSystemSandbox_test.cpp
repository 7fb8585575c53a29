// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemSandbox_test.cpp What a confined process can and cannot do, tried in copies of the test.
#include "platform/base/system/VelSystemSandbox.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "platform/base/system/VelSystemFork.h"

namespace {

using End = VelSystemFork::End;

constexpr int channel = 3;
constexpr int wrongCode = 99;

VelSystemFork::Outcome RunCopy(const std::function<int()>& iFunction, int iTimeoutMilliseconds = 5000) {
  VelSystemFork::Outcome outcome;
  std::string cause;
  EXPECT_EQ(VelSystemFork::Run(iFunction, iTimeoutMilliseconds, outcome, cause), S_OK) << cause;
  return outcome;
}

/// Confines a copy and has it try something there.
/// @param[in] iAttempt returns 0 for success, an error number otherwise
/// @return what the attempt returned
int Try(const std::function<int()>& iAttempt) {
  const VelSystemFork::Outcome outcome = RunCopy([&] {
    std::string cause;
    return FAILED(VelSystemSandbox::Enter(channel, cause)) ? wrongCode : iAttempt();
  });
  EXPECT_TRUE(outcome.end == End::Done || outcome.end == End::Failed) << outcome.number;
  return outcome.number;
}

int ErrorOf(long iResult) { return iResult < 0 ? errno : 0; }

struct Attempt {
  const char* name;
  std::function<int()> attempt;
  int expected;
};

TEST(VelSystemSandbox, WhatIsForbidden_FailsWithoutAnEnd) {
  const pid_t parent = ::getpid();
  const Attempt attempts[] = {
      {"open", [] { return ErrorOf(::open("/etc/passwd", O_RDONLY)); }, EACCES},
      {"open to write", [] { return ErrorOf(::open("/tmp/x", O_WRONLY | O_CREAT, 0600)); }, EACCES},
      {"open by its number", [] { return ErrorOf(::syscall(SYS_openat, AT_FDCWD, "/", O_RDONLY)); }, EACCES},
      {"open by name_to_handle", [] { return ErrorOf(::syscall(SYS_open_by_handle_at, 0, nullptr, 0)); }, EPERM},
      {"stat",
       [] {
         struct stat status {};
         return ErrorOf(::stat("/etc/passwd", &status));
       },
       EACCES},
      {"readlink",
       [] {
         char link[8];
         return ErrorOf(::readlink("/proc/self/exe", link, sizeof link));
       },
       EACCES},
      {"unlink", [] { return ErrorOf(::unlink("/tmp/x")); }, EPERM},
      {"socket", [] { return ErrorOf(::socket(AF_INET, SOCK_STREAM, 0)); }, EPERM},
      {"socketpair",
       [] {
         int ends[2];
         return ErrorOf(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends));
       },
       EPERM},
      {"connect", [] { return ErrorOf(::connect(0, nullptr, 0)); }, EPERM},
      {"receive",
       [] {
         char byte = 0;
         return ErrorOf(::recv(channel, &byte, 1, MSG_DONTWAIT));
       },
       EPERM},
      {"read the channel",
       [] {
         char byte = 0;
         return ErrorOf(::read(channel, &byte, 1));
       },
       EPERM},
      {"execve", [] { return ErrorOf(::execl("/bin/true", "true", nullptr)); }, EPERM},
      {"fork", [] { return ErrorOf(::fork()); }, EPERM},
      {"vfork", [] { return ErrorOf(::syscall(SYS_clone, SIGCHLD, 0, 0, 0, 0)); }, EPERM},
      {"clone3", [] { return ErrorOf(::syscall(SYS_clone3, nullptr, 0)); }, ENOSYS},
      {"kill its parent", [&] { return ErrorOf(::kill(parent, 0)); }, EPERM},
      {"kill all", [] { return ErrorOf(::kill(-1, 0)); }, EPERM},
      {"kill a thread of its parent", [&] { return ErrorOf(::syscall(SYS_tgkill, parent, parent, 0)); }, EPERM},
      {"ptrace", [&] { return ErrorOf(::ptrace(PTRACE_ATTACH, parent, nullptr, nullptr)); }, EPERM},
      {"read another's memory",
       [&] { return ErrorOf(::syscall(SYS_process_vm_readv, parent, nullptr, 0, nullptr, 0, 0)); }, EPERM},
      {"make code",
       [] {
         const void* memory = ::mmap(nullptr, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
         return memory == MAP_FAILED ? errno : 0;
       },
       EPERM},
      {"make memory code",
       [] {
         void* memory = ::mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
         return ErrorOf(::mprotect(memory, 4096, PROT_READ | PROT_EXEC));
       },
       EPERM},
      {"raise a limit",
       [] {
         const rlimit limit{64, 64};
         return ErrorOf(::setrlimit(RLIMIT_NOFILE, &limit));
       },
       EPERM},
      {"duplicate", [] { return ErrorOf(::dup(0)); }, EPERM},
  };
  for (const Attempt& attempt : attempts) EXPECT_EQ(Try(attempt.attempt), attempt.expected) << attempt.name;
}

TEST(VelSystemSandbox, WhatDrawingNeeds_Works) {
  const Attempt attempts[] = {
      {"exit", [] { return 0; }, 0},
      {"exit with a code", [] { return 7; }, 7},
      {"take memory", [] { return std::vector<char>(100'000'000, 'x').back() == 'x' ? 0 : 1; }, 0},
      {"shared memory",
       [] {
         const int memory = ::memfd_create("x", MFD_CLOEXEC | MFD_ALLOW_SEALING);
         if (memory < 0 || ::ftruncate(memory, 4096) != 0) return errno;
         return ErrorOf(::fcntl(memory, F_ADD_SEALS, F_SEAL_WRITE));
       },
       0},
      {"ask for a file, which is told nothing", [] { return ErrorOf(::access("/no/such/file", R_OK)); }, 0},
      {"threads",
       [] {
         int code = 1;
         std::thread([&] { code = 0; }).join();
         return code;
       },
       0},
      {"write to what is open", [] { return ErrorOf(::write(STDERR_FILENO, "x", 1)); }, 0},
  };
  for (const Attempt& attempt : attempts) EXPECT_EQ(Try(attempt.attempt), attempt.expected) << attempt.name;
}

TEST(VelSystemSandbox, AConfinedProcess_CanEndItselfByAbort) {
  const VelSystemFork::Outcome outcome = RunCopy([] {
    std::string cause;
    if (SUCCEEDED(VelSystemSandbox::Enter(channel, cause))) std::abort();
    return 0;
  });
  EXPECT_EQ(outcome.end, End::Signal);
  EXPECT_EQ(outcome.number, SIGABRT);
}

// A confined process may not even ask for it, which is as good as a system that has no filters.
TEST(VelSystemSandbox, AProcessThatCannotBeConfined_IsTold) {
  EXPECT_EQ(Try([] {
              std::string cause;
              const bool isTold = FAILED(VelSystemSandbox::Enter(channel, cause)) &&
                                  cause == "the system does not filter the calls of a process: permission denied";
              return isTold ? 0 : 1;
            }),
            0);
}

TEST(VelSystemSandbox, Limits_AreThoseThatWereAskedFor) {
  const VelSystemFork::Outcome outcome = RunCopy([] {
    std::string cause;
    if (FAILED(VelSystemSandbox::Limit({0, 5, 4096, 10}, cause))) return 1;
    rlimit limit{};
    if (::getrlimit(RLIMIT_CPU, &limit) != 0 || limit.rlim_cur != 5) return 2;
    if (::getrlimit(RLIMIT_CORE, &limit) != 0 || limit.rlim_max != 0) return 3;
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_max != 10) return 4;
    if (::getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_max != 4096) return 5;
    if (::getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur != RLIM_INFINITY) return 6;
    return ::ftruncate(::memfd_create("x", MFD_CLOEXEC), 4097) < 0 && errno == EFBIG ? 0 : 7;
  });
  EXPECT_EQ(outcome.number, 0);
}

TEST(VelSystemFork, TheEndOfACopy_IsToldAsItWas) {
  const struct {
    const char* name;
    std::function<int()> function;
    End end;
    int number;
  } cases[] = {
      {"success", [] { return 0; }, End::Done, 0},
      {"failure", [] { return 5; }, End::Failed, 5},
      {"signal",
       [] {
         ::raise(SIGTERM);
         return 0;
       },
       End::Signal, SIGTERM},
      {"want of memory", []() -> int { throw std::bad_alloc(); }, End::MemoryIsOver, 71},
      {"want of memory that a library tells of",
       []() -> int {
         constexpr std::string_view words = "memory allocation of 8 bytes failed";
         static_cast<void>(!::write(STDERR_FILENO, words.data(), words.size()));
         std::abort();
       },
       End::MemoryIsOver, SIGABRT},
      {"an exception", []() -> int { throw std::runtime_error("x"); }, End::Failed, 70},
      {"too much processor time",
       [] {
         ::raise(SIGXCPU);
         return 0;
       },
       End::TimeIsOver, SIGXCPU},
  };
  for (const auto& one : cases) {
    const VelSystemFork::Outcome outcome = RunCopy(one.function);
    EXPECT_EQ(outcome.end, one.end) << one.name;
    EXPECT_EQ(outcome.number, one.number) << one.name;
  }
}

TEST(VelSystemFork, ACopyThatDoesNotEnd_IsKilled) {
  for (const bool isTalking : {false, true}) {
    const VelSystemFork::Outcome outcome = RunCopy(
        [&] {
          while (!isTalking || ::write(STDERR_FILENO, "x", 1) == 1) continue;
          return 0;
        },
        100);
    EXPECT_EQ(outcome.end, End::TimeIsOver);
  }
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
}

TEST(VelSystemFork, ACopyThatHidesItsEnd_IsNotWaitedFor) {
  const VelSystemFork::Outcome outcome = RunCopy([] {
    ::close(STDERR_FILENO);
    while (true) ::pause();
    return 0;
  });
  EXPECT_EQ(outcome.end, End::Signal);
  EXPECT_EQ(outcome.number, SIGKILL);
}

}  // namespace
