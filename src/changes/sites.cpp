#include "changes/sites.h"

#include <algorithm>
#include <utility>

#include "changes/editors.h"
#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "image/slot_records.h"

namespace ovl::changes {
namespace {

using enum image::FieldId;
using core::Editor;
using core::Part;
using core::Place;

constexpr std::size_t kByte = 2;
constexpr int kAlarmsOfByte = 8;

int SlotOf(const image::FieldDifference& difference) {
  const int entries = image::EntryCount(difference.field->id);
  return entries == image::kExceptions || entries == image::kAlarms ? difference.entry : 0;
}

image::DigitSpan DigitsOf(Part part, image::FieldId field, const firmware::FirmwareId& firmware) {
  switch (part) {
    case Part::kFirstByte:
      return image::kFirstByteDigits;
    case Part::kDuration:
      return image::kAlarmDurationDigits;
    case Part::kVideoLoss:
      return image::kAlarmVideoLossDigits;
    case Part::kRange:
      return image::RangeDigits(firmware);
    case Part::kText:
      return field == EXCPSTRS ? image::PatternDigits(firmware) : image::kTriggeredDigits;
    default:
      return {};
  }
}

SiteGroup OptionSites(const image::FieldDifference& difference, Place place) {
  SiteGroup group;
  for (const auto* option : OptionsThatShow(difference.field->id, difference.entry)) {
    Site site{place, option->control, option->bits};
    site.option = option;
    group.push_back(site);
  }
  return group;
}

// One byte holds the normal states of eight alarms.
SiteGroup NormalStateSites(const Editor& editor, int entry) {
  SiteGroup group;
  for (int bit = 0; bit < kAlarmsOfByte; ++bit) {
    Site site{editor.place, editor.controls, 1 << bit};
    site.slot = (entry - 1) * kAlarmsOfByte + bit + 1;
    group.push_back(site);
  }
  return group;
}

SiteGroup SitesOf(const Editor& editor, const image::FieldDifference& difference,
                  const firmware::FirmwareId& firmware) {
  SiteGroup group;
  auto names = editor.controls;
  while (!names.empty()) {
    const auto name = names.substr(0, names.find(' '));
    names.remove_prefix(std::min(names.size(), name.size() + 1));
    Site site{editor.place, name, editor.bits};
    site.slot = SlotOf(difference);
    site.digits = DigitsOf(editor.part, editor.field, firmware);
    group.push_back(site);
  }
  // Whether a slot is free belongs to its pattern, although the bit is in the flags.
  if (editor.field == EXCPSTRS && editor.part == Part::kText) {
    auto site = group.front();
    site.bits = 1 << image::kFreeBit;
    site.digits = image::kFirstByteDigits;
    group.push_back(site);
  }
  return group;
}

}  // namespace

std::vector<SiteGroup> SitesOf(const image::FieldDifference& difference,
                               const firmware::FirmwareId& firmware) {
  std::vector<SiteGroup> groups;
  bool options = false;
  for (const auto& editor : Editors()) {
    if (editor.field != difference.field->id) continue;
    const bool optional = editor.controls.empty() || editor.place == Place::kMicros;
    if (!optional) {
      groups.push_back(editor.field == ALMNORMAL_BAK ? NormalStateSites(editor, difference.entry)
                                                     : SitesOf(editor, difference, firmware));
    } else if (!std::exchange(options, true)) {
      groups.push_back(OptionSites(difference, Place::kRegister));
    }
  }
  return groups;
}

std::string PartOf(const Site& site, std::string_view value) {
  return codecs::Slice(value, site.digits.first, site.digits.count);
}

bool Differs(const Site& site, const image::FieldDifference& difference) {
  const auto before = PartOf(site, difference.before), after = PartOf(site, difference.after);
  if (before.size() != kByte || after.size() != kByte) return before != after;
  return ((codecs::HexToInt(before) ^ codecs::HexToInt(after)) & site.bits) != 0;
}

}  // namespace ovl::changes
