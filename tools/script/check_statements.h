// The statement that checks the configuration of the program.
#pragma once

#include "script/statements.h"

namespace ovl::script {

std::span<const Statement> CheckStatements();

}  // namespace ovl::script
