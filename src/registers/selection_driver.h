// A pick in the register list loads the default image of the register. The code in the image then sets the
// list.
#pragma once

#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::registers {

// Gives the register list, the option frames and the windows of the registers their handlers.
void WireRegisters(core::Application& app);

// Handles each selection in ComboReg, by the installer or by code. A default image that cannot be read ends
// the program with a message box.
void RegisterSelected(core::Application& app, int index);

// Shows the register of the image and its options. A code that is not in the list does not move the list.
void ApplyRegisterSelection(core::Application& app);

// Hides all option frames and shows the one of the selected register.
void ShowRegisterOptions(core::Application& app);

// Whether the selected register has options that stay hidden, because a stored byte has no entry in them.
bool OptionsAreHidden(const core::Application& app);

// That byte; null if the options are shown, or if the image was changed since without showing it.
const core::UnfitOption* UnfitOptionOf(const core::Application& app);

// A register's name as a file name: "/" and "," become blanks.
std::string Check_Slash_Comma(std::string name);

// The file of a register's default image, without its folder.
std::string ImageFileOf(const firmware::FirmwareId& firmware, std::string_view register_name);

// The path of a register's default image below a program folder. Throws Failure for a name that would leave
// the folder.
std::string DefaultImageOf(const std::string& folder, const firmware::FirmwareId& firmware,
                           const std::string& register_name);

// Puts the path of the selected register's default image into CurrentFilePath. A family without images leaves
// the last path there.
void DefaultImagePath(core::Application& app);

}  // namespace ovl::registers
