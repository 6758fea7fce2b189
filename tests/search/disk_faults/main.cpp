// Every file that the program writes, under everything that can stand in its way, and with the process killed
// at each of its calls of the system. Prints a row for each; the exit status tells whether all were right.
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

#include "pressures.h"

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

bool Print(const Act& act, const std::string& pressure, const Row& row) {
  constexpr std::array kVerdicts{"right", "WRONG", "not possible here"};
  std::printf("%-14s %-22s %-18s %s\n", act.name.c_str(), pressure.c_str(),
              kVerdicts.at(static_cast<std::size_t>(row.verdict)), row.outcome.c_str());
  std::fflush(stdout);
  return row.verdict != Row::Verdict::kWrong;
}

// What stands in a folder, whatever it is: names with kinds, targets of links, contents of files.
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

// A folder in which the act's file stands as it was before.
class Place {
 public:
  explicit Place(const Act& act) : act_(act), file_(folder_.Path() / act.file) {
    fs::create_directories(file_.parent_path());
    std::ofstream(file_, std::ios::binary) << act.before;
  }
  // So that a folder that was made read-only can be removed.
  ~Place() {
    std::error_code ignored;
    fs::permissions(file_.parent_path(), fs::perms::owner_all, ignored);
  }
  Place(const Place&) = delete;
  Place& operator=(const Place&) = delete;
  Told Run(const fs::path& file) const { return act_.run(folder_.Path().string(), file.string()); }
  Told Run() const { return Run(file_); }
  const fs::path& File() const { return file_; }

 private:
  const Act& act_;
  TemporaryFolder folder_;
  fs::path file_;
};

// What was told, short and without the folder, which has another name each time.
std::string Shortened(std::string text, const std::string& folder = {}) {
  constexpr std::size_t kLongest = 80;
  if (const auto at = text.find(folder); at != std::string::npos) text.erase(at, folder.size());
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text.size() <= kLongest ? text : text.substr(0, kLongest) + "...";
}

// In a process of its own, since a pressure may lie on the process.
Row UnderPressure(const Pressure& pressure, const Place& place, const std::string& after) {
  if (!pressure.apply(place.File())) return kNotHere;
  const auto folder = place.File().parent_path();
  const auto file = pressure.file_name.empty() ? place.File() : folder / pressure.file_name;
  const auto before = Contents(folder);
  const auto told = place.Run(file);
  bool kept = Contents(folder) == before;
  if (pressure.written)
    kept = ReadFile(file.string()) == after && Contents(folder).size() <= before.size() + 1;
  return Judged(told.done == pressure.written && kept && told.right,
                std::string(told.done ? "written" : "refused") + (kept ? "" : ", NOT WHOLE") +
                    (told.right ? ": " : ", WRONGLY TOLD: ") + Shortened(told.words, folder.string() + "/"));
}

// The child tells its row through a pipe.
Row Forked(const std::function<Row()>& work) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return kNotHere;
  const pid_t process = fork();
  if (process == 0) {
    const auto row = work();
    const auto told = static_cast<char>(row.verdict) + row.outcome;
    _exit(write(ends[1], told.data(), told.size()) > 0 ? 0 : 1);
  }
  int status = 0;
  waitpid(process, &status, 0);
  close(ends[1]);
  std::array<char, 4096> told{};
  const auto size = read(ends[0], told.data(), told.size());
  close(ends[0]);
  if (status != 0 || size < 1) return Judged(false, "the process ended");
  return {static_cast<Row::Verdict>(told[0]), std::string(&told[1], static_cast<std::size_t>(size - 1))};
}

bool IsWhole(const Act& act, const std::string& content, const std::string& after) {
  return content == act.before || content == after || std::ranges::count(act.between, content) > 0;
}

// Runs the act in a process of its own, which never comes to its n-th call, counted from 1. Whether it was
// killed before its end; nothing if that is not possible here.
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

// Meanwhile another process looks at the file and removes it, over and over.
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
  bool whole = true;
  while (waitpid(writer, &status, WNOHANG) == 0) {
    std::ifstream file(place.File(), std::ios::binary);
    if (!file) continue;
    whole = IsWhole(act, std::string(std::istreambuf_iterator<char>(file), {}), after) && whole;
    std::error_code error;
    if (fs::remove(place.File(), error)) ++seen;
  }
  if (!whole || status != 0) return Judged(false, whole ? "wrongly told" : "seen in parts");
  return Judged(true, "whole each of the " + std::to_string(seen) + " times it was removed");
}

// What the act leaves in the file when nothing is in its way.
std::string ContentAfter(const Act& act) {
  const Place place(act);
  Forked([&] { return Judged(place.Run().done, ""); });
  return ReadFile(place.File().string());
}

bool CheckAct(const Act& act) {
  const auto after = ContentAfter(act);
  bool right = after != act.before;
  for (const auto& pressure : AllPressures()) {
    if (!pressure.for_stores && !act.between.empty()) continue;
    if (!pressure.file_name.empty() && !act.any_name) continue;
    const Place place(act);
    right = Print(act, pressure.name, Forked([&] { return UnderPressure(pressure, place, after); })) && right;
  }
  right = Print(act, "removed meanwhile", RemovedMeanwhile(act, after)) && right;
  return Print(act, "killed at every call", KilledEverywhere(act, after)) && right;
}

// What a script prints must not get lost in silence.
bool CheckOutput() {
  const auto told = PrintTo("/dev/full");
  return Print({"script output", {}, false, {}, {}}, "full file system",
               Judged(!told.done && told.right, Shortened(told.words)));
}

int CheckAll() {
  // Whoever a row's process becomes can read what was made beforehand.
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
