// Performs random acts on every control of every form and checks after each act what it did to the image. The
// same seed gives the same acts. A run that fails is printed as the shortest script that still fails.
// ovl-script runs that script in a folder made by ovl-images.
//   ovl-random-walk [ACTS [SEED]]
#include <filesystem>
#include <iostream>
#include <random>

#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "firmware/firmware_table.h"
#include "firmware/traits.h"
#include "image/field_map.h"
#include "images/default_images.h"
#include "script/parser.h"
#include "search/fault_sweep/long_run.h"
#include "search/random_walk/allowed_writes.h"
#include "search/random_walk/checked_program.h"
#include "support/harness.h"
#include "ui/frames/register_frames.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;
using Script = std::vector<std::string>;

constexpr const char* kFiles[] = {"first.bin", "second.bin", "history.txt", "upload.bin"};

// For each control of the registry the row of an option frame that contains it, or null.
std::vector<const ui::FrameRow*> RowsOf(const core::Application& app) {
  std::vector<const ui::FrameRow*> rows;
  const int frames = static_cast<int>(app.frmMain.frmAddress.size());
  for (const auto& named : app.registry.All()) {
    const auto array = named.name.substr(0, named.name.find('('));
    rows.push_back(nullptr);
    for (int frame = 0; frame < frames && named.form == &app.frmMain.form; ++frame) {
      for (const auto& row : ui::RowsOfFrame(frame)) {
        if (row.control == named.name || row.control == array) rows.back() = &row;
      }
    }
  }
  return rows;
}

bool IsShown(const core::Application& app, const ui::FrameRow* row) {
  if (row == nullptr) return true;
  return app.frmMain.frmAddress[static_cast<std::size_t>(row->frame)].visible &&
         (row->inner.empty() || controls::StateOf(app.registry.Find(row->inner)->control).visible);
}

bool Reachable(const controls::NamedControl& named) {
  const auto& face = controls::StateOf(named.control);
  const auto* element = std::get_if<controls::OptionElement>(&named.control);
  return named.form->loaded && named.form->visible && named.form->enabled && face.visible && face.enabled &&
         (element == nullptr || element->array->enabled);
}

template <class... Kinds>
bool Holds(const controls::ControlRef& control) {
  return (... || std::holds_alternative<Kinds>(control));
}

// Chooses the next act at random, as statements of a script.
class ActGenerator {
 public:
  explicit ActGenerator(unsigned seed) : random_(seed) {}

  Script Next(const core::Application& app) {
    if (app.ended) return {"start"};
    const auto& form = app.frmMain;
    const int kind = Below(40);
    if (kind == 0) return Upload(app);
    if (kind == 1) return {"answer " + File(), "click menuSave"};
    if (kind == 2) return {"answer " + (Below(3) == 0 ? "cancel" : File()), "click OpenMenu"};
    if (kind < 5) return {PickIn("ComboReg", form.ComboReg.items.size())};
    if (kind < 7) return {PickIn("ComboExcp(0)", form.ComboExcp[0].items.size())};
    if (kind < 9) return {PickIn("ComboALM(0)", form.ComboALM[0].items.size())};
    return {OnAnyControl(app, Below(3) == 0)};
  }

 private:
  int Below(std::size_t limit) { return static_cast<int>(random_() % limit); }
  std::string File() { return kFiles[Below(std::size(kFiles))]; }

  std::string Text() {
    if (Below(3) == 0) return std::to_string(Below(Below(2) == 0 ? 100 : 100'000'000));
    std::string text(static_cast<std::size_t>(Below(46)), ' ');
    for (char& character : text) {
      if (Below(4) != 0) character = static_cast<char>(Below(2) == 0 ? Below(256) : 'A' + Below(26));
    }
    return text;
  }

  std::string PickIn(const std::string& name, std::size_t size) {
    return size == 0 ? "sent" : "pick " + name + " " + std::to_string(Below(size));
  }

  // All steps of an upload from a closed port. Those that are not possible do nothing.
  Script Upload(const core::Application& app) {
    const int code = Below(app.frmMain.ComboReg.items.size() + 2);
    const auto stream = "unit " + script::Quoted(RawPatternStream(app.firmware, Below(256), code));
    Script steps = {"click cmdConnect", "click frmSettSR.cmdSET", "click CmdUpDow(4)",
                    "unit hex 06",      "click CmdUpDow(0)",      "drain"};
    steps.insert(steps.end(), {stream, "click frmOK_buttom.Command1"});
    return steps;
  }

