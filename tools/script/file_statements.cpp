#include "script/file_statements.h"

#include <array>

#include "acts/backup.h"
#include "script/stop.h"

namespace ovl::script {
namespace {

void Backup(Session& session, Arguments& arguments) {
  const auto path = arguments.Next("PATH");
  arguments.End();
  const auto written = acts::SaveBackup(session.App(), path);
  if (!written.Ok()) Wrong(written.Problem().Text());
  session.Advisor().BackupWritten();
}

constexpr auto kStatements = std::to_array<Statement>({
    {"backup", "backup PATH",
     "writes the image into a file that \"Open\" reads again under the same firmware", Backup},
});

}  // namespace

std::span<const Statement> FileStatements() {
  return kStatements;
}

}  // namespace ovl::script
