#include "walk/watched.h"

#include <algorithm>
#include <sstream>

#include "image/field_map.h"
#include "runner.h"
#include "support/harness.h"
#include "walk/owners.h"

namespace ovl::testing {
namespace {

bool IsHex(const std::string& text) {
  return text.find_first_not_of("0123456789ABCDEF") == std::string::npos;
}

struct Lengths {
  std::size_t syscfg, sysfixed;
};

// The digits of the sections that have a fixed number, written down apart from the field table.
Lengths LengthsOf(const FirmwareId& firmware) {
  if (firmware.version != "V1400") return {96, 192};
  const int release = firmware.Number();
  if (release < 7) return {64, 206};
  return {64, release == 7 ? 224U : 226U};
}

// What the line acts on: the word behind the statement.
std::string ControlIn(const std::string& line) {
  const auto begin = line.find(' ');
  if (begin == std::string::npos) return {};
  return line.substr(begin + 1, line.find(' ', begin + 1) - begin - 1);
}

// A whole image is taken in, or another program is started.
bool Loads(const std::string& line) {
  return line.starts_with("start") || line.starts_with("unit") || line == "click OpenMenu";
}

bool MayWrite(std::string_view fields, std::string_view field) {
  const auto at = fields.find(field);
  return at != std::string_view::npos && fields[at - 1] == ' ' && fields[at + field.size()] == ' ';
}

}  // namespace

Watched::Watched(const FirmwareId& stored) : nowhere_(nullptr), session_(nowhere_, nowhere_) {
  session_.SetClock({});
  session_.StoreSetting("Version", stored.version);
  session_.StoreSetting("Release", stored.release);
  session_.Start();
  before_ = Image();
}

std::string Watched::Do(const std::string& line) {
  std::istringstream script(line);
  std::ostringstream errors;
  if (script::RunScript(session_, script, "walk", errors) != script::ExitStatus::kDone)
    return "stopped: " + errors.str();
  session_.TakeSent();
  while (session_.TakeBox()) {
  }
  if (Ended()) return {};
  auto wrong = CheckImage(line);
  if (wrong.empty()) wrong = CheckLists();
  return wrong.empty() ? CheckFrames() : wrong;
}

std::string Watched::CheckImage(const std::string& line) {
  const auto& image = Image();
  if (image == before_) return {};
  auto& app = App();
  const auto layout = LayoutOf(app.firmware);
  auto control = ControlIn(line);
  if (FieldsOf(control) == " " && control.find('.') == std::string::npos) {
    const auto* named = app.registry.Find(control);
    if (named != nullptr && named->form != &app.frmMain.form) control = named->form->name + "." + control;
  }
  const auto fields = FieldsOf(control);
  const bool loads = Loads(line);
  std::string wrong;
  for (const auto& row : FieldTable()) {
    const auto entries = EntryCount(row.id);
    for (int entry = 1; entry <= entries; ++entry) {
      const auto &is = image.at(row.id, entry), &was = before_.at(row.id, entry);
      const auto digits = static_cast<std::size_t>(DigitsOf(row, layout));
      const bool sentinel = is.empty() || is == row.sentinel;
      if (is == was) continue;
      if (!sentinel && (is.size() != digits || !IsHex(is)))
        wrong.append(row.name).append(" holds ").append(is).append("\n");
      if (loads) continue;
      if (whole_ && !sentinel && is.size() != digits)
        wrong.append(row.name).append(" became ").append(is).append("\n");
      const auto& form = app.frmMain;
      const int shown = entries == kExceptions ? form.ComboExcp[0].position + 1
                        : entries == kAlarms   ? form.ComboALM[0].position + 1
                                               : entry;
      if (entry == shown && MayWrite(fields, row.name)) continue;
      wrong.append(control)
          .append(" wrote ")
          .append(row.name)
          .append(" ")
          .append(std::to_string(entry))
          .append(" ")
          .append(was)
          .append(" ")
          .append(is)
          .append("\n");
    }
  }
  // This release leaves out a flag that a full load empties, and sends it once a panel has set it.
  const std::size_t more = app.firmware.Joined() == "V1400R7" && !image[FieldId::BLNKRTS_BAK].empty() ? 2 : 0;
  auto copy = image;
  const auto sections = WriteSections(copy, layout, app.firmware, app.capabilities);
  const auto [syscfg, sysfixed] = LengthsOf(app.firmware);
  const bool whole = sections.SYSCFG.size() == syscfg && sections.SYSFIXED.size() == sysfixed + more &&
                     syscfg + sysfixed + sections.SYSSTR.size() == DigitsOfImage(app.firmware);
  // Saved files follow one layout whatever the release, so that some releases read their own as a shorter
  // image.
  if (line == "click OpenMenu") whole_ = whole;
  if (loads && line != "click OpenMenu") whole_ = true;
  if (whole_ && !whole) wrong += "the sections' lengths\n";
  before_ = image;
  return wrong;
}

std::string Watched::CheckLists() {
  for (const auto& named : App().registry.All()) {
    const auto* list = std::get_if<List*>(&named.control);
    const auto* array = std::get_if<OptionArray*>(&named.control);
    const int at = list != nullptr ? (*list)->position : array != nullptr ? (*array)->chosen : -1;
    const auto size = list != nullptr    ? (*list)->items.size()
                      : array != nullptr ? (*array)->elements.size()
                                         : 0;
    if (at < -1 || at >= static_cast<int>(size))
      return named.name + " stands at " + std::to_string(at) + "\n";
  }
  return {};
}

std::string Watched::CheckFrames() {
  const auto& frames = App().frmMain.frmAddress;
  const auto count =
      std::count_if(frames.begin(), frames.end(), [](const Frame& frame) { return frame.visible; });
  if (count <= 1 || (count == 2 && frames[18].visible && frames[49].visible)) return {};
  return std::to_string(count) + " option frames\n";
}

}  // namespace ovl::testing
