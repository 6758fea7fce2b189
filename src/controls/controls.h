// The controls of a form, as plain data. Nothing here draws or waits. The windows read these structs and pass
// the actions of the user to the gate; handlers change the structs.
#pragma once

#include <string>
#include <vector>

namespace ovl::core {
struct Application;
}

namespace ovl::controls {

// What a control does. The index is the position of the control in its control array. For an option array, it
// is the chosen element.
using Handler = void (*)(core::Application&, int index);

// What every control has. There are no virtual functions.
struct ControlState {
  std::string caption;
  bool visible = true;
  bool enabled = true;
  int index = 0;
  Handler handler = nullptr;  // click, selection, change of text, tick
  Handler point = nullptr;    // the mouse pointer moves over the control
  Handler leave = nullptr;    // the control loses the focus
};

struct Label : ControlState {};
struct Picture : ControlState {};
struct Frame : ControlState {};
struct Button : ControlState {};

struct CheckBox : ControlState {
  bool checked = false;
};

// A list to select from. The position is -1 until an entry is selected or assigned.
struct List : ControlState {
  std::vector<std::string> items;
  int position = -1;

  std::string Text() const {
    return position < 0 ? std::string() : items.at(static_cast<std::size_t>(position));
  }
};

// A group of option buttons; at most one is chosen, and -1 means none. The arrays in `excludes` are in the
// same frame: a choice here clears them without an event.
struct OptionArray : ControlState {
  std::vector<ControlState> elements;
  int chosen = -1;
  std::vector<OptionArray*> excludes;
};

// The text is in Windows-1252. A max_length of 0 means no limit.
struct TextBox : ControlState {
  std::string text;
  std::size_t max_length = 0;
  bool read_only = false;
  bool multi_line = false;
};

// A value from 0 to maximum, with a text inside the bar.
struct ProgressBar : ControlState {
  int value = 0;
  int maximum = 100;
  std::string text;
};

// A timer with an interval in milliseconds. `starts` counts its changes from stopped to running. The owner of
// the real timer needs this to detect a restart.
struct Timer : ControlState {
  int interval = 0;
  unsigned starts = 0;

  Timer() { enabled = false; }
};

struct MenuItem : ControlState {
  bool checked = false;
};

struct Tabs : ControlState {
  std::vector<std::string> captions;
  int current = 0;
};

// A window. `visible` means that it is on the screen; a loaded form can be hidden. When the form is unloaded,
// `unload` runs. `window_close` runs for the close button of the window; if it is null, the form is unloaded.
// `enter` and `escape` run for these keys anywhere in the form.
struct Form : ControlState {
  std::string name;
  bool loaded = false;
  bool top_most = false;
  bool holds_main = false;  // while this form is loaded, the main form cannot be used
  Handler load = nullptr;
  Handler shown = nullptr;
  Handler unload = nullptr;
  Handler window_close = nullptr;
  Handler enter = nullptr;
  Handler escape = nullptr;
  ControlState* focus = nullptr;  // the last control that got the focus from the program
  unsigned focus_requests = 0;    // counts them, so that the windows notice each one

  Form() { visible = false; }
};

// The events of the serial control: the transmitter has run empty, or a character has arrived.
inline constexpr int kCommSend = 1;
inline constexpr int kCommReceive = 2;

// The serial control: the settings of the program and the current event. The platform owns the serial port.
struct SerialControl {
  int CommPort = 1;
  std::string Settings;
  bool PortOpen = false;
  int SThreshold = 0;
  int RThreshold = 0;
  int InputLen = 0;
  int CommEvent = 0;
  Handler handler = nullptr;
};

}  // namespace ovl::controls
