// What happens to the program, and what an event is about.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "controls/controls.h"
#include "controls/registry.h"

namespace ovl::core {

// What the installer does.
struct PickEvent {
  controls::ControlRef control;  // a list, or an option array
  int position = 0;
};
struct ClickEvent {
  controls::ControlRef
      control;  // a button, a menu item, an element of an option array, a check box (turned over)
};
struct TypeEvent {
  controls::TextBox* box = nullptr;
  std::string text;  // what the box then holds
};
struct LeaveEvent {
  controls::ControlRef control;
};
struct PointEvent {
  controls::ControlRef control;
};
enum class Key { kEnter, kEscape };
struct KeyEvent {
  controls::Form* form = nullptr;
  Key key = Key::kEnter;
};
struct CloseEvent {
  controls::Form* form = nullptr;
};

// What the timers and the serial line do.
struct TickEvent {
  controls::Timer* timer = nullptr;
};
struct ReceivedEvent {};
struct DrainedEvent {};

using Event = std::variant<PickEvent, ClickEvent, TypeEvent, LeaveEvent, PointEvent, KeyEvent, CloseEvent,
                           TickEvent, ReceivedEvent, DrainedEvent>;

// Whether the installer did it. The pointer over a control changes nothing, so it does not count.
inline bool IsOfInstaller(const Event& event) {
  return !std::holds_alternative<TickEvent>(event) && !std::holds_alternative<ReceivedEvent>(event) &&
         !std::holds_alternative<DrainedEvent>(event) && !std::holds_alternative<PointEvent>(event);
}

// The control that the installer used; nothing for a key, a closed window and what timers and line do.
inline std::optional<controls::ControlRef> ControlOf(const Event& event) {
  if (const auto* pick = std::get_if<PickEvent>(&event)) return pick->control;
  if (const auto* click = std::get_if<ClickEvent>(&event)) return click->control;
  if (const auto* type = std::get_if<TypeEvent>(&event)) return type->box;
  if (const auto* leave = std::get_if<LeaveEvent>(&event)) return leave->control;
  return std::nullopt;
}

// Whether the event is a click on this control, or a pick in it.
inline bool Clicks(const Event& event, const controls::ControlState& control) {
  const auto* click = std::get_if<ClickEvent>(&event);
  return click != nullptr && &controls::StateOf(click->control) == &control;
}

inline bool Picks(const Event& event, const controls::ControlState& control) {
  const auto* pick = std::get_if<PickEvent>(&event);
  return pick != nullptr && &controls::StateOf(pick->control) == &control;
}

}  // namespace ovl::core
