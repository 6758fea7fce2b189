#include "recording.h"

#include <signal.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <set>
#include <system_error>

#include "host/files.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

constexpr int kSystemCall = SIGTRAP | 0x80;

class Recorder {
 public:
  explicit Recorder(const fs::path& folder) : folder_(folder) {
    Look();
    recording_.names = names_;
    recording_.content = content_;
    recording_.events.clear();
  }

  // After a system call.
  void Look() {
    seen_.clear();
    LookInto(folder_);
    std::error_code gone;
    for (const auto& entry : fs::recursive_directory_iterator(folder_, gone)) {
      if (entry.is_directory(gone)) LookInto(entry.path());
    }
    for (const auto inode : named_) {
      if (!seen_.contains(inode)) ids_.erase(inode);
    }
    named_ = seen_;
  }

  void Flushed(pid_t process, std::uint64_t descriptor) {
    const auto link = fs::path("/proc") / std::to_string(process) / "fd" / std::to_string(descriptor);
    struct stat status {};
    if (::stat(link.c_str(), &status) != 0) return;
    if (S_ISDIR(status.st_mode)) {
      recording_.events.emplace_back(FolderFlushed{fs::canonical(link).string()});
    } else if (S_ISREG(status.st_mode)) {
      recording_.events.emplace_back(FileFlushed{IdOf(status.st_ino), host::ReadFile(link.string())});
    }
  }

  Recording Finished(bool done) {
    recording_.done = done;
    return std::move(recording_);
  }

 private:
  FileId IdOf(ino_t inode) {
    const auto [known, is_new] = ids_.emplace(inode, next_);
    if (is_new) ++next_;
    return known->second;
  }

  void LookInto(const fs::path& folder) {
    Names names;
    std::error_code gone;
    for (const auto& entry : fs::directory_iterator(folder, gone)) {
      struct stat status {};
      if (::lstat(entry.path().c_str(), &status) != 0 || !S_ISREG(status.st_mode)) continue;
      seen_.insert(status.st_ino);
      const auto id = IdOf(status.st_ino);
      names.emplace(entry.path().filename().string(), id);
      auto bytes = host::ReadFile(entry.path().string());
      const auto known = content_.find(id);
      if (known != content_.end() && known->second == bytes) continue;
      content_[id] = bytes;
      recording_.events.emplace_back(ContentChanged{id, std::move(bytes)});
    }
    const auto path = fs::canonical(folder, gone).string();
    if (gone || (names_.contains(path) && names_[path] == names)) return;
    names_[path] = names;
    recording_.events.emplace_back(NamesChanged{path, std::move(names)});
  }

  fs::path folder_;
  std::map<std::string, Names> names_;
  std::map<FileId, std::string> content_;
  std::map<ino_t, FileId> ids_;
  std::set<ino_t> named_, seen_;
  FileId next_ = 0;
  Recording recording_;
};

[[noreturn]] void Fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

struct Call {
  std::uint64_t number = 0;
  std::uint64_t descriptor = 0;
};

// A process stopped at a system call: before it the call is noted, after it the recorder looks.
void AtCall(pid_t process, std::map<pid_t, Call>& calls, Recorder& recorder) {
  struct __ptrace_syscall_info info {};
  if (ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof info, &info) <= 0) Fail("PTRACE_GET_SYSCALL_INFO");
  if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
    calls[process] = {info.entry.nr, info.entry.args[0]};
    return;
  }
  if (info.op != PTRACE_SYSCALL_INFO_EXIT) return;
  recorder.Look();
  const auto& call = calls[process];
  const bool is_flush = call.number == SYS_fsync || call.number == SYS_fdatasync;
  if (is_flush && info.exit.rval == 0) recorder.Flushed(process, call.descriptor);
}

// Follows the process and its children to their ends. Returns whether the process itself ended with status 0.
bool Follow(pid_t first, Recorder& recorder) {
  std::map<pid_t, Call> calls;
  bool done = false;
  int status = 0;
  for (pid_t process = 0; (process = waitpid(-1, &status, __WALL)) > 0;) {
    if (!WIFSTOPPED(status)) {
      if (process == first) done = WIFEXITED(status) && WEXITSTATUS(status) == 0;
      continue;
    }
    const int signal = WSTOPSIG(status);
    if (signal == kSystemCall) AtCall(process, calls, recorder);
    const bool is_ours = signal == kSystemCall || signal == SIGTRAP || signal == SIGSTOP;
    ptrace(PTRACE_SYSCALL, process, nullptr, is_ours ? 0 : signal);
  }
  return done;
}

}  // namespace

Recording Record(const fs::path& folder, const std::function<bool()>& act) {
  Recorder recorder(folder);
  const pid_t process = fork();
  if (process < 0) Fail("fork");
  if (process == 0) {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(2);
    raise(SIGSTOP);
    _exit(act() ? 0 : 1);
  }
  int status = 0;
  if (waitpid(process, &status, 0) != process || !WIFSTOPPED(status)) Fail("PTRACE_TRACEME");
  constexpr long kOptions = PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL | PTRACE_O_TRACEFORK |
                            PTRACE_O_TRACEVFORK | PTRACE_O_TRACECLONE;
  ptrace(PTRACE_SETOPTIONS, process, nullptr, kOptions);
  ptrace(PTRACE_SYSCALL, process, nullptr, nullptr);
  return recorder.Finished(Follow(process, recorder));
}

}  // namespace ovl::testing