  // With `options`, a control of the visible option frame or of a window beside the main one.
  std::string OnAnyControl(const core::Application& app, bool options) {
    constexpr int kTries = 500;
    const auto& all = app.registry.All();
    if (rows_.size() != all.size()) rows_ = RowsOf(app);
    const bool any = !options && Below(16) == 0;
    const auto* window = options && Below(2) == 0 ? WindowBeside(app) : nullptr;
    for (int tries = 0; tries < kTries; ++tries) {
      const auto at = static_cast<std::size_t>(Below(all.size()));
      const auto& named = all[at];
      if (window != nullptr ? named.form != window : options && rows_[at] == nullptr) continue;
      if (!IsShown(app, rows_[at]) || (!any && !Reachable(named))) continue;
      auto line = On(FullName(app, named), named.control);
      if (!line.empty()) return line;
    }
    return "tick Timer";
  }
  static const controls::Form* WindowBeside(const core::Application& app) {
    for (const auto* form : app.registry.Forms()) {
      if (form != &app.frmMain.form && form->loaded && form->visible) return form;
    }
    return nullptr;
  }

  std::string On(const std::string& name, const controls::ControlRef& control) {
    if (const auto* list = std::get_if<controls::List*>(&control)) return PickIn(name, (*list)->items.size());
    if (const auto* array = std::get_if<controls::OptionArray*>(&control))
      return PickIn(name, (*array)->elements.size());
    if (Holds<controls::OptionElement, controls::CheckBox*, controls::Button*>(control))
      return "click " + name;
    if (Holds<controls::Timer*>(control)) return "tick " + name + " " + std::to_string(1 + Below(8));
    if (Holds<controls::TextBox*>(control))
      return Below(4) == 0 ? "leave " + name : "type " + name + " " + script::Quoted(Text());
    // Menu items may end the program, so they are rare.
    if (Holds<controls::MenuItem*>(control)) return Below(8) == 0 ? "click " + name : "";
    if (!Holds<controls::Form*>(control)) return Below(8) == 0 ? "point " + name : "";
    const int kind = Below(16);
    return kind == 0 ? "close " + name : kind < 8 ? "key " + name + " Enter" : "key " + name + " Escape";
  }

  std::mt19937 random_;
  std::vector<const ui::FrameRow*> rows_;
};

void RemoveFiles() {
  for (const auto* file : kFiles) fs::remove(file);
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

// Gives the image to another program as a file and returns the fields that differ there. Fields that the
// options of a register set when they are shown do not count.
std::string DifferenceInAnotherProgram(CheckedProgram& program) {
  if (program.Ended() || !program.Whole() || !program.App().frmMain.form.enabled) return {};
  ShowRecords(program);
  // This release cannot read what it writes with the flag set.
  if (program.App().firmware.Joined() == "V1400R7") program.Do("set BLNKRTS_BAK \"\"");
  program.Do(std::string("stream ") + kFiles[0]);
  CheckedProgram other(program.App().firmware);
  other.Do(std::string("answer ") + kFiles[0]);
  other.Do("click OpenMenu");
  ShowRecords(other);
  std::ostringstream wrong;
  for (const auto& row : image::FieldTable()) {
    if (WritesOf("ComboReg").Has(row.id)) continue;
    for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) {
      const auto here = Comparable(row.id, program.Image().at(row.id, entry));
      const auto there = Comparable(row.id, other.Image().at(row.id, entry));
      if (here != there && (row.layouts & image::Bit(firmware::LayoutOf(program.App().firmware))) != 0)
        wrong << "after a load from a file: " << row.name << ' ' << here << ' ' << there << '\n';
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
  constexpr long kActsOfARun = 1000;
  const TemporaryFolder folder;
  fs::current_path(folder.Path());
  std::vector<firmware::FirmwareId> all;
  for (const auto& entry : firmware::FirmwareTable()) {
    const auto& firmware =
        all.emplace_back(firmware::FirmwareId{std::string(entry.version), std::string(entry.release)});
    if (firmware::IsKnownFamily(firmware.version)) images::WriteDefaultImages(".", firmware);
  }
  const StopWatch watch;
  long done = 0;
  Digest digest;
  std::size_t runs = 0, failed = 0;
  constexpr std::size_t kFailures = 10;
  for (; done < acts && failed < kFailures; ++runs) {
    const long length = std::min(kActsOfARun, acts - done);
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
