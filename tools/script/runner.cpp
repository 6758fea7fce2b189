#include "script/runner.h"

#include <algorithm>

#include "core/failure.h"
#include "host/configurations/configurations.h"
#include "script/commands.h"
#include "script/parser.h"
#include "script/statements.h"

namespace ovl::script {
namespace {

constexpr std::size_t kHelpColumn = 31;

constexpr std::string_view kPurpose =
    "Runs OVL Software without a screen, from a script or from standard input. The\n"
    "statements press the controls of the program by name, simulate what the unit\n"
    "sends or use the ports of the computer, transfer whole configurations, inspect\n"
    "files, and check the results. There is one statement on a line, and # begins a\n"
    "comment. A text is in double quotes, with \\\" \\\\ \\r \\n \\t \\xHH.\n"
    "\n"
    "NAME is the name of a control with its index, ComboCOMM(3). If two forms have\n"
    "this name, put the form before it, FrmSubMenu.Combo1(1). OpMicros(3) is an\n"
    "element of an option array.\n"
    "\n"
    "pick, click and type on a control that is disabled or hidden print\n"
    "\"refused NAME\". A message box prints \"box TITLE TEXT\". The end of the\n"
    "program prints \"ended\".\n";

constexpr std::string_view kExitStatus =
    "\n"
    "Exit status:\n"
    "  0  done\n"
    "  1  an expectation failed\n"
    "  2  wrong usage, or a statement is wrong\n"
    "  3  the program ended before a statement that needs it\n"
    "  4  a transfer failed\n"
    "\n"
    "Of a command:\n"
    "  0  done; no difference; no finding, or only notes\n"
    "  1  the files differ; there is an error or a warning\n"
    "  2  wrong usage, or a file cannot be read or does not fit the firmware\n";

void RunLine(Session& session, std::string_view line) {
  auto words = SplitWords(line);
  if (words.empty()) return;
  const auto word = words.front();
  words.erase(words.begin());
  const auto* statement = word.quoted ? nullptr : FindStatement(word.text);
  if (statement == nullptr) Wrong("there is no statement " + Quoted(word.text));
  if (session.Ended() && !statement->after_end) {
    throw Stop(ExitStatus::kProgramEnded, "the program has ended, but " + word.text + " needs it");
  }
  Arguments arguments(std::move(words));
  statement->run(session, arguments);
  if (!session.Output().flush()) Wrong("the output cannot be written");
}

// The first line of the text, which is removed from it.
std::string_view TakeLine(std::string_view& text) {
  const auto line = text.substr(0, text.find('\n'));
  text.remove_prefix(std::min(line.size() + 1, text.size()));
  return line;
}

// Each form of a statement with its explanation beside it, or below it if there is no room.
std::string HelpOf(const Statement& statement) {
  std::string text;
  for (auto forms = statement.forms, help = statement.help; !forms.empty();) {
    auto form = std::string(TakeLine(forms));
    if (form.size() + 2 > kHelpColumn) form.append("\n  ").append(kHelpColumn, ' ');
    form.resize(std::max(kHelpColumn, form.size()), ' ');
    text.append("  ").append(form).append(TakeLine(help)).append("\n");
  }
  return text;
}

}  // namespace

ExitStatus RunScript(Session& session, std::istream& script, const std::string& name, std::ostream& errors) {
  int number = 0;
  const auto leave = [&](ExitStatus status, const std::string& reason) {
    errors << name << ':' << number << ": " << reason << std::endl;
    return status;
  };
  for (std::string line; std::getline(script, line);) {
    ++number;
    try {
      RunLine(session, line);
    } catch (const Stop& stop) {
      return leave(stop.Status(), stop.what());
    } catch (const host::NoConfiguration& problem) {
      return leave(ExitStatus::kWrongStatement, problem.what());
    } catch (const core::Failure& failure) {
      return leave(ExitStatus::kWrongStatement, failure.Text());
    }
  }
  if (!script.bad()) return ExitStatus::kDone;
  return leave(ExitStatus::kWrongStatement, "the script cannot be read");
}

command_line::Program Description() {
  std::string statements = "\nStatements:\n";
  for (const auto& statement : Statements()) statements += HelpOf(statement);
  return {"ovl-script", "[OPTION] [FILE | COMMAND]", kPurpose, CommandOptions(),
          CommandsHelp().append(statements).append(kExitStatus)};
}

}  // namespace ovl::script
