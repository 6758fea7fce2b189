// History logs as files: a tag line, and the text as the unit sent it.
#pragma once

#include "core/application.h"

namespace ovl::files {

// Asks for a file and writes the collected history into it; on a cancel into the file that was offered. A
// failure is noted.
void SaveHistory(core::Application& app);

// Open History of the File menu: a tagged file into the viewer.
void OpenHistory_menu_Click(core::Application& app, int index);

// The diagnostic log of the program folder into the viewer. Throws Failure.
void ShowDataDump(core::Application& app);

}  // namespace ovl::files
