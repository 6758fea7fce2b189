// History logs as files: a tag line, and the text as the unit sent it.
#pragma once

#include "core/application.h"

namespace ovl::files {

// Asks for a file and writes the collected history into it; after Cancel, into the file that the dialog
// offered. A failure goes to the status bar.
void SaveHistory(core::Application& app);

// Open History of the File menu: shows a tagged file in the viewer.
void OpenHistory_menu_Click(core::Application& app, int index);

// Shows the diagnostic log of the program folder in the viewer. Throws Failure.
void ShowDataDump(core::Application& app);

}  // namespace ovl::files
