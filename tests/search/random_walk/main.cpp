// Random acts on every control of every form, each watched for what it does to the image. The same seed takes
// the same walk. A walk that fails is printed as the shortest script for ovl-script that still fails; it runs
// in a folder made by ovl-images.
//   ovl-walk [ACTS [SEED]]
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
#include "search/random_walk/owners.h"
#include "search/random_walk/watched.h"
#include "support/harness.h"
#include "ui/frames/register_frames.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;
using Script = std::vector<std::string>;

constexpr const char* kFiles[] = {"first.bin", "second.bin", "history.txt", "upload.bin"};

// The row of an option frame that a control stands in, if any, by the control's place in the registry.
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

bool InSight(const core::Application& app, const ui::FrameRow* row) {
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

// What a person with a random hand does next, as statements.
class Hand {
 public:
  explicit Hand(unsigned seed) : chance_(seed) {}

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
  int Below(std::size_t limit) { return static_cast<int>(chance_() % limit); }
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

  // All the way from a closed port, or whatever of it can be done.
  Script Upload(const core::Application& app) {
    const int code = Below(app.frmMain.ComboReg.items.size() + 2);
    const auto stream = "unit " + script::Quoted(RawPatternStream(app.firmware, Below(256), code));
    Script way = {"click cmdConnect", "click frmSettSR.cmdSET", "click CmdUpDow(4)",
                  "unit hex 06",      "click CmdUpDow(0)",      "drain"};
    way.insert(way.end(), {stream, "click frmOK_buttom.Command1"});
    return way;
  }

  // With `options` one of the shown option frame, or of a window beside the main one.
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
      if (!InSight(app, rows_[at]) || (!any && !Reachable(named))) continue;
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
    // Ways out of the program are taken rarely.
    if (Holds<controls::MenuItem*>(control)) return Below(8) == 0 ? "click " + name : "";
    if (!Holds<controls::Form*>(control)) return Below(8) == 0 ? "point " + name : "";
    const int kind = Below(16);
    return kind == 0 ? "close " + name : kind < 8 ? "key " + name + " Enter" : "key " + name + " Escape";
  }

  std::mt19937 chance_;
  std::vector<const ui::FrameRow*> rows_;
};

void RemoveFiles() {
  for (const auto* file : kFiles) fs::remove(file);
}

// What is wrong after the script, or an image for comparison.
std::string Replay(const firmware::FirmwareId& stored, const Script& script,
                   image::ConfigImage* image = nullptr) {
  RemoveFiles();
  Watched program(stored);
  for (const auto& line : script) {
    if (auto wrong = program.Do(line); !wrong.empty()) return wrong;
  }
  if (image != nullptr) *image = program.Image();
  return {};
}

void TellShortest(const firmware::FirmwareId& stored, const Script& whole, const std::string& wrong) {
  const auto script = Shortest(whole, [&](const Script& fewer) {
    const auto found = Replay(stored, fewer);
    return !found.empty() && !found.starts_with("stopped");
  });
  std::cout << "setting Version " << stored.version << "\nsetting Release " << stored.release << "\nstart\n";
  for (const auto& line : script) std::cout << line << '\n';
  const auto again = Replay(stored, script);
  std::istringstream reason(again.empty() ? "not again: " + wrong : again);
  for (std::string line; std::getline(reason, line);) std::cout << "# " << line << '\n';
}

// Every record is shown once, so that it is in the order in which the panels store it.
void ShowRecords(Watched& program) {
  for (int slot = image::kExceptions - 1; slot >= 0; --slot)
    program.Do("pick ComboExcp(0) " + std::to_string(slot));
  for (int alarm = image::kAlarms - 1; alarm >= 0; --alarm)
    program.Do("pick ComboALM(0) " + std::to_string(alarm));
}

