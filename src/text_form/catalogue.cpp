#include "text_form/catalogue.h"

#include <algorithm>
#include <array>
#include <set>

#include "changes/editors.h"
#include "changes/wording.h"
#include "codecs/codecs.h"
#include "firmware/traits.h"
#include "image/field_map.h"
#include "text_form/encoding.h"

namespace ovl::text_form {
namespace {

using core::ValueDisplay;
using image::FieldId;

constexpr std::string_view kRegister = "ComboReg";
constexpr std::string_view kTrigger = "ComboALM(1)";

Kind KindOf(std::string_view control) {
  if (control == "TextException") return Kind::kExceptionText;
  if (control == "TextTrigger") return Kind::kTriggeredText;
  if (control == "Title_Text") return Kind::kTitle;
  if (control == "cmdSetRange") return Kind::kRange;
  return control == "ECRNumber" ? Kind::kNumber : Kind::kChoice;
}

bool Names(std::string_view controls, std::string_view control) {
  while (!controls.empty()) {
    const auto name = controls.substr(0, controls.find(' '));
    if (name == control) return true;
    controls.remove_prefix(std::min(controls.size(), name.size() + 1));
  }
  return false;
}

ValueDisplay DisplayOf(const Setting& setting) {
  for (const auto& editor : changes::Editors()) {
    if (editor.field == setting.parts.front().field && Names(editor.controls, setting.control))
      return editor.display;
  }
  return ValueDisplay::kNothing;
}

bool IsOneBit(int bits) {
  return bits != 0 && (bits & (bits - 1)) == 0;
}

// What the entries store by their declaration: the place in the list of registers, one bit, or the parity.
// Nothing for lists whose picks have to say it.
std::vector<std::string> DeclaredCodes(const Setting& setting, std::size_t entries) {
  const int bits = setting.parts.front().bits;
  const auto display = DisplayOf(setting);
  std::vector<int> codes;
  if (setting.control == kRegister) {
    for (std::size_t entry = 0; entry < entries; ++entry) codes.push_back(static_cast<int>(entry));
  } else if (display == ValueDisplay::kParity) {
    for (const int entry : {0, 1, 2}) codes.push_back(image::WithParityEntry(0, entry));
  } else if (entries == 2 && IsOneBit(bits) && setting.parts.size() == 1) {
    codes = {0, bits};
    if (display == ValueDisplay::kSetIsOff) std::reverse(codes.begin(), codes.end());
  }
  std::vector<std::string> digits;
  for (const int code : codes) digits.push_back(codecs::ByteToHex(code));
  return digits;
}

// Entries of the same words stay with the first of them. One without words cannot be named.
std::shared_ptr<Choices> ChoicesOf(const std::vector<std::string>& entries,
                                   const std::vector<std::vector<std::string>>& stored) {
  auto choices = std::make_shared<Choices>();
  std::set<std::string> known;
  for (std::size_t entry = 0; entry < std::min(entries.size(), stored.size()); ++entry) {
    if (!entries[entry].empty() && known.insert(entries[entry]).second)
      choices->push_back({entries[entry], stored[entry]});
  }
  return choices;
}

// The form and a comparison have a mark in front of the triggers that are exceptions.
void AddMarks(Choices& triggers, const std::string& mark) {
  for (auto& trigger : triggers) {
    const auto [first, last] = image::ExceptionsOfTrigger(codecs::HexToInt(trigger.stored.front()));
    if (first <= last) trigger.marked = mark + " " + trigger.words;
  }
}

std::string TableOf(const core::Application& app, const Setting& setting, core::Place place) {
  if (setting.slot == 0) return changes::TabCaption(app, setting.tab);
  const bool alarm = place == core::Place::kAlarmOutputs;
  return (alarm ? "Alarm " : "Exception ") + std::to_string(setting.slot);
}

// One byte that several controls show: the first ones have their bits.
void Claim(std::map<std::pair<FieldId, int>, int>& claimed, Setting& setting) {
  for (auto& part : setting.parts) {
    auto& bits = claimed[{part.field, part.entry}];
    if (part.digits.first != 0 || setting.kind != Kind::kChoice) continue;
    part.bits &= ~bits;
    bits |= part.bits;
  }
}

}  // namespace

// The timeout of scroll matching is 0 or not.
bool IsDecidedByAnother(std::string_view control) {
  return control == "ComboScroll(0)";
}

Catalogue::Catalogue(const core::Application& like) : like_(like), firmware_(like.image_firmware) {
  AddFields();
  GiveChoices();
  SortByTable();
  for (const auto* row : changes::AllOptions()) {
    if (row->fields.empty()) continue;
    const auto known = std::find_if(options_.begin(), options_.end(), [&](const OptionRows& rows) {
      return rows.front()->control == row->control;
    });
    if (known == options_.end()) {
      options_.push_back({row});
    } else {
      known->push_back(row);
    }
  }
}

void Catalogue::AddFields() {
  const auto layout = firmware::LayoutOf(firmware_);
  const auto capabilities = firmware::CapabilitiesOf(firmware_);
  for (const auto& row : image::FieldTable()) {
    // A field that is sent and never read is not there after a load, and shifts what is behind it.
    const bool is_read = image::InStream(row, layout, firmware_, capabilities, image::Direction::kRead);
    if (!is_read || !image::InStream(row, layout, firmware_, capabilities, image::Direction::kWrite))
      continue;
    for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) {
      image::FieldDifference field;
      field.field = &row;
      field.entry = entry;
      for (const auto& group : changes::SitesOf(field, firmware_)) {
        for (const auto& site : group) AddSite(site, row.id, entry);
      }
    }
  }
}

