#include "text_form/import/import.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

#include "codecs/codecs.h"
#include "codecs/windows_1252.h"
#include "firmware/firmware_table.h"
#include "firmware/register_lists.h"
#include "image/stream_entries.h"
#include "text_form/encoding.h"
#include "text_form/export.h"
#include "text_form/import/other_byte_lines.h"
#include "text_form/messages.h"

namespace ovl::text_form {
namespace {

std::string NameOf(const firmware::FirmwareId& firmware) {
  return firmware.version + " " + firmware.release;
}

class Importer {
 public:
  // `own`: the catalogue of the firmware that the form names, if it is another one.
  Importer(Catalogue& catalogue, const Catalogue* own, const image::ConfigImage& base,
           const Document& document)
      : catalogue_(catalogue),
        firmware_(catalogue.Firmware()),
        own_(own),
        document_(document),
        complete_(IsComplete(document) && own == nullptr),
        other_bytes_(catalogue, complete_ || !document.problems.empty(),
                     [this](Position at, std::string words) { Say(at, words); }) {
    result_.image = base;
  }

  Imported Run() {
    if (own_ != nullptr)
      Say(HeaderOf(document_, kFirmwareKey)->value.at,
          "the text is of " + FirmwareNamed(document_) + ", this program uses " + NameOf(firmware_));
    if (complete_) Clear();
    for (const auto& entry : document_.entries) {
      if (entry.table.empty()) continue;
      if (entry.table != kOtherBytes) {
        ReadSetting(entry);
      } else if (own_ == nullptr) {
        others_.push_back(&entry);
      } else {
        Say(entry.at, "the program does not use the bytes of another firmware");
      }
    }
    for (const auto& table : document_.tables) ExpectTable(table);
    other_bytes_.Take(others_, named_, result_.image);
    // What depends on other lines is not judged where some could not be read.
    if (document_.problems.empty()) {
      ReadOptions();
      if (complete_ && result_.problems.empty()) ExpectAll();
    } else {
      ExpectKnownOptions();
    }
    SortByPlace(result_.problems);
    return std::move(result_);
  }

 private:
  void Say(Position at, std::string words) { result_.problems.push_back({at, std::move(words)}); }

  // What is not named is zero in a complete form.
  void Clear() {
    image::ForEachStreamEntry(firmware_, [&](const image::FieldRow& row, int entry) {
      result_.image.at(row.id, entry).assign(DigitsOfField(row.id, firmware_), '0');
    });
  }

  // The same control can have another caption, and its tab too.
  const Setting* SettingOf(const Entry& entry) const {
    if (own_ == nullptr) return catalogue_.Find(entry.table, entry.key);
    const auto* setting = own_->Find(entry.table, entry.key);
    return setting == nullptr ? nullptr : catalogue_.Showing(setting->control, setting->slot);
  }

  bool CanBeOption(const Entry& entry) const {
    if (own_ != nullptr) return own_->Find(entry.table, entry.key) == nullptr;
    return entry.table == catalogue_.Tables().front();
  }

  void ReadSetting(const Entry& entry) {
    if (const auto* setting = SettingOf(entry)) {
      named_.insert(setting);
      const auto before = result_.problems.size();
      Take(*setting, entry);
      const bool is_register = setting == &catalogue_.OfPanels().front();
      register_failed_ |= is_register && result_.problems.size() > before;
    } else if (CanBeOption(entry)) {
      options_.push_back(&entry);
    } else {
      SayUnknown(entry);
    }
  }

  bool IsTable(std::string_view name) const {
    const auto& tables = catalogue_.Tables();
    return std::find(tables.begin(), tables.end(), name) != tables.end();
  }

  void ExpectTable(const Table& table) {
    if (own_ != nullptr || table.name == kOtherBytes || IsTable(table.name)) return;
    const bool is_read = result_.problems.size() < kMostProblems;  // nobody reads more suggestions
    Say(table.at, "there is no table [" + Escaped(table.name) + "]" +
                      (is_read ? Suggestion(table.name, catalogue_.Tables()) : std::string()));
  }

