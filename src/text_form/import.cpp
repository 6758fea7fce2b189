#include "text_form/import.h"

#include <algorithm>
#include <map>
#include <set>

#include "codecs/windows_1252.h"
#include "firmware/firmware_table.h"
#include "image/stream_entries.h"
#include "text_form/coverage.h"
#include "text_form/encoding.h"
#include "text_form/export.h"
#include "text_form/messages.h"

namespace ovl::text_form {
namespace {

std::string NameOf(const firmware::FirmwareId& firmware) {
  return firmware.version + " " + firmware.release;
}

class Importer {
 public:
  Importer(Catalogue& catalogue, const image::ConfigImage& base, const Document& document)
      : catalogue_(catalogue), firmware_(catalogue.Firmware()), document_(document) {
    result_.image = base;
    const auto known = firmware::FindFirmware(FirmwareNamed(document));
    foreign_ = known && firmware::ServedFirmware(known->Joined()) != firmware_;
    complete_ = IsComplete(document) && !foreign_;
  }

  Imported Run() {
    result_.problems = HeaderProblems(document_);
    if (!result_.problems.empty()) return std::move(result_);
    if (foreign_)
      Say(HeaderOf(document_, kFirmwareKey)->value.at,
          "the text is of " + FirmwareNamed(document_) + ", this program serves " + NameOf(firmware_), true);
    if (complete_) Clear();
    for (const auto& entry : document_.entries) {
      if (entry.table.empty()) continue;
      if (entry.table == kOtherBytes) {
        others_.push_back(&entry);
      } else {
        ReadSetting(entry);
      }
    }
    for (const auto& table : document_.empty_tables) {
      const auto here = TableHere(table.table);
      if (here != kOtherBytes && !IsTable(here)) SayUnknown(table, here);
    }
    ReadOtherBytes();
    ReadOptions();
    if (complete_ && result_.problems.empty()) ExpectAll();
    std::stable_sort(result_.problems.begin(), result_.problems.end(),
                     [](const Problem& one, const Problem& other) { return one.at < other.at; });
    return std::move(result_);
  }

 private:
  void Say(Position at, std::string words, bool of_other_firmware = false) {
    result_.problems.push_back({at, std::move(words), of_other_firmware});
  }

  // What is not named is zero in a complete form.
  void Clear() {
    image::ForEachStreamEntry(firmware_, [&](const image::FieldRow& row, int entry) {
      result_.image.at(row.id, entry).assign(DigitsOfField(row.id, firmware_), '0');
    });
  }

  void ReadSetting(const Entry& entry) {
    const auto table = TableHere(entry.table);
    if (const auto* setting = catalogue_.Find(table, entry.key)) {
      named_.insert(setting);
      const auto before = result_.problems.size();
      Take(*setting, entry);
      const bool is_register = setting == &catalogue_.OfPanels().front();
      register_left_out_ |= is_register && foreign_ && result_.problems.size() > before;
    } else if (table == catalogue_.Tables().front()) {
      options_.push_back(&entry);
    } else {
      SayUnknown(entry, table);
    }
  }

  bool IsTable(std::string_view name) const {
    const auto& tables = catalogue_.Tables();
    return std::find(tables.begin(), tables.end(), name) != tables.end();
  }

  // A tab can have a longer caption under another firmware: "TIME" and "TIME / LANGUAGE".
  std::string_view TableHere(std::string_view name) const {
    if (!foreign_ || IsTable(name)) return name;
    const auto begins = [](std::string_view longer, std::string_view shorter) {
      return longer.starts_with(shorter) && longer.substr(shorter.size()).starts_with(' ');
    };
    for (const auto& table : catalogue_.Tables()) {
      if (begins(table, name) || begins(name, table)) return table;
    }
    return name;
  }

