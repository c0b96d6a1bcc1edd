/// Runs a piece of a test in a child process, for what can't be undone in this one: another user, a refused system
/// call.
#pragma once

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstddef>
#include <functional>

namespace child {

/// The exit code of @p body, which runs in a fork of this process with @p folder as its working folder; -1 if it died.
inline int run(const char* folder, const std::function<int()>& body) {
  const pid_t pid = ::fork();
  if (pid == 0) ::_exit(::chdir(folder) == 0 ? body() : 127);
  int status = 0;
  if (pid < 0 || ::waitpid(pid, &status, 0) != pid || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

/// For a QProcess's child process modifier: the child ends when the thread that started it does, however that ends.
inline void dieWithParent() { ::prctl(PR_SET_PDEATHSIG, SIGKILL); }

/// Makes this process a user without rights, if it is root's. False on failure.
inline bool dropRights() {
  constexpr uid_t kNobody = 65534;
  return ::geteuid() != 0 ||
         (::setresgid(kNobody, kNobody, kNobody) == 0 && ::setresuid(kNobody, kNobody, kNobody) == 0);
}

/// From now on every system call of that number fails with @p error in this process. False where the system can't.
inline bool refuse(unsigned call, unsigned error) {
  sock_filter filter[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  };
  const sock_fprog program = {static_cast<unsigned short>(std::size(filter)), filter};
  return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

} // namespace child
