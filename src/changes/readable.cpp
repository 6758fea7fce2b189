#include "changes/readable.h"

#include <algorithm>
#include <array>

#include "changes/sites.h"
#include "changes/wording.h"
#include "codecs/bytes.h"
#include "codecs/codecs.h"

namespace ovl::changes {
namespace {

using image::FieldDifference;
using phrases::Pattern;
using phrases::Sentence;

constexpr std::size_t kByte = 2;
constexpr std::array kSections = {"SYSCFG", "SYSFIXED", "SYSSTR"};
constexpr std::string_view kRegisterList = "ComboReg";

// The bits of each byte that differ. A byte that is not two digits in both values differs as a whole.
std::vector<int> DifferentBits(std::string_view before, std::string_view after) {
  std::vector<int> bits((std::max(before.size(), after.size()) + 1) / kByte);
  for (std::size_t byte = 0; byte < bits.size(); ++byte) {
    const auto was = codecs::Slice(before, byte * kByte, kByte),
               is = codecs::Slice(after, byte * kByte, kByte);
    if (was == is) continue;
    const int different = codecs::HexToInt(was) ^ codecs::HexToInt(is);
    bits[byte] = was.size() == is.size() && different != 0 ? different : core::kWholeByte;
  }
  return bits;
}

struct Span {
  std::size_t first = 0;  // byte
  std::size_t count = 0;
};

Span SpanOf(const std::vector<int>& bits) {
  const auto set = [](int byte) { return byte != 0; };
  const auto first = std::find_if(bits.begin(), bits.end(), set);
  const auto last = std::find_if(bits.rbegin(), bits.rend(), set).base();
  return first == bits.end()
             ? Span{}
             : Span{static_cast<std::size_t>(first - bits.begin()), static_cast<std::size_t>(last - first)};
}

std::string Cut(std::string_view value, const Span& span) {
  return codecs::Slice(value, span.first * kByte, span.count * kByte);
}

ByteChange BytesOf(const FieldDifference& difference, const Span& span) {
  return {difference.name, kSections.at(static_cast<std::size_t>(difference.field->section)),
          difference.byte + span.first, Cut(difference.before, span), Cut(difference.after, span)};
}

class Comparison {
 public:
  Comparison(const core::Application& app, const image::ConfigImage& before, const image::ConfigImage& after)
      : app_(app), before_(app, before), after_(app, after) {}

  void Add(const FieldDifference& difference) {
    auto left = DifferentBits(difference.before, difference.after);
    for (const auto& group : SitesOf(difference, app_.image_firmware)) AddGroup(group, difference, left);
    if (SpanOf(left).count != 0) AddUnshown(difference, SpanOf(left));
  }

  std::vector<SettingChange> Rows() {
    std::stable_sort(rows_.begin(), rows_.end(),
                     [](const Row& a, const Row& b) { return a.order < b.order; });
    std::vector<SettingChange> changes;
    for (auto& row : rows_) changes.push_back(std::move(row.change));
    return changes;
  }

 private:
  struct Row {
    std::array<int, 3> order;  // tab, exception or alarm, whether it is below the register
    std::string_view control;
    SettingChange change;
  };
  struct Words {
    std::optional<phrases::Words> before, after;
    bool operator==(const Words&) const = default;
  };

  Words WordsOf(const Site& site, const FieldDifference& difference) {
    return {before_.WordsOf(site, difference.before), after_.WordsOf(site, difference.after)};
  }

  // Several controls can show one byte together. Only those that show something else get a row. If none does,
  // the first one gets it, with the bytes; an option of a register does not, because the byte can be one that
  // the register does not use.
  void AddGroup(const SiteGroup& group, const FieldDifference& difference, std::vector<int>& left) {
    std::vector<Site> unchanged;
    bool added = false;
    for (const auto& site : group) {
      if (!Differs(site, difference)) continue;
      const auto words = WordsOf(site, difference);
      if (words.before == words.after) {
        if (unchanged.empty() || unchanged.front().control == site.control) unchanged.push_back(site);
        continue;
      }
      AddRow(site, difference, words, left);
      added = true;
    }
    if (added) return;
    for (const auto& site : unchanged) {
      if (site.option == nullptr) AddRow(site, difference, WordsOf(site, difference), left);
    }
  }

