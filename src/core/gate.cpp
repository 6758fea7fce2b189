#include "core/gate.h"

#include "core/actions.h"
#include "core/failure.h"

namespace ovl::core {
namespace {

// The installer can reach the window: it is on the screen, and no other window disables it.
bool Reachable(const controls::Form* form) {
  return form != nullptr && form->loaded && form->visible && form->enabled;
}

bool CanAct(const Application& app, const controls::ControlRef& control) {
  const auto& state = controls::StateOf(control);
  if (!state.visible || !state.enabled) return false;
  if (const auto* element = std::get_if<controls::OptionElement>(&control);
      element != nullptr && !element->array->enabled) {
    return false;
  }
  return Reachable(app.registry.FormOf(control));
}

// Each operator handles one kind of event. False: the installer could not have done this.
struct Admission {
  Application& app;

  bool operator()(const PickEvent& event) const {
    if (const auto* list = std::get_if<controls::List*>(&event.control)) {
      return CanAct(app, event.control) && AssignPosition(app, **list, event.position, Raise::kAlways);
    }
    const auto* array = std::get_if<controls::OptionArray*>(&event.control);
    if (array == nullptr || event.position < 0 ||
        event.position >= static_cast<int>((*array)->elements.size())) {
      return false;
    }
    return (*this)(ClickEvent{controls::OptionElement{*array, event.position}});
  }

  bool operator()(const ClickEvent& event) const {
    if (!CanAct(app, event.control)) return false;
    if (const auto* element = std::get_if<controls::OptionElement>(&event.control)) {
      return ChooseElement(app, *element->array, element->element, Raise::kAlways);
    }
    if (const auto* box = std::get_if<controls::CheckBox*>(&event.control))
      (*box)->checked = !(*box)->checked;
    return Run(controls::StateOf(event.control).handler, controls::StateOf(event.control).index);
  }

  bool operator()(const TypeEvent& event) const {
    auto& box = *event.box;
    if (box.read_only || !CanAct(app, &box)) return false;
    if (box.max_length != 0 && event.text.size() > box.max_length) return false;
    AssignText(app, box, event.text, Raise::kAlways);
    return true;
  }

  bool operator()(const LeaveEvent& event) const {
    if (!CanAct(app, event.control)) return false;
    return Run(controls::StateOf(event.control).leave, controls::StateOf(event.control).index);
  }

  bool operator()(const PointEvent& event) const {
    if (!Reachable(app.registry.FormOf(event.control))) return false;
    return Run(controls::StateOf(event.control).point, controls::StateOf(event.control).index);
  }

  bool operator()(const KeyEvent& event) const {
    if (!Reachable(event.form)) return false;
    return Run(event.key == Key::kEnter ? event.form->enter : event.form->escape, 0);
  }

  bool operator()(const CloseEvent& event) const {
    if (!Reachable(event.form)) return false;
    if (event.form->window_close != nullptr) return Run(event.form->window_close, 0);
    UnloadForm(app, *event.form);
    return true;
  }

  bool operator()(const TickEvent& event) const {
    return event.timer->enabled && Run(event.timer->handler, event.timer->index);
  }

  bool operator()(const ReceivedEvent&) const { return Comm(controls::kCommReceive); }
  bool operator()(const DrainedEvent&) const { return Comm(controls::kCommSend); }

  bool Comm(int event) const {
    auto& comm = app.frmMain.MSComm1;
    if (!comm.PortOpen) return false;
    comm.CommEvent = event;
    return Run(comm.handler, 0);
  }

  bool Run(controls::Handler handler, int index) const {
    if (handler != nullptr) handler(app, index);
    return true;
  }
};

// The gate is closed while this object lives. It opens again in every case, also when a handler throws
// something unexpected: a gate that stays closed answers every later event with kBusy.
class ClosedGate {
 public:
  explicit ClosedGate(Application& app) : app_(app) { app_.handling = true; }
  ~ClosedGate() { app_.handling = false; }
  ClosedGate(const ClosedGate&) = delete;
  ClosedGate& operator=(const ClosedGate&) = delete;

 private:
  Application& app_;
};

template <class Work>
Outcome Guarded(Application& app, const Work& work) {
  if (app.ended) return Outcome::kEnded;
  if (app.handling) return Outcome::kBusy;
  const ClosedGate closed(app);
  try {
    return work() ? Outcome::kDone : Outcome::kRefused;
  } catch (const ProgramEnd&) {
    return Outcome::kEnded;
  } catch (const Failure& failure) {
    NoteFailure(app, failure);
  } catch (const std::exception& error) {
    app.StatusNote = std::string("Internal error: ") + error.what();
    app.noted_failure.reset();
  }
  return Outcome::kDone;
}

}  // namespace

Outcome Dispatch(Application& app, const Event& event) {
  return Guarded(app, [&] { return std::visit(Admission{app}, event); });
}

Outcome DispatchStart(Application& app, void (*start)(Application&)) {
  return DispatchAct(app, [&] { start(app); });
}

Outcome DispatchAct(Application& app, const std::function<void()>& act) {
  return Guarded(app, [&] {
    act();
    return true;
  });
}

}  // namespace ovl::core