// Three bytes depend on what was shown before: a slot that matches while scrolling loses three flags, but not
// behind one that matches too; and the place of a duration follows its value, as an odd dwell of the flag
// becomes even, only when the list moves.
std::string Settled(image::FieldId field, std::string record) {
  constexpr int kScrollFlag = 0x40, kScrollRule = 0x23;
  constexpr std::size_t kDurationPlace = 4;
  if (field == image::FieldId::EXCPSTRS && (codecs::HexToInt(record) & kScrollFlag) != 0)
    record.replace(0, 2, codecs::ByteToHex(codecs::HexToInt(record) & ~kScrollRule));
  if (field == image::FieldId::FLAGDWLIND)
    record = codecs::ByteToHex(2 * codecs::HalfToEven(codecs::HexToInt(record)));
  if (field == image::FieldId::ALMSTRUCT_BAK) record.erase(kDurationPlace, 2);
  return record;
}

// The fields that another program, given the image as a file, holds otherwise. Left out are those that the
// options of a register set when they are shown.
std::string OtherwiseElsewhere(Watched& program) {
  if (program.Ended() || !program.Whole() || !program.App().frmMain.form.enabled) return {};
  ShowRecords(program);
  // This release cannot read what it writes with the flag set.
  if (program.App().firmware.Joined() == "V1400R7") program.Do("set BLNKRTS_BAK \"\"");
  program.Do(std::string("stream ") + kFiles[0]);
  Watched other(program.App().firmware);
  other.Do(std::string("answer ") + kFiles[0]);
  other.Do("click OpenMenu");
  ShowRecords(other);
  std::ostringstream wrong;
  for (const auto& row : image::FieldTable()) {
    if (MayWrite(OwnerNamed("ComboReg"), row.name)) continue;
    for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) {
      const auto here = Settled(row.id, program.Image().at(row.id, entry));
      const auto there = Settled(row.id, other.Image().at(row.id, entry));
      if (here != there && (row.layouts & image::Bit(firmware::LayoutOf(program.App().firmware))) != 0)
        wrong << "as a file: " << row.name << ' ' << here << ' ' << there << '\n';
    }
  }
  return wrong.str();
}

// False: it failed.
bool Walk(const firmware::FirmwareId& stored, unsigned seed, long acts, Digest& digest) {
  RemoveFiles();
  Watched program(stored, &digest);
  Hand hand(seed);
  Script script;
  for (long act = 0; act < acts; ++act) {
    for (auto& line : hand.Next(program.App())) {
      if (program.Ended() && line != "start") break;
      script.push_back(std::move(line));
      const auto wrong = program.Do(script.back());
      if (wrong.empty()) continue;
      TellShortest(stored, script, wrong);
      return false;
    }
  }
  image::ConfigImage again;
  auto wrong = Replay(stored, script, &again);
  if (wrong.empty() && !(again == program.Image())) wrong = "another image the second time\n";
  if (wrong.empty()) wrong = OtherwiseElsewhere(program);
  if (!wrong.empty()) std::cout << stored.Joined() << " seed " << seed << ": " << wrong;
  return wrong.empty();
}

int Run(long acts, unsigned seed) {
  constexpr long kActsOfAWalk = 1000;
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
  std::size_t walks = 0, failed = 0;
  constexpr std::size_t kFailures = 10;
  for (; done < acts && failed < kFailures; ++walks) {
    const long length = std::min(kActsOfAWalk, acts - done);
    failed += Walk(all[walks % all.size()], seed + static_cast<unsigned>(walks), length, digest) ? 0U : 1U;
    done += length;
  }
  std::cout << done << " acts in " << walks << " walks, " << failed << " failed, digest " << digest.Text()
            << ", " << watch.Told() << '\n';
  fs::current_path("/");
  return failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const auto seed = ovl::testing::NumberIn(count, words, 2, 1);
  return ovl::testing::Run(ovl::testing::NumberIn(count, words, 1, 1'000'000), static_cast<unsigned>(seed));
}
