// The rules about bytes that the form cannot have stored, and about the default image of the register.
#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "changes/editors.h"
#include "checks/rule.h"
#include "codecs/codecs.h"
#include "core/failure.h"
#include "files/files.h"
#include "firmware/traits.h"
#include "image/field_map.h"
#include "image/report.h"
#include "registers/selection_driver.h"

namespace ovl::checks {
namespace {

using enum image::FieldId;
using enum Severity;
using changes::Site;
using core::Place;
using phrases::Pattern;
using phrases::Sentence;
using phrases::Words;

constexpr std::size_t kByte = 2;
constexpr std::string_view kRegisterList = "ComboReg";
constexpr std::string_view kNetAddress = "ComboCOMM(10)";  // has a rule of its own

std::string NameOf(const image::FieldRow& row, int entry) {
  return image::EntryName(row.name, image::EntryCount(row.id), entry);
}

// Calls the function for each entry of the fields that a stream in this direction contains.
template <class Function>
void ForEachEntry(const Subject& subject, image::Direction direction, const Function& function) {
  const auto layout = LayoutOf(subject.Firmware());
  const auto capabilities = CapabilitiesOf(subject.Firmware());
  for (const auto& row : image::FieldTable()) {
    if (!image::InStream(row, layout, subject.Firmware(), capabilities, direction)) continue;
    for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) function(row, entry);
  }
}

// A person sees nothing selected: the list has no entry, or the chosen option is not offered.
struct ShowsNothing {
  bool operator()(controls::List* list) const { return list->position < 0; }
  bool operator()(controls::OptionArray* array) const {
    const auto chosen_of = [](const controls::OptionArray* other) { return other->chosen >= 0; };
    if (array->chosen < 0) return std::none_of(array->excludes.begin(), array->excludes.end(), chosen_of);
    return !array->elements.at(static_cast<std::size_t>(array->chosen)).visible;
  }
  template <class Other>
  bool operator()(const Other&) const {
    return false;
  }
};

bool HasNoEntry(Subject& subject, const Site& site, const std::string& value) {
  const auto& program = subject.Program();
  if (site.option != nullptr) {
    return changes::IsOnScreen(program, *site.option) &&
           std::visit(ShowsNothing{}, program.Named(site.control).control);
  }
  if (!subject.Offers(changes::ReachedBy(program, site))) return false;
  // The words load the exception or the alarm.
  return !subject.Words().WordsOf(site, value) ||
         std::visit(ShowsNothing{}, program.Named(site.control).control);
}

bool Shows(const Subject& subject, const Site& site) {
  return site.option == nullptr || changes::IsOnScreen(subject.Program(), *site.option);
}

// The first control of the group that shows nothing for the byte. Options that share a byte and show it
// together need only one that does.
const Site* SiteWithoutEntry(Subject& subject, const changes::SiteGroup& group, const std::string& value) {
  const Site* empty = nullptr;
  for (const auto& site : group) {
    if (!Shows(subject, site)) continue;
    if (!HasNoEntry(subject, site, value)) {
      if (site.option != nullptr) return nullptr;
    } else if (empty == nullptr) {
      empty = &site;
    }
  }
  return empty;
}

bool AreTheSame(const Hit& hit, const Site& site) {
  return hit.site->control == site.control && hit.site->slot == site.slot;
}

Hits WithoutEntry(Subject& subject) {
  Hits hits;
  ForEachEntry(subject, image::Direction::kWrite, [&](const image::FieldRow& row, int entry) {
    const auto& value = subject.Image().at(row.id, entry);
    image::FieldDifference whole{&row, NameOf(row, entry), 0, value, value, entry};
    for (const auto& group : changes::SitesOf(whole, subject.Firmware())) {
      const auto* site = SiteWithoutEntry(subject, group, value);
      if (site == nullptr) continue;
      const bool known =
          std::any_of(hits.begin(), hits.end(), [&](const Hit& hit) { return AreTheSame(hit, *site); });
      if (known) continue;
      auto caption = changes::SlotCaption(subject.Shown(), *site);
      if (site->option != nullptr)
        caption = Sentence(Pattern("List", "%1, %2"), {subject.Words().RegisterName(), caption});
      hits.push_back({site->slot, {caption, changes::BytesInWords(changes::PartOf(*site, value))}, *site});
    }
  });
  return hits;
}

// Every value of a bit has an entry. What the entries of the list of registers store is their place.
bool IsAlwaysAsPicked(const Site& site) {
  return (site.bits & (site.bits - 1)) == 0 || site.control == kRegisterList || site.control == kNetAddress;
}

// The parts of slots that are as their lists store them. What a list stores is the same for all slots, and a
// pick in each of them would take long.
using PartsAsPicked = std::set<std::pair<std::string_view, std::string>>;

// The first control of the group whose entry would be stored in another way, with what it would store.
struct Repicked {
  Site site;
  std::string stored;
};
std::optional<Repicked> RepickedIn(Subject& subject, const changes::SiteGroup& group,
                                   image::FieldDifference whole, PartsAsPicked& known) {
  std::optional<Repicked> first;
  for (const auto& site : group) {
    if (IsAlwaysAsPicked(site) || !Shows(subject, site)) continue;
    if (site.option == nullptr && !subject.Offers(changes::ReachedBy(subject.Program(), site))) continue;
    const auto part = std::pair(site.control, changes::PartOf(site, whole.before));
    if (site.slot > 0 && known.count(part) == 1) return std::nullopt;
    const auto after = subject.AfterPickAgain(site);
    if (!after) continue;
    whole.after = after->at(whole.field->id, whole.entry);
    if (whole.after.size() != whole.before.size()) continue;
    if (!changes::Differs(site, whole)) {
      known.insert(part);
      return std::nullopt;
    }
    if (!first && (site.option == nullptr || subject.ShowsPicks(site)))
      first = {site, changes::PartOf(site, whole.after)};
  }
  return first;
}

// The form rounds the byte, or does not read it.
Hits NotAsPicked(Subject& subject) {
  Hits hits;
  PartsAsPicked known;
  ForEachEntry(subject, image::Direction::kWrite, [&](const image::FieldRow& row, int entry) {
    const auto& value = subject.Image().at(row.id, entry);
    const image::FieldDifference whole{&row, NameOf(row, entry), 0, value, value, entry};
    for (const auto& group : changes::SitesOf(whole, subject.Firmware())) {
      const auto repicked = RepickedIn(subject, group, whole, known);
      if (!repicked) continue;
      const auto& site = repicked->site;
      auto caption = changes::SlotCaption(subject.Shown(), site);
      if (site.option != nullptr)
        caption = Sentence(Pattern("List", "%1, %2"), {subject.Words().RegisterName(), caption});
      hits.push_back(
          {site.slot,
           {caption, subject.Words().WordsOf(site, value).value_or(Sentence(Pattern("Check", "it"))),
            whole.name, changes::BytesInWords(changes::PartOf(site, value)),
            changes::BytesInWords(repicked->stored)},
           site});
    }
  });
  return hits;
}

Hits OptionsHidden(Subject& subject) {
  if (!registers::OptionsAreHidden(subject.Shown())) return {};
  const auto* unfit = registers::UnfitOptionOf(subject.Shown());
  if (unfit == nullptr) return {};
  const auto name = NameOf(image::RowOf(unfit->field), unfit->entry);
  return {{0, {subject.Words().RegisterName(), name, unfit->value}}};
}

// Bytes that make a download longer or shorter than the unit reads it.
Hits DownloadShifted(Subject& subject) {
  const auto layout = LayoutOf(subject.Firmware());
  const auto capabilities = CapabilitiesOf(subject.Firmware());
  Hits hits;
  ForEachEntry(subject, image::Direction::kWrite, [&](const image::FieldRow& row, int entry) {
    const auto read = InStream(row, layout, subject.Firmware(), capabilities, image::Direction::kRead)
                          ? static_cast<std::size_t>(image::DigitsOf(row, layout))
                          : 0;
    const auto written = subject.Image().at(row.id, entry).size();
    if (written == read || !hits.empty()) return;
    image::FieldDifference whole{&row, {}, 0, {}, {}, entry};
    const auto groups = changes::SitesOf(whole, subject.Firmware());
    auto site = groups.empty() || groups.front().empty() ? Site{Place::kRegister, kRegisterList}
                                                         : groups.front().front();
    const bool offered =
        site.option == nullptr && subject.Offers(changes::ReachedBy(subject.Program(), site));
    if (!offered) site = {Place::kRegister, kRegisterList};
    hits.push_back({site.slot,
                    {NameOf(row, entry), std::to_string(written / kByte), std::to_string(read / kByte),
                     subject.Firmware().Joined()},
                    site});
  });
  return hits;
}

// The default image of the register; nothing if it cannot be read.
std::optional<image::ConfigImage> DefaultImage(const Subject& subject, const std::string& register_name) {
  const auto& platform = subject.Like().platform;
  if (!platform.files.read || register_name.empty()) return std::nullopt;
  try {
    const auto path = registers::DefaultImageOf(platform.program_folder, subject.Firmware(), register_name);
    return image::DecodeStream(files::ReadJoined(platform.files, path), subject.Firmware());
  } catch (const core::Failure&) {
    return std::nullopt;
  }
}

bool IsOfRegister(const Subject& subject, const image::ConfigImage& default_image) {
  return default_image[REGTYPE] == subject.Image()[REGTYPE];
}

bool IsEdited(image::FieldId field) {
  const auto editors = changes::Editors();
  return std::any_of(editors.begin(), editors.end(),
                     [field](const core::Editor& editor) { return editor.field == field; });
}

// Bytes that come with the pick of a register alone.
Hits OfOtherRegister(Subject& subject) {
  const auto name = subject.Words().RegisterName();
  const auto from_file = DefaultImage(subject, name);
  if (!from_file || !IsOfRegister(subject, *from_file)) return {};
  Hits hits;
  ForEachEntry(subject, image::Direction::kWrite, [&](const image::FieldRow& row, int entry) {
    const auto& is = subject.Image().at(row.id, entry);
    const auto& should_be = from_file->at(row.id, entry);
    if (row.is_default && !IsEdited(row.id) && is != should_be)
      hits.push_back({0, {NameOf(row, entry), is, name, should_be}});
  });
  return hits;
}

Hits DefaultImageOfOther(Subject& subject) {
  const auto name = subject.Words().RegisterName();
  const auto from_file = DefaultImage(subject, name);
  if (!from_file || IsOfRegister(subject, *from_file)) return {};
  const auto& names = subject.Form().ComboReg.items;
  const auto code = static_cast<std::size_t>(codecs::HexToInt((*from_file)[REGTYPE]));
  return {
      {0,
       {name, code < names.size() ? Words(names[code]) : Sentence(Pattern("Check", "an unknown register"))}}};
}

constexpr std::array kRules = {
    Rule{"download-shifted", kError,
         "%1 has this number of bytes: %2. %4 reads %3, so a download puts all settings after it in the "
         "wrong place.",
         Place::kRegister, kRegisterList, DownloadShifted},
    Rule{"options-hidden", kError, "The options of %1 are hidden: %2 contains %3, which is not in its list.",
         Place::kRegister, kRegisterList, OptionsHidden},
    Rule{"value-without-entry", kError, "%1 contains %2, but its list has no entry for it.", Place::kRegister,
         kRegisterList, WithoutEntry},
    Rule{"not-as-picked", kWarning, "%1 shows \"%2\", but %3 contains %4, and a pick of \"%2\" stores %5.",
         Place::kRegister, kRegisterList, NotAsPicked},
    Rule{"image-of-other-register", kWarning,
         "%1 is %2, but the default image of %3 has %4. The stored value can be that of another register.",
         Place::kRegister, kRegisterList, OfOtherRegister},
    Rule{"default-image-of-other", kWarning,
         "The default image of %1 in the program folder is that of %2, so a pick of %1 selects %2.",
         Place::kRegister, kRegisterList, DefaultImageOfOther},
};

}  // namespace

std::span<const Rule> StoredRules() {
  return kRules;
}

}  // namespace ovl::checks
