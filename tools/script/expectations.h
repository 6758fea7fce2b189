#pragma once

#include "script/parser.h"
#include "script/session.h"

namespace ovl::script {

// The statement "expect" in all its forms. A failed expectation throws Stop with kExpectationFailed and names
// the expected and the actual value.
void Expect(Session& session, Arguments& arguments);

}  // namespace ovl::script
