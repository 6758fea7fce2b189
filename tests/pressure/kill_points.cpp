#include "kill_points.h"

#include <signal.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ovl::testing {
namespace {

constexpr int kSystemCall = SIGTRAP | 0x80;

// Goes on to the next stop of the process; false when it has ended.
bool Next(pid_t process, int& status) {
  if (ptrace(PTRACE_SYSCALL, process, nullptr, nullptr) != 0) return false;
  return waitpid(process, &status, 0) == process && WIFSTOPPED(status);
}

void Kill(pid_t process) {
  int status = 0;
  kill(process, SIGKILL);
  waitpid(process, &status, 0);
}

}  // namespace

Stopped KillAtCall(int n, const std::function<void()>& work) {
  const pid_t process = fork();
  if (process == 0) {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(1);
    raise(SIGSTOP);
    work();
    _exit(0);
  }
  int status = 0;
  waitpid(process, &status, 0);
  if (!WIFSTOPPED(status)) return Stopped::kNotPossible;
  ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  bool inside = true;  // of the call that stopped it
  for (int calls = 0; Next(process, status);) {
    if (WSTOPSIG(status) != kSystemCall) continue;
    inside = !inside;
    if (inside || ++calls < n) continue;
    Kill(process);
    return Stopped::kKilled;
  }
  return Stopped::kRanToItsEnd;
}

}  // namespace ovl::testing
