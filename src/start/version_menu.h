// The Version menu, which offers every firmware, and the pair that the settings store keeps.
#pragma once

#include "core/application.h"
#include "firmware/firmware_table.h"

namespace ovl::start {

// Adds an item for every row to the main form, under its family, and names it in the registry.
void BuildVersionMenu(core::Application& app);

// Checks the menu item of the running firmware and sets its mark. A pair that the table lacks marks nothing.
void MarkFirmwareMenu(core::Application& app, bool mark);
void ClearFirmwareMarks(core::Application& app);

// Writes the running firmware to the settings store.
void StoreFirmware(core::Application& app);

// Makes the entry the firmware of the next start: stores it, tells so, ends the program. Nothing for the
// marked one.
void SelectFirmware(core::Application& app, const firmware::FirmwareEntry& entry);

// A click on the n-th item of the Version menu.
void VersionItem_Click(core::Application& app, int item);

// The compact firmware runs as another family's release from here on, with a form of its own; the settings
// store keeps it.
void ApplyCompactFirmware(core::Application& app);

}  // namespace ovl::start
