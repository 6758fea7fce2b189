// The Version menu, which offers every firmware, and the pair that the settings store keeps.
#pragma once

#include "core/application.h"
#include "firmware/firmware_table.h"

namespace ovl::start {

// Adds an item for every row to the main form, under its family, and names it in the registry.
void BuildVersionMenu(core::Application& app);

// Checks the menu item of the running firmware and sets its mark. A firmware that is not in the table marks
// nothing.
void MarkFirmwareMenu(core::Application& app, bool mark);
void ClearFirmwareMarks(core::Application& app);

// Writes the running firmware to the settings store.
void StoreFirmware(core::Application& app);

// Makes the entry the firmware of the next start: stores it, shows a message box and ends the program. The
// marked entry does nothing.
void SelectFirmware(core::Application& app, const firmware::FirmwareEntry& entry);

// A click on the n-th item of the Version menu.
void VersionItem_Click(core::Application& app, int item);

// From here on the compact firmware runs as a release of another family, with a form of its own. The settings
// store keeps the compact firmware.
void ApplyCompactFirmware(core::Application& app);

}  // namespace ovl::start