// Some firmware have shorter records, without the last settings.
void Catalogue::AddSite(const changes::Site& site, FieldId field, int entry) {
  if (site.option != nullptr || IsDecidedByAnother(site.control)) return;
  if (site.digits.first >= DigitsOfField(field, firmware_)) return;
  const FieldPart part{field, entry, site.digits, site.bits};
  const auto known = std::find_if(panels_.begin(), panels_.end(), [&](const Setting& setting) {
    return setting.control == site.control && setting.slot == site.slot;
  });
  if (known != panels_.end()) {
    known->parts.push_back(part);
    return;
  }
  Setting setting;
  setting.tab = changes::TabOf(site.place);
  setting.slot = site.slot;
  setting.table = TableOf(like_, setting, site.place);
  auto without_slot = site;
  without_slot.slot = 0;
  setting.key = changes::SlotCaption(like_, without_slot);
  setting.control = site.control;
  setting.kind = KindOf(site.control);
  setting.parts = {part};
  panels_.push_back(std::move(setting));
}

// What the form of this firmware never shows, with settings off or on, nobody can read there. Its bytes are
// still part of the text form.
void Catalogue::DropHidden(const changes::PreviewProgram& off, const changes::PreviewProgram& on) {
  const auto is_hidden = [&](const Setting& setting) {
    return setting.kind == Kind::kChoice && !off.Shows(setting.control) && !on.Shows(setting.control);
  };
  panels_.erase(std::remove_if(panels_.begin(), panels_.end(), is_hidden), panels_.end());
}

void Catalogue::GiveChoices() {
  const auto zeros = FilledImage(firmware_, '0'), ones = FilledImage(firmware_, 'F');
  changes::PreviewProgram program(like_, zeros);
  program.ShowException(1);
  program.ShowAlarm(1);
  DropHidden(program, changes::PreviewProgram(like_, ones));
  std::map<std::string, Setting> of_first_slot;
  std::map<std::pair<FieldId, int>, int> claimed;
  for (auto& setting : panels_) {
    if (setting.kind != Kind::kChoice) continue;
    const auto entries = EntriesOf(program, setting.control);
    const auto codes = DeclaredCodes(setting, entries.size());
    const auto known = of_first_slot.find(setting.control);
    if (!codes.empty()) {
      std::vector<std::vector<std::string>> stored;
      for (const auto& code : codes) stored.push_back({code});
      setting.choices = ChoicesOf(entries, stored);
    } else if (known != of_first_slot.end()) {
      const int entry = setting.parts.front().entry;
      setting.parts = known->second.parts;
      for (auto& part : setting.parts) part.entry = entry;
      setting.choices = known->second.choices;
    } else {
      auto picked = PickEach(program, setting.control, setting.parts, zeros, ones);
      setting.parts = std::move(picked.parts);
      const auto choices = ChoicesOf(entries, picked.stored);
      if (setting.control == kTrigger) AddMarks(*choices, like_.frmMain.lbAlmTrig.caption);
      setting.choices = choices;
    }
    if (setting.slot == 1) of_first_slot.emplace(setting.control, setting);
    Claim(claimed, setting);
  }
  panels_.erase(std::remove_if(panels_.begin(), panels_.end(),
                               [](Setting& setting) {
                                 auto& parts = setting.parts;
                                 parts.erase(std::remove_if(parts.begin(), parts.end(),
                                                            [](const auto& part) { return part.bits == 0; }),
                                             parts.end());
                                 return parts.empty();
                               }),
                panels_.end());
}

void Catalogue::SortByTable() {
  std::stable_sort(panels_.begin(), panels_.end(), [](const Setting& one, const Setting& other) {
    return std::pair(one.tab, one.slot) < std::pair(other.tab, other.slot);
  });
  for (const auto& setting : panels_) {
    if (std::find(tables_.begin(), tables_.end(), setting.table) == tables_.end())
      tables_.push_back(setting.table);
    by_name_.emplace(std::pair(std::string_view(setting.table), std::string_view(setting.key)), &setting);
  }
}

const Setting* Catalogue::Find(std::string_view table, std::string_view key) const {
  const auto found = by_name_.find({table, key});
  return found == by_name_.end() ? nullptr : found->second;
}

