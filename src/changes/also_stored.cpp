#include "changes/also_stored.h"

#include <algorithm>
#include <array>
#include <vector>

#include "changes/editors.h"
#include "codecs/codecs.h"
#include "image/field_map.h"
#include "image/slot_records.h"

namespace ovl::changes {
namespace {

using core::Editor;
using core::ValueDisplay;
using phrases::OfForm;
using phrases::Pattern;
using phrases::Sentence;
using phrases::Words;

// "A, B, C"
Words Enumerated(const std::vector<Words>& parts) {
  Words line;
  for (const auto& part : parts)
    line = line.empty() ? part : Sentence(Pattern("List", "%1, %2"), {line, part});
  return line;
}

Words AlsoStoredLine(const Words& stored) {
  return stored.empty() ? stored : Sentence(Pattern("Setting", "Also stored: %1."), {stored});
}

// The list entry for some bits of a byte. The lowest of these bits has the value 1.
std::size_t EntryFor(ValueDisplay display, int bits) {
  const auto at = static_cast<std::size_t>(bits);
  if (display == ValueDisplay::kParity) return static_cast<std::size_t>(image::ParityEntry(bits));
  return display == ValueDisplay::kSetIsOff ? 1 - at : at;
}

class Comparison {
 public:
  Comparison(const core::Application& app, const image::ConfigImage& before,
             const controls::ControlRef& acted)
      : app_(app),
        before_(before),
        acted_(acted),
        form_(app.registry.FormOf(acted)),
        acts_for_shown_(std::any_of(Editors().begin(), Editors().end(), [this](const Editor& shown) {
          return shown.display != ValueDisplay::kNothing && ListOf(shown) == acted_;
        })) {}

  Words Line() const {
    std::vector<Words> stored;
    for (const auto& row : image::FieldTable()) {
      for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) Compare(row, entry, stored);
    }
    return AlsoStoredLine(Enumerated(stored));
  }

  // What the list of the action shows is not what it has stored: "Stored: AUTO LINEFEED ON, not OFF."
  Words Contradiction() const {
    for (const auto& shown : Editors()) {
      if (shown.display == ValueDisplay::kNothing || shown.display == ValueDisplay::kPicked) continue;
      if (ListOf(shown) != acted_) continue;
      const auto& list = *std::get<controls::List*>(acted_);
      const int stored = codecs::HexToInt(app_.image[shown.field]);
      if (list.position < 0 || EntryOf(shown, list, stored) == list.Text()) return {};
      return Sentence(Pattern("Setting", "Stored: %1, not %2."),
                      {WordsOf(shown, stored), OfForm(list.Text())});
    }
    return {};
  }

  // The fields on other tabs, one part for each tab.
  Words OtherTabs() const {
    constexpr std::array kOtherTabs = {core::Place::kText,          core::Place::kAlarmOutputs,
                                       core::Place::kCommunication, core::Place::kExceptionReport,
                                       core::Place::kTime,          core::Place::kRemote};
    Words line;
    for (const auto place : kOtherTabs) {
      std::vector<Words> stored;
      for (const auto& shown : Editors()) {
        if (shown.place == place) CompareShown(shown, stored);
      }
      if (stored.empty()) continue;
      const auto of_tab = Sentence(Pattern("List", "%1: %2"), {PlaceName(app_, place), Enumerated(stored)});
      line = line.empty() ? of_tab : Sentence(Pattern("List", "%1; %2"), {line, of_tab});
    }
    return line;
  }

 private:
  controls::ControlRef ListOf(const Editor& shown) const { return Named(shown).control; }

  const controls::NamedControl& Named(const Editor& shown) const {
    return *app_.registry.Find(shown.controls);
  }

  // The list itself, or another control of the same window, except the main form.
  bool IsOwn(const Editor& shown) const {
    const auto& list = Named(shown);
    return list.control == acted_ || (form_ == list.form && form_ != &app_.frmMain.form);
  }

  void Compare(const image::FieldRow& row, int entry, std::vector<Words>& stored) const {
    const auto& now = app_.image.at(row.id, entry);
    const auto& was = before_.at(row.id, entry);
    if (now == was) return;
    bool shown_somewhere = false;
    const int changed = codecs::HexToInt(now) ^ codecs::HexToInt(was);
    for (const auto& shown : Editors()) {
      if (shown.field != row.id || shown.display == ValueDisplay::kNothing) continue;
      shown_somewhere = true;
      if ((changed & shown.bits) != 0 && !IsOwn(shown))
        AddOnce(stored, WordsOf(shown, codecs::HexToInt(now)));
    }
    // If the control itself shows no field, the fields that no list shows can be its own. They are not named.
    if (!shown_somewhere && acts_for_shown_) AddOnce(stored, std::string(row.name) + " " + now);
  }

  void CompareShown(const Editor& shown, std::vector<Words>& stored) const {
    const int now = codecs::HexToInt(app_.image[shown.field]);
    const bool changed = ((now ^ codecs::HexToInt(before_[shown.field])) & shown.bits) != 0;
    if (changed && shown.display != ValueDisplay::kNothing) AddOnce(stored, WordsOf(shown, now));
  }

  static void AddOnce(std::vector<Words>& stored, const Words& words) {
    if (!words.empty() && std::find(stored.begin(), stored.end(), words) == stored.end())
      stored.push_back(words);
  }

  Words WordsOf(const Editor& shown, int value) const {
    const auto& list = *std::get<controls::List*>(ListOf(shown));
    auto caption = list.caption;
    if (!caption.empty() && caption.back() == ':') caption.pop_back();
    return Sentence(Pattern("List", "%1 %2"), {OfForm(caption), OfForm(EntryOf(shown, list, value))});
  }

  static std::string EntryOf(const Editor& shown, const controls::List& list, int value) {
    if (shown.display == ValueDisplay::kPicked) return list.Text();
    const int lowest = shown.bits & -shown.bits;
    const auto entry = EntryFor(shown.display, (value & shown.bits) / lowest);
    return entry < list.items.size() ? list.items[entry] : std::string();
  }

  const core::Application& app_;
  const image::ConfigImage& before_;
  controls::ControlRef acted_;
  const controls::Form* form_;
  bool acts_for_shown_;
};

}  // namespace

bool IsAct(const core::Event& event) {
  return core::IsOfInstaller(event) && !std::holds_alternative<core::LeaveEvent>(event) &&
         !std::holds_alternative<core::CloseEvent>(event);
}

Words OtherTabsStored(const core::Application& app, const image::ConfigImage& before) {
  return Comparison(app, before, app.registry.Find("ComboReg")->control).OtherTabs();
}

Words AlsoStored(const core::Application& app, const core::Event& event, const image::ConfigImage& before) {
  const auto acted = IsAct(event) ? core::ControlOf(event) : std::nullopt;
  if (!acted || std::holds_alternative<controls::MenuItem*>(*acted)) return {};
  if (auto other = Comparison(app, before, *acted).Contradiction(); !other.empty()) return other;
  if (app.image == before) return {};
  if (!core::Picks(event, app.frmMain.ComboReg)) return Comparison(app, before, *acted).Line();
  return AlsoStoredLine(OtherTabsStored(app, before));
}

}  // namespace ovl::changes
