// Random acts on every control of every form, each watched for what it does to the image. The same seed takes
// the same walk. A walk that fails is printed as the shortest script for ovl-script that still fails; it runs
// in a folder made by ovl-images.
//   ovl-walk [ACTS [SEED]]
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>

#include "catalogue/firmware.h"
#include "core/codecs.h"
#include "default_images.h"
#include "image/field_map.h"
#include "image/files.h"
#include "parser.h"
#include "shell/register_frames.h"
#include "support/harness.h"
#include "walk/owners.h"
#include "walk/watched.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;
using Script = std::vector<std::string>;

constexpr const char* kFiles[] = {"first.bin", "second.bin", "history.txt", "upload.bin"};

// The option frame that a control stands in, and the frame inside it; -1: none.
struct Place {
  int frame = -1, inner = -1;
};

// By the control's place in the registry.
std::vector<Place> PlacesOf(const Application& app) {
  const auto& all = app.registry.All();
  std::vector<Place> places(all.size());
  for (int frame = 0; frame < static_cast<int>(app.frmMain.frmAddress.size()); ++frame) {
    for (const auto& row : RowsOfFrame(frame)) {
      const auto* inner = row.inner.empty() ? nullptr : app.registry.Find(row.inner);
      for (std::size_t at = 0; at < all.size(); ++at) {
        const auto name = std::string_view(all[at].name);
        const bool listed = name == row.control || name.substr(0, name.find('(')) == row.control;
        if (listed && all[at].form == &app.frmMain.form)
          places[at] = {frame, inner == nullptr ? -1 : static_cast<int>(inner - all.data())};
      }
    }
  }
  return places;
}

bool InSight(const Application& app, const Place& place) {
  if (place.frame < 0) return true;
  const auto& all = app.registry.All();
  return app.frmMain.frmAddress[static_cast<std::size_t>(place.frame)].visible &&
         (place.inner < 0 || FaceOf(all[static_cast<std::size_t>(place.inner)].control).visible);
}

bool Reachable(const NamedControl& named) {
  const auto& face = FaceOf(named.control);
  const auto* element = std::get_if<OptionElement>(&named.control);
  return named.form->loaded && named.form->visible && named.form->enabled && face.visible && face.enabled &&
         (element == nullptr || element->array->enabled);
}

// What a person with a random hand does next, as statements.
class Hand {
 public:
  explicit Hand(unsigned seed) : chance_(seed) {}

  Script Next(const Application& app) {
    if (app.ended) return {"start"};
    switch (Below(40)) {
      case 0:
        return Upload(app);
      case 1:
        return {"answer " + std::string(File()), "click menuSave"};
      case 2:
        return {"answer " + std::string(Below(3) == 0 ? "cancel" : File()), "click OpenMenu"};
      case 3:
      case 8:
        return {PickIn("ComboReg", app.frmMain.ComboReg)};
      case 4:
      case 5:
        return {PickIn("ComboExcp(0)", app.frmMain.ComboExcp[0])};
      case 6:
      case 7:
        return {PickIn("ComboALM(0)", app.frmMain.ComboALM[0])};
      default:
        return {OnAnyControl(app, Below(3) == 0)};
    }
  }

 private:
  int Below(std::size_t limit) { return static_cast<int>(chance_() % limit); }
  const char* File() { return kFiles[Below(std::size(kFiles))]; }

  std::string Text() {
    if (Below(3) == 0) return std::to_string(Below(Below(2) == 0 ? 100 : 100'000'000));
    std::string text(static_cast<std::size_t>(Below(46)), ' ');
    for (char& character : text) {
      if (Below(4) != 0) character = static_cast<char>(Below(2) == 0 ? Below(256) : 'A' + Below(26));
    }
    return text;
  }

  std::string PickIn(const std::string& name, const List& list) {
    return list.items.empty() ? "sent" : "pick " + name + " " + std::to_string(Below(list.items.size()));
  }

  // All the way from a closed port, or whatever of it can be done.
  Script Upload(const Application& app) {
    const auto stream =
        RawPatternStream(app.firmware, Below(256), Below(app.frmMain.ComboReg.items.size() + 2));
    return {"click cmdConnect",
            "click frmSettSR.cmdSET",
            "click CmdUpDow(4)",
            "unit hex 06",
            "click CmdUpDow(0)",
            "drain",
            "unit " + script::Quoted(stream),
            "click frmOK_buttom.Command1"};
  }