  void SayUnknown(const Entry& entry, std::string_view table) {
    const bool is_read = result_.problems.size() < kMostProblems;  // nobody reads more suggestions
    if (!IsTable(table)) {
      if (!unknown_tables_.insert(entry.table).second) return;
      Say(entry.at,
          "there is no table [" + Escaped(table) + "]" +
              (is_read ? Suggestion(table, catalogue_.Tables()) : std::string()),
          foreign_);
      return;
    }
    Say(entry.at,
        InQuotes(entry.key) + " is no setting of [" + std::string(table) + "]" +
            (is_read ? Suggestion(entry.key, KeysOf(table)) : std::string()),
        foreign_);
  }

  std::vector<std::string> KeysOf(std::string_view table) const {
    std::vector<std::string> keys;
    for (const auto& setting : catalogue_.OfPanels()) {
      if (setting.table == table) keys.push_back(setting.key);
    }
    return keys;
  }

  void Take(const Setting& setting, const Entry& entry) {
    const auto& value = entry.value;
    if (value.kind == ValueKind::kBytes && foreign_)
      return Say(value.at, "the bytes of another firmware are not taken", true);
    if (value.kind == ValueKind::kBytes) {
      if (!StoreDigits(setting, value.text, result_.image, firmware_)) {
        Say(value.at,
            Written(value) + " is not allowed for " + InQuotes(setting.key) + "; allowed: bytes such as \"" +
                DigitsOf(setting, result_.image, firmware_) + "\"",
            foreign_);
      }
      return;
    }
    const bool takes_number = setting.kind == Kind::kChoice || setting.kind == Kind::kNumber;
    if (value.kind != ValueKind::kText && !(value.kind == ValueKind::kNumber && takes_number)) {
      Say(value.at, Written(value) + " is not allowed for " + InQuotes(setting.key) +
                        "; allowed: a text in quotes, or { bytes = \"...\" }");
      return;
    }
    const auto words = codecs::Windows1252OfUtf8(value.text);
    if (!words) {
      Say(value.at, InQuotes(value.text) + " has characters that the unit does not have");
      return;
    }
    const auto allowed = StoreWords(setting, *words, result_.image, firmware_);
    if (allowed) Say(value.at, NotAllowed(setting, value.text, *allowed), foreign_);
  }

  // ---- Other bytes

  struct Target {
    const image::FieldRow* row = nullptr;
    int entry = 1;
  };

  const Target* TargetOf(const Entry& entry) {
    if (targets_.empty()) {
      image::ForEachStreamEntry(firmware_, [&](const image::FieldRow& row, int of_entry) {
        targets_[image::EntryName(row.name, image::EntryCount(row.id), of_entry)] = {&row, of_entry};
      });
    }
    const auto found = targets_.find(entry.key);
    if (found != targets_.end()) return &found->second;
    if (field_names_.empty()) {
      for (const auto& [name, target] : targets_) field_names_.push_back(name);
    }
    Say(entry.at,
        InQuotes(entry.key) + " is no field of " + NameOf(firmware_) + Suggestion(entry.key, field_names_),
        foreign_);
    return nullptr;
  }

  void ReadOtherBytes() {
    if (others_.empty()) return;
    Coverage panels;
    for (const auto& setting : catalogue_.OfPanels()) panels.Add(setting, firmware_);
    for (const auto* entry : others_) {
      const auto* target = TargetOf(*entry);
      if (target == nullptr) continue;
      if (foreign_) {
        Say(entry->at, "the bytes of another firmware are not taken", true);
      } else if (entry->value.kind == ValueKind::kDigits) {
        TakeAsItIs(*target, *entry);
      } else if (!complete_ && !IsRead(*target->row)) {
        Say(entry->at, "a unit of " + NameOf(firmware_) + " never sends " + InQuotes(entry->key) +
                           ", so it is only for the whole of an image");
      } else if (IsBytes(*target, *entry)) {
        TakeBits(panels, *target, *entry);
      }
    }
  }

  bool IsRead(const image::FieldRow& row) const {
    return image::InStream(row, firmware::LayoutOf(firmware_), firmware_, firmware::CapabilitiesOf(firmware_),
                           image::Direction::kRead);
  }

