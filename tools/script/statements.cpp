#include "script/statements.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "image/field_map.h"
#include "script/advice_statements.h"
#include "script/change_statements.h"
#include "script/check_statements.h"
#include "script/expectations.h"
#include "script/file_statements.h"
#include "script/image_fields.h"
#include "script/inspection.h"
#include "script/real_transfer.h"
#include "script/reports.h"
#include "script/stop.h"
#include "script/text_statements.h"
#include "script/undo_statements.h"
#include "script/variables.h"

namespace ovl::script {
namespace {

// Ends the script even if the program never stops sending.
constexpr int kLongestDrain = 2'000'000;

// The control that the next word names, if it is of this kind.
template <class Kind>
Kind ControlOf(Session& session, Arguments& arguments, const char* kind) {
  const auto& name = arguments.Bare("NAME");
  const auto control = session.Control(name);
  const auto* held = std::get_if<Kind>(&control);
  if (held == nullptr) Wrong(name + " is not a " + kind);
  return *held;
}

// The number of repetitions, with a default for a statement without one.
int Times(Arguments& arguments, int otherwise) {
  const int times = arguments.AtEnd() ? otherwise : arguments.Number("N");
  if (times < 0) Wrong("N must not be negative");
  arguments.End();
  return times;
}

void PrintRefusal(Session& session, const std::string& name, core::Outcome outcome) {
  if (outcome == core::Outcome::kRefused) session.Output() << "refused " << name << '\n';
}

// --- hooks of the program

void Folder(Session& session, Arguments& arguments) {
  const auto path = arguments.Next("PATH");
  arguments.End();
  session.SetFolder(path);
}

void Setting(Session& session, Arguments& arguments) {
  const auto name = arguments.Next("NAME");
  const auto text = arguments.Next("TEXT");
  arguments.End();
  session.StoreSetting(name, text);
}

void Store(Session& session, Arguments& arguments) {
  if (!arguments.Take("system")) Wrong("the only other store is \"system\"");
  arguments.End();
  session.UseSystemStore();
}

void Start(Session& session, Arguments& arguments) {
  arguments.End();
  session.Start();
}

void Clock(Session& session, Arguments& arguments) {
  const auto& text = arguments.Next("the time");
  const auto time = ParseClock(text);
  if (!time) Wrong(Quoted(text) + " is not a date and time");
  arguments.End();
  session.SetClock(*time);
}

void Answer(Session& session, Arguments& arguments) {
  const bool cancel = arguments.Take("cancel");
  auto path = cancel ? std::nullopt : std::optional(arguments.Next("PATH"));
  arguments.End();
  session.QueueAnswer(std::move(path));
}

void Port(Session& session, Arguments& arguments) {
  const auto word = arguments.Bare("ok, fail, unplug or real");
  if (word == "real") {
    arguments.End();
    return session.UseRealPorts();
  }
  if (word != "ok" && word != "fail" && word != "unplug") Wrong(Quoted(word) + " is not a state of the port");
  const auto reason = word == "fail" ? arguments.Next("REASON") : std::string();
  arguments.End();
  session.UseSimulatedPort();
  if (word == "ok") session.Simulated().Restore();
  if (word == "fail") session.Simulated().Refuse(reason);
  if (word == "unplug") session.Simulated().Unplug();
}

void Wait(Session& session, Arguments& arguments) {
  const int duration = arguments.Number("MS");
  if (duration < 0) Wrong("MS must not be negative");
  arguments.End();
  session.Wait(duration);
}

// --- acts of a person

void Pick(Session& session, Arguments& arguments) {
  const auto name = arguments.Bare("NAME");
  const auto control = session.Control(name);
  const auto entries = EntriesOf(control);
  if (!entries || std::holds_alternative<controls::Tabs*>(control)) Wrong(name + " has no entries to pick");
  int position = 0;
  if (arguments.NextIsQuoted()) {
    const auto& entry = arguments.Next("ENTRY");
    const auto found = std::find(entries->begin(), entries->end(), entry);
    if (found == entries->end()) Wrong(name + " has no entry " + Quoted(entry));
    position = static_cast<int>(found - entries->begin());
  } else {
    position = arguments.Number("POSITION");
  }
  if (position < 0 || position >= static_cast<int>(entries->size())) {
    Wrong(name + " has no position " + std::to_string(position));
  }
  arguments.End();
  PrintRefusal(session, name, session.Act(core::PickEvent{control, position}));
}

void Click(Session& session, Arguments& arguments) {
  const auto name = arguments.Bare("NAME");
  const auto control = session.Control(name);
  arguments.End();
  const bool clickable = std::holds_alternative<controls::Button*>(control) || CheckedOf(control).has_value();
  if (!clickable) Wrong(name + " is not a button, menu item, check box or element");
  PrintRefusal(session, name, session.Act(core::ClickEvent{control}));
}

void Type(Session& session, Arguments& arguments) {
  const auto name = arguments.Bare("NAME");
  const auto control = session.Control(name);
  const auto text = arguments.Next("TEXT");
  arguments.End();
  if (std::holds_alternative<controls::List*>(control)) return;
  auto* const* box = std::get_if<controls::TextBox*>(&control);
  if (box == nullptr) Wrong(name + " is not a text box");
  PrintRefusal(session, name, session.Act(core::TypeEvent{*box, text}));
}

void Leave(Session& session, Arguments& arguments) {
  const auto control = session.Control(arguments.Bare("NAME"));
  arguments.End();
  session.Act(core::LeaveEvent{control});
}

void Press(Session& session, Arguments& arguments) {
  const auto control = session.Control(arguments.Bare("NAME"));
  const bool enter = arguments.Take("Enter");
  if (!enter && !arguments.Take("Escape")) Wrong("the keys are Enter and Escape");
  arguments.End();
  session.Act(
      core::KeyEvent{session.App().registry.FormOf(control), enter ? core::Key::kEnter : core::Key::kEscape});
}

void Point(Session& session, Arguments& arguments) {
  const auto control = session.Control(arguments.Bare("NAME"));
  arguments.End();
  session.Act(core::PointEvent{control});
}

void Close(Session& session, Arguments& arguments) {
  auto* form = ControlOf<controls::Form*>(session, arguments, "form");
  arguments.End();
  session.Act(core::CloseEvent{form});
}

// --- the unit, the line, the timers

void Unit(Session& session, Arguments& arguments) {
  std::string characters;
  if (arguments.Take("hex")) {
    do {
      const auto& digits = arguments.Bare("a byte");
      const auto byte = HexByte(digits);
      if (!byte) Wrong(Quoted(digits) + " is not a byte");
      characters += *byte;
    } while (!arguments.AtEnd());
  } else {
    characters = arguments.Text("what the unit sends");
    arguments.End();
  }
  session.App();
  auto& line = session.Simulated();
  for (const char character : characters) {
    line.Arrive(character);
    session.DeliverReceived();
  }
}

void Drain(Session& session, Arguments& arguments) {
  const bool all = arguments.AtEnd();
  const int times = Times(arguments, kLongestDrain);
  auto& line = session.Simulated();
  session.App();
  int drained = 0;
  while (drained < times && !session.Ended() && line.TakeDrained()) {
    session.Act(core::DrainedEvent{});
    ++drained;
  }
  if (all && drained == kLongestDrain) Wrong("the send buffer does not become empty");
}

void Sent(Session& session, Arguments& arguments) {
  arguments.End();
  session.Output() << Quoted(session.TakeSent()) << '\n';
}

void Tick(Session& session, Arguments& arguments) {
  auto* timer = ControlOf<controls::Timer*>(session, arguments, "timer");
  const int times = Times(arguments, 1);
  for (int tick = 0; tick < times && timer->enabled && !session.Ended(); ++tick) {
    session.Act(core::TickEvent{timer});
  }
}

// --- output and checks

void Show(Session& session, Arguments& arguments) {
  const auto name = arguments.Bare("NAME");
  const auto control = session.Control(name);
  arguments.End();
  session.Output() << Description(name, control) << '\n';
}

void PrintList(Session& session, Arguments& arguments) {
  const auto name = arguments.Bare("NAME");
  const auto entries = EntriesOf(session.Control(name));
  if (!entries) Wrong(name + " has no entries");
  arguments.End();
  for (const auto& entry : *entries) session.Output() << Quoted(entry) << '\n';
}

void Field(Session& session, Arguments& arguments) {
  const auto name = arguments.Bare("NAME");
  arguments.End();
  for (const auto& field : FieldsNamed(name)) {
    session.Output() << field.Name() << " = " << AsWord(field.In(session.App().image)) << '\n';
  }
}

void Set(Session& session, Arguments& arguments) {
  const auto field = FieldNamed(arguments.Bare("NAME"));
  const auto text = arguments.Next("HEX");
  arguments.End();
  session.History().Run(field.Name(), [&] { field.In(session.App().image) = text; });
}

void Var(Session& session, Arguments& arguments) {
  const auto name = arguments.Bare("NAME");
  const auto value = VariableValue(session.App(), name);
  if (!value) Wrong("no variable has the name " + Quoted(name));
  arguments.End();
  session.Output() << name << " = " << AsWord(*value) << '\n';
}

void Stream(Session& session, Arguments& arguments) {
  const auto path = arguments.AtEnd() ? std::string() : arguments.Next("PATH");
  arguments.End();
  if (path.empty()) {
    session.Output() << Quoted(StreamOf(session.App())) << '\n';
  } else {
    WriteStream(session.App(), path);
  }
}

void Transfer(Session& session, Arguments& arguments, void (*transfer)(Session&, const std::string& path)) {
  const auto path = arguments.AtEnd() ? std::string() : arguments.Next("PATH");
  arguments.End();
  session.App();
  session.Real();
  transfer(session, path);
}

void Upload(Session& session, Arguments& arguments) {
  Transfer(session, arguments, UploadTo);
}

void Download(Session& session, Arguments& arguments) {
  Transfer(session, arguments, DownloadFrom);
}

void Echo(Session& session, Arguments& arguments) {
  const auto text = arguments.Next("TEXT");
  arguments.End();
  session.Output() << text << '\n';
}

constexpr auto kStatements = std::to_array<Statement>({
    {"folder", "folder PATH", "sets the program folder", Folder},
    {"setting", "setting NAME \"TEXT\"", "sets a value of the settings store, which is in memory", Setting},
    {"store", "store system", "uses the settings store of the computer instead", Store},
    {"start", "start", "starts the program; again: the next start with the same store and folder", Start,
     true},
    {"pick", "pick NAME POSITION|\"ENTRY\"", "picks in a list, or an element of an option array", Pick},
    {"click", "click NAME", "clicks a button, a menu item or a check box", Click},
    {"type", "type NAME \"TEXT\"", "replaces the text of a text box; in a list it does nothing", Type},
    {"leave", "leave NAME", "takes the focus from the control", Leave},
    {"key", "key NAME Enter|Escape", "presses a key in the control", Press},
    {"point", "point NAME", "moves the pointer over the control", Point},
    {"close", "close FORM", "presses the close button of the window", Close},
    {"unit", "unit \"TEXT\"\nunit hex 06 15",
     "the unit sends these characters, one receive event each\nthe unit sends these bytes", Unit},
    {"drain", "drain [N]", "empties the send buffer N times, or until it stays empty", Drain},
    {"sent", "sent", "prints what the program has sent since the last such statement", Sent, true},
    {"tick", "tick TIMER [N]", "lets a timer tick N times, if it is enabled", Tick},
    {"wait", "wait MS", "lets time pass; the timers tick in the order of their times", Wait},
    {"clock", "clock \"2026-03-05 14:07:09\"", "sets the clock; it moves with wait", Clock},
    {"answer", "answer \"PATH\"\nanswer cancel",
     "answers the next file dialog\ncancels it; a dialog without an answer is cancelled too", Answer},
    {"port", "port ok\nport fail \"REASON\"\nport unplug\nport real",
     "the simulated line opens\nit does not open\nit is lost\nuses the ports of the computer", Port},
    {"show", "show NAME", "prints NAME = position \"text\" visible|hidden enabled|disabled", Show},
    {"list", "list NAME", "prints its entries, one a line", PrintList},
    {"field", "field NAME", "prints an image field, NAME = HEX; entries count from 1: EXCPSTRS(3)", Field},
    {"set", "set NAME HEX", "writes the digits into an image field", Set},
    {"var", "var NAME", "prints a state variable, NAME = value", Var},
    {"stream", "stream [PATH]", "prints what a download would send, or writes it into a file", Stream},
    {"dump", "dump [PATH]", "writes the image by field names; without PATH into the family's report file",
     Dump},
    {"inspect", "inspect PATH", "prints which firmware a file fits and what opening it here would do",
     Inspect},
    {"upload", "upload [PATH]", "uploads on a real port; writes the image into a file, if named", Upload},
    {"download", "download [PATH]", "downloads the image, or a file, on a real port", Download},
    {"expect",
     "expect field NAME HEX\nexpect var NAME VALUE [within MS]\nexpect count NAME N\nexpect list NAME "
     "\"TEXT\"...\nexpect NAME POSITION\nexpect NAME \"TEXT\"\nexpect visible|hidden NAME\n"
     "expect enabled|disabled NAME\nexpect checked|unchecked NAME\nexpect sent \"TEXT\"\n"
     "expect box [\"TITLE\"] \"TEXT\"\nexpect no box\nexpect advice \"TEXT\"\nexpect no advice [\"TEXT\"]\n"
     "expect ended",
     "the script fails unless an image field has these digits\na state variable has this value, or gets it "
     "in time\na list has N entries\nit has these entries\nthis position is selected\nthe control has this "
     "text\nit is visible or hidden\nit is enabled or disabled\nit is checked or not\nthe program has sent "
     "this since the last such statement\nthe next message box has this title and text\nthere is no other "
     "message box\nthis advice applies\nno advice applies, or not this\nthe program has ended",
     Expect, true},
    {"echo", "echo \"TEXT\"", "prints a text", Echo, true},
});

}  // namespace

std::span<const Statement> Statements() {
  static const auto all = [] {
    std::vector<Statement> statements(kStatements.begin(), kStatements.end());
    for (const auto more : {UndoStatements(), AdviceStatements(), ChangeStatements(), CheckStatements(),
                            FileStatements(), TextStatements()})
      statements.insert(statements.end(), more.begin(), more.end());
    return statements;
  }();
  return all;
}

const Statement* FindStatement(std::string_view word) {
  const auto all = Statements();
  const auto found =
      std::find_if(all.begin(), all.end(), [word](const Statement& at) { return at.word == word; });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace ovl::script
