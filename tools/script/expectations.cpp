#include "script/expectations.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "script/advice_statements.h"
#include "script/image_fields.h"
#include "script/inspection.h"
#include "script/stop.h"
#include "script/variables.h"

namespace ovl::script {
namespace {

void Require(bool met, const std::string& expected, const std::string& found) {
  if (!met) throw Stop(ExitStatus::kExpectationFailed, "expected " + expected + ", found " + found);
}

std::string Entries(const std::vector<std::string>& entries) {
  std::string text;
  for (const auto& entry : entries) text.append(text.empty() ? "" : " ").append(Quoted(entry));
  return text.empty() ? "no entry" : text;
}

std::string Described(const core::MessageBox& box) {
  return "box " + Quoted(box.title) + " " + Quoted(box.text);
}

std::vector<std::string> EntriesOfNamed(Session& session, const std::string& name) {
  auto entries = EntriesOf(session.Control(name));
  if (!entries) Wrong(name + " has no entries");
  return *entries;
}

void ExpectField(Session& session, Arguments& arguments) {
  const auto field = FieldNamed(arguments.Bare("NAME"));
  const auto text = arguments.Next("HEX");
  arguments.End();
  const auto& found = field.In(session.App().image);
  Require(found == text, field.Name() + " = " + AsWord(text), AsWord(found));
}

void ExpectVariable(Session& session, Arguments& arguments) {
  constexpr int kStep = 50;
  const auto name = arguments.Bare("NAME");
  const auto text = arguments.Next("VALUE");
  int left = arguments.Take("within") ? arguments.Number("MS") : 0;
  arguments.End();
  auto found = VariableValue(session.App(), name);
  if (!found) Wrong("no variable has the name " + Quoted(name));
  for (; *found != text && left > 0 && !session.Ended(); left -= kStep) {
    session.Wait(std::min(left, kStep));
    found = VariableValue(session.App(), name);
  }
  Require(*found == text, name + " = " + AsWord(text), AsWord(*found));
}

void ExpectCount(Session& session, Arguments& arguments) {
  const auto name = arguments.Bare("NAME");
  const auto count = static_cast<int>(EntriesOfNamed(session, name).size());
  const int expected = arguments.Number("N");
  arguments.End();
  Require(count == expected, std::to_string(expected) + " entries of " + name, std::to_string(count));
}

void ExpectList(Session& session, Arguments& arguments) {
  const auto name = arguments.Bare("NAME");
  const auto found = EntriesOfNamed(session, name);
  std::vector<std::string> expected;
  while (!arguments.AtEnd()) expected.push_back(arguments.Text("an entry"));
  Require(found == expected, "the entries of " + name + " to be " + Entries(expected), Entries(found));
}

void ExpectSent(Session& session, Arguments& arguments) {
  const auto text = arguments.Text("TEXT");
  arguments.End();
  const auto found = session.TakeSent();
  Require(found == text, "sent " + Quoted(text), Quoted(found));
}

void ExpectBox(Session& session, Arguments& arguments) {
  auto text = arguments.Text("TEXT");
  std::optional<std::string> title;
  if (!arguments.AtEnd()) {
    title = std::move(text);
    text = arguments.Text("TEXT");
  }
  arguments.End();
  const auto box = session.TakeBox();
  const auto expected = "box " + (title ? Quoted(*title) + " " : "") + Quoted(text);
  Require(box.has_value(), expected, "no box");
  const bool same = ReadTheSame(box->text, text) && (!title || ReadTheSame(box->title, *title));
  Require(same, expected, Described(*box));
}

void ExpectNo(Session& session, Arguments& arguments) {
  if (arguments.Take("advice")) return ExpectNoAdvice(session, arguments);
  if (!arguments.Take("box")) Wrong("after \"no\", only \"box\" or \"advice\" is allowed");
  arguments.End();
  const auto& boxes = session.Boxes();
  Require(boxes.empty(), "no box", boxes.empty() ? "" : Described(boxes.front()));
}

void ExpectEnded(Session& session, Arguments& arguments) {
  arguments.End();
  Require(session.Ended(), "the program to have ended", "it running");
}

// Words for a state of a control, each with the word for its opposite.
struct StateWord {
  std::string_view word, opposite;
  std::optional<bool> (*holds)(const controls::ControlRef&);
};

using Holds = std::optional<bool>;

Holds IsVisible(const controls::ControlRef& control) {
  return controls::StateOf(control).visible;
}
Holds IsHidden(const controls::ControlRef& control) {
  return !controls::StateOf(control).visible;
}
Holds IsEnabled(const controls::ControlRef& control) {
  return controls::StateOf(control).enabled;
}
Holds IsDisabled(const controls::ControlRef& control) {
  return !controls::StateOf(control).enabled;
}
Holds IsUnchecked(const controls::ControlRef& control) {
  const auto checked = CheckedOf(control);
  return checked ? Holds(!*checked) : checked;
}

constexpr auto kStateWords = std::to_array<StateWord>({
    {"visible", "hidden", IsVisible},
    {"hidden", "visible", IsHidden},
    {"enabled", "disabled", IsEnabled},
    {"disabled", "enabled", IsDisabled},
    {"checked", "unchecked", CheckedOf},
    {"unchecked", "checked", IsUnchecked},
});

void ExpectState(Session& session, Arguments& arguments, const StateWord& state) {
  const auto name = arguments.Bare("NAME");
  const auto holds = state.holds(session.Control(name));
  if (!holds) Wrong(name + " can be neither checked nor unchecked");
  arguments.End();
  Require(*holds, name + " to be " + std::string(state.word), std::string(state.opposite));
}

// A control by its position, or by its text.
void ExpectControl(Session& session, Arguments& arguments) {
  const auto name = arguments.Bare("NAME");
  const auto control = session.Control(name);
  if (arguments.NextIsQuoted()) {
    const auto text = arguments.Next("TEXT");
    arguments.End();
    const auto found = TextOf(control);
    return Require(ReadTheSame(found, text), name + " " + Quoted(text), Quoted(found));
  }
  const int position = arguments.Number("POSITION");
  arguments.End();
  const auto found = PositionOf(control);
  if (!found) Wrong(name + " has no position");
  Require(*found == position, name + " " + std::to_string(position), std::to_string(*found));
}

struct ExpectForm {
  std::string_view word;
  void (*run)(Session&, Arguments&);
};

constexpr auto kForms = std::to_array<ExpectForm>({
    {"field", ExpectField},
    {"var", ExpectVariable},
    {"count", ExpectCount},
    {"list", ExpectList},
    {"sent", ExpectSent},
    {"box", ExpectBox},
    {"advice", ExpectAdvice},
    {"no", ExpectNo},
    {"ended", ExpectEnded},
});

}  // namespace

void Expect(Session& session, Arguments& arguments) {
  for (const auto& form : kForms) {
    if (arguments.Take(form.word)) return form.run(session, arguments);
  }
  for (const auto& state : kStateWords) {
    if (arguments.Take(state.word)) return ExpectState(session, arguments, state);
  }
  ExpectControl(session, arguments);
}

}  // namespace ovl::script
