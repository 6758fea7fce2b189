#include "changes/also_stored.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "changes/editors.h"
#include "codecs/codecs.h"
#include "image/field_map.h"

namespace ovl {
namespace {

// The entry of a list that stands for some bits of a byte, moved to the right edge.
std::size_t EntryFor(Tells tells, int bits) {
  constexpr std::array<std::size_t, 4> kParityEntries = {0, 0, 2, 1};
  const auto at = static_cast<std::size_t>(bits);
  if (tells == Tells::kParity) return kParityEntries.at(at);
  return tells == Tells::kSetIsOff ? 1 - at : at;
}

struct ControlOf {
  std::optional<ControlRef> operator()(const PickEvent& event) const { return event.control; }
  std::optional<ControlRef> operator()(const ClickEvent& event) const { return event.control; }
  std::optional<ControlRef> operator()(const TypeEvent& event) const { return event.box; }
  template <class Other>
  std::optional<ControlRef> operator()(const Other&) const {
    return std::nullopt;
  }
};

class Comparison {
 public:
  Comparison(const Application& app, const ConfigImage& before, const ControlRef& acted)
      : app_(app),
        before_(before),
        acted_(acted),
        form_(app.registry.FormOf(acted)),
        acts_for_shown_(std::any_of(Editors().begin(), Editors().end(), [this](const Editor& shown) {
          return shown.tells != Tells::kNothing && ListOf(shown) == acted_;
        })) {}

  std::string Told() const {
    std::vector<std::string> told;
    for (const auto& row : FieldTable()) {
      for (int entry = 1; entry <= EntryCount(row.id); ++entry) Compare(row, entry, told);
    }
    std::string line;
    for (const auto& words : told) line += (line.empty() ? "Also stored: " : ", ") + words;
    return line.empty() ? line : line + ".";
  }

 private:
  ControlRef ListOf(const Editor& shown) const { return Named(shown).control; }

  const NamedControl& Named(const Editor& shown) const { return *app_.registry.Find(shown.controls); }

  // The list itself, or a button of the window that has it.
  bool IsOwn(const Editor& shown) const {
    const auto& list = Named(shown);
    return list.control == acted_ || (form_ == list.form && form_ != &app_.frmMain.form);
  }

  void Compare(const FieldRow& row, int entry, std::vector<std::string>& told) const {
    const auto& now = app_.image.at(row.id, entry);
    const auto& was = before_.at(row.id, entry);
    if (now == was) return;
    bool shown_somewhere = false;
    const int changed = HexToInt(now) ^ HexToInt(was);
    for (const auto& shown : Editors()) {
      if (shown.field != row.id || shown.tells == Tells::kNothing) continue;
      shown_somewhere = true;
      if ((changed & shown.bits) != 0 && !IsOwn(shown)) AddOnce(told, WordsOf(shown, HexToInt(now)));
    }
    // A control that no shown field belongs to stores its own fields among those that no list shows.
    if (!shown_somewhere && acts_for_shown_) AddOnce(told, std::string(row.name) + " " + now);
  }

  static void AddOnce(std::vector<std::string>& told, const std::string& words) {
    if (!words.empty() && std::find(told.begin(), told.end(), words) == told.end()) told.push_back(words);
  }

  std::string WordsOf(const Editor& shown, int value) const {
    const auto& list = *std::get<List*>(ListOf(shown));
    auto caption = list.caption;
    if (!caption.empty() && caption.back() == ':') caption.pop_back();
    return caption + " " + EntryOf(shown, list, value);
  }

  static std::string EntryOf(const Editor& shown, const List& list, int value) {
    if (shown.tells == Tells::kPicked) return list.Text();
    const int lowest = shown.bits & -shown.bits;
    const auto entry = EntryFor(shown.tells, (value & shown.bits) / lowest);
    return entry < list.items.size() ? list.items[entry] : std::string();
  }

  const Application& app_;
  const ConfigImage& before_;
  ControlRef acted_;
  const Form* form_;
  bool acts_for_shown_;
};

}  // namespace

bool IsAct(const Event& event) {
  return std::visit(ControlOf{}, event).has_value() || std::holds_alternative<KeyEvent>(event);
}

std::string AlsoStored(const Application& app, const Event& event, const ConfigImage& before) {
  const auto acted = std::visit(ControlOf{}, event);
  if (!acted || app.image == before) return {};
  const auto* list = std::get_if<List*>(&*acted);
  const bool whole_image =
      std::holds_alternative<MenuItem*>(*acted) || (list != nullptr && *list == &app.frmMain.ComboReg);
  return whole_image ? std::string() : Comparison(app, before, *acted).Told();
}

}  // namespace ovl
