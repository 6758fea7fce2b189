// Finds every control by its system name: "ComboCOMM(3)", "FrmSubMenu.Combo1(1)", "OpBaud(3)" for an element
// of an option array, "OpBaud" for the whole array. Windows, script tool and tests use it.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "controls/controls.h"

namespace ovl::controls {

struct OptionElement {
  OptionArray* array = nullptr;
  int element = 0;

  ControlState& Of() const { return array->elements.at(static_cast<std::size_t>(element)); }
  bool operator==(const OptionElement&) const = default;
};

using ControlRef = std::variant<List*, OptionArray*, OptionElement, TextBox*, Label*, Button*, CheckBox*,
                                Frame*, Picture*, ProgressBar*, Timer*, MenuItem*, Tabs*, Form*>;

// Caption and state of the control.
ControlState& StateOf(const ControlRef& control);

struct NamedControl {
  std::string name;  // without the form
  ControlRef control;
  Form* form = nullptr;
};

class Registry {
 public:
  // If a name already exists on another form, later searches for this one need the name of the form in front.
  void Add(Form& form, std::string name, ControlRef control);

  template <class Control>
  void Add(Form& form, const std::string& name, Control& control) {
    Add(form, name, ControlRef(&control));
  }

  // Adds the members of a control array, "name(0)" first, and sets their index.
  template <class Array>
  void AddArray(Form& form, const std::string& name, Array& controls) {
    int index = 0;
    for (auto& control : controls) {
      control.index = index;
      Add(form, name + "(" + std::to_string(index++) + ")", ControlRef(&control));
    }
  }

  void AddOptions(Form& form, const std::string& name, OptionArray& array);
  void AddForm(Form& form);

  // Null if no control has the name. If several forms have the name, the control of the main form wins;
  // without one, the control of the only such form on the screen. In all other cases the name of the form
  // must be given.
  const NamedControl* Find(std::string_view name) const;
  const NamedControl* Find(const Form& form, std::string_view name) const;

  // The first name of a control, for messages; empty for an unknown control.
  std::string NameOf(const ControlRef& control) const;
  Form* FormOf(const ControlRef& control) const;

  const std::vector<NamedControl>& All() const { return controls_; }
  const std::vector<Form*>& Forms() const { return forms_; }

 private:
  const NamedControl* Known(const ControlRef& control) const;

  std::vector<NamedControl> controls_;
  std::vector<Form*> forms_;
  std::multimap<std::string, std::size_t, std::less<>> by_name_;
};

}  // namespace ovl::controls
