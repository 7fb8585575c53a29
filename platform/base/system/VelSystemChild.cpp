// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemChild.cpp Starts by posix_spawn, and watches by a process descriptor, for which not every C library
/// has functions.
#include "platform/base/system/VelSystemChild.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <utility>

#include "platform/base/system/VelSystemChannel.h"
#include "platform/base/system/VelSystemDeadline.h"
#include "platform/base/system/VelSystemError.h"
#include "platform/base/system/VelSystemFile.h"

namespace {

constexpr int channelDescriptor = 3;
constexpr int killMilliseconds = 500;
constexpr const char* nullDevice = "/dev/null";

/// What the new process does with its descriptors before it becomes the program.
class Actions {
 public:
  Actions(int iChannel, VelSystemChild::Output iOutput) {
    Check(::posix_spawn_file_actions_init(&actions_));
    // First of all: where this process has no standard input, the channel may stand in its place.
    Check(::posix_spawn_file_actions_adddup2(&actions_, iChannel, channelDescriptor));
    Check(::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, nullDevice, O_RDONLY, 0));
    if (iOutput == VelSystemChild::Output::Nowhere) {
      Check(::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, nullDevice, O_WRONLY, 0));
      Check(::posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, nullDevice, O_WRONLY, 0));
    }
    Check(::posix_spawn_file_actions_addclosefrom_np(&actions_, channelDescriptor + 1));
  }

  ~Actions() { ::posix_spawn_file_actions_destroy(&actions_); }

  Actions(const Actions&) = delete;
  Actions& operator=(const Actions&) = delete;

  int Error() const noexcept { return error_; }
  const posix_spawn_file_actions_t* Get() const noexcept { return &actions_; }

 private:
  void Check(int iError) noexcept {
    if (error_ == 0) error_ = iError;
  }

  posix_spawn_file_actions_t actions_{};
  int error_ = 0;
};

/// No signal is blocked in the new process, and none ignored.
class Attributes {
 public:
  Attributes() {
    sigset_t none;
    sigset_t all;
    ::sigemptyset(&none);
    ::sigfillset(&all);
    // These two have no other handling, and may not be asked for.
    ::sigdelset(&all, SIGKILL);
    ::sigdelset(&all, SIGSTOP);
    ::posix_spawnattr_init(&attributes_);
    ::posix_spawnattr_setsigmask(&attributes_, &none);
    ::posix_spawnattr_setsigdefault(&attributes_, &all);
    ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }

  ~Attributes() { ::posix_spawnattr_destroy(&attributes_); }

  Attributes(const Attributes&) = delete;
  Attributes& operator=(const Attributes&) = delete;

  const posix_spawnattr_t* Get() const noexcept { return &attributes_; }

 private:
  posix_spawnattr_t attributes_{};
};

/// The system has one word for most of what is wrong with a program; people deserve better.
HRESULT CheckProgram(const std::string& iPath, std::string& oCause) {
  VEL_RETURN_IF_FAILED(VelSystemError::CheckPath(iPath, oCause));
  struct stat status {};
  if (::stat(iPath.c_str(), &status) != 0) return VelSystemError::Fail(errno, oCause);
  if (S_ISDIR(status.st_mode)) return VelSystemError::Fail(EISDIR, oCause);
  if (::access(iPath.c_str(), X_OK) == 0) return S_OK;
  oCause = "may not be executed";
  return E_FAIL;
}

/// @return the signals that a line of a process's status tells, one bit each; none where there is no such line
unsigned long long SignalsOf(const std::string& iStatus, const std::string& iLine) {
  const std::size_t place = iStatus.find("\n" + iLine + ":");
  if (place == std::string::npos) return 0;
  constexpr int hexadecimal = 16;
  return std::strtoull(iStatus.c_str() + place + iLine.size() + 2, nullptr, hexadecimal);
}

std::string TextOfEnd(const siginfo_t& iInformation) {
  // The number is 0 where somebody else waited for the child, or where this process ignores that children end.
  if (iInformation.si_pid == 0) return "ended";
  if (iInformation.si_code == CLD_EXITED) return "ended with code " + std::to_string(iInformation.si_status);
  return "was ended by signal " + std::to_string(iInformation.si_status);
}

}  // namespace

VelSystemChild::~VelSystemChild() { Kill(); }

HRESULT VelSystemChild::Start(const std::string& iPath, const std::vector<std::string>& iArguments,
                              const VelSystemChannel& iChannel, Output iOutput, std::string& oCause) {
  Kill();
  handle_ = VelSystemDescriptor();
  end_.clear();
  VEL_RETURN_IF_FAILED(CheckProgram(iPath, oCause));
  // The system's call has no constant pointers, and does not write through them.
  std::vector<char*> words{const_cast<char*>(iPath.c_str())};
  for (const std::string& argument : iArguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  const Actions actions(iChannel.GetDescriptor(), iOutput);
  const Attributes attributes;
  int error = actions.Error();
  if (error == 0) {
    error = ::posix_spawn(&identifier_, iPath.c_str(), actions.Get(), attributes.Get(), words.data(), environ);
  }
  if (error == ENOEXEC) {
    oCause = "is not a program";
    return E_FAIL;
  }
  return error == 0 ? Watch(oCause) : VelSystemError::Fail(error, oCause);
}

HRESULT VelSystemChild::Watch(std::string& oCause) {
  owner_ = ::getpid();
  handle_ = VelSystemDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, identifier_, 0)));
  if (handle_.IsOpen()) return S_OK;
  const int error = errno;
  if (error == ESRCH) {
    oCause = "ended at once";
    return E_FAIL;
  }
  ::kill(identifier_, SIGKILL);
  ::waitpid(identifier_, nullptr, 0);
  return VelSystemError::Fail(error, oCause);
}

bool VelSystemChild::IsRunning() const noexcept { return handle_.IsOpen() && owner_ == ::getpid(); }

void VelSystemChild::Kill() noexcept {
  if (!IsRunning()) return;
  static_cast<void>(::syscall(SYS_pidfd_send_signal, handle_.Get(), SIGKILL, nullptr, 0));
  static_cast<void>(AwaitEnd(killMilliseconds));
}

bool VelSystemChild::IsDoomed() {
  if (AwaitEnd(0)) return true;
  constexpr std::size_t longestStatus = std::size_t{64} * 1024;
  constexpr unsigned long long killed = 1ULL << (SIGKILL - 1);
  std::string status;
  std::string ignored;
  const std::string path = "/proc/" + std::to_string(identifier_) + "/status";
  if (FAILED(VelSystemFile::ReadWholeFile(path, longestStatus, status, ignored))) return AwaitEnd(0);
  return ((SignalsOf(status, "SigPnd") | SignalsOf(status, "ShdPnd")) & killed) != 0;
}

bool VelSystemChild::AwaitEnd(int iTimeoutMilliseconds) noexcept {
  if (!IsRunning()) return true;
  const VelSystemDeadline deadline(iTimeoutMilliseconds);
  if (deadline.Await(handle_.Get(), POLLIN) == VelSystemDeadline::Outcome::TimeIsOver) return false;
  siginfo_t information{};
  // Fails where the child is out of the table already, which is as well.
  static_cast<void>(::waitid(P_PIDFD, static_cast<id_t>(handle_.Get()), &information, WEXITED | WNOHANG));
  handle_ = VelSystemDescriptor();
  end_ = TextOfEnd(information);
  return true;
}
