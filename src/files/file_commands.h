// Open and Save of the File menu.
#pragma once

#include "core/application.h"

namespace ovl::files {

// Gives Open, Save and Open History their handlers.
void WireFileMenu(controls::MainForm& form);

void OpenMenu_Click(core::Application& app, int index);
void menuSave_Click(core::Application& app, int index);

}  // namespace ovl::files
