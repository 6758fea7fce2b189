#include "search/random_walk/act_generator.h"

#include "registers/options/option_rows.h"
#include "script/parser.h"
#include "search/random_walk/checked_program.h"
#include "support/harness.h"

namespace ovl::testing {
namespace {

// For each control of the registry the row of an option frame that contains it, or null.
std::vector<const registers::OptionRow*> RowsOf(const core::Application& app) {
  std::vector<const registers::OptionRow*> rows;
  for (const auto& named : app.registry.All())
    rows.push_back(named.form == &app.frmMain.form ? registers::FindOptionRow(named.name) : nullptr);
  return rows;
}

bool IsShown(const core::Application& app, const registers::OptionRow* row) {
  if (row == nullptr) return true;
  return app.frmMain.FrameOf(row->frame).visible &&
         (row->inner.empty() || controls::StateOf(app.registry.Find(row->inner)->control).visible);
}

bool Reachable(const controls::NamedControl& named) {
  const auto& state = controls::StateOf(named.control);
  const auto* element = std::get_if<controls::OptionElement>(&named.control);
  return named.form->loaded && named.form->visible && named.form->enabled && state.visible && state.enabled &&
         (element == nullptr || element->array->enabled);
}

template <class... Kinds>
bool Holds(const controls::ControlRef& control) {
  return (... || std::holds_alternative<Kinds>(control));
}

const controls::Form* WindowBeside(const core::Application& app) {
  for (const auto* form : app.registry.Forms()) {
    if (form != &app.frmMain.form && form->loaded && form->visible) return form;
  }
  return nullptr;
}

}  // namespace

Script ActGenerator::Next(const core::Application& app) {
  if (app.ended) return {"start"};
  const auto& form = app.frmMain;
  const int kind = Below(40);
  if (kind == 0) return Upload(app);
  if (kind == 1) return {"answer " + File(), "click menuSave"};
  if (kind == 2) return {"answer " + (Below(3) == 0 ? "cancel" : File()), "click OpenMenu"};
  if (kind < 5) return {PickIn("ComboReg", form.ComboReg.items.size())};
  if (kind < 7) return {PickIn("ComboExcp(0)", form.ComboExcp[0].items.size())};
  if (kind < 9) return {PickIn("ComboALM(0)", form.ComboALM[0].items.size())};
  return {OnAnyControl(app, Below(3) == 0)};
}

std::string ActGenerator::Text() {
  if (Below(3) == 0) return std::to_string(Below(Below(2) == 0 ? 100 : 100'000'000));
  std::string text(static_cast<std::size_t>(Below(46)), ' ');
  for (char& character : text) {
    if (Below(4) != 0) character = static_cast<char>(Below(2) == 0 ? Below(256) : 'A' + Below(26));
  }
  return text;
}

std::string ActGenerator::PickIn(const std::string& name, std::size_t size) {
  return size == 0 ? "sent" : "pick " + name + " " + std::to_string(Below(size));
}

// All steps of an upload from a closed port. Those that are not possible do nothing.
Script ActGenerator::Upload(const core::Application& app) {
  const int code = Below(app.frmMain.ComboReg.items.size() + 2);
  const auto stream = "unit " + script::Quoted(RawPatternStream(app.firmware, Below(256), code));
  Script steps = {"click cmdConnect", "click frmSettSR.cmdSET", "click CmdUpDow(4)",
                  "unit hex 06",      "click CmdUpDow(0)",      "drain"};
  steps.insert(steps.end(), {stream, "click frmOK_buttom.Command1"});
  return steps;
}

// With `options`, a control of the visible option frame or of a window beside the main one.
std::string ActGenerator::OnAnyControl(const core::Application& app, bool options) {
  constexpr int kTries = 500;
  const auto& all = app.registry.All();
  if (rows_.size() != all.size()) rows_ = RowsOf(app);
  const bool any = !options && Below(16) == 0;
  const auto* window = options && Below(2) == 0 ? WindowBeside(app) : nullptr;
  for (int tries = 0; tries < kTries; ++tries) {
    const auto at = static_cast<std::size_t>(Below(all.size()));
    const auto& named = all[at];
    if (window != nullptr ? named.form != window : options && rows_[at] == nullptr) continue;
    if (!IsShown(app, rows_[at]) || (!any && !Reachable(named))) continue;
    auto line = On(FullName(app, named), named.control);
    if (!line.empty()) return line;
  }
  return "tick Timer";
}

std::string ActGenerator::On(const std::string& name, const controls::ControlRef& control) {
  if (const auto* list = std::get_if<controls::List*>(&control)) return PickIn(name, (*list)->items.size());
  if (const auto* array = std::get_if<controls::OptionArray*>(&control))
    return PickIn(name, (*array)->elements.size());
  if (Holds<controls::OptionElement, controls::CheckBox*, controls::Button*>(control)) return "click " + name;
  if (Holds<controls::Timer*>(control)) return "tick " + name + " " + std::to_string(1 + Below(8));
  if (Holds<controls::TextBox*>(control))
    return Below(4) == 0 ? "leave " + name : "type " + name + " " + script::Quoted(Text());
  // Menu items may end the program, so they are rare.
  if (Holds<controls::MenuItem*>(control)) return Below(8) == 0 ? "click " + name : "";
  if (!Holds<controls::Form*>(control)) return Below(8) == 0 ? "point " + name : "";
  const int kind = Below(16);
  return kind == 0 ? "close " + name : kind < 8 ? "key " + name + " Enter" : "key " + name + " Escape";
}

}  // namespace ovl::testing
