#include "script/runner.h"

#include "core/failure.h"
#include "script/parser.h"
#include "script/statements.h"

namespace ovl::script {
namespace {

constexpr std::size_t kHelpColumn = 31;

constexpr std::string_view kIntroduction =
    "ovl-script [FILE]\n"
    "\n"
    "Runs OVL Software without a screen, from a script or from standard input. One statement\n"
    "a line, # starts a comment. A text stands in double quotes with \\\" \\\\ \\r \\n \\t \\xHH.\n"
    "NAME is a control's name with its index, ComboCOMM(3), where two forms share it with the\n"
    "form in front, FrmSubMenu.Combo1(1). OpMicros(3) is an element of an option array.\n"
    "\n";

constexpr std::string_view kClosing =
    "\n"
    "pick, click and type on a control that is disabled or hidden print \"refused NAME\". A\n"
    "message box prints \"box TITLE TEXT\", the end of the program \"ended\".\n"
    "\n"
    "Exit status: 0 done; 1 an expectation failed; 2 a statement is wrong; 3 the program ended\n"
    "and a statement that needs it was left; 4 a transfer failed.\n";

void RunLine(Session& session, std::string_view line) {
  auto words = SplitWords(line);
  if (words.empty()) return;
  const auto word = words.front();
  words.erase(words.begin());
  const auto* statement = word.quoted ? nullptr : FindStatement(word.text);
  if (statement == nullptr) Wrong("there is no statement " + Quoted(word.text));
  if (session.Ended() && !statement->after_end) {
    throw Stop(ExitStatus::kProgramEnded, "the program has ended, " + word.text + " needs it");
  }
  Arguments arguments(std::move(words));
  statement->run(session, arguments);
  if (!session.Output().flush()) Wrong("the output cannot be written");
}

// The forms of a statement one below the other, its explanation beside the last of them.
std::string HelpOf(const Statement& statement) {
  std::string text;
  std::string_view left = statement.forms;
  for (auto end = left.find('\n'); end != std::string_view::npos; end = left.find('\n')) {
    text.append(left.substr(0, end + 1));
    left.remove_prefix(end + 1);
  }
  text.append(left);
  if (left.size() + 2 <= kHelpColumn) {
    text.append(kHelpColumn - left.size(), ' ');
  } else {
    text.append("\n").append(kHelpColumn, ' ');
  }
  return text.append(statement.help).append("\n");
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
    } catch (const core::Failure& failure) {
      return leave(ExitStatus::kWrongStatement, failure.Text());
    }
  }
  if (!script.bad()) return ExitStatus::kDone;
  return leave(ExitStatus::kWrongStatement, "the script cannot be read");
}

std::string HelpText() {
  std::string text(kIntroduction);
  for (const auto& statement : Statements()) text += HelpOf(statement);
  return text.append(kClosing);
}

}  // namespace ovl::script
