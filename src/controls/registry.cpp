#include "controls/registry.h"

#include <algorithm>

namespace ovl::controls {
namespace {

template <class Control>
ControlState& StateIn(Control* control) {
  return *control;
}

ControlState& StateIn(const OptionElement& element) {
  return element.Of();
}

}  // namespace

ControlState& StateOf(const ControlRef& control) {
  return std::visit([](const auto& held) -> ControlState& { return StateIn(held); }, control);
}

void Registry::Add(Form& form, std::string name, ControlRef control) {
  by_name_.emplace(name, controls_.size());
  controls_.push_back({std::move(name), control, &form});
}

void Registry::AddOptions(Form& form, const std::string& name, OptionArray& array) {
  Add(form, name, ControlRef(&array));
  for (int element = 0; element < static_cast<int>(array.elements.size()); ++element) {
    array.elements[static_cast<std::size_t>(element)].index = element;
    Add(form, name + "(" + std::to_string(element) + ")", OptionElement{&array, element});
  }
}

void Registry::AddForm(Form& form) {
  forms_.push_back(&form);
  Add(form, form.name, ControlRef(&form));
}

const NamedControl* Registry::Find(const Form& form, std::string_view name) const {
  const auto [first, last] = by_name_.equal_range(name);
  const auto found =
      std::find_if(first, last, [&](const auto& at) { return controls_[at.second].form == &form; });
  return found == last ? nullptr : &controls_[found->second];
}

const NamedControl* Registry::Find(std::string_view name) const {
  const auto dot = name.find('.');
  const auto form_name = name.substr(0, dot);
  if (dot != std::string_view::npos) {
    const auto form =
        std::find_if(forms_.begin(), forms_.end(), [&](const Form* at) { return at->name == form_name; });
    return form == forms_.end() ? nullptr : Find(**form, name.substr(dot + 1));
  }
  const auto [first, last] = by_name_.equal_range(name);
  if (first == last) return nullptr;
  if (std::next(first) == last) return &controls_[first->second];
  if (const auto* of_main = Find(*forms_.front(), name)) return of_main;
  const auto on_screen = [&](const auto& at) { return controls_[at.second].form->visible; };
  return std::count_if(first, last, on_screen) == 1 ? &controls_[std::find_if(first, last, on_screen)->second]
                                                    : nullptr;
}

const NamedControl* Registry::Known(const ControlRef& control) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const NamedControl& at) { return at.control == control; });
  return found == controls_.end() ? nullptr : &*found;
}

std::string Registry::NameOf(const ControlRef& control) const {
  const auto* known = Known(control);
  return known == nullptr ? std::string() : known->name;
}

Form* Registry::FormOf(const ControlRef& control) const {
  const auto* known = Known(control);
  return known == nullptr ? nullptr : known->form;
}

}  // namespace ovl::controls
