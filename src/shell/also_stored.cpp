#include "shell/also_stored.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "core/codecs.h"
#include "image/field_map.h"

namespace ovl {
namespace {

using enum FieldId;

constexpr int kWholeByte = 0xFF;
constexpr int kNoEntry = -1;

// The list that shows a field, or some bits of it. The value of the bits, moved to the right edge, finds its
// entry in `entries`; a whole byte shows as the list does.
struct ShownField {
  FieldId field;
  int bits;
  std::string_view form, list;
  std::array<int, 4> entries = {kNoEntry, kNoEntry, kNoEntry, kNoEntry};
};

constexpr std::array<int, 4> kOn = {0, 1, kNoEntry, kNoEntry};
constexpr std::array<int, 4> kOff = {1, 0, kNoEntry,
                                     kNoEntry};  // the list begins with what the set bit means
constexpr std::array<int, 4> kParity = {0, 0, 2, 1};

constexpr std::array kShown = {
    ShownField{IOCFG_BAK, kWholeByte, "frmMain", "ComboCOMM(0)"},
    ShownField{RX_BAUDRATE, kWholeByte, "frmMain", "ComboCOMM(1)"},
    ShownField{TX_BAUDRATE, kWholeByte, "frmMain", "ComboCOMM(2)"},
    ShownField{TX_PROTOCOL, kWholeByte, "frmMain", "ComboCOMM(7)"},
    ShownField{COMMCFG_BAK, 0x03, "frmMain", "ComboCOMM(3)", kParity},
    ShownField{COMMCFG_BAK, 0x04, "frmMain", "ComboCOMM(4)", kOn},
    ShownField{COMMCFG_BAK, 0x20, "frmMain", "ComboCOMM(5)", kOff},
    ShownField{SW_HANDSHAKE, kWholeByte, "frmMain", "ComboCOMM(8)"},
    ShownField{COMMCFG_BAK, 0x08, "frmMain", "ComboCOMM(6)", kOff},
    ShownField{NET_TYPE, kWholeByte, "frmMain", "ComboCOMM(9)"},
    ShownField{NET_ADDRESS, kWholeByte, "frmMain", "ComboCOMM(10)"},
    ShownField{NET_PROTOCOL, kWholeByte, "frmMain", "ComboCOMM(11)"},
    ShownField{NET_BAUDRATE, kWholeByte, "frmMain", "ComboCOMM(12)"},
    ShownField{COMMCFG_BAK, 0x10, "frmMain", "ComboExcepRe(0)", kOn},
    ShownField{TIMESTAMP_ENA, kWholeByte, "frmMain", "ComboExcepRe(1)"},
    ShownField{DUPLINE_BAK, kWholeByte, "frmMain", "ComboExcepRe(2)"},
    ShownField{BLNKVAL, kWholeByte, "frmMain", "ComboDIP(0)"},
    ShownField{BLNKIND, kWholeByte, "frmMain", "ComboDIP(0)"},
    ShownField{BLNKRTS_BAK, kWholeByte, "frmMain", "ComboDIP(0)"},
    ShownField{DSPLINES_BAK, kWholeByte, "frmMain", "ComboDIP(1)"},
    ShownField{DSPCFG_BAK, 0x02, "frmMain", "ComboDIP(2)", kOn},
    ShownField{DSPCFG_BAK, 0x04, "frmMain", "ComboDIP(3)", kOn},
    ShownField{DSPCFG_BAK, 0x40, "frmMain", "ComboDIP(4)", kOn},
    ShownField{DSPCFG_BAK, 0x08, "frmMain", "ComboDIP(5)", kOn},
    ShownField{DSPCFG_BAK, 0x20, "frmMain", "ComboDIP(6)", kOn},
    ShownField{SPCOMPRES_BAK, kWholeByte, "frmMain", "ComboDIP(7)"},
    ShownField{DSPCHARS_BAK, kWholeByte, "frmMain", "ComboDIP(8)"},
    ShownField{DSPCFG_BAK, 0x80, "frmMain", "ComboTD(0)", kOn},
    ShownField{DSPCFG_BAK, 0x10, "frmMain", "ComboTD(5)", kOn},
    ShownField{MICROS_STATUS, 0x01, "frmMicros", "ComboMODE", kOn},
};

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
        acted_(app.registry.NameOf(acted)),
        form_(app.registry.FormOf(acted)),
        acts_for_shown_(std::any_of(kShown.begin(), kShown.end(),
                                    [this](const ShownField& shown) { return IsActed(shown); })) {}

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
  bool IsActed(const ShownField& shown) const {
    return form_ != nullptr && form_->name == shown.form && acted_ == shown.list;
  }

  // The list itself, or a button of the window that has it.
  bool IsOwn(const ShownField& shown) const {
    const bool of_main = form_ == &app_.frmMain.form;
    return IsActed(shown) || (!of_main && form_ != nullptr && form_->name == shown.form);
  }

  void Compare(const FieldRow& row, int entry, std::vector<std::string>& told) const {
    const auto& now = app_.image.at(row.id, entry);
    const auto& was = before_.at(row.id, entry);
    if (now == was) return;
    bool shown_somewhere = false;
    const int changed = HexToInt(now) ^ HexToInt(was);
    for (const auto& shown : kShown) {
      if (shown.field != row.id) continue;
      shown_somewhere = true;
      if ((changed & shown.bits) != 0 && !IsOwn(shown)) AddOnce(told, WordsOf(shown, HexToInt(now)));
    }
    // A control that no shown field belongs to stores its own fields among those that no list shows.
    if (!shown_somewhere && acts_for_shown_) AddOnce(told, std::string(row.name) + " " + now);
  }

  static void AddOnce(std::vector<std::string>& told, const std::string& words) {
    if (!words.empty() && std::find(told.begin(), told.end(), words) == told.end()) told.push_back(words);
  }

  std::string WordsOf(const ShownField& shown, int value) const {
    const auto* named = app_.registry.Find(std::string(shown.form) + "." + std::string(shown.list));
    if (named == nullptr) return {};
    const auto& list = *std::get<List*>(named->control);
    auto caption = list.caption;
    if (!caption.empty() && caption.back() == ':') caption.pop_back();
    return caption + " " + EntryOf(shown, list, value);
  }

  static std::string EntryOf(const ShownField& shown, const List& list, int value) {
    if (shown.bits == kWholeByte) return list.Text();
    const int lowest = shown.bits & -shown.bits;
    const int entry = shown.entries.at(static_cast<std::size_t>((value & shown.bits) / lowest));
    return entry < static_cast<int>(list.items.size()) ? list.items.at(static_cast<std::size_t>(entry))
                                                       : std::string();
  }

  const Application& app_;
  const ConfigImage& before_;
  std::string acted_;
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
