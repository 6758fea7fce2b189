#include "script/inspection.h"

#include "script/parser.h"

namespace ovl::script {
namespace {

// Functions for std::visit, one for each kind of control.
template <class... Function>
struct Overloaded : Function... {
  using Function::operator()...;
};
template <class... Function>
Overloaded(Function...) -> Overloaded<Function...>;

using Position = std::optional<int>;

bool IsChosen(const controls::OptionElement& element) {
  return element.array->chosen == element.element;
}

std::string ChosenCaption(const controls::OptionArray& array) {
  return array.chosen < 0 ? std::string() : array.elements.at(static_cast<std::size_t>(array.chosen)).caption;
}

std::string OneKindOfBreak(std::string_view text) {
  std::string plain;
  for (std::size_t place = 0; place < text.size(); ++place) {
    const bool pair = text[place] == '\r' && place + 1 < text.size() && text[place + 1] == '\n';
    if (!pair) plain += text[place] == '\r' ? '\n' : text[place];
  }
  return plain;
}

}  // namespace

std::optional<bool> CheckedOf(const controls::ControlRef& control) {
  using Checked = std::optional<bool>;
  return std::visit(
      Overloaded{[](controls::CheckBox* box) { return Checked(box->checked); },
                 [](controls::MenuItem* item) { return Checked(item->checked); },
                 [](const controls::OptionElement& element) { return Checked(IsChosen(element)); },
                 [](const auto&) { return Checked(); }},
      control);
}

std::optional<int> PositionOf(const controls::ControlRef& control) {
  if (const auto checked = CheckedOf(control)) return *checked ? 1 : 0;
  return std::visit(Overloaded{[](controls::List* list) { return Position(list->position); },
                               [](controls::OptionArray* array) { return Position(array->chosen); },
                               [](controls::ProgressBar* bar) { return Position(bar->value); },
                               [](controls::Tabs* tabs) { return Position(tabs->current); },
                               [](const auto&) { return Position(); }},
                    control);
}

std::string TextOf(const controls::ControlRef& control) {
  return std::visit(Overloaded{[](controls::List* list) { return list->Text(); },
                               [](controls::OptionArray* array) { return ChosenCaption(*array); },
                               [](controls::TextBox* box) { return box->text; },
                               [](controls::ProgressBar* bar) { return bar->text; },
                               [](controls::Tabs* tabs) {
                                 return tabs->captions.at(static_cast<std::size_t>(tabs->current));
                               },
                               [&](const auto&) { return controls::StateOf(control).caption; }},
                    control);
}

std::optional<std::vector<std::string>> EntriesOf(const controls::ControlRef& control) {
  if (auto* const* list = std::get_if<controls::List*>(&control)) return (*list)->items;
  if (auto* const* tabs = std::get_if<controls::Tabs*>(&control)) return (*tabs)->captions;
  auto* const* array = std::get_if<controls::OptionArray*>(&control);
  if (array == nullptr) return std::nullopt;
  std::vector<std::string> captions;
  for (const auto& element : (*array)->elements) captions.push_back(element.caption);
  return captions;
}

std::string Description(const std::string& name, const controls::ControlRef& control) {
  const auto position = PositionOf(control);
  const auto& state = controls::StateOf(control);
  return name + " = " + (position ? std::to_string(*position) : "-") + " " + Quoted(TextOf(control)) +
         (state.visible ? " visible" : " hidden") + (state.enabled ? " enabled" : " disabled");
}

bool ReadTheSame(std::string_view one, std::string_view other) {
  return OneKindOfBreak(one) == OneKindOfBreak(other);
}

}  // namespace ovl::script
