#include "text_form/settings.h"

#include <algorithm>
#include <cctype>

#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "firmware/traits.h"
#include "image/field_map.h"

namespace ovl::text_form {
namespace {

constexpr std::size_t kByte = 2;
constexpr std::size_t kTextLength = 40;

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), IsDigit);
}

// Without blanks at both ends, in capitals: lists differ in more than that.
std::string Simple(std::string_view words) {
  std::string simple;
  for (const char letter : words) {
    if (letter != ' ' || (!simple.empty() && simple.back() != ' '))
      simple += static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
  }
  if (!simple.empty() && simple.back() == ' ') simple.pop_back();
  return simple;
}

bool IsRegularPart(const FieldPart& part, const image::ConfigImage& image,
                   const firmware::FirmwareId& firmware) {
  return IsRegular(image.at(part.field, part.entry), DigitsOfField(part.field, firmware));
}

// ---- Lists

const Choice* ChoiceOf(const Setting& setting, const image::ConfigImage& image,
                       const firmware::FirmwareId& firmware) {
  const auto fits = [&](const Choice& choice) {
    for (std::size_t part = 0; part < setting.parts.size(); ++part) {
      if (!IsRegularPart(setting.parts[part], image, firmware)) continue;
      if (StoredIn(image, setting.parts[part]) != choice.stored[part]) return false;
    }
    return true;
  };
  const auto found = std::find_if(setting.choices->begin(), setting.choices->end(), fits);
  return found == setting.choices->end() ? nullptr : &*found;
}

const Choice* ChoiceNamed(const Choices& choices, std::string_view words) {
  const auto exact = [&](const Choice& choice) { return choice.words == words; };
  const auto similar = [simple = Simple(words)](const Choice& choice) {
    return Simple(choice.words) == simple || (!choice.marked.empty() && Simple(choice.marked) == simple);
  };
  auto found = std::find_if(choices.begin(), choices.end(), exact);
  if (found == choices.end()) found = std::find_if(choices.begin(), choices.end(), similar);
  return found == choices.end() ? nullptr : &*found;
}

// ---- Numbers, one digit in the low half of each byte

std::optional<std::string> NumberIn(const Setting& setting, const image::ConfigImage& image) {
  std::string number;
  for (const auto& part : setting.parts) {
    const auto digits = StoredIn(image, part);
    if (digits.size() != kByte || digits[0] != '0' || !IsDigit(digits[1])) return std::nullopt;
    number += digits[1];
  }
  return number;
}

bool StoreNumber(const Setting& setting, std::string_view words, image::ConfigImage& image) {
  if (words.size() > setting.parts.size() || words.empty() || !AllDigits(words)) return false;
  std::string number(setting.parts.size() - words.size(), '0');
  number += words;
  std::size_t digit = 0;
  for (const auto& part : setting.parts) Store(image, part, std::string("0") + number[digit++]);
  return true;
}

// ---- Ranges: "0.00 - 100.00"

constexpr std::string_view kBetween = " - ";

std::optional<std::string> RangeIn(const Setting& setting, const image::ConfigImage& image,
                                   const firmware::FirmwareId& firmware) {
  const auto& slot = image.at(image::FieldId::EXCPSTRS, setting.slot);
  const bool comma = codecs::HexToInt(image[image::FieldId::DECIMAL_POINT_BAK]) != 0;
  std::string words;
  for (std::size_t value = 0; value < 2; ++value) {
    auto [integers, decimals] = image::RangeValueOf(slot, firmware, value);
    if (!AllDigits(integers) || !AllDigits(decimals)) return std::nullopt;
    integers.erase(0, std::min(integers.find_first_not_of('0'), integers.size() - 1));
    if (value > 0) words += kBetween;
    words += integers + (comma ? "," : ".") + decimals;
  }
  return words;
}

// The digits of one value, with leading zeros; empty if it is none.
std::string RangeDigitsOf(std::string_view words, std::size_t integers) {
  const auto point = std::min(words.find_first_of(".,"), words.size());
  const auto whole = words.substr(0, point), rest = words.substr(std::min(point + 1, words.size()));
  if (whole.empty() || whole.size() > integers || !AllDigits(whole)) return {};
  if (rest.size() != image::kRangeDecimals || !AllDigits(rest)) return {};
  return std::string(integers - whole.size(), '0').append(whole).append(rest);
}