  // A field of another length shifts what is behind it in a download, so it is only for the whole of an
  // image.
  void TakeAsItIs(const Target& target, const Entry& entry) {
    if (!complete_)
      return Say(entry.value.at, Written(entry.value) + " is allowed only with the line \"complete = true\"");
    if (!CanBeSent(entry.value.text))
      return Say(entry.value.at, Written(entry.value) +
                                     " is not allowed here; allowed: at most 1000 letters and digits of a "
                                     "record stream");
    for (const auto* setting : named_) {
      const bool is_inside = std::all_of(
          setting->parts.begin(), setting->parts.end(),
          [&](const FieldPart& part) { return part.field == target.row->id && part.entry == target.entry; });
      if (is_inside)
        return Say(entry.value.at, "the line " + InQuotes(setting->key) + " of [" + setting->table +
                                       "] stores this field too: leave out one of them");
    }
    as_they_are_.push_back({target, entry.value.text});
  }

  bool IsBytes(const Target& target, const Entry& entry) {
    const auto& digits = entry.value.text;
    const auto width = DigitsOfField(target.row->id, firmware_);
    if (entry.value.kind == ValueKind::kText && digits.size() <= width && digits.size() % 2 == 0 &&
        IsRegular(digits, digits.size()))
      return true;
    const auto most = std::to_string(width / 2) + (width == 2 ? " byte" : " bytes");
    Say(entry.value.at, Written(entry.value) + " is not allowed here; allowed: at most " + most +
                            " of two digits 0 to 9 and A to F");
    return false;
  }

  void TakeBits(const Coverage& panels, const Target& target, const Entry& entry) {
    const auto width = DigitsOfField(target.row->id, firmware_);
    const auto mask = panels.Outside(target.row->id, target.entry, std::string(width, 'F'));
    auto digits = entry.value.text;
    digits.resize(width, '0');
    if (IsZero(mask) || !IsZero(panels.Inside(target.row->id, target.entry, digits)))
      return Say(entry.value.at, InQuotes(entry.value.text) + " has bits that other lines store");
    auto& value = result_.image.at(target.row->id, target.entry);
    if (!IsRegular(value, width)) value.assign(width, '0');
    Merge(value, digits, mask);
    bits_taken_.push_back({target, {&entry, digits}});
  }

  // The options of the register are known only later.
  void ExpectOtherBits(const std::vector<std::pair<Setting, const Entry*>>& options) {
    Coverage coverage;
    for (const auto& [setting, entry] : options) coverage.Add(setting, firmware_);
    for (const auto& [target, line] : bits_taken_) {
      if (!IsZero(coverage.Inside(target.row->id, target.entry, line.second)))
        Say(line.first->value.at, InQuotes(line.first->value.text) + " has bits that an option stores");
    }
  }

  // ---- Options of the register

  // An option can bring another one, or change what it offers. So the register is asked again until the
  // options that it offers store nothing else.
  void ReadOptions() {
    if (register_left_out_) {
      for (const auto* entry : options_)
        Say(entry->at, InQuotes(entry->key) + " is an option of a register that is left out", true);
      return;
    }
    constexpr int kMostRounds = 8;
    std::vector<std::pair<Setting, const Entry*>> taken;
    auto before = result_.problems;
    for (int round = 0; round < kMostRounds && !options_.empty(); ++round) {
      const auto image = result_.image;
      result_.problems = before;
      taken = TakeOffered();
      if (round > 0 && image == result_.image) break;
    }
    for (const auto* entry : options_) {
      const bool is_taken = std::any_of(taken.begin(), taken.end(),
                                        [&](const auto& setting) { return setting.second == entry; });
      if (!is_taken) SayNoOption(*entry);
    }
    for (const auto& [target, digits] : as_they_are_) result_.image.at(target.row->id, target.entry) = digits;
    ExpectOtherBits(taken);
    if (result_.problems.empty()) ExpectTogether(taken);
  }

  // With a byte that fits no entry, the form shows none of the options.
  std::vector<Setting> Offered() const {
    auto offered = catalogue_.OfRegister(result_.image);
    return offered.empty() ? catalogue_.OfRegister(WithoutOptions()) : offered;
  }

