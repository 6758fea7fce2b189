#include "changes/editors.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

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
#include "registers/options/micros.h"
#include "registers/register_table.h"

namespace ovl::changes {
namespace {

using core::Editor;
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
  std::string caption = PlainCaption(control->control);
  if (caption.empty()) throw std::logic_error(control->name + " has no caption");
  return caption;
}

std::string Captions(const core::Application& app, std::string_view controls, std::string_view options) {
  if (controls.empty()) return std::string(options);
  std::string words;
  while (!controls.empty()) {
    const auto name = controls.substr(0, controls.find(' '));
    controls.remove_prefix(std::min(controls.size(), name.size() + 1));
    words += (words.empty() ? "" : ", ") + CaptionOf(app, name);
  }
  return words;
}

}  // namespace

phrases::Words PlaceName(const core::Application& app, Place place) {
  const auto at = static_cast<std::size_t>(place);
  if (at < kTabs) return phrases::OfForm(Trimmed(app.frmMain.SSTab1.captions.at(at)));
  return phrases::OfForm(place == Place::kRange ? "range window" : app.frmMicros.form.caption);
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

phrases::Words PlainCaption(const controls::ControlRef& control) {
  auto caption = Trimmed(controls::StateOf(control).caption);
  if (!caption.empty() && caption.back() == ':') caption.pop_back();
  return phrases::OfForm(std::move(caption));
}

std::string EditedBy(const core::Application& app, image::FieldId field, std::string_view options) {
  std::string words;
  const Editor* last = nullptr;
  for (const auto& editor : Editors()) {
    if (editor.field != field) continue;
    if (last != nullptr) words += last->place == editor.place ? ", " : "; ";
    if (last == nullptr || last->place != editor.place)
      words += PlaceName(app, editor.place).English() + ": ";
    words += Captions(app, editor.controls, options);
    last = &editor;
  }
  return words;
}

}  // namespace ovl::changes
