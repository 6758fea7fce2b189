// Writes every file of the program with each obstacle in its way, and with the process killed at each of its
// system calls. Prints a row for each. The exit status is 0 if all results are right.
//   ovl-disk-faults
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <map>

#include "obstacles.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

struct Row {
  enum class Verdict : char { kRight, kWrong, kNotPossible };
  Verdict verdict = Verdict::kRight;
  std::string outcome;
};
const Row kNotHere{Row::Verdict::kNotPossible, {}};

Row Judged(bool right, const std::string& outcome) {
  return {right ? Row::Verdict::kRight : Row::Verdict::kWrong, outcome};
}

bool Print(const Act& act, const std::string& obstacle, const Row& row) {
  constexpr std::array kVerdicts{"right", "WRONG", "not possible here"};
  std::printf("%-14s %-22s %-18s %s\n", act.name.c_str(), obstacle.c_str(),
              kVerdicts.at(static_cast<std::size_t>(row.verdict)), row.outcome.c_str());
  std::fflush(stdout);
  return row.verdict != Row::Verdict::kWrong;
}

// The names in a folder, each with its kind, the target of a link, or the content of a file.
std::map<std::string, std::string> Contents(const fs::path& folder) {
  std::map<std::string, std::string> found;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    const auto path = entry.path();
    found[path.filename().string()] = entry.is_symlink() ? "link to " + fs::read_symlink(path).string()
                                      : entry.is_regular_file(error) ? ReadFile(path.string())
                                      : entry.is_directory()         ? "folder"
                                                                     : "neither file nor folder";
  }
  return found;
}

// A folder with the file of the act as it is before the act.
class Place {
 public:
  explicit Place(const Act& act) : act_(act), file_(folder_.Path() / act.file) {
    fs::create_directories(file_.parent_path());
    std::ofstream(file_, std::ios::binary) << act.before;
  }
  // Otherwise a read-only folder could not be removed.
  ~Place() {
    std::error_code ignored;
    fs::permissions(file_.parent_path(), fs::perms::owner_all, ignored);
  }
  Place(const Place&) = delete;
  Place& operator=(const Place&) = delete;
  Result Run(const fs::path& file) const { return act_.run(folder_.Path().string(), file.string()); }
  Result Run() const { return Run(file_); }
  const fs::path& File() const { return file_; }

 private:
  const Act& act_;
  TemporaryFolder folder_;
  fs::path file_;
};

// The report, short and without the folder, which has another name each time.
std::string Shortened(std::string text, const std::string& folder = {}) {
  constexpr std::size_t kLongest = 80;
  if (const auto at = text.find(folder); at != std::string::npos) text.erase(at, folder.size());
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text.size() <= kLongest ? text : text.substr(0, kLongest) + "...";
}

// Runs in a process of its own, because an obstacle may change the process.
Row WithObstacle(const Obstacle& obstacle, const Place& place, const std::string& after) {
  if (!obstacle.apply(place.File())) return kNotHere;
  const auto folder = place.File().parent_path();
  const auto file = obstacle.file_name.empty() ? place.File() : folder / obstacle.file_name;
  const auto before = Contents(folder);
  const auto result = place.Run(file);
  bool kept = Contents(folder) == before;
  if (obstacle.written)
    kept = ReadFile(file.string()) == after && Contents(folder).size() <= before.size() + 1;
  return Judged(result.done == obstacle.written && kept && result.right,
                std::string(result.done ? "written" : "refused") + (kept ? "" : ", NOT WHOLE") +
                    (result.right ? ": " : ", WRONG REPORT: ") +
                    Shortened(result.report, folder.string() + "/"));
}

// The child sends its row through a pipe.
Row Forked(const std::function<Row()>& work) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return kNotHere;
  const pid_t process = fork();
  if (process == 0) {
    const auto row = work();
    const auto text = static_cast<char>(row.verdict) + row.outcome;
    _exit(write(ends[1], text.data(), text.size()) > 0 ? 0 : 1);
  }
  int status = 0;
  waitpid(process, &status, 0);
  close(ends[1]);
  std::array<char, 4096> text{};
  const auto size = read(ends[0], text.data(), text.size());
  close(ends[0]);
  if (status != 0 || size < 1) return Judged(false, "the process ended");
  return {static_cast<Row::Verdict>(text[0]), std::string(&text[1], static_cast<std::size_t>(size - 1))};
}

