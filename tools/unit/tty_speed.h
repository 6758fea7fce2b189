#pragma once

namespace unit {

// The speed set on a terminal in bits per second, which need not be a standard one (14400). 0 if it is
// unknown.
unsigned TtySpeed(int descriptor);

}  // namespace unit
