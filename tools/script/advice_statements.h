// Statements about the advice to the installer.
#pragma once

#include <span>

#include "script/statements.h"

namespace ovl::script {

std::span<const Statement> AdviceStatements();

// expect advice "TEXT": a line contains the text.
void ExpectAdvice(Session& session, Arguments& arguments);

// expect no advice ["TEXT"]: no line contains the text; without a text, there is no line.
void ExpectNoAdvice(Session& session, Arguments& arguments);

}  // namespace ovl::script
