// The toolkit's event loop for tests.
#pragma once

#include <functional>

namespace ovl {

// Makes the application object when it is first asked for; it lives until the tests have ended.
void NeedEventLoop();

// Runs the loop until the condition holds; false if it still doesn't after ten seconds.
bool RunUntil(const std::function<bool()>& condition);

// Runs the loop for a while in which something that must not happen could happen.
void RunForAWhile();

// Runs the loop until it has nothing left to do; false if it is never idle.
bool BecomesIdle();

}  // namespace ovl
