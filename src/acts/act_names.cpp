#include "acts/act_names.h"

#include <array>
#include <cstdio>

#include "changes/editors.h"

namespace ovl::acts {
namespace {

// The form of an event without a control, and the control of one with a control.
struct Target {
  std::optional<controls::ControlRef> control;
  const controls::Form* form = nullptr;
};

struct TargetOf {
  const core::Application& app;

  Target operator()(const core::PickEvent& event) const { return Of(event.control); }
  Target operator()(const core::ClickEvent& event) const { return Of(event.control); }
  Target operator()(const core::TypeEvent& event) const { return Of(event.box); }
  Target operator()(const core::LeaveEvent& event) const { return Of(event.control); }
  Target operator()(const core::KeyEvent& event) const { return {std::nullopt, event.form}; }
  Target operator()(const core::CloseEvent& event) const { return {std::nullopt, event.form}; }
  template <class Other>
  Target operator()(const Other&) const {
    return {};
  }

  Target Of(const controls::ControlRef& control) const { return {control, app.registry.FormOf(control)}; }
};

std::string WordsOf(const core::Application& app, const controls::ControlRef& control) {
  if (&controls::StateOf(control) == &app.frmMain.ComboReg) return "Register";
  return changes::PlainCaption(control);
}

}  // namespace

std::string NameOf(const core::Application& app, const core::Event& event) {
  const auto target = std::visit(TargetOf{app}, event);
  const bool of_main = target.form == nullptr || target.form == &app.frmMain.form;
  const bool is_button = target.control && std::holds_alternative<controls::Button*>(*target.control);
  // The buttons of the other windows have captions such as "SET", which name nothing.
  if (!of_main && (!target.control || is_button)) return target.form->caption;
  return target.control ? WordsOf(app, *target.control) : std::string();
}

bool IsOpen(const core::Application& app, const core::Event& event) {
  const auto* click = std::get_if<core::ClickEvent>(&event);
  return click != nullptr && &controls::StateOf(click->control) == &app.frmMain.OpenMenu;
}

std::string FileNameOf(const std::string& path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

std::string TimeOfDay(const core::Application& app) {
  const auto now = app.platform.clock();
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d", now.hour, now.minute);
  return text.data();
}

}  // namespace ovl::acts
