// Turns a pick in the register list into a configuration: the register's default image comes in, and its code
// drives the list back.
#pragma once

#include <string>

#include "core/application.h"

namespace ovl::registers {

// Gives the register list, the option frames and the windows of the registers their handlers.
void WireRegisters(core::Application& app);

// The selection event of ComboReg, a person's or the program's own. A default image that cannot be read ends
// the program with a message.
void RegisterSelected(core::Application& app, int index);

// Brings the list and the register's options to what the image holds. A code that the list lacks leaves it.
void ApplyRegisterSelection(core::Application& app);

// Hides all option frames and shows the one of the selected register.
void ShowRegisterOptions(core::Application& app);

// The selected register's name as a file name: "/" and "," become blanks.
std::string Check_Slash_Comma(const core::Application& app);

// The path of the selected register's default image. A family without images builds none: the last path
// stands.
void DefaultImagePath(core::Application& app);

}  // namespace ovl::registers
