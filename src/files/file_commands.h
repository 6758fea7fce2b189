// Open and Save of the File menu.
#pragma once

#include "core/application.h"

namespace ovl {

void OpenMenu_Click(Application& app, int index);
void menuSave_Click(Application& app, int index);

}  // namespace ovl
