// The statements that take acts back.
#pragma once

#include <span>

#include "script/statements.h"

namespace ovl::script {

std::span<const Statement> UndoStatements();

}  // namespace ovl::script