  void SayUnknown(const Entry& entry) {
    if (own_ != nullptr)
      return Say(entry.at, NameOf(firmware_) + " does not have " + InQuotes(entry.key) + " of [" +
                               Escaped(entry.table) + "]");
    if (!IsTable(entry.table)) return;
    const bool is_read = result_.problems.size() < kMostProblems;
    Say(entry.at, InQuotes(entry.key) + " is not a setting of [" + entry.table + "]" +
                      (is_read ? Suggestion(entry.key, KeysOf(entry.table)) : std::string()));
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
    if (value.kind == ValueKind::kBytes && own_ != nullptr)
      return Say(value.at, "the program does not use the bytes of another firmware");
    if (value.kind == ValueKind::kBytes) {
      if (!StoreDigits(setting, InCapitals(value.text), result_.image, firmware_)) {
        Say(value.at, Written(value) + " is not allowed for " + InQuotes(setting.key) +
                          "; allowed: bytes such as \"" + DigitsOf(setting, result_.image, firmware_) + "\"");
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
      Say(value.at, InQuotes(codecs::WithoutCode(value.text)) +
                        " is not a character of the unit; allowed: those of Windows-1252");
      return;
    }
    const auto allowed = StoreWords(setting, *words, result_.image, firmware_);
    if (allowed) Say(value.at, NotAllowed(setting, value.text, *allowed));
  }

  // ---- Options of the register

  // An option can bring another one, or change what it offers. So the register is asked again until the
  // options that it offers store nothing else.
  void ReadOptions() {
    if (register_failed_) {
      for (const auto* entry : options_) {
        if (own_ == nullptr) continue;
        Say(entry->at, InQuotes(entry->key) + " is an option of a register that is left out");
      }
      return;
    }
    constexpr int kMostRounds = 8;
    std::vector<OtherByteLines::OptionLine> taken;
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
    other_bytes_.StoreIrregular(result_.image);
    other_bytes_.ExpectNoBitsOf(taken);
    if (result_.problems.empty()) ExpectTogether(taken);
  }

  void ExpectKnownOptions() {
    const auto all = catalogue_.OptionKeys();
    for (const auto* entry : options_) {
      if (std::find(all.begin(), all.end(), entry->key) == all.end()) SayNoOption(*entry);
    }
  }

  // With a byte that fits no entry, the form shows none of the options.
  std::vector<Setting> Offered() const {
    auto offered = catalogue_.OfRegister(result_.image);
    return offered.empty() ? catalogue_.OfRegister(WithoutOptions()) : offered;
  }

  std::vector<OtherByteLines::OptionLine> TakeOffered() {
    std::vector<OtherByteLines::OptionLine> taken;
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
    if (!known) keys.insert(keys.end(), all.begin(), all.end());  // of a register that the line goes with
    Say(entry.at, InQuotes(entry.key) +
                      (known ? " is not an option of this register, or does not fit its other options"
                             : " is not a setting of [" + entry.table + "]") +
                      Suggestion(entry.key, keys));
  }

  // Two lines can name the same byte. A field that is stored as it is has a line of its own.
  void ExpectTogether(const std::vector<OtherByteLines::OptionLine>& taken) {
    for (const auto& [setting, entry] : taken) {
      const auto is_regular = [&](const FieldPart& part) {
        return IsRegular(result_.image.at(part.field, part.entry), DigitsOfField(part.field, firmware_));
      };
      if (!std::all_of(setting.parts.begin(), setting.parts.end(), is_regular)) continue;
      auto again = result_.image;
      Importer alone(catalogue_, own_, again, document_);
      alone.Take(setting, *entry);
      if (alone.result_.image != result_.image)
        Say(entry->value.at, InQuotes(entry->value.text) + " does not fit the other options");
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
    constexpr std::size_t kFew = 20;
    if (missing.size() > kFew) {
      missing.front() += " and " + std::to_string(missing.size() - 1) + " others are";
      missing.resize(1);
    } else {
      for (auto& name : missing) name += " is";
    }
    for (const auto& name : missing)
      Say(HeaderOf(document_, kCompleteKey)->at,
          name +
              " missing. Without the line \"complete = true\", settings that the text does not name keep "
              "their values");
  }

  Catalogue& catalogue_;
  const firmware::FirmwareId& firmware_;
  const Catalogue* own_;
  const Document& document_;
  const bool complete_;
  OtherByteLines other_bytes_;
  Imported result_;
  bool register_failed_ = false;
  std::set<const Setting*> named_;
  std::vector<const Entry*> others_, options_;
};

// The code of the same register under another firmware; 00 if that one does not serve it.
std::string CodeUnder(const firmware::FirmwareId& other, const firmware::FirmwareId& firmware,
                      const std::string& code) {
  const auto entries = firmware::BuildRegisterEntries(firmware.version, firmware.release);
  const auto others = firmware::BuildRegisterEntries(other.version, other.release);
  const auto at = static_cast<std::size_t>(codecs::HexToInt(code));
  if (at >= entries.size()) return "00";
  const auto found = std::find_if(others.begin(), others.end(), [&](const firmware::RegisterEntry& entry) {
    return entry.name == entries[at].name;
  });
  return found == others.end() ? "00" : codecs::ByteToHex(static_cast<int>(found - others.begin()));
}

// An image of another firmware with what it shares with the base, which is an image of the firmware.
image::ConfigImage SharedWith(const image::ConfigImage& base, const firmware::FirmwareId& base_firmware,
                              const firmware::FirmwareId& firmware) {
  auto image = FilledImage(firmware, '0');
  image::ForEachStreamEntry(firmware, [&](const image::FieldRow& row, int entry) {
    const auto& value = base.at(row.id, entry);
    if (IsRegular(value, DigitsOfField(row.id, firmware))) image.at(row.id, entry) = value;
  });
  image[image::FieldId::REGTYPE] = CodeUnder(firmware, base_firmware, base[image::FieldId::REGTYPE]);
  return image;
}

// The firmware that the form names, if it is another one.
std::optional<firmware::FirmwareId> OtherFirmware(const Document& document,
                                                  const firmware::FirmwareId& firmware) {
  const auto known = firmware::FindFirmware(FirmwareNamed(document));
  if (!known) return std::nullopt;
  const auto served = firmware::ServedFirmware(known->Joined());
  return served == firmware ? std::nullopt : std::optional(served);
}

void Add(std::vector<Problem> others, std::vector<Problem>& problems) {
  problems.insert(problems.end(), std::make_move_iterator(others.begin()),
                  std::make_move_iterator(others.end()));
}

Imported Refused(const image::ConfigImage& base, std::vector<Problem> problems) {
  SortByPlace(problems);
  Cut(problems);
  return {base, std::move(problems), {}};
}

}  // namespace

Imported Import(Catalogue& catalogue, const CatalogueOf& catalogue_of, const image::ConfigImage& base,
                const Document& document, Strictness strictness) {
  const auto running = NameOf(catalogue.Firmware());
  auto problems = HeaderProblems(document, running);
  if (!CanBeJudged(document, running)) return Refused(base, std::move(problems));
  const auto other = OtherFirmware(document, catalogue.Firmware());
  Catalogue* own = other ? &catalogue_of(*other) : nullptr;
  if (own != nullptr) {
    const auto shared = SharedWith(base, catalogue.Firmware(), *other);
    Add(Importer(*own, nullptr, shared, document).Run().problems, problems);
    if (!problems.empty()) return Refused(base, std::move(problems));
  }
  auto imported = Importer(catalogue, own, base, document).Run();
  if (!problems.empty()) {
    Add(std::move(imported.problems), problems);
    return Refused(base, std::move(problems));
  }
  if (own != nullptr && strictness == Strictness::kPartial) imported.left_out.swap(imported.problems);
  Cut(imported.problems);
  return imported;
}

}  // namespace ovl::text_form
