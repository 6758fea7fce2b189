#include "text_form/import/other_byte_lines.h"

#include <algorithm>
#include <cctype>

#include "codecs/windows_1252.h"
#include "image/stream_entries.h"
#include "text_form/coverage.h"
#include "text_form/messages.h"

namespace ovl::text_form {

std::string InCapitals(std::string digits) {
  std::transform(digits.begin(), digits.end(), digits.begin(), [](char digit) {
    return static_cast<char>(std::toupper(static_cast<unsigned char>(digit)));
  });
  return digits;
}

OtherByteLines::OtherByteLines(const Catalogue& catalogue, bool complete, Say say)
    : catalogue_(catalogue), firmware_(catalogue.Firmware()), complete_(complete), say_(std::move(say)) {}

void OtherByteLines::Take(const std::vector<const Entry*>& lines, const std::set<const Setting*>& named,
                          image::ConfigImage& image) {
  if (lines.empty()) return;
  image::ForEachStreamEntry(firmware_, [&](const image::FieldRow& row, int entry) {
    targets_[image::EntryName(row.name, image::EntryCount(row.id), entry)] = {&row, entry};
  });
  Coverage panels;
  for (const auto& setting : catalogue_.OfPanels()) panels.Add(setting, firmware_);
  for (const auto* line : lines) {
    const auto* target = TargetOf(*line);
    if (target == nullptr) continue;
    if (line->value.kind == ValueKind::kDigits) {
      TakeIrregular(*target, *line, named);
      continue;
    }
    auto digits = BytesOf(*target, *line);
    if (!digits) continue;
    const auto mask = panels.Outside(target->row->id, target->entry, std::string(digits->size(), 'F'));
    if (IsZero(mask) || !IsZero(panels.Inside(target->row->id, target->entry, *digits))) {
      say_(line->value.at, InQuotes(line->value.text) + " has bits that other lines store");
      continue;
    }
    auto& value = image.at(target->row->id, target->entry);
    if (!IsRegular(value, digits->size())) value.assign(digits->size(), '0');
    Merge(value, *digits, mask);
    bits_.push_back({*target, line, std::move(*digits)});
  }
}

const OtherByteLines::Target* OtherByteLines::TargetOf(const Entry& line) {
  const auto found = targets_.find(line.key);
  const auto name = firmware_.version + " " + firmware_.release;
  if (found == targets_.end()) {
    std::vector<std::string> names;
    for (const auto& [field, target] : targets_) names.push_back(field);
    say_(line.at, InQuotes(line.key) + " is not a field of " + name + Suggestion(line.key, names));
    return nullptr;
  }
  if (!complete_ && !IsRead(*found->second.row)) {
    say_(line.at, "a unit of " + name + " never sends " + InQuotes(line.key) +
                      ", so it needs the line \"complete = true\"");
    return nullptr;
  }
  return &found->second;
}

bool OtherByteLines::IsRead(const image::FieldRow& row) const {
  return image::InStream(row, firmware::LayoutOf(firmware_), firmware_, firmware::CapabilitiesOf(firmware_),
                         image::Direction::kRead);
}

// A field of another length shifts what is behind it in a download, so it needs the line \"complete = true\".
void OtherByteLines::TakeIrregular(const Target& target, const Entry& line,
                                   const std::set<const Setting*>& named) {
  const auto& value = line.value;
  if (!complete_)
    return say_(value.at, Written(value) + " is allowed only with the line \"complete = true\"");
  const auto characters = codecs::Windows1252OfUtf8(value.text);
  if (!characters || !CanBeLoaded(*characters))
    return say_(value.at,
                Written(value) +
                    " is not allowed here; allowed: at most 1000 characters of Windows-1252, without "
                    "\"#\" and ends of lines");
  for (const auto* setting : named) {
    const bool is_inside = std::all_of(
        setting->parts.begin(), setting->parts.end(),
        [&](const FieldPart& part) { return part.field == target.row->id && part.entry == target.entry; });
    if (is_inside)
      return say_(value.at, "the line " + InQuotes(setting->key) + " of [" + setting->table +
                                "] stores this field too. Remove one of the two lines");
  }
  irregular_.push_back({target, &line, *characters});
}

// As many digits as the field has.
std::optional<std::string> OtherByteLines::BytesOf(const Target& target, const Entry& line) const {
  auto digits = InCapitals(line.value.text);
  const auto width = DigitsOfField(target.row->id, firmware_);
  if (line.value.kind == ValueKind::kText && digits.size() <= width && digits.size() % 2 == 0 &&
      IsRegular(digits, digits.size())) {
    digits.resize(width, '0');
    return digits;
  }
  const auto most = std::to_string(width / 2) + (width == 2 ? " byte" : " bytes");
  say_(line.value.at, Written(line.value) + " is not allowed here; allowed: at most " + most +
                          " of two digits 0 to 9 and A to F");
  return std::nullopt;
}

void OtherByteLines::StoreIrregular(image::ConfigImage& image) const {
  for (const auto& taken : irregular_) image.at(taken.target.row->id, taken.target.entry) = taken.digits;
}

void OtherByteLines::ExpectNoBitsOf(const std::vector<OptionLine>& options) const {
  Coverage coverage;
  for (const auto& [setting, line] : options) coverage.Add(setting, firmware_);
  for (const auto& taken : bits_) {
    if (!IsZero(coverage.Inside(taken.target.row->id, taken.target.entry, taken.digits)))
      say_(taken.line->value.at, InQuotes(taken.line->value.text) + " has bits that an option stores");
  }
}

}  // namespace ovl::text_form
