// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemFork.cpp Watches the copy through a pipe, whose other end closes when the copy ends.
#include "platform/base/system/VelSystemFork.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <exception>
#include <new>

#include "platform/base/system/VelSystemDeadline.h"
#include "platform/base/system/VelSystemDescriptor.h"
#include "platform/base/system/VelSystemError.h"
#include "platform/base/system/VelSystemSandbox.h"

namespace {

constexpr int thrownCode = 70;
constexpr int memoryCode = 71;
constexpr std::size_t keptLetters = 4096;

int CallFunction(const std::function<int()>& iFunction) noexcept {
  try {
    return iFunction();
  } catch (const std::bad_alloc&) {
    return memoryCode;
  } catch (const std::exception&) {
    return thrownCode;
  }
}

[[noreturn]] void RunInChild(const std::function<int()>& iFunction, int iPipe) noexcept {
  std::string cause;
  const bool isBound = SUCCEEDED(VelSystemSandbox::DieWithParent(cause)) && ::dup2(iPipe, STDERR_FILENO) >= 0;
  ::close(iPipe);
  // No destructor runs and no buffer is written: they are the parent's.
  ::_exit(isBound ? CallFunction(iFunction) : thrownCode);
}

/// Reads until the other end is closed.
/// @return false when the time was over before
bool ReadToEnd(int iPipe, const VelSystemDeadline& iDeadline, std::string& oSaid) {
  std::array<char, 1024> letters{};
  while (iDeadline.Await(iPipe, POLLIN) != VelSystemDeadline::Outcome::TimeIsOver) {
    const ssize_t count = ::read(iPipe, letters.data(), letters.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return true;
    if (oSaid.size() < keptLetters) oSaid.append(letters.data(), static_cast<std::size_t>(count));
    if (iDeadline.Remaining() == 0) break;
  }
  return false;
}

/// Libraries that cannot do without memory say so, and abort.
bool TellsOfMemory(const std::string& iSaid) { return iSaid.find("alloc") != std::string::npos; }

VelSystemFork::Outcome OutcomeOf(int iStatus, bool iIsInTime, const std::string& iSaid) {
  using End = VelSystemFork::End;
  if (!iIsInTime) return {End::TimeIsOver, SIGKILL};
  if (WIFEXITED(iStatus)) {
    const int code = WEXITSTATUS(iStatus);
    if (code == 0) return {End::Done, 0};
    return {code == memoryCode ? End::MemoryIsOver : End::Failed, code};
  }
  const int signal = WTERMSIG(iStatus);
  if (signal == SIGXCPU) return {End::TimeIsOver, signal};
  return {TellsOfMemory(iSaid) ? End::MemoryIsOver : End::Signal, signal};
}

}  // namespace

HRESULT VelSystemFork::Run(const std::function<int()>& iFunction, int iTimeoutMilliseconds, Outcome& oOutcome,
                           std::string& oCause) {
  // Whoever started this program may have had it ignore how its children end.
  ::signal(SIGCHLD, SIG_DFL);
  int ends[2] = {-1, -1};
  if (::pipe2(ends, O_CLOEXEC) != 0) return VelSystemError::Fail(errno, oCause);
  const VelSystemDescriptor reading(ends[0]);
  VelSystemDescriptor writing(ends[1]);
  const pid_t child = ::fork();
  if (child < 0) return VelSystemError::Fail(errno, oCause);
  if (child == 0) {
    ::close(ends[0]);
    RunInChild(iFunction, writing.Release());
  }
  { const VelSystemDescriptor closing(writing.Release()); }
  std::string said;
  const bool isInTime = ReadToEnd(reading.Get(), VelSystemDeadline(iTimeoutMilliseconds), said);
  // Whoever closed the pipe and goes on is not to be waited for.
  ::kill(child, SIGKILL);
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
  oOutcome = OutcomeOf(status, isInTime, said);
  return S_OK;
}
