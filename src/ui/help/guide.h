// Writes the guide for the installer: the pages of the help, with pictures, as one PDF.
#pragma once

#include <QString>

#include "ui/help/help_pages.h"

namespace ovl::ui {

// Leaves out pictures that are not in the folder. Returns the path and the reason of a failure; empty on
// success.
QString WriteGuide(const HelpPages& pages, const QString& pictures, const QString& file);

}  // namespace ovl::ui
