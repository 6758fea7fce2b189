#include "acts/control_memory.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace ovl::acts {
namespace {

constexpr std::array<std::string_view, 18> kOfLink = {
    "lbVersionID", "CmdUpDow",  "cmdConnect",       "cmdDisConnect", "lbConnectting", "lbRemoteAccess",
    "Picture1",    "Label64",   "vbalProgressBar1", "ComboHR",       "ComboMin",      "ComboSec",
    "ComboMonth",  "ComboYear", "ComboDay",         "CheckTD",       "Frame11",       "SSTab1"};

template <class... Kinds>
bool Holds(const controls::ControlRef& control) {
  return (... || std::holds_alternative<Kinds>(control));
}

// One of the two windows that can stay open beside the main one.
bool IsBeside(const core::Application& app, const controls::Form* form) {
  return form == &app.frmMicros.form || form == &app.FrmSubMenu.form;
}

bool IsSetting(const core::Application& app, const controls::NamedControl& named) {
  if (auto* const* form = std::get_if<controls::Form*>(&named.control)) return IsBeside(app, *form);
  if (Holds<controls::MenuItem*, controls::Timer*, controls::ProgressBar*, controls::Tabs*>(named.control))
    return false;
  if (named.form != &app.frmMain.form) return IsBeside(app, named.form);
  const auto name = std::string_view(named.name).substr(0, named.name.find('('));
  return std::find(kOfLink.begin(), kOfLink.end(), name) == kOfLink.end();
}

// Calls `step` with each member of the control and its place in the memory.
template <class Memory, class Step>
void EachMember(const controls::ControlRef& control, Memory& memory, const Step& step) {
  auto& state = controls::StateOf(control);
  step(state.caption, memory.caption);
  step(state.visible, memory.visible);
  step(state.enabled, memory.enabled);
  if (auto* const* list = std::get_if<controls::List*>(&control)) {
    step((*list)->position, memory.chosen);
    step((*list)->items, memory.items);
  } else if (auto* const* array = std::get_if<controls::OptionArray*>(&control)) {
    step((*array)->chosen, memory.chosen);
  } else if (auto* const* box = std::get_if<controls::TextBox*>(&control)) {
    step((*box)->text, memory.text);
    step((*box)->max_length, memory.max_length);
  } else if (auto* const* check = std::get_if<controls::CheckBox*>(&control)) {
    step((*check)->checked, memory.is_on);
  } else if (auto* const* form = std::get_if<controls::Form*>(&control)) {
    step((*form)->loaded, memory.is_on);
  }
}

}  // namespace

std::vector<controls::ControlRef> SettingsControls(const core::Application& app) {
  std::vector<controls::ControlRef> settings;
  for (const auto& named : app.registry.All()) {
    if (IsSetting(app, named)) settings.push_back(named.control);
  }
  return settings;
}

bool IsAsRemembered(const controls::ControlRef& control, const ControlMemory& memory) {
  bool same = true;
  EachMember(control, memory, [&same](const auto& is, const auto& was) { same = same && is == was; });
  return same;
}

ControlMemory Remember(const controls::ControlRef& control) {
  ControlMemory memory;
  EachMember(control, memory, [](const auto& is, auto& kept) { kept = is; });
  return memory;
}

void PutBack(const controls::ControlRef& control, const ControlMemory& memory) {
  EachMember(control, memory, [](auto& is, const auto& was) { is = was; });
}

}  // namespace ovl::acts
