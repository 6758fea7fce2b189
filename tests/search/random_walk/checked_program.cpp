#include "search/random_walk/checked_program.h"

#include <algorithm>
#include <sstream>

#include "firmware/traits.h"
#include "image/field_map.h"
#include "script/parser.h"
#include "script/runner.h"
#include "search/random_walk/allowed_writes.h"
#include "support/firmware_facts.h"

namespace ovl::testing {
namespace {

bool IsHex(const std::string& text) {
  return text.find_first_not_of("0123456789ABCDEF") == std::string::npos;
}

// The statement loads a whole image or starts another program.
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
      return named.name + " has the position " + std::to_string(at) + "\n";
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

CheckedProgram::CheckedProgram(const firmware::FirmwareId& stored, Digest* digest)
    : digest_(digest), session_(printed_, printed_), undo_(session_) {
  session_.SetClock({});
  session_.StoreSetting("Version", stored.version);
  session_.StoreSetting("Release", stored.release);
  session_.Start();
  before_ = Image();
}

std::string CheckedProgram::Do(const std::string& line) {
  std::istringstream script(line);
  std::ostringstream errors;
  if (script::RunScript(session_, script, "random acts", errors) != script::ExitStatus::kDone)
    return "stopped: " + errors.str();
  if (digest_ != nullptr) AddToDigest();
  printed_.str({});
  session_.TakeSent();
  while (session_.TakeBox()) continue;
  const auto wrong = Ended() ? std::string() : CheckImage(line) + CheckLists(App()) + CheckFrames(App());
  return wrong + undo_.AfterStatement();
}

void CheckedProgram::AddToDigest() {
  for (const auto& box : session_.Boxes()) digest_->Add(box.title + box.text);
  digest_->Add(printed_.str());
  digest_->Add(session_.TakeSent());
  digest_->AddState(App());
}

std::string CheckedProgram::CheckImage(const std::string& line) {
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

std::string CheckedProgram::CheckFields(const std::string& control, bool loads) {
  const auto& form = App().frmMain;
  const auto* named = App().registry.Find(control);
  const auto& writes = WritesOf(named == nullptr ? control : FullName(App(), *named));
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
                     (row.id == image::FieldId::TRIGGER_TEXT && writes.part == RecordPart::kFirstByte));
      const bool may_write =
          loads || ((shown == 0 || entry == shown) && writes.Has(row.id) &&
                    (!record || WithoutPart(writes.part, range, was) == WithoutPart(writes.part, range, is)));
      if (in_form && may_write) continue;
      wrong << control << " wrote " << row.name << ' ' << entry << ": " << was << ", now " << is << '\n';
    }
  }
  return wrong.str();
}

std::string CheckedProgram::CheckLengths(bool loads, bool from_file) {
  auto& app = App();
  // This release does not read one flag, but sends it when a panel has set it.
  const std::size_t more =
      app.firmware.Joined() == "V1400R7" && !Image()[image::FieldId::BLNKRTS_BAK].empty() ? 2 : 0;
  auto copy = Image();
  const auto sections =
      image::WriteSections(copy, firmware::LayoutOf(app.firmware), app.firmware, app.capabilities);
  const auto& expected = FactsOf(app.firmware).stream;
  const bool whole = sections.SYSCFG.size() == expected.syscfg &&
                     sections.SYSFIXED.size() == expected.sysfixed + more &&
                     expected.syscfg + expected.sysfixed + sections.SYSSTR.size() == expected.digits;
  // All releases save one layout. Some of them read their own file as a shorter image.
  if (loads) whole_ = whole || !from_file;
  return whole_ && !whole ? "the sections' lengths\n" : "";
}

}  // namespace ovl::testing