bool StoreRange(const Setting& setting, std::string_view words, image::ConfigImage& image,
                const firmware::FirmwareId& firmware) {
  const auto integers = firmware::RangeIntegersOf(firmware);
  const auto between = words.find(kBetween);
  if (between == std::string_view::npos) return false;
  const auto first = RangeDigitsOf(words.substr(0, between), integers);
  const auto second = RangeDigitsOf(words.substr(between + kBetween.size()), integers);
  if (first.empty() || second.empty()) return false;
  image::StoreRange(image.at(image::FieldId::EXCPSTRS, setting.slot), firmware, first + second);
  return true;
}

// ---- Texts

std::string WithoutBlanksBehind(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

std::string TextIn(const Setting& setting, const image::ConfigImage& image,
                   const firmware::FirmwareId& firmware) {
  const auto& value = image.at(setting.parts.front().field, setting.parts.front().entry);
  if (setting.kind == Kind::kExceptionText) return WithoutBlanksBehind(image::ExceptionText(value, firmware));
  const auto digits = setting.kind == Kind::kTitle ? value : std::string(image::TriggeredDigits(value));
  return image::StoredText(image::WithoutEndMark(digits));
}

// The record with the text; nothing for a text that does not fit.
std::optional<std::string> RecordWith(const Setting& setting, std::string_view text, std::string record,
                                      const firmware::FirmwareId& firmware) {
  if (text.size() > kTextLength || text.find('\0') != std::string_view::npos) return std::nullopt;
  if (setting.kind == Kind::kExceptionText) {
    image::StoreExceptionText(record, firmware, std::string(text));
    return record;
  }
  if (!text.empty() && (text.front() == ' ' || text.back() == ' ')) return std::nullopt;
  return record.substr(0, setting.parts.front().digits.first) + image::PaddedText(text) + "00";
}

bool StoreText(const Setting& setting, std::string_view text, image::ConfigImage& image,
               const firmware::FirmwareId& firmware) {
  auto& value = image.at(setting.parts.front().field, setting.parts.front().entry);
  auto record = RecordWith(setting, text, value, firmware);
  if (!record) return false;
  value = std::move(*record);
  return true;
}

bool IsText(Kind kind) {
  return kind == Kind::kExceptionText || kind == Kind::kTriggeredText || kind == Kind::kTitle;
}

std::string Allowed(const Setting& setting, const firmware::FirmwareId& firmware) {
  std::string words;
  switch (setting.kind) {
    case Kind::kChoice:
      for (const auto& choice : *setting.choices)
        words.append(words.empty() ? "\"" : ", \"").append(choice.words) += '"';
      return words;
    case Kind::kNumber:
      return "1 to " + std::to_string(setting.parts.size()) + " decimal digits";
    case Kind::kRange:
      return "two values such as \"0.00 - 100.00\", with " +
             std::to_string(firmware::RangeIntegersOf(firmware)) +
             " digits at most before the separator and two after it";
    case Kind::kExceptionText:
      return "a text of at most 40 characters";
    default:
      return "a text of at most 40 characters, without a blank at its ends";
  }
}

// A field of another length becomes zero before a part of it is stored.
void MakeRegular(const Setting& setting, image::ConfigImage& image, const firmware::FirmwareId& firmware) {
  for (const auto& part : setting.parts) {
    auto& value = image.at(part.field, part.entry);
    if (!IsRegularPart(part, image, firmware)) value.assign(DigitsOfField(part.field, firmware), '0');
  }
}

}  // namespace

bool IsRegular(std::string_view value, std::size_t digits) {
  const auto is_digit = [](char digit) { return IsDigit(digit) || (digit >= 'A' && digit <= 'F'); };
  return value.size() == digits && std::all_of(value.begin(), value.end(), is_digit);
}

std::size_t DigitsOfField(image::FieldId field, const firmware::FirmwareId& firmware) {
  return static_cast<std::size_t>(image::DigitsOf(image::RowOf(field), firmware::LayoutOf(firmware)));
}

std::string StoredIn(const image::ConfigImage& image, const FieldPart& part) {
  auto digits = codecs::Slice(image.at(part.field, part.entry), part.digits.first, part.digits.count);
  if (part.bits == core::kWholeByte) return digits;
  return codecs::ByteToHex(codecs::HexToInt(digits) & part.bits);
}

void Store(image::ConfigImage& image, const FieldPart& part, std::string_view digits) {
  auto& value = image.at(part.field, part.entry);
  std::string stored(digits);
  if (part.bits != core::kWholeByte) {
    const int other = codecs::HexToInt(codecs::Slice(value, part.digits.first, kByte)) & ~part.bits;
    stored = codecs::ByteToHex(other | (codecs::HexToInt(digits) & part.bits));
  }
  value.replace(std::min(part.digits.first, value.size()), stored.size(), stored);
}

