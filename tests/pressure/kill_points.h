// A process that is killed at its n-th call of the system.
#pragma once

#include <functional>

namespace ovl::testing {

enum class Stopped { kKilled, kRanToItsEnd, kNotPossible };

// Runs the work in a process of its own, which never comes to its n-th call, counted from 1.
Stopped KillAtCall(int n, const std::function<void()>& work);

}  // namespace ovl::testing
