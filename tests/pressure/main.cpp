// Every file that the program writes, under everything that can stand in its way, and with the process killed
// at each of its calls of the system. Prints a row for each; the exit status tells whether all were right.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <map>

#include "acts.h"
#include "image/files.h"
#include "kill_points.h"
#include "pressures.h"

namespace {

namespace fs = std::filesystem;

using ovl::testing::Act;
using ovl::testing::End;
using ovl::testing::Pressure;
using ovl::testing::Stopped;
using ovl::testing::TemporaryFolder;

constexpr std::size_t kLongestOutcome = 80;

struct Row {
  enum class Verdict { kRight, kWrong, kNotPossible };
  Verdict verdict = Verdict::kRight;
  std::string outcome;
};

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
    auto& told = found[entry.path().filename().string()];
    if (entry.is_symlink()) {
      told = "link to " + fs::read_symlink(entry.path()).string();
    } else if (entry.is_regular_file(error)) {
      told = ovl::ReadWhole(entry.path().string());
    } else {
      told = entry.is_directory() ? "folder" : "neither file nor folder";
    }
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
  ovl::testing::Told Run(const fs::path& file) const {
    return act_.run(folder_.Path().string(), file.string());
  }
  const fs::path& File() const { return file_; }

 private:
  const Act& act_;
  TemporaryFolder folder_;
  fs::path file_;
};

// What was told, short and without the folder, which has another name each time.
std::string Shortened(std::string text, const std::string& folder = {}) {
  if (const auto at = text.find(folder); at != std::string::npos) text.erase(at, folder.size());
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text.size() <= kLongestOutcome ? text : text.substr(0, kLongestOutcome) + "...";
}

// In a process of its own, since a pressure may lie on the process.
Row UnderPressure(const Pressure& pressure, const Place& place, const std::string& after) {
  if (!pressure.apply(place.File())) return {Row::Verdict::kNotPossible, {}};
  const auto folder = place.File().parent_path();
  const auto file = pressure.file_name.empty() ? place.File() : folder / pressure.file_name;
  const auto before = Contents(folder);
  const auto told = place.Run(file);
  const bool written = pressure.end == End::kWritten;
  bool kept = Contents(folder) == before;
  if (written) kept = ovl::ReadWhole(file.string()) == after && Contents(folder).size() <= before.size() + 1;
  Row row;
  row.outcome = std::string(told.done ? "written" : "refused") + (kept ? "" : ", NOT WHOLE") +
                (told.right ? ": " : ", WRONGLY TOLD: ") + Shortened(told.words, folder.string() + "/");
  if (told.done != written || !kept || !told.right) row.verdict = Row::Verdict::kWrong;
  return row;
}

// The child's verdict is its exit status, its outcome comes through a pipe.
Row Forked(const std::function<Row()>& work) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return {Row::Verdict::kNotPossible, "no pipe"};
  const pid_t process = fork();
  if (process == 0) {
    const auto row = work();
    const bool sent = write(ends[1], row.outcome.data(), row.outcome.size()) >= 0;
    _exit(sent ? static_cast<int>(row.verdict) : static_cast<int>(Row::Verdict::kWrong));
  }
  close(ends[1]);
  Row row;
  std::array<char, 256> part{};
  for (ssize_t size = 0; (size = read(ends[0], part.data(), part.size())) > 0;) {
    row.outcome.append(part.data(), static_cast<std::size_t>(size));
  }
  close(ends[0]);
  int status = 0;
  waitpid(process, &status, 0);
  if (!WIFEXITED(status) || WEXITSTATUS(status) > static_cast<int>(Row::Verdict::kNotPossible)) {
    return {Row::Verdict::kWrong, "the process ended: " + row.outcome};
  }
  row.verdict = static_cast<Row::Verdict>(WEXITSTATUS(status));
  return row;
}

bool IsWhole(const Act& act, const std::string& content, const std::string& after) {
  bool whole = content == act.before || content == after;
  for (const auto& between : act.between) whole = whole || content == between;
  return whole;
}

Row KilledEverywhere(const Act& act, const std::string& after) {
  int old_file = 0;
  int new_file = 0;
  for (int n = 1;; ++n) {
    const Place place(act);
    const auto stopped = ovl::testing::KillAtCall(n, [&] { place.Run(place.File()); });
    if (stopped == Stopped::kNotPossible) return {Row::Verdict::kNotPossible, {}};
    const auto content = ovl::ReadWhole(place.File().string());
    if (!IsWhole(act, content, after)) return {Row::Verdict::kWrong, "torn at call " + std::to_string(n)};
    if (stopped == Stopped::kRanToItsEnd) break;
    ++(content == act.before ? old_file : new_file);
  }
  return {Row::Verdict::kRight, "whole at each of " + std::to_string(old_file + new_file) +
                                    " calls, old at " + std::to_string(old_file) + ", new at " +
                                    std::to_string(new_file)};
}

// Meanwhile another process looks at the file and removes it, over and over.
Row RemovedMeanwhile(const Act& act, const std::string& after) {
  constexpr int kTimes = 20;
  const Place place(act);
  const pid_t writer = fork();
  if (writer == 0) {
    for (int time = 0; time < kTimes; ++time) {
      const pid_t once = fork();
      if (once == 0) _exit(place.Run(place.File()).right ? 0 : 1);
      int status = 0;
      waitpid(once, &status, 0);
      if (status != 0) _exit(1);
    }
    _exit(0);
  }
  int status = 0;
  int seen = 0;
  bool whole = true;
  while (waitpid(writer, &status, WNOHANG) == 0) {
    std::ifstream file(place.File(), std::ios::binary);
    if (!file) continue;
    const std::string content(std::istreambuf_iterator<char>(file), {});
    whole = whole && IsWhole(act, content, after);
    std::error_code error;
    if (fs::remove(place.File(), error)) ++seen;
  }
  Row row{Row::Verdict::kRight, "whole each of the " + std::to_string(seen) + " times it was removed"};
  if (!whole || status != 0) row = {Row::Verdict::kWrong, whole ? "wrongly told" : "seen in parts"};
  return row;
}

// What the act leaves in the file when nothing is in its way.
std::string ContentAfter(const Act& act) {
  const Place place(act);
  Forked([&] {
    place.Run(place.File());
    return Row();
  });
  return ovl::ReadWhole(place.File().string());
}

bool CheckAct(const Act& act) {
  const auto after = ContentAfter(act);
  bool right = after != act.before;
  for (const auto& pressure : ovl::testing::AllPressures()) {
    if (pressure.not_for_stores && act.is_store) continue;
    if (!pressure.file_name.empty() && !act.any_name) continue;
    const Place place(act);
    right = Print(act, pressure.name, Forked([&] { return UnderPressure(pressure, place, after); })) && right;
  }
  right = Print(act, "removed meanwhile", RemovedMeanwhile(act, after)) && right;
  return Print(act, "killed at every call", KilledEverywhere(act, after)) && right;
}

// What a script prints must not get lost in silence.
bool CheckOutput() {
  const Act printing{"script output", {}, false, {}, {}};
  const auto told = ovl::testing::PrintTo("/dev/full");
  const bool right = !told.done && told.right;
  return Print(printing, "full file system",
               {right ? Row::Verdict::kRight : Row::Verdict::kWrong, Shortened(told.words)});
}

}  // namespace

int main() {
  bool right = CheckOutput();
  for (const auto& act : ovl::testing::AllActs()) right = CheckAct(act) && right;
  return right ? 0 : 1;
}
