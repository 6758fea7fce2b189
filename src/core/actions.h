// What handlers do to controls, forms, timers, the line and the world outside.
#pragma once

#include <string>
#include <string_view>

#include "core/application.h"
#include "core/messages.h"

namespace ovl::core {

// Whether an assignment by code runs the control's handler when nothing changes.
enum class Raise { kWhenChanged, kAlways };

// Selects an entry. A position that the list does not have, such as -1, is refused without an event: false.
bool AssignPosition(Application& app, controls::List& list, int position, Raise raise = Raise::kWhenChanged);

// Chooses an element, which may be hidden, and clears the arrays that share its frame. An element that the
// array does not have is refused in the same way.
bool ChooseElement(Application& app, controls::OptionArray& array, int element,
                   Raise raise = Raise::kWhenChanged);

void AssignText(Application& app, controls::TextBox& box, std::string text,
                Raise raise = Raise::kWhenChanged);

// Enabling a stopped timer starts its interval anew. A running timer is not disturbed.
void EnableTimer(controls::Timer& timer, bool enabled);

// Loads the form if it is not loaded, and shows it.
void LoadForm(Application& app, controls::Form& form);
void ShowForm(Application& app, controls::Form& form);
void HideForm(controls::Form& form);
void UnloadForm(Application& app, controls::Form& form);
// The main form can be used again, unless a form that holds it back is still loaded.
void ReleaseMain(Application& app);

void SetFocus(controls::Form& form, controls::ControlState& control);

// Shows a message box and returns when it is closed. The detail replaces "%1" in its text.
void MsgBox(Application& app, Box box, std::string_view detail = {});

[[noreturn]] void EndProgram(Application& app);

// The serial control's operations. Opening and writing throw Failure; writing to a closed port does nothing.
void OpenCommPort(Application& app);
void CloseCommPort(Application& app);
void Output(Application& app, std::string_view text);
std::string Input(Application& app);
void ClearCommBuffers(Application& app);

// The port as failures name it: "Comport 3".
std::string PortName(const Application& app);

// Why the device of the open port is gone; null while it is there, and while no port is open.
const Failure* LostDevice(const Application& app);

// Shows the failure in the status bar.
void NoteFailure(Application& app, const Failure& failure);

// Writes, and goes on if the device is lost: the status bar shows the reason. For steps that must be followed
// by others, such as closing the port.
void OutputOrSkip(Application& app, std::string_view text);

// Gives every control of an array the handler.
template <class Controls>
void HandleAll(Controls& controls, controls::Handler handler) {
  for (auto& control : controls) control.handler = handler;
}

}  // namespace ovl::core
