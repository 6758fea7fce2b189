// Statements for the changes in words, and for copies of exceptions and alarms.
#pragma once

#include <span>
#include <string>

#include "changes/readable.h"
#include "script/statements.h"

namespace ovl::script {

std::span<const Statement> ChangeStatements();

// TAB: CAPTION: "BEFORE" -> "AFTER", with a line end.
std::string ChangeLine(const changes::SettingChange& change);

}  // namespace ovl::script
