#include "search/random_walk/watched.h"

#include <algorithm>
#include <sstream>

#include "firmware/traits.h"
#include "image/field_map.h"
#include "script/parser.h"
#include "script/runner.h"
#include "search/random_walk/owners.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

bool IsHex(const std::string& text) {
  return text.find_first_not_of("0123456789ABCDEF") == std::string::npos;
}

// The digits of SYSCFG and SYSFIXED, which have a fixed number, written down apart from the field table.
std::pair<std::size_t, std::size_t> LengthsOf(const firmware::FirmwareId& firmware) {
  if (firmware.version != "V1400") return {96, 192};
  const int release = firmware.Number();
  return {64, release < 7 ? 206 : release == 7 ? 224 : 226};
}

// A whole image is taken in, or another program is started.
bool Loads(const std::string& line) {
  return line.starts_with("start") || line.starts_with("unit") || line == "click OpenMenu";
}

std::string CheckLists(const core::Application& app) {
  for (const auto& named : app.registry.All()) {
    const auto* list = std::get_if<controls::List*>(&named.control);
    const auto* array = std::get_if<controls::OptionArray*>(&named.control);
    if (list == nullptr && array == nullptr) continue;
    const int at = list != nullptr ? (*list)->position : (*array)->chosen;
    const auto size = list != nullptr ? (*list)->items.size() : (*array)->elements.size();
    if (at < -1 || at >= static_cast<int>(size))
      return named.name + " stands at " + std::to_string(at) + "\n";
  }
  return {};
}

std::string CheckFrames(const core::Application& app) {
  const auto& frames = app.frmMain.frmAddress;
  const auto count =
      std::count_if(frames.begin(), frames.end(), [](const controls::Frame& frame) { return frame.visible; });
  if (count <= 1 || (count == 2 && frames[18].visible && frames[49].visible)) return {};
  return std::to_string(count) + " option frames\n";
}

}  // namespace

Watched::Watched(const firmware::FirmwareId& stored, Digest* digest)
    : digest_(digest), session_(printed_, printed_) {
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
  if (digest_ != nullptr) AddToDigest();
  printed_.str({});
  session_.TakeSent();
  while (session_.TakeBox()) continue;
  return Ended() ? std::string() : CheckImage(line) + CheckLists(App()) + CheckFrames(App());
}

void Watched::AddToDigest() {
  for (const auto& box : session_.Boxes()) digest_->Add(box.title + box.text);
  digest_->Add(printed_.str());
  digest_->Add(session_.TakeSent());
  digest_->AddState(App());
}

std::string Watched::CheckImage(const std::string& line) {
  if (Image() == before_) return {};
  const bool loads = Loads(line);
  const auto words = script::SplitWords(line);
  const auto wrong = CheckFields(words.size() < 2 ? "" : words[1].text, loads) +
                     CheckLengths(loads, line == "click OpenMenu");
  before_ = Image();
  return wrong;
}

std::string FullName(const core::Application& app, const controls::NamedControl& named) {
  const bool plain =
      named.form == &app.frmMain.form || std::holds_alternative<controls::Form*>(named.control);
  return plain ? named.name : named.form->name + "." + named.name;
}

std::string Watched::CheckFields(const std::string& control, bool loads) {
  const auto& form = App().frmMain;
  const auto* named = App().registry.Find(control);
  const auto& owner = OwnerNamed(named == nullptr ? control : FullName(App(), *named));
  const std::size_t range = App().firmware.IsV1400() ? 20 : 12;
  std::ostringstream wrong;
  for (const auto& row : image::FieldTable()) {
    const auto entries = image::EntryCount(row.id);
    const auto digits = static_cast<std::size_t>(image::DigitsOf(row, firmware::LayoutOf(App().firmware)));
    const int shown = entries == image::kExceptions ? form.ComboExcp[0].position + 1
                      : entries == image::kAlarms   ? form.ComboALM[0].position + 1
                                                    : 0;
    for (int entry = 1; entry <= entries; ++entry) {
      const auto &is = Image().at(row.id, entry), &was = before_.at(row.id, entry);
      if (is == was) continue;
      const bool absent = is == row.sentinel || (loads && is.empty());
      const bool in_form = absent || (is.size() == digits && IsHex(is));
      const bool record =
          whole_ && (row.id == image::FieldId::EXCPSTRS || row.id == image::FieldId::ALMSTRUCT_BAK ||
                     (row.id == image::FieldId::TRIGGER_TEXT && owner.of_records == Part::kFirstByte));
      const bool may_write =
          loads ||
          ((shown == 0 || entry == shown) && MayWrite(owner, row.name) &&
           (!record || Without(owner.of_records, range, was) == Without(owner.of_records, range, is)));
      if (in_form && may_write) continue;
      wrong << control << " wrote " << row.name << ' ' << entry << ": " << was << ", now " << is << '\n';
    }
  }
  return wrong.str();
}

std::string Watched::CheckLengths(bool loads, bool from_file) {
  auto& app = App();
  // This release leaves out a flag that a full load empties, and sends it once a panel has set it.
  const std::size_t more =
      app.firmware.Joined() == "V1400R7" && !Image()[image::FieldId::BLNKRTS_BAK].empty() ? 2 : 0;
  auto copy = Image();
  const auto sections =
      image::WriteSections(copy, firmware::LayoutOf(app.firmware), app.firmware, app.capabilities);
  const auto [syscfg, sysfixed] = LengthsOf(app.firmware);
  const bool whole = sections.SYSCFG.size() == syscfg && sections.SYSFIXED.size() == sysfixed + more &&
                     syscfg + sysfixed + sections.SYSSTR.size() == DigitsOfImage(app.firmware);
  // Saved files follow one layout whatever the release; some releases read their own as a shorter image.
  if (loads) whole_ = whole || !from_file;
  return whole_ && !whole ? "the sections' lengths\n" : "";
}

}  // namespace ovl::testing
