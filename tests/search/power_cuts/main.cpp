// Cuts the power at each change of each file that the program and its tools write, and looks at what the disk
// can hold then. Prints a row for each. The exit status is 0 if the old file or the new one is always whole,
// and the new one is there for good once the act has reported its end. A second row leaves out the flushes,
// to show that the search would notice.
//   ovl-power-cuts
#include <algorithm>
#include <cstdio>
#include <fstream>

#include "acts.h"
#include "host/files.h"
#include "power_cut.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

using Contents = std::vector<std::optional<std::string>>;

struct Outcome {
  std::size_t points = 0;
  std::size_t old_files = 0, new_files = 0, either = 0;  // points
  std::size_t torn = 0;
  bool kept = false;  // after the end
};

// Nothing where the act makes the file.
std::optional<std::string> Before(const Act& act) {
  return act.before.empty() ? std::nullopt : std::optional(act.before);
}

bool IsWhole(const Act& act, const std::optional<std::string>& content, const std::string& after) {
  if (content == Before(act)) return true;
  if (!content) return false;
  // An empty store is what another process can leave, and not what a power cut may.
  const bool between = !content->empty() && std::ranges::count(act.between, *content) > 0;
  return between || *content == after;
}

Outcome CutEverywhere(const Act& act, const Recording& recording, const fs::path& file,
                      const std::string& after, FlushesCount count) {
  Outcome outcome;
  Contents contents;
  for (std::size_t events = 0; events <= recording.events.size(); ++events) {
    contents = AfterPowerCut(recording, events, file, count);
    ++outcome.points;
    const bool whole =
        std::ranges::all_of(contents, [&](const auto& content) { return IsWhole(act, content, after); });
    if (!whole) ++outcome.torn;
    if (!whole) continue;
    const bool only_old = contents == Contents{Before(act)}, only_new = contents == Contents{after};
    ++(only_old ? outcome.old_files : only_new ? outcome.new_files : outcome.either);
  }
  outcome.kept = contents == Contents{after};
  return outcome;
}

bool Print(const Act& act, const char* what, bool right, const std::string& outcome) {
  std::printf("%-14s %-16s %-6s %s\n", act.name.c_str(), what, right ? "right" : "WRONG", outcome.c_str());
  std::fflush(stdout);
  return right;
}

bool CheckAct(const Act& act) {
  const TemporaryFolder folder;
  const auto file = folder.Path() / act.file;
  fs::create_directories(file.parent_path());
  if (Before(act)) std::ofstream(file, std::ios::binary) << act.before;
  const auto recording =
      Record(folder.Path(), [&] { return act.run(folder.Path().string(), file.string()).done; });
  const auto after = host::ReadFile(file.string());
  if (!recording.done || after == act.before) return Print(act, "power cut", false, "nothing was written");

  const auto cut = CutEverywhere(act, recording, file, after, {});
  const auto words = cut.torn > 0
                         ? "TORN at " + std::to_string(cut.torn) + " of " + std::to_string(cut.points)
                         : "whole at each of " + std::to_string(cut.points) + " points, old at " +
                               std::to_string(cut.old_files) + ", new at " + std::to_string(cut.new_files) +
                               ", one of both at " + std::to_string(cut.either);
  bool right =
      Print(act, "power cut", cut.torn == 0 && cut.kept, words + (cut.kept ? "" : ", LOST after the end"));

  const auto unsafe = CutEverywhere(act, recording, file, after, {.files = false});
  const auto lost = CutEverywhere(act, recording, file, after, {.folders = false});
  right = Print(act, "without flushes", unsafe.torn > 0 && !lost.kept,
                "torn at " + std::to_string(unsafe.torn) + " points without that of the file, " +
                    (lost.kept ? "kept" : "lost after the end") + " without that of the folder") &&
          right;
  return right;
}

}  // namespace
}  // namespace ovl::testing

int main() {
  bool right = true;
  for (const auto& act : ovl::testing::ActsOfAllTools()) right = ovl::testing::CheckAct(act) && right;
  return right ? 0 : 1;
}
