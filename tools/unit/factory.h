#pragma once

#include <string>

#include "unit/firmware.h"

namespace unit {

// The configuration with which a unit leaves the factory: a register that sends plain text at 9600 baud
// without parity, an empty title, every exception slot free, no alarm. As many hexadecimal digits as the
// region holds.
std::string FactoryImage(const Firmware& firmware);

}  // namespace unit
