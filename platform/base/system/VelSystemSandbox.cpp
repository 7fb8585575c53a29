// SPDX-FileCopyrightText: 2026 The VelRshModel authors
// SPDX-License-Identifier: Apache-2.0
/// @file VelSystemSandbox.cpp Lists the system calls that a confined process may make.
#include "platform/base/system/VelSystemSandbox.h"

#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <type_traits>

#include "platform/base/system/VelSystemError.h"

namespace {

using Filter = std::unique_ptr<std::remove_pointer_t<scmp_filter_ctx>, decltype(&seccomp_release)>;

// Memory, threads, clocks, what the process is told of itself, and its open files. A call that an architecture does not
// have has a negative number there, which the library takes.
constexpr int allowedCalls[] = {
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(sigaltstack),
    SCMP_SYS(brk),
    SCMP_SYS(munmap),
    SCMP_SYS(mremap),
    SCMP_SYS(madvise),
    SCMP_SYS(futex),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(rseq),
    SCMP_SYS(membarrier),
    SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(getrandom),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_getres),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(time),
    SCMP_SYS(nanosleep),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(getpid),
    SCMP_SYS(gettid),
    SCMP_SYS(getrusage),
    SCMP_SYS(sysinfo),
    SCMP_SYS(uname),
    SCMP_SYS(pread64),
    SCMP_SYS(lseek),
    SCMP_SYS(fstat),
    SCMP_SYS(write),
    SCMP_SYS(writev),
    SCMP_SYS(close),
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(eventfd2),
    SCMP_SYS(memfd_create),
    SCMP_SYS(ftruncate),
    SCMP_SYS(sendmsg),
};

// A sanitizer tries memory by writing it into a pipe.
constexpr int sanitizerCalls[] = {SCMP_SYS(pipe), SCMP_SYS(pipe2)};

constexpr int allowedFileCommands[] = {F_GETFD, F_SETFD, F_GETFL, F_ADD_SEALS, F_GET_SEALS};

// Libraries look for files that they can do without, and take this answer better than any other.
constexpr int refusedPathCalls[] = {
    SCMP_SYS(open),       SCMP_SYS(openat), SCMP_SYS(openat2),  SCMP_SYS(stat),       SCMP_SYS(lstat),
    SCMP_SYS(newfstatat), SCMP_SYS(statx),  SCMP_SYS(readlink), SCMP_SYS(readlinkat),
};

// Libraries ask whether a file may be read before they use what they have of it in memory. All are told yes, and nobody
// looks.
constexpr int confirmedPathCalls[] = {SCMP_SYS(access), SCMP_SYS(faccessat), SCMP_SYS(faccessat2)};

/// Collects the rules; the first that is refused counts.
class Rules {
 public:
  explicit Rules(scmp_filter_ctx iFilter) noexcept : filter_(iFilter) {}

  int Error() const noexcept { return error_; }

  void Add(std::uint32_t iAction, int iCall) noexcept {
    Note(seccomp_rule_add_array(filter_, iAction, iCall, 0, nullptr));
  }

  void AllowIf(int iCall, const scmp_arg_cmp& iCondition) noexcept {
    Note(seccomp_rule_add_array(filter_, SCMP_ACT_ALLOW, iCall, 1, &iCondition));
  }

 private:
  void Note(int iCode) noexcept {
    if (error_ == 0) error_ = -iCode;
  }

  scmp_filter_ctx filter_;
  int error_ = 0;
};

scmp_arg_cmp HasBits(unsigned iArgument, scmp_datum_t iMask, scmp_datum_t iBits) noexcept {
  return {iArgument, SCMP_CMP_MASKED_EQ, iMask, iBits};
}

