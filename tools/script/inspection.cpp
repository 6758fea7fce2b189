#include "script/inspection.h"

#include "script/parser.h"

namespace ovl::script {
namespace {

// A list of functions, one for each kind of control, as std::visit wants it.
template <class... Function>
struct Overloaded : Function... {
  using Function::operator()...;
};
template <class... Function>
Overloaded(Function...) -> Overloaded<Function...>;

using Position = std::optional<int>;

bool IsChosen(const OptionElement& element) {
  return element.array->chosen == element.element;
}

std::string ChosenCaption(const OptionArray& array) {
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

std::optional<bool> CheckedOf(const ControlRef& control) {
  using Checked = std::optional<bool>;
  return std::visit(Overloaded{[](CheckBox* box) { return Checked(box->checked); },
                               [](MenuItem* item) { return Checked(item->checked); },
                               [](const OptionElement& element) { return Checked(IsChosen(element)); },
                               [](const auto&) { return Checked(); }},
                    control);
}

std::optional<int> PositionOf(const ControlRef& control) {
  if (const auto checked = CheckedOf(control)) return *checked ? 1 : 0;
  return std::visit(
      Overloaded{[](List* list) { return Position(list->position); },
                 [](OptionArray* array) { return Position(array->chosen); },
                 [](ProgressBar* bar) { return Position(bar->value); },
                 [](Tabs* tabs) { return Position(tabs->current); }, [](const auto&) { return Position(); }},
      control);
}

std::string TextOf(const ControlRef& control) {
  return std::visit(
      Overloaded{[](List* list) { return list->Text(); },
                 [](OptionArray* array) { return ChosenCaption(*array); },
                 [](TextBox* box) { return box->text; }, [](ProgressBar* bar) { return bar->text; },
                 [](Tabs* tabs) { return tabs->captions.at(static_cast<std::size_t>(tabs->current)); },
                 [&](const auto&) { return FaceOf(control).caption; }},
      control);
}

std::optional<std::vector<std::string>> EntriesOf(const ControlRef& control) {
  if (auto* const* list = std::get_if<List*>(&control)) return (*list)->items;
  if (auto* const* tabs = std::get_if<Tabs*>(&control)) return (*tabs)->captions;
  auto* const* array = std::get_if<OptionArray*>(&control);
  if (array == nullptr) return std::nullopt;
  std::vector<std::string> captions;
  for (const auto& element : (*array)->elements) captions.push_back(element.caption);
  return captions;
}

std::string Description(const std::string& name, const ControlRef& control) {
  const auto position = PositionOf(control);
  const auto& face = FaceOf(control);
  return name + " = " + (position ? std::to_string(*position) : "-") + " " + Quoted(TextOf(control)) +
         (face.visible ? " visible" : " hidden") + (face.enabled ? " enabled" : " disabled");
}

bool ReadTheSame(std::string_view one, std::string_view other) {
  return OneKindOfBreak(one) == OneKindOfBreak(other);
}

}  // namespace ovl::script
