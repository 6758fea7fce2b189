#pragma once

namespace unit {

// The speed set on a terminal, in bits per second, also one that has no name of its own such as 14400; 0 when
// it cannot be told.
unsigned TtySpeed(int descriptor);

}  // namespace unit
