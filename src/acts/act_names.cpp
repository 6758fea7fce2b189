#include "acts/act_names.h"

#include <array>
#include <cstdio>

#include "changes/editors.h"

namespace ovl::acts {
namespace {

const controls::Form* FormOf(const core::Application& app, const core::Event& event) {
  if (const auto control = core::ControlOf(event)) return app.registry.FormOf(*control);
  if (const auto* key = std::get_if<core::KeyEvent>(&event)) return key->form;
  const auto* close = std::get_if<core::CloseEvent>(&event);
  return close == nullptr ? nullptr : close->form;
}

phrases::Words WordsOf(const core::Application& app, const controls::ControlRef& control) {
  if (&controls::StateOf(control) == &app.frmMain.ComboReg) return phrases::OfForm(kRegisterAct);
  return changes::PlainCaption(control);
}

}  // namespace

phrases::Words NameOf(const core::Application& app, const core::Event& event) {
  const auto control = core::ControlOf(event);
  const auto* form = FormOf(app, event);
  const bool of_main = form == nullptr || form == &app.frmMain.form;
  // The buttons of the other windows have captions such as "SET", which name nothing.
  if (!of_main && (!control || std::holds_alternative<controls::Button*>(*control)))
    return phrases::OfForm(form->caption);
  return control ? WordsOf(app, *control) : phrases::Words();
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
