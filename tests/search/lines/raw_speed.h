#pragma once

namespace ovl::testing {

// Makes a terminal carry every byte as it is, at this speed, which need not be a standard one.
void SetRawSpeed(int terminal, unsigned bits_a_second);

}  // namespace ovl::testing