  void AddRow(const Site& site, const FieldDifference& difference, const Words& words,
              std::vector<int>& left) {
    const auto span = Take(site, left, difference);
    const auto bytes = BytesOf(difference, span);
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) {
      return row.control == site.control && row.change.slot == site.slot;
    });
    if (found != rows_.end()) {
      auto& known = found->change.bytes;
      if (std::find(known.begin(), known.end(), bytes) == known.end()) known.push_back(bytes);
      return;
    }
    const int tab = TabOf(site.place);
    SettingChange change;
    change.tab = tab;
    change.place = TabCaption(app_, tab);
    change.caption = SlotCaption(app_, site);
    change.bytes = {bytes};
    const bool same = words.before == words.after;
    change.before = InWords(site, words.before, bytes.before, same);
    change.after = InWords(site, words.after, bytes.after, same);
    const auto& shown_in = words.after || !words.before ? after_ : before_;
    if (site.option != nullptr)
      change.caption = Sentence(Pattern("List", "%1, %2"), {shown_in.RegisterName(), change.caption});
    change.control = ReachedBy(shown_in.Program(), site);
    change.list = SlotListOf(site);
    change.slot = site.slot;
    rows_.push_back({{tab, site.slot, site.control == kRegisterList ? 0 : 1}, site.control, change});
  }

  static phrases::Words InWords(const Site& site, const std::optional<phrases::Words>& words,
                                const std::string& digits, bool with_bytes) {
    const auto bytes = BytesInWords(digits);
    if (words) return with_bytes ? Sentence(Pattern("Setting", "%1 (%2)"), {*words, bytes}) : *words;
    return site.option == nullptr ? bytes : Sentence(Pattern("Setting", "not shown (%1)"), {bytes});
  }

  // The bytes of the site that differ. They are no longer left.
  static Span Take(const Site& site, std::vector<int>& left, const FieldDifference& difference) {
    auto bits = DifferentBits(difference.before, difference.after);
    const auto [first_digit, digits] = site.digits;
    const auto first = first_digit / kByte;
    const auto end = digits == std::string::npos ? bits.size() : first + digits / kByte;
    for (std::size_t byte = 0; byte < bits.size(); ++byte) {
      const bool inside = byte >= first && byte < end;
      const int shown = !inside ? 0 : end - first == 1 ? site.bits : core::kWholeByte;
      bits[byte] &= shown;
      left[byte] &= ~shown;
    }
    return SpanOf(bits);
  }

  void AddUnshown(const FieldDifference& difference, const Span& span) {
    const auto bytes = BytesOf(difference, span);
    SettingChange change;
    change.place = Sentence(Pattern("Setting", "No control"));
    change.caption = difference.name;
    change.before = BytesInWords(bytes.before);
    change.after = BytesInWords(bytes.after);
    change.bytes = {bytes};
    rows_.push_back({{static_cast<int>(app_.frmMain.SSTab1.captions.size()), 0, 1}, {}, change});
  }

  const core::Application& app_;
  Wording before_, after_;
  std::vector<Row> rows_;
};

}  // namespace

std::vector<SettingChange> ReadableChanges(const core::Application& app, const image::ConfigImage& before,
                                           const image::ConfigImage& after) {
  const auto differences = image::Differences(before, after, app.image_firmware);
  if (differences.empty()) return {};
  Comparison comparison(app, before, after);
  for (const auto& difference : differences) comparison.Add(difference);
  return comparison.Rows();
}

std::vector<SettingChange> ReadableChanges(const core::Application& app) {
  return ReadableChanges(app, app.known_image, app.image);
}

}  // namespace ovl::changes
