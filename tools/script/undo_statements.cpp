#include "script/undo_statements.h"

#include <array>

#include "script/stop.h"

namespace ovl::script {
namespace {

using Step = bool (acts::ActHistory::*)();

// Takes back up to N acts; prints `refused WORD` when there are fewer, or when undo is not possible now.
void Repeat(Session& session, Arguments& arguments, const char* word, Step step) {
  const int times = arguments.AtEnd() ? 1 : arguments.Number("N");
  if (times < 0) Wrong("N must not be negative");
  arguments.End();
  for (int done = 0; done < times; ++done) {
    if ((session.History().*step)()) {
      session.Advisor().AfterOwnAct();
      continue;
    }
    session.Output() << "refused " << word << '\n';
    return;
  }
}

void Undo(Session& session, Arguments& arguments) {
  Repeat(session, arguments, "undo", &acts::ActHistory::Undo);
}

void Redo(Session& session, Arguments& arguments) {
  Repeat(session, arguments, "redo", &acts::ActHistory::Redo);
}

constexpr std::array kStatements = {
    Statement{"undo", "undo [N]", "undoes the last N steps", Undo},
    Statement{"redo", "redo [N]", "redoes steps that undo took back", Redo},
};

}  // namespace

std::span<const Statement> UndoStatements() {
  return kStatements;
}

}  // namespace ovl::script