  // With `options` one of the shown option frame, or of a window beside the main one.
  std::string OnAnyControl(const Application& app, bool options) {
    constexpr int kTries = 500;
    const auto& all = app.registry.All();
    if (places_.size() != all.size()) places_ = PlacesOf(app);
    const bool any = !options && Below(16) == 0;
    const auto* window = options && Below(2) == 0 ? WindowBeside(app) : nullptr;
    for (int tries = 0; tries < kTries; ++tries) {
      const auto at = static_cast<std::size_t>(Below(all.size()));
      const auto& named = all[at];
      if (window != nullptr ? named.form != window : options && places_[at].frame < 0) continue;
      if (!InSight(app, places_[at]) || (!any && !Reachable(named))) continue;
      const auto name = NameOf(app, named);
      auto line = std::visit([&](const auto& control) { return On(name, control); }, named.control);
      if (!line.empty()) return line;
    }
    return "tick Timer";
  }
  static const Form* WindowBeside(const Application& app) {
    for (const auto* form : app.registry.Forms()) {
      if (form != &app.frmMain.form && form->loaded && form->visible) return form;
    }
    return nullptr;
  }
  static std::string NameOf(const Application& app, const NamedControl& named) {
    const bool plain = named.form == &app.frmMain.form || std::holds_alternative<Form*>(named.control);
    return plain ? named.name : named.form->name + "." + named.name;
  }

  std::string On(const std::string& name, const List* list) { return PickIn(name, *list); }
  std::string On(const std::string& name, const OptionElement&) { return "click " + name; }
  std::string On(const std::string& name, const OptionArray* array) {
    return array->elements.empty() ? ""
                                   : "pick " + name + " " + std::to_string(Below(array->elements.size()));
  }
  std::string On(const std::string& name, const CheckBox*) { return "click " + name; }
  std::string On(const std::string& name, const Button*) { return "click " + name; }
  std::string On(const std::string& name, const TextBox*) {
    const int kind = Below(4);
    if (kind == 0) return "leave " + name;
    return "type " + name + " " + script::Quoted(Text());
  }
  // Ways out of the program are taken rarely.
  std::string On(const std::string& name, const MenuItem*) { return Below(8) == 0 ? "click " + name : ""; }
  std::string On(const std::string& name, const Form*) {
    const int kind = Below(16);
    return kind == 0 ? "close " + name : kind < 8 ? "key " + name + " Enter" : "key " + name + " Escape";
  }
  std::string On(const std::string& name, const Timer*) {
    return "tick " + name + " " + std::to_string(1 + Below(8));
  }
  template <class Shown>
  std::string On(const std::string& name, const Shown*) {
    return Below(8) == 0 ? "point " + name : "";
  }

  std::mt19937 chance_;
  std::vector<Place> places_;
};

void RemoveFiles() {
  for (const auto* file : kFiles) fs::remove(file);
}

// What is wrong after the script, or an image for comparison.
std::string Replay(const FirmwareId& stored, const Script& script, ConfigImage* image = nullptr) {
  RemoveFiles();
  Watched program(stored);
  for (const auto& line : script) {
    if (auto wrong = program.Do(line); !wrong.empty()) return wrong;
  }
  if (image != nullptr) *image = program.Image();
  return {};
}

bool Fails(const FirmwareId& stored, const Script& script) {
  const auto wrong = Replay(stored, script);
  return !wrong.empty() && !wrong.starts_with("stopped");
}

void TellShortest(const FirmwareId& stored, Script script) {
  for (std::size_t length = script.size() / 2; length > 0; length = length == 1 ? 0 : length / 2) {
    for (std::size_t at = 0; at + length <= script.size();) {
      auto fewer = script;
      const auto first = fewer.begin() + static_cast<std::ptrdiff_t>(at);
      fewer.erase(first, first + static_cast<std::ptrdiff_t>(length));
      if (Fails(stored, fewer)) {
        script = std::move(fewer);
      } else {
        at += length;
      }
    }
  }
  std::cout << "setting Version " << stored.version << "\nsetting Release " << stored.release << "\nstart\n";
  for (const auto& line : script) std::cout << line << '\n';
  std::istringstream reason(Replay(stored, script));
  for (std::string line; std::getline(reason, line);) std::cout << "# " << line << '\n';
}

