// The kinds of control that a form is made of, as plain data. Nothing here draws or waits: a presentation
// reads these structs and hands a person's acts to the gate; handlers change them.
#pragma once

#include <string>
#include <vector>

namespace ovl::core {
struct Application;
}

namespace ovl::controls {

// What a control sets off. The index is the control's place in its control array, for an option array
// the element that was chosen.
using Handler = void (*)(core::Application&, int index);

// What every control has. The structs below add to it; there are no virtual functions.
struct ControlState {
  std::string caption;
  bool visible = true;
  bool enabled = true;
  int index = 0;
  Handler handler = nullptr;  // the act itself: click, pick, change of text, tick
  Handler point = nullptr;    // the pointer moves over the control
  Handler leave = nullptr;    // the control loses the focus
};

struct Label : ControlState {};
struct Picture : ControlState {};
struct Frame : ControlState {};
struct Button : ControlState {};

struct CheckBox : ControlState {
  bool checked = false;
};

// A pick-only list. The position is -1 until something was picked or assigned.
struct List : ControlState {
  std::vector<std::string> items;
  int position = -1;

  std::string Text() const {
    return position < 0 ? std::string() : items.at(static_cast<std::size_t>(position));
  }
};

// A group of option buttons of which at most one is chosen; -1 is none. Arrays in `excludes` stand in the
// same frame: choosing here clears them without an event.
struct OptionArray : ControlState {
  std::vector<ControlState> elements;
  int chosen = -1;
  std::vector<OptionArray*> excludes;
};

// Text is bytes of Windows-1252. A max_length of 0 is no limit.
struct TextBox : ControlState {
  std::string text;
  std::size_t max_length = 0;
  bool read_only = false;
  bool multi_line = false;
};

// A value from 0 to maximum; the text stands in the bar.
struct ProgressBar : ControlState {
  int value = 0;
  int maximum = 100;
  std::string text;
};

// A timer of the given interval in milliseconds. `starts` counts its changes from stopped to running, so
// that whoever keeps the time can tell a restart from a timer that went on.
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

// A window. `visible` tells whether it is on the screen; a loaded form can be hidden. Unloading it runs
// `unload`. `window_close` is the window's own close button (without one: unload); `enter` and `escape` are
// keys pressed anywhere in the form.
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
  ControlState* focus = nullptr;  // the control that was last given the focus
  unsigned focus_requests = 0;    // counts, so that a presentation follows each one

  Form() { visible = false; }
};

// The events of the serial control: the transmitter has run empty, or a character has arrived.
inline constexpr int kCommSend = 1;
inline constexpr int kCommReceive = 2;

// The serial control: what the program set, and the event that is being told. The line itself is the
// platform's.
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
