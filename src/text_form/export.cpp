#include "text_form/export.h"

#include <algorithm>

#include "codecs/windows_1252.h"
#include "image/stream_entries.h"
#include "text_form/coverage.h"

namespace ovl::text_form {
namespace {

constexpr std::size_t kCommentColumn = 48;

// Whether the character needs no escape: TOML allows it, and it can be seen in an editor.
bool IsPlain(char32_t character) {
  constexpr char32_t kNoBreakSpace = 0xA0, kSoftHyphen = 0xAD;
  if (character == kNoBreakSpace || character == kSoftHyphen) return false;
  return character >= ' ' && character != '"' && character != '\\' && character != 0x7F &&
         (character < 0x80 || character > 0x9F);
}

void AppendEscaped(std::string& text, char32_t character) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  if (character == '"' || character == '\\') {
    (text += '\\') += static_cast<char>(character);
    return;
  }
  text += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) text += kDigits[character >> shift & 0xF];
}

bool IsBare(std::string_view key) {
  return !key.empty() && std::all_of(key.begin(), key.end(), [](char letter) {
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z') ||
           (letter >= '0' && letter <= '9') || letter == '_' || letter == '-';
  });
}

std::string KeyOf(std::string_view key) {
  return IsBare(key) ? std::string(key) : Quoted(key);
}

void AppendLine(std::string& text, std::string_view key, std::string_view value, std::string_view comment) {
  auto line = KeyOf(key) + " = ";
  line += value;
  line.resize(std::max(line.size() + 2, kCommentColumn), ' ');
  text += line.append("# ").append(comment) += '\n';
}

Line LineOf(const Setting& setting, const image::ConfigImage& image, const firmware::FirmwareId& firmware) {
  return {setting.tab,
          setting.slot,
          setting.table,
          setting.key,
          setting.control,
          WordsOf(setting, image, firmware),
          DigitsOf(setting, image, firmware),
          FieldNames(setting)};
}

// The settings that have words, and those of the panels.
std::vector<Setting> Shown(Catalogue& catalogue, const image::ConfigImage& image) {
  std::vector<Setting> shown;
  for (const auto& setting : catalogue.OfPanels()) {
    if (IsStored(setting, image, catalogue.Firmware())) shown.push_back(setting);
  }
  auto options = catalogue.OfRegister(image);
  options.erase(
      std::remove_if(options.begin(), options.end(),
                     [&](const Setting& option) { return !WordsOf(option, image, catalogue.Firmware()); }),
      options.end());
  const auto behind_register = std::find_if(shown.begin(), shown.end(), [&](const Setting& setting) {
    return setting.table != shown.front().table;
  });
  shown.insert(behind_register, options.begin(), options.end());
  return shown;
}

std::vector<OtherBytes> OtherBytesOf(const std::vector<Setting>& shown, const image::ConfigImage& image,
                                     const firmware::FirmwareId& firmware) {
  Coverage coverage;
  for (const auto& setting : shown) coverage.Add(setting, firmware);
  std::vector<OtherBytes> others;
  image::ForEachStreamEntry(firmware, [&](const image::FieldRow& row, int entry) {
    const auto name = image::EntryName(row.name, image::EntryCount(row.id), entry);
    const auto& value = image.at(row.id, entry);
    if (!IsRegular(value, DigitsOfField(row.id, firmware))) {
      others.push_back({name, value, true});
      return;
    }
    auto digits = coverage.Outside(row.id, entry, value);
    const auto last = digits.find_last_not_of('0');
    if (last == std::string::npos) return;
    digits.resize((last / 2 + 1) * 2);
    others.push_back({name, digits, false});
  });
  return others;
}

std::string ValueOf(const Line& line) {
  return line.words ? Quoted(*line.words) : "{ bytes = \"" + line.digits + "\" }";
}

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char byte : text) {
    const auto character = codecs::CharacterOfCode(static_cast<unsigned char>(byte));
    if (IsPlain(character)) {
      codecs::AppendUtf8(quoted, character);
    } else {
      AppendEscaped(quoted, character);
    }
  }
  return quoted + '"';
}

std::vector<Line> LinesOf(Catalogue& catalogue, const image::ConfigImage& image) {
  std::vector<Line> lines;
  for (const auto& setting : Shown(catalogue, image))
    lines.push_back(LineOf(setting, image, catalogue.Firmware()));
  return lines;
}

std::vector<OtherBytes> OtherBytesOf(Catalogue& catalogue, const image::ConfigImage& image) {
  return OtherBytesOf(Shown(catalogue, image), image, catalogue.Firmware());
}

std::string Export(Catalogue& catalogue, const image::ConfigImage& image) {
  const auto& firmware = catalogue.Firmware();
  const auto shown = Shown(catalogue, image);
  std::string text = "# A configuration of OVL Software as text: one setting a line.\n";
  text += "format = " + std::to_string(kFormat) + "\n";
  text += "firmware = " + Quoted(firmware.version + " " + firmware.release) + "\n";
  text += "complete = true  # without this line, settings that the text does not name keep their values\n";
  std::string_view table;
  for (const auto& setting : shown) {
    if (setting.table != table) text += "\n[" + KeyOf(setting.table) + "]\n";
    table = setting.table;
    AppendLine(text, setting.key, ValueOf(LineOf(setting, image, firmware)), FieldNames(setting));
  }
  const auto others = OtherBytesOf(shown, image, firmware);
  if (!others.empty()) text += "\n[" + KeyOf(kOtherBytes) + "]  # no control shows them\n";
  for (const auto& other : others) {
    const auto digits = Quoted(other.digits);
    text += KeyOf(other.name) + " = " + (other.as_they_are ? "{ digits = " + digits + " }" : digits) + "\n";
  }
  return text;
}

}  // namespace ovl::text_form
