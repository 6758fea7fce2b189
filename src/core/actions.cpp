#include "core/actions.h"

#include <algorithm>

#include "core/failure.h"

namespace ovl::core {
namespace {

void Run(Application& app, controls::Handler handler, int index) {
  if (handler != nullptr) handler(app, index);
}

}  // namespace

bool AssignPosition(Application& app, controls::List& list, int position, Raise raise) {
  if (position < 0 || position >= static_cast<int>(list.items.size())) return false;
  const bool changed = list.position != position;
  list.position = position;
  if (changed || raise == Raise::kAlways) Run(app, list.handler, list.index);
  return true;
}

bool ChooseElement(Application& app, controls::OptionArray& array, int element, Raise raise) {
  if (element < 0 || element >= static_cast<int>(array.elements.size())) return false;
  const bool changed = array.chosen != element;
  array.chosen = element;
  for (auto* other : array.excludes) other->chosen = -1;
  if (changed || raise == Raise::kAlways) Run(app, array.handler, element);
  return true;
}

void AssignText(Application& app, controls::TextBox& box, std::string text, Raise raise) {
  const bool changed = box.text != text;
  box.text = std::move(text);
  if (changed || raise == Raise::kAlways) Run(app, box.handler, box.index);
}

void EnableTimer(controls::Timer& timer, bool enabled) {
  if (enabled && !timer.enabled) ++timer.starts;
  timer.enabled = enabled;
}

void LoadForm(Application& app, controls::Form& form) {
  if (form.loaded) return;
  form.loaded = true;
  Run(app, form.load, 0);
}

void ShowForm(Application& app, controls::Form& form) {
  LoadForm(app, form);
  form.visible = true;
  Run(app, form.shown, 0);
}

void HideForm(controls::Form& form) {
  form.visible = false;
}

void UnloadForm(Application& app, controls::Form& form) {
  if (!form.loaded) return;
  form.loaded = false;
  form.visible = false;
  Run(app, form.unload, 0);
}

void ReleaseMain(Application& app) {
  const auto& forms = app.registry.Forms();
  app.frmMain.form.enabled = std::none_of(forms.begin(), forms.end(), [](const controls::Form* form) {
    return form->loaded && form->holds_main;
  });
}

void SetFocus(controls::Form& form, controls::ControlState& control) {
  form.focus = &control;
  ++form.focus_requests;
}

void MsgBox(Application& app, Box box, std::string_view detail) {
  app.platform.show_message(BoxOf(box, detail));
}

void EndProgram(Application& app) {
  app.ended = true;
  throw ProgramEnd();
}

void OpenCommPort(Application& app) {
  auto& comm = app.frmMain.MSComm1;
  if (comm.PortOpen) return;
  const auto opened = app.platform.serial.open({comm.CommPort, comm.Settings});
  ++app.last_port_attempt.number;
  app.last_port_attempt.refused = opened.Ok() ? std::nullopt : std::optional(opened.Problem());
  if (!opened.Ok()) throw Failure(PortName(app), opened.Problem());
  comm.PortOpen = true;
}

void CloseCommPort(Application& app) {
  app.frmMain.MSComm1.PortOpen = false;
  app.platform.serial.close();
}

void Output(Application& app, std::string_view text) {
  if (!app.frmMain.MSComm1.PortOpen) return;
  const auto written = app.platform.serial.write(text);
  if (!written.Ok()) throw Failure(PortName(app), written.Problem());
}

std::string Input(Application& app) {
  return app.platform.serial.read();
}

void ClearCommBuffers(Application& app) {
  app.platform.serial.clear_input();
  app.platform.serial.clear_output();
}

std::string PortName(const Application& app) {
  return "Comport " + std::to_string(app.frmMain.MSComm1.CommPort);
}

const Failure* LostDevice(const Application& app) {
  const auto& lost = app.platform.serial.lost;
  return app.frmMain.MSComm1.PortOpen && lost ? lost() : nullptr;
}

void NoteFailure(Application& app, const Failure& failure) {
  app.StatusNote = failure.Text();
  app.noted_failure = failure;
  ++app.failures_noted;
}

void OutputOrSkip(Application& app, std::string_view text) {
  try {
    Output(app, text);
  } catch (const Failure& failure) {
    NoteFailure(app, failure);
  }
}

}  // namespace ovl::core