const Setting* Catalogue::Showing(std::string_view control, int slot) const {
  const auto found = std::find_if(panels_.begin(), panels_.end(), [&](const Setting& setting) {
    return setting.control == control && setting.slot == slot;
  });
  return found == panels_.end() ? nullptr : &*found;
}

// What decides about the options: the register and the fields that they show.
std::string Catalogue::StoredOptions(const image::ConfigImage& image) const {
  std::string stored = image[FieldId::REGTYPE];
  for (const auto& rows : options_) {
    for (const auto* row : rows) {
      for (const auto field : row->fields) stored.append(" ").append(image.at(field, row->entry));
    }
  }
  return stored;
}

std::vector<Setting> Catalogue::OfRegister(const image::ConfigImage& image) {
  constexpr std::size_t kKept = 4;
  auto stored = StoredOptions(image);
  for (const auto& offer : offers_) {
    if (offer.stored == stored) return offer.settings;
  }
  std::vector<Setting> settings;
  const changes::PreviewProgram program(like_, image);
  for (const auto& rows : options_) {
    if (!changes::IsOnScreen(program, *rows.front())) continue;
    if (auto setting = OptionSetting(program, rows, image)) settings.push_back(std::move(*setting));
  }
  offers_.push_front({std::move(stored), settings});
  if (offers_.size() > kKept) offers_.pop_back();
  return settings;
}

std::vector<std::string> Catalogue::OptionKeys() const {
  std::vector<std::string> keys;
  for (const auto& rows : options_) {
    changes::Site site{core::Place::kRegister, rows.front()->control};
    site.option = rows.front();
    keys.push_back(changes::SlotCaption(like_, site));
  }
  return keys;
}

std::optional<Setting> Catalogue::OptionSetting(const changes::PreviewProgram& program,
                                                const OptionRows& rows, const image::ConfigImage& image) {
  changes::Site site{core::Place::kRegister, rows.front()->control};
  site.option = rows.front();
  Setting setting;
  setting.tab = changes::TabOf(site.place);
  setting.table = changes::TabCaption(like_, setting.tab);
  setting.key = changes::SlotCaption(program.Form(), site);
  setting.control = site.control;
  setting.kind = KindOf(site.control);
  if (setting.kind == Kind::kNumber) {
    for (const auto* row : rows) setting.parts.push_back({row->fields.front(), row->entry});
    return setting;
  }
  const auto& encoding = EncodingOf(rows, image);
  if (encoding.parts.empty()) return std::nullopt;
  setting.parts = encoding.parts;
  setting.choices = ChoicesOf(EntriesOf(program, setting.control), encoding.stored);
  return setting;
}

// The handler of the option stores it, or its position is one of the fields; what the form shows after a load
// decides. Some firmware read another field than they write.
const Catalogue::Encoding& Catalogue::EncodingOf(const OptionRows& rows, const image::ConfigImage& image) {
  const auto control = rows.front()->control;
  const auto [known, is_new] = encodings_.try_emplace({image[FieldId::REGTYPE], control});
  auto& encoding = known->second;
  if (!is_new) return encoding;
  changes::PreviewProgram program(like_, image);
  const auto entries = EntriesOf(program, control);
  std::vector<Encoding> candidates;
  std::vector<FieldPart> parts;
  for (const auto field : rows.front()->fields) {
    const bool is_first = field == rows.front()->fields.front();
    parts.push_back({field, rows.front()->entry, {}, is_first ? rows.front()->bits : core::kWholeByte});
    auto& by_position = candidates.emplace_back();
    by_position.parts = {{field, rows.front()->entry}};
    for (std::size_t entry = 0; entry < entries.size(); ++entry)
      by_position.stored.push_back({codecs::ByteToHex(static_cast<int>(entry))});
  }
  auto picked = PickEach(program, control, parts, FilledImage(firmware_, '0'), FilledImage(firmware_, 'F'));
  candidates.insert(candidates.begin(), {std::move(picked.parts), std::move(picked.stored)});
  for (auto& candidate : candidates) {
    if (candidate.parts.empty() || candidate.stored.empty() || !ShowsWhatItStores(candidate, control, image))
      continue;
    encoding = std::move(candidate);
    break;
  }
  return encoding;
}

// Whether the form shows each entry after a load of what the entry stores.
bool Catalogue::ShowsWhatItStores(const Encoding& encoding, std::string_view control,
                                  const image::ConfigImage& image) const {
  for (const std::size_t entry : {std::size_t{0}, encoding.stored.size() - 1}) {
    auto with_entry = image;
    for (std::size_t part = 0; part < encoding.parts.size(); ++part)
      Store(with_entry, encoding.parts[part], encoding.stored[entry][part]);
    const changes::PreviewProgram program(like_, with_entry);
    if (program.EntryShown(control) != static_cast<int>(entry)) return false;
  }
  return true;
}

}  // namespace ovl::text_form
