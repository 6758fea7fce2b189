// Statements for our own acts on files.
#pragma once

#include <span>

#include "script/statements.h"

namespace ovl::script {

std::span<const Statement> FileStatements();

}  // namespace ovl::script