bool IsStored(const Setting& setting, const image::ConfigImage& image, const firmware::FirmwareId& firmware) {
  return std::any_of(setting.parts.begin(), setting.parts.end(),
                     [&](const FieldPart& part) { return IsRegularPart(part, image, firmware); });
}

std::optional<std::string> WordsOf(const Setting& setting, const image::ConfigImage& image,
                                   const firmware::FirmwareId& firmware) {
  if (setting.kind == Kind::kChoice) {
    const auto* choice = ChoiceOf(setting, image, firmware);
    return choice == nullptr ? std::nullopt : std::optional(choice->words);
  }
  if (!IsRegularPart(setting.parts.front(), image, firmware)) return std::nullopt;
  if (setting.kind == Kind::kNumber) return NumberIn(setting, image);
  if (setting.kind == Kind::kRange) return RangeIn(setting, image, firmware);
  const auto text = TextIn(setting, image, firmware);
  const auto& record = image.at(setting.parts.front().field, setting.parts.front().entry);
  return RecordWith(setting, text, record, firmware) == record ? std::optional(text) : std::nullopt;
}

std::optional<std::string> StoreWords(const Setting& setting, std::string_view words,
                                      image::ConfigImage& image, const firmware::FirmwareId& firmware) {
  const auto* choice = setting.kind == Kind::kChoice ? ChoiceNamed(*setting.choices, words) : nullptr;
  if (setting.kind == Kind::kChoice && choice == nullptr) return Allowed(setting, firmware);
  MakeRegular(setting, image, firmware);
  bool stored = false;
  if (setting.kind == Kind::kChoice) {
    for (std::size_t part = 0; part < setting.parts.size(); ++part)
      Store(image, setting.parts[part], choice->stored[part]);
    stored = true;
  } else if (setting.kind == Kind::kNumber) {
    stored = StoreNumber(setting, words, image);
  } else if (setting.kind == Kind::kRange) {
    stored = StoreRange(setting, words, image, firmware);
  } else {
    stored = StoreText(setting, words, image, firmware);
  }
  if (stored) return std::nullopt;
  return words.find('\0') == std::string_view::npos ? Allowed(setting, firmware)
                                                    : "a text without the character 0";
}

std::string DigitsOf(const Setting& setting, const image::ConfigImage& image,
                     const firmware::FirmwareId& firmware) {
  std::string digits;
  for (const auto& part : setting.parts) {
    if (!digits.empty()) digits += ' ';
    auto stored = StoredIn(image, part);
    if (!IsRegularPart(part, image, firmware)) {
      const auto width = DigitsOfField(part.field, firmware) - part.digits.first;
      stored.assign(std::min(width, part.digits.count), '0');
    }
    digits += stored;
  }
  return digits;
}

bool StoreDigits(const Setting& setting, std::string_view digits, image::ConfigImage& image,
                 const firmware::FirmwareId& firmware) {
  std::vector<std::string_view> values;
  while (!digits.empty()) {
    const auto end = std::min(digits.find(' '), digits.size());
    values.push_back(digits.substr(0, end));
    digits.remove_prefix(std::min(end + 1, digits.size()));
  }
  if (values.size() != setting.parts.size()) return false;
  for (std::size_t place = 0; place < values.size(); ++place) {
    const auto& part = setting.parts[place];
    const auto width = std::min(part.digits.count, DigitsOfField(part.field, firmware) - part.digits.first);
    const bool whole = part.bits == core::kWholeByte;
    if (!IsRegular(values[place], whole ? width : kByte)) return false;
    if (!whole && (codecs::HexToInt(values[place]) & ~part.bits) != 0) return false;
  }
  MakeRegular(setting, image, firmware);
  for (std::size_t place = 0; place < values.size(); ++place)
    Store(image, setting.parts[place], values[place]);
  return true;
}

std::string FieldNames(const Setting& setting) {
  std::string names;
  for (const auto& part : setting.parts) {
    if (IsText(setting.kind) && !names.empty()) continue;  // the bit that marks a free slot
    if (!names.empty()) names += ", ";
    names += image::EntryName(image::RowOf(part.field).name, image::EntryCount(part.field), part.entry);
    if (part.bits == core::kWholeByte) continue;
    std::string bits;
    for (int bit = 0; bit < 8; ++bit) {
      if (codecs::HasBit(part.bits, bit)) bits.append(bits.empty() ? "" : "+").append(std::to_string(bit));
    }
    names += " bit " + bits;
  }
  return names;
}

}  // namespace ovl::text_form
