#include "changes/wording.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "image/slot_records.h"

namespace ovl::changes {
namespace {

using core::Place;
using phrases::Marked;
using phrases::OfForm;
using phrases::Pattern;
using phrases::Sentence;
using phrases::Tidied;
using phrases::Words;

constexpr std::string_view kExceptionText = "TextException";
constexpr std::string_view kRange = "cmdSetRange";
constexpr std::string_view kTrigger = "ComboALM(1)";

// Lists that show one bit of the flags of a slot. The form can show OFF for a bit that is set, because scroll
// matching prevents the other acts, so the bit itself decides.
constexpr std::array<std::string_view, 6> kFlagLists = {"ComboExcp(1)", "ComboExcp(2)",    "ComboExcp(3)",
                                                        "ComboExcp(4)", "ComboTrigger(0)", "ComboTrigger(1)"};

// Settings whose control has another caption than the setting.
struct Caption {
  std::string_view control, words;
};
constexpr std::array kCaptions = {
    Caption{"ComboReg", Marked("Form", "Register")}, Caption{kExceptionText, Marked("Form", "text")},
    Caption{"TextTrigger", Marked("Form", "text")}, Caption{kRange, Marked("Form", "RANGE")}};

// Texts are read-only on the form. Their buttons open the window in which they are edited.
struct Button {
  std::string_view control, button;
};
constexpr std::array kButtons = {Button{kExceptionText, "cmdSetExcpstr"},
                                 Button{"TextTrigger", "cmdSetTrigger"}, Button{"Title_Text", "cmdTitle"},
                                 Button{"frmSetRange.ComboDec", kRange}};

bool IsOneOf(std::string_view name, std::span<const std::string_view> names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

Words CaptionOf(const core::Application& app, std::string_view control) {
  for (const auto& row : kCaptions) {
    if (row.control == control) return OfForm(std::string(row.words));
  }
  const auto* named = app.registry.Find(control);
  return named == nullptr ? Words(std::string(control))
                          : OfForm(Tidied(controls::StateOf(named->control).caption));
}

// The network has captions that the register line has too.
bool IsOfNetwork(const core::Application& app, std::string_view control) {
  const auto& lists = app.frmMain.ComboCOMM;
  const auto* named = app.registry.Find(control);
  const auto* list = named == nullptr ? nullptr : std::get_if<controls::List*>(&named->control);
  return list != nullptr &&
         std::any_of(lists.begin() + controls::Comm::kNetType, lists.end(),
                     [&](const controls::List& of_network) { return &of_network == *list; });
}

std::string WithoutZeros(std::string digits) {
  const auto point = digits.find_first_of(".,");
  const auto first = digits.find_first_not_of('0');
  digits.erase(0, std::min(first, std::max<std::size_t>(point, 1) - 1));
  return digits;
}

std::optional<Words> RangeWords(const controls::MainForm& form) {
  const auto words =
      WithoutZeros(form.TextRANGE[0].caption) + " - " + WithoutZeros(form.TextRANGE[1].caption);
  // Other bytes than digits are no amount.
  return words.find_first_not_of("0123456789.,- ") == std::string::npos ? std::optional<Words>(words)
                                                                        : std::nullopt;
}

Words TextWords(std::string text, const Words& without) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text.empty() ? without : Words(std::move(text));
}

bool IsText(const controls::ControlRef& control) {
  return std::holds_alternative<controls::TextBox*>(control);
}

}  // namespace

Words BytesInWords(std::string_view digits) {
  constexpr std::size_t kByte = 2;
  if (digits.empty()) return Sentence(Pattern("Setting", "byte"));
  std::string bytes;
  for (std::size_t digit = 0; digit < digits.size(); digit += kByte)
    bytes.append(digit == 0 ? "" : " ").append(digits.substr(digit, kByte));
  return digits.size() <= kByte ? Sentence(Pattern("Setting", "byte %1"), {bytes})
                                : Sentence(Pattern("Setting", "bytes %1"), {bytes});
}

int TabOf(Place place) {
  if (place == Place::kMicros) return static_cast<int>(Place::kRegister);
  return static_cast<int>(place == Place::kRange ? Place::kExceptionReport : place);
}

Words TabCaption(const core::Application& app, int tab) {
  return OfForm(Tidied(app.frmMain.SSTab1.captions.at(static_cast<std::size_t>(tab))));
}

Words SlotCaption(const core::Application& app, const Site& site) {
  const bool labelled = site.option != nullptr && !site.option->LabelAlone().empty();
  auto caption = labelled ? OfForm(Tidied(site.option->LabelAlone())) : CaptionOf(app, site.control);
  if (IsOfNetwork(app, site.control))
    return Sentence(Pattern("List", "%1, %2"), {OfForm(Tidied(app.frmMain.Frame13.caption)), caption});
  if (site.place == Place::kRange)
    return Sentence(Pattern("List", "%1, %2"), {OfForm(Tidied(app.frmSetRange.form.caption)), caption});
  if (site.slot == 0) return caption;
  const std::vector<Words> parts = {std::to_string(site.slot), caption};
  return site.place == Place::kAlarmOutputs ? Sentence(Pattern("Setting", "Alarm %1, %2"), parts)
                                            : Sentence(Pattern("Setting", "Exception %1, %2"), parts);
}

std::string ReachedBy(const PreviewProgram& program, const Site& site) {
  for (const auto& row : kButtons) {
    if (row.control == site.control) return std::string(row.button);
  }
  const auto& named = program.Named(site.control);
  const auto& app = program.Form();
  if (named.form == &app.frmMicros.form) return "cmdMicros";
  if (named.form == &app.FrmSubMenu.form) {
    using Frame = controls::OptionFrame;
    if (app.frmMain.FrameOf(Frame::kSharpModels).visible) return "SharpCom";
    return app.frmMain.FrameOf(Frame::kTecModels).visible ? "Command2" : "Command1";
  }
  // The second recorder with ids has lists of its own for the same bytes.
  if (app.frmMain.OpDVR.chosen == 2 && site.control == "ComboKLM4011(0)") return "ComboKLM4011(2)";
  if (app.frmMain.OpDVR.chosen == 2 && site.control == "ComboKLM4011(1)") return "ComboKLM4011(3)";
  return std::string(site.control);
}

std::string_view SlotListOf(const Site& site) {
  if (site.slot == 0) return {};
  return site.place == Place::kAlarmOutputs ? "ComboALM(0)" : "ComboExcp(0)";
}

void Wording::Show(const Site& site) {
  if (site.slot == 0) return;
  if (site.place == Place::kAlarmOutputs) {
    if (std::exchange(alarm_, site.slot) != site.slot) program_.ShowAlarm(site.slot);
  } else if (std::exchange(exception_, site.slot) != site.slot) {
    program_.ShowException(site.slot);
  }
}

std::optional<Words> Wording::FlagWords(const Site& site, std::string_view value) const {
  const auto& list = *std::get<controls::List*>(program_.Named(site.control).control);
  const bool set = (codecs::HexToInt(PartOf(site, value)) & site.bits) != 0;
  return OfForm(list.items.at(set ? 1 : 0));
}

std::optional<Words> Wording::WordsOf(const Site& site, std::string_view value) {
  if (site.option != nullptr) return OptionWords(program_, *site.option);
  if (IsOneOf(site.control, kFlagLists)) return FlagWords(site, value);
  Show(site);
  const auto& form = program_.Form().frmMain;
  if (site.control == kRange) return RangeWords(form);
  auto words = program_.WordsOf(site.control);
  if (site.control == kExceptionText) {
    const auto free = Sentence(Pattern("Setting", "free"));
    return image::IsFreeException(value) ? free : TextWords(*words, free);
  }
  if (site.control == kTrigger && form.lbAlmTrig.visible && words)
    return Sentence(Pattern("List", "%1 %2"), {OfForm(form.lbAlmTrig.caption), *words});
  if (IsText(program_.Named(site.control).control))
    return TextWords(*words, Sentence(Pattern("Setting", "empty")));
  return words;
}

}  // namespace ovl::changes
