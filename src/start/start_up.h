// Knows all modules: has them wire their controls, and starts the program.
#pragma once

#include "core/gate.h"

namespace ovl::start {

// Builds the Version menu, sets all handlers and the order of the apply routines. Once for each application
// object.
void WireProgram(core::Application& app);

// Wires the program for a firmware without a start: nothing is asked of the platform, and no window is shown.
// For tools that show images.
void ServeFirmware(core::Application& app, const firmware::FirmwareId& firmware);

// Wires the program and runs the start: settings store, register list, first register. The platform record
// must be filled. kEnded: the program has ended, and a message box has said why.
core::Outcome StartProgram(core::Application& app);

}  // namespace ovl::start
