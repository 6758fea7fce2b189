// Statements about the changes since the last load or download, and about copies of exceptions and alarms.
#pragma once

#include "script/statements.h"

namespace ovl::script {

std::span<const Statement> ChangeStatements();

}  // namespace ovl::script