bool IsWhole(const Act& act, const std::string& content, const std::string& after) {
  return content == act.before || content == after || std::ranges::count(act.between, content) > 0;
}

// Runs the act in a process of its own and kills it before its n-th system call, counted from 1. Returns
// whether the process was killed before its end, or nothing if that is not possible here.
std::optional<bool> KillAtCall(int n, const Place& place) {
  constexpr int kSystemCall = SIGTRAP | 0x80;
  const pid_t process = fork();
  if (process == 0) {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(1);
    raise(SIGSTOP);
    place.Run();
    _exit(0);
  }
  int status = 0;
  waitpid(process, &status, 0);
  if (!WIFSTOPPED(status)) return std::nullopt;
  ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  bool inside = true;  // of the call that stopped it
  for (int calls = 0; calls < n;) {
    ptrace(PTRACE_SYSCALL, process, nullptr, nullptr);
    if (waitpid(process, &status, 0) != process || !WIFSTOPPED(status)) return false;
    if (WSTOPSIG(status) != kSystemCall) continue;
    inside = !inside;
    if (!inside) ++calls;
  }
  kill(process, SIGKILL);
  waitpid(process, &status, 0);
  return true;
}

Row KilledEverywhere(const Act& act, const std::string& after) {
  int old_file = 0, new_file = 0;
  for (int n = 1;; ++n) {
    const Place place(act);
    const auto killed = KillAtCall(n, place);
    if (!killed) return kNotHere;
    const auto content = ReadFile(place.File().string());
    if (!IsWhole(act, content, after)) return Judged(false, "torn at call " + std::to_string(n));
    if (!*killed) break;
    ++(content == act.before ? old_file : new_file);
  }
  return Judged(true, "whole at each of " + std::to_string(old_file + new_file) + " calls, old at " +
                          std::to_string(old_file) + ", new at " + std::to_string(new_file));
}

// Another process reads and removes the file again and again during the writes.
Row RemovedMeanwhile(const Act& act, const std::string& after) {
  constexpr int kTimes = 20;
  const Place place(act);
  const pid_t writer = fork();
  if (writer == 0) {
    bool right = true;
    for (int time = 0; time < kTimes; ++time)
      right = Forked([&] { return Judged(place.Run().right, ""); }).verdict == Row::Verdict::kRight && right;
    _exit(right ? 0 : 1);
  }
  int status = 0, seen = 0;
  std::optional<std::string> part;
  while (waitpid(writer, &status, WNOHANG) == 0) {
    std::ifstream file(place.File(), std::ios::binary);
    if (!file) continue;
    const std::string content(std::istreambuf_iterator<char>(file), {});
    if (!IsWhole(act, content, after)) part = content;
    std::error_code error;
    if (fs::remove(place.File(), error)) ++seen;
  }
  if (part) return Judged(false, "seen in parts: \"" + *part + "\"");
  if (status != 0) return Judged(false, "wrong report");
  return Judged(true, "whole each of the " + std::to_string(seen) + " times it was removed");
}

// The content of the file after the act without an obstacle.
std::string ContentAfter(const Act& act) {
  const Place place(act);
  Forked([&] { return Judged(place.Run().done, ""); });
  return ReadFile(place.File().string());
}

bool CheckAct(const Act& act) {
  const auto after = ContentAfter(act);
  bool right = after != act.before;
  for (const auto& obstacle : AllObstacles()) {
    if (!obstacle.for_stores && !act.between.empty()) continue;
    if (!obstacle.file_name.empty() && !act.any_name) continue;
    const Place place(act);
    right = Print(act, obstacle.name, Forked([&] { return WithObstacle(obstacle, place, after); })) && right;
  }
  right = Print(act, "removed meanwhile", RemovedMeanwhile(act, after)) && right;
  return Print(act, "killed at every call", KilledEverywhere(act, after)) && right;
}

// A script must report that its output was lost.
bool CheckOutput() {
  const auto result = PrintTo("/dev/full");
  return Print({"script output", {}, false, {}, {}}, "full file system",
               Judged(!result.done && result.right, Shortened(result.report)));
}

int CheckAll() {
  // The ordinary user of a row can read what was made before.
  umask(S_IWGRP | S_IWOTH);
  bool right = CheckOutput();
  for (const auto& act : AllActs()) right = CheckAct(act) && right;
  return right ? 0 : 1;
}

}  // namespace
}  // namespace ovl::testing

int main() {
  return ovl::testing::CheckAll();
}
