#include "changes/editors.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

#include "codecs/codecs.h"
#include "image/slot_records.h"
#include "panels/alarms.h"
#include "panels/communication.h"
#include "panels/demo.h"
#include "panels/exceptions/dvr.h"
#include "panels/exceptions/exception_report.h"
#include "panels/exceptions/exceptions.h"
#include "panels/exceptions/range_editor.h"
#include "panels/exceptions/scroll_matching.h"
#include "panels/text_display.h"
#include "panels/time_date.h"
#include "registers/micros.h"
#include "registers/register_table.h"

namespace ovl::changes {
namespace {

using core::Editor;
using core::Part;
using core::Place;

using Listed = std::span<const core::Editor> (*)();

// In the order of `core::Place`.
constexpr std::array<Listed, 12> kListed = {
    registers::RegisterEditors,    panels::DisplayEditors,   panels::AlarmEditors,
    panels::CommunicationEditors,  panels::ExceptionEditors, panels::ExceptionReportEditors,
    panels::ScrollMatchingEditors, panels::DvrEditors,       panels::TimeDateEditors,
    panels::DemoEditors,           panels::RangeEditors,     registers::MicrosEditors,
};

constexpr std::size_t kTabs = 7;

std::string Trimmed(const std::string& text) {
  const auto begin = text.find_first_not_of(' ');
  return begin == std::string::npos ? std::string()
                                    : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

std::string CaptionOf(const core::Application& app, std::string_view name) {
  const auto* control = app.registry.Find(name);
  if (control == nullptr) throw std::logic_error("there is no control " + std::string(name));
  auto caption = PlainCaption(control->control);
  if (caption.empty()) throw std::logic_error(control->name + " has no caption");
  return caption;
}

std::string Captions(const core::Application& app, std::string_view controls, std::string_view options,
                     bool hidden_too) {
  if (controls.empty()) return std::string(options);
  std::string words;
  while (!controls.empty()) {
    const auto name = controls.substr(0, controls.find(' '));
    controls.remove_prefix(std::min(controls.size(), name.size() + 1));
    const auto caption = CaptionOf(app, name);
    if (hidden_too || controls::StateOf(app.registry.Find(name)->control).visible)
      words += (words.empty() ? "" : ", ") + caption;
  }
  return words;
}

// The digits of a record that a control stores.
std::string_view Cut(Part part, image::FieldId field, std::string_view record) {
  constexpr std::size_t kByte = 2;
  switch (part) {
    case Part::kFirstByte:
      return record.substr(0, kByte);
    case Part::kDuration:
      return image::AlarmDurationDigits(record);
    case Part::kVideoLoss:
      return image::AlarmVideoLossDigits(record);
    case Part::kRange:
      return image::RangeAndLengthOf(record);
    case Part::kText:
      return field == image::FieldId::EXCPSTRS ? image::CharactersOf(record) : image::TriggeredDigits(record);
    default:
      return record;
  }
}

// Whether the control stores a part that differs.
bool Stores(const Editor& editor, std::string_view before, std::string_view after) {
  const auto was = Cut(editor.part, editor.field, before), is = Cut(editor.part, editor.field, after);
  if (was.size() != 2 || is.size() != 2) return was != is;
  return ((codecs::HexToInt(was) ^ codecs::HexToInt(is)) & editor.bits) != 0;
}

template <class Wanted>
std::string Words(const core::Application& app, std::string_view options, bool hidden_too,
                  const Wanted& wanted) {
  std::string words;
  const Editor* last = nullptr;
  for (const auto& editor : Editors()) {
    if (!wanted(editor)) continue;
    const auto captions = Captions(app, editor.controls, options, hidden_too);
    if (captions.empty()) continue;
    if (last != nullptr) words += last->place == editor.place ? ", " : "; ";
    if (last == nullptr || last->place != editor.place) words += PlaceName(app, editor.place) + ": ";
    words += captions;
    last = &editor;
  }
  return words;
}

}  // namespace

std::string PlaceName(const core::Application& app, Place place) {
  const auto at = static_cast<std::size_t>(place);
  if (at >= kTabs) return place == Place::kRange ? "range window" : app.frmMicros.form.caption;
  return Trimmed(app.frmMain.SSTab1.captions.at(at));
}

std::span<const Editor> Editors() {
  static const std::vector<Editor> editors = [] {
    std::vector<Editor> all;
    for (const auto listed : kListed) {
      const auto more = listed();
      all.insert(all.end(), more.begin(), more.end());
    }
    return all;
  }();
  return editors;
}

std::string PlainCaption(const controls::ControlRef& control) {
  auto caption = Trimmed(controls::StateOf(control).caption);
  if (!caption.empty() && caption.back() == ':') caption.pop_back();
  return caption;
}

std::string EditedBy(const core::Application& app, image::FieldId field, std::string_view options) {
  return Words(app, options, true, [&](const Editor& editor) { return editor.field == field; });
}

std::string EditedBy(const core::Application& app, image::FieldId field, std::string_view options,
                     std::string_view before, std::string_view after) {
  const auto stores = [&](const Editor& editor) {
    return editor.field == field && Stores(editor, before, after);
  };
  auto words = Words(app, options, false, stores);
  if (words.empty()) words = Words(app, options, true, stores);
  return words.empty() ? EditedBy(app, field, options) : words;
}

}  // namespace ovl::changes