void AddRules(Rules& ioRules, int iChannel) noexcept {
  for (const int call : allowedCalls) ioRules.Add(SCMP_ACT_ALLOW, call);
  if (VelSystemSandbox::isSanitized) {
    for (const int call : sanitizerCalls) ioRules.Add(SCMP_ACT_ALLOW, call);
  }
  for (const int call : refusedPathCalls) ioRules.Add(SCMP_ACT_ERRNO(EACCES), call);
  for (const int call : confirmedPathCalls) ioRules.Add(SCMP_ACT_ERRNO(0), call);
  // What comes through the channel is for the parent.
  ioRules.AllowIf(SCMP_SYS(read), {0, SCMP_CMP_NE, static_cast<scmp_datum_t>(iChannel), 0});
  // No memory becomes code.
  ioRules.AllowIf(SCMP_SYS(mmap), HasBits(2, PROT_EXEC, 0));
  ioRules.AllowIf(SCMP_SYS(mprotect), HasBits(2, PROT_EXEC, 0));
  for (const int command : allowedFileCommands) {
    ioRules.AllowIf(SCMP_SYS(fcntl), {1, SCMP_CMP_EQ, static_cast<scmp_datum_t>(command), 0});
  }
  // Threads, but no processes. The newer call has its flags where no filter sees them; libraries go on with the older.
  ioRules.AllowIf(SCMP_SYS(clone), HasBits(0, CLONE_THREAD, CLONE_THREAD));
  ioRules.Add(SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3));
  // Reading a limit, not setting it.
  ioRules.AllowIf(SCMP_SYS(prlimit64), {2, SCMP_CMP_EQ, 0, 0});
  // Its own end by abort.
  ioRules.AllowIf(SCMP_SYS(tgkill), {0, SCMP_CMP_EQ, static_cast<scmp_datum_t>(::getpid()), 0});
}

HRESULT RefuseFilter(int iError, std::string& oCause) {
  oCause = "the system does not filter the calls of a process: " + VelSystemError::CauseOf(iError);
  return E_FAIL;
}

HRESULT SetLimit(__rlimit_resource_t iResource, rlim_t iSoft, rlim_t iHard, const char* iName, std::string& oCause) {
  const rlimit limit{iSoft, iHard};
  if (::setrlimit(iResource, &limit) == 0) return S_OK;
  oCause = std::string("the system does not limit the ") + iName + " of a process: " + VelSystemError::CauseOf(errno);
  return E_FAIL;
}

}  // namespace

HRESULT VelSystemSandbox::DieWithParent(std::string& oCause) {
  return ::prctl(PR_SET_PDEATHSIG, SIGKILL) == 0 ? S_OK : VelSystemError::Fail(errno, oCause);
}

void VelSystemSandbox::CloseFrom(int iFirst) noexcept { ::closefrom(iFirst); }

HRESULT VelSystemSandbox::Limit(const Limits& iLimits, std::string& oCause) {
  const rlim_t memory = iLimits.memory == 0 ? RLIM_INFINITY : iLimits.memory;
  VEL_RETURN_IF_FAILED(SetLimit(RLIMIT_AS, memory, memory, "memory", oCause));
  // The first limit has a signal that tells what happened, the second has none.
  VEL_RETURN_IF_FAILED(
      SetLimit(RLIMIT_CPU, iLimits.processorSeconds, iLimits.processorSeconds + 1, "processor time", oCause));
  // Who asks for more is told, and not ended.
  ::signal(SIGXFSZ, SIG_IGN);
  VEL_RETURN_IF_FAILED(SetLimit(RLIMIT_FSIZE, iLimits.fileSize, iLimits.fileSize, "file size", oCause));
  VEL_RETURN_IF_FAILED(SetLimit(RLIMIT_NOFILE, iLimits.descriptors, iLimits.descriptors, "open files", oCause));
  return SetLimit(RLIMIT_CORE, 0, 0, "core files", oCause);
}

HRESULT VelSystemSandbox::Enter(int iChannel, std::string& oCause) {
  if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return RefuseFilter(errno, oCause);
  const Filter filter(seccomp_init(SCMP_ACT_ERRNO(EPERM)), &seccomp_release);
  if (filter == nullptr) return RefuseFilter(ENOMEM, oCause);
  if (const int code = seccomp_attr_set(filter.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS); code != 0) {
    return RefuseFilter(-code, oCause);
  }
  Rules rules(filter.get());
  AddRules(rules, iChannel);
  if (rules.Error() != 0) return RefuseFilter(rules.Error(), oCause);
  const int code = seccomp_load(filter.get());
  return code == 0 ? S_OK : RefuseFilter(-code, oCause);
}