  std::vector<std::pair<Setting, const Entry*>> TakeOffered() {
    std::vector<std::pair<Setting, const Entry*>> taken;
    for (auto& setting : Offered()) {
      const auto found = std::find_if(options_.begin(), options_.end(),
                                      [&](const Entry* entry) { return entry->key == setting.key; });
      if (found == options_.end()) continue;
      Take(setting, **found);
      taken.emplace_back(std::move(setting), *found);
    }
    return taken;
  }

  // The first entries of all options.
  image::ConfigImage WithoutOptions() const {
    auto image = result_.image;
    for (const auto field : {image::FieldId::REGTYPE_MINOR, image::FieldId::REGTYPE_EXT1,
                             image::FieldId::REGTYPE_EXT2, image::FieldId::UNITADDR})
      image[field] = "00";
    return image;
  }

  void SayNoOption(const Entry& entry) {
    auto keys = KeysOf(entry.table);
    for (const auto& setting : Offered()) keys.push_back(setting.key);
    const auto all = catalogue_.OptionKeys();
    const bool known = std::find(all.begin(), all.end(), entry.key) != all.end();
    Say(entry.at,
        InQuotes(entry.key) +
            (known ? " is no option of this register, or not together with its other options"
                   : " is no setting of [" + entry.table + "]") +
            Suggestion(entry.key, keys),
        foreign_);
  }

  // Two lines can name the same byte.
  void ExpectTogether(const std::vector<std::pair<Setting, const Entry*>>& taken) {
    for (const auto& [setting, entry] : taken) {
      auto again = result_.image;
      Importer alone(catalogue_, again, document_);
      alone.Take(setting, *entry);
      if (alone.result_.image != result_.image)
        Say(entry->value.at, InQuotes(entry->value.text) + " does not go together with the other options");
    }
  }

  // ---- A complete form

  void ExpectAll() {
    std::vector<std::string> missing;
    const auto add = [&](const Setting& setting) {
      missing.push_back(InQuotes(setting.key) + " of [" + setting.table + "]");
    };
    for (const auto& setting : catalogue_.OfPanels()) {
      if (named_.count(&setting) == 0 && IsStored(setting, result_.image, firmware_)) add(setting);
    }
    for (const auto& setting : catalogue_.OfRegister(result_.image)) {
      const bool named = std::any_of(options_.begin(), options_.end(),
                                     [&](const Entry* entry) { return entry->key == setting.key; });
      if (!named && WordsOf(setting, result_.image, firmware_)) add(setting);
    }
    if (missing.empty()) return;
    const auto others = missing.size() - 1;
    Say(HeaderOf(document_, kCompleteKey)->at,
        (others == 0 ? missing.front() + " is missing"
                     : missing.front() + " and " + std::to_string(others) + " others are missing") +
            ". Without the line \"complete = true\", what is not named keeps its value");
  }

  Catalogue& catalogue_;
  const firmware::FirmwareId& firmware_;
  const Document& document_;
  Imported result_;
  bool foreign_ = false;
  bool complete_ = false;
  bool register_left_out_ = false;
  std::set<const Setting*> named_;
  std::set<std::string> unknown_tables_;
  std::vector<const Entry*> others_, options_;
  std::vector<std::string> field_names_;
  std::map<std::string, Target> targets_;  // by the names of the fields
  std::vector<std::pair<Target, std::pair<const Entry*, std::string>>> bits_taken_;
  std::vector<std::pair<Target, std::string>> as_they_are_;
};

}  // namespace

Imported Import(Catalogue& catalogue, const image::ConfigImage& base, const Document& document,
                Strictness strictness) {
  if (!document.problems.empty()) return {base, document.problems, {}};
  auto imported = Importer(catalogue, base, document).Run();
  if (strictness == Strictness::kWhole) {
    Cut(imported.problems);
    return imported;
  }
  const auto left_out =
      std::stable_partition(imported.problems.begin(), imported.problems.end(),
                            [](const Problem& problem) { return !problem.of_other_firmware; });
  imported.left_out.assign(left_out, imported.problems.end());
  imported.problems.erase(left_out, imported.problems.end());
  Cut(imported.problems);
  Cut(imported.left_out);
  return imported;
}

}  // namespace ovl::text_form
