#include "script/change_statements.h"

#include <array>
#include <ostream>

#include "acts/copy_slot.h"
#include "script/stop.h"
#include "text_form/export.h"

namespace ovl::script {
namespace {

void Changes(Session& session, Arguments& arguments) {
  arguments.End();
  const auto rows = changes::ReadableChanges(session.App());
  for (const auto& row : rows) session.Output() << ChangeLine(row);
  if (rows.empty()) session.Output() << "no changes\n";
}

void Copy(Session& session, Arguments& arguments) {
  const bool alarm = arguments.Take("alarm");
  if (!alarm && !arguments.Take("exception")) Wrong("copy exception or copy alarm");
  acts::SlotCopy copy{alarm ? acts::SlotKind::kAlarm : acts::SlotKind::kException, 0, 0, 0};
  copy.from = arguments.Number("FROM");
  copy.first = arguments.Number("TO");
  copy.last = arguments.AtEnd() ? copy.first : arguments.Number("LAST");
  arguments.End();
  const int count = acts::SlotCount(copy.kind);
  for (const int number : {copy.from, copy.first, copy.last}) {
    if (number < 1 || number > count) Wrong("the numbers are 1 to " + std::to_string(count));
  }
  if (copy.last < copy.first) Wrong("LAST must not be less than TO");
  auto& app = session.App();
  if (!acts::CanCopySlot(app, copy)) {
    session.Output() << "refused copy\n";
    return;
  }
  session.History().Run(acts::NameOfCopy(copy.kind), [&] { acts::CopySlot(app, copy); });
}

constexpr auto kStatements = std::to_array<Statement>({
    {"changes", "changes",
     "prints what a download would change, TAB: CAPTION: \"BEFORE\" -> \"AFTER\", one setting a line",
     Changes},
    {"copy", "copy exception FROM TO [LAST]\ncopy alarm FROM TO [LAST]",
     "copies an exception to TO, or to all numbers from TO to LAST\ncopies an alarm in the same way", Copy},
});

}  // namespace

std::span<const Statement> ChangeStatements() {
  return kStatements;
}

std::string ChangeLine(const changes::SettingChange& change) {
  return change.place.English() + ": " + change.caption.English() + ": " + text_form::Quoted(change.before) +
         " -> " + text_form::Quoted(change.after) + "\n";
}

}  // namespace ovl::script
