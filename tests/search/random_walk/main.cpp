// Performs random acts on every control of every form and checks after each act what it did to the image. The
// same seed gives the same acts. A run that fails is printed as the shortest script that still fails.
// ovl-script runs that script in a folder made by ovl-images.
//   ovl-random-walk [ACTS [SEED]]
#include <algorithm>
#include <filesystem>
#include <iostream>

#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "firmware/firmware_table.h"
#include "firmware/traits.h"
#include "image/field_map.h"
#include "images/default_images.h"
#include "search/fault_sweep/long_run.h"
#include "search/random_walk/act_generator.h"
#include "search/random_walk/allowed_writes.h"
#include "search/random_walk/checked_program.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;
void RemoveFiles() {
  for (const auto* file : kWalkFiles) fs::remove(file);
}

// Runs the script again. Returns what is wrong, or an empty text and the image.
std::string Replay(const firmware::FirmwareId& stored, const Script& script,
                   image::ConfigImage* image = nullptr) {
  RemoveFiles();
  CheckedProgram program(stored);
  for (const auto& line : script) {
    if (auto wrong = program.Do(line); !wrong.empty()) return wrong;
  }
  if (image != nullptr) *image = program.Image();
  return {};
}

void PrintShortest(const firmware::FirmwareId& stored, const Script& whole, const std::string& wrong) {
  const auto script = Shortest(whole, [&](const Script& fewer) {
    const auto found = Replay(stored, fewer);
    return !found.empty() && !found.starts_with("stopped");
  });
  std::cout << "setting Version " << stored.version << "\nsetting Release " << stored.release << "\nstart\n";
  for (const auto& line : script) std::cout << line << '\n';
  const auto again = Replay(stored, script);
  std::istringstream reason(again.empty() ? "does not happen again: " + wrong : again);
  for (std::string line; std::getline(reason, line);) std::cout << "# " << line << '\n';
}

// Shows every record once, because the panels put a record in order when they show it.
void ShowRecords(CheckedProgram& program) {
  for (int slot = image::kExceptions - 1; slot >= 0; --slot)
    program.Do("pick ComboExcp(0) " + std::to_string(slot));
  for (int alarm = image::kAlarms - 1; alarm >= 0; --alarm)
    program.Do("pick ComboALM(0) " + std::to_string(alarm));
}

// Three bytes depend on what the panel showed before, so they are made equal for the comparison. A slot with
// scroll matching loses three flags unless the slot before has scroll matching too. The index of a duration
// follows its value, and an odd dwell of the flag becomes even, only when the list changes its position.
std::string Comparable(image::FieldId field, std::string record) {
  constexpr int kScrollFlag = 0x40, kScrollRule = 0x23;
  constexpr std::size_t kDurationIndex = 4;
  if (field == image::FieldId::EXCPSTRS && (codecs::HexToInt(record) & kScrollFlag) != 0)
    record.replace(0, 2, codecs::ByteToHex(codecs::HexToInt(record) & ~kScrollRule));
  if (field == image::FieldId::FLAGDWLIND)
    record = codecs::ByteToHex(2 * codecs::HalfToEven(codecs::HexToInt(record)));
  if (field == image::FieldId::ALMSTRUCT_BAK) record.erase(kDurationIndex, 2);
  return record;
}

// Gives the image to another program as a backup and returns the fields that differ there: in what it reads,
// and in what it shows. Of the latter, fields that the options of a register set when they are shown do not
// count.
std::string DifferenceInAnotherProgram(CheckedProgram& program) {
  if (program.Ended() || !program.Whole() || !program.App().frmMain.form.enabled) return {};
  ShowRecords(program);
  if (auto wrong = program.Do(std::string("backup ") + kWalkFiles[0]); !wrong.empty()) return wrong;
  CheckedProgram other(program.App().firmware);
  other.Do(std::string("answer ") + kWalkFiles[0]);
  other.Do("click OpenMenu");
  const auto read = other.App().known_image;
  ShowRecords(other);
  std::ostringstream wrong;
  const auto& firmware = program.App().firmware;
  for (const auto& row : image::FieldTable()) {
    if (!InStream(row, LayoutOf(firmware), firmware, CapabilitiesOf(firmware), image::Direction::kRead))
      continue;
    const bool set_when_shown = WritesOf("ComboReg").Has(row.id);
    for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) {
      const auto& stored = program.Image().at(row.id, entry);
      if (read.at(row.id, entry) != stored)
        wrong << "read from a backup: " << row.name << ' ' << stored << ' ' << read.at(row.id, entry) << '\n';
      const auto here = Comparable(row.id, stored),
                 there = Comparable(row.id, other.Image().at(row.id, entry));
      if (here != there && !set_when_shown)
        wrong << "shown from a backup: " << row.name << ' ' << here << ' ' << there << '\n';
    }
  }
  return wrong.str();
}

// Returns false after a failure.
bool RunOnce(const firmware::FirmwareId& stored, unsigned seed, long acts, Digest& digest) {
  RemoveFiles();
  CheckedProgram program(stored, &digest);
  ActGenerator generator(seed);
  Script script;
  for (long act = 0; act < acts; ++act) {
    for (auto& line : generator.Next(program.App())) {
      if (program.Ended() && line != "start") break;
      script.push_back(std::move(line));
      const auto wrong = program.Do(script.back());
      if (wrong.empty()) continue;
      PrintShortest(stored, script, wrong);
      return false;
    }
  }
  image::ConfigImage again;
  auto wrong = Replay(stored, script, &again);
  if (wrong.empty() && !(again == program.Image())) wrong = "the same acts led to another image\n";
  if (wrong.empty()) wrong = DifferenceInAnotherProgram(program);
  if (!wrong.empty()) std::cout << stored.Joined() << " seed " << seed << ": " << wrong;
  return wrong.empty();
}

int Run(long acts, unsigned seed) {
  constexpr long kMostActsOfARun = 1000;
  const TemporaryFolder folder;
  fs::current_path(folder.Path());
  std::vector<firmware::FirmwareId> all;
  for (const auto& entry : firmware::FirmwareTable()) {
    const auto& firmware =
        all.emplace_back(firmware::FirmwareId{std::string(entry.version), std::string(entry.release)});
    if (firmware::IsKnownFamily(firmware.version)) images::WriteDefaultImages(".", firmware);
  }
  // A short walk takes every firmware, too.
  const long acts_of_a_run = std::clamp(acts / static_cast<long>(all.size()), 1L, kMostActsOfARun);
  const StopWatch watch;
  long done = 0;
  Digest digest;
  std::size_t runs = 0, failed = 0;
  constexpr std::size_t kFailures = 10;
  for (; done < acts && failed < kFailures; ++runs) {
    const long length = std::min(acts_of_a_run, acts - done);
    failed += RunOnce(all[runs % all.size()], seed + static_cast<unsigned>(runs), length, digest) ? 0U : 1U;
    done += length;
  }
  std::cout << done << " acts in " << runs << " runs, " << failed << " failed, digest " << digest.Text()
            << ", " << watch.Text() << '\n';
  fs::current_path("/");
  return failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const auto seed = ovl::testing::NumberIn(count, words, 2, 1);
  return ovl::testing::Run(ovl::testing::NumberIn(count, words, 1, 1'000'000), static_cast<unsigned>(seed));
}
