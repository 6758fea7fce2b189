#pragma once

#include "script/parser.h"
#include "script/session.h"

namespace ovl::script {

// The statement "expect" in all its forms. What is otherwise throws Stop with kExpectationFailed, which says
// what was expected and what was found.
void Expect(Session& session, Arguments& arguments);

}  // namespace ovl::script
