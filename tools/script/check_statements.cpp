#include "script/check_statements.h"

#include <array>
#include <ostream>

#include "checks/checks.h"
#include "script/finding_lines.h"

namespace ovl::script {
namespace {

void Check(Session& session, Arguments& arguments) {
  arguments.End();
  const auto findings = checks::FindingsOf(session.App(), session.App().image);
  for (const auto& finding : findings) session.Output() << LineOf(finding) << '\n';
  if (findings.empty()) session.Output() << "no findings\n";
}

constexpr std::array kStatements = {
    Statement{"check", "check", "prints the findings for the configuration, error|warning|note: RULE: WORDS",
              Check},
};

}  // namespace

std::span<const Statement> CheckStatements() {
  return kStatements;
}

}  // namespace ovl::script