// Every record is shown once, so that it is in the order in which the panels store it.
void ShowRecords(Watched& program) {
  for (int slot = kExceptions - 1; slot >= 0; --slot) program.Do("pick ComboExcp(0) " + std::to_string(slot));
  for (int alarm = kAlarms - 1; alarm >= 0; --alarm) program.Do("pick ComboALM(0) " + std::to_string(alarm));
}

// Two bytes of records depend on what was shown before: a slot that matches while scrolling loses three
// flags, but not behind one that matches too; and the place of a duration follows its value only when the
// list moves.
std::string Settled(FieldId field, std::string record) {
  constexpr int kScrollFlag = 0x40, kScrollRule = 0x23;
  constexpr std::size_t kDurationPlace = 4;
  if (field == FieldId::EXCPSTRS && (HexToInt(record) & kScrollFlag) != 0)
    record.replace(0, 2, ByteToHex(HexToInt(record) & ~kScrollRule));
  if (field == FieldId::ALMSTRUCT_BAK) record.erase(kDurationPlace, 2);
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
  std::string wrong;
  for (const auto& row : FieldTable()) {
    if (OwnerNamed("ComboReg").fields.find(" " + std::string(row.name) + " ") != std::string_view::npos)
      continue;
    for (int entry = 1; entry <= EntryCount(row.id); ++entry) {
      const auto here = Settled(row.id, program.Image().at(row.id, entry));
      const auto there = Settled(row.id, other.Image().at(row.id, entry));
      if (here != there && (row.layouts & Bit(LayoutOf(program.App().firmware))) != 0)
        wrong.append(row.name).append(" ").append(here).append(" ").append(there).append("\n");
    }
  }
  return wrong;
}

// False: it failed.
bool Walk(const FirmwareId& stored, unsigned seed, long acts) {
  RemoveFiles();
  Watched program(stored);
  Hand hand(seed);
  Script script;
  for (long act = 0; act < acts; ++act) {
    for (auto& line : hand.Next(program.App())) {
      if (program.Ended() && line != "start") break;
      script.push_back(std::move(line));
      const auto wrong = program.Do(script.back());
      if (wrong.empty()) continue;
      if (Fails(stored, script)) {
        TellShortest(stored, script);
      } else {
        std::cout << stored.Joined() << " seed " << seed << " line " << script.size()
                  << ", not again: " << wrong;
      }
      return false;
    }
  }
  ConfigImage again;
  const auto wrong = Replay(stored, script, &again);
  if (!wrong.empty() || !(again == program.Image())) {
    std::cout << stored.Joined() << " seed " << seed << ": another image the second time " << wrong << '\n';
    return false;
  }
  const auto otherwise = OtherwiseElsewhere(program);
  if (!otherwise.empty()) std::cout << stored.Joined() << " seed " << seed << ", as a file: " << otherwise;
  return otherwise.empty();
}

int Run(long acts, unsigned seed) {
  constexpr long kActsOfAWalk = 1000;
  const TemporaryFolder folder;
  fs::current_path(folder.Path());
  std::vector<FirmwareId> all;
  for (const auto& entry : FirmwareTable())
    all.push_back({std::string(entry.version), std::string(entry.release)});
  for (const auto& firmware : all) {
    if (IsKnownFamily(firmware.version)) WriteDefaultImages(".", firmware);
  }
  const auto start = std::chrono::steady_clock::now();
  long done = 0;
  std::size_t walks = 0, failed = 0;
  constexpr std::size_t kFailures = 10;
  for (; done < acts && failed < kFailures; ++walks) {
    const long length = std::min(kActsOfAWalk, acts - done);
    failed += Walk(all[walks % all.size()], seed + static_cast<unsigned>(walks), length) ? 0U : 1U;
    done += length;
  }
  const auto seconds =
      std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
  std::cout << done << " acts in " << walks << " walks, " << failed << " failed, " << seconds.count()
            << " s\n";
  fs::current_path("/");
  return failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const long acts = count > 1 ? std::atol(words[1]) : 1'000'000L;
  const auto seed = count > 2 ? std::strtoul(words[2], nullptr, 10) : 1UL;
  return ovl::testing::Run(acts, static_cast<unsigned>(seed));
}
